// The pie of the five largest and its legend: shares and wedges worked out by hand here, and with
// Python in pies_oracle_test.cpp.
#include "analysis/day_charts.h"

#include <gtest/gtest.h>
#include <numbers>

#include "analysis/top5_rows.h"
#include "language/built_in_texts.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

using Texts = std::vector<Text>;

class Top5Chart : public testing::Test {
 protected:
  void Build(SummaryColumn column, const Texts& cells, int gekozen_stof) {
    Bouw_Top5(test.program, AnalysisWindow::day_summary, RowsWith(column, cells), gekozen_stof,
              top5);
  }
  void BuildKcal(const Texts& cells) { Build(SummaryColumn::kcal, cells, 1); }
  void SpeakDutch() { Make_Taal_Dutch(test.program.texts); }

  TestProgram test;
  Top5 top5;
};

TEST_F(Top5Chart, NamesTheLargestFirstWithShareValueAndUnit) {
  BuildKcal({"100", "300", "50", "400", "25", "125"});  // together 1000
  EXPECT_EQ(top5.lbl_soort, "Pie chart for: (Energy, Kcal)");
  EXPECT_FALSE(top5.lbl_leeg);
  EXPECT_EQ(top5.lbl_piename[0], "Food 3\n[40%, 400 Kcal]");
  EXPECT_EQ(top5.lbl_piename[1], "Food 1\n[30%, 300 Kcal]");
  EXPECT_EQ(top5.lbl_piename[2], "Food 5\n[12%, 125 Kcal]");  // 12.499875
  EXPECT_EQ(top5.lbl_piename[3], "Food 0\n[10%, 100 Kcal]");
  EXPECT_EQ(top5.lbl_piename[4], "Food 2\n[5%, 50 Kcal]");
  // 100 less 97.5 of 99.999 percent, less four steps of 0.1: 2.1
  EXPECT_EQ(top5.lbl_piename[5], "Overige consumpties\n[2% ]");
}

TEST_F(Top5Chart, CallsTheRestByItsDutchNameInEveryLanguage) {
  SpeakDutch();
  BuildKcal({"100", "300", "50", "400", "25", "125"});
  EXPECT_EQ(top5.lbl_soort, "Taartdiagram voor: (Energie, Kcal)");
  EXPECT_EQ(top5.lbl_piename[5], "Overige consumpties\n[2% ]");
}

TEST_F(Top5Chart, CallsTheRestByTheWordOfAWindowThatHasOne) {
  Top5Words words = Top5WordsOf(AnalysisWindow::day_summary);
  words.rest = TextId{TextTable::taal_trend, 117};
  const SummaryRows rows = RowsWith(SummaryColumn::kcal, {"1", "2", "3", "4", "5", "6", "7"});
  BuildTop5(
      rows, {words, 1}, test.program.texts, ".", [] { return false; }, top5);
  EXPECT_TRUE(top5.lbl_piename[5].starts_with("Remaining consumptions\n[")) << top5.lbl_piename[5];
}

struct NutrientRow {
  int gekozen_stof;
  SummaryColumn column;
  const char* heading;
  const char* unit;
  std::array<Colour, 6> colours;
};

constexpr std::array<Colour, 6> kBlues = {
    {{0, 56, 140}, {0, 80, 200}, {5, 105, 255}, {65, 141, 255}, {125, 177, 255}, {185, 213, 255}}};

