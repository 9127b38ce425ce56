// Dates: six digits dd-mm-yy in the store, shown by the chosen unit system.
#pragma once

#include <string_view>

#include "core/text.h"
#include "platform/locale.h"

namespace kelvora {

// Day, month and year of a stored date, two digits each.
struct StoredDate {
  int day = 0;
  int month = 0;
  int year = 0;
};

// Takes a stored date apart; marks and blanks between the digits don't matter. Throws
// std::system_error if six digits are not what is left.
[[nodiscard]] StoredDate ParseStoredDate(std::string_view text);

// The date as users of the unit system (`opt_system`) write it: "mm-dd-yy" for "1", "dd-mm-yy"
// otherwise. An empty text stays empty. Throws std::system_error.
[[nodiscard]] Text FormatStoredDate(std::string_view text, std::string_view opt_system);

// The key that puts stored dates (dd-mm-yy) in order: year, month and day as one text, "040305" for
// 05-03-04. Years count with their two digits: 99 comes after 04. Marks and blanks don't matter; of
// another text it is what stands in the places of the six digits.
[[nodiscard]] Text DateKeyOf(std::string_view stored_date);

// The days since a fixed one of the date written as yymmdd, of the years 2000 to 2099. Throws
// std::system_error for anything that is no date.
[[nodiscard]] int DaysOfYearMonthDay(std::string_view text);

// The order in which the system writes a long date.
enum class LongDateOrder { month_day_year, day_month_year, year_month_day };
[[nodiscard]] LongDateOrder DateOrder(const Locale& locale);

// Date and time in the locale's short form, or as dd-mm-yyyy and hh:mm where text can't hold that.
[[nodiscard]] Text ShortDateOf(const LocalTime& time, const Locale& locale);
[[nodiscard]] Text ShortTimeOf(const LocalTime& time, const Locale& locale);

// A number as two digits, with a leading zero; the last two digits of a longer one.
[[nodiscard]] Text TwoDigits(int number);

}  // namespace kelvora
