#include "food/details_values.h"

#include <gtest/gtest.h>
#include <system_error>

#include "support/test_program.h"

namespace kelvora {
namespace {

PortionBoxes PortionOf(std::string_view line, std::string_view separator = ".") {
  TextList fields;
  SplitLine(line, fields);
  PortionBoxes bVar;
  FillPortion(fields, separator, bVar);
  return bVar;
}

ValueBoxes Per100GramsOf(const PortionBoxes& bVar, std::string_view separator = ".") {
  ValueBoxes oVar;
  FillPer100Grams(bVar, separator, oVar);
  return oVar;
}

PortionBoxes PortionFrom(const ValueBoxes& oVar, std::string_view gram,
                         std::string_view separator = ".") {
  PortionBoxes bVar;
  bVar[PortionBox::kGram] = gram;
  FillPortionFromPer100Grams(oVar, separator, bVar);
  return bVar;
}

const Text kSpread = LineOf({.product = "Spread",
                             .unit = "1 spoon",
                             .gram = "35",
                             .kj = "338",
                             .kcal = "81",
                             .protein = "0.9",
                             .fat_u = "3.1",
                             .fat_s = "1.6",
                             .carbs = "8.7",
                             .sodium = "0.006",
                             .group = "Sweets",
                             .remark = "Pasta"});

TEST(DetailsValues, ALineFillsTheBoxesInTheirOwnOrderByTheirPatterns) {
  EXPECT_EQ(PortionOf(kSpread), (PortionBoxes{"Spread", "1 spoon", "35", "338", "81", "3.10",
                                              "1.60", "0.006", "0.90", "8.70", "Sweets", "Pasta"}));
}

TEST(DetailsValues, TheBoxesMakeALineInTheOrderOfItsFields) {
  const PortionBoxes bVar{"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l"};
  EXPECT_EQ(FoodLineOf(bVar), Packed("a|b|c|d|e|i|f|g|j|h|k|l|"));
}

TEST(DetailsValues, EveryBoxButTheRemarkThatIsEmptyGetsAZero) {
  const PortionBoxes nothing{"0",    "0",     "0",    "0",    "0", "0.00",
                             "0.00", "0.000", "0.00", "0.00", "0", ""};
  EXPECT_EQ(PortionOf(""), nothing);
  EXPECT_EQ(PortionOf("no terminator, no field"), nothing);
  PortionBoxes named = nothing;
  named[PortionBox::kProduct] = "Tea";
  EXPECT_EQ(PortionOf(Packed("Tea|")), named);
  EXPECT_EQ(PortionOf(Packed("Tea||||||||||||")), named);
}

struct Printed {
  std::string_view stored, separator, kj, fat, sodium;
};
class StoredNumbers : public testing::TestWithParam<Printed> {};

// By hand: halves go away from zero, and what a pattern prints as nothing becomes "0".
INSTANTIATE_TEST_SUITE_P(DetailsValues, StoredNumbers,
                         testing::Values(Printed{"0.125", ".", "0", "0.13", "0.125"},
                                         Printed{"0.4", ".", "0", "0.40", "0.400"},
                                         Printed{"0.5", ".", "1", "0.50", "0.500"},
                                         Printed{"2,5", ".", "3", "2.50", "2.500"},
                                         Printed{"2.5", ",", "3", "2,50", "2,500"},
                                         Printed{"1.2.3", ".", "1", "1.20", "1.200"},
                                         Printed{"12 gram", ".", "12", "12.00", "12.000"},
                                         Printed{"1e30", ".", "1", "1.00", "1.000"},
                                         Printed{"gram", ".", "0", "0.00", "0.000"},
                                         Printed{"-3", ".", "-3", "-3.00", "-3.000"}));

TEST_P(StoredNumbers, ArePrintedByThePatternsOfTheirBoxes) {
  const auto& [stored, separator, kj, fat, sodium] = GetParam();
  const auto bVar = PortionOf(
      LineOf({.product = "Tea", .kj = stored, .fat_u = stored, .sodium = stored}), separator);
  EXPECT_EQ(bVar[PortionBox::kKj], kj);
  EXPECT_EQ(bVar[PortionBox::kFatU], fat);
  EXPECT_EQ(bVar[PortionBox::kSodium], sodium);
}

TEST(DetailsValues, TheWeightStandsAsStored) {
  for (const std::string_view gram : {"12,5", "012", "1e30", "12 gram"}) {
    EXPECT_EQ(PortionOf(LineOf({.product = "Tea", .gram = gram}))[PortionBox::kGram], gram);
  }
}

// 338 / 35 x 100 = 965.71, 81 gives 231.43, 3.1 gives 8.857, 1.6 gives 4.571, 0.006 gives 0.01714,
// 0.9 gives 2.571 and 8.7 gives 24.857.
TEST(DetailsValues, ThePortionGivesTheValuesPer100Grams) {
  EXPECT_EQ(Per100GramsOf(PortionOf(kSpread)),
            (ValueBoxes{"966", "231", "8.86", "4.57", "0.017", "2.57", "24.86"}));
  EXPECT_EQ(Per100GramsOf(PortionOf(kSpread, ","), ","),
            (ValueBoxes{"966", "231", "8,86", "4,57", "0,017", "2,57", "24,86"}));
}

// 966 x 0.35 = 338.1, 231 gives 80.85, 8.86 gives 3.101, 4.57 gives 1.5995, 0.017 gives 0.00595,
// 2.57 gives 0.8995 and 24.86 gives 8.701.
TEST(DetailsValues, TheValuesPer100GramsGiveThePortion) {
  for (const std::string_view separator : {".", ","}) {
    const PortionBoxes bVar = PortionOf(kSpread, separator);
    PortionBoxes again{"Spread", "1 spoon", "35"};
    FillPortionFromPer100Grams(Per100GramsOf(bVar, separator), separator, again);
    again[PortionBox::kGroup] = "Sweets";
    again[PortionBox::kRemark] = "Pasta";
    EXPECT_EQ(again, bVar);
  }
}

TEST(DetailsValues, TwiceTheWeightDoublesThePortion) {
  const ValueBoxes oVar{"1000", "239", "5.00", "2.50", "0.250", "10.00", "30.00"};
  const PortionBoxes single{"",     "",      "100",   "1000",  "239", "5.00",
                            "2.50", "0.250", "10.00", "30.00", "",    ""};
  const PortionBoxes twice{"",     "",      "200",   "2000",  "478", "10.00",
                           "5.00", "0.500", "20.00", "60.00", "",    ""};
  EXPECT_EQ(PortionFrom(oVar, "100"), single);
  EXPECT_EQ(PortionFrom(oVar, "200"), twice);
}

// 1001 / 250 x 100 = 400.4, printed 400; 400 x 2.5 = 1000.
TEST(DetailsValues, WhatAPatternRoundsAwayDoesNotComeBack) {
  const ValueBoxes oVar =
      Per100GramsOf(PortionOf(LineOf({.product = "Tea", .gram = "250", .kj = "1001"})));
  EXPECT_EQ(oVar[0], "400");
  EXPECT_EQ(PortionFrom(oVar, "250")[PortionBox::kKj], "1000");
}

TEST(DetailsValues, NoEnergyPrintsAsNothing) {
  const ValueBoxes oVar = Per100GramsOf(PortionOf(LineOf({.product = "Water", .gram = "200"})));
  EXPECT_EQ(oVar, (ValueBoxes{"", "", "0.00", "0.00", "0.000", "0.00", "0.00"}));
  const PortionBoxes bVar = PortionFrom(oVar, "200");
  EXPECT_EQ(bVar[PortionBox::kKj], "");
  EXPECT_EQ(bVar[PortionBox::kFatU], "0.00");
}

TEST(DetailsValues, AWeightOfZeroLeavesTheValuesPer100GramsAsTheyAre) {
  ValueBoxes oVar{"1", "2", "3", "4", "5", "6", "7"};
  const ValueBoxes before = oVar;
  for (const std::string_view gram : {"0", "0,0", "", "gram", "-0"}) {
    FillPer100Grams(PortionOf(LineOf({.product = "Tea", .gram = gram, .kj = "50"})), ".", oVar);
    EXPECT_EQ(oVar, before) << gram;
  }
  EXPECT_EQ(PortionFrom(oVar, "0")[PortionBox::kFatU], "0.00");
}

// 16777217 is the first whole number that a single can't hold; it reads 16777216 there. So
// 1677721700000 / 16777216 x 100 = 10000000.596, where the exact weight would give 10000000.
TEST(DetailsValues, TheWeightIsASingleOneWayAndADoubleTheOther) {
  const ValueBoxes oVar = Per100GramsOf(
      PortionOf(LineOf({.product = "Tea", .gram = "16777217", .kj = "1677721700000"})));
  EXPECT_EQ(oVar[0], "10000001");
  EXPECT_EQ(PortionFrom({"100"}, "16777217")[PortionBox::kKj], "16777217");
}

TEST(DetailsValues, AVeryHeavyPortionIsMeasuredAndOneBeyondASingleIsNot) {
  const Text heavy = "1" + Text(30, '0');
  EXPECT_EQ(PortionFrom({"100"}, heavy)[PortionBox::kKj], heavy);
  const auto per_100 =
      Per100GramsOf(PortionOf(LineOf({.product = "Tea", .gram = heavy, .kj = heavy})));
  EXPECT_EQ(per_100[0], "100");
  PortionBoxes beyond;
  beyond[PortionBox::kGram] = "1" + Text(39, '0');  // the largest single is about 3.4 x 10^38
  ValueBoxes oVar{"unchanged"};
  EXPECT_THROW(FillPer100Grams(beyond, ".", oVar), std::system_error);
  EXPECT_EQ(oVar[0], "unchanged");
}

TEST(DetailsValues, AValueBeyondEveryNumberStopsTheFillingWhereItStands) {
  TextList fields;
  SplitLine(LineOf({.product = "Tea", .kj = "5", .kcal = Text(400, '9'), .fat_u = "3"}), fields);
  PortionBoxes bVar;
  EXPECT_THROW(FillPortion(fields, ".", bVar), std::system_error);
  EXPECT_EQ(bVar[PortionBox::kKj], "5");
  EXPECT_EQ(bVar[PortionBox::kKcal], "");
}

PortionBoxes Mixture(std::string_view fat_u, std::string_view fat_s, std::string_view sodium,
                     std::string_view protein, std::string_view carbs) {
  return {"",          "", "", "", "", Text(fat_u), Text(fat_s), Text(sodium), Text(protein),
          Text(carbs), "", ""};
}

TEST(DetailsValues, ABarIsAsLongAsItsShare) {
  // 20 grams in all: 5, 10, 15, 20 and 50 per cent; of 700: 35, 70, 105, 140 and 350.
  const Composition bars = CompositionOf(Mixture("1.00", "2.00", "3.000", "4.00", "10.00"), ".");
  constexpr std::array<float, kCompositionBars> kLengths = {35, 70, 105, 140, 350};
  constexpr std::array kValues = {"1", "2", "3", "4", "10"};
  constexpr std::array kShares = {"5.00", "10.00", "15.00", "20.00", "50.00"};
  for (std::size_t i = 0; i < bars.size(); ++i) {
    EXPECT_FLOAT_EQ(bars[i].length, kLengths[i]);
    EXPECT_EQ(bars[i].value, kValues[i]);
    EXPECT_EQ(bars[i].share, kShares[i]);
  }
}

// 3.1 + 1.6 + 0.006 + 0.9 + 8.7 = 14.306; 3.1 / 14.306 = 0.216692, 0.006 / 14.306 = 0.000419.
TEST(DetailsValues, ValuesAndSharesOfABarCarryTheSeparatorOfTheLocale) {
  const Composition bars = CompositionOf(PortionOf(kSpread, ","), ",");
  EXPECT_EQ(bars[0].value, "3,1");
  EXPECT_EQ(bars[0].share, "21,67");
  EXPECT_NEAR(bars[0].length, 151.684F, 0.001F);
  EXPECT_EQ(bars[2].value, "0,006");
  EXPECT_EQ(bars[2].share, "0,04");
}

TEST(DetailsValues, AFoodOfNothingHasBarsOfNoLength) {
  for (const CompositionBar& bar : CompositionOf(PortionOf(""), ".")) {
    EXPECT_EQ(bar.length, 0);
    EXPECT_EQ(bar.value, "0");
    EXPECT_EQ(bar.share, "0.00");
  }
}

TEST(DetailsValues, AMixtureBeyondASingleHasNoBars) {
  const Text large = "3" + Text(38, '0');
  EXPECT_THROW((void)CompositionOf(Mixture(large + "0", "", "", "", ""), "."), std::system_error);
  // Each has a place in a single, their sum has none.
  EXPECT_THROW((void)CompositionOf(Mixture(large, large, "", "", ""), "."), std::system_error);
}

}  // namespace
}  // namespace kelvora
