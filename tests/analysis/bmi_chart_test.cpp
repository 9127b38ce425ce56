// The texts of the BMI panel, the step that its arrow points at, and where both stand. Expected
// values by hand: 2.2046225 pounds in a kilogram, 14 pounds in a stone, 3.28084 feet in a metre.
#include "analysis/bmi_chart.h"

#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

class Bmi : public testing::Test {
 protected:
  Bmi() { test.OpenDay("Anna"); }
  void Toon(std::string_view height, std::string_view weight) {
    test.program.store.L_gegevens.Replace(HeaderRow::kHeight, height);
    test.program.store.L_gegevens.Replace(HeaderRow::kWeight, weight);
    Toon_BMI(test.program, chart);
  }
  [[nodiscard]] Text Step() const {
    return chart.step ? Text(kBmiLadder[*chart.step].name) : Text();
  }
  [[nodiscard]] bool ShownCode(std::string_view code) const {
    return !test.boxes.shown.empty() && test.boxes.shown.back().text.ends_with(code);
  }

  TestProgram test;
  BmiChart chart;
};

TEST_F(Bmi, ShowsMetricTextsWithTheOtherUnitBeside) {
  Toon("1,80", "80");
  EXPECT_EQ(chart.lbl_lengte, ": 1.80 meter");
  EXPECT_EQ(chart.lbl_lengte_feet, ": 5'11'' Feet, inch");  // 5.905512 feet
  EXPECT_EQ(chart.lbl_gewicht, ": 80.00 kilogram");
  EXPECT_EQ(chart.lbl_gewicht_lbs, ": 176.37 Lbs");
  EXPECT_EQ(chart.lbl_bmiscore, ": 24.69");  // 80 / 3.24
  EXPECT_EQ(chart.lbl_ideaalmin, ": 59.94 kilogram");
  EXPECT_EQ(chart.lbl_ideaalmin_lbs, ": 132.15 Lbs");  // 132.14507
  EXPECT_EQ(chart.lbl_ideaalmax, ": 81 kilogram");
  EXPECT_EQ(chart.lbl_ideaalmax_lbs, ": 178.57 Lbs");
  EXPECT_EQ(Step(), "lbl_bmi_1");
}

TEST_F(Bmi, ShowsPoundsAndStonesInImperialUnits) {
  for (const char* system : {"1", "2"}) {
    test.program.settings[Setting::opt_system] = system;
    Toon("1.80", "80");
    EXPECT_EQ(chart.lbl_lengte, ": 1.80 meter");
    EXPECT_EQ(chart.lbl_gewicht, ": 176.37 Lbs");
    EXPECT_EQ(chart.lbl_gewicht_lbs, ": 12.6 Stones");  // 12.5978
    EXPECT_EQ(chart.lbl_ideaalmin, ": 132.15 Lbs");
    EXPECT_EQ(chart.lbl_ideaalmin_lbs, ": 9.4 Stones");  // 9.4389
    EXPECT_EQ(chart.lbl_ideaalmax, ": 178.57 Lbs");
    EXPECT_EQ(chart.lbl_ideaalmax_lbs, ": 12.8 Stones");  // 12.7553
  }
}

TEST_F(Bmi, PrintsScoreAndMetricIdealWithAPointInEveryLocale) {
  test.locale.separator = ",";
  Toon("1,80", "80");
  EXPECT_EQ(chart.lbl_lengte, ": 1,80 meter");
  EXPECT_EQ(chart.lbl_gewicht, ": 80,00 kilogram");
  EXPECT_EQ(chart.lbl_gewicht_lbs, ": 176,37 Lbs");
  EXPECT_EQ(chart.lbl_bmiscore, ": 24.69");
  EXPECT_EQ(chart.lbl_ideaalmin, ": 59.94 kilogram");
  EXPECT_EQ(chart.lbl_ideaalmin_lbs, ": 132,15 Lbs");
  EXPECT_EQ(Step(), "lbl_bmi_1");
}

