// Importing as the window does it: boxes, counts, and what the standard list shows afterwards.
#include "food/import/import_form.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "food/import/mapping_file.h"
#include "food/import/set_removal.h"
#include "food/import/table_files.h"

namespace kelvora {
namespace {

struct CountingLists : FoodListsView {
  int standard = 0;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Toon_Standaardlijst() override { ++standard; }
  void Populate_Food_List_Custom() override {}
  void Populate_Food_List_Favo() override {}
};

class ImportForms : public testing::Test {
 protected:
  ImportForms() {
    std::filesystem::create_directories(program.paths.ProgramPath + "Databases/");
    WriteRecord(program.paths.ProgramPath + "Databases/Fruit.dat",
                Rec_ListLine{{Packed("Apple|1 piece|~")}});
    Load_Databases(program);
    program.windows.lists = &lists;
  }
  std::string Write(const std::string& name, std::string_view bytes) {
    const std::string path = test.folders.home.Path(name);
    WriteFileAnew(path, bytes);
    return path;
  }
  [[nodiscard]] std::vector<Text> Names() const {
    std::vector<Text> names;
    for (const auto line : program.store.Default_list) names.emplace_back(FieldOf(line, 0));
    return names;
  }
  [[nodiscard]] std::vector<Text> Categories() const {
    return {program.store.lst_categorien.begin(), program.store.lst_categorien.end()};
  }

