// Sorting a food list by its columns, and what becomes of the order afterwards.
#include <gtest/gtest.h>

#include "food/food_lists.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr std::size_t kName = 1, kUnit = 2, kWeight = 3, kNutrient = 4;

class FoodSort : public testing::Test {
 protected:
  FoodSort() {
    Add({.product = "beet", .unit = "2 pieces", .gram = "1.9", .kj = "100.4"});
    Add({.product = "Apple", .unit = "1 piece", .gram = "12,5", .kj = "99.6"});
    Add({.product = "carrot", .unit = "1 dish", .gram = "1.2", .kj = "9"});
    Add({.product = "Date", .unit = "10 pieces", .gram = "12", .kj = "1000"});
  }
  void Add(const FoodLine& food) { test.program.store.Custom_list.Add(LineOf(food)); }
  // The first letters of the names, from top to bottom.
  [[nodiscard]] Text Order(FoodView view = FoodView::own) const {
    Text order;
    for (std::size_t row = 0; row < lists.Count(view); ++row) order += lists.Cell(view, row, 1)[0];
    return order;
  }
  Text Click(std::size_t column) {
    lists.SortByColumn(FoodView::own, column);
    return Order();
  }
  TestProgram test;
  FoodLists lists{test.program};
};

TEST_F(FoodSort, ATextColumnSortsUpThenDownAndAnotherOneBeginsUpAgain) {
  EXPECT_EQ(Click(kName), "AbcD");
  EXPECT_EQ(Click(kName), "DcbA");
  EXPECT_EQ(Click(kName), "AbcD");
  // "1 dish", "1 piece", "10 pieces", "2 pieces"
  EXPECT_EQ(Click(kUnit), "cADb");
  EXPECT_EQ(Click(kName), "AbcD");
}

TEST_F(FoodSort, TheNumberOfALineSortsAsText) {
  for (int i = 0; i < 7; ++i) Add({.product = "x"});
  // 1, 10, 11, 2, ...
  EXPECT_EQ(Click(0), "bxxAcDxxxxx");
}

TEST_F(FoodSort, WeightsSortByTheirWholeValueSoThatCloseOnesAreEqual) {
  // 12 (Apple) and 12 (Date), 1 (beet) and 1 (carrot): equal ones keep their order descending and
  // turn it round ascending.
  EXPECT_EQ(Click(kWeight), "cbDA");
  EXPECT_EQ(Click(kWeight), "DAcb");
  EXPECT_EQ(Click(kWeight), "bcAD");
}

TEST_F(FoodSort, BothValueColumnsShareOneFlag) {
  // Shown are 100, 100, 9 and 1000 kilojoules: 99.6 is printed as 100 and counts as that.
  EXPECT_EQ(Click(kNutrient), "cAbD");
  EXPECT_EQ(lists.ShownOrder(FoodView::own), (ColumnOrder{kNutrient, SortOrder::ascending}));
  Click(kWeight);
  EXPECT_EQ(lists.ShownOrder(FoodView::own), (ColumnOrder{kWeight, SortOrder::descending}));
  Click(kName);
  Click(kWeight);
  EXPECT_EQ(lists.ShownOrder(FoodView::own), (ColumnOrder{kWeight, SortOrder::ascending}));
}

TEST_F(FoodSort, OuncesSortAsTheyAreShown) {
  test.program.settings[Setting::opt_gramoz] = "1";
  test.program.store.Custom_list.Clear();
  Add({.product = "a", .gram = "100"});   // 3.5 oz
  Add({.product = "b", .gram = "27"});    // 0.95 oz, shown as 1
  Add({.product = "c", .gram = "26.9"});  // 0.949 oz, shown as 0.9
  EXPECT_EQ(Click(kWeight), "cba");
}

TEST_F(FoodSort, AnotherNutrientSortsTheColumnOfValuesAnewAndNoOther) {
  test.program.store.Custom_list.Clear();
  Add({.product = "a", .kj = "1", .carbs = "30"});
  Add({.product = "b", .kj = "2", .carbs = "10"});
  Add({.product = "c", .kj = "3", .carbs = "20"});
  lists.SortAgain(FoodView::own);
  EXPECT_EQ(lists.ShownOrder(FoodView::own), std::nullopt);
  EXPECT_EQ(Click(kNutrient), "abc");
  test.program.profile[ProfileField::type_prioriteit] = "4";
  EXPECT_EQ(Order(), "abc");
  lists.SortAgain(FoodView::own);
  EXPECT_EQ(Order(), "bca");
  EXPECT_EQ(lists.ShownOrder(FoodView::own), (ColumnOrder{kNutrient, SortOrder::ascending}));
  // The next click turns it round: sorting anew was none.
  EXPECT_EQ(Click(kNutrient), "acb");
  EXPECT_EQ(Click(kName), "abc");
  lists.SortAgain(FoodView::own);
  EXPECT_EQ(Order(), "abc");
  EXPECT_EQ(lists.ShownOrder(FoodView::own), (ColumnOrder{kName, SortOrder::ascending}));
}

