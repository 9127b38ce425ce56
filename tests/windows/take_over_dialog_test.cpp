// Taking over from another day, copying and undoing, as somebody does it in the main window.
#include "days/take_over_dialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "core/frame/arrangement.h"
#include "core/frame/main_window.h"
#include "days/browser_dialog.h"
#include "food/consumption.h"
#include "food/food_table_panel.h"
#include "platform/qt/text.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"
#include "windows/find_in.h"

namespace kelvora {
namespace {

constexpr FoodLine kBread{.product = "Bread", .unit = "1 slice", .kj = "343", .kcal = "82"};
constexpr FoodLine kTea{.product = "Tea", .unit = "1 cup", .kj = "4", .kcal = "1"};
constexpr FoodLine kSoup{.product = "Soup", .unit = "1 bowl", .kj = "400", .kcal = "95"};

class TakeOverWindow : public testing::Test {
 protected:
  TakeOverWindow() {
    MakeUserFolders(program.paths, "Anna");
    SetCurrentUser(program, "Anna");
    program.profile[ProfileField::type_prioriteit] = "1";
    AddDay("a.kvf", "04-03-04", {kBread, kTea, kBread}, {kSoup});
    AddDay("b.kvf", "03-03-04", {kSoup}, {});
    AddDay("later.kvf", "06-03-04", {kTea}, {});
    window.resize(1024, 748);
    window.Set_Taal();
    window.show();
    test.OpenDay("Anna", "open.kvf");  // of 05-03-04
    ApplyChosenArrangement(program);
    window.UpdateCommands();
    window.activateWindow();
    QApplication::processEvents();
  }

  void AddDay(const std::string& file, std::string_view date,
              std::initializer_list<FoodLine> morning, std::initializer_list<FoodLine> evening) {
    Rec_DayFile record;
    record[DayFileField::Trend] = Packed("10|1000|240|1|2|3|4|0.5|80.5|");
    record[DayFileField::Header] =
        Packed("Anna~~~~~1.80~80.5~Female~42~" + Text(date) + "~75~Friday~~~~");
    for (const FoodLine& food : morning) record[DayFileField::Morning] += LineOf(food) + kLineEnd;
    for (const FoodLine& food : evening) record[DayFileField::Evening] += LineOf(food) + kLineEnd;
    WriteRecord(program.paths.FilesPath + file, record);
  }

  FoodTable* List(DayPart part) {
    constexpr std::array kWindows = {"KV_tb_vochtend", "KV_tb_vmiddag", "KV_tb_vavond"};
    auto* const child = FindIn<QWidget>(window, kWindows[static_cast<std::size_t>(part)]);
    return FindIn<FoodTable>(*child, "LV_consumpties");
  }
  std::vector<Text> Names(DayPart part) {
    std::vector<Text> names;
    for (const std::string_view line : program.store.ListOf(part)) {
      names.emplace_back(FieldOf(line, FoodField::kProduct));
    }
    return names;
  }
  // Presses keys in a list while `act` looks at the dialog that they open.
  void InDialog(DayPart part, const std::function<void(TakeOverDialog&)>& act) {
    bool seen = false;
    QTimer::singleShot(0, [&] {
      auto* const dialog = window.findChild<TakeOverDialog*>();
      ASSERT_NE(dialog, nullptr);
      seen = true;
      act(*dialog);
      if (program.windows.take_over != nullptr) dialog->CloseWindow();
    });
    List(part)->setFocus();
    QTest::keyClick(List(part), Qt::Key_T, Qt::ControlModifier);
    EXPECT_TRUE(seen);
    EXPECT_EQ(program.windows.take_over, nullptr);
  }
  static QStringList Days(const TakeOverDialog& dialog) {
    const QAbstractItemModel& model = *FindIn<QTableView>(dialog, "LV_other_days")->model();
    QStringList days;
    for (int row = 0; row < model.rowCount(); ++row) days << model.index(row, 0).data().toString();
    return days;
  }
  // As "Morning [x] 2 x Bread".
  static QStringList Foods(const TakeOverDialog& dialog) {
    const auto* const tree = FindIn<QTreeWidget>(dialog, "tree_foods");
    QStringList foods;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
      const QTreeWidgetItem* const group = tree->topLevelItem(i);
      for (int j = 0; j < group->childCount(); ++j) {
        const QTreeWidgetItem* const food = group->child(j);
        foods << group->text(0) +
                     (food->checkState(0) == Qt::Checked ? QStringLiteral(" [x] ")
                                                         : QStringLiteral(" [ ] ")) +
                     food->text(0);
      }
    }
    return foods;
  }

