// What the tests of the day dialog share: users, the open dialog, and hands that find its controls.
#pragma once

#include <gtest/gtest.h>
#include <memory>

#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "days/day_settings_dialog.h"
#include "platform/qt/text.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {

class DaySettingsWindow : public testing::Test {
 protected:
  void AddUser(std::string_view name) {
    MakeUserFolders(test.program.paths, name);
    Rec_Profile profile;
    profile[ProfileField::name] = name;
    profile[ProfileField::height] = "1.80";
    profile[ProfileField::weight] = "70";
    profile[ProfileField::goal_weight] = "65.5";
    profile[ProfileField::gender] = "Female";
    profile[ProfileField::age] = "42";
    profile[ProfileField::address_1] = "Street 1";
    profile[ProfileField::type_prioriteit] = "4";
    profile[ProfileField::txt_kj] = "8500";
    WriteRecord(ProfileFile(test.program.paths, name), profile);
  }

  void Open() {
    dialog = std::make_unique<DaySettingsDialog>(test.program, nullptr);
    dialog->show();
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }

  void CloseNow() {
    dialog->CloseWindow();
    dialog.reset();
  }

  template <class Widget>
  Widget* Find(const char* name) {
    Widget* const found = dialog->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(name);
    return found;
  }
  QString Shown(const char* field) { return Find<QLineEdit>(field)->text(); }
  QString Label(const char* name) { return Find<QLabel>(name)->text(); }
  QPoint PlaceOf(const char* user) {
    auto* const list = Find<QListWidget>("lst_users");
    return list->visualItemRect(list->findItems(user, Qt::MatchExactly).front()).center();
  }
  void ClickUser(const char* user) {
    QTest::mouseClick(Find<QListWidget>("lst_users")->viewport(), Qt::LeftButton, {},
                      PlaceOf(user));
    QApplication::processEvents();  // the list tells of it when it is done with the click
  }
  void Click(const char* button) {
    auto* const found = Find<QAbstractButton>(button);
    // Where a tick box that is wider than its words has its mark.
    QTest::mouseClick(found, Qt::LeftButton, {}, QPoint(10, found->height() / 2));
  }
  // Types into a field in the place of what it holds, and leaves it.
  void Type(const char* field, const char* keys) {
    auto* const box = Find<QLineEdit>(field);
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, keys);
    QTest::keyClick(box, Qt::Key_Tab);
  }
  void Paste(const char* field, const QString& text) {
    QApplication::clipboard()->setText(text);
    auto* const box = Find<QLineEdit>(field);
    box->clear();
    box->paste();
  }
  void FillIn() {
    Type("pg_0", "Anna");
    Find<QComboBox>("pg_7")->setCurrentIndex(1);
    Type("pg_8", "42");
    Type("txt_lengte_m", "1.80");
    Type("txt_streefgewicht", "65.5");
    Type("txt_gewicht", "70");
  }

  void ShowTab(int index) { Find<QTabWidget>("TabStrip1")->setCurrentIndex(index); }
  Text& Stored(ProfileField field) { return test.program.profile[field]; }
  void UseSystem(const char* number) { test.program.settings[Setting::opt_system] = number; }
  // A day of Anna, begun and saved.
  void BeginDayOfAnna() {
    AddUser("Anna");
    DayEditing editing = OpenDayEditing(test.program);
    ChooseUserForDay(test.program, editing, UserNamed("Anna"));
    ASSERT_TRUE(ConfirmDay(test.program, editing));
    SetFileChanged(test.program, false);
    test.program.day.DayDialogMode = DayDialogMode::day_settings;
  }

  TestProgram test;
  std::unique_ptr<DaySettingsDialog> dialog;
};

}  // namespace kelvora
