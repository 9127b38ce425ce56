// Food lines of another amount than their portion: "Brown bread, 150 g" with the unit "150 gram",
// "Brown bread, 0.5 x" for a share. Such a line is an ordinary one; its name makes it a food of its
// own. What differs from the line that it was made from are name, unit, weight and values, these
// scaled from what stands there and rounded as those of a new food.
//
// Scaled again, a food is made from the one that it came from, if a list still has that: nothing is
// rounded twice, and the name says one amount.
#pragma once

#include <functional>
#include <string_view>
#include <variant>

#include "core/store.h"
#include "food/amount.h"

namespace kelvora {

// The lines of an amount of a food: the line as it is, as often as there are whole portions, or
// else one line of that amount. Throws std::system_error for a value that no number can hold.
[[nodiscard]] std::variant<TextList, AmountFault> LinesOfAmount(const KV_data& store,
                                                                std::string_view line,
                                                                const Amount& amount,
                                                                std::string_view separator);

// The amount that such a name tells: "150 g"; "" for the line of a whole portion.
[[nodiscard]] Text AmountInName(std::string_view line);

// What becomes a favourite by this name: the food itself, or the one that the name tells an amount
// of if only that is `listed`; "" if neither is.
[[nodiscard]] Text NameOfFavourite(std::string_view name,
                                   const std::function<bool(std::string_view name)>& listed);

}  // namespace kelvora
