// What the windows have to do with the recovery copy: when it is written, the diary's box, the
// buttons of the offer, and signals.
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "analysis/diary_window.h"
#include "core/frame/main_window.h"
#include "platform/qt/ending_requests.h"
#include "platform/qt/qt_platform.h"
#include "storage/day_file.h"
#include "storage/recovery_copy.h"
#include "support/test_program.h"
#include "windows/find_in.h"

namespace kelvora {
namespace {

std::optional<RecoveryCopy> CopyOf(const TestProgram& test) {
  std::error_code none;
  for (const auto& entry :
       std::filesystem::directory_iterator(test.program.paths.StatePath, none)) {
    if (auto copy = ReadRecoveryCopy(entry.path().string())) return copy;
  }
  return std::nullopt;
}

TEST(RecoveryWindows, WhatIsTypedIntoTheDiaryIsKeptByItselfAndGoesWithTheDay) {
  TestProgram test;
  MainWindow window(test.program);
  test.OpenDay("Anna");
  SaveDay(test.program);
  window.OpenWindow(WindowId::diary);
  auto* const box = window.findChild<QPlainTextEdit*>(QStringLiteral("txt_notities"));
  ASSERT_NE(box, nullptr);
  QTest::keyClicks(box, QStringLiteral("Slept well"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return CopyOf(test).has_value(); }, 30000));
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        const auto copy = CopyOf(test);
        return copy && copy->diary == "Slept well";
      },
      30000));
  CloseDay(test.program);
  EXPECT_FALSE(CopyOf(test).has_value());
  test.program.ending = true;
}

TEST(RecoveryWindows, TextPutBackIntoTheDiarysBoxCountsAsTyped) {
  TestProgram test;
  test.OpenDay("Anna");
  test.program.store.txt_notities = "Up at six.";
  SaveDay(test.program);
  DiaryWindow window(test.program, nullptr);
  window.TypeText("Up at six.\nTired.");
  EXPECT_TRUE(window.HoldsUntakenText());
  EXPECT_EQ(window.TextInBox(), "Up at six.\nTired.");
  EXPECT_TRUE(test.program.day.FileChanged);
  EXPECT_TRUE(window.TakeOver());
  EXPECT_EQ(test.program.store.txt_notities, "Up at six.\r\nTired.");
}

TEST(RecoveryWindows, AQuestionsButtonsSayWhatTheyDoAndEscapeLosesNothing) {
  QtBoxes boxes;
  const Box box{.text = "Work was found",
                .buttons = BoxButtons::yes_no_cancel,
                .captions = {"Open", "Throw away", "Keep"}};
  QStringList captions;
  QString standard;
  QTimer::singleShot(0, [&] {
    auto* const shown = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    for (const auto button : {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}) {
      captions << shown->button(button)->text();
    }
    standard = shown->defaultButton()->text();
    QTest::keyClick(shown, Qt::Key_Escape);
  });
  EXPECT_EQ(boxes.Show(box), BoxAnswer::cancel);
  EXPECT_EQ(captions, (QStringList{"Open", "Throw away", "Keep"}));
  EXPECT_EQ(standard, "Keep");
}

TEST(RecoveryWindows, ASignalReachesTheEventLoop) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    EndingRequests requests;
    int taken = 0;
    requests.on_signal = [&taken] { ++taken; };
    raise(signal);
    EXPECT_EQ(taken, 0) << "not within the signal";
    EXPECT_TRUE(QTest::qWaitFor([&] { return taken == 1; }, 30000)) << signal;
  }
}

TEST(RecoveryWindows, ASignalThatWasIgnoredStaysIgnored) {
  std::signal(SIGHUP, SIG_IGN);
  {
    EndingRequests requests;
    int taken = 0;
    requests.on_signal = [&taken] { ++taken; };
    raise(SIGHUP);
    raise(SIGTERM);
    EXPECT_TRUE(QTest::qWaitFor([&] { return taken > 0; }, 30000));
    QTest::qWait(1);
    EXPECT_EQ(taken, 1);
  }
  EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}

TEST(RecoveryWindows, TheSessionsEndReachesTheProgram) {
  EndingRequests requests;
  int ends = 0;
  requests.on_session_end = [&ends] { ++ends; };
  // What the platform does with the request of a session manager, of which there is none here.
  ASSERT_TRUE(QMetaObject::invokeMethod(qGuiApp, "commitDataRequest", Qt::DirectConnection,
                                        QGenericArgument("QSessionManager&", &requests)));
  EXPECT_EQ(ends, 1);
}

}  // namespace
}  // namespace kelvora
