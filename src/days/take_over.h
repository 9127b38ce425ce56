// Taking over what was eaten on another day: the days of the current user to choose from, the foods
// of one of them, and putting those that are chosen into the same parts of the open day.
//
// The days are read in small steps, so that whoever takes them can let other events run in between
// and stop at any of them. Nothing here changes a day file.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/program.h"
#include "core/unread.h"
#include "days/stored_day.h"

namespace kelvora {

// One day to take from, ready to be shown. `energy` is in kilocalories for whoever gives them
// priority, else in kilojoules. A file that holds no record has its name for a date and nothing
// else.
struct OtherDay {
  std::string path;
  Text date, weekday, energy;
};

class OtherDays {
 public:
  explicit OtherDays(Program& program);

  // Reads one file more; false when there is nothing left. The last step puts the days in order and
  // tells of what could not be read, in one box with "#F20-0".
  bool Read();

  // Newest first; none before all are read.
  [[nodiscard]] const std::vector<OtherDay>& Days() const { return days_; }
  // The place in Days() of the one to begin with: the newest before the open day, else the first.
  [[nodiscard]] std::optional<std::size_t> First() const { return first_; }

 private:
  void Finish();
  [[nodiscard]] OtherDay RowOf(const StoredDay& day) const;

  Program& program_;
  std::vector<FolderFile> files_;
  std::size_t next_ = 0;
  std::vector<StoredDay> read_;
  Unread unread_;
  std::vector<OtherDay> days_;
  std::optional<std::size_t> first_;
};

// The heading of the energy of days and foods.
[[nodiscard]] const Text& EnergyHeading(const Program& program);

// Equal lines of one part of a day.
struct DayFood {
  Text line;
  std::size_t count = 0;
  Text product, unit, energy;  // the energy of all of them
  bool operator==(const DayFood&) const = default;
};
using DayFoods = std::array<std::vector<DayFood>, kDayParts.size()>;

// What was eaten on a day, in the order of first appearance; nothing in a file without a record. A
// failure shows "#F20-1".
[[nodiscard]] DayFoods FoodsOfDay(Program& program, const std::string& path);

// Adds foods to the same parts of the open day, all of them or none: false, with the message of a
// drop above the limit, if one of the parts would have too many. One change, to be undone as one.
// Nothing chosen changes nothing.
bool TakeOver(Program& program, const DayFoods& chosen);

}  // namespace kelvora
