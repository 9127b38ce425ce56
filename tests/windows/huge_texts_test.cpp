// Texts of a million characters in days, foods and profiles. What a window draws of them is
// bounded, so that its time and memory are.
#include <gtest/gtest.h>

#include <QListWidget>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "core/drawn_text.h"
#include "core/frame/arrangement.h"
#include "core/frame/data_window.h"
#include "core/frame/main_window.h"
#include "days/browser_dialog.h"
#include "days/day_settings_dialog.h"
#include "days/take_over_dialog.h"
#include "food/food_details_dialog.h"
#include "food/import/food_import_dialog.h"
#include "food/import/table_files.h"
#include "food/other_amount_dialog.h"
#include "internet/update_window.h"
#include "keeping/backup_dialog.h"
#include "output/export_dialog.h"
#include "platform/qt/qt_platform.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"
#include "support/test_program.h"
#include "windows/carrying_windows.h"
#include "windows/days_read.h"
#include "windows/find_in.h"
#include "windows/shown_texts.h"

namespace kelvora {
namespace {

constexpr qsizetype kMost = kDrawnCharacters;

// The longest of all texts that a window draws: words, cells and names of list entries.
struct Longest {
  QString where;
  qsizetype size = 0;
  int cells = 0;  // that were looked at

  void Look(const QString& place, const QString& text) {
    if (text.size() > size) *this = {place, text.size(), cells};
  }
};

void LookAtModel(const QAbstractItemModel& model, const QString& name, Longest& longest) {
  for (int row = 0; row < model.rowCount(); ++row) {
    for (int column = 0; column < model.columnCount(); ++column) {
      for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole}) {
        longest.Look(name, model.index(row, column).data(role).toString());
      }
      ++longest.cells;
    }
  }
}

Longest LongestIn(const QWidget& window) {
  Longest longest;
  for (const Shown& shown : AllTexts(window)) longest.Look(shown.where, shown.text);
  for (const auto* view : window.findChildren<QAbstractItemView*>()) {
    if (view->model() != nullptr) LookAtModel(*view->model(), view->objectName(), longest);
  }
  return longest;
}

class HugeTexts : public testing::Test {
 protected:
  HugeTexts() {
    for (Text& field : food) field = huge;
    Text line;
    for (const Text& field : food) line += field + "\xBD";
    test.OpenDay("Anna");
    Program& program = test.program;
    for (std::size_t row = 1; row < program.store.L_gegevens.Count(); ++row) {
      // What is no number is no height, and fails where one is divided by.
      if (row != HeaderRow::kHeight) program.store.L_gegevens.Replace(row, huge);
    }
    program.store.L_ochtend.Add(line);
    program.store.txt_notities = huge;
    program.store.Default_list.Add(line);
    program.store.Custom_list.Add(line);
    for (std::size_t i = 0; i < kProfileFieldsInUse; ++i) {
      program.profile[static_cast<ProfileField>(i)] = huge;
    }
    program.profile[ProfileField::name] = "Anna";
    SetCurrentUser(program, "Anna");
    SaveDay(program);
    program.store.KV_bestand = "other day.kvf";
    SaveDay(program);
    Save_Profile(program, ProfileFile(program.paths, "Anna"));
    EXPECT_TRUE(test.boxes.shown.empty());
  }

  void ExpectBounded(const QWidget& window, int least_cells) {
    const Longest longest = LongestIn(window);
    EXPECT_LE(longest.size, kMost) << longest.where.toStdString();
    EXPECT_GE(longest.cells, least_cells);
    EXPECT_LE(window.width(), 1024) << window.objectName().toStdString();
    EXPECT_LE(window.minimumSizeHint().width(), 1024) << window.objectName().toStdString();
  }

  const Text huge = Text(1'000'000, 'w');
  std::array<Text, 12> food;
  TestProgram test;
};

