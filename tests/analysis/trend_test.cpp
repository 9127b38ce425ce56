// The segments and labels of the trend chart. Expected values by hand: in a picture of 900 by 600
// twips a tenth of the height is 60, a value at p percent stands at 6 p, and single places that are
// no whole numbers are the nearest singles of the fractions beside them.
#include "analysis/trend.h"

#include <gtest/gtest.h>

#include "analysis/day_series_of.h"
#include "nutrition/totals.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr TrendSize kSize{900, 600};
constexpr Colour kBlue{0, 80, 200};

TrendSegment Piece(float x1, float y1, float x2, float y2, Colour colour = kBlue) {
  return {SegmentKind::series, colour, x1, y1, x2, y2};
}
TrendSegment DayLine(float x) {
  return {SegmentKind::day, {128, 128, 128}, x, 0, x, 600};
}

std::vector<TrendSegment> Of(SegmentKind kind, const std::vector<TrendSegment>& segments) {
  std::vector<TrendSegment> found;
  std::ranges::copy_if(segments, std::back_inserter(found),
                       [kind](const TrendSegment& segment) { return segment.kind == kind; });
  return found;
}

class Trend : public testing::Test {
 protected:
  // Only box 1 is ticked, and Teken_dag with it only if asked for.
  Trend() { Tick({1}); }
  void Tick(std::initializer_list<std::size_t> lines, bool Teken_dag = false) {
    ticks.Teken_lijn.fill(false);
    for (const std::size_t line : lines) ticks.Teken_lijn[line] = true;
    ticks.Teken_dag = Teken_dag;
  }
  void Draw(float tijdlijn_stand, TrendSize size = kSize) {
    const TimeLine line = TimeLineOf(days, tijdlijn_stand, UnitsOf(test.program));
    Teken_Grafiek(test.program, days, line, ticks, size, chart);
  }
  [[nodiscard]] std::vector<TrendSegment> Series() const {
    return Of(SegmentKind::series, chart.Pic_Grafiek);
  }
  [[nodiscard]] std::vector<TrendSegment> DayLines() const {
    return Of(SegmentKind::day, chart.Pic_Grafiek);
  }
  [[nodiscard]] bool ShownCode(std::string_view code) const {
    return std::ranges::any_of(test.boxes.shown,
                               [code](const Box& box) { return box.text.ends_with(code); });
  }

  TestProgram test;
  DaySeries days;
  TrendTicks ticks;
  TrendChart chart;
};

TEST_F(Trend, HasEightLinesInTheirColours) {
  struct Row {
    std::size_t series;
    Colour colour;
    const char* caption;
    bool at_start;
  };
  const Row rows[] = {
      {0, {0, 0, 0}, "Food weight ", true},       {1, {0, 80, 200}, "Energy, Kj / Kcal", true},
      {8, {255, 255, 255}, "Your weight", true},  {3, {236, 94, 8}, "Fat, unsaturated", false},
      {4, {215, 31, 1}, "Fat, saturated", false}, {5, {237, 239, 39}, "Carbohydrates", false},
      {6, {226, 234, 186}, "Protein", false},     {7, {65, 234, 6}, "Sodium", false}};
  ASSERT_EQ(kTrendLines.size(), std::size(rows));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(kTrendLines[i].series, rows[i].series);
    EXPECT_EQ(kTrendLines[i].colour, rows[i].colour);
    EXPECT_EQ(test.program.texts[kTrendLines[i].caption], rows[i].caption);
    EXPECT_EQ(TrendTicks{}.Teken_lijn[i], rows[i].at_start);
  }
  EXPECT_TRUE(TrendTicks{}.Teken_dag);
  EXPECT_EQ(kChartGround, (Colour{182, 202, 202}));
}

TEST_F(Trend, DrawsTheGridWithItsPercentages) {
  days = DaysOfDates({"040301", "040308"});
  Draw(kPerFile);
  const auto grid = Of(SegmentKind::grid, chart.Pic_Grafiek);
  ASSERT_EQ(grid.size(), 10u);
  for (int i = 1; i <= 10; ++i) {
    const auto y = static_cast<float>(60 * i);
    EXPECT_EQ(grid[static_cast<std::size_t>(i) - 1],
              (TrendSegment{SegmentKind::grid, {128, 128, 128}, 0, y, 900, y}));
  }
  const char* const percentages[] = {"90%", "80%", "70%", "60%", "50%", "40%", "30%", "20%", "10%"};
  ASSERT_EQ(chart.Pic_txt.size(), 9u);
  for (int i = 1; i <= 9; ++i) {
    EXPECT_EQ(chart.Pic_txt[static_cast<std::size_t>(i) - 1],
              (ScaleLabel{100, static_cast<float>(60 * i - 100), percentages[i - 1]}));
  }
}

