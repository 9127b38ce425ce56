// The dialogs for making a backup and bringing it back, by what a user does there.
#include <filesystem>
#include <gtest/gtest.h>

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

#include "core/frame/main_window.h"
#include "days/open_day.h"
#include "keeping/backup_dialog.h"
#include "keeping/backup_reminder.h"
#include "language/built_in_texts.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/own_settings.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"
#include "support/test_program.h"
#include "windows/carrying_windows.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

class CarryingDialogs : public testing::Test {
 protected:
  void MakeUser(std::string_view name, int days) {
    MakeUserFolders(program.paths, name);
    Rec_Profile profile = DefaultsOfNewUser();
    profile[ProfileField::name] = name;
    WriteRecord(ProfileFile(program.paths, name), profile);
    for (int day = 1; day <= days; ++day) {
      const std::string number = std::to_string(100 + day).substr(1);
      Rec_DayFile record;
      record[DayFileField::Header] =
          Packed(Text(name) + "~~~~~1.80~80~Female~42~" + number + "-03-04~75~Friday~~~~");
      WriteRecord(DayOf(name, day), record);
    }
  }
  std::string DayOf(std::string_view name, int day) {
    return UserFolder(program.paths, name) + "Files/" + std::to_string(100 + day).substr(1) +
           ".kvf";
  }
  static QString CellOf(const QTableView& table, int row, int column) {
    return table.model()->index(row, column).data().toString();
  }
  static Qt::CheckState TickOf(const QTableView& table, int row) {
    return table.model()->index(row, 0).data(Qt::CheckStateRole).value<Qt::CheckState>();
  }

  TestProgram test;
  Program& program = test.program;
};

TEST_F(CarryingDialogs, ABackupIsMadeOfAllUsersAndSaysSo) {
  MakeUser("Anna", 2);
  MakeUser("Bob", 1);
  test.folder_chooser.zip = test.folders.home.Path("b.zip");
  BackupDialog dialog(program, nullptr);
  dialog.show();
  FindIn<QPushButton>(dialog, "cmd_backup")->click();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !test.boxes.shown.empty(); }, 30000));
  EXPECT_EQ(test.boxes.shown[0].text,
            "The backup is made. Files written, read back and compared: 5");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::information);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(program.windows.backup, nullptr);
  ASSERT_EQ(test.folder_chooser.starts.size(), 1u);
  EXPECT_TRUE(test.folder_chooser.starts[0].ends_with("/Documents/Kelvora FOOD 2004-03-05.zip"));
  EXPECT_EQ(OwnSetting(program.paths, "backup_counted_from"), "2004-03-05");
  EXPECT_EQ(ReadBackupWindow(program, *test.folder_chooser.zip)
                ->findChild<QTableView*>("LV_users")
                ->model()
                ->rowCount(),
            2);
}

TEST_F(CarryingDialogs, ABackupOfOneUserHoldsThatUser) {
  MakeUser("Anna", 2);
  MakeUser("Bob", 1);
  test.folder_chooser.zip = test.folders.home.Path("b.zip");
  BackupDialog dialog(program, nullptr);
  dialog.show();
  auto* const users = FindIn<QComboBox>(dialog, "cmb_users");
  ASSERT_EQ(users->count(), 3);
  EXPECT_EQ(users->itemText(0), "All users");
  users->setCurrentIndex(2);
  FindIn<QPushButton>(dialog, "cmd_backup")->click();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !test.boxes.shown.empty(); }, 30000));
  const auto window = ReadBackupWindow(program, *test.folder_chooser.zip);
  auto* const list = FindIn<QTableView>(*window, "LV_users");
  ASSERT_EQ(list->model()->rowCount(), 1);
  EXPECT_EQ(CellOf(*list, 0, 0), "Bob");
  EXPECT_EQ(CellOf(*list, 0, 1), "1");
}

TEST_F(CarryingDialogs, NoFileChosenMakesNoBackup) {
  MakeUser("Anna", 1);
  BackupDialog dialog(program, nullptr);
  dialog.show();
  FindIn<QPushButton>(dialog, "cmd_backup")->click();
  QApplication::processEvents();
  EXPECT_TRUE(FindIn<QPushButton>(dialog, "cmd_backup")->isEnabled());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(CarryingDialogs, CancelLeavesNothingBehindAndTheDialogOpen) {
  MakeUser("Anna", 28);
  test.folder_chooser.zip = test.folders.home.Path("b.zip");
  BackupDialog dialog(program, nullptr);
  dialog.show();
  FindIn<QPushButton>(dialog, "cmd_backup")->click();
  EXPECT_EQ(FindIn<QPushButton>(dialog, "cmd_annuleer")->text(), "Cancel");
  EXPECT_FALSE(FindIn<QPushButton>(dialog, "cmd_backup")->isEnabled());
  QTest::keyClick(&dialog, Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(FindIn<QPushButton>(dialog, "cmd_annuleer")->text(), "Close");
  EXPECT_FALSE(fs::exists(*test.folder_chooser.zip));
  EXPECT_FALSE(fs::exists(*test.folder_chooser.zip + ".part"));
  EXPECT_TRUE(test.boxes.shown.empty());
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(CarryingDialogs, AFailedBackupShowsItsCodeAndCanBeTriedAgain) {
  MakeUser("Anna", 1);
  test.folder_chooser.zip = test.folders.home.Path("no stick/b.zip");
  BackupDialog dialog(program, nullptr);
  dialog.show();
  FindIn<QPushButton>(dialog, "cmd_backup")->click();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !test.boxes.shown.empty(); }, 30000));
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured.\n\nNo such file or directory\nBrelux CODE:#F17-2");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_TRUE(FindIn<QPushButton>(dialog, "cmd_backup")->isEnabled());
  EXPECT_EQ(test.boxes.shown.size(), 1u) << "it does not say that it is made";
}

