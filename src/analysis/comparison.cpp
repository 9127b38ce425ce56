#include "analysis/comparison.h"

#include "food/drag_text.h"
#include "language/compare_texts.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"

namespace kelvora {
namespace {

using namespace compare_text;

constexpr std::array<ComparedRow, kComparedRows> kRows = {{
    {kWeight, kUnitGram, FoodField::kGram, ""},
    {kUnit, std::nullopt, FoodField::kUnit, ""},
    {kEnergy, kUnitKj, FoodField::kKj, "#####"},
    {kEnergy, kUnitKcal, FoodField::kKcal, "#####"},
    {kFatU, kUnitGram, FoodField::kFatU, "##0.00"},
    {kFatS, kUnitGram, FoodField::kFatS, "##0.00"},
    {kSodium, kUnitGram, FoodField::kSodium, "#0.000"},
    {kProtein, kUnitGram, FoodField::kProtein, "##0.00"},
    {kCarbohydrates, kUnitGram, FoodField::kCarbs, "##0.00"},
}};

constexpr std::string_view kHundred = "100";

std::string_view CodeOf(CompareBox box, std::string_view first, std::string_view second) {
  return box == CompareBox::first ? first : second;
}

// The line that a drag carries: none for text of another form.
std::string_view LineOfDrag(std::string_view payload) {
  for (const std::string_view marker : {kAddMarker, kForeignMarker}) {
    if (payload.starts_with(marker)) return payload.substr(marker.size());
  }
  return {};
}

void FillBox(Program& program, CompareBox box, std::string_view line, ComparedFood& food) {
  SplitLine(line, food.temp_lst);
  // An empty box has nothing per 100 grams either.
  if (food.temp_lst.Empty()) {
    food = {};
    return;
  }
  food.line = line.substr(0, line.find(kLineEnd));
  food.txt_Voedingsmiddel = food.temp_lst[FoodField::kProduct];
  for (std::size_t row = 0; row < kRows.size(); ++row) {
    food.var_na[row] = food.temp_lst[kRows[row].field];
  }
  Vergelijk_Per100(program, box, food);
}

}  // namespace

const std::array<ComparedRow, kComparedRows>& ComparedRows() {
  return kRows;
}

void DropOnBox(Program& program, CompareBox box, std::string_view payload, ComparedFood& food) {
  program.Guard(CodeOf(box, "#F16-0", "#F16-1"), [&] {
    const std::string_view without_end = payload.substr(0, payload.size() - !payload.empty());
    if (without_end.find(kLineEnd) != without_end.npos) {
      return Tell(program, BoxIcon::warning,
                  JoinLines(program.texts, {kTooManyFoods, kOneFoodPerBox}));
    }
    if (payload.starts_with(kKillMarker)) {
      return Tell(program, BoxIcon::warning,
                  JoinLines(program.texts, {kNoConsumptions, kDragFromDatabase}));
    }
    FillBox(program, box, LineOfDrag(payload), food);
  });
}

void Vergelijk_Per100(Program& program, CompareBox box, ComparedFood& food) {
  program.Guard(CodeOf(box, "#F16-2", "#F16-3"), [&] {
    std::array<float, kComparedRows> values{};
    for (std::size_t row = 0; row < values.size(); ++row) {
      values[row] = Single(ReadStoredNumber(food.var_na[row]));
    }
    const double weight = values[kWeightRow];
    if (weight == 0) return;
    const UnitContext units = UnitsOf(program);
    food.var_nb[kWeightRow] = kHundred;
    for (std::size_t row = kUnitRow + 1; row < values.size(); ++row) {
      food.var_nb[row] = FormatNumber(values[row] / weight * 100, kRows[row].pattern,
                                      units.locale.DecimalSeparator());
    }
    Text grams = food.var_na[kWeightRow];
    food.ounces_a = Gram_To_Oz(grams, units);
    grams = kHundred;
    food.ounces_b = Gram_To_Oz(grams, units);
  });
}

Text OuncesLabel(const TextTables& texts, const Text& ounces) {
  return ounces.empty() ? Text() : "(" + ounces + " " + texts[kUnitOunces] + ")";
}

// As a food of the databases: what is saved there becomes a food of the own list.
void ShowComparedFood(Program& program, const ComparedFood& food) {
  if (!food.line.empty()) program.windows.core->ShowItem("zoeken", food.line);
}

}  // namespace kelvora
