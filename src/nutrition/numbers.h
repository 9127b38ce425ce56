// Numbers as this program reads and writes them: always text in the store, in the decimal mark of
// whoever wrote them.
//
// Reading never fails and never asks the locale. Writing takes the locale's decimal separator from
// the caller and throws std::system_error for infinity and not-a-number. Nothing here knows units.
#pragma once

#include <string_view>

#include "core/text.h"

namespace kelvora {

// The longest prefix that is a number: blanks skipped, an optional sign, digits and at most one
// point; no exponent. No digits give 0. Beyond the range of a double: infinity.
[[nodiscard]] double Val(std::string_view text);

// A stored number, with a comma or a point as its decimal mark.
[[nodiscard]] double ReadStoredNumber(std::string_view text);

// The text with each comma made a point.
[[nodiscard]] Text CommaToPoint(std::string_view text);

// A value held in single precision. Throws std::system_error if it has no place there.
[[nodiscard]] float Single(double value);

// The exact value rounded at the given decimal place, half to even; a negative place stands before
// the point. Throws std::system_error for infinity and not-a-number.
[[nodiscard]] float RoundTo(float value, int decimals);

// The shortest form of the value: at most seven (float) or fifteen (double) significant digits,
// halves away from zero, never an exponent, no trailing zeros behind the point, "0" before a
// leading point.
[[nodiscard]] Text Str(float value, std::string_view separator);
[[nodiscard]] Text Str(double value, std::string_view separator);

// The value printed by a pattern such as "##0.00": "0" is a digit always shown, "#" one shown only
// if significant, "." the place of the separator. Rounds the fifteen-digit decimal form of the
// value, halves away from zero; a result that rounds to zero has no sign.
[[nodiscard]] Text FormatNumber(double value, std::string_view pattern, std::string_view separator);

}  // namespace kelvora
