// Series of days for the tests of the trend chart.
#pragma once

#include "analysis/day_series.h"

namespace kelvora {

// Days of these dates; every series is empty still.
inline DaySeries DaysOfDates(std::vector<Text> keys) {
  DaySeries days;
  days.keys = std::move(keys);
  for (auto& texts : days.L_data_1) texts.assign(days.keys.size(), "");
  return days;
}

// A date for each of so many days from the first of January 2000 on, as keys.
inline std::vector<Text> ConsecutiveKeys(int count) {
  constexpr int kLengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const auto two = [](int number) {
    return Text{static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
  };
  std::vector<Text> keys;
  for (int year = 0, month = 0, day = 0; static_cast<int>(keys.size()) < count;) {
    keys.push_back(two(year) + two(month + 1) + two(day + 1));
    const int length = kLengths[month] + (month == 1 && year % 4 == 0 ? 1 : 0);
    if (++day < length) continue;
    day = 0;
    if (++month < 12) continue;
    month = 0;
    ++year;
  }
  return keys;
}

}  // namespace kelvora
