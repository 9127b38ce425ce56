// Adding a food to the own list: what happens when a box of the dialog is left, what a food must
// hold, and how it becomes a line. The dialog KV_add_voedingsmiddel draws the form and passes on.
#pragma once

#include <array>
#include <optional>

#include "core/program.h"
#include "food/food_calculator.h"

namespace kelvora {

// The units that the dialog offers; any other text can be typed.
[[nodiscard]] std::array<Text, 5> UnitChoices(const TextTables& texts);

// The form at the opening of the dialog: weights of 100 grams, nothing calculated yet.
[[nodiscard]] NewFoodForm EmptyNewFood(Program& program);

// The setting of `chk_inet` at the opening of the dialog. Whoever does not use the internet adds
// nothing to it: then the setting becomes "0".
[[nodiscard]] bool AddsToInternet(Program& program);

// A click on `chk_inet`: the choice lasts from now on.
void StoreAddsToInternet(Program& program, bool on);

// Runs the calculation. A failure shows "#F1-0".
void CalculateFood(Program& program, NewFoodForm& form);

// A box of a weight, or a box of the printed values, was left. A failure of the link between the
// energies shows "#F1-1".
void LeaveWeight(Program& program, NewFoodForm& form, WeightBoxes NewFoodForm::*boxes,
                 WeightUnit unit);
void LeaveValue(Program& program, NewFoodForm& form, std::size_t index);

// `chk_kj` was ticked or unticked. Ticking calculates, but links no energy yet.
void TickEnergyLink(Program& program, NewFoodForm& form, bool on);

// What a food can lack, in the order of the tests.
enum class NewFoodError { incomplete, illegal_characters, too_long };

// The first test that the food fails. Texts of blanks only are not empty.
[[nodiscard]] std::optional<NewFoodError> CheckNewFood(const NewFoodForm& form);

// The lines of the box for an error.
[[nodiscard]] Text TextOf(const TextTables& texts, NewFoodError error);

// The food line: twelve fields.
[[nodiscard]] Text LineOfNewFood(const NewFoodForm& form);

// Adds the food to the own list, writes that list, offers the food to the food server if the
// settings say so, and makes the form that of the next food. False with nothing changed after a
// failed test, a name that the own list has already, or a No to the question about much sodium. A
// name with a blank more at its end is another name. A failure shows "#F1-2".
[[nodiscard]] bool AddNewFood(Program& program, NewFoodForm& form);

}  // namespace kelvora
