#include "keeping/backup_reminder.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "language/own_texts.h"
#include "storage/own_settings.h"
#include "storage/record_file.h"
#include "support/file_faults.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

std::string OwnConf(const TestProgram& test) {
  return test.folders.home.Path(".config/Brelux/own.conf");
}

TEST(BackupReminder, ComesThirtyDaysAfterTheFirstStartAndCountsOn) {
  TestProgram test;
  LoadBackupReminder(test.program);
  EXPECT_EQ(BackupReminderText(test.program), "");
  EXPECT_EQ(ReadFile(OwnConf(test)), "backup_counted_from = 2004-03-05\n");
  test.clock.now = {.year = 2004, .month = 4, .day = 3};  // 29 days later
  LoadBackupReminder(test.program);
  EXPECT_EQ(BackupReminderText(test.program), "");
  test.clock.now.day = 4;
  LoadBackupReminder(test.program);
  EXPECT_EQ(BackupReminderText(test.program), "No backup for 30 days");
  test.clock.now = {.year = 2005, .month = 3, .day = 5};
  EXPECT_EQ(BackupReminderText(test.program), "No backup for 365 days");
}

TEST(BackupReminder, ABackupEndsIt) {
  TestProgram test;
  SetOwnSetting(test.program.paths, "backup_counted_from", "2003-03-05");
  LoadBackupReminder(test.program);
  EXPECT_EQ(BackupReminderText(test.program), "No backup for 366 days");  // 2004 leaps
  NoteBackup(test.program);
  EXPECT_EQ(BackupReminderText(test.program), "");
  LoadBackupReminder(test.program);
  EXPECT_EQ(BackupReminderText(test.program), "");
}

TEST(BackupReminder, CanBeTurnedOffAndOnAgain) {
  TestProgram test;
  SetOwnSetting(test.program.paths, "backup_counted_from", "2003-03-05");
  LoadBackupReminder(test.program);
  EXPECT_TRUE(RemindsOfBackup(test.program));
  EXPECT_TRUE(SetRemindsOfBackup(test.program, false));
  EXPECT_EQ(BackupReminderText(test.program), "");
  LoadBackupReminder(test.program);
  EXPECT_FALSE(RemindsOfBackup(test.program));
  EXPECT_TRUE(SetRemindsOfBackup(test.program, true));
  EXPECT_NE(BackupReminderText(test.program), "");
}

TEST(BackupReminder, AfterTheClockWasSetBackCountingBeginsAnew) {
  TestProgram test;
  SetOwnSetting(test.program.paths, "backup_counted_from", "2036-01-01");
  LoadBackupReminder(test.program);
  EXPECT_EQ(OwnSetting(test.program.paths, "backup_counted_from"), "2004-03-05");
  test.clock.now.year = 2003;
  EXPECT_EQ(BackupReminderText(test.program), "");
}

TEST(BackupReminder, WhatIsNoDateCountsAsNone) {
  for (const char* text : {"", "yesterday", "2004-02-30", "2004-3-5", "2004-13-01", "20040305"}) {
    TestProgram test;
    SetOwnSetting(test.program.paths, "backup_counted_from", text);
    LoadBackupReminder(test.program);
    EXPECT_EQ(OwnSetting(test.program.paths, "backup_counted_from"), "2004-03-05") << text;
  }
}

TEST(BackupReminder, SettingsThatCantBeWrittenShowTheirCodeAndStayAsTheyAre) {
  TestProgram test;
  LoadBackupReminder(test.program);
  const InjectedFault fault({.disk_full_after = 0});
  EXPECT_FALSE(SetRemindsOfBackup(test.program, false));
  EXPECT_TRUE(RemindsOfBackup(test.program));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#F17-0"));
}

TEST(OwnSettings, OtherLinesStayAsTheyAre) {
  TestProgram test;
  const std::string path = OwnConf(test);
  WriteFileAnew(path, "# mine\nother=1\n\nbackup_reminder =  0 \r\nno mark\nlast = x");
  EXPECT_EQ(OwnSetting(test.program.paths, "backup_reminder"), "0");
  EXPECT_EQ(OwnSetting(test.program.paths, "last"), "x");
  EXPECT_EQ(OwnSetting(test.program.paths, "mine"), std::nullopt);
  SetOwnSetting(test.program.paths, "backup_reminder", "1");
  EXPECT_EQ(ReadFile(path), "# mine\nother=1\n\nbackup_reminder = 1\nno mark\nlast = x\n");
  SetOwnSetting(test.program.paths, "new", "2");
  EXPECT_EQ(ReadFile(path), "# mine\nother=1\n\nbackup_reminder = 1\nno mark\nlast = x\nnew = 2\n");
}

TEST(OwnSettings, AFileThatCantBeReadIsNotWritten) {
  TestProgram test;
  const std::string path = OwnConf(test);
  std::filesystem::create_directories(path);
  EXPECT_EQ(OwnSetting(test.program.paths, "other"), std::nullopt);
  EXPECT_THROW(SetOwnSetting(test.program.paths, "other", "1"), std::system_error);
  EXPECT_TRUE(std::filesystem::is_directory(path));
}

}  // namespace
}  // namespace kelvora
