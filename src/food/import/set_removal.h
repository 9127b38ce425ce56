// Taking a set of imported foods out of the standard list, from wherever that is asked for.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/program.h"
#include "food/import/food_set.h"

namespace kelvora {

// The set that a category of the list of categories came with, by the name of its file; nothing
// for one that was not imported.
[[nodiscard]] std::optional<FoodSet> SetOfCategory(const Program& program, std::string_view file);

// Asks, and removes the set with its foods. A failure shows "#F28-3".
void RemoveSetIfWanted(Program& program, const FoodSet& set);

// Reads the standard list anew and shows it, once sets came or these files of sets went.
void ShowImportedFoodsAnew(Program& program, const std::vector<std::string>& gone);

}  // namespace kelvora
