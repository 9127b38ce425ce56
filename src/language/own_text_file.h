// The companion of a language file: the program's own texts in that language. `English.own` stands
// beside `English.lsf`, one record of one string: the version of the program that wrote it, then
// the texts in the order of OwnText, each closed by kLineEnd. New texts come at the end only.
#pragma once

#include <string>

#include "language/own_texts.h"

namespace kelvora {

// The companion of the language file at `path`.
[[nodiscard]] std::string OwnTextFile(const std::string& path);

// Takes the own texts of the companion into the tables. What it lacks is empty there, all of it if
// it is absent or can't be read: OwnTextOf then gives the English text.
void LoadOwnTexts(const std::string& path, TextTables& texts);

// Writes the own texts of the tables to the companion. Throws std::system_error.
void SaveOwnTexts(const std::string& path, const TextTables& texts);

// True if the companion is of this version and holds as many texts as the program has.
[[nodiscard]] bool OwnTextsAreCurrent(const std::string& path);

}  // namespace kelvora
