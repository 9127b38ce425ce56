// Food lists in files: the category databases beside the program and the lists of each user. A
// whole list is one string, a block of food lines.
#pragma once

#include <string>

#include "core/program.h"

namespace kelvora {

// Fills `Default_list` from every category file, in order of name; each line gets the file's name
// as its last field. `lst_categorien` grows by the names it lacks. A failure shows "#FF1-1" and
// leaves the list as far as it came.
void Load_Databases(Program& program);

// Fill the list of a user from `path` and let an open food lists window rebuild its view. A file
// that can't be opened changes nothing; a failure shows "#FF1-2" or "#FF1-3".
void Load_Custom(Program& program, const std::string& path);
void Load_Favorites(Program& program, const std::string& path);

// Write the list of a user. A failure shows "#FF1-5" or "#FF1-4".
void Save_Custom(Program& program, const std::string& path);
void Save_Favorites(Program& program, const std::string& path);

}  // namespace kelvora
