// The list of one user's days: what it shows of each day file and in which order. Day files are
// read in bulk here, without touching the open day. Nothing here asks, opens or deletes.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/column_sort.h"
#include "core/exchange_sort.h"
#include "core/program.h"
#include "core/unread.h"

namespace kelvora {

struct BrowseColumn {
  enum : std::size_t { kNumber, kPath, kFile, kDate, kDay, kWeight, kBmi, kNutrient, kCount };
};

// One day file of the list, ready to be shown.
struct DayRow {
  std::string folder;  // UTF-8, with its closing "/"
  Text file_name;      // with "?" for what text can't hold; `path` is what leads to the file
  std::string path;
  std::array<Text, BrowseColumn::kCount> cells;
};

// The headings of the list; the last is that of the user's priority nutrient.
[[nodiscard]] std::array<Text, BrowseColumn::kCount> BrowseHeadings(const Program& program);

// A stored weight as the list and the profile pane show it, in the unit of the settings.
[[nodiscard]] Text BrowsedWeight(Program& program, Text kilograms);

// The days of one user and what could not be read of them.
struct DayList {
  std::vector<DayRow> rows;
  Unread files;
  Unread values;
};

// The day files of the current user, oldest date first. A file that holds no record has a row with
// its name and nothing else; one that can't be read is passed over, and a value that no column can
// show leaves the rest of its row empty: TellOfUnreadDays names them.
//
// Other events run meanwhile, and may call this again. `overtaken` is asked after them: once it
// answers true the reading ends, and its rows are of no use.
[[nodiscard]] DayList ReadDays(
    Program& program, const std::function<bool()>& overtaken = [] { return false; });

// Shows "#F3-0" if a file was passed over, and "#F3-1" for values that could not be shown; for when
// the rows can be seen.
void TellOfUnreadDays(Program& program, const DayList& days);

// By which column the list is sorted, if by any, and how.
struct DayListSort {
  std::optional<std::size_t> column;
  SortOrder order = SortOrder::descending;
};

// What a click on a heading does: sorts by the value of a column of numbers from the weight on, the
// first time ascending and each further time the other way round, whichever of them it is. The
// other headings do nothing. True if `sort` has changed.
bool ClickHeading(DayListSort& sort, std::size_t column);

// Puts the rows in the order of `sort`; returns the place that each row had before.
std::vector<std::uint32_t> SortRows(std::vector<DayRow>& rows, const DayListSort& sort);

// The row that is opened: the one in focus if it is selected, else the first selected one. With
// nothing selected it is the one in focus, as long as the list has the keys.
[[nodiscard]] std::optional<std::size_t> RowToOpen(const std::vector<std::size_t>& selected,
                                                   std::optional<std::size_t> in_focus,
                                                   bool list_has_keys);

}  // namespace kelvora
