// The diary of the open day: what its window tells and what becomes of its text.
//
// A text "as the box has it" has "\n" for every line break, whatever the day file has; each counts
// as two characters. An edited diary is stored with CR LF, one that was not edited keeps its bytes.
#pragma once

#include <array>
#include <string_view>

#include "core/program.h"
#include "core/text_entry.h"

namespace kelvora {

// What the box takes.
inline constexpr EntryRule kDiaryRule{
    .limit = MaxDiaryLength, .many_lines = true, .break_length = 2};

// False for the two characters that a key can't bring into the text. A paste can.
[[nodiscard]] constexpr bool DiaryTakesKey(char32_t character) {
  return character != U'\u00BD' && character != U'\u00BE';
}

// A stored diary as the box has it.
[[nodiscard]] Text DiaryInBox(std::string_view stored);

// True for a text with a word longer than a diary may be. Where its lines end between words, making
// them would take minutes.
[[nodiscard]] bool HoldsEndlessWord(std::string_view text);

// The status text: how long a text is and how much room is left, below nothing for a longer one
// from a file. A failure shows "#F13-0".
[[nodiscard]] Text Toon_Tekens(Program& program, std::string_view in_box);

// Takes the text of the box into the store; false if it has a character that no day can hold, which
// is said in a box, or after a failure, which shows "#F13-1".
bool Bewaar_Notities(Program& program, std::string_view in_box);

// The text was changed: the day has something to save. A failure shows "#F13-2".
void NoteDiaryChange(Program& program);

// The widths of the three panels of the status bar, in twips, for a window of that width.
[[nodiscard]] std::array<int, 3> DiaryPanelWidths(int window_width);

}  // namespace kelvora
