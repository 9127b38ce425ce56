#include "food/details_values.h"

#include "nutrition/numbers.h"

namespace kelvora {
namespace {

// Where a box of the portion takes its text from, and how a number is printed in it.
struct BoxRow {
  std::size_t field;
  std::string_view pattern;  // empty for a text that stands as stored
};
constexpr std::array<BoxRow, PortionBox::kCount> kBoxes = {{
    {FoodField::kProduct, ""},
    {FoodField::kUnit, ""},
    {FoodField::kGram, ""},
    {FoodField::kKj, "#####"},
    {FoodField::kKcal, "#####"},
    {FoodField::kFatU, "##0.00"},
    {FoodField::kFatS, "##0.00"},
    {FoodField::kSodium, "#0.000"},
    {FoodField::kProtein, "##0.00"},
    {FoodField::kCarbs, "##0.00"},
    {FoodField::kGroup, ""},
    {FoodField::kRemark, ""},
}};

// The boxes in the order of the fields of a line.
constexpr auto kLineOrder = [] {
  std::array<std::size_t, PortionBox::kCount> order{};
  for (std::size_t box = 0; box < kBoxes.size(); ++box) order[kBoxes[box].field] = box;
  return order;
}();
static_assert(kLineOrder ==
              std::array<std::size_t, PortionBox::kCount>{0, 1, 2, 3, 4, 8, 5, 6, 9, 7, 10, 11});

constexpr std::array<std::size_t, kCompositionBars> kBarBoxes = {
    PortionBox::kFatU, PortionBox::kFatS, PortionBox::kSodium, PortionBox::kProtein,
    PortionBox::kCarbs};

std::string_view PatternOfValue(std::size_t value) {
  return kBoxes[PortionBoxOf(value)].pattern;
}

}  // namespace

void FillPortion(const TextList& fields, std::string_view separator, PortionBoxes& bVar) {
  for (std::size_t box = 0; box < bVar.size(); ++box) {
    const auto& [field, pattern] = kBoxes[box];
    bVar[box] = pattern.empty() ? Text(fields[field])
                                : FormatNumber(ReadStoredNumber(fields[field]), pattern, separator);
    if (bVar[box].empty() && box != PortionBox::kRemark) bVar[box] = "0";
  }
}

Text FoodLineOf(const PortionBoxes& bVar) {
  Text line;
  for (const std::size_t box : kLineOrder) (line += bVar[box]) += kFieldEnd;
  return line;
}

void FillPer100Grams(const PortionBoxes& bVar, std::string_view separator, ValueBoxes& oVar) {
  const float gram = Single(ReadStoredNumber(bVar[PortionBox::kGram]));
  if (gram == 0) return;
  for (std::size_t value = 0; value < oVar.size(); ++value) {
    const double per_100 = ReadStoredNumber(bVar[PortionBoxOf(value)]) / gram * 100;
    oVar[value] = FormatNumber(per_100, PatternOfValue(value), separator);
  }
}

void FillPortionFromPer100Grams(const ValueBoxes& oVar, std::string_view separator,
                                PortionBoxes& bVar) {
  const double factor = ReadStoredNumber(bVar[PortionBox::kGram]) / 100;
  for (std::size_t value = 0; value < oVar.size(); ++value) {
    bVar[PortionBoxOf(value)] =
        FormatNumber(factor * ReadStoredNumber(oVar[value]), PatternOfValue(value), separator);
  }
}

Composition CompositionOf(const PortionBoxes& bVar, std::string_view separator) {
  std::array<float, kCompositionBars> values{};
  float total = 0;
  for (std::size_t bar = 0; bar < values.size(); ++bar) {
    values[bar] = Single(ReadStoredNumber(bVar[kBarBoxes[bar]]));
    total = Single(double{total} + values[bar]);
  }
  if (total == 0) total = 1;
  Composition bars;
  for (std::size_t bar = 0; bar < bars.size(); ++bar) {
    const float share = Single(values[bar] / total);
    bars[bar] = {.length = share * kCompositionLength,
                 .value = Str(values[bar], separator),
                 .share = FormatNumber(share * 100, "####0.00", separator)};
  }
  return bars;
}

}  // namespace kelvora