  TestProgram test;
  Program& program = test.program;
  CountingLists lists;
  const std::string table = Write("sr.tsv", std::string(kSrHeader) + SrRow("Bread", "Rye") +
                                                SrRow("Meat", "Ham") + SrRow("Bread", ""));
};

TEST_F(ImportForms, CountAndSayWhatATableGives) {
  ImportForm form(program);
  EXPECT_FALSE(form.IsReady());
  EXPECT_EQ(form.TakenFor(), "Choose a table of foods that you have downloaded or made yourself.");
  ASSERT_TRUE(form.Choose(table));
  EXPECT_EQ(form.TakenFor(), "This is the table of USDA SR. (UTF-8, \"TAB\")");
  EXPECT_TRUE(form.IsReady());
  EXPECT_TRUE(form.Summary().empty());
  form.Count();
  ASSERT_TRUE(form.counts);
  EXPECT_EQ(form.counts->groups.size(), 2u);
  EXPECT_EQ(form.Summary(), (std::vector<Text>{"Food items: 2", "Rows that are passed over: 1",
                                               "    without a name: 1"}));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(ImportForms, TheFoodsAreInTheStandardListAtOnce) {
  ImportForm form(program);
  ASSERT_TRUE(form.Choose(table));
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_TRUE(form.Import());
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::yes_no);
  EXPECT_TRUE(test.boxes.shown[0].text.starts_with("The USDA table"));
  EXPECT_EQ(test.boxes.shown[1].text, "Food items that were added to the standard list: 2");
  EXPECT_EQ(Names(), (std::vector<Text>{"Apple", "Rye", "Ham"}));
  EXPECT_EQ(Categories(),
            (std::vector<Text>{"Fruit.dat", "USDA SR: Bread.dat", "USDA SR: Meat.dat"}));
  EXPECT_EQ(lists.standard, 1);
  ASSERT_EQ(form.sets.size(), 1u);
  EXPECT_EQ(form.sets[0].date, "2004-03-05");

  // A second time asks nothing, and categories that are gone leave the list of them.
  form.choice.groups = {"meat"};
  EXPECT_TRUE(form.Import());
  EXPECT_EQ(test.boxes.shown.size(), 3u);
  EXPECT_EQ(Categories(), (std::vector<Text>{"Fruit.dat", "USDA SR: Meat.dat"}));
}

TEST_F(ImportForms, ANoToTheLicenceChangesNothing) {
  ImportForm form(program);
  ASSERT_TRUE(form.Choose(table));
  EXPECT_FALSE(form.Import());
  EXPECT_EQ(Names(), std::vector<Text>{"Apple"});
  EXPECT_EQ(test.boxes.shown.size(), 1u);
}

TEST_F(ImportForms, ARemovedSetIsGoneFromTheLists) {
  ImportForm form(program);
  ASSERT_TRUE(form.Choose(table));
  test.boxes.answers = {BoxAnswer::yes, BoxAnswer::ok, BoxAnswer::no, BoxAnswer::yes};
  ASSERT_TRUE(form.Import());
  form.RemoveSet(0);
  EXPECT_EQ(form.sets.size(), 1u);
  form.RemoveSet(0);
  EXPECT_TRUE(form.sets.empty());
  EXPECT_EQ(Names(), std::vector<Text>{"Apple"});
  EXPECT_EQ(Categories(), std::vector<Text>{"Fruit.dat"});
  EXPECT_EQ(lists.standard, 2);
  form.RemoveSet(7);
}

TEST_F(ImportForms, TheSetOfACategoryIsFoundAndRemoved) {
  ImportForm form(program);
  ASSERT_TRUE(form.Choose(table));
  test.boxes.answers = {BoxAnswer::yes, BoxAnswer::ok};
  ASSERT_TRUE(form.Import());
  EXPECT_FALSE(SetOfCategory(program, "Fruit.dat"));
  EXPECT_FALSE(SetOfCategory(program, "USDA SR: Meat"));
  const auto set = SetOfCategory(program, "USDA SR: Meat.dat");
  ASSERT_TRUE(set);
  EXPECT_EQ(set->name, "USDA SR");
  RemoveSetIfWanted(program, *set);
  EXPECT_EQ(Categories().size(), 3u);
  EXPECT_EQ(
      test.boxes.shown.back().text,
      "Remove all food items of \"USDA SR\" from the standard list? Your days keep what you ate.");
  test.boxes.answers = {BoxAnswer::yes};
  RemoveSetIfWanted(program, *set);
  EXPECT_EQ(Categories(), std::vector<Text>{"Fruit.dat"});
  EXPECT_FALSE(SetOfCategory(program, "USDA SR: Meat.dat"));
}

TEST_F(ImportForms, GivingUpInTheMiddleLeavesNothing) {
  std::string rows(kSrHeader);
  for (int i = 0; i < 20'000; ++i) rows += SrRow("Bread", "Food " + std::to_string(i));
  ImportForm form(program);
  ASSERT_TRUE(form.Choose(Write("long.tsv", rows)));
  std::vector<int> told;
  form.on_progress = [&](int thousandths) { told.push_back(thousandths); };
  bool busy = false;
  test.events.at_yield = [&] {
    busy = form.IsBusy();
    if (test.events.yields >= 3) form.GiveUp();
  };
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_FALSE(form.Import());
  EXPECT_TRUE(busy);
  EXPECT_FALSE(form.IsBusy());
  EXPECT_GE(told.size(), 3u);
  EXPECT_TRUE(std::ranges::is_sorted(told));
  EXPECT_LT(told.back(), 1000);
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(std::filesystem::is_empty(program.paths.UserDatabases));
  test.events.yields = 0;
  form.Count();
  EXPECT_FALSE(form.counts);
}

TEST_F(ImportForms, WhatIsNoTableIsToldAndTheTableBeforeStays) {
  ImportForm form(program);
  ASSERT_TRUE(form.Choose(table));
  EXPECT_FALSE(form.Choose(Write("foods.zip", "PK\x03\x04")));
  EXPECT_FALSE(form.Choose(test.folders.home.Path("missing")));
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_TRUE(test.boxes.shown[0].text.starts_with("This is an archive or a workbook"));
  EXPECT_TRUE(test.boxes.shown[1].text.ends_with("#F28-0"));
  EXPECT_EQ(form.TakenFor(), "This is the table of USDA SR. (UTF-8, \"TAB\")");
}

TEST_F(ImportForms, AFailedImportSaysSoAndChangesNothing) {
  WriteFileAnew(test.folders.home.Path(".local"), "in the way");
  ImportForm form(program);
  ASSERT_TRUE(form.Choose(table));
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_FALSE(form.Import());
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_TRUE(test.boxes.shown[1].text.ends_with("#F28-2"));
  EXPECT_EQ(Names(), std::vector<Text>{"Apple"});
}

TEST_F(ImportForms, TheColumnsOfATableOfOnesOwnAreKeptUnderItsName) {
  const std::string own = Write("own.csv", "Product;Energy\nMuesli;380\n");
  ImportForm form(program);
  ASSERT_TRUE(form.Choose(own));
  EXPECT_FALSE(form.IsReady());
  form.SetMapping({.name = "Kitchen", .columns = {{TableField::name, "Product", 1, 0}}});
  EXPECT_FALSE(form.IsReady());
  const TableMapping mapping{
      .name = "Kitchen",
      .columns = {{TableField::name, "Product", 1, 0}, {TableField::kcal, "Energy", 1, 1}}};
  form.SetMapping(mapping);
  EXPECT_TRUE(form.IsReady());
  EXPECT_TRUE(form.Import());
  EXPECT_EQ(test.boxes.shown.size(), 1u);  // no licence is known
  EXPECT_EQ(Names(), (std::vector<Text>{"Apple", "Muesli"}));
  ImportForm again(program);
  ASSERT_TRUE(again.Choose(own));
  EXPECT_TRUE(again.IsReady());
  EXPECT_EQ(again.table->mapping, mapping);
}

}  // namespace
}  // namespace kelvora
