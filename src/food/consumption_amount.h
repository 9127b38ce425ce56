// Another amount for a row of a consumption window: the same as saying how much when food is added.
#pragma once

#include <optional>
#include <string_view>

#include "core/program.h"
#include "food/amount.h"
#include "food/consumption.h"

namespace kelvora {

struct AmountChange {
  bool done = false;                 // the row has the amount
  std::optional<AmountFault> fault;  // why it hasn't
};

// Gives the row of `line` another amount: as many of its lines as there are portions, or one line
// of the amount, all in the place of the first. A list above the limit doesn't grow: then its box
// comes and nothing changes, as with any fault.
[[nodiscard]] AmountChange ChangeAmount(Program& program, DayPart part, std::string_view line,
                                        const Amount& amount);

// What stands in the box of the amount at first: what the name tells, or how often it is there.
[[nodiscard]] Text AmountOfRow(const ConsumptionRow& row);

}  // namespace kelvora
