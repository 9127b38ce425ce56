// The name of the weekday in the day dialog: that of the date, as long as nobody has typed another.
#pragma once

#include <optional>
#include <string_view>

#include "core/program.h"

namespace kelvora {

struct DayForm;

// The name of a date's weekday in the system's language; in the program's where text can't hold
// that or the box takes no name of that length.
[[nodiscard]] Text WeekdayOf(const Program& program, const LocalTime& date);

// The date in the three boxes, each of two digits; nothing if they hold no date of the calendar. Of
// the years that end in the two digits it is the one nearest to today's.
[[nodiscard]] std::optional<LocalTime> DateOf(const Program& program, const DayForm& form);

// Puts the weekday of the date into the form, unless one was typed or there is no date.
void FollowDate(const Program& program, DayForm& form);

// Tells from the date whether the weekday of the form is one that somebody has typed: anything but
// the date's own, in the system's language or in one of the program's.
void TellWhetherTyped(const Program& program, DayForm& form);

}  // namespace kelvora