const std::array kNutrientRows = {
    NutrientRow{0, SummaryColumn::kj, "Pie chart for: (Energy, Kj)", " Kj ", kBlues},
    NutrientRow{1, SummaryColumn::kcal, "Pie chart for: (Energy, Kcal)", " Kcal", kBlues},
    NutrientRow{2,
                SummaryColumn::fat_u,
                "Pie chart for: (Fat, unsaturated)",
                " gram",
                {{{140, 56, 0},
                  {200, 80, 0},
                  {255, 105, 5},
                  {255, 141, 65},
                  {236, 94, 8},
                  {255, 213, 185}}}},
    NutrientRow{3,
                SummaryColumn::fat_s,
                "Pie chart for: (Fat, saturated)",
                " gram",
                {{{140, 20, 0},
                  {200, 28, 0},
                  {215, 31, 1},
                  {255, 92, 65},
                  {255, 143, 125},
                  {255, 195, 185}}}},
    NutrientRow{4,
                SummaryColumn::protein,
                "Pie chart for: (Protein)",
                " gram",
                {{{49, 176, 4},
                  {65, 234, 6},
                  {102, 250, 50},
                  {145, 252, 108},
                  {189, 254, 166},
                  {233, 255, 225}}}},
    NutrientRow{5,
                SummaryColumn::sodium,
                "Pie chart for: (Sodium)",
                " gram",
                {{{120, 137, 43},
                  {160, 182, 58},
                  {186, 205, 95},
                  {206, 220, 140},
                  {226, 234, 186},
                  {245, 248, 232}}}},
    NutrientRow{6,
                SummaryColumn::carbs,
                "Pie chart for: (Carbohydrates)",
                " gram",
                {{{178, 147, 2},
                  {237, 196, 3},
                  {255, 218, 45},
                  {237, 239, 39},
                  {255, 239, 165},
                  {255, 250, 225}}}},
};

TEST_F(Top5Chart, ReadsTheColumnOfTheChosenNutrientAndTakesItsWordsAndColours) {
  for (const NutrientRow& row : kNutrientRows) {
    SCOPED_TRACE(row.heading);
    Build(row.column, {"60", "50", "40", "30", "20", "10"}, row.gekozen_stof);
    EXPECT_EQ(top5.lbl_soort, row.heading);
    // 60 of 210, 99.999 percent together: 28.571
    EXPECT_EQ(top5.lbl_piename[0], "Food 0\n[29%, 60" + Text(row.unit) + "]");
    ASSERT_EQ(top5.Graph_pie.size(), 6u);
    for (std::size_t i = 0; i < 6; ++i) {
      EXPECT_EQ(top5.Graph_pie[i].colour, row.colours[i]) << i;
      EXPECT_EQ(top5.lbl_piecolor[i], row.colours[i]) << i;
      EXPECT_EQ(top5.Graph_pie[i].index, i);
    }
  }
}

TEST_F(Top5Chart, LeavesTheRestALittleSmallerThanFiveEqualFoods) {
  BuildKcal({"100", "100", "100", "100", "100", "100"});
  ASSERT_EQ(top5.Graph_pie.size(), 6u);
  // 99.999 / 6 = 16.6665 each, and 0.1 between two.
  EXPECT_FLOAT_EQ(top5.Graph_pie[0].start, 0.0001F);
  EXPECT_NEAR(top5.Graph_pie[0].end, 16.6665, 1e-4);
  EXPECT_NEAR(top5.Graph_pie[1].end, 33.433, 1e-4);
  EXPECT_NEAR(top5.Graph_pie[4].end, 83.7325, 1e-4);
  EXPECT_EQ(top5.Graph_pie[5].start, top5.Graph_pie[4].end);
  EXPECT_EQ(top5.Graph_pie[5].end, 100.0F);
  EXPECT_EQ(top5.lbl_piename[5], "Overige consumpties\n[16% ]");
}

TEST_F(Top5Chart, KeepsTheOrderOfTheListAmongEqualFoods) {
  BuildKcal({"100", "100", "100", "100", "100", "100"});
  EXPECT_EQ(top5.lst_naam, (Texts{"Food 0", "Food 1", "Food 2", "Food 3", "Food 4", "Food 5"}));
}

TEST_F(Top5Chart, GivesSodiumBelowAGramATenthOfAPercent) {
  Build(SummaryColumn::sodium, {"0.500", "0.400", "0.300", "3.000", "0.200", "0.100"}, 5);
  // 3 of 4.5 grams: 66.666; the others count in the sum and have no share.
  EXPECT_EQ(top5.lbl_piename[0], "Food 3\n[67%, 3.000 gram]");
  EXPECT_EQ(top5.lbl_piename[1], "Food 0\n[%, 0.500 gram]");
  ASSERT_EQ(top5.Graph_pie.size(), 6u);
  for (std::size_t i = 1; i < 5; ++i) {
    EXPECT_NEAR(top5.Graph_pie[i].end - top5.Graph_pie[i].start, 0.1, 1e-4) << i;
  }
  EXPECT_EQ(top5.lbl_piename[5], "Overige consumpties\n[33% ]");  // 32.934
}

