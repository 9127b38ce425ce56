#include "days/open_day.h"

#include "nutrition/totals.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/profile_file.h"

namespace kelvora {

void BeginNewDay(Program& program) {
  if (!MayDropDayForNewOne(program)) return;
  CloseDay(program);
  if (program.windows.core != nullptr) program.windows.core->OpenWindow(WindowId::day_settings);
}

void ChooseUser(Program& program, std::string_view name) {
  const Text user(name);
  TakeOver(program, user);
  Load_Profile(program, ProfileFile(program.paths, user));
  Load_Custom(program, CustomFile(program.paths, user));
  Load_Favorites(program, FavoritesFile(program.paths, user));
  FollowSettings(program);
}

void TakeOver(Program& program, std::string_view name) {
  const bool another = program.paths.UserName != name;
  SetCurrentUser(program, name);
  if (another) ForgetFoodsOfUser(program);
}

void ForgetFoodsOfUser(Program& program) {
  program.kept.custom = {};
  program.kept.favourites = {};
  program.store.Custom_list.Clear();
  program.store.Favorites_list.Clear();
  if (FoodListsView* const lists = program.windows.lists) {
    lists->Populate_Food_List_Custom();
    lists->Populate_Food_List_Favo();
  }
}

void AfterOpenDay(Program& program) {
  if (program.windows.browser != nullptr) program.windows.browser->CloseWindow();
  if (CoreView* const core = program.windows.core) {
    core->UpdateCommands();
    core->ArrangeWindows();
  }
  Refresh_Totalen(program);
  SetFileChanged(program, false);
}

}  // namespace kelvora
