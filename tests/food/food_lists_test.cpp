#include "food/food_lists.h"

#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

class FoodListsTest : public testing::Test {
 protected:
  FoodListsTest() {
    for (const char* file : {"Bread.dat", "Fruit.dat"}) store.lst_categorien.Add(file);
    Add({.product = "Rye bread",
         .unit = "1 slice",
         .gram = "35.5",
         .kj = "343.5",
         .kcal = "82",
         .fat_s = "0.4",
         .remark = "roggebrood",
         .db = "Bread.dat"});
    Add({.product = "White bread", .remark = "witbrood", .db = "Bread.dat"});
    Add({.product = "APPLE", .remark = "appel", .db = "Fruit.dat"});
    store.Custom_list.Add(LineOf({.product = "Apple pie of my own"}));
  }
  void Add(const FoodLine& food) { store.Default_list.Add(LineOf(food)); }
  std::vector<Text> Names() {
    std::vector<Text> names;
    for (std::size_t row = 0; row < lists.Count(FoodView::standard); ++row) {
      names.push_back(lists.Cell(FoodView::standard, row, 1));
    }
    return names;
  }
  TestProgram test;
  KV_data& store = test.program.store;
  FoodLists lists{test.program};
};

TEST_F(FoodListsTest, TheStandardListBeginsWithItsFirstCategory) {
  EXPECT_EQ(lists.Toon_Standaardlijst(), "Bread.dat");
  EXPECT_EQ(Names(), (std::vector<Text>{"Rye bread", "White bread"}));
  EXPECT_EQ(lists.AvailableText(FoodView::standard), "3 food items available");
  const TextList categories = lists.Categories();
  EXPECT_EQ(categories[0], "Bread");
  EXPECT_EQ(categories[1], "Fruit");
}

TEST_F(FoodListsTest, WithoutFoodsThereIsNoCategory) {
  store.Default_list.Clear();
  EXPECT_EQ(lists.Toon_Standaardlijst(), std::nullopt);
  EXPECT_EQ(lists.Count(FoodView::standard), 0u);
}

TEST_F(FoodListsTest, TypingFindsNamesByTheirBeginningInBothListsWithoutRegardToCase) {
  lists.SearchPrefix("aPP");
  EXPECT_EQ(Names(), (std::vector<Text>{"APPLE", "Apple pie of my own"}));
  EXPECT_EQ(lists.ResultsText(), "2 results found");
  lists.SearchPrefix("bread");
  EXPECT_TRUE(Names().empty());
  EXPECT_EQ(lists.ResultsText(), "0 results found");
}

TEST_F(FoodListsTest, EnterFindsTheTextAnywhereInALine) {
  EXPECT_TRUE(lists.Zoek_In_Lijsten("BROOD"));
  EXPECT_EQ(Names(), (std::vector<Text>{"Rye bread", "White bread"}));
  EXPECT_FALSE(lists.Zoek_In_Lijsten(""));
  EXPECT_EQ(lists.Count(FoodView::standard), 2u);
}

TEST_F(FoodListsTest, ASearchFollowsTheOwnList) {
  EXPECT_FALSE(lists.SearchAgain());  // nothing was searched yet
  lists.SearchPrefix("app");
  EXPECT_FALSE(lists.SearchAgain());
  store.Custom_list.Replace(0, LineOf({.product = "Apple tart"}));
  EXPECT_EQ(Names(), (std::vector<Text>{"APPLE", "Apple pie of my own"}));
  EXPECT_TRUE(lists.SearchAgain());
  EXPECT_EQ(Names(), (std::vector<Text>{"APPLE", "Apple tart"}));
  // Whatever another user had is found no more.
  store.Custom_list.Clear();
  EXPECT_TRUE(lists.SearchAgain());
  EXPECT_EQ(Names(), std::vector<Text>{"APPLE"});
  EXPECT_TRUE(lists.Zoek_In_Lijsten("tart"));
  EXPECT_TRUE(Names().empty());
  store.Custom_list.Add(LineOf({.product = "My own tart"}));
  EXPECT_TRUE(lists.SearchAgain());
  EXPECT_EQ(Names(), std::vector<Text>{"My own tart"});
}

