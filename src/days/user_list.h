// The list of users that the day dialog and the browser show: one user a folder of `UsersPath`.
#pragma once

#include "core/program.h"

namespace kelvora {

// Adds the name in each user's profile to `names`, in order of the folders, and leaves the folders
// in `lst_data_dir`. Throws at the first folder without a readable profile, with the names before
// it added.
//
// The working copy in `program.profile` goes on holding the last profile that was loaded: a list
// reads its files by itself. Were the copy to take what the list reads last, the windows of the
// open day would show the targets of whoever stands last in the list, and the next save of the
// profile could give them to the current user.
void ReadUserNames(Program& program, TextList& names);

}  // namespace kelvora