TEST_F(Bmi, CutsTheIdealWeightToFiveCharacters) {
  Toon("1.73", "70");  // 1.73 x 1.73 = 2.9929; x 18.5 = 55.36865, x 25 = 74.8225
  EXPECT_EQ(chart.lbl_ideaalmin, ": 55.36 kilogram");
  EXPECT_EQ(chart.lbl_ideaalmax, ": 74.82 kilogram");
}

TEST_F(Bmi, KeepsItsTextsWithoutHeightOrWeight) {
  Toon("1,80", "80");
  Toon("1.80", "");
  EXPECT_EQ(chart.lbl_gewicht, ": 80.00 kilogram");
  Toon("", "60");
  EXPECT_EQ(chart.lbl_bmiscore, ": 24.69");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Bmi, KeepsWhatComesBehindTheWeightForAHeightOfNothing) {
  for (const char* height : {"0", "0,00", "tall"}) {
    SCOPED_TRACE(height);
    test.boxes.shown.clear();
    Toon("1.80", "80");
    Toon(height, "60");
    EXPECT_EQ(chart.lbl_lengte, ": .00 meter");
    EXPECT_EQ(chart.lbl_lengte_feet, ": ''' Feet, inch");
    EXPECT_EQ(chart.lbl_gewicht, ": 60.00 kilogram");
    EXPECT_EQ(chart.lbl_bmiscore, ": 24.69");
    EXPECT_EQ(chart.lbl_ideaalmax, ": 81 kilogram");
    EXPECT_EQ(Step(), "lbl_bmi_1");
    EXPECT_TRUE(ShownCode("#FF11-7"));
  }
}

TEST_F(Bmi, TakesAWeightOfThirtyDigits) {
  Toon("1.80", "1" + Text(30, '0'));
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(Step(), "lbl_bmi_top");
}

TEST_F(Bmi, ReportsAWeightThatNoNumberHolds) {
  Toon("1.80", "80");
  Toon("1.75", "1" + Text(39, '0'));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(ShownCode("#F9-12"));
  EXPECT_EQ(chart.lbl_lengte, ": 1.75 meter");
  EXPECT_EQ(chart.lbl_gewicht, ": 80.00 kilogram");
}

TEST_F(Bmi, SpeaksDutch) {
  Make_Taal_Dutch(test.program.texts);
  Toon("1.80", "80");
  EXPECT_EQ(chart.lbl_lengte_feet, ": 5'11'' Feet, inch");
  EXPECT_EQ(chart.lbl_gewicht, ": 80.00 kilogram");
}

TEST_F(Bmi, LeavesTheArrowWhereItStoodAtAnIndexThatFitsNoStep) {
  Toon("2.00", "80");  // 20
  EXPECT_EQ(Step(), "lbl_bmi_10");
  Toon("2.00", "102");  // 25.5
  EXPECT_EQ(chart.lbl_bmiscore, ": 25.50");
  EXPECT_EQ(Step(), "lbl_bmi_10");
}

TEST(BmiLadder, PointsAtTheLastStepThatFits) {
  struct Case {
    double bmi;
    std::string_view step;
  };
  for (const Case& expected :
       {Case{10, "lbl_bmi_bottum"}, Case{18.49, "lbl_bmi_bottum"}, Case{18.5, "lbl_bmi_13"},
        Case{18.99, "lbl_bmi_13"},  Case{19, "lbl_bmi_12"},        Case{19.45, "lbl_bmi_12"},
        Case{19.46, "lbl_bmi_11"},  Case{19.49, "lbl_bmi_11"},     Case{19.5, "lbl_bmi_11"},
        Case{20, "lbl_bmi_10"},     Case{20.5, "lbl_bmi_9"},       Case{21, "lbl_bmi_8"},
        Case{21.5, "lbl_bmi_7"},    Case{22, "lbl_bmi_6"},         Case{22.5, "lbl_bmi_5"},
        Case{23, "lbl_bmi_4"},      Case{23.5, "lbl_bmi_3"},       Case{24, "lbl_bmi_2"},
        Case{24.49, "lbl_bmi_2"},   Case{24.5, "lbl_bmi_1"},       Case{24.69, "lbl_bmi_1"},
        Case{25, "lbl_bmi_0"},      Case{25.49, "lbl_bmi_0"},      Case{25.51, "lbl_bmi_top"},
        Case{60, "lbl_bmi_top"}}) {
    const auto step = StepOf(expected.bmi);
    ASSERT_TRUE(step) << expected.bmi;
    EXPECT_EQ(kBmiLadder[*step].name, expected.step) << expected.bmi;
  }
  EXPECT_FALSE(StepOf(25.5));
}

