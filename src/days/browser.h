// The browser of users and days: what choosing a user, opening a day and deleting one do, and the
// profile that it shows. Which days there are and in which order stands in day_list.h.
#pragma once

#include <array>
#include <string_view>

#include "core/program.h"
#include "days/day_list.h"
#include "days/user_list.h"

namespace kelvora {

// Shows "#F3-2" if the list of users could not be read whole; for when it can be seen.
void TellOfUnreadUsers(Program& program, const UserList& list);

enum class UserSwitch { same, refused, switched };

// Makes `user` the current one after closing the open day, for which it asks first, as for work of
// the user before that could not be saved, and lets the browser rebuild its days. A failure shows
// "#F3-3". A folder that is gone is such a failure: nothing changes then, and the browser rebuilds
// its users.
UserSwitch SwitchUser(Program& program, const User& user);

// Opens the day of a row and closes the browser. A refusal of the user leaves everything as it is.
// A file that is gone or can't be opened shows "#F3-5", and the browser rebuilds its days; so does
// one whose name this program can't hold, which leaves everything as it is.
void OpenDayOf(Program& program, const DayRow& row);

// Deletes the file of a row if the user agrees, and lets the browser rebuild its days; true if so.
// The open day stays in memory, whichever is deleted. A failure shows "#F3-6" and leaves the list.
bool DeleteDayOf(Program& program, const DayRow& row);

// The profile pane: its heading, and reference ID, last weight, goal weight, height, gender and age
// in the units of the settings. A failure shows "#F3-4" and leaves the pane as far as it came.
struct ProfilePane {
  Text heading;
  std::array<Text, 6> lbl_pr;
};
[[nodiscard]] ProfilePane ProfilePaneOf(Program& program);

[[nodiscard]] bool ProfilePaneShown(const Program& program);

// Shows or hides the pane from now on; saves the settings at once.
void SetProfilePaneShown(Program& program, bool shown);

}  // namespace kelvora
