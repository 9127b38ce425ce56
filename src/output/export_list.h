// The list of the export dialog: all days of the current user, the newest first. Day files are read
// behind the open day; what of them is not saved is not part of it.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "core/program.h"
#include "core/unread.h"

namespace kelvora {

struct ExportColumn {
  enum : std::size_t { kNumber, kPath, kFile, kDate, kDay, kWeight, kCount };
};

struct ExportRow {
  std::string path;  // UTF-8; the cell of that column is what text can hold of it
  std::array<Text, ExportColumn::kCount> cells;
};

struct ExportList {
  std::vector<ExportRow> rows;
  Unread unread;
};

[[nodiscard]] std::array<Text, ExportColumn::kCount> ExportHeadings(const TextTables& texts);

// A stored weight as the list shows it, in the unit of the settings with its name. A weight that is
// empty has no number.
[[nodiscard]] Text ListedWeight(Program& program, const Text& kilograms);

// The days of the current user. One that can't be read is passed over, a value that can't be shown
// leaves the rest of its row empty; a file that holds no record has a row without words.
// TellOfUnreadExports names them.
//
// Other events run meanwhile, and may call this again. `overtaken` is asked after them: once it
// answers true it does so for good, the reading ends, and its rows are of no use.
[[nodiscard]] ExportList ReadExportList(Program& program, const std::function<bool()>& overtaken);

// Shows "#F5-0" if anything was passed over; for when the rows can be seen.
void TellOfUnreadExports(Program& program, const ExportList& list);

}  // namespace kelvora
