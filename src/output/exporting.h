// What the export dialog does when its buttons are pressed: makes one file of the days that are
// chosen, from the day files as they lie on the disk, and opens it or tells where it is.
#pragma once

#include <string>
#include <vector>

#include "core/open_with.h"
#include "output/export_list.h"
#include "output/report.h"

namespace kelvora {

// What the dialog says when the export begins.
struct ExportChoice {
  ReportOptions options;
  std::vector<std::size_t> rows;  // those of the list that are selected, from the top
  bool close = true;              // chk_close: the dialog closes after the export
};

// Makes the report and closes the dialog if that is chosen. A DTA file goes into a folder that is
// asked for, and nothing happens if the user names none; the others go into `ReportsPath` and are
// opened. A file of that name is replaced. A failure shows "#F5-1", leaves the dialog open and no
// part of a file; so does a No to the question about many days, without a word.
void ExportDays(Program& program, const std::vector<ExportRow>& list, const ExportChoice& choice);

// Opens a report with the user's own program for it, after closing the dialog if that is asked for.
void Open_Exported_File(Program& program, const std::string& path, ExportDialog dialog);

// Whether the dialog closes after an export, as the settings have it, and keeping that there; a
// failure of the latter shows "#F5-4".
[[nodiscard]] bool ClosesAfterExport(const Program& program);
void SetClosesAfterExport(Program& program, bool closes);

}  // namespace kelvora
