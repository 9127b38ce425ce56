// How a day and a user become the current ones: the flows around the day file.
#pragma once

#include "core/program.h"

namespace kelvora {

// The command "New file": drops the open day if the user agrees and shows the day dialog.
void BeginNewDay(Program& program);

// Makes `name` the current user and loads the profile, the own list and the favourites.
void ChooseUser(Program& program, std::string_view name);

// Makes `name` the current user. The own foods and the favourites of another one go, so that they
// are neither shown to this user nor saved into this user's files, which need not exist yet.
void TakeOver(Program& program, std::string_view name);

// Empties the own list and the favourites, in an open window too.
void ForgetFoodsOfUser(Program& program);

// The common tail of opening a day: closes the browser, arranges the windows and re-totals. A
// recalculation alone is no change, so the day is unchanged afterwards.
void AfterOpenDay(Program& program);

}  // namespace kelvora
