// How much of a food somebody says: "2", "2x", "1/2", "0,5" are portions, "150g", "150 gram" and
// "5 oz" a weight. Reading knows no food; scaled_food.h makes the lines of an amount.
#pragma once

#include <optional>
#include <string_view>
#include <variant>

#include "core/text.h"
#include "language/own_texts.h"

namespace kelvora {

struct Amount {
  enum class Kind { portions, grams };
  Kind kind = Kind::portions;
  // A fraction stays one, so that a third of a portion is exactly that.
  double value = 1;
  double parts = 1;

  bool operator==(const Amount&) const = default;
  [[nodiscard]] double Number() const { return value / parts; }
};

// Why an amount can't be added.
enum class AmountFault {
  none_said,  // no amount that can be read, or one of nothing
  too_much,
  no_weight,  // a weight of a food that has none
};

inline constexpr double kMostPortions = 20;
inline constexpr double kMostGrams = 10000;

// Nothing typed is one portion. A comma is as good as a point, a capital as a small letter; ounces
// become whole grams, as everywhere.
[[nodiscard]] std::variant<Amount, AmountFault> ReadAmount(std::string_view typed);

// True for more than can be added at once.
[[nodiscard]] bool IsTooMuch(const Amount& amount);

// The portions of an amount, if it is a whole number of them.
[[nodiscard]] std::optional<std::size_t> WholePortions(const Amount& amount);

// The amount as the name of a food tells it: "150 g", "0.5 x", "1/3 x" for what three decimals
// don't hold.
[[nodiscard]] Text AmountText(const Amount& amount, std::string_view separator);

// Its number alone: "150", "0.5", "1/3".
[[nodiscard]] Text AmountNumber(const Amount& amount, std::string_view separator);

// What is said of a fault, beside the box.
[[nodiscard]] OwnText TextOf(AmountFault fault);

}  // namespace kelvora
