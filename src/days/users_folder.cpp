#include "days/users_folder.h"

#include <algorithm>
#include <array>

#include "language/own_texts.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

// A file that every user has, with what memory knows of it, what writes and what reads it.
struct UserFile {
  KeptFile KeptFiles::*kept;
  std::string (*path)(const Paths& paths, std::string_view user);
  bool (*save)(Program& program, const std::string& path);
  void (*load)(Program& program, const std::string& path);
};
constexpr std::array kUserFiles = {
    UserFile{&KeptFiles::profile, &ProfileFile, &Save_Profile, &Load_Profile},
    UserFile{&KeptFiles::custom, &CustomFile, &Save_Custom, &Load_Custom},
    UserFile{&KeptFiles::favourites, &FavoritesFile, &Save_Favorites, &Load_Favorites},
};

Paths PathsWith(const Paths& paths, const std::string& users_path) {
  Paths moved = paths;
  moved.UsersPath = users_path;
  moved.FilesPath = UserFolder(moved, moved.UserName) + "Files/";
  return moved;
}

// True for a file that is no copy of the one in the old folder.
bool IsOther(const std::string& path, const std::string& old_path) {
  return FileExists(path) && !(FileExists(old_path) && ReadFile(path) == ReadFile(old_path));
}

std::string DayPath(const Program& program, const Paths& paths) {
  return paths.FilesPath + NameOfDayFile(program);
}

bool OtherDayLiesThere(const Program& program, const Paths& there) {
  return program.store.DayIsOpen() &&
         IsOther(DayPath(program, there), DayPath(program, program.paths));
}

bool OtherDataLiesThere(const Program& program, const Paths& there) {
  const Paths& here = program.paths;
  return OtherDayLiesThere(program, there) ||
         std::ranges::any_of(kUserFiles, [&](const UserFile& file) {
           return IsOther(file.path(there, there.UserName), file.path(here, here.UserName));
         });
}

bool UserWantsItReplaced(Program& program) {
  const TextTables& texts = program.texts;
  const Box box{.title = Text(AppTitle),
                .text = OwnTextOf(texts, OwnText::folder_holds_other_data) + "\n" +
                        OwnTextOf(texts, OwnText::folder_replace_question) + "\n\n" +
                        OwnTextOf(texts, OwnText::folder_press_no),
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

// What could not be read in the old folder is no data to write in the new one.
bool WasNotRead(const Program& program, const UserFile& file) {
  const KeptFile& kept = program.kept.*file.kept;
  return !kept.truly_read && kept.path == file.path(program.paths, program.paths.UserName);
}

// Writes what is not there yet, or everything; false after the box of the first that fails. What
// memory knows of the files is that of the old folder then.
bool WriteUserFiles(Program& program, const Paths& there, bool replace) {
  const KeptFiles before = program.kept;
  MakeUserFolders(there, there.UserName);
  const bool written = std::ranges::all_of(kUserFiles, [&](const UserFile& file) {
    const std::string path = file.path(there, there.UserName);
    if (WasNotRead(program, file)) return true;
    if (replace) DeleteFileIfThere(path);
    return FileExists(path) || file.save(program, path);
  });
  if (!written) program.kept = before;
  return written;
}

// Takes over what was there already. Work that no file holds yet stays, and counts as unsaved.
void ReadUserFiles(Program& program, const Paths& there) {
  for (const UserFile& file : kUserFiles) {
    const std::string path = file.path(there, there.UserName);
    const KeptFile& kept = program.kept.*file.kept;
    if (kept.path != path && !kept.unwritten) file.load(program, path);
  }
}

// The open day is not in the new folder before it is saved there.
void TakeDayAlong(Program& program, bool needs_name) {
  if (!program.store.DayIsOpen()) return;
  if (needs_name) {
    const Platform& platform = program.platform;
    program.store.KV_bestand = NewDayFileName(platform.locale, platform.clock.Now());
  }
  if (!FileExists(DayPath(program, program.paths))) SetFileChanged(program, true);
}

}  // namespace

bool ChangeUsersFolder(Program& program, const std::string& users_path) {
  if (users_path == program.paths.UsersPath) return true;
  const Paths there = PathsWith(program.paths, users_path);
  if (program.paths.UserName.empty()) {
    program.paths = there;
    return true;
  }
  const bool other_data = OtherDataLiesThere(program, there);
  const bool other_day = OtherDayLiesThere(program, there);
  const bool replace = other_data && UserWantsItReplaced(program);
  if (!WriteUserFiles(program, there, replace)) return false;
  program.paths = there;
  ReadUserFiles(program, there);
  TakeDayAlong(program, other_day && !replace);
  if (replace) AcceptDayFileThere(program);
  if (BrowserView* const browser = program.windows.browser) {
    browser->Refresh_GebruikersLijst();
    browser->Refresh_Files();
  }
  Tell(program, BoxIcon::information,
       OwnTextOf(program.texts, OwnText::folder_from_now_on) + " " + TextFromUtf8(users_path));
  return true;
}

}  // namespace kelvora