TEST_F(FoodListsTest, ACategoryIsASearchForItsFile) {
  EXPECT_EQ(lists.ChooseCategory("Fruit"), "Fruit.dat");
  EXPECT_EQ(Names(), std::vector<Text>{"APPLE"});
}

TEST_F(FoodListsTest, RowsShowNumberNameUnitWeightAndTheUsersNutrient) {
  (void)lists.Toon_Standaardlijst();
  const std::array<const char*, kFoodColumns> expected = {"1", "Rye bread", "1 slice", "35.5",
                                                          "344"};
  for (std::size_t i = 0; i < kFoodColumns; ++i) {
    EXPECT_EQ(lists.Cell(FoodView::standard, 0, i), expected[i]);
  }
  EXPECT_EQ(lists.Headings(), (std::array<Text, 5>{"#", "Food item:", "Unit:", "Gram:", "Kj.:"}));
  test.program.profile[ProfileField::type_prioriteit] = "3";
  EXPECT_EQ(lists.Cell(FoodView::standard, 0, 4), "0");
  EXPECT_EQ(lists.Headings()[4], "Fat (s).:");
  test.program.settings[Setting::opt_gramoz] = "1";
  // 35.5 g are 1.252 oz.
  EXPECT_EQ(lists.Cell(FoodView::standard, 0, 3), "1.3");
  EXPECT_EQ(lists.Headings()[3], "oz:");
}

// The six nutrients of one food: heading, tip and pattern of each.
TEST_F(FoodListsTest, TheLastColumnFollowsThePriorityOfTheUser) {
  store.Custom_list.Clear();
  store.Custom_list.Add(LineOf({.product = "Mix",
                                .kj = "1234,5",
                                .kcal = "0.5",
                                .protein = "2.4",
                                .fat_u = "0.49",
                                .fat_s = "",
                                .carbs = "17.5 g"}));
  const std::array<std::array<const char*, 4>, 6> rows = {{
      {"0", "Kj.:", "1235", "Kilojoules of the portion"},
      {"1", "Kcal.:", "1", "Kilocalories of the portion"},
      {"2", "Fat (u).:", "0", "Unsaturated fat of the portion"},
      {"3", "Fat (s).:", "0", "Saturated fat of the portion"},
      {"4", "Carb.:", "18", "Carbohydrates of the portion"},
      {"5", "Prot.:", "2", "Protein of the portion"},
  }};
  for (const auto& [priority, heading, cell, tip] : rows) {
    test.program.profile[ProfileField::type_prioriteit] = priority;
    EXPECT_EQ(lists.Headings()[4], heading);
    EXPECT_EQ(lists.Cell(FoodView::own, 0, 4), cell);
    EXPECT_EQ(lists.NutrientTip(), tip);
  }
}

TEST_F(FoodListsTest, FoodsWithOddTextsAreShownAsTheyAre) {
  const Text long_name(134, 'n');
  store.Custom_list.Clear();
  store.Custom_list.Add(LineOf({.product = ""}));
  store.Custom_list.Add(LineOf({.product = long_name}));
  store.Custom_list.Add(LineOf({.product = "Soup", .remark = "first\nsecond"}));
  EXPECT_EQ(lists.Cell(FoodView::own, 0, 1), "");
  EXPECT_EQ(lists.Cell(FoodView::own, 1, 1), long_name);
  EXPECT_TRUE(lists.Zoek_In_Lijsten("SECOND"));
  EXPECT_EQ(Names(), std::vector<Text>{"Soup"});
  lists.SearchPrefix(long_name);
  EXPECT_EQ(Names(), std::vector<Text>{long_name});
  // A name that is empty is no name to be found again by.
  lists.last_clicked = "";
  EXPECT_EQ(lists.Populate(FoodView::own), std::nullopt);
}

TEST_F(FoodListsTest, EachViewTellsHowManyItHas) {
  EXPECT_EQ(lists.AvailableText(FoodView::own), "1 food items available");
  EXPECT_EQ(lists.AvailableText(FoodView::favourites), "0 food items available");
  EXPECT_EQ(lists.AvailableText(FoodView::internet), "0 Food items found on internet");
}

