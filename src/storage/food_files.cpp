#include "storage/food_files.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <span>
#include <system_error>
#include <unordered_set>

#include "core/common.h"
#include "core/unread.h"
#include "language/common_texts.h"
#include "language/lists_texts.h"
#include "language/own_texts.h"
#include "storage/folders.h"
#include "storage/kept_files.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

constexpr std::string_view kEnding = ".dat";

using Populate = void (FoodListsView::*)();

void LoadUserList(Program& program, KeptFile& kept, const std::string& path, std::string_view code,
                  TextList& list, Populate populate) {
  const auto file = OpenKeptFile(kept, path);
  if (!file) return;
  program.Guard(code, [&] {
    program.platform.pointer.ShowWait();
    list.Clear();
    AppendFoodLines(file->ReadAll(), {}, list);
    MarkRead(kept);
    program.platform.pointer.Restore();
    if (program.windows.lists != nullptr) (program.windows.lists->*populate)();
  });
}

bool SaveUserList(Program& program, KeptFile& kept, const std::string& path, std::string_view code,
                  const TextList& list) {
  return WriteKeptFile(program, kept, path, code, Rec_ListLine{{PackBlock(list)}}.strings);
}

// The category of a file: its name, with the ending in small letters as searches have it.
Text CategoryOf(const FolderFile& file) {
  return file.name.substr(0, file.name.size() - kEnding.size()).append(kEnding);
}

// The category files of one folder.
std::vector<FolderFile> CategoryFilesIn(const std::string& folder, Unread& unread) {
  std::error_code failure;
  auto files = FilesWithPathsIn(folder, kEnding, failure);
  if (failure && failure != std::errc::no_such_file_or_directory) {
    unread.Add("Databases", std::system_error(failure));
  }
  return files;
}

// Those of the program, then those of the user; of two of one name the user's alone.
std::vector<FolderFile> CategoryFiles(const Paths& paths, Unread& unread) {
  auto files = CategoryFilesIn(ProgramDatabases(paths), unread);
  if (paths.UserDatabases.empty()) return files;
  auto of_user = CategoryFilesIn(paths.UserDatabases, unread);
  std::unordered_set<Text> names;
  for (const FolderFile& file : of_user) names.insert(CategoryOf(file));
  std::erase_if(files, [&](const FolderFile& file) { return names.contains(CategoryOf(file)); });
  std::ranges::move(of_user, std::back_inserter(files));
  return files;
}

// The line of that key that becomes a favourite; nothing if there is none.
std::optional<Text> CandidateOf(const KV_data& store, std::string_view key) {
  if (const auto own = store.Custom_list.FindFirst(key)) return Text(store.Custom_list[*own]);
  if (const auto standard = store.Default_list.FindLast(key)) {
    return Text(store.Default_list[*standard]);
  }
  return std::nullopt;
}

