#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "food/import/cell.h"

namespace kelvora {
namespace {

constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsTrace(std::string_view cell) {
  constexpr std::array<std::string_view, 7> kWords = {"traces", "trace",  "tr",    "tr.",
                                                      "spoor",  "sporen", "spuren"};
  return cell.size() <= 6 && std::ranges::find(kWords, LowerCase(cell)) != kWords.end();
}

// Digits with at most one point, and an exponent.
std::optional<double> NumberOf(std::string_view text) {
  double value = 0;
  const char* const end = text.data() + text.size();
  const auto [stopped, failure] = std::from_chars(text.data(), end, value);
  if (failure != std::errc() || stopped != end || !std::isfinite(value)) return std::nullopt;
  return value;
}

// "1.234,5" as "1234.5": nothing if the marks stand where none keep thousands apart.
std::optional<double> NumberWithMarks(std::string_view text) {
  constexpr std::size_t kLongest = 40;
  if (text.size() > kLongest) return std::nullopt;
  const std::size_t last = text.find_last_of(".,");
  const bool is_only_one = text.find(text[last]) == last;
  const std::size_t decimal = is_only_one ? last : text.size();
  const char thousands = is_only_one ? (text[last] == '.' ? ',' : '.') : text[last];
  std::array<char, kLongest> plain{};
  std::size_t size = 0;
  std::optional<std::size_t> group;  // digits since a mark of thousands
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool is_mark = text[i] == thousands;
    if (i <= decimal && (is_mark || i == decimal || !IsDigit(text[i]))) {
      if (group && *group != 3) return std::nullopt;
      if (i == decimal || !is_mark) group.reset();
    }
    if (is_mark) {
      if (i > decimal || i == 0) return std::nullopt;
      group = 0;
      continue;
    }
    if (group && IsDigit(text[i])) ++*group;
    plain[size++] = i == decimal ? '.' : text[i];
  }
  if (group && *group != 3) return std::nullopt;
  return NumberOf({plain.data(), size});
}

std::optional<double> UnsignedAmount(std::string_view text) {
  if (text.empty() || !(IsDigit(text[0]) || text[0] == '.' || text[0] == ',')) return std::nullopt;
  if (text.find(',') == text.npos) {
    if (const auto value = NumberOf(text)) return value;
  }
  if (text.find_first_of(".,") == text.npos) return std::nullopt;
  return NumberWithMarks(text);
}

}  // namespace

std::string_view TrimmedCell(std::string_view cell) {
  const auto blank_in_front = [&]() -> std::size_t {
    if (cell.empty()) return 0;
    if (static_cast<unsigned char>(cell[0]) <= ' ' || cell[0] == '\xA0') return 1;
    return cell.starts_with("\xC2\xA0") ? 2 : 0;
  };
  const auto blank_behind = [&]() -> std::size_t {
    if (cell.empty()) return 0;
    if (cell.ends_with("\xC2\xA0")) return 2;
    return static_cast<unsigned char>(cell.back()) <= ' ' ? 1 : 0;
  };
  for (std::size_t size; (size = blank_in_front()) != 0;) cell.remove_prefix(size);
  for (std::size_t size; (size = blank_behind()) != 0;) cell.remove_suffix(size);
  return cell;
}

std::optional<double> ReadCellAmount(std::string_view cell) {
  cell = TrimmedCell(cell);
  if (cell.empty()) return std::nullopt;
  if (cell[0] == '<') {
    const bool below = UnsignedAmount(TrimmedCell(cell.substr(1))).has_value();
    return below ? std::optional<double>(0) : std::nullopt;
  }
  if (const auto value = UnsignedAmount(cell)) return value;
  if (IsTrace(cell)) return 0;
  return std::nullopt;
}

}  // namespace kelvora
