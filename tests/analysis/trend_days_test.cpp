// What the trend chart says of its days. Expected values by hand: ounces are grams x 0.035274,
// pounds kilograms x 2.2046225, stones a fourteenth of the pounds.
#include "analysis/trend_days.h"

#include <gtest/gtest.h>

#include "analysis/day_series_of.h"
#include "language/built_in_texts.h"
#include "nutrition/totals.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

class TrendDays : public testing::Test {
 protected:
  [[nodiscard]] std::vector<float> Places(float tijdlijn_stand, float width) {
    return PlacesOfDays(days, TimeLineOf(days, tijdlijn_stand, UnitsOf(test.program)), width);
  }
  // The words of one ticked line, without the date.
  [[nodiscard]] Text WordsOf(std::size_t line) {
    TrendTicks ticks;
    ticks.Teken_lijn.fill(false);
    ticks.Teken_lijn[line] = true;
    return WordsOfDay(test.program, days, ticks, 0).at(1);
  }
  void UseOneDay() {
    days = DaysOfDates({"040312"});
    const char* const values[] = {"1250.5", "8400.4", "2000",   "12.345", "7",
                                  "250.5",  "60.25",  "2.3456", "80.5"};
    for (std::size_t i = 0; i < kSeriesCount; ++i) days.L_data_1[i][0] = values[i];
  }

  TestProgram test;
  DaySeries days;
};

using Floats = std::vector<float>;

TEST_F(TrendDays, StandWhereTheirLinesDo) {
  days = DaysOfDates({"040301", "040302", "040310"});
  EXPECT_EQ(Places(kPerFile, 900), (Floats{0, 450, 900}));
  EXPECT_EQ(Places(kPerDate, 900), (Floats{0, 100, 900}));
}

TEST_F(TrendDays, StandNowhereWhereNothingIsDrawn) {
  EXPECT_TRUE(Places(kPerFile, 900).empty());
  days = DaysOfDates({"040301"});
  EXPECT_TRUE(Places(kPerFile, 900).empty());
  days = DaysOfDates({"040301", "040301"});
  EXPECT_TRUE(Places(kPerFile, 900).empty());
  EXPECT_TRUE(Places(kPerDate, 900).empty());
  days = DaysOfDates({"040301", "040302"});
  EXPECT_TRUE(Places(2, 900).empty());
}

TEST(NearestDay, IsTheOneOnWhicheverSide) {
  const Floats places = {0, 100, 900};
  EXPECT_EQ(NearestDay(places, -50), 0u);
  EXPECT_EQ(NearestDay(places, 49), 0u);
  EXPECT_EQ(NearestDay(places, 51), 1u);
  EXPECT_EQ(NearestDay(places, 499), 1u);
  EXPECT_EQ(NearestDay(places, 501), 2u);
  EXPECT_EQ(NearestDay(places, 5000), 2u);
}

TEST(NearestDay, IsTheFirstOfSeveral) {
  EXPECT_EQ(NearestDay({0, 100, 100, 900}, 110), 1u);
  EXPECT_EQ(NearestDay({0, 100}, 50), 0u);
  EXPECT_EQ(NearestDay({}, 50), std::nullopt);
}

TEST(DateOfDay, IsWrittenAsTheUnitSystemAsks) {
  EXPECT_EQ(DateOfDay("030312", "0"), "12-03-03");
  EXPECT_EQ(DateOfDay("040501", "1"), "05-01-04");
  EXPECT_EQ(DateOfDay("040501", "2"), "01-05-04");
}

TEST(DateOfDay, StandsAsItIsWhereItIsNone) {
  for (const char* const key : {"", "04", "abcdef", "0403011", "04-301"}) {
    EXPECT_EQ(DateOfDay(key, "0"), key);
  }
  EXPECT_EQ(DateOfDay("040231", "0"), "31-02-04");  // six digits, whatever they are
}

using Labels = std::vector<DateLabel>;

TEST(DatesThatFit, KeepFirstAndLastToTheEdges) {
  EXPECT_EQ(DatesThatFit({0, 1000}, 1000, 200, 50), (Labels{{0, 0}, {1, 800}}));
  EXPECT_EQ(DatesThatFit({}, 1000, 200, 50), Labels());
}

