// Language files: the 26 text tables as one record, each table one string in which every entry is
// closed by kLineEnd. A short file overlays the tables instead of replacing them.
//
// The boxes of this file are fixed English in every language: a failing language file can't
// deliver their texts.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/program.h"

namespace kelvora {

using Rec_Language = Record<TextTable, kTextTableCount>;

// Fills the tables from the file and the own texts from its companion. A file that is absent
// changes nothing and says nothing; one that can't be read or holds no record shows a box.
void Load_Language_File(Program& program, const std::string& path);

// Writes all tables as they stand, the own texts to the companion. False after the box of a
// failure.
bool Save_Language_File(Program& program, const std::string& path);

// The version that a language file says it has: "0" if the file is absent, "" after the box of a
// file that can't be read. Leaves the file's own information in its table, each entry one place too
// high: the caller loads a file next.
[[nodiscard]] Text Get_Language_Version(Program& program, const std::string& path);

// Makes sure that the three standard files and their companions exist and carry the program's
// version, and rewrites those that don't. That leaves built-in texts in the tables: the caller
// loads a file next. False if one could not be written; a box has said so. A failure shows
// "#FF8-13".
bool Check_Language_Files(Program& program);

// The names of the files that the program makes by itself, in the order in which a repair deletes
// them.
[[nodiscard]] std::span<const std::string_view> StandardLanguageFiles();

// Fills the tables with the texts of "default.lsf", or the built-in English ones where it can't be
// read. Says nothing.
void FillWithDefaultTexts(Program& program);

// Loads the file that the settings name over those texts: what it lacks has words all the same.
void LoadChosenLanguage(Program& program);

// The tables as a record, and a record laid over the tables.
[[nodiscard]] Rec_Language JoinTables(const TextTables& texts);
void SplitTables(const Rec_Language& record, TextTables& texts);

}  // namespace kelvora
