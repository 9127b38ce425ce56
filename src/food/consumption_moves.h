// What the mouse does by dragging, for the keyboard and the menu of a row: foods go to another part
// of the day, out of the day, or to the favourites. The same payloads and the same routing as a
// drop, one line for each name. Without a name nothing happens at all.
#pragma once

#include <optional>
#include <string_view>

#include "core/program.h"

namespace kelvora {

// Moves one line of each name to the end of `to`, as a drop there does; false if that list was
// above its limit and nothing changed.
bool MoveToDayPart(Program& program, DayPart from, DayPart to, const TextList& products);

// Takes one line of each name out of the day, the last equal one. A change of this window, so it
// marks the day as changed.
void TakeOutOfDay(Program& program, DayPart from, const TextList& products);

// Makes a favourite of each name that is not empty.
void AddToFavourites(Program& program, const TextList& products);

// Foods that were cut wait on the clipboard as the payload of a drag, beside it the place that they
// come from: day part and day. The foods stay in their list until they are pasted.
struct CutFoods {
  Text payload;
  Text origin;
};
[[nodiscard]] CutFoods CutFromDayPart(Program& program, DayPart part, const TextList& products);

// True if a clipboard with these texts can be pasted into a part of the open day. Foods that were
// cut can only be pasted into the day that they were cut from.
[[nodiscard]] bool CanPaste(const Program& program, const CutFoods& clipboard);

// Pastes as a drop does; false, with nothing changed, if that can't be done or the list was above
// its limit.
bool PasteOnDayPart(Program& program, DayPart part, const CutFoods& clipboard);

}  // namespace kelvora
