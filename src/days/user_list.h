// The list of users that the day dialog and the browser show: one user a folder of `UsersPath`.
#pragma once

#include "core/program.h"

namespace kelvora {

// Adds the name in each user's profile to `names`, in order of the folders, and leaves the folders
// in `lst_data_dir`. The working copy of the current user stays untouched. Throws at the first
// folder without a readable profile, with the names before it added.
void ReadUserNames(Program& program, TextList& names);

}  // namespace kelvora
