#include "storage/food_files.h"

#include <algorithm>

#include "core/common.h"
#include "storage/folders.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

using Populate = void (FoodListsView::*)();

// The block of lines in a food file; empty if the file counts no record.
Text BlockOf(const std::string& path) {
  auto record = ReadFirstRecord<Rec_ListLine>(path);
  return record ? std::move(record->strings[0]) : Text();
}

void LoadUserList(Program& program, const std::string& path, std::string_view code, TextList& list,
                  Populate populate) {
  if (!FileExists(path)) return;
  program.Guard(code, [&] {
    program.platform.pointer.ShowWait();
    list.Clear();
    SplitBlock(BlockOf(path), list);
    program.platform.pointer.Restore();
    if (program.windows.lists != nullptr) (program.windows.lists->*populate)();
  });
}

void SaveUserList(Program& program, const std::string& path, std::string_view code,
                  const TextList& list) {
  program.Guard(code, [&] {
    program.platform.pointer.ShowWait();
    WriteRecord(path, Rec_ListLine{{PackBlock(list)}});
    program.platform.pointer.Restore();
  });
}

void AddCategory(TextList& categories, std::string_view name) {
  if (std::ranges::find(categories, name) == categories.end()) categories.Add(name);
}

}  // namespace

void Load_Databases(Program& program) {
  program.Guard("#FF1-1", [&] {
    KV_data& store = program.store;
    program.platform.pointer.ShowWait();
    const std::string folder = program.paths.ProgramPath + "Databases/";
    store.database_lst = FilesIn(folder, ".dat");
    store.Default_list.Clear();
    for (const Text& file : store.database_lst) {
      AddCategory(store.lst_categorien, file);
      TextList lines;
      SplitBlock(BlockOf(folder + Utf8FromText(file)), lines);
      for (const Text& line : lines) store.Default_list.Add(line + file + kFieldEnd);
    }
    program.platform.pointer.Restore();
  });
}

void Load_Custom(Program& program, const std::string& path) {
  LoadUserList(program, path, "#FF1-2", program.store.Custom_list,
               &FoodListsView::Populate_Food_List_Custom);
}

void Load_Favorites(Program& program, const std::string& path) {
  LoadUserList(program, path, "#FF1-3", program.store.Favorites_list,
               &FoodListsView::Populate_Food_List_Favo);
}

void Save_Favorites(Program& program, const std::string& path) {
  SaveUserList(program, path, "#FF1-4", program.store.Favorites_list);
}

void Save_Custom(Program& program, const std::string& path) {
  SaveUserList(program, path, "#FF1-5", program.store.Custom_list);
}

}  // namespace kelvora
