#include "output/report_context.h"

#include <array>

#include "language/export_texts.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"

namespace kelvora {
namespace {

using namespace export_text;

constexpr std::string_view kWeightPattern = "##0.00";
constexpr std::array kWeightUnits = {kKilogram, kPounds, kStones};  // as UnitSystem

}  // namespace

ReportContext ReportContextOf(Program& program) {
  return {.texts = program.texts,
          .profile = program.profile,
          .opt_system = program.settings[Setting::opt_system],
          .system = UnitSystemOf(program),
          .food_in_ounces = program.settings[Setting::opt_gramoz] == "1",
          .separator = program.platform.locale.DecimalSeparator(),
          .units = UnitsOf(program)};
}

Text PrintNumber(const ReportContext& context, std::string_view stored, std::string_view pattern) {
  return FormatNumber(ReadStoredNumber(stored), pattern, context.separator);
}

Text PrintFoodWeight(const ReportContext& context, std::string_view stored,
                     std::string_view pattern) {
  if (!context.food_in_ounces) return PrintNumber(context, stored, pattern);
  Text grams(stored);
  return Gram_To_Oz(grams, context.units);
}

Text PrintFoodWeight(const ReportContext& context, float grams, std::string_view pattern) {
  if (!context.food_in_ounces) return FormatNumber(grams, pattern, context.separator);
  return PrintFoodWeight(context, grams);
}

Text PrintFoodWeight(const ReportContext& context, float grams) {
  Text written = Str(grams, context.separator);
  return context.food_in_ounces ? Gram_To_Oz(written, context.units) : written;
}

Text ConvertedWeight(const ReportContext& context, std::string_view kilograms) {
  Text weight(kilograms);
  switch (context.system) {
    case UnitSystem::imperial_us:
      return Kg_To_Lbs(weight, context.units);
    case UnitSystem::imperial_uk:
      return Kg_To_Stones(weight, context.units);
    case UnitSystem::metric:
      break;
  }
  return weight.empty() ? Text() : PrintNumber(context, weight, kWeightPattern);
}

Text DayWeight(const ReportContext& context, std::string_view kilograms) {
  const Text converted = ConvertedWeight(context, kilograms);
  return converted.empty() ? Text() : PrintNumber(context, converted, kWeightPattern);
}

const Text& WeightUnit(const ReportContext& context) {
  return context.texts[kWeightUnits[static_cast<std::size_t>(context.system)]];
}

Text HeightText(const ReportContext& context, const HeightWords& words) {
  Text metres = context.profile[ProfileField::height];
  if (context.system == UnitSystem::metric) return metres + " " + context.texts[words.meter];
  const Text feet = Meter_To_Feet_Inch(metres, HeightPart::feet, context.units);
  const Text inches = Meter_To_Feet_Inch(metres, HeightPart::inches, context.units);
  return feet + "'" + inches + "'' " + context.texts[words.feet_inch];
}

Text ShownDate(const ReportContext& context, std::string_view stored) {
  return Format_Datum(stored, context.opt_system, context.units);
}

}  // namespace kelvora
