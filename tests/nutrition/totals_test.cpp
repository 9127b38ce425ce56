#include "nutrition/totals.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr FoodLine kBread{.product = "Bread",
                          .gram = "35",
                          .kj = "343",
                          .kcal = "82",
                          .protein = "3.5",
                          .fat_u = "0.6",
                          .fat_s = "0.2",
                          .carbs = "14.3",
                          .sodium = "0.172"};
// The same kind of numbers written under a comma locale.
constexpr FoodLine kSoup{.product = "Soup",
                         .gram = "250",
                         .kj = "418,5",
                         .kcal = "100",
                         .protein = "5",
                         .fat_u = "2,5",
                         .fat_s = "1",
                         .carbs = "14,2",
                         .sodium = "0,55"};

struct ShownTotals : ConsumptionView {
  ConsumptionTotals totals;
  int times = 0;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_Consumpties() override {}
  void ShowTotals(const ConsumptionTotals& shown) override {
    totals = shown;
    ++times;
  }
};

TEST(Totals, SumsAreTakenOverAllLinesWithCommaAndPointAlike) {
  TextList lines, fields;
  for (const FoodLine& food : {kBread, kBread, kSoup}) lines.Add(LineOf(food));
  const Amounts sum = SumOf(lines, fields);
  EXPECT_FLOAT_EQ(sum.gram, 320);
  EXPECT_FLOAT_EQ(sum.kj, 1104.5);
  EXPECT_FLOAT_EQ(sum.carbs, 42.8f);
  EXPECT_FLOAT_EQ(sum.sodium, 0.894f);
}

TEST(Totals, SumsCarrySinglePrecisionRounding) {
  TextList lines, fields;
  for (int i = 0; i < 1000; ++i) lines.Add(LineOf({.product = "Salt", .sodium = "0.1"}));
  // A thousand times 0.1 in steps of a 32-bit float, worked out with another tool.
  EXPECT_EQ(SumOf(lines, fields).sodium, 99.99904632568359375f);
}

TEST(Totals, AShortOrForeignLineCountsAsFarAsItGoes) {
  TextList lines, fields;
  lines.Add(Packed("Odd|1 piece|12|abc|7 kcal|"));
  lines.Add("nothing closed");
  const Amounts sum = SumOf(lines, fields);
  EXPECT_EQ(sum.gram, 12);
  EXPECT_EQ(sum.kj, 0);
  EXPECT_EQ(sum.kcal, 7);
  EXPECT_EQ(sum.protein, 0);
}

TEST(RefreshTotalen, WritesTheTrendTextInItsOwnOrder) {
  TestProgram test;
  test.OpenDay("Anna");
  test.program.store.L_ochtend.Add(LineOf(kBread));
  test.program.store.L_ochtend.Add(LineOf(kBread));
  test.program.store.L_avond.Add(LineOf(kSoup));
  Refresh_Totalen(test.program);
  // Gram, kJ, kcal, unsaturated, saturated, carbohydrates, protein, sodium, body weight.
  EXPECT_EQ(test.program.store.txt_trenddata,
            Packed("320|1104.5|264|3.7|1.4|42.8|12|0.8940001|80.5|"));
  EXPECT_FALSE(test.pointer.waiting);
  EXPECT_FALSE(test.program.day.FileChanged);
}

TEST(RefreshTotalen, WritesNumbersWithTheLocalesSeparator) {
  TestProgram test;
  test.locale.separator = ",";
  test.program.StartSeparator = ",";
  test.OpenDay("Anna");
  test.program.store.L_middag.Add(LineOf(kSoup));
  Refresh_Totalen(test.program);
  EXPECT_EQ(test.program.store.txt_trenddata, Packed("250|418,5|100|2,5|1|14,2|5|0,55|80.5|"));
}

TEST(RefreshTotalen, ShowsEachOpenWindowTheTotalsOfItsPeriod) {
  TestProgram test;
  test.OpenDay("Anna");
  ShownTotals morning, evening;
  test.program.windows.Consumption(DayPart::morning) = &morning;
  test.program.windows.Consumption(DayPart::evening) = &evening;
  test.program.profile[ProfileField::type_prioriteit] = "5";
  test.program.store.L_ochtend.Add(LineOf(kBread));
  test.program.store.L_ochtend.Add(LineOf(kSoup));
  Refresh_Totalen(test.program);
  EXPECT_EQ(morning.times, 1);
  // 343 + 418.5 kJ; 0.6 + 2.5 g; 0.2 + 1 g; 3.5 + 5 g rounds up; 14.3 + 14.2 g rounds up.
  EXPECT_EQ(morning.totals.lbl_nfo,
            (std::array<Text, 7>{": 762 Kj/182 Kcal", ": 3 g", ": 1 g", ": 9 g", ": 29 g",
                                 ": 0.722 g", ": 285g"}));
  EXPECT_EQ(morning.totals.var,
            (std::array<Text, 8>{"762", "182", "3", "1", "9", "29", "0.722", "285"}));
  EXPECT_EQ(morning.totals.status, "Morning contains: 9 Proteins");
  // The heading of the evening ends in a blank of its own.
  EXPECT_EQ(evening.totals.status, "Evening contains:  0 Proteins");
  EXPECT_EQ(evening.totals.lbl_nfo[0], ": 0 Kj/0 Kcal");
  EXPECT_EQ(evening.totals.lbl_nfo[5], ": 0.000 g");
}

