// The dialog for tables of foods: what it shows of a table, what is chosen, and its end in the
// middle of long work.
#include "food/import/food_import_dialog.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "food/import/table_files.h"
#include "language/own_texts.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

class FoodImport : public testing::Test {
 protected:
  std::string Write(const std::string& name, std::string_view bytes) {
    const std::string path = test.folders.home.Path(name);
    WriteFileAnew(path, bytes);
    return path;
  }
  template <class Widget>
  Widget* Find(const char* name) {
    return dialog.findChild<Widget*>(QLatin1String(name));
  }
  QString Label(const char* name) { return Find<QLabel>(name)->text(); }
  [[nodiscard]] std::vector<Text> Names() const {
    std::vector<Text> names;
    for (const auto line : test.program.store.Default_list) names.emplace_back(FieldOf(line, 0));
    return names;
  }

  TestProgram test;
  const std::string table =
      Write("sr.tsv", std::string(kSrHeader) + SrRow("Bread", "Rye") + SrRow("Meat", "Ham"));
  FoodImportDialog dialog{test.program, nullptr};
};

TEST_F(FoodImport, AtFirstThereIsNothingToImport) {
  EXPECT_EQ(test.program.windows.food_import, &dialog);
  EXPECT_FALSE(Find<QPushButton>("cmd_import")->isEnabled());
  EXPECT_FALSE(Find<QPushButton>("cmd_count")->isEnabled());
  EXPECT_FALSE(Find<QPushButton>("cmd_stop")->isEnabled());
  EXPECT_FALSE(Find<QPushButton>("cmd_remove")->isEnabled());
}

TEST_F(FoodImport, AKnownTableIsCountedAndItsGroupsStandThereTicked) {
  dialog.Choose(table);
  EXPECT_EQ(Label("lbl_taken"), "This is the table of USDA SR. (UTF-8, \"TAB\")");
  EXPECT_EQ(Label("lbl_summary"), "Food items: 2");
  auto* const groups = Find<QListWidget>("list_groups");
  ASSERT_EQ(groups->count(), 2);
  EXPECT_EQ(groups->item(0)->text(), "Bread (1)");
  EXPECT_EQ(groups->item(1)->checkState(), Qt::Checked);
  EXPECT_TRUE(Find<QPushButton>("cmd_import")->isEnabled());
  EXPECT_FALSE(Find<QComboBox>("combo_name")->isEnabled());
  EXPECT_EQ(Find<QComboBox>("combo_name")->currentText(), "name");
}

TEST_F(FoodImport, TheTickedGroupsAreImportedWithTheChosenPortions) {
  dialog.Choose(table);
  Find<QListWidget>("list_groups")->item(0)->setCheckState(Qt::Unchecked);
  Find<QComboBox>("combo_portions")->setCurrentIndex(1);
  test.boxes.answers = {BoxAnswer::yes};
  Find<QPushButton>("cmd_import")->click();
  EXPECT_EQ(Names(), std::vector<Text>{"Ham"});
  EXPECT_EQ(FieldOf(test.program.store.Default_list[0], 1), "100 gram");
  auto* const sets = Find<QListWidget>("list_sets");
  ASSERT_EQ(sets->count(), 1);
  EXPECT_EQ(sets->item(0)->text(), "USDA SR, 2004-03-05. Food items: 1");
  sets->setCurrentRow(0);
  test.boxes.answers = {BoxAnswer::yes};
  Find<QPushButton>("cmd_remove")->click();
  EXPECT_TRUE(Names().empty());
  EXPECT_EQ(sets->count(), 0);
}

TEST_F(FoodImport, AGroupThatIsNotTickedStaysSoWhenTheTableIsCountedAgain) {
  dialog.Choose(table);
  auto* const groups = Find<QListWidget>("list_groups");
  groups->item(0)->setCheckState(Qt::Unchecked);
  Find<QPushButton>("cmd_count")->click();
  EXPECT_EQ(groups->item(0)->text(), "Bread (1)");
  EXPECT_EQ(groups->item(0)->checkState(), Qt::Unchecked);
  EXPECT_EQ(groups->item(1)->checkState(), Qt::Checked);
  dialog.Choose(table);
  EXPECT_EQ(groups->item(0)->checkState(), Qt::Checked);
}

TEST_F(FoodImport, WithoutAGroupNothingIsImported) {
  dialog.Choose(table);
  for (int i = 0; i < 2; ++i) {
    Find<QListWidget>("list_groups")->item(i)->setCheckState(Qt::Unchecked);
  }
  Find<QPushButton>("cmd_import")->click();
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_TRUE(Names().empty());
}

TEST_F(FoodImport, TheColumnsOfAnUnknownTableAreChosenBesideItsRows) {
  dialog.Choose(Write("own.csv", "Product;Energy;Na\nMuesli;380;50\n"));
  EXPECT_EQ(Find<QTabWidget>("pages")->currentIndex(), 1);
  EXPECT_FALSE(Find<QPushButton>("cmd_import")->isEnabled());
  const QAbstractItemModel& rows = *Find<QTableView>("table_rows")->model();
  EXPECT_EQ(rows.rowCount(), 1);
  EXPECT_EQ(rows.headerData(1, Qt::Horizontal).toString(), "Energy");
  EXPECT_EQ(rows.index(0, 0).data().toString(), "Muesli");
  const auto choose = [&](const char* name, int column) {
    auto* const combo = Find<QComboBox>(name);
    combo->setCurrentIndex(column);
    emit combo->activated(column);
  };
  choose("combo_name", 1);
  choose("combo_kcal", 2);
  choose("combo_sodium", 3);
  Find<QCheckBox>("chk_milligrams")->click();
  Find<TextBox>("txt_set_name")->ShowText("Kitchen");
  emit Find<TextBox>("txt_set_name")->textChanged(QStringLiteral("Kitchen"));
  ASSERT_TRUE(Find<QPushButton>("cmd_import")->isEnabled());
  Find<QPushButton>("cmd_import")->click();
  ASSERT_EQ(Names(), std::vector<Text>{"Muesli"});
  EXPECT_EQ(FieldOf(test.program.store.Default_list[0], FoodField::kSodium), "0.05");
}

TEST_F(FoodImport, ClosingInTheMiddleGivesUpAndClosesThen) {
  std::string rows(kSrHeader);
  for (int i = 0; i < 20'000; ++i) rows += SrRow("Bread", "Food " + std::to_string(i));
  dialog.show();
  bool was_busy = false;
  test.events.at_yield = [&] {
    if (test.events.yields != 2) return;
    was_busy =
        Find<QPushButton>("cmd_stop")->isEnabled() && !Find<QPushButton>("cmd_import")->isEnabled();
    dialog.CloseWindow();
    EXPECT_EQ(test.program.windows.food_import, &dialog);
  };
  dialog.Choose(Write("long.tsv", rows));
  EXPECT_TRUE(was_busy);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(test.program.windows.food_import, nullptr);
}

TEST_F(FoodImport, FollowsTheLanguage) {
  dialog.Choose(table);
  test.program.texts.own = OwnTextsIn(Language::dutch);
  dialog.Set_Taal();
  EXPECT_EQ(dialog.windowTitle(), "Voedingsmiddelen importeren");
  EXPECT_EQ(Find<QPushButton>("cmd_import")->text(), "Importeren");
  EXPECT_EQ(Label("lbl_taken"), "Dit is de tabel van USDA SR. (UTF-8, \"TAB\")");
}

}  // namespace
}  // namespace kelvora
