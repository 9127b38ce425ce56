#include "language/choose_language.h"

#include <array>

#include "language/language_file.h"
#include "language/main_texts.h"
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
  return FilesIn(paths.LanguagePath, ".lsf");
}

void ChooseLanguage(Program& program, std::string_view file_name) {
  Load_Language_File(program, program.paths.LanguagePath + Utf8FromText(file_name));
  if (program.windows.core != nullptr) program.windows.core->Set_Taal();
  TakeCaptions(program.windows.properties);
  for (const WindowId id : kListening) TakeCaptions(program.windows.Find(id));
  // The totals that windows show carry words as well.
  if (program.store.DayIsOpen()) Refresh_Totalen(program);
}

void RepairLanguageFiles(Program& program) {
  program.Guard("#F4-16", [&] {
    if (!UserWantsTheRepair(program)) return;
    for (const std::string_view name : StandardLanguageFiles()) {
      DeleteFileIfThere(program.paths.LanguagePath + std::string(name));
    }
    Check_Language_Files(program);
    LoadChosenLanguage(program);
    Tell(program, BoxIcon::information, program.texts[main_text::kRepaired]);
  });
}

}  // namespace kelvora