TEST_F(FoodListsTest, TheSameNameInTwoCategoriesStandsTwiceAndEachRowDragsItsOwnLine) {
  Add({.product = "Rye bread", .unit = "1 loaf", .db = "Fruit.dat"});
  lists.SearchPrefix("RYE");
  ASSERT_EQ(lists.Count(FoodView::standard), 2u);
  EXPECT_EQ(lists.DragPayload(FoodView::standard, {0}),
            "add-" + Text(store.Default_list[0]) + kLineEnd);
  EXPECT_EQ(lists.DragPayload(FoodView::standard, {1}),
            "add-" + Text(store.Default_list[3]) + kLineEnd);
}

TEST_F(FoodListsTest, ALineThatMatchesInBothListsIsListedTwice) {
  store.Custom_list.Add(store.Default_list[2]);
  EXPECT_TRUE(lists.Zoek_In_Lijsten("appel"));
  EXPECT_EQ(Names(), (std::vector<Text>{"APPLE", "APPLE"}));
}

TEST_F(FoodListsTest, KeysThatMatchNothingListNothing) {
  for (const char* text : {"quixotic", "\n", "\xBD\xBE", " Rye bread"}) {
    lists.SearchPrefix(text);
    EXPECT_TRUE(Names().empty()) << text;
  }
  EXPECT_EQ(lists.ResultsText(), "0 results found");
}

TEST_F(FoodListsTest, AnAmountBeyondAllRangesIsDrawnAsNothing) {
  const Text huge(400, '9');
  store.Custom_list.Add(LineOf({.product = "Huge", .gram = huge, .kj = huge}));
  test.program.settings[Setting::opt_gramoz] = "1";
  EXPECT_EQ(lists.Cell(FoodView::own, 1, 3), "");
  EXPECT_EQ(lists.Cell(FoodView::own, 1, 4), "");
}

TEST_F(FoodListsTest, ADragCarriesTheWholeLinesOfItsRows) {
  (void)lists.Toon_Standaardlijst();
  EXPECT_EQ(
      lists.DragPayload(FoodView::standard, {0, 1}),
      "add-" + Text(store.Default_list[0]) + kLineEnd + Text(store.Default_list[1]) + kLineEnd);
}

TEST_F(FoodListsTest, TenRowsCanBeDraggedAndElevenCannot) {
  for (int i = 0; i < 12; ++i) store.Custom_list.Add(LineOf({.product = "Food"}));
  std::vector<std::size_t> rows(10);
  EXPECT_FALSE(lists.DragPayload(FoodView::own, rows).empty());
  EXPECT_TRUE(test.boxes.shown.empty());
  rows.resize(11);
  EXPECT_EQ(lists.DragPayload(FoodView::own, rows), "");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::warning);
  EXPECT_EQ(test.boxes.shown[0].text,
            "You can not drag more then 10 food items at the same time.\n"
            "Please select the food item(s) again.");
}

// The Dutch names of the foods are in their remarks.
TEST_F(FoodListsTest, InDutchTheFirstLineOfTheRemarkStandsBelowTheName) {
  Add({.product = "Coffee", .remark = "koffie\r\nzwart", .db = "Fruit.dat"});
  lists.Zoek_In_Lijsten("koffie");
  EXPECT_FALSE(lists.HasSecondLines());
  Make_Taal_Dutch(test.program.texts);
  EXPECT_TRUE(lists.HasSecondLines());
  EXPECT_EQ(lists.SecondLine(FoodView::standard, 0), "koffie");
  EXPECT_EQ(lists.SecondLine(FoodView::own, 0), "");
  // In the order of the rows, and nothing beyond the last.
  lists.Zoek_In_Lijsten("Bread.dat");
  lists.SortByColumn(FoodView::standard, 1);
  lists.SortByColumn(FoodView::standard, 1);
  EXPECT_EQ(Names(), (std::vector<Text>{"White bread", "Rye bread"}));
  EXPECT_EQ(lists.SecondLine(FoodView::standard, 0), "witbrood");
  EXPECT_EQ(lists.SecondLine(FoodView::standard, 1), "roggebrood");
  EXPECT_EQ(lists.SecondLine(FoodView::standard, 2), "");
}

}  // namespace
}  // namespace kelvora