  TestProgram test;
  Program& program = test.program;
  MainWindow window{program};
};

TEST_F(TakeOverWindow, ShowsTheDayBeforeWithTheFoodsOfThisPartTicked) {
  InDialog(DayPart::morning, [&](TakeOverDialog& dialog) {
    EXPECT_EQ(Days(dialog), QStringList({"06-03-04", "04-03-04", "03-03-04"}));
    EXPECT_EQ(FindIn<QTableView>(dialog, "LV_other_days")->currentIndex().row(), 1);
    EXPECT_EQ(Foods(dialog),
              QStringList({"Morning [x] 2 x Bread", "Morning [x] Tea", "Evening [ ] Soup"}));
    EXPECT_EQ(dialog.focusWidget(), FindIn<QTableView>(dialog, "LV_other_days"));
  });
}

TEST_F(TakeOverWindow, EnterTakesTheMealOver) {
  InDialog(DayPart::morning,
           [&](TakeOverDialog& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); });
  EXPECT_EQ(Names(DayPart::morning), (std::vector<Text>{"Bread", "Bread", "Tea"}));
  EXPECT_TRUE(Names(DayPart::evening).empty());
  EXPECT_TRUE(program.day.FileChanged);
}

TEST_F(TakeOverWindow, AClickTakesTheWholeDayOver) {
  InDialog(DayPart::afternoon, [&](TakeOverDialog& dialog) {
    // Nothing was eaten in the afternoon.
    EXPECT_FALSE(FindIn<QPushButton>(dialog, "cmd_take_over")->isEnabled());
    QTest::mouseClick(FindIn<QPushButton>(dialog, "cmd_whole_day"), Qt::LeftButton);
  });
  EXPECT_EQ(Names(DayPart::morning), (std::vector<Text>{"Bread", "Bread", "Tea"}));
  EXPECT_EQ(Names(DayPart::evening), std::vector<Text>{"Soup"});
}

TEST_F(TakeOverWindow, WhatIsTickedIsTakenFromTheDayThatIsChosen) {
  InDialog(DayPart::evening, [&](TakeOverDialog& dialog) {
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Down);
    EXPECT_EQ(Foods(dialog), QStringList{"Morning [ ] Soup"});
    auto* const take_over = FindIn<QPushButton>(dialog, "cmd_take_over");
    EXPECT_FALSE(take_over->isEnabled());
    auto* const tree = FindIn<QTreeWidget>(dialog, "tree_foods");
    tree->setFocus();
    tree->setCurrentItem(tree->topLevelItem(0));
    QTest::keyClick(tree, Qt::Key_Space);  // the whole part
    EXPECT_EQ(Foods(dialog), QStringList{"Morning [x] Soup"});
    EXPECT_TRUE(take_over->isEnabled());
    take_over->click();
  });
  EXPECT_EQ(Names(DayPart::morning), std::vector<Text>{"Soup"});
}

TEST_F(TakeOverWindow, ARefusalLeavesTheDialogAndTheDay) {
  TextList& evening = program.store.L_avond;
  while (evening.Count() < 50) evening.Add(LineOf(kTea));
  InDialog(DayPart::evening, [&](TakeOverDialog& dialog) {
    FindIn<QPushButton>(dialog, "cmd_take_over")->click();
    EXPECT_EQ(program.windows.take_over, &dialog);
  });
  EXPECT_EQ(evening.Count(), 50u);
  EXPECT_EQ(test.boxes.shown.size(), 1u);
}

TEST_F(TakeOverWindow, WithoutAnotherDayThereIsNothingToTake) {
  for (const char* file : {"a.kvf", "b.kvf", "later.kvf"}) {
    std::filesystem::remove(program.paths.FilesPath + file);
  }
  InDialog(DayPart::morning, [&](TakeOverDialog& dialog) {
    EXPECT_TRUE(Days(dialog).empty());
    EXPECT_FALSE(FindIn<QPushButton>(dialog, "cmd_take_over")->isEnabled());
    EXPECT_FALSE(FindIn<QPushButton>(dialog, "cmd_whole_day")->isEnabled());
  });
}

TEST_F(TakeOverWindow, TheListOfDaysTakesOverFromTheRowInFocus) {
  BrowserDialog browser(program, &window);
  browser.Open();
  auto* const list = FindIn<DayTable>(browser, "LV_browse_files");
  list->selectRow(0);
  QTimer::singleShot(0, [&] {
    auto* const dialog = window.findChild<TakeOverDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(FindIn<QTableView>(*dialog, "LV_other_days")->currentIndex().row(), 2);
    EXPECT_EQ(Foods(*dialog), QStringList{"Morning [x] Soup"});
    FindIn<QPushButton>(*dialog, "cmd_take_over")->click();
  });
  FindIn<QPushButton>(browser, "cmd_take_over")->click();
  EXPECT_EQ(Names(DayPart::morning), std::vector<Text>{"Soup"});
}

TEST_F(TakeOverWindow, WithoutADayTheListOfDaysOffersNothingToTakeOver) {
  program.store.KV_bestand.clear();
  BrowserDialog browser(program, &window);
  browser.Open();
  EXPECT_FALSE(FindIn<QPushButton>(browser, "cmd_take_over")->isEnabled());
  EXPECT_FALSE(FindIn<QAction>(browser, "mnu_take_over")->isEnabled());
}

