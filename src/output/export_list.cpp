#include "output/export_list.h"

#include <system_error>

#include "days/day_form.h"
#include "days/day_list.h"
#include "days/stored_day.h"
#include "language/export_form_texts.h"
#include "nutrition/totals.h"
#include "output/export_days.h"
#include "storage/folders.h"

namespace kelvora {
namespace {

using namespace export_form_text;

constexpr std::array<TextId, ExportColumn::kCount> kHeadings = {
    kColumnNumber, kColumnPath, kColumnFile, kColumnDate, kColumnDay, kColumnWeight,
};
constexpr std::array kWeightUnits = {kKilogram, kPounds, kStones};  // as UnitSystem

// The files, and what kept the folder from being read to its end. A user without it has no days.
std::vector<FolderFile> DayFilesIn(const std::string& folder, Unread& unread) {
  std::error_code failure;
  std::vector<FolderFile> files = FilesWithPathsIn(folder, ".kvf", failure);
  if (failure && failure != std::errc::no_such_file_or_directory) {
    unread.Add({}, std::system_error(failure));
  }
  return files;
}

void FillRow(Program& program, const StoredDay& day, ExportRow& row) {
  if (!day.has_record) return;
  auto& cells = row.cells;
  cells[ExportColumn::kDate] =
      Format_Datum(day.date, program.settings[Setting::opt_system], UnitsOf(program));
  cells[ExportColumn::kDay] = day.weekday;
  cells[ExportColumn::kWeight] = ListedWeight(program, day.weight);
}

void AddRow(Program& program, const StoredDay& day, ExportList& list) {
  ExportRow row{.path = day.file.path, .cells = {}};
  row.cells[ExportColumn::kNumber] = std::to_string(list.rows.size());
  row.cells[ExportColumn::kPath] = TextFromUtf8(day.file.path);
  row.cells[ExportColumn::kFile] = day.file.name;
  list.unread.Try(day.file.name, [&] { FillRow(program, day, row); });
  list.rows.push_back(std::move(row));
}

}  // namespace

std::array<Text, ExportColumn::kCount> ExportHeadings(const TextTables& texts) {
  std::array<Text, ExportColumn::kCount> headings;
  for (std::size_t i = 0; i < headings.size(); ++i) headings[i] = texts[kHeadings[i]];
  return headings;
}

Text ListedWeight(Program& program, const Text& kilograms) {
  const Text number = kilograms.empty() ? Text() : BrowsedWeight(program, kilograms);
  return number + " " +
         program.texts[kWeightUnits[static_cast<std::size_t>(UnitSystemOf(program))]];
}

ExportList ReadExportList(Program& program, const std::function<bool()>& overtaken) {
  // Another user may be chosen while events run.
  const std::string folder = program.paths.FilesPath;
  const Pause pause = [&] {
    program.platform.events.Yield();
    return overtaken();
  };
  ExportList list;
  if (folder.empty()) return list;
  list.unread.Try({}, [&] {
    const std::vector<FolderFile> files = DayFilesIn(folder, list.unread);
    if (files.empty()) return;
    program.platform.pointer.ShowWait();
    const std::vector<StoredDay> days = ReadStoredDays(files, list.unread, pause);
    std::vector<Text> dates;
    for (const StoredDay& day : days) dates.push_back(day.date);
    const auto order = overtaken() ? std::vector<std::size_t>() : NewestFirst(dates, pause);
    for (const std::size_t place : order) {
      if (overtaken()) break;
      AddRow(program, days[place], list);
      pause();
    }
    program.platform.pointer.Restore();
  });
  return list;
}

void TellOfUnreadExports(Program& program, const ExportList& list) {
  list.unread.Report(program.FailurePath(), "#F5-0");
}

}  // namespace kelvora