TEST_F(FoodSort, NegativeValuesAndTextsWithoutANumberAreSorted) {
  test.program.store.Custom_list.Clear();
  Add({.product = "a", .gram = "none"});
  Add({.product = "b", .gram = "-0.5"});  // its whole part is -1
  Add({.product = "c", .gram = "0.9"});
  EXPECT_EQ(Click(kWeight), "bca");
}

TEST_F(FoodSort, EachViewHasItsOwnOrderAndFlags) {
  test.program.store.Favorites_list = test.program.store.Custom_list;
  Click(kName);
  EXPECT_EQ(Order(FoodView::favourites), "bAcD");
  lists.SortByColumn(FoodView::favourites, kName);
  EXPECT_EQ(Order(FoodView::favourites), "AbcD");
}

TEST_F(FoodSort, AfterASortEachRowStillDragsItsOwnLine) {
  Click(kName);
  const TextList& own = test.program.store.Custom_list;
  EXPECT_EQ(lists.DragPayload(FoodView::own, {0, 3}),
            "add-" + Text(own[1]) + kLineEnd + Text(own[3]) + kLineEnd);
  EXPECT_EQ(lists.Cell(FoodView::own, 0, 0), "2");
  EXPECT_EQ(lists.LineAt(FoodView::own, 1), own[0]);
}

TEST_F(FoodSort, PopulatingPutsTheLinesInTheirOwnOrderAndFlagsOutliveIt) {
  Click(kName);
  lists.Populate(FoodView::own);
  EXPECT_EQ(Order(), "bAcD");
  EXPECT_EQ(lists.ShownOrder(FoodView::own), std::nullopt);
  EXPECT_EQ(Click(kName), "DcbA");
}

TEST_F(FoodSort, ASearchAfterASortListsInTheOrderOfTheLists) {
  test.program.store.Default_list = test.program.store.Custom_list;
  test.program.store.Custom_list.Clear();
  lists.Zoek_In_Lijsten("piece");
  EXPECT_EQ(Order(FoodView::standard), "bAD");
  lists.SortByColumn(FoodView::standard, kName);
  EXPECT_EQ(Order(FoodView::standard), "AbD");
  lists.SearchPrefix("b");
  EXPECT_EQ(Order(FoodView::standard), "b");
  lists.Zoek_In_Lijsten("piece");
  EXPECT_EQ(Order(FoodView::standard), "bAD");
}

TEST_F(FoodSort, TheSameLinesAreFoundWhereTheyStandAfterASort) {
  const auto numbers = lists.NumbersOf(FoodView::own, {0, 1});
  EXPECT_EQ(numbers, (std::vector<std::size_t>{0, 1}));
  Click(kName);
  Click(kName);  // D c b A
  EXPECT_EQ(lists.RowsOf(FoodView::own, numbers), (std::vector<std::size_t>{2, 3}));
  EXPECT_EQ(lists.NumbersOf(FoodView::own, {0, 3}), (std::vector<std::size_t>{3, 1}));
  EXPECT_TRUE(lists.RowsOf(FoodView::own, {99}).empty());
}

TEST_F(FoodSort, AnEmptyListSortsToNothing) {
  lists.SortByColumn(FoodView::internet, kName);
  lists.SortByColumn(FoodView::internet, kNutrient);
  EXPECT_EQ(lists.Count(FoodView::internet), 0u);
  EXPECT_FALSE(test.pointer.waiting);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(FoodSort, TheRowLastClickedIsFoundByItsNameInWhateverView) {
  EXPECT_EQ(lists.Populate(FoodView::own), std::nullopt);
  lists.last_clicked = "carrot";
  EXPECT_EQ(lists.Populate(FoodView::own), 2u);
  EXPECT_EQ(lists.Populate(FoodView::favourites), std::nullopt);
  lists.last_clicked = "carro";
  EXPECT_EQ(lists.Populate(FoodView::own), std::nullopt);
  lists.last_clicked = "Carrot";
  EXPECT_EQ(lists.Populate(FoodView::own), std::nullopt);
}

}  // namespace
}  // namespace kelvora
