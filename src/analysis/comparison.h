// Two foods side by side, with their values per portion and per 100 grams. A food comes by a drop
// of drag text, whose markers are those of the food lists; nothing is stored and no day is touched.
#pragma once

#include <array>
#include <string_view>

#include "core/program.h"

namespace kelvora {

inline constexpr std::size_t kComparedRows = 9;

// A row of values: what it is called, which field of the line it shows, and how the value per 100
// grams is printed; the weight and the unit have no pattern.
struct ComparedRow {
  TextId caption;
  std::optional<TextId> unit;
  std::size_t field;
  std::string_view pattern;
};
[[nodiscard]] const std::array<ComparedRow, kComparedRows>& ComparedRows();
inline constexpr std::size_t kWeightRow = 0;
inline constexpr std::size_t kUnitRow = 1;

// What one box holds. The two boxes don't depend on each other.
struct ComparedFood {
  Text line;  // as it was dropped, without marker; empty for an empty box
  TextList temp_lst;
  Text txt_Voedingsmiddel;
  std::array<Text, kComparedRows> var_na;  // per portion, as the line holds them
  std::array<Text, kComparedRows> var_nb;  // per 100 grams
  Text ounces_a, ounces_b;                 // of both weights, without a word
};

// A drop on a box. Several foods and consumptions are refused with a box of words, and what the box
// held stays. Text of any other form empties it. A failure shows "#F16-0" or "#F16-1".
void DropOnBox(Program& program, CompareBox box, std::string_view payload, ComparedFood& food);

// Works out the values per 100 grams. A food without weight can't be scaled: those of the food
// before stay, as is meant. A failure shows "#F16-2" or "#F16-3".
void Vergelijk_Per100(Program& program, CompareBox box, ComparedFood& food);

// The weight in ounces beside a weight in grams; empty without one.
[[nodiscard]] Text OuncesLabel(const TextTables& texts, const Text& ounces);

// Opens the details of the food in the box; nothing happens for an empty one.
void ShowComparedFood(Program& program, const ComparedFood& food);

}  // namespace kelvora