TEST(BmiLadder, HasTheLaidDownCaptionsAndColours) {
  struct Row {
    std::string_view caption;
    Colour colour;
  };
  constexpr std::array kRows = {
      Row{"", {220, 35, 0}},       Row{"25,00", {192, 54, 0}},  Row{"24,50", {167, 71, 0}},
      Row{"24,00", {136, 92, 0}},  Row{"23,50", {113, 108, 0}}, Row{"23,00", {113, 108, 0}},
      Row{"22,50", {60, 137, 1}},  Row{"22,00", {47, 149, 1}},  Row{"21,50", {31, 163, 1}},
      Row{"21,00", {47, 149, 1}},  Row{"20,50", {60, 137, 1}},  Row{"20,00", {113, 108, 0}},
      Row{"19,50", {113, 108, 0}}, Row{"19,00", {136, 92, 0}},  Row{"18,50", {167, 71, 0}},
      Row{"", {192, 54, 0}}};
  static_assert(kRows.size() == kBmiLadder.size());
  for (std::size_t i = 0; i < kRows.size(); ++i) {
    EXPECT_EQ(kBmiLadder[i].caption, kRows[i].caption) << i;
    EXPECT_EQ(kBmiLadder[i].background, kRows[i].colour) << i;
  }
}

TEST(BmiLadder, StacksStepsOfATwentiethThatOverlapByTwentyTwips) {
  const LadderPlaces places = PlaceLadder(8000, 4000);
  for (std::size_t i = 0; i < places.steps.size(); ++i) {
    EXPECT_DOUBLE_EQ(places.steps[i].height, 200);
    if (i == 0) continue;
    EXPECT_DOUBLE_EQ(places.steps[i].top, places.steps[i - 1].Bottom() - 20);
  }
  // 16 x 200 - 15 x 20 = 2900 of 4000
  EXPECT_DOUBLE_EQ(places.steps.front().top, 550);
  EXPECT_DOUBLE_EQ(places.steps.back().Bottom(), 3450);
  EXPECT_DOUBLE_EQ(places.lbl_pijlbar.top, 550);
  EXPECT_DOUBLE_EQ(places.lbl_pijlbar.Bottom(), 3450);
  EXPECT_DOUBLE_EQ(places.lbl_pijlbar.Right(), places.steps.front().left);
}

TEST(BmiLadder, PutsTheArrowLeftOfItAtTheMiddleOfTheStep) {
  const LadderPlaces places = PlaceLadder(8000, 4000);
  const TwipRect arrow = PlaceArrow(places, 2);  // from 550 + 2 x 180 = 910 to 1110
  EXPECT_DOUBLE_EQ(arrow.Right(), places.steps.front().left - 60);
  EXPECT_DOUBLE_EQ(arrow.top + arrow.height / 2, 1010);
}

TEST_F(Bmi, SaysIndexAndRangeOfTheArrowInWords) {
  EXPECT_EQ(ArrowDescription(chart), "");
  Toon("1,80", "80");
  EXPECT_EQ(ArrowDescription(chart), "24.69 (24,50 - 25,00)");
  Toon("2.00", "100");
  EXPECT_EQ(ArrowDescription(chart), "25.00 (25,00 - 25,50)");
  Toon("2.00", "120");
  EXPECT_EQ(ArrowDescription(chart), "30.00 (> 25,50)");
  Toon("2.00", "60");
  EXPECT_EQ(ArrowDescription(chart), "15.00 (< 18,50)");
}

}  // namespace
}  // namespace kelvora
