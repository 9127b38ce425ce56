// The calculator of a new food, box by box. Expected values are worked out by hand; where a
// single-precision step decides, the comment says how.
#include "food/food_calculator.h"

#include <gtest/gtest.h>
#include <system_error>

#include "food/food_values.h"
#include "nutrition/totals.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

class FoodCalculator : public testing::Test {
 protected:
  FoodCalculator() { BeginNextFood(form, Units()); }

  UnitContext Units() { return UnitsOf(test.program); }
  void Run() { Calculate(form, Units()); }
  // Types a text into a box and leaves it.
  void EnterWeight(WeightBoxes NewFoodForm::*boxes, WeightUnit unit, const char* text) {
    TypeWeight(form.*boxes, unit, text);
    if (TakeWeight(form.*boxes, unit, Units())) Run();
  }
  void Link(std::size_t index, const char* typed) {
    TypeValue(form, index, typed);
    LinkEnergy(form, index, test.locale.separator);
  }

  TestProgram test;
  NewFoodForm form;
};

constexpr auto kPrinted = &NewFoodForm::printed_weight;
constexpr auto kPortion = &NewFoodForm::portion_weight;

TEST_F(FoodCalculator, BeginsWithHundredGramsAndNothingElse) {
  // 100 g is 3.527 oz.
  const WeightBoxes hundred{"100", "100", "3.5"};
  EXPECT_EQ(form.printed_weight, hundred);
  EXPECT_EQ(form.portion_weight, hundred);
  EXPECT_EQ(form.txt_s, FoodValues());
  EXPECT_EQ(form.txt_d, FoodValues());
  EXPECT_EQ(form.txt_i, FoodValues());
}

TEST_F(FoodCalculator, APortionGetsItsShareOfThePrintedValues) {
  EnterWeight(kPortion, WeightUnit::gram, "35");
  form.txt_s = {"1000", "240", "2", "4.4", "8", "40", "1.2"};
  Run();
  // Times 0.35.
  EXPECT_EQ(form.txt_d, (FoodValues{"350", "84", "0.70", "1.54", "2.80", "14.00", "0.420"}));
  EXPECT_EQ(form.txt_i, (FoodValues{"1000", "240", "2.00", "4.40", "8.00", "40.00", "1.200"}));
}

TEST_F(FoodCalculator, ValuesForFiftyGramsDoubleForTheServer) {
  EnterWeight(kPrinted, WeightUnit::gram, "50");
  form.txt_s = {"500", "120", "1", "2.2", "4", "20", "0.6"};
  Run();
  EXPECT_EQ(form.txt_i, (FoodValues{"1000", "240", "2.00", "4.40", "8.00", "40.00", "1.200"}));
  // The portion still weighs 100 g.
  EXPECT_EQ(form.txt_d, form.txt_i);
}

TEST_F(FoodCalculator, EmptyAndMeaninglessValuesCountAsNothing) {
  form.txt_s = {"", "abc", "-", " 3", "1.5.9", "2,5", "7g"};
  Run();
  EXPECT_EQ(form.txt_d, (FoodValues{"0", "0", "0.00", "3.00", "1.50", "2.50", "7.000"}));
}

TEST_F(FoodCalculator, ValuesRoundHalvesAwayFromZeroInTheirOwnDecimals) {
  form.txt_s = {"0.5", "1.5", "0.125", "0.124", "0.375", "99.995", "0.0625"};
  Run();
  // All but 99.995 are exact in binary and times 1; that single is 99.9950027, above the half.
  EXPECT_EQ(form.txt_d, (FoodValues{"1", "2", "0.13", "0.12", "0.38", "100.00", "0.063"}));
}

TEST_F(FoodCalculator, TheShareAndTheProductAreSingles) {
  EnterWeight(kPortion, WeightUnit::gram, "30");
  form.txt_s[FoodValue::kProtein] = "0.75";
  Run();
  // 30 / 100 as a single is 0.300000011921; times 0.75 that is 0.225000008941, above the half. The
  // exact share would end in the single 0.22499999404, and 0.22.
  EXPECT_EQ(form.txt_d[FoodValue::kProtein], "0.23");
  EnterWeight(kPortion, WeightUnit::gram, "35");
  form.txt_s[FoodValue::kSodium] = "0.75";
  Run();
  // 0.2625 is no single; the nearest one is 0.262499988, below the half.
  EXPECT_EQ(form.txt_d[FoodValue::kSodium], "0.262");
}

TEST_F(FoodCalculator, AZeroWeightStopsAndLeavesTheBoxes) {
  form.txt_s[FoodValue::kKj] = "1000";
  Run();
  for (const auto boxes : {kPrinted, kPortion}) {
    const NewFoodForm before = form;
    EnterWeight(boxes, WeightUnit::gram, "0");
    EXPECT_EQ((form.*boxes).weight, "0");
    EXPECT_EQ((form.*boxes).oz, "0");
    form.txt_s[FoodValue::kKj] = "9";
    Run();
    EXPECT_EQ(form.txt_d, before.txt_d);
    EXPECT_EQ(form.txt_i, before.txt_i);
    form = before;
  }
}

