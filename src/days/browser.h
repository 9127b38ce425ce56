// The browser of users and days: what its list shows of each day file, in which order, and what
// choosing a user or opening a day does. Day files are read in bulk here, without touching the open
// day.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/program.h"

namespace kelvora {

struct BrowseColumn {
  enum : std::size_t { kNumber, kPath, kFile, kDate, kDay, kWeight, kBmi, kNutrient, kCount };
};

// One day file of the list, ready to be shown.
struct DayRow {
  std::string folder;  // UTF-8, with its closing "/"
  Text file_name;
  std::array<Text, BrowseColumn::kCount> cells;
};

// The headings of the list; the last is that of the user's priority nutrient.
[[nodiscard]] std::array<Text, BrowseColumn::kCount> BrowseHeadings(const Program& program);

// The key that puts stored dates (dd-mm-yy) in order: year, month and day as one text. Years count
// with their two digits: 99 comes after 04. Marks and blanks don't matter.
[[nodiscard]] Text DateKeyOf(std::string_view stored_date);

// The order that a plain exchange sort over all pairs leaves: for each i, for each j, entries i and
// j change places when key i is less than key j. Ascending; what stood behind what among equal keys
// is not kept, but the same keys always give the same order. Lets the event loop run after each
// pass. Returns places in `keys`.
[[nodiscard]] std::vector<std::size_t> ExchangeSorted(const std::vector<double>& keys,
                                                      Events& events);

// The day files of the current user, oldest date first. A file that can't be read ends the list
// with "#F3-0"; a failure while rows are made shows "#F3-1". Both leave the rows made so far. Other
// events run meanwhile, and may call this again.
[[nodiscard]] std::vector<DayRow> ReadDays(Program& program);

// The names that the user list shows. A user without a readable profile ends the list with
// "#F3-2".
[[nodiscard]] TextList UsersToBrowse(Program& program);

enum class UserSwitch { same, refused, switched };

// Makes `name` the current user after closing the open day, for which it asks first, and lets the
// browser rebuild its days. A failure shows "#F3-3".
UserSwitch SwitchUser(Program& program, std::string_view name);

// Opens the day of a row and closes the browser. A refusal of the user, or a file that is gone,
// leaves everything as it is.
void OpenDayOf(Program& program, const DayRow& row);

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
