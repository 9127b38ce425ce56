// A row of a list of merged consumptions, as it is drawn: what one food of the day, or of several
// days, adds up to. Texts as they stand in the cells; the charts read their numbers from these.
#pragma once

#include <array>
#include <vector>

#include "core/text.h"

namespace kelvora {

enum class SummaryColumn {
  key,  // hidden: the order of insertion
  food,
  count,
  unit,
  weight,
  kj,
  kcal,
  fat_u,
  fat_s,
  protein,
  sodium,
  carbs,
};
inline constexpr std::size_t kSummaryColumns = 12;

struct SummaryRow {
  std::array<Text, kSummaryColumns> cells;
  Text& operator[](SummaryColumn column) { return cells[static_cast<std::size_t>(column)]; }
  const Text& operator[](SummaryColumn column) const {
    return cells[static_cast<std::size_t>(column)];
  }
};

using SummaryRows = std::vector<SummaryRow>;

}  // namespace kelvora