TEST_F(Trend, PutsTheGridAtSingles) {
  days = DaysOfDates({"040301", "040308"});
  Draw(kPerFile, {900, 1003});
  const auto grid = Of(SegmentKind::grid, chart.Pic_Grafiek);
  EXPECT_EQ(grid[0].y1, 100.3F);  // 1003 / 10
  EXPECT_EQ(grid[6].y1, 702.1F);  // 7021 / 10
  EXPECT_EQ(grid[9].y1, 1003);
}

// 1000 and 2000 Kj: half of the largest, and the largest.
TEST_F(Trend, DrawsTwoDaysAWeekApart) {
  days = DaysOfDates({"040301", "040308"});
  days.L_data_2[1] = {50, 0};
  Draw(kPerDate);
  // 900 / 7 is 128.571428...; its single is 128.57142639..., and seven times that a little less
  // than 900: 899.99998..., of which 900 is the nearest single (the next one below is 899.99994).
  EXPECT_EQ(Series(), (std::vector{Piece(0, 300, 900, 0)}));
  Draw(kPerFile);
  EXPECT_EQ(Series(), (std::vector{Piece(0, 300, 900, 0), Piece(900, 0, 1800, 0)}));
}

TEST_F(Trend, SpacesFilesEquallyAndDatesByTheirDistance) {
  days = DaysOfDates({"040301", "040302", "040310"});
  days.L_data_2[1] = {100, 25, 0};
  Draw(kPerFile);
  EXPECT_EQ(Series(), (std::vector{Piece(0, 600, 450, 150), Piece(450, 150, 900, 0),
                                   Piece(900, 0, 1350, 0)}));
  Draw(kPerDate);
  EXPECT_EQ(Series(), (std::vector{Piece(0, 600, 100, 150), Piece(100, 150, 900, 0)}));
}

// 99 is 2099 to the reckoning of days, so the day of the year 00 lies 36,524 days before it; that
// is more than counts as days.
TEST_F(Trend, CountsYearsInTwoDigits) {
  days = DaysOfDates({"000101", "991231"});
  days.L_data_2[1] = {0, 100};
  Draw(kPerDate);
  EXPECT_TRUE(Series().empty());
  EXPECT_TRUE(ShownCode("#FF11-9"));
  days = DaysOfDates({"031231", "040101"});
  days.L_data_2[1] = {0, 100};
  Draw(kPerDate);
  EXPECT_EQ(Series(), (std::vector{Piece(0, 0, 900, 600)}));
}

TEST_F(Trend, DrawsDayLinesPerFileForAllDaysButTheFirst) {
  days = DaysOfDates({"040301", "040302", "040310"});
  days.L_data_2[1] = {100, 25, 0};
  Tick({1}, true);
  Draw(kPerFile);
  EXPECT_EQ(DayLines(), (std::vector{DayLine(450), DayLine(900)}));
  EXPECT_EQ(chart.Pic_Grafiek_top, DayLines());
  // In front of their line, behind the grid.
  EXPECT_EQ(chart.Pic_Grafiek[9].kind, SegmentKind::grid);
  EXPECT_EQ(chart.Pic_Grafiek[10].kind, SegmentKind::day);
  EXPECT_EQ(chart.Pic_Grafiek[12].kind, SegmentKind::series);
}

TEST_F(Trend, DrawsDayLinesPerDateForAllDaysButTheLast) {
  days = DaysOfDates({"040301", "040302", "040310"});
  days.L_data_2[1] = {100, 25, 0};
  Tick({1}, true);
  Draw(kPerDate);
  EXPECT_EQ(DayLines(), (std::vector{DayLine(0), DayLine(100)}));
  EXPECT_EQ(chart.Pic_Grafiek_top, DayLines());
  // Each behind its piece of the line.
  EXPECT_EQ(chart.Pic_Grafiek[10], Piece(0, 600, 100, 150));
  EXPECT_EQ(chart.Pic_Grafiek[11], DayLine(0));
}

