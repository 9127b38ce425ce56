#include "food/scaled_food.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace kelvora {
namespace {

using Kind = Amount::Kind;

constexpr FoodLine kBread{.product = "Brown bread",
                          .unit = "1 slice",
                          .gram = "35",
                          .kj = "343",
                          .kcal = "82",
                          .protein = "3.5",
                          .fat_u = "0.6",
                          .fat_s = "0.2",
                          .carbs = "14.3",
                          .sodium = "0.172",
                          .group = "Bread",
                          .remark = "bruinbrood",
                          .db = "Bread.dat"};

class ScaledFood : public testing::Test {
 protected:
  // The one line of an amount, "" if there is none or another number of them.
  Text One(std::string_view line, const Amount& amount, std::string_view separator = ".") {
    const auto made = LinesOfAmount(store, line, amount, separator);
    const auto* const lines = std::get_if<TextList>(&made);
    return lines != nullptr && lines->Count() == 1 ? Text((*lines)[0]) : Text();
  }
  std::optional<AmountFault> FaultOf(std::string_view line, const Amount& amount) {
    const auto made = LinesOfAmount(store, line, amount, ".");
    const auto* const fault = std::get_if<AmountFault>(&made);
    return fault == nullptr ? std::nullopt : std::optional(*fault);
  }
  KV_data store;
};

// 150/35 of each value, by hand: 343 makes 1470, 82 makes 351.43, 3.5 makes 15, 0.6 makes 2.571,
// 0.2 makes 0.857, 14.3 makes 61.286 and 0.172 makes 0.73714.
TEST_F(ScaledFood, AWeightScalesTheValuesAndNamesTheFood) {
  FoodLine expected = kBread;
  expected.product = "Brown bread, 150 g";
  expected.unit = "150 gram";
  expected.gram = "150";
  expected.kj = "1470";
  expected.kcal = "351";
  expected.protein = "15.00";
  expected.fat_u = "2.57";
  expected.fat_s = "0.86";
  expected.carbs = "61.29";
  expected.sodium = "0.737";
  EXPECT_EQ(One(LineOf(kBread), {Kind::grams, 150}), LineOf(expected));
}

// Half of 35 grams is 17.5, which is 18 as a whole number; half of 343 is 171.5.
TEST_F(ScaledFood, AShareHasItsWeightAsItsUnit) {
  FoodLine expected = kBread;
  expected.product = "Brown bread, 0.5 x";
  expected.unit = "18 gram";
  expected.gram = "18";
  expected.kj = "172";
  expected.kcal = "41";
  expected.protein = "1.75";
  expected.fat_u = "0.30";
  expected.fat_s = "0.10";
  expected.carbs = "7.15";
  expected.sodium = "0.086";
  EXPECT_EQ(One(LineOf(kBread), {Kind::portions, 1, 2}), LineOf(expected));
}

TEST_F(ScaledFood, NumbersHaveTheMarkOfTheSystemWhateverTheLineHas) {
  const Text line = LineOf({.product = "Milk", .gram = "200,5", .kcal = "92", .protein = "7,1"});
  EXPECT_EQ(One(line, {Kind::portions, 0.5}, ","), LineOf({.product = "Milk, 0,5 x",
                                                           .unit = "100 gram",  // of 100.25
                                                           .gram = "100",
                                                           .kcal = "46",
                                                           .protein = "3,55",
                                                           .fat_u = "0,00",
                                                           .fat_s = "0,00",
                                                           .carbs = "0,00",
                                                           .sodium = "0,000"}));
}

TEST_F(ScaledFood, WholePortionsAreTheLineAsOften) {
  const auto lines = std::get<TextList>(LinesOfAmount(store, LineOf(kBread), {.value = 3}, "."));
  ASSERT_EQ(lines.Count(), 3u);
  for (const std::string_view line : lines) EXPECT_EQ(line, LineOf(kBread));
  // Even of a line that is none.
  EXPECT_EQ(One("odd", {}), "odd");
}

TEST_F(ScaledFood, AFoodWithoutAWeightHasSharesOnly) {
  for (const std::string_view gram : {"", "0", "0,0", "-5", "some"}) {
    const Text line = LineOf({.product = "Soup", .unit = "1 bowl", .gram = gram, .kcal = "90"});
    EXPECT_EQ(FaultOf(line, {Kind::grams, 150}), AmountFault::no_weight) << gram;
    const Text share = One(line, {Kind::portions, 1, 3});
    EXPECT_EQ(FieldOf(share, FoodField::kProduct), "Soup, 1/3 x");
    EXPECT_EQ(FieldOf(share, FoodField::kUnit), "1/3 x 1 bowl");
    EXPECT_EQ(FieldOf(share, FoodField::kGram), gram);
    EXPECT_EQ(FieldOf(share, FoodField::kKcal), "30");
  }
}

TEST_F(ScaledFood, AWeightOfLessThanHalfAGramIsAWholeNumberToo) {
  const Text line = LineOf({.product = "Salt", .gram = "1", .sodium = "0.39"});
  const Text scaled = One(line, {Kind::grams, 0.4});
  EXPECT_EQ(FieldOf(scaled, FoodField::kProduct), "Salt, 0.4 g");
  EXPECT_EQ(FieldOf(scaled, FoodField::kUnit), "0.4 gram");
  EXPECT_EQ(FieldOf(scaled, FoodField::kGram), "0");
  EXPECT_EQ(FieldOf(scaled, FoodField::kSodium), "0.156");
  // Its name still tells of how much its values are.
  const Text again = One(scaled, {Kind::grams, 0.8});
  EXPECT_EQ(FieldOf(again, FoodField::kProduct), "Salt, 0.8 g");
  EXPECT_EQ(FieldOf(again, FoodField::kSodium), "0.312");
  const Text share = One(line, {Kind::portions, 0.25});
  EXPECT_EQ(FieldOf(share, FoodField::kUnit), "0.25 x 1 piece");
}

// From 18 grams, the rounded half, 70 grams would have 669 kilojoules.
TEST_F(ScaledFood, ScaledAgainAFoodIsMadeFromTheOneItCameFrom) {
  const Text line = LineOf(kBread);
  const Text half = One(line, {Kind::portions, 0.5});
  for (TextList* list : {&store.Default_list, &store.Custom_list, &store.Favorites_list}) {
    SCOPED_TRACE(list - &store.Default_list);
    list->Add(LineOf({.product = "Brown bread", .gram = "30", .kj = "1"}));  // another one
    list->Add(line);
    EXPECT_EQ(One(half, {Kind::grams, 70}), One(line, {Kind::grams, 70}));
    EXPECT_EQ(FieldOf(One(half, {Kind::grams, 70}), FoodField::kKj), "686");
    EXPECT_EQ(One(half, {Kind::portions, 1, 3}), One(line, {Kind::portions, 1, 6}));
    EXPECT_EQ(One(One(line, {Kind::grams, 150}, ","), {Kind::grams, 35}),
              One(line, {Kind::grams, 35}));
    // Two and a half of 0.4 portions are one, and that is the food itself.
    EXPECT_EQ(One(One(line, {Kind::portions, 0.4}), {Kind::portions, 2.5}), line);
    list->Clear();
  }
}

TEST_F(ScaledFood, WithoutThatFoodTheLineItselfIsScaled) {
  const Text weight = One(LineOf(kBread), {Kind::grams, 150});
  const Text less = One(weight, {Kind::grams, 100});
  EXPECT_EQ(FieldOf(less, FoodField::kProduct), "Brown bread, 100 g");
  EXPECT_EQ(FieldOf(less, FoodField::kKj), "980");
  const Text half = One(weight, {Kind::portions, 0.5});
  EXPECT_EQ(FieldOf(half, FoodField::kProduct), "Brown bread, 75 g");
  EXPECT_EQ(FieldOf(half, FoodField::kUnit), "75 gram");
  EXPECT_EQ(FieldOf(half, FoodField::kKj), "735");
  const Text share =
      One(LineOf({.product = "Soup", .unit = "1 bowl", .kcal = "90"}), {Kind::portions, 0.5});
  const Text quarter = One(share, {Kind::portions, 0.5});
  EXPECT_EQ(FieldOf(quarter, FoodField::kProduct), "Soup, 0.25 x");
  EXPECT_EQ(FieldOf(quarter, FoodField::kUnit), "0.25 x 1 bowl");
  EXPECT_EQ(FieldOf(quarter, FoodField::kKcal), "23");  // half of 45
  EXPECT_EQ(FaultOf(share, {Kind::grams, 100}), AmountFault::no_weight);
}

TEST_F(ScaledFood, OfMuchThereIsNoMore) {
  const Text much = One(LineOf(kBread), {Kind::grams, 8000});
  EXPECT_EQ(FaultOf(much, {Kind::portions, 1.5}), AmountFault::too_much);
  EXPECT_NE(One(much, {Kind::portions, 1.25}), "");
}

TEST_F(ScaledFood, ANameThatOnlyLooksLikeOneIsWholeAndGetsTheAmount) {
  const Text soup = LineOf({.product = "Soup, 300 g", .unit = "1 tin", .gram = "300", .kj = "30"});
  EXPECT_EQ(FieldOf(One(soup, {Kind::grams, 150}), FoodField::kProduct), "Soup, 300 g, 150 g");
  EXPECT_EQ(AmountInName(soup), "");
  const Text scaled = One(soup, {Kind::grams, 150});
  EXPECT_EQ(FieldOf(One(scaled, {Kind::grams, 100}), FoodField::kProduct), "Soup, 300 g, 100 g");
  for (const std::string_view name : {"Milk, half", "Milk, x", "Milk, g", ", 5 g", "Cola 5 g"}) {
    EXPECT_EQ(AmountInName(LineOf({.product = name, .unit = "5 gram", .gram = "5"})), "") << name;
  }
}

TEST_F(ScaledFood, TheNameTellsTheAmountThatARowHas) {
  EXPECT_EQ(AmountInName(One(LineOf(kBread), {Kind::grams, 150})), "150 g");
  EXPECT_EQ(AmountInName(One(LineOf(kBread), {Kind::portions, 0.5}, ",")), "0,5 x");
  EXPECT_EQ(AmountInName(LineOf(kBread)), "");
}

TEST_F(ScaledFood, TheRestOfTheLineStaysHoweverLongOrShort) {
  const Text name(5000, 'n');
  const Text line = LineOf({.product = name, .gram = "100", .kj = "10", .remark = "\xE9\x80"});
  const Text scaled = One(line, {Kind::grams, 50});
  EXPECT_EQ(FieldOf(scaled, FoodField::kProduct), name + ", 50 g");
  EXPECT_EQ(FieldOf(scaled, FoodField::kRemark), "\xE9\x80");
  EXPECT_EQ(FieldsOf(scaled).size(), 12u);
  // A line of an old program, with fields behind those of a food, and one cut short.
  EXPECT_EQ(One(line + Packed("Nomivant.exe|more|"), {Kind::grams, 50}),
            scaled + Packed("Nomivant.exe|more|"));
  EXPECT_EQ(One(Packed("Tea|1 cup|200|"), {Kind::grams, 50}), LineOf({.product = "Tea, 50 g",
                                                                      .unit = "50 gram",
                                                                      .gram = "50",
                                                                      .protein = "0.00",
                                                                      .fat_u = "0.00",
                                                                      .fat_s = "0.00",
                                                                      .carbs = "0.00",
                                                                      .sodium = "0.000",
                                                                      .group = ""}));
}

TEST_F(ScaledFood, AValueBeyondAnyNumberIsAFailure) {
  const Text line = LineOf({.product = "Much", .gram = "1", .kj = Text(400, '9')});
  EXPECT_THROW((void)LinesOfAmount(store, line, {Kind::grams, 2}, "."), std::system_error);
}

}  // namespace
}  // namespace kelvora
