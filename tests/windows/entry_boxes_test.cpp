// Every box of every window that somebody can type into takes text only: no window has a box of its
// own kind.
#include <gtest/gtest.h>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QTextEdit>

#include "core/frame/arrangement.h"
#include "core/frame/data_window.h"
#include "core/frame/main_window.h"
#include "days/browser_dialog.h"
#include "days/day_settings_dialog.h"
#include "days/popup_window.h"
#include "days/settings_dialog.h"
#include "days/take_over_dialog.h"
#include "days/wizard_dialog.h"
#include "food/food_details_dialog.h"
#include "food/import/food_import_dialog.h"
#include "food/new_food_dialog.h"
#include "food/other_amount_dialog.h"
#include "internet/update_window.h"
#include "keeping/backup_dialog.h"
#include "keeping/restore_dialog.h"
#include "output/export_dialog.h"
#include "platform/qt/text_area.h"
#include "platform/qt/text_box.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

// The boxes that don't hold to the rules of text, by name; and how many do.
struct FoundBoxes {
  QStringList foreign;
  int good = 0;
};

FoundBoxes BoxesIn(const QWidget& window) {
  FoundBoxes boxes;
  const auto look = [&](const QWidget* box, bool good) {
    if (good) {
      ++boxes.good;
    } else {
      boxes.foreign << box->objectName() + "/" + box->metaObject()->className();
    }
  };
  for (const auto* box : window.findChildren<QLineEdit*>()) {
    look(box, qobject_cast<const TextBox*>(box) != nullptr);
  }
  for (const auto* box : window.findChildren<QPlainTextEdit*>()) {
    look(box, qobject_cast<const TextArea*>(box) != nullptr);
  }
  for (const auto* box : window.findChildren<QTextEdit*>()) look(box, false);
  for (const auto* box : window.findChildren<QAbstractSpinBox*>()) look(box, false);
  return boxes;
}

void ExpectTextOnly(const QWidget& window, int count) {
  const FoundBoxes boxes = BoxesIn(window);
  EXPECT_EQ(boxes.foreign.join(' ').toStdString(), "");
  EXPECT_EQ(boxes.good, count) << window.objectName().toStdString();
}

TEST(EntryBoxes, OfTheMainWindowAndItsChildWindowsTakeTextOnly) {
  TestProgram test;
  MainWindow window(test.program);
  window.show();
  test.OpenDay("Anna");
  ApplyChosenArrangement(test.program);
  window.OpenWindow(WindowId::diary);
  window.OpenWindow(WindowId::day_summary);
  window.OpenWindow(WindowId::comparison);
  window.OpenWindow(WindowId::multi_day);
  QApplication::processEvents();
  // Name and unit of a combined food in three windows; two searches and an amount in the food
  // lists; the diary.
  ExpectTextOnly(window, 3 * 2 + 3 + 1);
}

TEST(EntryBoxes, OfTheDialogsTakeTextOnly) {
  TestProgram test;
  Program& program = test.program;
  for (const auto& [system, measures] : {std::pair{"0", 3}, std::pair{"1", 4}, std::pair{"2", 4}}) {
    program.settings[Setting::opt_system] = system;
    // Name, age, height and weights, three parts of a date, weekday; seven of the address; remarks;
    // seven targets and their kilocalories.
    ExpectTextOnly(DaySettingsDialog(program, nullptr), 2 + measures + 4 + 7 + 1 + 7);
  }
  ExpectTextOnly(BrowserDialog(program, nullptr), 0);
  ExpectTextOnly(ExportDaysDialog(program, nullptr), 0);
  ExpectTextOnly(TakeOverDialog(program, std::nullopt, {}, nullptr), 0);
  ExpectTextOnly(BackupDialog(program, nullptr), 0);
  ExpectTextOnly(RestoreDialog(program, "", nullptr), 0);
  ExpectTextOnly(SettingsDialog(program, nullptr), 1);
  ExpectTextOnly(WizardDialog(program, nullptr), 0);
  ExpectTextOnly(PopupWindow(program, kAboutMode, nullptr), 0);
  ExpectTextOnly(DataWindow(program, nullptr), 0);
  ExpectTextOnly(UpdateWindow(program, UpdateMode::shown, nullptr), 0);
  // Name, unit, group and remark, the weight in two units, and seven values twice.
  ExpectTextOnly(
      FoodDetailsDialog(program, "zoeken", Packed("Bread|1|2|3|4|5|6|7|8|9|10|11|"), nullptr),
      4 + 2 + 14);
  // Name and unit, two weights in two units, and seven values twice.
  ExpectTextOnly(NewFoodDialog(program, nullptr), 2 + 4 + 14);
  ExpectTextOnly(OtherAmountDialog(program, "Bread", "1", {}, nullptr), 1);
  // A country and the name of a table.
  ExpectTextOnly(FoodImportDialog(program, nullptr), 2);
}

// A box of another kind is what these tests are there to find.
TEST(EntryBoxes, ABoxThatTakesAnythingIsFound) {
  QWidget window;
  QLineEdit line(&window);
  QPlainTextEdit plain(&window);
  QTextEdit rich(&window);
  QComboBox combo(&window);
  combo.setEditable(true);
  const FoundBoxes boxes = BoxesIn(window);
  EXPECT_EQ(boxes.foreign.size(), 4);
  EXPECT_EQ(boxes.good, 0);
}

}  // namespace
}  // namespace kelvora
