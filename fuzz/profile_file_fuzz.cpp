// Any bytes as a profile: its priority nutrient is one of six, and its measures convert or fail.
#include <algorithm>
#include <array>

#include "core/common.h"
#include "fuzz/file_kind.h"
#include "nutrition/totals.h"
#include "nutrition/units.h"

namespace kelvora {
namespace {

void CheckPriority(const Program& program) {
  const Priority priority = PriorityOfUser(program);
  const Text& code = program.profile.strings[14];
  constexpr std::array<std::string_view, 6> kCodes = {"0", "1", "2", "3", "4", "5"};
  const auto found = std::ranges::find(kCodes, code);
  const auto expected = found == kCodes.end() ? 0 : found - kCodes.begin();
  Check(static_cast<std::ptrdiff_t>(priority) == expected, "an unknown priority counts as kj");
  Check(PatternOf(priority).ends_with("##0"), "every priority has its pattern");
  // Kilojoules, kilocalories, both fats, carbohydrates and protein, as fields of a food line.
  constexpr std::array<std::size_t, 6> kFields = {3, 4, 6, 7, 8, 5};
  Check(FoodFieldOf(priority) == kFields[static_cast<std::size_t>(expected)],
        "every priority has its field");
}

// The text of a conversion is a plain number, or it failed in one box and is empty.
void CheckShown(TestProgram& test, const Text& shown, std::string_view code) {
  const bool failed = !test.boxes.shown.empty();
  CheckFailure(test, failed, code);
  Check(shown.find_first_not_of("-.0123456789") == Text::npos, "a measure is digits and a point");
  Check(!failed || shown.empty(), "what failed has no text");
  test.boxes.shown.clear();
}

// One conversion of one measure. Only an empty measure has neither text nor failure, but for
// patterns that show no zero.
template <class Conversion>
void CheckConversion(TestProgram& test, std::string_view measure, std::string_view code,
                     bool shows_zero, Conversion conversion) {
  Text argument(measure);
  const Text shown = conversion(argument, UnitsOf(test.program));
  Check(argument.size() == measure.size() && argument.find(',') == Text::npos,
        "an argument has points for commas");
  Check(!measure.empty() || (shown.empty() && test.boxes.shown.empty()),
        "nothing comes of an empty measure");
  Check(!shows_zero || measure.empty() || !shown.empty() || !test.boxes.shown.empty(),
        "a measure has a text or a failure");
  CheckShown(test, shown, code);
}

void CheckMeasures(TestProgram& test, const Rec_Profile& profile) {
  const Text& height = profile.strings[5];
  const Text& weight = profile.strings[8];
  CheckConversion(test, weight, "#FF11-1", true, Kg_To_Lbs);
  CheckConversion(test, weight, "#FF11-2", true, Kg_To_Stones);
  CheckConversion(test, weight, "#FF11-3", true, Gram_To_Oz);
  CheckConversion(test, height, "#FF11-5", true, [](Text& metres, const UnitContext& units) {
    return Meter_To_Feet_Inch(metres, HeightPart::feet, units);
  });
  CheckConversion(test, height, "#FF11-5", false, [](Text& metres, const UnitContext& units) {
    return Meter_To_Feet_Inch(metres, HeightPart::inches, units);
  });
  Text metres = height;
  Text kilograms = weight;
  CheckShown(test, Bereken_BMI(metres, kilograms, UnitsOf(test.program)), "#FF11-7");
}

}  // namespace
}  // namespace kelvora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvora;
  TestProgram& test = FreshBoxes();
  const auto profile = CheckedRecord<Rec_Profile>(InputOf(data, size));
  if (!profile) return 0;
  test.program.profile = *profile;
  CheckPriority(test.program);
  CheckMeasures(test, *profile);
  return 0;
}
