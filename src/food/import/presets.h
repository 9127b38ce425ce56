// The tables of foods that the program knows, told by the names of their columns.
#pragma once

#include <optional>
#include <span>

#include "food/import/mapping.h"

namespace kelvora {

enum class KnownTable { food_data_central, usda_sr, ciqual, nevo, open_food_facts };
inline constexpr std::size_t kKnownTableCount = 5;

struct KnownTableFacts {
  KnownTable table;
  std::string_view name;     // of the set
  std::string_view source;   // how its publisher is named
  std::string_view licence;  // in a few words
};
[[nodiscard]] const KnownTableFacts& FactsOf(KnownTable table);

// What a table with these columns is; nothing for one that the program doesn't know. The columns of
// FoodData Central are those of its file of foods.
[[nodiscard]] std::optional<KnownTable> Recognise(std::span<const std::string_view> header,
                                                  Encoding encoding);

// The columns of a known table of one file; none of FoodData Central.
[[nodiscard]] TableMapping MappingOf(KnownTable table);

}  // namespace kelvora
