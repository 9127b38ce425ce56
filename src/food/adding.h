// Adding a food to the own list: what happens when a box of the dialog is left, what a food must
// hold, and how it becomes a line. The dialog KV_add_voedingsmiddel draws the form and passes on.
#pragma once

#include <array>
#include <functional>
#include <optional>

#include "core/program.h"
#include "food/new_food_check.h"
#include "internet/submission.h"

namespace kelvora {

// The units that the dialog offers; any other text can be typed.
[[nodiscard]] std::array<Text, 5> UnitChoices(const TextTables& texts);

// The form at the opening of the dialog: weights of 100 grams, nothing calculated yet.
[[nodiscard]] NewFoodForm EmptyNewFood(Program& program);

// Whether foods can be offered to the food server at all: the user wants the internet, and the
// program knows a server.
[[nodiscard]] bool MayAddToInternet(const Program& program);

// The setting of `chk_inet`: off where it can't be on. Whoever does not use the internet adds
// nothing to it: then the setting becomes "0".
[[nodiscard]] bool AddsToInternet(Program& program);

// The tip of `chk_inet`: what it does and under which name, or that there is no server.
[[nodiscard]] Text AddToInternetTip(const Program& program);

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

// The food line: twelve fields.
[[nodiscard]] Text LineOfNewFood(const NewFoodForm& form);

struct AddedFood {
  bool added = false;
  bool sending = false;               // the food is on its way to the food server
  std::optional<NewFoodBox> look_at;  // the box that holds the food back
};

// Adds the food to the own list, writes that list, offers the food to the food server if the
// settings say so, and makes the form that of the next food. Adds nothing after a failed test, a
// name that the own list has already, or a No to the question about much sodium. A food whose list
// can't be written is added all the same, without a word of saving or sending. A failure shows
// "#F1-2".
//
// While the food is on its way to the server the form is left alone; then it becomes that of the
// next food, and `on_sent` is called. Until then form and submission must stay.
[[nodiscard]] AddedFood AddNewFood(Program& program, NewFoodForm& form, FoodSubmission& submission,
                                   std::function<void()> on_sent);

}  // namespace kelvora