// A date 200 wide with a gap of 50: the first ends at 200, so one between begins at 250 or later,
// at a day from 350 on; the last begins at 800, so one between ends at 750 or before, at a day up
// to 650.
TEST(DatesThatFit, PutDaysBetweenWhereThereIsRoom) {
  EXPECT_EQ(DatesThatFit({0, 350, 1000}, 1000, 200, 50), (Labels{{0, 0}, {1, 250}, {2, 800}}));
  EXPECT_EQ(DatesThatFit({0, 349, 1000}, 1000, 200, 50), (Labels{{0, 0}, {2, 800}}));
  EXPECT_EQ(DatesThatFit({0, 650, 1000}, 1000, 200, 50), (Labels{{0, 0}, {1, 550}, {2, 800}}));
  EXPECT_EQ(DatesThatFit({0, 651, 1000}, 1000, 200, 50), (Labels{{0, 0}, {2, 800}}));
}

TEST(DatesThatFit, PutAsManyBetweenAsFit) {
  // From 350 to 650 a date takes 250: two of them.
  EXPECT_EQ(DatesThatFit({0, 350, 400, 600, 620, 1000}, 1000, 200, 50),
            (Labels{{0, 0}, {1, 250}, {3, 500}, {5, 800}}));
}

TEST(DatesThatFit, LeaveTheLastOutWhereOnlyOneHasRoom) {
  EXPECT_EQ(DatesThatFit({0, 449}, 449, 200, 50), (Labels{{0, 0}}));
  EXPECT_EQ(DatesThatFit({0, 450}, 450, 200, 50), (Labels{{0, 0}, {1, 250}}));
}

TEST_F(TrendDays, SayTheirDateAndTheTickedValues) {
  UseOneDay();
  EXPECT_EQ(
      WordsOfDay(test.program, days, {}, 0),
      (std::vector<Text>{"12-03-04", "Food weight: 1251 gram",
                         "Energy, Kj / Kcal: 8400 Kj / 2000 Kcal", "Your weight: 80.50 kilogram"}));
}

TEST_F(TrendDays, SayEveryLineWithItsUnit) {
  UseOneDay();
  EXPECT_EQ(WordsOf(3), "Fat, unsaturated: 12.35 gram");  // 12.345, halves away from zero
  EXPECT_EQ(WordsOf(4), "Fat, saturated: 7.00 gram");
  EXPECT_EQ(WordsOf(5), "Carbohydrates: 250.50 gram");
  EXPECT_EQ(WordsOf(6), "Protein: 60.25 gram");
  EXPECT_EQ(WordsOf(7), "Sodium: 2.346 gram");
}

TEST_F(TrendDays, SayWeightsInTheUnitsOfTheSettings) {
  UseOneDay();
  test.program.settings[Setting::opt_system] = "1";
  EXPECT_EQ(WordsOf(2), "Your weight: 177.47 Lbs");  // 177.4721
  test.program.settings[Setting::opt_system] = "2";
  EXPECT_EQ(WordsOf(2), "Your weight: 12.7 Stones");  // 12.6766
  test.program.settings[Setting::opt_gramoz] = "1";
  EXPECT_EQ(WordsOf(0), "Food weight: 44.1 oz");  // 44.1101
}

TEST_F(TrendDays, SayThemInDutchAndWithAComma) {
  UseOneDay();
  Make_Taal_Dutch(test.program.texts);
  test.locale.separator = ",";
  EXPECT_EQ(WordsOf(0), "Gewicht van je voeding: 1251 gram");
  EXPECT_EQ(WordsOf(2), "Je gewicht: 80,50 kilogram");
  EXPECT_EQ(WordsOf(7), "Natrium: 2,346 gram");
}

TEST_F(TrendDays, SayADashForWhatIsMissing) {
  days = DaysOfDates({"040312"});
  EXPECT_EQ(WordsOf(0), "Food weight: -");
  EXPECT_EQ(WordsOf(1), "Energy, Kj / Kcal: - / -");
  EXPECT_EQ(WordsOf(2), "Your weight: -");
}

TEST_F(TrendDays, SayWhatIsStoredWhereNoNumberIsSoLarge) {
  days = DaysOfDates({"040312"});
  // Beyond a single, and beyond any number.
  for (const Text& huge : {Text(60, '9'), Text(400, '9')}) {
    for (auto& texts : days.L_data_1) texts[0] = huge;
    for (const char* const system : {"0", "1", "2"}) {
      test.program.settings[Setting::opt_system] = system;
      test.program.settings[Setting::opt_gramoz] = "1";
      for (std::size_t line = 0; line < kTrendLines.size(); ++line) {
        EXPECT_NE(WordsOf(line).find(huge), Text::npos) << line;
      }
    }
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

}  // namespace
}  // namespace kelvora
