// The person and the day as they are typed: the boxes of the day dialog, what each takes, and how
// its text becomes the metric value behind it.
//
// The form is a copy; nothing of it reaches the store from here. Boxes show the units of the
// settings; pg_5, pg_6 and pg_10 behind them are always metric, since these go into the files.
#pragma once

#include <span>
#include <string_view>

#include "core/program.h"
#include "core/text_entry.h"

namespace kelvora {

struct DayForm {
  Text pg_0;                        // user name, which is also the name of the folder
  Text pg_1, pg_2, pg_3, pg_4;      // address, city, postcode
  Text pg_5;                        // height, metres
  Text pg_6;                        // weight, kilograms
  Text pg_7;                        // gender, as the list of the moment words it
  Text pg_8;                        // age, years
  Text pg_9_a, pg_9_b, pg_9_c;      // day, month, year; two digits each
  Text pg_10;                       // goal weight, kilograms
  Text pg_11;                       // name of the weekday
  bool weekday_is_typed = false;    // then it doesn't follow the date
  Text pg_12, pg_13, pg_14, pg_15;  // country, reference ID, remark, state
  Text type_prioriteit;
  Text txt_kj, txt_kcal, txt_ovet, txt_vvet, txt_nat, txt_ew, txt_kdr;
  // The boxes of height and weights, each as its user sees it.
  Text txt_lengte_m, txt_lengte_i1, txt_lengte_i2;  // metres; feet and inches
  Text txt_gewicht, txt_streefgewicht;              // kilograms or pounds

  bool operator==(const DayForm&) const = default;
};

// The unit system of the settings. Both imperial ones are typed in pounds, feet and inches.
enum class UnitSystem { metric, imperial_us, imperial_uk };
[[nodiscard]] UnitSystem UnitSystemOf(const Program& program);

// One text box: the part of the form that it shows and how much it takes.
struct DayField {
  std::string_view name;
  Text DayForm::*part;
  std::size_t limit;  // characters
  KeyFilter filter;
  TextId caption;
};

enum class DayFieldId {
  pg_0,
  pg_8,
  txt_lengte_m,
  txt_lengte_i1,
  txt_lengte_i2,
  txt_streefgewicht,
  pg_9_a,
  pg_9_b,
  pg_9_c,
  pg_11,
  txt_gewicht,
  pg_1,
  pg_2,
  pg_3,
  pg_4,
  pg_15,
  pg_12,
  pg_13,
  pg_14,
};
inline constexpr std::size_t kDayFieldCount = 19;

[[nodiscard]] constexpr bool IsPartOfDate(DayFieldId id) {
  return id == DayFieldId::pg_9_a || id == DayFieldId::pg_9_b || id == DayFieldId::pg_9_c;
}

// The text boxes, in the order of DayFieldId.
[[nodiscard]] std::span<const DayField, kDayFieldCount> DayFields();
[[nodiscard]] const DayField& FieldOfId(DayFieldId id);

// What the box of a field takes.
[[nodiscard]] EntryRule EntryRuleOf(DayFieldId id);

// Fills the boxes of height and weights from the metric values.
void FillBoxes(Program& program, DayForm& form);

// Takes what a box shows into the form, with the metric value behind it. A box that shows what it
// was filled with changes nothing: a stored value longer than its box, or one that other units
// can't show exactly, stays whole until something else is typed. Inches above 12 are cleared. The
// weekday follows the date until somebody types another one.
void TakeField(Program& program, DayForm& form, DayFieldId id, std::string_view shown);

// Puts a stored date, dd-mm-yy, into the three boxes; what has not six digits leaves them empty.
void SplitDate(DayForm& form, std::string_view stored_date);

}  // namespace kelvora