TEST_F(Top5Chart, ReadsACommaInTheSumButNotInTheOrder) {
  test.locale.separator = ",";
  // As whole numbers 1 and 1 and 2: the comma ends what the sort reads. The shares have it right.
  Build(SummaryColumn::sodium, {"1,200", "1,800", "2,000", "0,100", "0,900", "0,500"}, 5);
  EXPECT_EQ(top5.lst_waarden, (Texts{"2,000", "1,800", "1,200", "0,100", "0,900", "0,500"}));
  EXPECT_EQ(top5.lbl_piename[0], "Food 2\n[31%, 2,000 gram]");  // 2 of 6.5: 30.769
  EXPECT_EQ(top5.lbl_piename[1], "Food 1\n[28%, 1,800 gram]");  // 27.692
}

TEST_F(Top5Chart, GivesNoFoodAShareWhereAllHaveNothing) {
  BuildKcal({"0", "0", "0", "0", "0", "0"});
  EXPECT_TRUE(test.boxes.shown.empty());  // nothing is divided by the sum of 0
  EXPECT_EQ(top5.lst_percentage, std::vector<double>(6, 0.0));
  EXPECT_EQ(top5.lbl_piename[0], "Food 0\n[%, 0 Kcal]");
  EXPECT_EQ(top5.lbl_piename[5], "Overige consumpties\n[100% ]");  // 99.6
  // The first wedge would end before it begins.
  ASSERT_EQ(top5.Graph_pie.size(), 5u);
  EXPECT_EQ(top5.Graph_pie.front().index, 1u);
  EXPECT_TRUE(top5.lbl_piecolor[0]);
}

// By the double loop over the whole parts 1, 1, 3 and 0 the third comes first, then the second.
TEST_F(Top5Chart, MovesSharesUpPastAFoodOfExactlyOne) {
  test.locale.separator = ",";
  Build(SummaryColumn::sodium, {"1,500", "1,000", "3,000", "0,200", "0,300", "0,400", "0,500"}, 5);
  EXPECT_EQ(top5.lst_percentage.size(), 6u);
  EXPECT_EQ(top5.lbl_piename[0], "Food 2\n[43%, 3,000 gram]");  // 3 of 6.9: 43.478
  EXPECT_EQ(top5.lbl_piename[1], "Food 1\n[22%, 1,000 gram]");  // that of 1.5: 21.739
  EXPECT_EQ(top5.lbl_piename[2], "Food 0\n[%, 1,500 gram]");    // that of the first below 1
}

TEST_F(Top5Chart, StopsBeforeTheLegendWhereAShareIsMissing) {
  BuildKcal({"100", "300", "50", "400", "25", "125"});
  const auto legend = top5.lbl_piename;
  const auto pie = top5.Graph_pie;
  Build(SummaryColumn::fat_u, {"9", "1", "1", "8", "7", "6"}, 2);  // four shares for six foods
  EXPECT_EQ(top5.lbl_soort, "Pie chart for: (Fat, unsaturated)");
  EXPECT_EQ(top5.lst_percentage.size(), 4u);
  EXPECT_EQ(top5.lbl_piename, legend);
  EXPECT_EQ(top5.Graph_pie, pie);
}

TEST_F(Top5Chart, HidesTheNoticeBeforeItStops) {
  BuildKcal({"5"});
  Build(SummaryColumn::fat_u, {"9", "1", "1", "8", "7", "6"}, 2);
  EXPECT_FALSE(top5.lbl_leeg);
  EXPECT_TRUE(top5.Graph_pie.empty());
}

TEST_F(Top5Chart, CutsTheNameToThirtyCharacters) {
  SummaryRows rows = RowsWith(SummaryColumn::kcal, {"10", "20", "30", "40", "50", "60"});
  rows[5][SummaryColumn::food] = "Forty characters are longer than thirty.";
  rows[4][SummaryColumn::food] = Text(134, 'w');
  Bouw_Top5(test.program, AnalysisWindow::day_summary, rows, 1, top5);
  EXPECT_EQ(top5.lbl_piename[0], "Forty characters are longer th\n[29%, 60 Kcal]");
  EXPECT_EQ(top5.lbl_piename[1], Text(30, 'w') + "\n[24%, 50 Kcal]");
}

