#include "food/amount.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>

#include "nutrition/numbers.h"
#include "nutrition/units.h"

namespace kelvora {
namespace {

// More digits than these say nothing that an amount could be.
constexpr std::size_t kMostDigits = 9;
constexpr double kDecimalsShown = 1000;
constexpr int kMostSteps = 6;  // to make whole numbers of the two of a fraction

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsMark(char c) {
  return c == '.' || c == ',';
}

// Takes from the front what `belongs` says.
template <class Belongs>
std::string_view TakeFront(std::string_view& text, Belongs belongs) {
  const auto end = std::ranges::find_if_not(text, belongs);
  const std::string_view front = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(front.size());
  return front;
}

// A number with at most one mark and at least one digit.
bool IsNumber(std::string_view text) {
  const auto digits = static_cast<std::size_t>(std::ranges::count_if(text, IsDigit));
  return digits > 0 && text.size() - digits <= 1 && digits <= kMostDigits;
}

enum class Unit { portions, grams, ounces };

std::optional<Unit> UnitOf(std::string_view word) {
  if (word.empty() || word == "x" || word == "×"_w) return Unit::portions;
  if (word == "g" || word == "gr" || word == "gram") return Unit::grams;
  if (word == "oz") return Unit::ounces;
  return std::nullopt;
}

bool IsWhole(double number) {
  return number == std::floor(number);
}

// A fraction of three decimals at most needs no stroke.
bool IsDecimal(const Amount& amount) {
  return amount.parts == 1 || IsWhole(amount.value * kDecimalsShown / amount.parts);
}

}  // namespace

std::variant<Amount, AmountFault> ReadAmount(std::string_view typed) {
  const Text lower = LowerCase(Trimmed(typed));
  std::string_view rest = lower;
  if (rest.empty()) return Amount{};
  const std::string_view number = TakeFront(rest, [](char c) { return IsDigit(c) || IsMark(c); });
  if (!IsNumber(number)) return AmountFault::none_said;
  Amount amount{.value = ReadStoredNumber(number)};
  if (rest.starts_with('/')) {
    rest.remove_prefix(1);
    const std::string_view parts = TakeFront(rest, IsDigit);
    // Halves of whole numbers only: what 1.5/2 means is anybody's guess.
    if (!IsNumber(parts) || std::ranges::any_of(number, IsMark)) return AmountFault::none_said;
    amount.parts = Val(parts);
    if (amount.parts == 0) return AmountFault::none_said;
  }
  const auto unit = UnitOf(Trimmed(rest));
  if (!unit || amount.value == 0) return AmountFault::none_said;
  if (*unit != Unit::portions) amount.kind = Amount::Kind::grams;
  if (IsTooMuch(amount)) return AmountFault::too_much;
  if (*unit == Unit::ounces) {
    amount = {Amount::Kind::grams, Val(GramsOfOunces(amount.Number(), "."))};
    if (amount.value == 0) return AmountFault::none_said;
    if (IsTooMuch(amount)) return AmountFault::too_much;
  }
  return amount;
}

bool IsTooMuch(const Amount& amount) {
  return amount.Number() > (amount.kind == Amount::Kind::grams ? kMostGrams : kMostPortions);
}

std::optional<std::size_t> WholePortions(const Amount& amount) {
  if (amount.kind != Amount::Kind::portions || !IsWhole(amount.Number())) return std::nullopt;
  return static_cast<std::size_t>(amount.Number());
}

Text AmountNumber(const Amount& amount, std::string_view separator) {
  if (amount.kind == Amount::Kind::grams || IsDecimal(amount)) {
    return Str(amount.Number(), separator);
  }
  double value = amount.value, parts = amount.parts;
  for (int step = 0; step < kMostSteps && !(IsWhole(value) && IsWhole(parts)); ++step) {
    value *= 10;
    parts *= 10;
  }
  const auto above = static_cast<std::int64_t>(std::round(value));
  const auto below = static_cast<std::int64_t>(std::round(parts));
  const std::int64_t shared = std::gcd(above, below);
  return std::to_string(above / shared) + "/" + std::to_string(below / shared);
}

Text AmountText(const Amount& amount, std::string_view separator) {
  return AmountNumber(amount, separator) + (amount.kind == Amount::Kind::grams ? " g" : " x");
}

OwnText TextOf(AmountFault fault) {
  switch (fault) {
    case AmountFault::none_said:
      return OwnText::amount_not_read;
    case AmountFault::too_much:
      return OwnText::amount_too_much;
    case AmountFault::no_weight:
      break;
  }
  return OwnText::amount_no_weight;
}

}  // namespace kelvora
