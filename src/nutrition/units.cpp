#include "nutrition/units.h"

#include <cmath>

#include "nutrition/dates.h"
#include "nutrition/numbers.h"

namespace kelvora {
namespace {

// The value of a text that is normalised in place.
double Normalise(Text& text) {
  text = CommaToPoint(text);
  return Val(text);
}

// Runs one conversion under its failure code; an empty text when it fails.
template <class Conversion>
Text Convert(const UnitContext& context, std::string_view code, Conversion conversion) {
  Text result;
  WithFailurePath(context.failures, code,
                  [&] { result = conversion(context.locale.DecimalSeparator()); });
  return result;
}

}  // namespace

Text OuncesOfGrams(double grams, std::string_view separator) {
  const auto printed = [separator](float value, std::string_view pattern) {
    return Single(ReadStoredNumber(FormatNumber(value, pattern, separator)));
  };
  const float ounces = Single(grams * Factor_Oz);
  float shown = printed(ounces, "##0.0");
  const bool ends_in_zero = Str(shown, separator).ends_with('0');
  shown = printed(shown, ends_in_zero ? "##0" : "##0.0");
  return Str(shown, separator);
}

Text GramsOfOunces(double ounces, std::string_view separator) {
  return FormatNumber(Single(ounces / Factor_Oz), "##0", separator);
}

Text Gram_To_Oz(Text& grams, const UnitContext& context) {
  if (grams.empty()) return {};
  return Convert(context, "#FF11-3",
                 [&](const Text& separator) { return OuncesOfGrams(Normalise(grams), separator); });
}

Text Oz_To_Gram(Text& ounces, const UnitContext& context) {
  if (ounces.empty()) return {};
  return Convert(context, "#FF11-4", [&](const Text& separator) {
    return GramsOfOunces(Normalise(ounces), separator);
  });
}

Text Lbs_To_Kg(Text& pounds, const UnitContext& context) {
  if (pounds.empty()) return {};
  return Convert(context, "#FF11-1", [&](const Text& separator) {
    return Str(Normalise(pounds) / Factor_Lbs, separator);
  });
}

Text Kg_To_Lbs(Text& kilograms, const UnitContext& context) {
  if (kilograms.empty()) return {};
  return Convert(context, "#FF11-1", [&](const Text& separator) {
    const float pounds = Single(Normalise(kilograms) * Factor_Lbs);
    return FormatNumber(pounds, "##0.00", separator);
  });
}

Text Kg_To_Stones(Text& kilograms, const UnitContext& context) {
  if (kilograms.empty()) return {};
  return Convert(context, "#FF11-2", [&](const Text& separator) {
    const float pounds = Single(Normalise(kilograms) * Factor_Lbs);
    const float stones = pounds * Factor_Stone;
    return FormatNumber(stones, "##0.0", separator);
  });
}

Text Meter_To_Feet_Inch(Text& metres, HeightPart part, const UnitContext& context) {
  if (metres.empty()) return {};
  return Convert(context, "#FF11-5", [&](const Text& separator) {
    const Text exact = Str(Normalise(metres) * double{Factor_Feet}, ".");
    const std::size_t point = exact.find('.');
    if (point == Text::npos) ThrowSystemError(std::errc::argument_out_of_domain);
    const float feet = Single(Val(exact.substr(0, point)));
    if (part == HeightPart::feet) return Str(feet, separator);
    const float inches = Single(Val("0" + exact.substr(point)) * double{Factor_Inch});
    return FormatNumber(inches, "##", separator);
  });
}

Text Feet_Inch_To_Meter(std::string_view feet, std::string_view inches,
                        const UnitContext& context) {
  if (feet.empty() || inches.empty()) return {};
  return Convert(context, "#FF11-6", [&](const Text& separator) {
    const double all_feet = Val(feet) + Val(inches) / Factor_Inch;
    return FormatNumber(all_feet / Factor_Feet, "0.#0", separator);
  });
}

Text Bereken_BMI(Text& height, Text& weight, const UnitContext& context) {
  if (height.empty() || weight.empty()) return {};
  return Convert(context, "#FF11-7", [&](const Text& separator) {
    const float metres = Single(Normalise(height));
    const float kilograms = Single(Normalise(weight));
    const float square = Single(double{metres} * metres);
    if (square == 0) ThrowSystemError(std::errc::argument_out_of_domain);
    const float index = Single(double{kilograms} / square);
    return FormatNumber(index, "##.00", separator);
  });
}

Text Format_Datum(std::string_view date, std::string_view opt_system, const UnitContext& context) {
  return Convert(context, "#FF11-8",
                 [&](const Text&) { return FormatStoredDate(date, opt_system); });
}

std::optional<std::int16_t> Dagen_Tussen(std::string_view first, std::string_view second,
                                         const UnitContext& context) {
  constexpr std::size_t kDateLength = 6;
  if (first.size() != kDateLength || second.size() != kDateLength) return std::nullopt;
  std::optional<std::int16_t> days;
  WithFailurePath(context.failures, "#FF11-9", [&] {
    const int between = DaysOfYearMonthDay(second) - DaysOfYearMonthDay(first);
    if (between != static_cast<std::int16_t>(between))
      ThrowSystemError(std::errc::result_out_of_range);
    days = static_cast<std::int16_t>(between);
  });
  return days;
}

}  // namespace kelvora
