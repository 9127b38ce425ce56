// Bringing a table of foods in: looking through it first, and then making a set of it.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "food/import/food_set.h"
#include "food/import/table_source.h"

namespace kelvora {

struct GroupCount {
  Text name;  // as the table writes it first; empty for foods without a group
  std::uint64_t foods = 0;
};

// What a table gives by a choice, in numbers.
struct TableCounts {
  std::uint64_t foods = 0;
  std::uint64_t skipped = 0;
  std::array<std::uint64_t, kSkipReasonCount> by_reason{};
  std::uint64_t left_out = 0;
  std::uint64_t unknown = 0;  // amounts that are taken for 0
  // In order of appearance; those that only differ in case are one. Past a thousand groups no new
  // ones are told apart.
  std::vector<GroupCount> groups;
  std::vector<TableFood> first_foods;  // up to twenty
};

// Where sets lie, and where the program's own categories do; both end in "/".
struct DatabaseFolders {
  std::string of_user;
  std::string of_program;
};

// Reads the whole table and writes nothing; nothing if that was given up.
[[nodiscard]] std::optional<TableCounts> CountFoods(const SourceTable& table,
                                                    const RowChoice& choice,
                                                    const ImportProgress& progress);

// Makes the set of the mapping's name, in the place of an older one of that name; nothing if it was
// given up or if the table gave no food, and then all is as it was. `date` is that of today. Throws
// std::system_error, with nothing left behind.
[[nodiscard]] std::optional<FoodSet> ImportFoods(const SourceTable& table, const RowChoice& choice,
                                                 const DatabaseFolders& folders,
                                                 const std::string& date,
                                                 const ImportProgress& progress);

}  // namespace kelvora