TEST_F(Trend, NeedsThreeEntriesOfTheFirstSeriesForDayLinesPerFile) {
  days = DaysOfDates({"040301", "040308"});
  days.L_data_2[1] = {50, 0};
  Tick({1}, true);
  Draw(kPerFile);
  EXPECT_TRUE(DayLines().empty());
  Draw(kPerDate);
  EXPECT_EQ(DayLines(), (std::vector{DayLine(0)}));
}

TEST_F(Trend, DrawsNoDayLinesUnlessTheyAreTicked) {
  days = DaysOfDates({"040301", "040302", "040310"});
  days.L_data_2[1] = {100, 25, 0};
  for (const float stand : {kPerFile, kPerDate}) {
    Draw(stand);
    EXPECT_TRUE(DayLines().empty());
    EXPECT_TRUE(chart.Pic_Grafiek_top.empty());
  }
}

TEST_F(Trend, DrawsDayLinesOnceForEveryTickedLine) {
  days = DaysOfDates({"040301", "040302", "040310"});
  days.L_data_2[1] = days.L_data_2[3] = {100, 25, 0};
  Tick({1, 3}, true);
  Draw(kPerFile);
  EXPECT_EQ(DayLines().size(), 4u);
  Tick({}, true);
  Draw(kPerFile);
  EXPECT_TRUE(DayLines().empty());
}

// The line stretches over the whole width per file, and stops at its last entry per date.
TEST_F(Trend, DrawsAShorterSeries) {
  days = DaysOfDates({"040301", "040302", "040303", "040310"});
  days.L_data_2[1] = {0, 50, 100};
  Draw(kPerFile);
  EXPECT_EQ(Series(), (std::vector{Piece(0, 0, 450, 300), Piece(450, 300, 900, 600),
                                   Piece(900, 600, 1350, 600)}));
  Draw(kPerDate);
  EXPECT_EQ(Series(), (std::vector{Piece(0, 0, 100, 300), Piece(100, 300, 200, 600)}));
}

