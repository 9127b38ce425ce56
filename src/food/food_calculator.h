// The calculator of a new food: from the values on a package, which hold for some weight, to those
// of a portion and those of 100 grams. Works on the texts of the boxes and knows no window.
//
// The routines throw std::system_error where a number has no place in single precision, and leave
// the boxes as far as they came.
#pragma once

#include <array>
#include <optional>

#include "nutrition/units.h"

namespace kelvora {

// The places of the values in each of the three arrays. Not the order of a food line.
struct FoodValue {
  enum : std::size_t { kKj, kKcal, kFatS, kFatU, kProtein, kCarbs, kSodium, kCount };
};
using FoodValues = std::array<Text, FoodValue::kCount>;

enum class WeightUnit { gram, oz };

// A weight with its two boxes, txt_sGewicht, txt_sGram and txt_sOz or those of the portion.
struct WeightBoxes {
  Text weight;  // grams; what counts
  Text gram;
  Text oz;
  // Ounces that came out of the grams have lost digits: they stand in their box until others are
  // typed, and never become grams again. So passing the box by leaves the weight alone.
  bool oz_is_typed = false;

  bool operator==(const WeightBoxes&) const = default;
};

// What the dialog for a new food holds.
struct NewFoodForm {
  Text txt_dNaam, combo_dEenheid;
  WeightBoxes printed_weight;  // that the values on the package refer to
  WeightBoxes portion_weight;
  FoodValues txt_s;  // as printed on the package
  FoodValues txt_d;  // of the portion
  FoodValues txt_i;  // of 100 grams, for the food server
  bool chk_kj = false;
  // The energy box that was filled from the other one; it is not linked back until it is typed in.
  std::optional<std::size_t> linked_energy;

  bool operator==(const NewFoodForm&) const = default;
};

// How a value is printed, of the portion and of 100 grams.
[[nodiscard]] std::string_view PatternOfFoodValue(std::size_t index);

// The form of the next food: both weights 100 grams and no printed value. The calculated values
// stay until the calculation runs.
void BeginNextFood(NewFoodForm& form, const UnitContext& units);

// A text typed into a box of a weight or of a printed value.
void TypeWeight(WeightBoxes& boxes, WeightUnit unit, Text typed);
void TypeValue(NewFoodForm& form, std::size_t index, Text typed);

// Brings the weight and its other box in step with the box that was left; an empty box empties the
// others. True if there is a weight to calculate with.
[[nodiscard]] bool TakeWeight(WeightBoxes& boxes, WeightUnit unit, const UnitContext& units);

// After box `index` of the printed values was left: the other energy, if that box holds an energy
// above 0 and the two are linked.
void LinkEnergy(NewFoodForm& form, std::size_t index, std::string_view separator);

// Fills `txt_d` and `txt_i` from `txt_s`. A portion without a weight first takes the weight of the
// package. Without a weight of the package, and where one of the weights is 0, they stay as they
// are.
void Calculate(NewFoodForm& form, const UnitContext& units);

}  // namespace kelvora
