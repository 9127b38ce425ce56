// The language of the moment: choosing another while windows are open, and repairing the files.
#pragma once

#include <string_view>

#include "core/program.h"

namespace kelvora {

// The names of all language files that can be opened by them, sorted without regard to case.
[[nodiscard]] TextList LanguageFileNames(const Paths& paths);

// Loads the language file of that name, and lets the main window, the settings dialog and every
// open window that keeps a flag take its captions anew, in that order. The settings are not
// changed.
void ChooseLanguage(Program& program, std::string_view file_name);

// Asks, and on a Yes deletes the three standard language files, makes them anew, loads the language
// of the settings and lets every open window take its captions anew. Says that all are repaired
// when they are; a file that can't be deleted shows "#F4-16", one that can't be written its own
// box.
void RepairLanguageFiles(Program& program);

}  // namespace kelvora
