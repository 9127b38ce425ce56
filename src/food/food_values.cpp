#include "food/food_values.h"

#include <algorithm>

#include "nutrition/numbers.h"

namespace kelvora {
namespace {

constexpr double kHighSodium = 0.5;
constexpr std::string_view kMarks = ",.";

bool IsMark(char c) {
  return kMarks.find(c) != std::string_view::npos;
}

}  // namespace

bool HoldsDecimalMark(std::string_view text) {
  return text.find_first_of(kMarks) != std::string_view::npos;
}

bool IsIncompleteNumber(std::string_view text) {
  return text.empty() || IsMark(text.front()) || IsMark(text.back()) ||
         text.find(",,") != std::string_view::npos || text.find("..") != std::string_view::npos;
}

bool IsWrongNumber(std::string_view text) {
  return IsIncompleteNumber(text) || std::ranges::count_if(text, &IsMark) > 1;
}

bool IsHighSodium(std::string_view grams) {
  return ReadStoredNumber(grams) > kHighSodium;
}

}  // namespace kelvora
