// Texts on their way to the screen. A stored text may be of any length; what is drawn of it is not,
// so that time and memory stay bounded by what can be seen.
//
// Nothing that is saved goes through here.
#pragma once

#include <string_view>

#include "core/text.h"

namespace kelvora {

// No more characters of a text than this are drawn, the mark that stands for the rest included.
inline constexpr std::size_t kDrawnCharacters = 500;

// A text in a label, a title, a tip: its beginning.
[[nodiscard]] Text DrawnText(std::string_view text);

// A text in a cell of a list, which has one line: a control character is drawn as a blank.
[[nodiscard]] Text DrawnCell(std::string_view text);

// The words of a message. Each line keeps its beginning and its end, since the question stands
// around the long name in it; lines that no screen has room for are left out at the end.
[[nodiscard]] Text DrawnMessage(std::string_view text);

}  // namespace kelvora
