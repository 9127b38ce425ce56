// Searching and sorting the food lists shows that one waits, and no longer than that.
#include "support/waiting.h"

#include <gtest/gtest.h>

#include "food/food_lists.h"

namespace kelvora {
namespace {

TEST(WaitingForFoods, IsShownForASearchAndForASort) {
  WaitingProgram test;
  test.program.store.Default_list.Add(LineOf({.product = "Bread", .db = "Bread.dat"}));
  FoodLists lists(test.program);
  lists.SearchPrefix("br");
  EXPECT_EQ(test.pointer.waits, 1);
  EXPECT_FALSE(test.pointer.waiting);
  EXPECT_TRUE(lists.Zoek_In_Lijsten("rea"));
  EXPECT_EQ(test.pointer.waits, 2);
  EXPECT_FALSE(test.pointer.waiting);
  lists.SortByColumn(FoodView::standard, 1);
  EXPECT_EQ(test.pointer.waits, 3);
  EXPECT_FALSE(test.pointer.waiting);
}

}  // namespace
}  // namespace kelvora
