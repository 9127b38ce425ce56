// The day dialog without its picture: how a form is opened for a new day or for the open one, and
// what confirming and cancelling do. The two modes share everything behind the tests of the form
// but the beginning of the day.
//
// What is typed stays in the form. With `chk_apply` a moved slider reaches the working copy of the
// profile at once; cancelling brings back what stood there.
#pragma once

#include <optional>

#include "days/day_form.h"
#include "days/user_list.h"

namespace kelvora {

struct DayEditing {
  DayDialogMode mode = DayDialogMode::new_day;
  DayForm form;
  // The user that was chosen in the list; none while a new one is typed.
  std::optional<User> user;
  // The working copy and the trend text as they were before something was applied at once.
  Rec_Profile kept_profile;
  Text kept_trend;
  bool applied_at_once = false;
  bool start_failed = false;
  bool confirmed = false;
  // The name of the box that a refused form is to be changed in; empty if there is none.
  std::string_view look_at;
};

// The form of someone who has not filled in anything yet, dated today.
[[nodiscard]] DayForm NewUserForm(const Program& program);

// Begins in the mode of the program, with the form of a new user.
[[nodiscard]] DayEditing OpenDayEditing(const Program& program);

// Shows "#F2-0" if the list of users could not be read whole; for when it can be seen.
void TellOfUnreadUsersForDay(Program& program, const UserList& list);

// Makes `user` the current one and gives the form of the profile, dated today. A profile that can't
// be read or bears another name leaves the person empty. A failure shows "#F2-1". False with
// nothing changed if work of the user before could not be saved and is not to be left.
bool ChooseUserForDay(Program& program, DayEditing& editing, const User& user);

// Gives the form of a new user, whose name is still to be typed.
void BeginNewUser(Program& program, DayEditing& editing);

// Gives the form of the open day: the profile of the current user, read anew, with weight, age,
// weekday and date of the day. A failure shows "#F2-4".
void EditOpenDay(Program& program, DayEditing& editing);

// The title of the dialog, and the line above the tabs by the number of users there are.
[[nodiscard]] TextId TitleOf(DayDialogMode mode);
[[nodiscard]] TextId InstructionFor(DayDialogMode mode, std::size_t users);

// Copies the form into the working copy of the profile, refreshes the windows that show the day and
// re-totals it.
void Apply_To_Profile(Program& program, const DayForm& form);

// Does so for a moved slider or another priority, if `chk_apply` asks for it. A failure shows
// "#F2-5".
void ApplyAtOnce(Program& program, DayEditing& editing);

[[nodiscard]] bool AppliesAtOnce(const Program& program);

// Sets `chk_apply`; saves the settings at once.
void SetAppliesAtOnce(Program& program, bool applies);

// The day header of the form: fifteen rows.
[[nodiscard]] TextList HeaderOf(const DayForm& form);

// Confirms the form. A new day makes the folders of its user, makes that user current and names the
// day file; a user of that name keeps all days. Both modes then bring the form into the store and
// the profile file, which is written anew. False with nothing changed after the box of a failed
// test, and false after a failure, which shows "#F2-3". A profile that can't be written shows its
// own box and is false too, with user, day and working copy as they were before: a day must not go
// on whose folder takes no files.
[[nodiscard]] bool ConfirmDay(Program& program, DayEditing& editing);

// Shows the windows of a day that was begun; an open day keeps those it has.
void ArrangeAfterConfirming(Program& program, const DayEditing& editing);

// Takes back what was applied at once. A new day that failed half-way is absent again. Does nothing
// once the form was confirmed. A failure shows "#F2-6".
void CancelDay(Program& program, DayEditing& editing);

enum class UserRemoval { refused, removed };

// Asks, and removes the folder of a user with all its content. A removed user who was the current
// one leaves none: name, working copy and food lists go, so that nobody else gets them. Of an open
// day nothing is lost: it stays in memory, and counts as unsaved if it was that user's. An open
// browser rebuilds its lists after either answer. A failure shows "#F2-7" and counts as a refusal.
UserRemoval RemoveUser(Program& program, DayEditing& editing, const User& user);

}  // namespace kelvora
