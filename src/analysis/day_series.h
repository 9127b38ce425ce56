#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "core/text.h"

namespace kelvora {

inline constexpr std::size_t kSeriesCount = 9;

// What the days of a user make over time: nine series, one entry a day, days in the order of their
// dates. The series, by index: 0 weight of the food, 1 kJ, 2 kcal, 3 unsaturated fat, 4 saturated
// fat, 5 carbohydrates, 6 protein, 7 sodium (grams), 8 body weight.
struct DaySeries {
  // A date of each day as six digits, year, month, day ("030312"), ascending; equal dates stand
  // twice (`lst_dates_sorted`).
  std::vector<Text> keys;
  // The fields as the day files hold them, points for commas, "" where one is missing; one entry a
  // day each.
  std::array<std::vector<Text>, kSeriesCount> L_data_1;
  // Their places in the chart, from 0 (the largest value of the series, at the top) to 100 (zero,
  // at the bottom). A series ends at its first empty field, so it may have fewer entries than
  // there are days.
  std::array<std::vector<double>, kSeriesCount> L_data_2;
};

}  // namespace kelvora
