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

void ChooseUser(Program& program, const User& user) {
  TakeOver(program, user);
  Load_Profile(program, ProfileFile(program.paths, program.paths.UserName));
  LoadFoodsOfUser(program);
  FollowSettings(program);
}

void LoadFoodsOfUser(Program& program) {
  const Paths& paths = program.paths;
  if (!program.kept.custom.unwritten) Load_Custom(program, CustomFile(paths, paths.UserName));
  if (!program.kept.favourites.unwritten) {
    Load_Favorites(program, FavoritesFile(paths, paths.UserName));
  }
}

void TakeOver(Program& program, const User& user) {
  const bool another = !IsCurrent(program, user);
  SetCurrentUser(program, user.name, user.folder_name);
  if (!another) return;
  program.kept.profile = {};
  program.kept.stored_profile.reset();
  program.profile = DefaultsOfNewUser();
  program.profile[ProfileField::name] = user.name;
  ForgetFoodsOfUser(program);
  if (program.windows.core != nullptr) program.windows.core->UpdateStatusBar();
}

void ForgetFoodsOfUser(Program& program) {
  program.kept.custom = {};
  program.kept.favourites = {};
  program.store.Custom_list.Clear();
  program.store.Favorites_list.Clear();
  ShowFoodsOfUser(program);
}

void ShowFoodsOfUser(Program& program) {
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
  NoteDayAsOpened(program);
  SetFileChanged(program, false);
}

}  // namespace kelvora
