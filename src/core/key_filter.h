// What the keyboard and the clipboard may put into a text box for a number.
#pragma once

#include <string_view>

#include "core/text.h"

namespace kelvora {

enum class KeyFilter { none, whole_number, decimal };

// Whole numbers take digits and nothing else.
[[nodiscard]] bool AcceptsWholeNumberKey(char key);
[[nodiscard]] Text FilterWholeNumber(std::string_view typed);

// Decimals take digits and the decimal separator, which "." and "," both become.
[[nodiscard]] Text FilterDecimal(std::string_view typed, std::string_view separator);

// What a box makes of a text that was typed or pasted into it.
[[nodiscard]] Text ApplyKeyFilter(KeyFilter filter, std::string_view typed,
                                  std::string_view separator);

}  // namespace kelvora
