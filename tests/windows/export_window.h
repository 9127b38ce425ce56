// The export dialog's window in a test, with days of one user as real files.
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <memory>

#include <QApplication>
#include <QHeaderView>
#include <QTest>

#include "language/built_in_texts.h"
#include "output/export_dialog.h"
#include "platform/qt/text.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"
#include "windows/find_in.h"

namespace kelvora {

class ExportWindow : public testing::Test {
 protected:
  ExportWindow() {
    MakeUserFolders(program.paths, "Anna");
    SetCurrentUser(program, "Anna");
  }

  [[nodiscard]] std::string PathOf(const std::string& file) const {
    return program.paths.FilesPath + file;
  }
  void AddDay(const std::string& file, std::string_view date, std::string_view weight = "80.5") {
    Rec_DayFile record;
    record[DayFileField::Trend] = Packed("10|20|30|1|2|3|4|0.5|80.5|");
    record[DayFileField::Notes] = "Slept.";
    record[DayFileField::Header] =
        Packed("Anna~~~~~1.80~" + Text(weight) + "~Female~42~" + Text(date) + "~75~Friday~~~~");
    WriteRecord(PathOf(file), record);
  }
  // From 01-03-04 on.
  void AddDays(int count) {
    for (int day = 1; day <= count; ++day) {
      const std::string number = std::to_string(100 + day).substr(1);
      AddDay(number + ".kvf", number + "-03-04");
    }
  }

  void Open() {
    window = std::make_unique<ExportDaysDialog>(program, nullptr);
    window->Open();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  template <class Widget>
  Widget* Find(const char* name) {
    return FindIn<Widget>(*window, QLatin1String(name));
  }
  ExportTable* List() { return Find<ExportTable>("LV_user_files"); }
  [[nodiscard]] bool Ticked(const char* name) { return Find<QAbstractButton>(name)->isChecked(); }
  // Where a user clicks it: on its mark.
  void Click(const char* name) {
    auto* const button = Find<QAbstractButton>(name);
    const bool has_mark = qobject_cast<QPushButton*>(button) == nullptr;
    QTest::mouseClick(button, Qt::LeftButton, {},
                      has_mark ? QPoint(8, button->height() / 2) : button->rect().center());
  }
  void ClickRow(int row, Qt::KeyboardModifiers held = {}) {
    const QModelIndex cell = List()->model()->index(row, static_cast<int>(ExportColumn::kDay));
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, held, List()->visualRect(cell).center());
  }
  QString Cell(int row, std::size_t column) {
    return List()->model()->index(row, static_cast<int>(column)).data().toString();
  }
  // As "0 2 3".
  QString Selected() {
    QStringList rows;
    for (const std::size_t row : List()->SelectedRows()) rows << QString::number(row);
    return rows.join(QLatin1Char(' '));
  }
  [[nodiscard]] std::vector<std::string> Reports() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(program.paths.ReportsPath)) {
      names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }

  TestProgram test;
  Program& program = test.program;
  std::unique_ptr<ExportDaysDialog> window;
};

}  // namespace kelvora
