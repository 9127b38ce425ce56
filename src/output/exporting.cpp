#include "output/exporting.h"

#include <optional>

#include "language/export_form_texts.h"
#include "nutrition/dates.h"
#include "output/export_days.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"

namespace kelvora {
namespace {

// Nothing if the user names none. A path from the chooser is kept as it is, capitals and all: here
// another case is another folder.
std::optional<std::string> TargetFolder(Program& program, ReportFormat format) {
  const std::string& reports = program.paths.ReportsPath;
  if (format != ReportFormat::dta) return reports;
  auto folder = program.platform.folder_chooser.Choose(
      program.texts[export_form_text::kFolderPrompt], reports);
  if (folder && !folder->ends_with('/')) *folder += '/';
  return folder;
}

bool UserWantsThatMany(Program& program, const ExportChoice& choice) {
  const auto question = TooManyDaysBox(program.texts, choice.rows.size(), choice.options.graphs);
  return !question || program.platform.boxes.Show(*question) == BoxAnswer::yes;
}

// Writes the report into the folder; returns the path of the file.
std::string WriteReport(Program& program, const std::vector<ExportRow>& list,
                        const ExportChoice& choice, const std::string& folder) {
  const ReportContext context = ReportContextOf(program);
  Report report(context, choice.options);
  for (const std::size_t row : choice.rows) {
    // A file that holds no record is a day of which nothing is known.
    const auto day = ReadFirstRecord<Rec_DayFile>(list[row].path);
    report.Add(day.value_or(Rec_DayFile()), list[row].cells[ExportColumn::kDate]);
  }
  const std::string& user = program.paths.UserFolderName;
  const Text user_name = TextFromUtf8(user);
  const LocalTime now = program.platform.clock.Now();
  const Text short_date = ShortDateOf(now, program.platform.locale);
  std::string path =
      folder + ReportFileName(program.texts, choice.options.format, user, report.Span(user_name));
  WriteFileAnew(path, report.TakePieces(user_name, {short_date, now.year}));
  return path;
}

}  // namespace

void ExportDays(Program& program, const std::vector<ExportRow>& list, const ExportChoice& choice) {
  program.Guard("#F5-1", [&] {
    const auto folder = TargetFolder(program, choice.options.format);
    if (!folder) return;
    // Meant: days of which none is selected make a report of no days.
    if (list.empty()) {
      program.platform.boxes.Show(NoDaysBox(program.texts));
      return;
    }
    program.platform.pointer.ShowWait();
    if (!UserWantsThatMany(program, choice))
      return;  // meant: the next routine restores the pointer
    const std::string path = WriteReport(program, list, choice, *folder);
    program.platform.pointer.Restore();
    if (choice.options.format != ReportFormat::dta) {
      return Open_Exported_File(program, path,
                                choice.close ? ExportDialog::closes_first : ExportDialog::stays);
    }
    program.platform.boxes.Show(SavedDtaBox(program.texts, TextFromUtf8(path)));
    WindowView* const dialog = program.windows.export_html;
    if (choice.close && dialog != nullptr) dialog->CloseWindow();
  });
}

void Open_Exported_File(Program& program, const std::string& path, ExportDialog dialog) {
  OpenFile(program, path, dialog);
}

bool ClosesAfterExport(const Program& program) {
  return program.settings[Setting::chk_export] != "0";
}

void SetClosesAfterExport(Program& program, bool closes) {
  program.Guard("#F5-4", [&] {
    program.settings[Setting::chk_export] = closes ? "1" : "0";
    Save_Settings(program);
  });
}

}  // namespace kelvora
