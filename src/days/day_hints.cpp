#include "days/day_hints.h"

#include "language/day_settings_texts.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"
#include "nutrition/units.h"

namespace kelvora {
namespace {

using namespace day_settings_text;

// What the box shows in its own unit comes first.
Text Equation(const Program& program, const Text& metric, const Text& imperial) {
  const bool metric_first = UnitSystemOf(program) == UnitSystem::metric;
  return metric_first ? metric + " = " + imperial : imperial + " = " + metric;
}

Text Printed(Program& program, const Text& value, std::string_view pattern) {
  return FormatNumber(ReadStoredNumber(value), pattern, program.platform.locale.DecimalSeparator());
}

Text HeightHint(Program& program, Text metres) {
  // A height of 0 has no feet; the test of the form will ask for another one.
  if (metres.empty() || ReadStoredNumber(metres) == 0) return {};
  const UnitContext units = UnitsOf(program);
  const Text metric = Printed(program, metres, "0.00") + " " + program.texts[kMeter];
  const Text imperial = Meter_To_Feet_Inch(metres, HeightPart::feet, units) + "'" +
                        Meter_To_Feet_Inch(metres, HeightPart::inches, units) + "''";
  return "(" + Equation(program, metric, imperial) + ")";
}

Text WeightHint(Program& program, Text kilograms) {
  if (kilograms.empty()) return {};
  const UnitContext units = UnitsOf(program);
  const Text metric = Printed(program, kilograms, "##0.00") + " " + program.texts[kKilogram];
  const Text imperial = Kg_To_Lbs(kilograms, units) + " " + program.texts[kPounds];
  Text hint = "(" + Equation(program, metric, imperial);
  if (UnitSystemOf(program) == UnitSystem::imperial_uk) {
    hint += " = " + Kg_To_Stones(kilograms, units) + " " + program.texts[kStones];
  }
  return hint + ")";
}

}  // namespace

DayHints DrawCoversionsText(Program& program, const DayForm& form) {
  DayHints hints;
  program.Guard("#F2-2", [&] {
    hints.lbl_lengteinfo = HeightHint(program, form.pg_5);
    hints.lbl_gewichtinfo = WeightHint(program, form.pg_6);
    hints.lbl_streefgewichtinfo = WeightHint(program, form.pg_10);
    hints.lbl_datuminfo = DateHint(program, form);
  });
  return hints;
}

Text DateHint(Program& program, const DayForm& form) {
  for (const Text* part : {&form.pg_9_a, &form.pg_9_b, &form.pg_9_c}) {
    if (part->size() < 2) return {};
  }
  return Format_Datum(form.pg_9_a + form.pg_9_b + form.pg_9_c,
                      program.settings[Setting::opt_system], UnitsOf(program));
}

}  // namespace kelvora