TEST_F(Top5Chart, ShowsANoticeWithFewerThanSixFoods) {
  BuildKcal({"100", "300", "50", "400", "25", "125"});
  const auto colours = top5.lbl_piecolor;
  BuildKcal({"100", "200", "300", "400", "500"});
  ASSERT_TRUE(top5.lbl_leeg);
  EXPECT_EQ(
      *top5.lbl_leeg,
      "BEWARE:\nThere are only 5 food items present.\nKelvora FOOD can't generate a top 5.\n\n"
      "Add more food items.");
  EXPECT_TRUE(top5.Graph_pie.empty());
  EXPECT_TRUE(top5.entries.empty());
  for (const Text& name : top5.lbl_piename) EXPECT_EQ(name, ": -");
  EXPECT_EQ(top5.lbl_piecolor, colours);  // of the pie before
}

TEST_F(Top5Chart, CountsOneFoodInTheNoticeHoweverOftenItWasEaten) {
  SummaryRows rows = RowsWith(SummaryColumn::kcal, {"600"});
  rows[0][SummaryColumn::count] = "6";
  Bouw_Top5(test.program, AnalysisWindow::day_summary, rows, 1, top5);
  ASSERT_TRUE(top5.lbl_leeg);
  EXPECT_NE(top5.lbl_leeg->find("There are only 1 food items present."), Text::npos);
}

TEST_F(Top5Chart, ChangesNothingWithoutRows) {
  BuildKcal({"100", "300", "50", "400", "25", "125"});
  const auto legend = top5.lbl_piename;
  const auto pie = top5.Graph_pie;
  Build(SummaryColumn::fat_u, {}, 2);
  EXPECT_EQ(top5.lbl_soort, "Pie chart for: (Energy, Kcal)");
  EXPECT_FALSE(top5.lbl_leeg);
  EXPECT_EQ(top5.lbl_piename, legend);
  EXPECT_EQ(top5.Graph_pie, pie);
}

TEST_F(Top5Chart, BeginsWithANoticeOfNoFoodsInTheWordsOfTheMoment) {
  BuildKcal({});
  ASSERT_TRUE(top5.lbl_leeg);
  EXPECT_NE(top5.lbl_leeg->find("There are only 0 food items present."), Text::npos);
  EXPECT_FALSE(top5.lbl_piecolor[0]);
  SpeakDutch();
  BuildKcal({});
  EXPECT_NE(top5.lbl_leeg->find("Deze dag telt maar 0 voedingsmiddel(en)."), Text::npos);
}

TEST_F(Top5Chart, CutsTheFifthWedgeAtTheWholeCircle) {
  BuildKcal({"20", "20", "20", "20", "20", "0"});  // 99.999 percent and four steps: 100.399
  ASSERT_EQ(top5.Graph_pie.size(), 5u);
  EXPECT_EQ(top5.Graph_pie.back().end, 100.0F);
  EXPECT_EQ(top5.lbl_piename[5], "Overige consumpties\n[% ]");
  EXPECT_TRUE(top5.lbl_piecolor[5]);
}

TEST_F(Top5Chart, SaysEachEntryInWords) {
  BuildKcal({"100", "300", "50", "400", "25", "125"});
  ASSERT_EQ(top5.entries.size(), 6u);
  EXPECT_EQ(top5.entries[0], (Top5Entry{"Food 3", "400 Kcal", "40%"}));
  EXPECT_EQ(top5.entries[5], (Top5Entry{"Overige consumpties", "", "2%"}));
  BuildKcal({"0", "0", "0", "0", "0", "0"});
  EXPECT_EQ(top5.entries[0].share, "0%");
}

TEST_F(Top5Chart, ReportsASumThatNoNumberHolds) {
  const Text huge = "3" + Text(38, '0');
  BuildKcal({huge, huge, "3", "4", "5", "6"});
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#F9-10")) << test.boxes.shown[0].text;
}