// What was eaten often.

TEST_F(TakeOverWindow, AButtonListsWhatWasEatenOftenAndTypingGoesOnAmongIt) {
  auto* const lists = FindIn<QWidget>(window, "KV_tb_lijsten");
  auto* const table = FindIn<FoodTable>(*lists, "LV_browse_zoeken");
  auto* const search = FindIn<QLineEdit>(*lists, "txt_zoeken");
  const auto shown = [&] {
    QStringList names;
    for (int row = 0; row < table->Model().rowCount(); ++row) {
      names << table->Model().index(row, 1).data().toString();
    }
    return names;
  };
  // It is 14:07; of the days before the open one bread was eaten twice and soup twice, all else
  // once, and nothing in an afternoon.
  QTest::mouseClick(FindIn<QPushButton>(*lists, "cmd_often"), Qt::LeftButton);
  EXPECT_EQ(shown(), QStringList({"Bread", "Soup", "Tea"}));
  EXPECT_EQ(search->text(), QString());
  EXPECT_EQ(lists->focusWidget(), search);
  QTest::keyClicks(search, "so");
  EXPECT_EQ(shown(), QStringList{"Soup"});
}

// The keys of a consumption window.

TEST_F(TakeOverWindow, KeysCopyFromOnePartToAnother) {
  program.store.L_ochtend.Add(LineOf(kBread));
  program.store.L_ochtend.Add(LineOf(kBread));
  RefreshAfterChange(program, DayPart::morning);
  List(DayPart::morning)->setFocus();
  List(DayPart::morning)->SelectRow(0);
  QTest::keyClick(List(DayPart::morning), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(),
            QStringLiteral("X\tFood item\tUnit\tGram\tKcal\n2\tBread\t1 slice\t0\t164\n"));
  List(DayPart::evening)->setFocus();
  for (int i = 0; i < 2; ++i) {
    QTest::keyClick(List(DayPart::evening), Qt::Key_V, Qt::ControlModifier);
  }
  EXPECT_EQ(Names(DayPart::evening), (std::vector<Text>{"Bread", "Bread", "Bread", "Bread"}));
  EXPECT_EQ(Names(DayPart::morning).size(), 2u);
}

TEST_F(TakeOverWindow, PlainTextIsPastedIfItIsFood) {
  List(DayPart::evening)->setFocus();
  QApplication::clipboard()->setText(QStringLiteral("kill-Bread\u00BD\u00BE"));
  QTest::keyClick(List(DayPart::evening), Qt::Key_V, Qt::ControlModifier);
  QApplication::clipboard()->setText(QStringLiteral("add-Caf\u00E9 \u0142\u00BD\u00BE"));
  QTest::keyClick(List(DayPart::evening), Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(Names(DayPart::evening).empty());
  QApplication::clipboard()->setText(QStringLiteral("add-Caf\u00E9\u00BD\u00BE"));
  QTest::keyClick(List(DayPart::evening), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Names(DayPart::evening), std::vector<Text>{"Caf\xE9"});
}

TEST_F(TakeOverWindow, KeysUndoAndRedoFromWhateverPart) {
  program.store.L_ochtend.Add(LineOf(kBread));
  RefreshAfterChange(program, DayPart::morning);
  EXPECT_EQ(List(DayPart::morning)->Model().rowCount(), 1);
  FoodTable* const evening = List(DayPart::evening);
  evening->setFocus();
  QTest::keyClick(evening, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(Names(DayPart::morning).empty());
  EXPECT_EQ(List(DayPart::morning)->Model().rowCount(), 0);
  QTest::keyClick(evening, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(List(DayPart::morning)->Model().rowCount(), 1);
}

TEST_F(TakeOverWindow, TheMenuOffersToUndoWhatThereIs) {
  FoodTable* const list = List(DayPart::morning);
  auto* const menu = FindIn<QMenu>(*list, "row_menu");
  const auto offers = [&](const char* name) {
    emit list->customContextMenuRequested({5, 5});
    const bool enabled = FindIn<QAction>(*list, name)->isEnabled();
    menu->close();
    return enabled;
  };
  EXPECT_FALSE(offers("mnu_undo"));
  EXPECT_FALSE(offers("mnu_copy"));
  EXPECT_TRUE(offers("mnu_take_over"));
  program.store.L_ochtend.Add(LineOf(kBread));
  RefreshAfterChange(program, DayPart::morning);
  EXPECT_TRUE(offers("mnu_undo"));
  EXPECT_FALSE(offers("mnu_redo"));
  FindIn<QAction>(*list, "mnu_undo")->trigger();
  EXPECT_TRUE(offers("mnu_redo"));
  EXPECT_FALSE(offers("mnu_undo"));
}

}  // namespace
}  // namespace kelvora
