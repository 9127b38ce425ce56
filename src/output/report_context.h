// What the writers of reports need of the program, and how a report shows a number, a weight and a
// date. The writers give text back and know neither windows nor files.
#pragma once

#include <string_view>
#include <utility>

#include "core/program.h"
#include "days/day_form.h"
#include "nutrition/units.h"

namespace kelvora {

struct ReportContext {
  const TextTables& texts;
  const Rec_Profile& profile;
  const Text& opt_system;
  UnitSystem system;
  bool food_in_ounces;
  Text separator;
  UnitContext units;
};
[[nodiscard]] ReportContext ReportContextOf(Program& program);

enum class DiaryChoice { leave_out, include };

// Runs one routine of a writer under its own failure code. What it fails to write is missing as a
// whole, so that no table of a page stays open.
template <class Writer>
[[nodiscard]] Text WritePiece(const ReportContext& context, std::string_view code, Writer write) {
  Text piece;
  const bool whole = WithFailurePath(context.units.failures, code, [&] { write(piece); });
  return whole ? std::move(piece) : Text();
}

// A stored number printed by a pattern.
[[nodiscard]] Text PrintNumber(const ReportContext& context, std::string_view stored,
                               std::string_view pattern);

// A food weight by the pattern, or in ounces if the settings say so; what stands in a file, empty
// where there is none in ounces, or an amount.
[[nodiscard]] Text PrintFoodWeight(const ReportContext& context, std::string_view stored,
                                   std::string_view pattern);
[[nodiscard]] Text PrintFoodWeight(const ReportContext& context, float grams,
                                   std::string_view pattern);
// An amount as number text, with no more digits than it has.
[[nodiscard]] Text PrintFoodWeight(const ReportContext& context, float grams);

// A stored weight in the unit of the settings, as the conversions print it: kilograms by "##0.00".
// A weight that is empty has no number.
[[nodiscard]] Text ConvertedWeight(const ReportContext& context, std::string_view kilograms);
// The same by "##0.00" in each unit.
[[nodiscard]] Text DayWeight(const ReportContext& context, std::string_view kilograms);
[[nodiscard]] const Text& WeightUnit(const ReportContext& context);

// The height of the profile in the unit of the settings, with the words for it.
struct HeightWords {
  TextId meter;
  TextId feet_inch;
};
[[nodiscard]] Text HeightText(const ReportContext& context, const HeightWords& words);

// The stored date as users of the unit system write it.
[[nodiscard]] Text ShownDate(const ReportContext& context, std::string_view stored);

}  // namespace kelvora
