#include "food/food_calculator.h"

#include "food/food_values.h"
#include "nutrition/numbers.h"

namespace kelvora {
namespace {

constexpr std::string_view kFirstWeight = "100";
constexpr std::string_view kEnergyPattern = "######";

constexpr std::array<std::string_view, FoodValue::kCount> kPatterns = {
    "######0", "#####0", "##0.00", "##0.00", "##0.00", "##0.00", "#0.000"};

void ShowOunces(WeightBoxes& boxes, const UnitContext& units) {
  Text grams = boxes.weight;
  boxes.oz = Gram_To_Oz(grams, units);
  boxes.oz_is_typed = false;
}

void SetWeight(WeightBoxes& boxes, std::string_view grams, const UnitContext& units) {
  boxes.weight = grams;
  boxes.gram = grams;
  ShowOunces(boxes, units);
}

void TakeTypedOunces(WeightBoxes& boxes, const UnitContext& units) {
  Text ounces = boxes.oz;
  boxes.weight = Oz_To_Gram(ounces, units);
  boxes.gram = boxes.weight;
  boxes.oz_is_typed = false;
}

float SingleOf(std::string_view text) {
  return Single(ReadStoredNumber(text));
}

}  // namespace

std::string_view PatternOfFoodValue(std::size_t index) {
  return kPatterns[index];
}

void BeginNextFood(NewFoodForm& form, const UnitContext& units) {
  form.txt_dNaam.clear();
  form.combo_dEenheid.clear();
  SetWeight(form.printed_weight, kFirstWeight, units);
  SetWeight(form.portion_weight, kFirstWeight, units);
  form.txt_s.fill({});
  form.linked_energy.reset();
}

void TypeWeight(WeightBoxes& boxes, WeightUnit unit, Text typed) {
  if (unit == WeightUnit::gram) {
    boxes.gram = std::move(typed);
    return;
  }
  boxes.oz = std::move(typed);
  boxes.oz_is_typed = true;
}

void TypeValue(NewFoodForm& form, std::size_t index, Text typed) {
  form.txt_s[index] = std::move(typed);
  if (form.linked_energy == index) form.linked_energy.reset();
}

bool TakeWeight(WeightBoxes& boxes, WeightUnit unit, const UnitContext& units) {
  const bool from_gram = unit == WeightUnit::gram;
  const bool empty = (from_gram ? boxes.gram : boxes.oz).empty();
  if (!from_gram && !boxes.oz_is_typed) return !empty;
  if (empty) {
    boxes = {};
    return false;
  }
  if (from_gram) {
    boxes.weight = boxes.gram;
    ShowOunces(boxes, units);
  } else {
    TakeTypedOunces(boxes, units);
  }
  return true;
}

void LinkEnergy(NewFoodForm& form, std::size_t index, std::string_view separator) {
  if (!form.chk_kj || index > FoodValue::kKcal || form.linked_energy == index) return;
  const double value = ReadStoredNumber(form.txt_s[index]);
  if (value <= 0) return;
  const bool from_kj = index == FoodValue::kKj;
  const std::size_t other = from_kj ? FoodValue::kKcal : FoodValue::kKj;
  form.txt_s[other] =
      FormatNumber(from_kj ? value / kKilojoulesPerKilocalorie : value * kKilojoulesPerKilocalorie,
                   kEnergyPattern, separator);
  form.linked_energy = other;
}

void Calculate(NewFoodForm& form, const UnitContext& units) {
  const Text& printed = form.printed_weight.weight;
  if (printed.empty()) return;
  if (form.portion_weight.weight.empty()) SetWeight(form.portion_weight, printed, units);
  const float s = SingleOf(printed);
  const float d = SingleOf(form.portion_weight.weight);
  if (s == 0 || d == 0) return;
  const float r = Single(double{d} / s);
  const float q = Single(100.0 / s);
  const Text separator = units.locale.DecimalSeparator();
  for (std::size_t i = 0; i < FoodValue::kCount; ++i) {
    const double value = ReadStoredNumber(form.txt_s[i]);
    form.txt_d[i] = FormatNumber(Single(value * r), kPatterns[i], separator);
    form.txt_i[i] = FormatNumber(Single(value * q), kPatterns[i], separator);
  }
}

}  // namespace kelvora
