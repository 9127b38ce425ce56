// A row of a food list on its way into the comparison, without a mouse.
#include <gtest/gtest.h>

#include "food/food_list_commands.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

TEST(CompareRow, PutsItsFoodIntoTheOpenComparison) {
  struct : ComparisonView {
    void CloseWindow() override {}
    void Set_Taal() override {}
    void TakeFood(CompareBox box, std::string_view payload) override {
      taken.emplace_back(box, payload);
    }
    std::vector<std::pair<CompareBox, Text>> taken;
  } comparison;
  TestProgram test;
  Program& program = test.program;
  FoodLists lists{program};
  for (const char* const name : {"Pie", "Stew"}) {
    program.store.Custom_list.Add(LineOf({.product = name}));
  }
  EXPECT_FALSE(FoodMenuFor(program, FoodView::own, 1).compare);
  CompareRow(program, lists, FoodView::own, 1, CompareBox::second);  // it is closed
  program.windows.comparison = &comparison;
  EXPECT_TRUE(FoodMenuFor(program, FoodView::own, 1).compare);
  EXPECT_FALSE(FoodMenuFor(program, FoodView::own, 0).compare);
  CompareRow(program, lists, FoodView::own, 1, CompareBox::second);
  CompareRow(program, lists, FoodView::own, 2, CompareBox::first);  // there is no such row
  ASSERT_EQ(comparison.taken.size(), 1u);
  EXPECT_EQ(comparison.taken[0].first, CompareBox::second);
  EXPECT_EQ(comparison.taken[0].second, "add-" + LineOf({.product = "Stew"}) + kLineEnd);
}

}  // namespace
}  // namespace kelvora
