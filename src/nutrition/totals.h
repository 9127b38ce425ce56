// The re-totalling of the open day, in which every change to a consumption list ends.
#pragma once

#include <array>

#include "core/common.h"
#include "core/program.h"
#include "nutrition/units.h"

namespace kelvora {

// The eight amounts of a food line, in the order of its fields. Single precision: sums carry its
// rounding.
struct Amounts {
  float gram = 0;
  float kj = 0;
  float kcal = 0;
  float protein = 0;
  float fat_u = 0;
  float fat_s = 0;
  float carbs = 0;
  float sodium = 0;
};

// The sum over all lines of a list. Commas and points are the same. `fields` receives the fields of
// each line in turn. Throws std::system_error for a sum that a single can't hold.
[[nodiscard]] Amounts SumOf(const TextList& lines, TextList& fields);

// The sum of three periods, morning first.
[[nodiscard]] Amounts DayTotalOf(const std::array<Amounts, 3>& periods);

// The totals of a day in the order in which the requirements take them.
[[nodiscard]] DayTotals RequirementOrder(const Amounts& day);

// The nine-field trend text: day totals and the body weight as stored.
[[nodiscard]] Text TrendText(const Amounts& day, std::string_view body_weight,
                             std::string_view separator);

// What a consumption window shows of its period. `heading` and `unit` come from the text tables.
[[nodiscard]] ConsumptionTotals PeriodTotals(const Amounts& period, Priority priority,
                                             std::string_view heading, std::string_view unit,
                                             std::string_view separator);

// Sums the day, shows each open consumption window its period's totals and the day summary the
// day's, and rewrites `txt_trenddata`. `temp_filter` is left with the fields of the last line. A
// failure shows "#FF11-0". Every change of the day's foods ends here, so this is where undoing
// hears of it.
void Refresh_Totalen(Program& program);

// Brings every open window and the totals of an open day in step with the settings and the profile.
void FollowSettings(Program& program);

// What a conversion needs of this program.
[[nodiscard]] UnitContext UnitsOf(Program& program);

}  // namespace kelvora