TEST_F(FoodCalculator, WithoutAPrintedWeightNothingRuns) {
  form.txt_s[FoodValue::kKj] = "1000";
  EnterWeight(kPrinted, WeightUnit::gram, "");
  EnterWeight(kPortion, WeightUnit::gram, "");
  Run();
  EXPECT_EQ(form.txt_d, FoodValues());
  EXPECT_EQ(form.portion_weight, WeightBoxes());
}

TEST_F(FoodCalculator, APortionWithoutAWeightTakesThePrintedOne) {
  EnterWeight(kPortion, WeightUnit::gram, "");
  EXPECT_EQ(form.portion_weight, WeightBoxes());
  EnterWeight(kPrinted, WeightUnit::gram, "50");
  // 50 g is 1.764 oz.
  EXPECT_EQ(form.portion_weight, (WeightBoxes{"50", "50", "1.8"}));
}

TEST_F(FoodCalculator, WeightsFollowTheBoxThatWasTypedIn) {
  struct Case {
    WeightUnit unit;
    const char* typed;
    WeightBoxes expected;
  };
  for (const Case& row : {
           Case{WeightUnit::gram, "35", {"35", "35", "1.2"}},     // 1.235 oz
           Case{WeightUnit::gram, "007", {"007", "007", "0.2"}},  // 0.247 oz
           Case{WeightUnit::oz, "3.5", {"99", "99", "3.5"}},      // 99.22 g
           Case{WeightUnit::oz, "1", {"28", "28", "1"}},          // 28.35 g
           Case{WeightUnit::oz, "1,5", {"43", "43", "1,5"}},      // 42.52 g
           Case{WeightUnit::oz, "1.5.9", {"43", "43", "1.5.9"}},  // read as far as it is a number
           Case{WeightUnit::oz, "1..5", {"28", "28", "1..5"}},    // the same
           Case{WeightUnit::oz, "0", {"0", "0", "0"}},
           Case{WeightUnit::oz, ".", {"0", "0", "."}},
           Case{WeightUnit::gram, "", {}},
           Case{WeightUnit::oz, "", {}},
       }) {
    for (const auto boxes : {kPrinted, kPortion}) {
      EnterWeight(boxes, row.unit, row.typed);
      EXPECT_EQ(form.*boxes, row.expected) << row.typed;
      BeginNextFood(form, Units());
    }
  }
}

TEST_F(FoodCalculator, OuncesThatCameOutOfGramsLeaveTheGramsAlone) {
  EnterWeight(kPortion, WeightUnit::gram, "35");
  ASSERT_TRUE(TakeWeight(form.portion_weight, WeightUnit::oz, Units()));
  // 1.2 oz would be 34 g.
  EXPECT_EQ(form.portion_weight, (WeightBoxes{"35", "35", "1.2"}));
  EnterWeight(kPortion, WeightUnit::oz, "1.2");
  EXPECT_EQ(form.portion_weight.weight, "34");
  // Leaving the box again finds nothing new.
  ASSERT_TRUE(TakeWeight(form.portion_weight, WeightUnit::oz, Units()));
  EXPECT_EQ(form.portion_weight.weight, "34");
}

TEST_F(FoodCalculator, AWeightOfThirtyDigitsStillCalculates) {
  const Text weight = "1" + Text(30, '0');
  EnterWeight(kPortion, WeightUnit::gram, weight.c_str());
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(form.portion_weight.weight, weight);
  form.txt_s[FoodValue::kKj] = "1";
  Run();
  // As singles 1E30 / 100 is 1.00000006227113E28: fifteen digits and then zeros.
  EXPECT_EQ(form.txt_d[FoodValue::kKj], "100000006227113" + Text(14, '0'));
  EXPECT_EQ(form.txt_d[FoodValue::kKcal], "0");
}

TEST_F(FoodCalculator, AWeightBeyondASingleFailsAndKeepsTheValues) {
  form.txt_s[FoodValue::kKj] = "1000";
  Run();
  const FoodValues before = form.txt_d;
  const Text weight = "1" + Text(40, '0');
  TypeWeight(form.portion_weight, WeightUnit::gram, weight);
  ASSERT_TRUE(TakeWeight(form.portion_weight, WeightUnit::gram, Units()));
  // The ounces of it are 3.5E38, more than a single holds.
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF11-3"));
  EXPECT_EQ(form.portion_weight.oz, "");
  EXPECT_THROW(Run(), std::system_error);
  // Nobody emptied the box of the ounces: passing it by leaves the grams alone.
  EXPECT_FALSE(TakeWeight(form.portion_weight, WeightUnit::oz, Units()));
  EXPECT_EQ(form.portion_weight.weight, weight);
  EXPECT_EQ(form.txt_d, before);
}