TEST_F(Trend, DrawsNothingOfASeriesOfOneEntryOrNone) {
  days = DaysOfDates({"040301", "040308"});
  for (const std::vector<double>& heights : {std::vector<double>{}, std::vector<double>{50}}) {
    days.L_data_2[1] = heights;
    Tick({1}, true);
    for (const float stand : {kPerFile, kPerDate}) {
      Draw(stand);
      EXPECT_EQ(chart.Pic_Grafiek.size(), 10u);  // the grid
    }
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Trend, LaysASeriesOfZerosOnTheBottomEdge) {
  days = DaysOfDates({"040301", "040308"});
  days.L_data_2[1] = {100, 100};
  Draw(kPerDate);
  EXPECT_EQ(Series(), (std::vector{Piece(0, 600, 900, 600)}));
}

TEST_F(Trend, LaysLaterLinesOverEarlierOnes) {
  days = DaysOfDates({"040301", "040308"});
  for (auto& heights : days.L_data_2) heights = {0, 100};
  Tick({0, 1, 2, 3, 4, 5, 6, 7});
  Draw(kPerDate);
  const auto lines = Series();
  ASSERT_EQ(lines.size(), 8u);
  for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(lines[i].colour, kTrendLines[i].colour) << i;
}

TEST_F(Trend, TakesTheSeriesOfEachBox) {
  days = DaysOfDates({"040301", "040308"});
  for (std::size_t series = 0; series < kSeriesCount; ++series) {
    days.L_data_2[series] = {static_cast<double>(10 * series), 0};
  }
  const float heights[] = {0, 60, 480, 180, 240, 300, 360, 420};  // 6 x 10 x the series
  for (std::size_t i = 0; i < kTrendLines.size(); ++i) {
    Tick({i});
    Draw(kPerDate);
    ASSERT_EQ(Series().size(), 1u);
    EXPECT_EQ(Series()[0].y1, heights[i]) << i;
  }
}

TEST_F(Trend, DrawsNothingOfDaysOfOneDate) {
  days = DaysOfDates({"040301", "040301", "040301"});
  days.L_data_2[1] = {0, 50, 100};
  Tick({1}, true);
  for (const float stand : {kPerFile, kPerDate}) {
    Draw(stand);
    EXPECT_EQ(chart.Pic_Grafiek.size(), 10u);
    EXPECT_EQ(chart.Pic_txt.size(), 9u);
  }
}

TEST_F(Trend, DrawsTwoDaysOfOneDateAboveEachOtherPerDate) {
  days = DaysOfDates({"040301", "040304", "040304", "040310"});
  days.L_data_2[1] = {0, 50, 100, 0};
  Draw(kPerDate);
  EXPECT_EQ(Series(), (std::vector{Piece(0, 0, 300, 300), Piece(300, 300, 300, 600),
                                   Piece(300, 600, 900, 0)}));
}

TEST_F(Trend, DrawsNoLineForAnotherTimeLine) {
  days = DaysOfDates({"040301", "040302", "040310"});
  days.L_data_2[1] = {100, 25, 0};
  Tick({1}, true);
  for (const float stand : {2.0F, -1.0F, 0.5F}) {
    Draw(stand);
    EXPECT_EQ(chart.Pic_Grafiek.size(), 10u) << stand;
  }
}

TEST_F(Trend, KeepsTheChartWithoutDays) {
  days = DaysOfDates({"040301", "040308"});
  days.L_data_2[1] = {50, 0};
  Draw(kPerFile);
  const auto before = chart.Pic_Grafiek;
  days = {};
  Draw(kPerFile);
  EXPECT_EQ(chart.Pic_Grafiek, before);
}

// "310231" is the 31st of February 2031 written by day: no date, 0 days behind the first.
TEST_F(Trend, CountsADateThatIsNoneAsTheFirstDay) {
  days = DaysOfDates({"040301", "040231", "040310"});
  days.L_data_2[1] = {0, 50, 100};
  Draw(kPerDate);
  EXPECT_EQ(Series(), (std::vector{Piece(0, 0, 0, 300), Piece(0, 300, 900, 600)}));
  EXPECT_TRUE(ShownCode("#FF11-9"));
  EXPECT_EQ(test.boxes.shown.size(), 1u);
}

TEST_F(Trend, DrawsNothingWhereTheFirstDateIsNone) {
  days = DaysOfDates({"abcdef", "040310"});
  days.L_data_2[1] = {0, 50};
  Draw(kPerFile);
  EXPECT_TRUE(Series().empty());
  EXPECT_TRUE(ShownCode("#FF11-9"));
}

// Dagen_Tussen answers a text of another length than six with nothing, without a box.
TEST_F(Trend, DrawsNothingOfDatesOfAnotherLength) {
  days = DaysOfDates({"04031", "040310"});
  days.L_data_2[1] = {0, 50};
  Draw(kPerFile);
  EXPECT_TRUE(Series().empty());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Trend, TellsOfALineThatHasNoPlaceAndDrawsTheOthers) {
  days = DaysOfDates({"040301", "040308"});
  days.L_data_2[1] = {0, -1e300};
  days.L_data_2[3] = {50, 0};
  Tick({1, 3});
  Draw(kPerDate);
  EXPECT_TRUE(ShownCode("#F12-17"));
  EXPECT_EQ(Series(), (std::vector{Piece(0, 300, 900, 0, {236, 94, 8})}));
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(Trend, TellsOfAChartThatHasNoPlace) {
  days = DaysOfDates({"040301", "040308"});
  Draw(kPerFile, {900, std::numeric_limits<float>::infinity()});
  EXPECT_TRUE(ShownCode("#F12-16"));
}

TEST_F(Trend, ShowsTheBusyCursorMeanwhileOnly) {
  days = DaysOfDates({"040301", "040308"});
  Draw(kPerFile);
  EXPECT_FALSE(test.pointer.waiting);
}

// The shortest text of the single 10500.1 is "10500.1", and a third of that is 3500.0333..., whose
// single is 3500.03344...; the single itself is 10500.0996..., a third of it 3500.0332..., with the
// single 3500.0332.
TEST_F(Trend, MeasuresADayByTheShortestTextOfTheWidth) {
  days = DaysOfDates({"040301", "040304"});
  const TimeLine line = TimeLineOf(days, kPerDate, UnitsOf(test.program));
  EXPECT_EQ(TwipsPerDay(line, 10500.1F), 3500.033447265625F);
}

TEST_F(Trend, AsksEachDateOnceWhateverIsDrawn) {
  days = DaysOfDates({"040301", "040302", "040310"});
  const TimeLine per_date = TimeLineOf(days, kPerDate, UnitsOf(test.program));
  EXPECT_EQ(per_date.span, 9);
  EXPECT_EQ(per_date.since, (std::vector{0, 1, 9}));
  const TimeLine per_file = TimeLineOf(days, kPerFile, UnitsOf(test.program));
  EXPECT_EQ(per_file.span, 9);
  EXPECT_TRUE(per_file.since.empty());
}

}  // namespace
}  // namespace kelvora
