// What a new food must have before it is added: the first test that it fails, and the box that the
// user has to look at. What counts is what was typed, not what the calculation made of it.
#pragma once

#include <optional>

#include "core/program.h"
#include "food/food_calculator.h"

namespace kelvora {

enum class NewFoodError { incomplete, illegal_characters, too_long };

// A box of the dialog that takes typing. `value` tells which one of the printed values.
struct NewFoodBox {
  enum class Kind { name, unit, printed_gram, printed_oz, portion_gram, portion_oz, value };
  Kind kind;
  std::size_t value = 0;

  bool operator==(const NewFoodBox&) const = default;
};

struct NewFoodFault {
  NewFoodError error;
  NewFoodBox box;

  bool operator==(const NewFoodFault&) const = default;
};

// What is missing or no number. A name of blanks is missing; a value left empty counts as 0; a
// weight of 0 is no weight, since nothing can be calculated with it.
[[nodiscard]] std::optional<NewFoodFault> CheckTyped(const NewFoodForm& form);

// What the line of the calculated form can't hold.
[[nodiscard]] std::optional<NewFoodFault> CheckLine(const NewFoodForm& form);

// The lines of the box for a fault: those of the error, and where to look.
[[nodiscard]] Text TextOf(const TextTables& texts, const NewFoodFault& fault);

// The twelve fields of the line, each followed by `closing`.
[[nodiscard]] Text JoinFields(const NewFoodForm& form, char closing);

}  // namespace kelvora
