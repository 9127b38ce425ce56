// The days of the trend chart for those who read it: where each stands, which is the nearest to a
// place, which dates have room under the chart, and what a day says in words.
//
// Places are those of all days. A line with fewer entries than there are days is stretched in the
// chart, per file, as is meant; the words of a day are its own all the same.
#pragma once

#include <optional>
#include <vector>

#include "analysis/trend.h"

namespace kelvora {

// How far from the left edge each day stands, in twips; empty where no line is drawn.
[[nodiscard]] std::vector<float> PlacesOfDays(const DaySeries& days, const TimeLine& time_line,
                                              float width);

// The day that stands nearest, the first of several; none without days.
[[nodiscard]] std::optional<std::size_t> NearestDay(const std::vector<float>& places, float x);

// The date as users of the unit system (`opt_system`) write it; a key that is no date as it stands.
[[nodiscard]] Text DateOfDay(std::string_view key, std::string_view opt_system);

struct DateLabel {
  std::size_t day;
  float left;
  bool operator==(const DateLabel&) const = default;
};

// Which days have their date under the chart: the first, the last and as many between as have room,
// each centred below its day but for these two, which keep to the edges. In twips.
[[nodiscard]] std::vector<DateLabel> DatesThatFit(const std::vector<float>& places, float width,
                                                  float label_width, float gap);

// The date of a day, and behind it the value of each ticked line with its unit, a text each, in the
// units that the settings ask for. A missing value is a dash.
[[nodiscard]] std::vector<Text> WordsOfDay(Program& program, const DaySeries& days,
                                           const TrendTicks& ticks, std::size_t day);

}  // namespace kelvora
