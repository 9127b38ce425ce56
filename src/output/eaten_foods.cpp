#include "output/eaten_foods.h"

#include "nutrition/numbers.h"

namespace kelvora {
namespace {

TextList MergedLines(const Rec_DayFile& day) {
  const std::array blocks = {CommaToPoint(day[DayFileField::Morning]),
                             CommaToPoint(day[DayFileField::Afternoon]),
                             CommaToPoint(day[DayFileField::Evening])};
  TextList merged;
  MergeDay({blocks[0], blocks[1], blocks[2]}, merged);
  return merged;
}

TextList LinesOfDay(const KV_data& store) {
  TextList lines;
  for (const DayPart part : kDayParts) {
    for (const std::string_view line : store.ListOf(part)) lines.Add(line);
  }
  return lines;
}

}  // namespace

FoodAmounts FoodAmounts::Of(const std::vector<std::string_view>& fields, float count) {
  FoodAmounts eaten;
  for (std::size_t i = 0; i < eaten.amounts_.size(); ++i) {
    const std::size_t field = FoodField::kGram + i;
    if (field < fields.size())
      eaten.amounts_[i] = Single(Single(ReadStoredNumber(fields[field])) * count);
  }
  return eaten;
}

void FoodAmounts::Add(const FoodAmounts& more) {
  for (std::size_t i = 0; i < amounts_.size(); ++i) {
    amounts_[i] = Single(amounts_[i] + more.amounts_[i]);
  }
}

EatenFoods::EatenFoods(const TextList& lines) {
  CountEqualLines(lines, distinct_, counts_);
  rows_.reserve(distinct_.Count());
  for (std::size_t i = 0; i < distinct_.Count(); ++i) {
    EatenFood& row = rows_.emplace_back();
    row.fields = FieldsOf(distinct_[i]);
    row.count = counts_[i];
    row.amounts = FoodAmounts::Of(row.fields, Single(Val(row.count)));
  }
}

EatenFoods::EatenFoods(const Rec_DayFile& day) : EatenFoods(MergedLines(day)) {}

EatenFoods::EatenFoods(const KV_data& store) : EatenFoods(LinesOfDay(store)) {}

}  // namespace kelvora
