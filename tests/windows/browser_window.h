// The browser's window in a test, with two users and their days as real files.
#pragma once

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <utility>

#include <QApplication>
#include <QHeaderView>
#include <QTest>

#include "days/browser_dialog.h"
#include "language/built_in_texts.h"
#include "platform/qt/text.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {

// Lets a user act while the days are read.
struct ActingEvents : Events {
  std::function<void()> act;
  int skipped = 0;  // so many times nothing happens first
  void Yield() override {
    if (skipped-- > 0) return;
    if (const auto once = std::exchange(act, nullptr)) once();
  }
  void End() override {}
};

class BrowserWindow : public testing::Test {
 protected:
  BrowserWindow() {
    AddUser("Anna");
    AddUser("Bert");
    AddDay("Anna", "new.kvf", "06-03-04");
    AddDay("Anna", "old.kvf", "05-03-04");
    AddDay("Bert", "only.kvf", "01-01-03");
  }

  void AddUser(std::string_view name) {
    MakeUserFolders(program.paths, name);
    Rec_Profile profile;
    profile[ProfileField::name] = name;
    profile[ProfileField::type_prioriteit] = "1";
    profile[ProfileField::reference] = "REF-" + Text(name);
    profile[ProfileField::height] = "1.80";
    profile[ProfileField::weight] = "70";
    profile[ProfileField::goal_weight] = "65";
    profile[ProfileField::gender] = "Female";
    profile[ProfileField::age] = "42";
    WriteRecord(ProfileFile(program.paths, name), profile);
  }

  void AddDay(std::string_view user, const std::string& file_name, std::string_view date,
              std::string_view weight = "80.5") {
    Rec_DayFile record;
    record[DayFileField::Trend] = Packed("10|20|30|1|2|3|4|0.5|80.5|");
    record[DayFileField::Header] = Packed(Text(user) + "~~~~~1.80~" + Text(weight) + "~Male~42~" +
                                          Text(date) + "~75~Friday~~~~");
    WriteRecord(UserFolder(program.paths, user) + "Files/" + file_name, record);
  }

  void Open() {
    dialog = std::make_unique<BrowserDialog>(program, nullptr);
    dialog->Open();
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  void OpenAsAnna() {
    SetCurrentUser(program, "Anna");
    program.profile = *ReadFirstRecord<Rec_Profile>(ProfileFile(program.paths, "Anna"));
    Open();
  }

  template <class Widget>
  Widget* Find(const char* name) {
    Widget* const found = dialog->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(name);
    return found;
  }
  QTableView* List() { return Find<QTableView>("LV_browse_files"); }
  QString Cell(int row, int column) {
    return List()->model()->index(row, column).data().toString();
  }
  // One column from the first row to the last, with blanks between.
  QString Column(int column) {
    QStringList cells;
    for (int row = 0; row < List()->model()->rowCount(); ++row) cells << Cell(row, column);
    return cells.join(QLatin1Char(' '));
  }
  QPoint PlaceOfRow(int row) { return List()->visualRect(List()->model()->index(row, 3)).center(); }
  void ClickRow(int row, Qt::KeyboardModifiers held = {}) {
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, held, PlaceOfRow(row));
  }
  void ClickHeadingOf(int column) {
    const QHeaderView& header = *List()->horizontalHeader();
    const QPoint place(header.sectionViewportPosition(column) + header.sectionSize(column) / 2,
                       header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
  }
  QString SelectedRows() {
    QList<int> rows;
    for (const QModelIndex& index : List()->selectionModel()->selectedRows()) rows << index.row();
    std::ranges::sort(rows);
    QStringList numbers;
    for (const int row : rows) numbers << QString::number(row);
    return numbers.join(QLatin1Char(' '));
  }
  void ClickUser(const char* user) {
    auto* const users = Find<QListWidget>("lst_users");
    const QRect place = users->visualItemRect(users->findItems(user, Qt::MatchExactly).front());
    QTest::mouseClick(users->viewport(), Qt::LeftButton, {}, place.center());
    QApplication::processEvents();  // the list tells of it when it is done with the click
  }
  QString SelectedUser() {
    const auto selected = Find<QListWidget>("lst_users")->selectedItems();
    return selected.size() == 1 ? selected.front()->text() : QString();
  }
  bool OpenIsEnabled() { return Find<QPushButton>("cmd_openen")->isEnabled(); }

  TestProgram test;
  Program& program = test.program;
  std::unique_ptr<BrowserDialog> dialog;
};

}  // namespace kelvora
