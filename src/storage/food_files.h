// Food lists in files: the category databases beside the program and the lists of each user. A
// whole list is one string, a block of food lines.
#pragma once

#include <string>
#include <string_view>

#include "core/program.h"

namespace kelvora {

// Fills `Default_list` from every category file, those of the program and then those of the user,
// each in order of name; of two of one name the user's counts. Each line gets the file's name as
// its last field. `lst_categorien` grows by the names it lacks. Files that can't be read are
// passed over; one box with "#FF1-1" names them at the end.
void Load_Databases(Program& program);

// Both lists are kept files, see kept_files.h. Fill the list of a user from `path` and let an open
// food lists window rebuild its view. A file that can't be opened changes nothing; a failure shows
// "#FF1-2" or "#FF1-3".
void Load_Custom(Program& program, const std::string& path);
void Load_Favorites(Program& program, const std::string& path);

// Write the list of a user, asking first where it would replace what was never read; true if it
// lies on the disk now. A failure shows "#FF1-5" or "#FF1-4".
bool Save_Custom(Program& program, const std::string& path);
bool Save_Favorites(Program& program, const std::string& path);

// Adds the lines of a food file's image to `lines`. A `closing_field` that is not empty becomes one
// more field of every line.
void AppendFoodLines(std::string_view file_bytes, std::string_view closing_field, TextList& lines);

// True if a line of the standard or the own list begins with the key.
[[nodiscard]] bool CanBeFavourite(const KV_data& store, std::string_view key);

// Marks a food as favourite, saves the favourites of the current user and tells so. `key` is a name
// and its closing kFieldEnd; the last line of the standard list that begins with it counts, but the
// first one of the own list overrides it. A line that is a favourite already leads to a warning and
// nothing else; a key that no line begins with leads to nothing. A failure shows "#FF8-0".
void Add_To_Favorites(Program& program, std::string_view key);

// Asks, once more if a category of that name has foods that the own list lacks, and on a Yes copies
// the own list of the current user, byte for byte, to a category database named after the user,
// beside the program or, where that can't be written, in the user's own folder,
// then loads all databases again and lets an open food lists window rebuild its views. A failure
// shows "#F11-2".
void CopyOwnListToDatabases(Program& program);

}  // namespace kelvora