bool UserWantsTheCopy(Program& program) {
  const Box box{
      .title = Text(AppTitle),
      .text = JoinLines(program.texts, {lists_text::kCopyQuestion, lists_text::kCopySure}),
      .icon = BoxIcon::question,
      .buttons = BoxButtons::yes_no_cancel};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

// True if the category has a food that the own list lacks, and that a copy would thus lose.
bool HoldsOtherFoods(const KV_data& store, const std::string& category) {
  if (!FileExists(category)) return false;
  TextList foods;
  AppendFoodLines(ReadFile(category), {}, foods);
  const auto name_of = [](std::string_view line) { return line.substr(0, line.find(kFieldEnd)); };
  std::unordered_set<std::string_view> own;
  for (const std::string_view line : store.Custom_list) own.insert(name_of(line));
  return std::ranges::any_of(foods,
                             [&](std::string_view line) { return !own.contains(name_of(line)); });
}

// What says that this user may not write there, and not that the writing went wrong.
bool IsClosedToTheUser(const std::error_code& failure) {
  return failure == std::errc::permission_denied || failure == std::errc::operation_not_permitted ||
         failure == std::errc::read_only_file_system ||
         failure == std::errc::no_such_file_or_directory;
}

// Writes a category where it is found again: over the user's own one of that name, else beside the
// program, or, where that can't be written, into the user's folder.
void WriteCategory(const Paths& paths, const std::string& name, std::string_view bytes) {
  const bool has_place = !paths.UserDatabases.empty();
  const std::string of_user = paths.UserDatabases + name;
  if (!has_place || !FileExists(of_user)) {
    try {
      return WriteFileAnew(ProgramDatabases(paths) + name, bytes);
    } catch (const std::system_error& failure) {
      if (!has_place || !IsClosedToTheUser(failure.code())) throw;
    }
  }
  MakeFolder(paths.UserDatabases);
  WriteFileAnew(of_user, bytes);
}

// The file of that name that counts.
std::string CategoryFileNamed(const Paths& paths, const std::string& name) {
  const std::string of_user = paths.UserDatabases + name;
  return !paths.UserDatabases.empty() && FileExists(of_user) ? of_user
                                                             : ProgramDatabases(paths) + name;
}

bool UserGivesUpTheCategory(Program& program) {
  const Box box{
      .title = Text(AppTitle),
      .text = OwnTextWith(program.texts, OwnText::replace_category, program.paths.UserName),
      .icon = BoxIcon::question,
      .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

}  // namespace

void AppendFoodLines(std::string_view file_bytes, std::string_view closing_field, TextList& lines) {
  std::array<std::string_view, Rec_ListLine::kSize> block;
  if (!DecodeFirstRecord(file_bytes, std::span(block))) return;
  if (closing_field.empty()) return SplitBlock(block[0], lines);
  Text closing(closing_field);
  closing += kFieldEnd;
  SplitBlock(block[0], closing, lines);
}

void Load_Databases(Program& program) {
  program.Guard("#FF1-1", [&] {
    KV_data& store = program.store;
    program.platform.pointer.ShowWait();
    Unread unread;
    const auto files = CategoryFiles(program.paths, unread);
    store.database_lst.Clear();
    for (const FolderFile& file : files) store.database_lst.Add(file.name);
    store.Default_list.Clear();
    for (const FolderFile& file : files) {
      const Text category = CategoryOf(file);
      unread.Try(file.name, [&] {
        const std::string bytes = ReadFile(file.path);
        if (!CategoryKnown(store, category)) store.lst_categorien.Add(category);
        AppendFoodLines(bytes, category, store.Default_list);
      });
    }
    program.platform.pointer.Restore();
    unread.Report(program.FailurePath(), "#FF1-1");
  });
}

void Load_Custom(Program& program, const std::string& path) {
  LoadUserList(program, program.kept.custom, path, "#FF1-2", program.store.Custom_list,
               &FoodListsView::Populate_Food_List_Custom);
}

void Load_Favorites(Program& program, const std::string& path) {
  LoadUserList(program, program.kept.favourites, path, "#FF1-3", program.store.Favorites_list,
               &FoodListsView::Populate_Food_List_Favo);
}

bool CanBeFavourite(const KV_data& store, std::string_view key) {
  return CandidateOf(store, key).has_value();
}

void Add_To_Favorites(Program& program, std::string_view key) {
  using namespace common_text;
  program.Guard("#FF8-0", [&] {
    KV_data& store = program.store;
    const auto line = CandidateOf(store, key);
    if (!line) return;
    if (std::ranges::find(store.Favorites_list, *line) != store.Favorites_list.end()) {
      Tell(program, BoxIcon::warning,
           JoinLines(program.texts, {kFavouriteExists, kFavouriteOnlyOnce}));
      return;
    }
    store.Favorites_list.Add(*line);
    const bool saved =
        Save_Favorites(program, FavoritesFile(program.paths, program.paths.UserName));
    if (program.windows.lists != nullptr) program.windows.lists->Populate_Food_List_Favo();
    if (saved) Tell(program, BoxIcon::information, program.texts[kFavouriteAdded]);
  });
}

void CopyOwnListToDatabases(Program& program) {
  program.Guard("#F11-2", [&] {
    if (!UserWantsTheCopy(program)) return;
    const Paths& paths = program.paths;
    const std::string bytes = ReadFile(CustomFile(paths, paths.UserName));
    const std::string category = Utf8FromText(paths.UserName) + ".dat";
    if (HoldsOtherFoods(program.store, CategoryFileNamed(paths, category)) &&
        !UserGivesUpTheCategory(program)) {
      return;
    }
    WriteCategory(paths, category, bytes);
    Load_Databases(program);
    FoodListsView* const lists = program.windows.lists;
    if (lists == nullptr) return;
    lists->Toon_Standaardlijst();
    lists->Populate_Food_List_Custom();
    lists->Populate_Food_List_Favo();
  });
}

bool Save_Favorites(Program& program, const std::string& path) {
  return SaveUserList(program, program.kept.favourites, path, "#FF1-4",
                      program.store.Favorites_list);
}

bool Save_Custom(Program& program, const std::string& path) {
  return SaveUserList(program, program.kept.custom, path, "#FF1-5", program.store.Custom_list);
}

}  // namespace kelvora
