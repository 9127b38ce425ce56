#include "days/day_form.h"

#include <algorithm>
#include <array>

#include "days/weekday.h"
#include "language/day_settings_texts.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"
#include "nutrition/units.h"

namespace kelvora {
namespace {

using namespace day_settings_text;

constexpr double kHighestInches = 12;
// The hidden fields of the two weights hold no more than this.
constexpr std::size_t kKilogramLimit = 8;

constexpr std::array<DayField, kDayFieldCount> kFields = {{
    {"pg_0", &DayForm::pg_0, 30, KeyFilter::none, kName},
    {"pg_8", &DayForm::pg_8, 2, KeyFilter::whole_number, kAge},
    {"txt_lengte_m", &DayForm::txt_lengte_m, 4, KeyFilter::decimal, kHeight},
    {"txt_lengte_i1", &DayForm::txt_lengte_i1, 1, KeyFilter::whole_number, kHeightFeet},
    {"txt_lengte_i2", &DayForm::txt_lengte_i2, 2, KeyFilter::whole_number, kHeightInch},
    {"txt_streefgewicht", &DayForm::txt_streefgewicht, 6, KeyFilter::decimal, kGoalWeight},
    {"pg_9_a", &DayForm::pg_9_a, 2, KeyFilter::whole_number, kDateDay},
    {"pg_9_b", &DayForm::pg_9_b, 2, KeyFilter::whole_number, kDateMonth},
    {"pg_9_c", &DayForm::pg_9_c, 2, KeyFilter::whole_number, kDateYear},
    {"pg_11", &DayForm::pg_11, 9, KeyFilter::none, kWeekday},
    {"txt_gewicht", &DayForm::txt_gewicht, 6, KeyFilter::decimal, kWeight},
    {"pg_1", &DayForm::pg_1, 30, KeyFilter::none, kAddress1},
    {"pg_2", &DayForm::pg_2, 30, KeyFilter::none, kAddress2},
    {"pg_3", &DayForm::pg_3, 30, KeyFilter::none, kCity},
    {"pg_4", &DayForm::pg_4, 10, KeyFilter::none, kPostcode},
    {"pg_15", &DayForm::pg_15, 30, KeyFilter::none, kState},
    {"pg_12", &DayForm::pg_12, 30, KeyFilter::none, kCountry},
    {"pg_13", &DayForm::pg_13, 10, KeyFilter::none, kReference},
    {"pg_14", &DayForm::pg_14, 500, KeyFilter::none, kRemarks},
}};

// A box knows one kind of line break; files may hold others.
Text WithPlainLineBreaks(std::string_view text) {
  return ReplaceAll(ReplaceAll(text, "\r\n", "\n"), "\r", "\n");
}

Text KilogramsOf(Program& program, Text typed) {
  if (UnitSystemOf(program) == UnitSystem::metric) return typed;
  return Lbs_To_Kg(typed, UnitsOf(program)).substr(0, kKilogramLimit);
}

Text WeightBox(Program& program, DayFieldId id, Text kilograms) {
  const bool metric = UnitSystemOf(program) == UnitSystem::metric;
  const Text shown = metric ? kilograms : Kg_To_Lbs(kilograms, UnitsOf(program));
  return shown.substr(0, FieldOfId(id).limit);
}

}  // namespace

UnitSystem UnitSystemOf(const Program& program) {
  const Text& system = program.settings[Setting::opt_system];
  if (system == "1") return UnitSystem::imperial_us;
  return system == "2" ? UnitSystem::imperial_uk : UnitSystem::metric;
}

std::span<const DayField, kDayFieldCount> DayFields() {
  return kFields;
}

const DayField& FieldOfId(DayFieldId id) {
  return kFields[static_cast<std::size_t>(id)];
}

EntryRule EntryRuleOf(DayFieldId id) {
  const DayField& field = FieldOfId(id);
  return {field.filter, field.limit, id == DayFieldId::pg_14};
}

void FillBoxes(Program& program, DayForm& form) {
  form.txt_lengte_m = form.pg_5.substr(0, FieldOfId(DayFieldId::txt_lengte_m).limit);
  form.txt_lengte_i1.clear();
  form.txt_lengte_i2.clear();
  // A height of 0 is none, and nothing converts it.
  if (UnitSystemOf(program) != UnitSystem::metric && ReadStoredNumber(form.pg_5) != 0) {
    Text metres = form.pg_5;
    form.txt_lengte_i1 = Meter_To_Feet_Inch(metres, HeightPart::feet, UnitsOf(program));
    form.txt_lengte_i2 = Meter_To_Feet_Inch(metres, HeightPart::inches, UnitsOf(program));
  }
  form.txt_gewicht = WeightBox(program, DayFieldId::txt_gewicht, form.pg_6);
  form.txt_streefgewicht = WeightBox(program, DayFieldId::txt_streefgewicht, form.pg_10);
}

void TakeField(Program& program, DayForm& form, DayFieldId id, std::string_view shown) {
  const DayField& field = FieldOfId(id);
  Text& box = form.*field.part;
  if (WithPlainLineBreaks(box).substr(0, field.limit) == shown) return;
  box = shown;
  switch (id) {
    case DayFieldId::txt_lengte_m:
      form.pg_5 = box;
      break;
    case DayFieldId::txt_lengte_i2:
      if (Val(box) > kHighestInches) box.clear();
      [[fallthrough]];
    case DayFieldId::txt_lengte_i1:
      form.pg_5 = Feet_Inch_To_Meter(form.txt_lengte_i1, form.txt_lengte_i2, UnitsOf(program));
      break;
    case DayFieldId::txt_gewicht:
      form.pg_6 = KilogramsOf(program, box);
      break;
    case DayFieldId::txt_streefgewicht:
      form.pg_10 = KilogramsOf(program, box);
      break;
    case DayFieldId::pg_11:
      TellWhetherTyped(program, form);
      break;
    default:
      if (IsPartOfDate(id)) FollowDate(program, form);
      break;
  }
}

void SplitDate(DayForm& form, std::string_view stored_date) {
  const Text digits = FilterWholeNumber(stored_date);
  const bool whole = digits.size() == 6;
  form.pg_9_a = whole ? digits.substr(0, 2) : Text();
  form.pg_9_b = whole ? digits.substr(2, 2) : Text();
  form.pg_9_c = whole ? digits.substr(4, 2) : Text();
}

}  // namespace kelvora