TEST_F(FoodCalculator, EnergiesAreLinkedByFourPointTwo) {
  form.chk_kj = true;
  struct Case {
    std::size_t index;
    const char* typed;
    const char* other;
  };
  for (const Case& row : {
           Case{FoodValue::kKj, "420", "100"}, Case{FoodValue::kKcal, "100", "420"},
           Case{FoodValue::kKj, "1000", "238"},  // 238.1
           Case{FoodValue::kKcal, "2.5", "11"},  // 10.5, half away from zero
           Case{FoodValue::kKcal, "2,5", "11"},
           Case{FoodValue::kKj, "2.1", "1"},  // half a kilocalorie
           Case{FoodValue::kKj, "2", ""},     // 0.48 prints without a digit
           Case{FoodValue::kKj, "0.001", ""}, Case{FoodValue::kKcal, "0.1", ""},  // 0.42
       }) {
    Link(row.index, row.typed);
    EXPECT_EQ(form.txt_s[row.index], row.typed);
    EXPECT_EQ(form.txt_s[1 - row.index], row.other) << row.typed;
  }
}

TEST_F(FoodCalculator, NothingIsLinkedWithoutATickOrAnEnergyAboveNothing) {
  form.txt_s[FoodValue::kKcal] = "7";
  Link(FoodValue::kKj, "420");
  EXPECT_EQ(form.txt_s[FoodValue::kKcal], "7");
  form.chk_kj = true;
  for (const char* nothing : {"", "0", "0.0", "-5", "x"}) {
    Link(FoodValue::kKj, nothing);
    EXPECT_EQ(form.txt_s[FoodValue::kKcal], "7") << nothing;
  }
}

TEST_F(FoodCalculator, OtherValuesLinkNothing) {
  form.chk_kj = true;
  for (std::size_t i = FoodValue::kFatS; i < FoodValue::kCount; ++i) Link(i, "100");
  EXPECT_EQ(form.txt_s[FoodValue::kKj] + form.txt_s[FoodValue::kKcal], "");
}

TEST_F(FoodCalculator, ALinkedEnergyIsNotLinkedBackUntilItIsTypedIn) {
  form.chk_kj = true;
  Link(FoodValue::kKj, "100");
  // 23.8 became 24, and back that would be 101.
  EXPECT_EQ(form.txt_s[FoodValue::kKcal], "24");
  LinkEnergy(form, FoodValue::kKcal, ".");
  EXPECT_EQ(form.txt_s[FoodValue::kKj], "100");
  Link(FoodValue::kKcal, "24");
  EXPECT_EQ(form.txt_s[FoodValue::kKj], "101");
  LinkEnergy(form, FoodValue::kKj, ".");
  EXPECT_EQ(form.txt_s[FoodValue::kKcal], "24");
}

TEST_F(FoodCalculator, AnEnergyTypedBeforeTheTickLinksWhenItsBoxIsLeftAgain) {
  TypeValue(form, FoodValue::kKj, "420");
  LinkEnergy(form, FoodValue::kKj, ".");
  EXPECT_EQ(form.txt_s[FoodValue::kKcal], "");
  form.chk_kj = true;
  LinkEnergy(form, FoodValue::kKj, ".");
  EXPECT_EQ(form.txt_s[FoodValue::kKcal], "100");
}

TEST_F(FoodCalculator, WritesWithTheSeparatorOfTheLocaleAndReadsBoth) {
  test.locale.separator = ",";
  BeginNextFood(form, Units());
  EXPECT_EQ(form.portion_weight.oz, "3,5");
  EnterWeight(kPortion, WeightUnit::gram, "35");
  EXPECT_EQ(form.portion_weight.oz, "1,2");
  form.txt_s = {"1000", "240", "2,5", "2.5", "8", "40", "0,4"};
  Run();
  EXPECT_EQ(form.txt_d, (FoodValues{"350", "84", "0,88", "0,88", "2,80", "14,00", "0,140"}));
  EnterWeight(kPrinted, WeightUnit::oz, "3,5");
  EXPECT_EQ(form.printed_weight.weight, "99");
}

TEST_F(FoodCalculator, TheNextFoodKeepsTheTickAndTheCalculatedValues) {
  form.chk_kj = true;
  Link(FoodValue::kKj, "420");
  form.txt_dNaam = "Soup";
  form.combo_dEenheid = "1 plate";
  EnterWeight(kPortion, WeightUnit::gram, "35");
  BeginNextFood(form, Units());
  EXPECT_EQ(form.txt_dNaam + form.combo_dEenheid, "");
  EXPECT_EQ(form.txt_s, FoodValues());
  EXPECT_EQ(form.portion_weight.weight, "100");
  EXPECT_TRUE(form.chk_kj);
  EXPECT_EQ(form.linked_energy, std::nullopt);
  EXPECT_EQ(form.txt_d[FoodValue::kKj], "147");  // of 420, until the calculation runs
}

}  // namespace
}  // namespace kelvora
