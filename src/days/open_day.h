// How a day and a user become the current ones: the flows around the day file.
#pragma once

#include "core/program.h"
#include "days/user_list.h"

namespace kelvora {

// The command "New file": drops the open day if the user agrees and shows the day dialog.
void BeginNewDay(Program& program);

// Makes `user` the current one and loads the profile, the own list and the favourites.
void ChooseUser(Program& program, const User& user);

// Makes `user` the current one. The profile, the own foods and the favourites of another one go, so
// that they are neither shown to this user nor saved into this user's files, which need not exist
// yet.
void TakeOver(Program& program, const User& user);

// Loads the own list and the favourites of the current user. What could not be saved is newer than
// its file and stays.
void LoadFoodsOfUser(Program& program);

// Empties the own list and the favourites, in an open window too.
void ForgetFoodsOfUser(Program& program);

// Lets an open food lists window rebuild the views of the own list and the favourites.
void ShowFoodsOfUser(Program& program);

// The common tail of opening a day: closes the browser, arranges the windows and re-totals. A
// recalculation alone is no change, so the day is unchanged afterwards.
void AfterOpenDay(Program& program);

}  // namespace kelvora
