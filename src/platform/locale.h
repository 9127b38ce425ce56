// How the user's system writes numbers and dates. Asked anew each time: it can change while the
// program runs, and a part of the program watches for just that.
#pragma once

#include "core/text.h"
#include "platform/clock.h"

namespace kelvora {

class Locale {
 public:
  virtual ~Locale() = default;
  // What the system puts before the decimals: "," or "." nearly everywhere, but any text is
  // possible.
  [[nodiscard]] virtual Text SystemDecimalSeparator() const = 0;
  // What numbers are written and typed with here: "," where the system has that, else ".".
  [[nodiscard]] Text DecimalSeparator() const {
    return SystemDecimalSeparator() == "," ? "," : ".";
  }
  // The date as dd/mm/yyyy. The locale may put other separators in the place of "/".
  [[nodiscard]] virtual Text DayMonthYear(const LocalTime& time) const = 0;
  // The time as hh/mm/s, seconds without a leading zero. The locale may add AM or PM.
  [[nodiscard]] virtual Text HourMinuteSecond(const LocalTime& time) const = 0;
  // Date and time in the system's short form; empty if text can't hold it.
  [[nodiscard]] virtual Text ShortDate(const LocalTime& time) const = 0;
  [[nodiscard]] virtual Text ShortTime(const LocalTime& time) const = 0;
  // How the system writes a long date: d, M and y for day, month and year, as in
  // "dddd d MMMM yyyy", with no other text in it.
  [[nodiscard]] virtual Text LongDatePattern() const = 0;
  // The full name of the weekday, in the system's language; empty if text can't hold it.
  [[nodiscard]] virtual Text WeekdayName(const LocalTime& time) const = 0;
};

}  // namespace kelvora
