// The folders of the program and of one user: where they lie and how they come to be.
#pragma once

#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "core/program.h"

namespace kelvora {

// A folder of the platform by its number: 26 for settings of applications, 5 for the user's
// documents; empty for any other and where the platform can't tell.
[[nodiscard]] std::string GetSpecialFolder(const Folders& folders, int number);

// Fixes all paths and creates what is missing, before any file is touched. A folder that can't be
// created leads to no message here: the first file operation on it fails.
void DetermineFolders(Program& program);

// The users folder below the documents folder.
[[nodiscard]] std::string DefaultUsersPath(const Folders& folders);

// The folder of the category databases that come with the program.
[[nodiscard]] std::string ProgramDatabases(const Paths& paths);

// The folder of the user's own category databases, below the folder for the data of the user's
// programs; empty if that is. It is made when something is first written there.
[[nodiscard]] std::string UserDatabasesIn(const std::string& user_data);

// Takes the users folder of the settings, if `chk_map` asks for it.
void ApplyAlternativeUsersFolder(Program& program);

// Creates a folder with all its parents; false if that fails.
bool MakeFolder(const std::string& path);

// Creates the folder for what the program keeps for its next start, its user's alone; false if
// there is none.
bool MakeStateFolder(const Paths& paths);

// Creates the three folders of a user, whose name is used exactly as it was typed; what is new is
// the user's alone. A name that no folder can have gets none, which shows at the first write of the
// profile.
void MakeUserFolders(const Paths& paths, std::string_view name);

// The same in that folder of the users folder, which is there; the path ends in "/".
void MakeUserFoldersAt(const std::string& folder);

// The folder of the user of the open day: the one that its header names. A day without a name, or
// with one that no folder has, is the current user's; so it can be saved where it was opened.
[[nodiscard]] std::string FolderOfDay(const Program& program);

// Removes the folder of one user with all its content, write-protected or not. `path` must be a
// direct child of the users folder, or std::system_error is thrown; a link is removed as a
// link. Throws std::filesystem::filesystem_error.
void DeleteUserFolder(const Paths& paths, const std::string& path);

[[nodiscard]] std::string ProfileFile(const Paths& paths, std::string_view name);
[[nodiscard]] std::string CustomFile(const Paths& paths, std::string_view name);
[[nodiscard]] std::string FavoritesFile(const Paths& paths, std::string_view name);

// The same of a user's folder, whose path ends in "/".
[[nodiscard]] std::string ProfileFileIn(const std::string& folder);
[[nodiscard]] std::string CustomFileIn(const std::string& folder);
[[nodiscard]] std::string FavoritesFileIn(const std::string& folder);

// An entry of a folder: its name as text, in which a character that Windows-1252 lacks is "?", and
// its true path. Only the path leads to it for certain; that of a folder ends in "/".
struct FolderFile {
  Text name;
  std::string path;
};

// The entries of `path`, which ends in "/", sorted by name without regard to case; none if it can't
// be read. Hidden ones, which begin with a dot, are passed over. Files are those whose names end in
// `extension`, in capitals or not; given in small letters. What can't be read is listed too (a
// pipe, a link that leads nowhere), so that its reader can say so; as a folder counts what is no
// regular file. SubFoldersOf and FilesIn give the names only.
[[nodiscard]] std::vector<FolderFile> FoldersWithPathsIn(const std::string& path);
[[nodiscard]] std::vector<FolderFile> FilesWithPathsIn(const std::string& path,
                                                       std::string_view extension);
// As above, with what kept the folder from being read to its end.
[[nodiscard]] std::vector<FolderFile> FilesWithPathsIn(const std::string& path,
                                                       std::string_view extension,
                                                       std::error_code& failure);
[[nodiscard]] TextList SubFoldersOf(const std::string& path);
[[nodiscard]] TextList FilesIn(const std::string& path, std::string_view extension);

}  // namespace kelvora