TEST_F(HugeTexts, AreDrawnInPartByTheMainWindowAndItsChildWindows) {
  MainWindow window(test.program);
  window.resize(1024, 748);
  window.show();
  ApplyChosenArrangement(test.program);
  window.OpenWindow(WindowId::diary);
  window.OpenWindow(WindowId::day_summary);
  window.OpenWindow(WindowId::comparison);
  test.program.windows.comparison->TakeFood(
      CompareBox::first, "add-" + Text(test.program.store.L_ochtend[0]) + "\xBE");
  window.OpenWindow(WindowId::multi_day);
  window.UpdateStatusBar();
  EXPECT_TRUE(DaysAreRead(window));
  auto* const summary = window.findChild<QWidget*>("KV_tb_daguittreksel");
  ASSERT_NE(summary, nullptr);
  for (int view = 1; view <= 4; ++view) {
    summary->findChild<QToolButton*>(QStringLiteral("Toolbar_%1").arg(view))->click();
    QApplication::processEvents();
    ExpectBounded(window, view == 3 ? 3 * 10 + 12 : 3 * 10);
  }
  auto* const days = window.findChild<QWidget*>("KV_tb_meerdaags");
  ASSERT_NE(days, nullptr);
  for (int view = 1; view <= 4; ++view) {
    days->findChild<QToolButton*>(QStringLiteral("Toolbar_%1").arg(view))->click();
    QApplication::processEvents();
    ExpectBounded(window, view == 4 ? 3 * 10 + 12 : 3 * 10);
  }
}

TEST_F(HugeTexts, AreDrawnInPartByTheUpdateCheck) {
  Program& program = test.program;
  std::filesystem::create_directories(program.paths.ProgramPath);
  WriteFileAnew(program.paths.ProgramPath + "servers.conf", "update = http://up.example\n");
  UpdateWindow window(program, UpdateMode::shown, nullptr);
  window.show();
  QApplication::processEvents();
  test.transfers.Complete({huge + "\xBD"});
  ExpectBounded(window, 0);
}

TEST_F(HugeTexts, AreDrawnInPartByTheDialogs) {
  BrowserDialog browser(test.program, nullptr);
  browser.Open();
  browser.show();
  QApplication::processEvents();
  ExpectBounded(browser, 8);
  ExportDaysDialog days_to_export(test.program, nullptr);
  days_to_export.Open();
  QApplication::processEvents();
  ExpectBounded(days_to_export, 6);
  TakeOverDialog other_days(test.program, std::nullopt, {}, nullptr);
  other_days.show();
  QApplication::processEvents();
  ExpectBounded(other_days, 2);
  BackupDialog backup(test.program, nullptr);
  backup.show();
  ExpectBounded(backup, 0);
  ExpectBounded(*ReadBackupWindow(test.program, BackupOfAll(test.program)), 8);
  for (const auto mode : {DayDialogMode::new_day, DayDialogMode::day_settings}) {
    test.program.day.DayDialogMode = mode;
    DaySettingsDialog settings(test.program, nullptr);
    settings.show();
    QApplication::processEvents();
    ExpectBounded(settings, 0);
  }
  DataWindow data(test.program, nullptr);
  data.show();
  ExpectBounded(data, 20);
}

TEST_F(HugeTexts, AreDrawnInPartByTheDialogOfFoodTables) {
  const std::string huge(1'000'000, 'x');
  const std::string path = test.folders.home.Path("table");
  FoodImportDialog dialog(test.program, nullptr);
  dialog.show();
  WriteFileAnew(path, std::string(kSrHeader) + SrRow(huge, "Rye") + SrRow("Bread", huge));
  dialog.Choose(path);
  ExpectBounded(dialog, 2);
  WriteFileAnew(path, "Product;Energy" + huge + "\n" + huge + ";380\n");
  dialog.Choose(path);
  ExpectBounded(dialog, 2);
}

TEST_F(HugeTexts, AreDrawnInPartByTheDetailsOfAFoodWhichCantBeEdited) {
  FoodDetailsDialog details(test.program, "zoeken", test.program.store.Default_list[0], nullptr);
  details.show();
  QApplication::processEvents();
  ExpectBounded(details, 0);
  OtherAmountDialog amount(test.program, Text(1'000'000, 'x'), "1", {}, nullptr);
  amount.show();
  ExpectBounded(amount, 0);
}

TEST_F(HugeTexts, AreDrawnInPartByAMessage) {
  QString shown, title;
  QTimer::singleShot(0, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    shown = box->text();
    title = box->windowTitle();
    box->accept();
  });
  QtBoxes().Show({.title = huge, .text = "Remove " + huge + "?"});
  EXPECT_EQ(shown.size(), kMost);
  EXPECT_TRUE(shown.startsWith("Remove w") && shown.endsWith("w?"));
  EXPECT_EQ(title.size(), kMost);
}

// A cell that draws everything is what these tests are there to find.
TEST(HugeTextsInAList, AreFound) {
  QWidget window;
  QListWidget list(&window);
  list.addItem(QString(kMost + 1, 'a'));
  EXPECT_EQ(LongestIn(window).size, kMost + 1);
  QLabel label(QString(kMost + 2, 'a'), &window);
  EXPECT_EQ(LongestIn(window).size, kMost + 2);
}

}  // namespace
}  // namespace kelvora
