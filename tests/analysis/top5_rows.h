// Rows of a consumption list, as a test writes them: one food each, with its cell in one column.
#pragma once

#include <string>
#include <vector>

#include "analysis/summary_row.h"

namespace kelvora {

// Foods named "Food 0", "Food 1" and so on.
inline SummaryRows RowsWith(SummaryColumn column, const std::vector<Text>& cells) {
  SummaryRows rows;
  for (const Text& cell : cells) {
    SummaryRow& row = rows.emplace_back();
    row[SummaryColumn::food] = "Food " + std::to_string(rows.size() - 1);
    row[column] = cell;
  }
  return rows;
}

}  // namespace kelvora
