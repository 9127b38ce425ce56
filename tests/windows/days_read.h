// Waiting for the window of several days, which works in pieces while others go on.
#pragma once

#include <QApplication>
#include <QProgressBar>
#include <QTest>

#include "windows/find_in.h"

namespace kelvora {

// Until the window of several days, somewhere in that window, has done all its work; false if it
// doesn't come to an end.
inline bool DaysAreRead(const QWidget& window) {
  const auto& days = *FindIn<QWidget>(window, QStringLiteral("KV_tb_meerdaags"));
  const auto* const progress = FindIn<QProgressBar>(days, QStringLiteral("ProgressBar"));
  const bool done = QTest::qWaitFor([&] { return progress->isHidden(); }, 30000);
  QApplication::processEvents();
  return done;
}

}  // namespace kelvora
