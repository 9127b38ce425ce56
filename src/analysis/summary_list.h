// The list of merged consumptions of a window: what its rows say, how it is sorted, how wide its
// columns are. The rows are texts; the charts read their numbers from them.
#pragma once

#include <optional>
#include <unordered_map>

#include "analysis/requirements.h"
#include "analysis/summary_row.h"
#include "core/column_sort.h"

namespace kelvora {

// How the cells of a list are printed.
struct RowPrint {
  Text separator;
  bool ounces = false;
  bool operator==(const RowPrint&) const = default;
};
[[nodiscard]] RowPrint RowPrintOf(const Program& program);

// The row of a line that was eaten so many times, the `place`th of its list from 0 on. The hidden
// keys go up by two, which is meant. An amount that no number can hold has an empty cell.
[[nodiscard]] SummaryRow RowOfLine(std::string_view line, std::string_view count, std::size_t place,
                                   const RowPrint& print);

// Makes the rows of a list, which is rebuilt again and again. Of a day that has changed most lines
// are as they were, and so are their rows: only the others are printed anew.
class SummaryRowMaker {
 public:
  // A row for each of these different lines, with its amounts as often as its count says.
  [[nodiscard]] SummaryRows RowsOf(Program& program, const TextList& distinct,
                                   const TextList& counts);

 private:
  std::unordered_map<Text, SummaryRow> made_;  // the last time, by count and line
  RowPrint print_;                             // how they were printed
};

// True for a column of texts; the others hold numbers.
[[nodiscard]] constexpr bool IsTextColumn(SummaryColumn column) {
  return column == SummaryColumn::food || column == SummaryColumn::unit;
}

[[nodiscard]] std::array<Text, kSummaryColumns> SummaryHeadings(const TextTables& texts,
                                                                AnalysisWindow window);

// In twips, for a list of that width; the first column is hidden, and that of the foods takes what
// the others leave.
[[nodiscard]] std::array<int, kSummaryColumns> SummaryColumnWidths(int list_width);

// What the headings were clicked for last. It outlives a rebuilding of the list.
struct SummarySort {
  std::optional<ColumnOrder> last_text;             // the text column sorted last
  SortOrder next_by_number = SortOrder::ascending;  // one flag for all columns of numbers
  bool operator==(const SummarySort&) const = default;
};

// Sorts the rows as a click on the heading of a column does, and says how they stand then; nothing
// for the hidden column, which sorts nothing. Texts go without regard to case and accents, and
// first descending; numbers by their whole values, and first ascending.
std::optional<ColumnOrder> SortSummary(SummaryRows& rows, SummaryColumn column, SummarySort& sort);

}  // namespace kelvora
