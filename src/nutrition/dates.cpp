#include "nutrition/dates.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "core/failure.h"

namespace kelvora {

namespace {

// Six digits as three numbers of two.
std::array<int, 3> PairsOf(std::string_view digits) {
  const bool six_digits = digits.size() == 6 &&
                          std::ranges::all_of(digits, [](char c) { return c >= '0' && c <= '9'; });
  if (!six_digits) ThrowSystemError(std::errc::invalid_argument);
  const auto pair = [digits](std::size_t at) {
    return (digits[at] - '0') * 10 + (digits[at + 1] - '0');
  };
  return {pair(0), pair(2), pair(4)};
}

Text WithoutMarks(std::string_view stored_date) {
  Text digits(stored_date);
  std::erase_if(digits, [](char c) { return c == '-' || c == '/' || c == '\\' || c == ' '; });
  return digits;
}

}  // namespace

StoredDate ParseStoredDate(std::string_view text) {
  const auto [day, month, year] = PairsOf(WithoutMarks(text));
  return {day, month, year};
}

Text DateKeyOf(std::string_view stored_date) {
  const Text digits = WithoutMarks(stored_date);
  const Text day_and_month = digits.substr(0, 4);
  const auto last_two = [](const Text& text) {
    return text.substr(text.size() - std::min<std::size_t>(2, text.size()));
  };
  return last_two(digits) + last_two(day_and_month) + day_and_month.substr(0, 2);
}

int DaysOfYearMonthDay(std::string_view text) {
  using namespace std::chrono;
  const auto [years, months, days] = PairsOf(text);
  const year_month_day date{year(2000 + years), month(static_cast<unsigned>(months)),
                            day(static_cast<unsigned>(days))};
  if (!date.ok()) ThrowSystemError(std::errc::invalid_argument);
  return static_cast<int>(sys_days(date).time_since_epoch().count());
}

LongDateOrder DateOrder(const Locale& locale) {
  // The first letter of day, month and year; a day of three letters or more is a weekday.
  Text pattern = locale.LongDatePattern();
  pattern = ReplaceAll(ReplaceAll(pattern, "dddd", ""), "ddd", "");
  const std::size_t day = pattern.find('d');
  const std::size_t month = pattern.find('M');
  const std::size_t year = pattern.find('y');
  if (year < month) return LongDateOrder::year_month_day;
  return month < day ? LongDateOrder::month_day_year : LongDateOrder::day_month_year;
}

Text ShortDateOf(const LocalTime& time, const Locale& locale) {
  Text date = locale.ShortDate(time);
  if (!date.empty()) return date;
  return TwoDigits(time.day) + "-" + TwoDigits(time.month) + "-" + std::to_string(time.year);
}

Text ShortTimeOf(const LocalTime& time, const Locale& locale) {
  Text shown = locale.ShortTime(time);
  return shown.empty() ? TwoDigits(time.hour) + ":" + TwoDigits(time.minute) : shown;
}

Text TwoDigits(int number) {
  return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

Text FormatStoredDate(std::string_view text, std::string_view opt_system) {
  if (text.empty()) return {};
  const auto [day, month, year] = ParseStoredDate(text);
  const bool month_first = opt_system == "1";
  return TwoDigits(month_first ? month : day) + "-" + TwoDigits(month_first ? day : month) + "-" +
         TwoDigits(year);
}

}  // namespace kelvora
