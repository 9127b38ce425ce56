// The tables of data/foods: UTF-8, tab separated, with one header line; the twelve columns are the
// twelve fields of a food line. Part of the build and of the food server, not of the desktop
// program.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/text.h"

namespace kelvora {

// The food line of one row. Throws std::runtime_error with the reason for a row that has none.
[[nodiscard]] Text FoodLineOfRow(std::string_view row);

// Calls `take` with each row of a table behind its header line that isn't empty, and the number of
// its line.
void ForEachRow(std::string_view table,
                const std::function<void(std::string_view row, int number)>& take);

}  // namespace kelvora
