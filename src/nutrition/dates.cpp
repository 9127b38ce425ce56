#include "nutrition/dates.h"

#include <algorithm>
#include <stdexcept>

namespace kelvora {

StoredDate ParseStoredDate(std::string_view text) {
  Text digits(text);
  std::erase_if(digits, [](char c) { return c == '-' || c == '/' || c == '\\' || c == ' '; });
  const bool six_digits = digits.size() == 6 &&
                          std::ranges::all_of(digits, [](char c) { return c >= '0' && c <= '9'; });
  if (!six_digits) throw std::invalid_argument("Not a date: " + Utf8FromText(text));
  const auto pair = [&digits](std::size_t at) {
    return (digits[at] - '0') * 10 + (digits[at + 1] - '0');
  };
  return {pair(0), pair(2), pair(4)};
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
