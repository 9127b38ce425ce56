// What the help says of each box that the program can show. The words of a box are those of the
// program's tables; what it means and what to do is written here.
#pragma once

#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "make_help/language.h"

namespace kelvora::help {

// A text of the tables, one of the program's own, or a fixed one that no table holds.
using BoxLine = std::variant<TextId, OwnText, std::string_view>;

struct BoxHelp {
  std::vector<BoxLine> lines;
  Words means;
  Words todo;
};

struct BoxGroup {
  Words title;
  std::span<const BoxHelp> boxes;
};

// Each in a file of its own.
[[nodiscard]] BoxGroup BoxesOfStart();
[[nodiscard]] BoxGroup BoxesOfDays();
[[nodiscard]] BoxGroup BoxesOfFoods();
[[nodiscard]] BoxGroup BoxesOfConsumptions();
[[nodiscard]] BoxGroup BoxesOfResults();
[[nodiscard]] BoxGroup BoxesOfInternet();
[[nodiscard]] BoxGroup BoxesOfFiles();

}  // namespace kelvora::help
