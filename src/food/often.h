// What the current user ate most in the weeks before the open day, from the day files. They are
// read in small steps while nothing else is to do; nothing here shows or asks anything.
#pragma once

#include <array>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/program.h"
#include "storage/folders.h"

namespace kelvora {

// The part of the day that a time belongs to: before 12, before 18, after.
[[nodiscard]] DayPart PartOfTime(const LocalTime& time);

class OftenEaten {
 public:
  // The days that count: so many before the date of the open day, that one excluded.
  static constexpr int kDays = 60;
  // No more foods than this are listed.
  static constexpr std::size_t kMostFoods = 100;

  explicit OftenEaten(Program& program);

  // Reads one file more; false when there is nothing left. A file that can't be read counts as one
  // in which nothing was eaten: whoever opens the list of days is told of it.
  bool Read();

  // The foods, one line for each name, as it was eaten last: first those that were eaten in this
  // part of the day at least as often as in each other, then the rest; among these the most
  // portions first, of equal ones the latest. Of what has been read so far.
  [[nodiscard]] TextList Foods(DayPart part) const;

 private:
  struct Food {
    std::array<std::size_t, kDayParts.size()> portions{};
    std::size_t all = 0;
    int last_day = 0;
    Text line;  // of that day
  };

  void Take(std::string_view bytes);
  void Count(DayPart part, int day, std::string_view line);

  int open_day_ = 0;
  std::vector<FolderFile> files_;
  std::size_t next_ = 0;
  std::unordered_map<Text, Food> foods_;  // by name
};

}  // namespace kelvora
