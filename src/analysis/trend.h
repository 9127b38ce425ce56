// The trend chart: what stands in it, as lists of line segments and labels, worked out from the
// series of the days. Nothing is fitted or smoothed: a trend line joins the values of the days,
// each series scaled to its own largest value.
//
// Coordinates are twips, single precision, origin top left, y down. They are worked out in double
// precision from numbers of any kind and put into a single once. The lists are in the order in
// which the lines are laid over each other, and may reach beyond the picture.
#pragma once

#include <array>
#include <vector>

#include "analysis/colour.h"
#include "analysis/day_series.h"
#include "core/program.h"
#include "language/trend_texts.h"
#include "nutrition/units.h"

namespace kelvora {

inline constexpr Colour kChartGround{182, 202, 202};
inline constexpr Colour kChartGrey{128, 128, 128};

// A tick box, and the line that it shows.
struct TrendLine {
  std::size_t series;  // index in DaySeries
  Colour colour;
  TextId caption;
  TextId tip;
  bool at_start;  // ticked when the window opens
};

// By the index of the box. The body weight stands out of the order of the series, and kilocalories
// have no box, since they follow the kilojoules; both are meant.
inline constexpr std::array kTrendLines = {
    TrendLine{0, {0, 0, 0}, trend_text::kLineFoodWeight, trend_text::kTipLineFoodWeight, true},
    TrendLine{1, {0, 80, 200}, trend_text::kLineEnergy, trend_text::kTipLineEnergy, true},
    TrendLine{
        8, {255, 255, 255}, trend_text::kLineBodyWeight, trend_text::kTipLineBodyWeight, true},
    TrendLine{3,
              {236, 94, 8},
              trend_text::kLineUnsaturatedFat,
              trend_text::kTipLineUnsaturatedFat,
              false},
    TrendLine{
        4, {215, 31, 1}, trend_text::kLineSaturatedFat, trend_text::kTipLineSaturatedFat, false},
    TrendLine{5,
              {237, 239, 39},
              trend_text::kLineCarbohydrates,
              trend_text::kTipLineCarbohydrates,
              false},
    TrendLine{6, {226, 234, 186}, trend_text::kLineProtein, trend_text::kTipLineProtein, false},
    TrendLine{7, {65, 234, 6}, trend_text::kLineSodium, trend_text::kTipLineSodium, false},
};

struct TrendTicks {
  std::array<bool, kTrendLines.size()> Teken_lijn = [] {
    std::array<bool, kTrendLines.size()> ticked{};
    for (std::size_t i = 0; i < ticked.size(); ++i) ticked[i] = kTrendLines[i].at_start;
    return ticked;
  }();
  bool Teken_dag = true;
};

// How the days lie behind each other.
struct TimeLine {
  float tijdlijn_stand = 0;  // kPerFile or kPerDate; with any other nothing is drawn
  int span = 0;              // days from the first date to the last
  std::vector<int> since;    // per date: how many days each lies behind the first
};
inline constexpr float kPerFile = 0;
inline constexpr float kPerDate = 1;

// A date that is no date, and one too far away, count as 0 days, and a box says so.
[[nodiscard]] TimeLine TimeLineOf(const DaySeries& days, float tijdlijn_stand,
                                  const UnitContext& context);

// How wide a day is per date, in a picture of that width: worked out from the shortest text of the
// width.
[[nodiscard]] float TwipsPerDay(const TimeLine& time_line, float width);

struct TrendSize {
  float width = 0;
  float height = 0;
};

enum class SegmentKind { grid, day, series };

struct TrendSegment {
  SegmentKind kind;
  Colour colour;
  float x1, y1, x2, y2;
  bool operator==(const TrendSegment&) const = default;
};

struct ScaleLabel {
  float x, y;  // where its top left corner is printed
  Text text;
  bool operator==(const ScaleLabel&) const = default;
};

struct TrendChart {
  std::vector<TrendSegment> Pic_Grafiek;
  std::vector<TrendSegment> Pic_Grafiek_top;  // the strip above, which has the day lines alone
  std::vector<ScaleLabel> Pic_txt;
};

// Makes the whole chart anew, for a picture of that size. Without days nothing changes. A failure
// shows "#F12-16", one of a single line "#F12-17"; the others are drawn all the same.
void Teken_Grafiek(Program& program, const DaySeries& days, const TimeLine& time_line,
                   const TrendTicks& ticks, TrendSize size, TrendChart& chart);

}  // namespace kelvora
