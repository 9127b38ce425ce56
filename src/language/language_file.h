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

// Fills the tables from the file. A file that is absent changes nothing and says nothing; one that
// can't be read or holds no record shows a box.
void Load_Language_File(Program& program, const std::string& path);

// Writes all tables as they stand. A failure shows a box.
void Save_Language_File(Program& program, const std::string& path);

// The version that a language file says it has: "0" if the file is absent, "" after the box of a
// file that can't be read. Leaves the file's own information in its table, each entry one place too
// high: the caller loads a file next.
[[nodiscard]] Text Get_Language_Version(Program& program, const std::string& path);

// Makes sure that the three standard files exist and carry the program's version, and rewrites
// those that don't. That leaves built-in texts in the tables: the caller loads a file next. A
// failure shows "#FF8-13".
void Check_Language_Files(Program& program);

// The names of the files that the program makes by itself, in the order in which a repair deletes
// them.
[[nodiscard]] std::span<const std::string_view> StandardLanguageFiles();

// Loads the file that the settings name.
void LoadChosenLanguage(Program& program);

// The tables as a record, and a record laid over the tables.
[[nodiscard]] Rec_Language JoinTables(const TextTables& texts);
void SplitTables(const Rec_Language& record, TextTables& texts);

}  // namespace kelvora