TEST_F(CarryingDialogs, TellsOfWhatIsNotSaved) {
  MakeUser("Anna", 1);
  BackupDialog dialog(program, nullptr);
  dialog.show();
  auto* const hint = FindIn<QLabel>(dialog, "lbl_unsaved");
  EXPECT_FALSE(hint->isVisible());
  test.OpenDay("Anna");
  SetFileChanged(program, true);
  dialog.FollowSettings();
  EXPECT_TRUE(hint->isVisible());
  EXPECT_EQ(hint->text(), "What is not saved yet will not be in the backup.");
}

TEST_F(CarryingDialogs, WithoutUsersThereIsNothingToBackUp) {
  BackupDialog dialog(program, nullptr);
  dialog.show();
  EXPECT_FALSE(FindIn<QPushButton>(dialog, "cmd_backup")->isEnabled());
  EXPECT_EQ(FindIn<QLabel>(dialog, "lbl_unsaved")->text(), "There are no users to back up yet.");
}

TEST_F(CarryingDialogs, TheReminderStandsInTheStatusBarUntilABackupOrItsTick) {
  MakeUser("Anna", 1);
  SetOwnSetting(program.paths, "backup_counted_from", "2004-01-01");
  LoadBackupReminder(program);
  MainWindow window(program);
  window.resize(1024, 740);
  window.show();
  window.Set_Taal();
  auto* const panel = FindIn<QLabel>(window, "StatusBar_5");
  // January has 31 days and that February 29.
  EXPECT_EQ(panel->text(), "No backup for 64 days");
  EXPECT_GE(panel->width(), panel->sizeHint().width());
  EXPECT_LE(panel->geometry().right(), panel->parentWidget()->width());
  BackupDialog dialog(program, &window);
  auto* const tick = FindIn<QCheckBox>(dialog, "chk_reminder");
  EXPECT_TRUE(tick->isChecked());
  tick->click();
  EXPECT_EQ(panel->text(), "");
  EXPECT_EQ(OwnSetting(program.paths, "backup_reminder"), "0");
  tick->click();
  EXPECT_EQ(panel->text(), "No backup for 64 days");
  NoteBackup(program);
  EXPECT_EQ(panel->text(), "");
  EXPECT_EQ(panel->width(), 0);
  program.ending = true;
}

TEST_F(CarryingDialogs, ShowsWhatTheBackupHoldsAllOfItTicked) {
  MakeUser("Anna", 2);
  MakeUser("Bob", 0);
  const std::string path = BackupOfAll(program);
  fs::remove(DayOf("Anna", 2));
  const auto window = ReadBackupWindow(program, path);
  auto* const users = FindIn<QTableView>(*window, "LV_users");
  auto* const files = FindIn<QTableView>(*window, "LV_files");
  EXPECT_EQ(CellOf(*users, 0, 0), "Anna");
  EXPECT_EQ(CellOf(*users, 0, 1), "2");
  EXPECT_EQ(TickOf(*users, 0), Qt::Checked);
  EXPECT_TRUE(users->viewport()->rect().contains(users->visualRect(users->model()->index(0, 1))));
  ASSERT_EQ(files->model()->rowCount(), 3);
  EXPECT_EQ(CellOf(*files, 0, 0), "Profile");
  EXPECT_EQ(CellOf(*files, 0, 2), "the same");
  EXPECT_EQ(CellOf(*files, 2, 0), "02-03-04");
  EXPECT_EQ(CellOf(*files, 2, 1), "Friday");
  EXPECT_EQ(CellOf(*files, 2, 2), "not here");
  EXPECT_TRUE(FindIn<QRadioButton>(*window, "opt_differs_0")->isChecked());
  users->selectRow(1);
  EXPECT_EQ(files->model()->rowCount(), 1);
}

