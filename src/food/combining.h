// Making one food of all that stands in one part of the day. The new food goes to the own list and
// takes the place of the foods it was made of.
//
// Its values are the totals as the window shows them, rounded by their patterns. This path does not
// mark the day as changed, and is meant not to.
#pragma once

#include <array>
#include <optional>

#include "core/program.h"

namespace kelvora {

// What stands in the panel `Pic_SP`, and the shown totals `var`.
struct CombineForm {
  Text name, unit;
  std::array<Text, 8> var;
};

enum class CombineBox { name, unit };

// The box that a refused form is to be changed in; nothing if it is not the form that is wrong.
[[nodiscard]] std::optional<CombineBox> WrongBox(const Program& program, const CombineForm& form);

// Combines the foods of `part`. False when something in the form was refused: the box has told why,
// and nothing has changed. The own list is written under its own failure code; a write that fails
// stops none of the steps behind it but the last: nothing is said to be saved. The new food then
// stands in memory, in the list and in the day.
bool CombineFoods(Program& program, DayPart part, const CombineForm& form);

}  // namespace kelvora
