// What a text box takes of what somebody types, pastes or drops into it.
//
// What is entered comes as Unicode characters, composed already (NFC); what is taken is text. This
// file knows nothing of boxes, cursors or hints.
#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

#include "core/key_filter.h"
#include "core/text.h"

namespace kelvora {

struct EntryRule {
  KeyFilter filter = KeyFilter::none;
  std::size_t limit = std::numeric_limits<std::size_t>::max();  // characters
  bool many_lines = false;                                      // line breaks and tabs stay
  std::size_t break_length = 1;  // the characters that a line break counts as
};

struct Entry {
  Text taken;
  // The characters that text can't hold, each once, in the order in which they came.
  std::u32string left_out;
  // A box for whole numbers was given a decimal mark, without which the digits mean another number.
  bool mark_dropped = false;
  bool cut = false;  // the end had no room
};

// How many characters of the limit a text takes, its line breaks as "\n".
template <class String>
[[nodiscard]] std::size_t LengthUnder(const EntryRule& rule, const String& text) {
  const auto breaks = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  return static_cast<std::size_t>(text.size()) + breaks * (rule.break_length - 1);
}

// A character that text can't hold is left out, never replaced; a control character becomes a
// blank, and so does a line break, CR LF as one. Of what the filter lets through, the end is
// dropped where there is no room: `room` is the number of characters that the box still takes.
[[nodiscard]] Entry TakeEntered(const EntryRule& rule, std::u32string_view entered,
                                std::size_t room, std::string_view separator);

}  // namespace kelvora
