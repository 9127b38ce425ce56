#include "language/choose_language.h"

#include <array>
#include <exception>

#include "language/language_file.h"
#include "language/main_texts.h"
#include "language/own_text_file.h"
#include "nutrition/totals.h"
#include "storage/folders.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

// The windows that a change of language reaches while they are open, in their order. All others
// take their captions when they open.
constexpr std::array kListening = {
    WindowId::browser,   WindowId::day_summary, WindowId::food_details, WindowId::lists,
    WindowId::multi_day, WindowId::diary,       WindowId::morning,      WindowId::afternoon,
    WindowId::evening,   WindowId::comparison,  WindowId::wizard,
};

void TakeCaptions(WindowView* window) {
  if (window != nullptr) window->Set_Taal();
}

void TakeCaptionsInOrder(Program& program) {
  if (program.windows.core != nullptr) program.windows.core->Set_Taal();
  TakeCaptions(program.windows.properties);
  for (const WindowId id : kListening) TakeCaptions(program.windows.Find(id));
  // The totals that windows show carry words as well.
  if (program.store.DayIsOpen()) Refresh_Totalen(program);
}

// Also the windows that a choice of language does not reach: none is open when one can be made.
void TakeCaptionsEverywhere(Program& program) {
  OpenWindows& windows = program.windows;
  TakeCaptionsInOrder(program);
  for (WindowView* const window :
       {windows.day_settings, windows.new_food, windows.export_html, windows.take_over,
        windows.backup, windows.restore, windows.food_import}) {
    TakeCaptions(window);
  }
}

// Deletes each standard file that can be deleted. Throws what stopped the first that can't.
void DeleteStandardFiles(const Paths& paths) {
  std::exception_ptr failure;
  for (const std::string_view name : StandardLanguageFiles()) {
    const std::string path = paths.LanguagePath + std::string(name);
    try {
      DeleteFileIfThere(path);
      DeleteFileIfThere(OwnTextFile(path));
    } catch (...) {
      if (!failure) failure = std::current_exception();
    }
  }
  if (failure) std::rethrow_exception(failure);
}

bool UserWantsTheRepair(Program& program) {
  using namespace main_text;
  const TextTables& texts = program.texts;
  const Box box{.title = Text(AppTitle),
                .text = texts[kRepairQuestion1] + "\n\n" + texts[kRepairQuestion2] + "\n" +
                        texts[kRepairQuestion3],
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

}  // namespace

TextList LanguageFileNames(const Paths& paths) {
  TextList names;
  for (const std::string_view name : FilesIn(paths.LanguagePath, ".lsf")) {
    if (FileExists(paths.LanguagePath + Utf8FromText(name))) names.Add(name);
  }
  return names;
}

void ChooseLanguage(Program& program, std::string_view file_name) {
  Load_Language_File(program, program.paths.LanguagePath + Utf8FromText(file_name));
  TakeCaptionsInOrder(program);
}

void RepairLanguageFiles(Program& program) {
  program.Guard("#F4-16", [&] {
    if (!UserWantsTheRepair(program)) return;
    const UserAction action(program.actions);
    const bool deleted = program.Guard("#F4-16", [&] { DeleteStandardFiles(program.paths); });
    // What is gone comes back, whether or not all of them could go.
    const bool written = Check_Language_Files(program);
    LoadChosenLanguage(program);
    TakeCaptionsEverywhere(program);
    if (deleted && written) {
      Tell(program, BoxIcon::information, program.texts[main_text::kRepaired]);
    }
  });
}

}  // namespace kelvora
