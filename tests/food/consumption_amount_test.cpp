#include "food/consumption_amount.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace kelvora {
namespace {

using Kind = Amount::Kind;

const Text kTea = LineOf({.product = "Tea", .unit = "1 cup", .gram = "200", .kcal = "2"});
const Text kSoup = LineOf({.product = "Soup", .unit = "1 bowl", .kcal = "90"});

class AmountOfARow : public testing::Test {
 protected:
  AmountOfARow() {
    test.OpenDay("Anna");
    for (const Text& line : {kSoup, kTea, kSoup, kTea}) store.L_middag.Add(line);
  }
  AmountChange Change(std::string_view line, const Amount& amount) {
    return ChangeAmount(test.program, DayPart::afternoon, line, amount);
  }
  Text Names() {
    Text names;
    for (const std::string_view line : store.L_middag) {
      names.append(FieldOf(line, FoodField::kProduct)) += ';';
    }
    return names;
  }
  TestProgram test;
  KV_data& store = test.program.store;
};

TEST_F(AmountOfARow, WholePortionsAreThatManyLinesInThePlaceOfTheFirst) {
  EXPECT_TRUE(Change(kTea, {.value = 3}).done);
  EXPECT_EQ(Names(), "Soup;Tea;Tea;Tea;Soup;");
  EXPECT_TRUE(test.program.day.FileChanged);
  EXPECT_TRUE(Change(kTea, {}).done);
  EXPECT_EQ(Names(), "Soup;Tea;Soup;");
  EXPECT_EQ(store.L_middag[1], kTea);
}

TEST_F(AmountOfARow, AnythingElseIsOneLineOfTheAmount) {
  EXPECT_TRUE(Change(kTea, {Kind::grams, 150}).done);
  EXPECT_EQ(Names(), "Soup;Tea, 150 g;Soup;");
  EXPECT_EQ(test.program.day.selected_names[1], "Tea, 150 g");
  EXPECT_EQ(FieldOf(store.txt_trenddata, 0), "150");  // of the whole day, in grams
}

TEST_F(AmountOfARow, OnlyTheRowsOwnLinesAreChanged) {
  const Text green = LineOf({.product = "Tea", .unit = "1 pot", .gram = "800"});
  store.L_middag.Add(green);
  EXPECT_TRUE(Change(green, {.value = 2}).done);
  EXPECT_EQ(Names(), "Soup;Tea;Soup;Tea;Tea;Tea;");
  EXPECT_EQ(store.L_middag[1], kTea);
  EXPECT_EQ(store.L_middag[5], green);
}

TEST_F(AmountOfARow, AFaultChangesNothing) {
  EXPECT_EQ(Change(kSoup, {Kind::grams, 150}).fault, AmountFault::no_weight);
  EXPECT_FALSE(Change(LineOf({.product = "Gone"}), {.value = 2}).done);
  EXPECT_EQ(Names(), "Soup;Tea;Soup;Tea;");
  EXPECT_FALSE(test.program.day.FileChanged);
}

TEST_F(AmountOfARow, AListAboveTheLimitMayShrinkButNotGrow) {
  while (store.L_middag.Count() < 51) store.L_middag.Add(kTea);
  EXPECT_FALSE(Change(kSoup, {.value = 3}).done);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text.substr(0, 31), "You can not add more food items");
  EXPECT_FALSE(test.program.day.FileChanged);
  EXPECT_TRUE(Change(kSoup, {.value = 2}).done);
  EXPECT_TRUE(Change(kSoup, {.value = 0.5}).done);
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(store.L_middag.Count(), 50u);
  EXPECT_TRUE(Change(LineOf({.product = "Soup, 0.5 x",
                             .unit = "0.5 x 1 bowl",
                             .kcal = "45",
                             .protein = "0.00",
                             .fat_u = "0.00",
                             .fat_s = "0.00",
                             .carbs = "0.00",
                             .sodium = "0.000"}),
                     {.value = 20})
                  .done);
  EXPECT_EQ(store.L_middag.Count(), 69u);
}

TEST_F(AmountOfARow, AValueBeyondAnyNumberShowsItsCode) {
  const Text much = LineOf({.product = "Much", .gram = "1", .kj = Text(400, '9')});
  store.L_middag.Clear();
  store.L_middag.Add(much);
  EXPECT_FALSE(Change(much, {Kind::grams, 2}).done);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_NE(test.boxes.shown[0].text.find("#F14-6"), Text::npos);
  EXPECT_EQ(store.L_middag[0], much);
}

TEST_F(AmountOfARow, TheBoxBeginsWithWhatTheNameTellsOrTheCount) {
  const auto amount_of = [&](std::size_t row) {
    return AmountOfRow(ConsumptionRows(test.program, DayPart::afternoon)[row]);
  };
  EXPECT_EQ(amount_of(1), "2");
  EXPECT_TRUE(Change(kTea, {Kind::grams, 150}).done);
  EXPECT_EQ(amount_of(1), "150 g");
  EXPECT_TRUE(Change(store.L_middag[1], {.value = 2}).done);
  EXPECT_EQ(amount_of(1), "2");
}

std::vector<ConsumptionRow> RowsOf(std::initializer_list<const char*> lines) {
  std::vector<ConsumptionRow> rows;
  for (const char* line : lines) rows.push_back({.line = line});
  return rows;
}

TEST(PlaceAfterDelete, IsWhereTheFirstDeletedRowWas) {
  const auto before = RowsOf({"a", "b", "c", "d"});
  EXPECT_EQ(PlaceAfterDelete(before, RowsOf({"b", "c", "d"}), 0), 0u);
  EXPECT_EQ(PlaceAfterDelete(before, RowsOf({"a", "c", "d"}), 1), 1u);
  EXPECT_EQ(PlaceAfterDelete(before, RowsOf({"a", "d"}), 1), 1u);
  EXPECT_EQ(PlaceAfterDelete(before, RowsOf({"a", "b", "c"}), 3), 2u);
  EXPECT_EQ(PlaceAfterDelete(before, RowsOf({}), 0), std::nullopt);
  // A row above of the same name went too.
  EXPECT_EQ(PlaceAfterDelete(RowsOf({"a", "b", "c", "d", "e"}), RowsOf({"b", "d", "e"}), 2), 1u);
}

TEST(ActivePart, IsTheMorningOfANewDayAndStaysWithItsWindow) {
  TestProgram test;
  EXPECT_EQ(test.program.day.active_part, DayPart::morning);
  MakeActive(test.program, DayPart::evening);
  EXPECT_EQ(test.program.day.active_part, DayPart::evening);
}

TEST(ConsumptionDetails, AreThoseOfTheRowsOwnLine) {
  TestProgram test;
  ShowDetailsOf(test.program, {.line = kTea});
  ASSERT_EQ(test.core.items_shown.size(), 1u);
  EXPECT_EQ(test.core.items_shown[0].first, "zoeken");
  EXPECT_EQ(test.core.items_shown[0].second, kTea);
}

}  // namespace
}  // namespace kelvora