TEST_F(Top5Chart, ReportsAShareOfNothing) {
  BuildKcal({"5", "-5", "0", "0", "0", "0"});
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#F9-10")) << test.boxes.shown[0].text;
}

TEST_F(Top5Chart, TakesFoodsWithoutANumberAsNothing) {
  // By the double loop the foods without one come as 0, 4, 2.
  BuildKcal({"", "200", "", "100", "", "300"});
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(top5.lbl_piename[0], "Food 5\n[50%, 300 Kcal]");
  EXPECT_EQ(top5.lbl_piename[3], "Food 0\n[%,  Kcal]");
}

TEST_F(Top5Chart, CountsTheNewerOfTwoRunsThatMeet) {
  const SummaryRows old_rows = RowsWith(SummaryColumn::kcal, {"1", "2", "3", "4", "5", "6"});
  const SummaryRows new_rows = RowsWith(SummaryColumn::fat_u, {"60", "50", "40", "30", "20", "10"});
  bool met = false;
  const Pause meet = [&] {
    if (!met) {
      met = true;
      Bouw_Top5(test.program, AnalysisWindow::day_summary, new_rows, 2, top5);
    }
    return false;
  };
  BuildTop5(old_rows, {Top5WordsOf(AnalysisWindow::day_summary), 1}, test.program.texts, ".", meet,
            top5);
  EXPECT_EQ(top5.lbl_soort, "Pie chart for: (Fat, unsaturated)");
  EXPECT_EQ(top5.lbl_piename[0], "Food 0\n[29%, 60 gram]");
  EXPECT_EQ(top5.lst_waarden.size(), 6u);
}

TEST_F(Top5Chart, LetsOtherEventsRunWhileALongDayIsSorted) {
  BuildKcal({"100", "300", "50", "400", "25", "125"});
  EXPECT_EQ(test.events.yields, 0);
  BuildKcal(std::vector<Text>(1001, "100"));
  EXPECT_EQ(test.events.yields, 1001);
}

TEST(Sectors, StandInTheMiddleWithTheShorterHalfAsRadius) {
  const Wedge quarter{0, {}, 0.0001F, 25};
  const Sector wide = SectorOf(quarter, {5000, 3000});
  EXPECT_EQ(wide.centre_x, 2500);
  EXPECT_EQ(wide.centre_y, 1500);
  EXPECT_EQ(wide.radius, 1360);
  EXPECT_EQ(SectorOf(quarter, {3000, 5000}).radius, 1360);
}

TEST(Sectors, HaveNoRadiusInASquare) {
  EXPECT_EQ(SectorOf({}, {3000, 3000}).radius, 0);
  // Nor where the halves round to the same, and where no room is left.
  EXPECT_EQ(SectorOf({}, {3000, 3001}).radius, 0);
  EXPECT_EQ(SectorOf({}, {200, 5000}).radius, 0);
}

TEST(Sectors, RoundHalvesToTheEvenNumber) {
  EXPECT_EQ(SectorOf({}, {3001, 9000}).centre_x, 1500);
  EXPECT_EQ(SectorOf({}, {3003, 9000}).centre_x, 1502);
  EXPECT_EQ(SectorOf({}, {9000, 3003}).centre_y, 1502);
}

TEST(Sectors, TurnCounterClockwiseFromTheEast) {
  const Sector sector = SectorOf({0, {}, 25, 50}, {5000, 3000});
  EXPECT_NEAR(sector.start_angle, std::numbers::pi / 2, 1e-6);
  EXPECT_NEAR(sector.end_angle, std::numbers::pi, 1e-6);
}

TEST(Sectors, FailBeyondTheLargestPicture) {
  TestProgram test;
  EXPECT_TRUE(Teken_Taartpunt(test.program, AnalysisWindow::day_summary, {}, {65534, 3000}));
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_FALSE(Teken_Taartpunt(test.program, AnalysisWindow::day_summary, {}, {65536, 3000}));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#F9-11")) << test.boxes.shown[0].text;
}

}  // namespace
}  // namespace kelvora
