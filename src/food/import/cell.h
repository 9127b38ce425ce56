// What a cell of a table says: a text as this program can hold it, or an amount.
#pragma once

#include <optional>
#include <string_view>

#include "core/text.h"
#include "food/import/delimited.h"

namespace kelvora {

struct CellText {
  Text text;
  // Of the characters that are no blanks: how many, and how many of them text can't hold.
  std::size_t characters = 0;
  std::size_t unheld = 0;
};

// The text of a cell: marks of HTML taken out, blanks and control characters made single blanks,
// the two terminators written as "1/2" and "3/4". A letter that Windows-1252 lacks becomes its
// plain one where there is one, anything else "?". In a cell of UTF-8 a byte that is none counts as
// Windows-1252.
[[nodiscard]] CellText ReadCellText(std::string_view cell, Encoding encoding);

// The amount in a cell; nothing for one that isn't wholly a number, and for a negative one. The
// last of points and commas is the decimal mark, all before it keep thousands apart; what stands
// several times keeps thousands apart as well. "traces" and the like are 0, and so is "< 0,5".
[[nodiscard]] std::optional<double> ReadCellAmount(std::string_view cell);

// A cell without the blanks around it, those that don't break among them.
[[nodiscard]] std::string_view TrimmedCell(std::string_view cell);

}  // namespace kelvora
