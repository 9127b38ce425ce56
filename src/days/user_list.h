// The list of users that the day dialog and the browser show: one user a folder of `UsersPath`,
// known by that folder.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/program.h"
#include "core/unread.h"

namespace kelvora {

// A user as a list shows it. Two of them may look alike: `folder_name` tells them apart.
struct User {
  Text name;
  std::string folder_name;  // as it is on disk, UTF-8

  bool operator==(const User&) const = default;
};

// The user whose folder is to be named after `name`.
[[nodiscard]] User UserNamed(std::string_view name);

// Whether this is the current user.
[[nodiscard]] bool IsCurrent(const Program& program, const User& user);

// Whether the folder of this user is still there.
[[nodiscard]] bool HasFolder(const Program& program, const User& user);

// False for a profile that bears another name, or none: it says nothing of this user, and nobody is
// given another's data.
[[nodiscard]] bool BelongsTo(const Rec_Profile& profile, std::string_view name);

// The users and what could not be read of them.
struct UserList {
  std::vector<User> users;
  Unread unread;
};

// The user to begin with when none is chosen and no day is open: the only one there is. Nothing
// where there are several, or something in the list could not be read.
[[nodiscard]] std::optional<User> OnlyUser(const Program& program, const UserList& list);

// Reads the name in each user's profile, in order of the folders, and leaves the names of the
// folders in `lst_data_dir`. A folder without a readable profile, or with one that holds no name,
// is shown by its own name; what is no folder, or can't be entered, is passed over.
//
// The working copy in `program.profile` goes on holding the last profile that was loaded: a list
// reads its files by itself. Were the copy to take what the list reads last, the windows of the
// open day would show the targets of whoever stands last in the list, and the next save of the
// profile could give them to the current user.
[[nodiscard]] UserList ReadUsers(Program& program);

}  // namespace kelvora
