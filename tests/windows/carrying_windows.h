// A backup of the users of a test, and its window once it is read.
#pragma once

#include <memory>
#include <stdexcept>

#include <QTest>

#include "keeping/restore_dialog.h"
#include "windows/find_in.h"

namespace kelvora {

inline std::string BackupOfAll(Program& program) {
  const std::string path = program.platform.folders.Documents() + "/backup.zip";
  Backup backup(program.paths.UsersPath, ReadUsers(program).users, path);
  while (backup.Work()) {
  }
  return path;
}

// Throws if it is never read.
inline std::unique_ptr<RestoreDialog> ReadBackupWindow(Program& program, const std::string& path) {
  auto dialog = std::make_unique<RestoreDialog>(program, path, nullptr);
  dialog->show();
  const auto* const users = FindIn<QWidget>(*dialog, QStringLiteral("LV_users"));
  if (!QTest::qWaitFor([users] { return users->isEnabled(); }, 30000)) {
    throw std::runtime_error("the backup is never read");
  }
  return dialog;
}

}  // namespace kelvora
