// Pieces and day lines of the trend chart against tests/oracles/make_trend_lines.py.
#include <gtest/gtest.h>

#include "analysis/day_series_of.h"
#include "analysis/trend.h"
#include "nutrition/totals.h"
#include "oracles/table.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

// The pieces between the marks; none of "-".
std::vector<Text> Parted(const std::string& text, char mark) {
  if (text == "-") return {};
  std::vector<Text> pieces(1);
  for (const char c : text) {
    if (c == mark) {
      pieces.emplace_back();
    } else {
      pieces.back() += c;
    }
  }
  return pieces;
}

float SingleOf(const std::string& text) {
  return static_cast<float>(NumberOf(text));
}

std::vector<TrendSegment> PiecesOf(const std::string& text, Colour colour) {
  std::vector<TrendSegment> pieces;
  for (const Text& piece : Parted(text, ';')) {
    const std::vector<Text> ends = Parted(piece, ' ');
    EXPECT_EQ(ends.size(), 4u);
    pieces.push_back({SegmentKind::series, colour, SingleOf(ends[0]), SingleOf(ends[1]),
                      SingleOf(ends[2]), SingleOf(ends[3])});
  }
  return pieces;
}

TEST(TrendOracle, AgreesOnPiecesAndDayLines) {
  constexpr std::size_t kLine = 5;
  TestProgram test;
  for (const TableRow& row :
       ReadTable("trend_lines.tsv", "stand width height keys heights pieces days")) {
    SCOPED_TRACE(row[0] + " " + row[3] + " " + row[4]);
    DaySeries days = DaysOfDates(Parted(row[3], ';'));
    for (const Text& height : Parted(row[4], ';')) {
      days.L_data_2[kTrendLines[kLine].series].push_back(NumberOf(height));
    }
    TrendTicks ticks;
    ticks.Teken_lijn.fill(false);
    ticks.Teken_lijn[kLine] = true;
    TrendChart chart;
    const TrendSize size{SingleOf(row[1]), SingleOf(row[2])};
    Teken_Grafiek(test.program, days, TimeLineOf(days, SingleOf(row[0]), UnitsOf(test.program)),
                  ticks, size, chart);
    std::vector<TrendSegment> pieces, day_lines;
    for (const TrendSegment& segment : chart.Pic_Grafiek) {
      if (segment.kind == SegmentKind::series) pieces.push_back(segment);
      if (segment.kind == SegmentKind::day) day_lines.push_back(segment);
    }
    EXPECT_EQ(pieces, PiecesOf(row[5], kTrendLines[kLine].colour));
    std::vector<TrendSegment> expected_days;
    for (const Text& x : Parted(row[6], ';')) {
      expected_days.push_back(
          {SegmentKind::day, kChartGrey, SingleOf(x), 0, SingleOf(x), size.height});
    }
    EXPECT_EQ(day_lines, expected_days);
    EXPECT_EQ(chart.Pic_Grafiek_top, day_lines);
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

}  // namespace
}  // namespace kelvora
