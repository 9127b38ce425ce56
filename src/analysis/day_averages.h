// What is worked out of the series of all days: where each day stands in the chart, and what the
// days come to on average.
#pragma once

#include <optional>

#include "analysis/day_series.h"
#include "core/views.h"

namespace kelvora {

// Fills the heights of one series from its fields, up to the first that is empty. The largest value
// stands at 0, zero at 100; a series of zeros counts its largest as 1. Double precision, and each
// height as its shortest decimal text would be read. Throws std::system_error for a value that no
// number can hold; the heights before it stay.
void ConvertPercentages(DaySeries& series, std::size_t index);

// The average day, in the order of the requirements; none without days. A field counts if it comes
// behind "0" as a text, so an empty one, "0" and negative ones don't; every day is divided by.
// Single precision, step by step. Throws std::system_error for a sum that a single can't hold.
[[nodiscard]] std::optional<DayTotals> AveragesOf(const DaySeries& series);

}  // namespace kelvora
