// FoodData Central as its publisher gives it out: a folder with the foods in one file and their
// amounts in another, in any order, joined by the number of the food.
//
// Memory stays the same however many there are: so many foods at a time are taken from the one
// file, and the other is read whole for them.
#pragma once

#include <optional>
#include <string>

#include "food/import/table_source.h"

namespace kelvora {

// Foods that are joined in one go, when not told otherwise.
inline constexpr std::size_t kFoodsAtATime = 500'000;

// The file of foods in such a folder; nothing where a file is missing.
[[nodiscard]] std::optional<std::string> FoodsFileIn(const std::string& folder);
[[nodiscard]] bool HasAllFilesOfFoodDataCentral(const std::string& foods_file);

// As ReadFoods.
bool ReadFoodDataCentral(const SourceTable& table, const RowChoice& choice, FoodSink& sink,
                         const ImportProgress& progress, std::size_t at_a_time = kFoodsAtATime);

}  // namespace kelvora
