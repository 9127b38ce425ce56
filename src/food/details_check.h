// What the boxes of a food must hold before an edit of it ends: the tests in their order, and what
// each tells the user. Pure; showing the box is the caller's.
#pragma once

#include <optional>

#include "food/details_values.h"
#include "language/tables.h"

namespace kelvora {

enum class DetailsError {
  fields_missing,
  weight_not_whole,
  values_missing,
  illegal_characters,
  too_much_data,
};

// The first test that the boxes fail.
[[nodiscard]] std::optional<DetailsError> CheckDetails(const PortionBoxes& bVar,
                                                       const ValueBoxes& oVar);

// The box that is to blame for an error: of the description, or of the values per 100 grams.
struct DetailsBox {
  bool per_100_grams = false;
  std::size_t place = 0;  // in bVar or oVar
  bool operator==(const DetailsBox&) const = default;
};
[[nodiscard]] DetailsBox WrongBox(const PortionBoxes& bVar, const ValueBoxes& oVar,
                                  DetailsError error);

// The lines of the box for an error.
[[nodiscard]] Text TextOf(const TextTables& texts, DetailsError error);

}  // namespace kelvora