struct ShownSummary : DaySummaryView {
  std::vector<DayTotals> shown;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_Daguittreksel() override {}
  void Maak_Voedingsbehoefte(const DayTotals& totals) override { shown.push_back(totals); }
};

TEST(RefreshTotalen, AnOpenDaySummaryGetsTheWholeDayInTheOrderOfTheRequirements) {
  TestProgram test;
  test.OpenDay("Anna");
  ShownSummary summary;
  test.program.windows.day_summary = &summary;
  test.program.store.L_ochtend.Add(LineOf({.product = "A",
                                           .kj = "1",
                                           .kcal = "2",
                                           .protein = "3",
                                           .fat_u = "4",
                                           .fat_s = "5",
                                           .carbs = "6",
                                           .sodium = "7"}));
  test.program.store.L_middag.Add(LineOf({.product = "B", .kj = "10", .sodium = "70"}));
  test.program.store.L_avond.Add(LineOf({.product = "C", .kj = "100", .protein = "300"}));
  Refresh_Totalen(test.program);
  // Kilojoules, kilocalories, unsaturated, saturated, sodium, protein, carbohydrates.
  EXPECT_EQ(summary.shown, std::vector<DayTotals>({{111, 2, 4, 5, 77, 303, 6}}));
}

TEST(RefreshTotalen, LeavesTheFieldsOfTheLastLineWithPointsInTheScratchList) {
  TestProgram test;
  test.OpenDay("Anna");
  test.program.store.L_ochtend.Add(Packed("first|1|2|"));
  test.program.store.L_avond.Add(Packed("Soup, hot|1 plate|12,5|"));
  Refresh_Totalen(test.program);
  const TextList& fields = test.program.store.temp_filter;
  EXPECT_EQ(std::vector<Text>(fields.begin(), fields.end()),
            (std::vector<Text>{"Soup. hot", "1 plate", "12.5"}));
  EXPECT_EQ(test.program.store.L_avond[0], Packed("Soup, hot|1 plate|12,5|"));
}

TEST(RefreshTotalen, ChecksTheSeparatorFirstAndGoesOn) {
  TestProgram test;
  test.OpenDay("Anna");
  test.program.store.L_ochtend.Add(LineOf({.product = "A", .gram = "1.5"}));
  test.locale.separator = ",";
  Refresh_Totalen(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.starts_with("The separation character of you computer"));
  EXPECT_TRUE(test.program.store.txt_trenddata.starts_with("1,5\xBD"));
}

TEST(RefreshTotalen, AChangeOfTheMorningReTotalsAllThreeWindows) {
  TestProgram test;
  test.OpenDay("Anna");
  std::array<ShownTotals, 3> windows;
  for (const DayPart part : kDayParts) {
    test.program.windows.Consumption(part) = &windows[static_cast<std::size_t>(part)];
  }
  test.program.store.L_ochtend.Add(LineOf(kBread));
  Refresh_Totalen(test.program);
  for (const ShownTotals& window : windows) EXPECT_EQ(window.times, 1);
}

TEST(RefreshTotalen, EachPriorityHasItsOwnWordAndValue) {
  TestProgram test;
  test.OpenDay("Anna");
  ShownTotals window;
  test.program.windows.Consumption(DayPart::afternoon) = &window;
  test.program.store.L_middag.Add(LineOf(kSoup));
  const std::array<const char*, 6> expected = {"419 Kj ",  "100 Kcal",         "3 Fat(u)",
                                               "1 Fat(s)", "14 Carbohydrates", "5 Proteins"};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    test.program.profile[ProfileField::type_prioriteit] = std::to_string(i);
    Refresh_Totalen(test.program);
    EXPECT_EQ(window.totals.status, Text("Afternoon contains: ") + expected[i]);
  }
}

TEST(RefreshTotalen, ANumberBeyondAllRangesIsReportedAndTheProgramGoesOn) {
  TestProgram test;
  test.OpenDay("Anna");
  const Text huge(400, '9');
  test.program.store.L_ochtend.Add(LineOf({.product = "Huge", .kj = huge}));
  Refresh_Totalen(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF11-0"));
}

}  // namespace
}  // namespace kelvora