TEST_F(CarryingDialogs, SpaceTicksRowsAndTheUserShowsIt) {
  MakeUser("Anna", 3);
  const auto window = ReadBackupWindow(program, BackupOfAll(program));
  auto* const users = FindIn<QTableView>(*window, "LV_users");
  auto* const files = FindIn<QTableView>(*window, "LV_files");
  auto* const restore = FindIn<QPushButton>(*window, "cmd_restore");
  files->selectAll();
  QTest::keyClick(files, Qt::Key_Space);
  for (int row = 0; row < 4; ++row) EXPECT_EQ(TickOf(*files, row), Qt::Unchecked);
  EXPECT_EQ(TickOf(*users, 0), Qt::Unchecked);
  EXPECT_FALSE(restore->isEnabled());
  files->selectRow(2);
  QTest::keyClick(files, Qt::Key_Space);
  EXPECT_EQ(TickOf(*files, 2), Qt::Checked);
  EXPECT_EQ(TickOf(*users, 0), Qt::PartiallyChecked);
  EXPECT_TRUE(restore->isEnabled());
  QTest::keyClick(users, Qt::Key_Space);
  EXPECT_EQ(TickOf(*files, 0), Qt::Checked);
  EXPECT_EQ(TickOf(*users, 0), Qt::Checked);
}

TEST_F(CarryingDialogs, BringsBackWhatIsTickedAndSaysSo) {
  MakeUser("Anna", 2);
  const std::string path = BackupOfAll(program);
  fs::remove(DayOf("Anna", 1));
  fs::remove(DayOf("Anna", 2));
  const auto window = ReadBackupWindow(program, path);
  auto* const files = FindIn<QTableView>(*window, "LV_files");
  files->selectRow(1);  // the first day
  QTest::keyClick(files, Qt::Key_Space);
  FindIn<QPushButton>(*window, "cmd_restore")->click();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !test.boxes.shown.empty(); }, 30000));
  EXPECT_EQ(test.boxes.shown[0].text,
            "The backup was brought back. Files written: 1\nLeft as they were: 1");
  EXPECT_FALSE(fs::exists(DayOf("Anna", 1)));
  EXPECT_TRUE(fs::exists(DayOf("Anna", 2)));
  EXPECT_FALSE(window->isVisible());
}

TEST_F(CarryingDialogs, WhatWasBroughtBackForTheCurrentUserIsShownAtOnce) {
  MakeUser("Anna", 0);
  const auto list_of = [](std::initializer_list<std::string_view> products) {
    Rec_ListLine list;
    for (const auto product : products) list.strings[0] += LineOf({.product = product}) + kLineEnd;
    return list;
  };
  WriteRecord(CustomFile(program.paths, "Anna"), list_of({"Own bread"}));
  const std::string path = BackupOfAll(program);
  WriteRecord(CustomFile(program.paths, "Anna"), list_of({"Own soup"}));
  ChooseUser(program, UserNamed("Anna"));
  ASSERT_EQ(program.store.Custom_list.Count(), 1u);
  const auto window = ReadBackupWindow(program, path);
  FindIn<QPushButton>(*window, "cmd_restore")->click();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !test.boxes.shown.empty(); }, 30000));
  EXPECT_EQ(program.store.Custom_list.Count(), 2u);
  // And a save of it asks nothing.
  test.boxes.shown.clear();
  EXPECT_TRUE(Save_Custom(program, CustomFile(program.paths, "Anna")));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(CarryingDialogs, AFileThatIsNoBackupIsSaidToBeNone) {
  const std::string path = test.folders.home.Path("letter.zip");
  WriteFileAnew(path, "a letter");
  RestoreDialog dialog(program, path, nullptr);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !test.boxes.shown.empty(); }, 30000));
  EXPECT_EQ(test.boxes.shown[0].text, "This file is no backup that can be read.");
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(CarryingDialogs, ADamagedBackupSaysSoBeforeAnythingIsBroughtBack) {
  MakeUser("Anna", 2);
  const std::string path = BackupOfAll(program);
  const std::string bytes = ReadFile(path);
  WriteFileAnew(path, bytes.substr(0, bytes.size() / 2));
  const auto window = ReadBackupWindow(program, path);
  EXPECT_EQ(FindIn<QLabel>(*window, "lbl_state")->text(),
            "A part of the backup is damaged and can't be brought back.");
}

TEST_F(CarryingDialogs, ClosingWhileTheBackupIsReadEndsTheReading) {
  MakeUser("Anna", 20);
  const std::string path = BackupOfAll(program);
  RestoreDialog dialog(program, path, nullptr);
  dialog.show();
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
  QApplication::processEvents();
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(program.windows.restore, nullptr);
}

TEST_F(CarryingDialogs, TheMenuOpensBoth) {
  MainWindow window(program);
  EXPECT_TRUE(window.findChild<QAction*>("mnu_backup")->isEnabled());
  window.Set_Taal();
  EXPECT_EQ(window.findChild<QAction*>("mnu_backup")->text(), "Back up ...");
  QTimer::singleShot(0, [&] {
    EXPECT_NE(program.windows.backup, nullptr);
    if (program.windows.backup != nullptr) program.windows.backup->CloseWindow();
  });
  window.findChild<QAction*>("mnu_backup")->trigger();
  window.findChild<QAction*>("mnu_restore")->trigger();  // no file is chosen
  EXPECT_EQ(program.windows.restore, nullptr);
  EXPECT_EQ(test.folder_chooser.prompts.size(), 1u);
  Make_Taal_Dutch(program.texts);
  window.Set_Taal();
  EXPECT_EQ(window.findChild<QAction*>("mnu_restore")->text(), "Reservekopie terugzetten ...");
  program.ending = true;
}

}  // namespace
}  // namespace kelvora
