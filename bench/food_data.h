// Foods in the numbers that the benchmarks need, as the category files that the program reads.
//
// They come from the table that the environment variable KELVORA_FOOD_TABLE names, or else from the
// starter foods. Larger sets repeat the same foods under numbered names. A set is made when it is
// first asked for and lies in a temporary folder that is gone at the end of the process.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/text.h"
#include "support/test_program.h"

namespace kelvora::bench {

struct Food {
  Text group;  // the name of its category file without the extension
  Text name;
  Text amounts;  // the other eleven fields, each with its kFieldEnd
};

// A table of foods: UTF-8, tab separated, one header line, fourteen columns: number, group, name,
// portion, grams of the portion, then of 100 grams: kcal, kJ and grams of protein, fat, saturated,
// monounsaturated and polyunsaturated fat and carbohydrates, and milligrams of sodium. An empty
// cell counts as 0. Throws std::runtime_error for a row of another form.
[[nodiscard]] std::vector<Food> FoodsOfTable(std::string_view table);

// The foods that this run uses.
[[nodiscard]] const std::vector<Food>& Foods();

struct FoodFile {
  std::string path;
  std::size_t size = 0;
};

struct FoodSet {
  TemporaryFolder folder;
  std::string program_path;  // ends in "/"; the files lie in its Databases/
  std::vector<FoodFile> files;
  std::size_t lines = 0;
  std::size_t bytes = 0;  // of all files
  std::size_t largest_file = 0;
};

// The set of that many lines: the foods as they are if it is their number, else numbered.
[[nodiscard]] const FoodSet& FoodSetOf(std::size_t lines);

// A program that has loaded that set.
[[nodiscard]] Program& ProgramWith(std::size_t lines);

// That many lines of Foods() as the program holds them, taken evenly from all groups; a food comes
// twice only if there are fewer.
[[nodiscard]] std::vector<Text> SomeFoodLines(std::size_t count);

}  // namespace kelvora::bench
