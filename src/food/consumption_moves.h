// What the mouse does by dragging, for the keyboard and the menu of a row: foods go to another part
// of the day, out of the day, to the favourites, or over the clipboard; and the way back. The same
// payloads and the same routing as a drop, one line for each name. Without a name nothing happens
// at all.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "core/program.h"

namespace kelvora {

// Moves one line of each name to the end of `to`, as a drop there does; false if that list was
// above its limit and nothing changed.
bool MoveToDayPart(Program& program, DayPart from, DayPart to, const TextList& products);

// Takes one line of each name out of the day, the last equal one. A change of this window, so it
// marks the day as changed.
void TakeOutOfDay(Program& program, DayPart from, const TextList& products);

// Makes a favourite of each name that is not empty, of an amount of a food the food itself; one box
// tells those that no list has.
void AddToFavourites(Program& program, const TextList& products);

// Foods on the clipboard: the payload of a drag, beside it for foods that were cut the place that
// they come from, day part and day. What was cut stays in its list until it is pasted.
struct ClipboardFoods {
  Text payload;
  Text origin;
};

// What goes onto the clipboard: for this program, and for every other one a table of the rows with
// their headings, the columns ended by tabs: count, name, unit, weight, energy. The weight is in
// the unit of the settings; energy is in kilocalories for whoever gives them priority, else in
// kilojoules.
struct FoodsToClipboard {
  ClipboardFoods foods;
  Text table;
};

// Takes the rows of these places, from 0; a copy holds each line as often as it was eaten.
[[nodiscard]] FoodsToClipboard CopyFromDayPart(Program& program, DayPart part,
                                               const std::vector<std::size_t>& rows);
[[nodiscard]] FoodsToClipboard CutFromDayPart(Program& program, DayPart part,
                                              const std::vector<std::size_t>& rows);

// What another program's plain text is to this one: foods, if it begins as those of a drag do.
[[nodiscard]] ClipboardFoods FoodsInPlainText(std::string_view text);

// True if foods can be pasted into a part of the open day. Those that were cut can only be pasted
// into the day that they were cut from.
[[nodiscard]] bool CanPaste(const Program& program, const ClipboardFoods& foods);

// Pastes as a drop does, but all of it or nothing: what would take the list above its limit is
// refused with the message of a drop there. False if nothing has changed.
bool PasteOnDayPart(Program& program, DayPart part, const ClipboardFoods& foods);

// Take back the last change of the day's foods, whatever it was, or bring it about again. The day
// is marked as changed, even where its file holds just that. What a change put into the own list or
// the favourites stays there. Nothing happens without a change.
void UndoFoods(Program& program);
void RedoFoods(Program& program);

}  // namespace kelvora
