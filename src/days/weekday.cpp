#include "days/weekday.h"

#include <chrono>

#include "days/day_form.h"
#include "language/own_texts.h"
#include "nutrition/numbers.h"

namespace kelvora {
namespace {

namespace chrono = std::chrono;

chrono::year_month_day CalendarDate(const LocalTime& date) {
  return {chrono::year(date.year), chrono::month(static_cast<unsigned>(date.month)),
          chrono::day(static_cast<unsigned>(date.day))};
}

OwnText WeekdayId(const LocalTime& date) {
  const chrono::weekday weekday{chrono::sys_days(CalendarDate(date))};
  return static_cast<OwnText>(static_cast<unsigned>(OwnText::sunday) + weekday.c_encoding());
}

// The year nearest to `today` that ends in these two digits.
int WholeYear(int two_digits, int today) {
  constexpr int kCentury = 100;
  const int year = today - today % kCentury + two_digits;
  if (year > today + kCentury / 2) return year - kCentury;
  return year < today - kCentury / 2 ? year + kCentury : year;
}

}  // namespace

Text WeekdayOf(const Program& program, const LocalTime& date) {
  const Text name = program.platform.locale.WeekdayName(date);
  const bool fits = !name.empty() && name.size() <= FieldOfId(DayFieldId::pg_11).limit;
  return fits ? name : OwnTextOf(program.texts, WeekdayId(date));
}

std::optional<LocalTime> DateOf(const Program& program, const DayForm& form) {
  for (const Text& box : {form.pg_9_a, form.pg_9_b, form.pg_9_c}) {
    if (box.size() != 2) return std::nullopt;
  }
  LocalTime date;
  date.day = static_cast<int>(Val(form.pg_9_a));
  date.month = static_cast<int>(Val(form.pg_9_b));
  date.year = WholeYear(static_cast<int>(Val(form.pg_9_c)), program.platform.clock.Now().year);
  if (!CalendarDate(date).ok()) return std::nullopt;
  return date;
}

void FollowDate(const Program& program, DayForm& form) {
  if (form.weekday_is_typed) return;
  if (const auto date = DateOf(program, form)) form.pg_11 = WeekdayOf(program, *date);
}

void TellWhetherTyped(const Program& program, DayForm& form) {
  form.weekday_is_typed = true;
  const auto date = DateOf(program, form);
  if (!date) return;
  const OwnText id = WeekdayId(*date);
  for (const Text& name : {WeekdayOf(program, *date), OwnTextIn(Language::english, id),
                           OwnTextIn(Language::dutch, id)}) {
    if (LowerCase(form.pg_11) == LowerCase(name)) form.weekday_is_typed = false;
  }
}

}  // namespace kelvora
