// Looking for a text without regard to case, in lists of any length.
//
// Case is that of the letters of Windows-1252, accented ones included. A finder is made once for a
// text and then asked about many lines; a line is looked at sixteen places at a time.
#pragma once

#include <string_view>

#include "core/text.h"

namespace kelvora {

class CaselessFinder {
 public:
  explicit CaselessFinder(std::string_view wanted);

  // True if `text` begins with the wanted text. Every text begins with an empty one.
  [[nodiscard]] bool IsAtFrontOf(std::string_view text) const {
    return text.size() >= wanted_.size() && MatchesAt(text.data());
  }

  // True if the wanted text stands anywhere in `text`. An empty one stands everywhere.
  [[nodiscard]] bool IsIn(std::string_view text) const;

 private:
  // Both forms of a letter; twice the same byte for what has no case.
  struct BothCases {
    char lower = 0;
    char upper = 0;
    [[nodiscard]] bool Holds(char byte) const { return (byte == lower) | (byte == upper); }
  };
  [[nodiscard]] static BothCases CasesOf(char lower);

  [[nodiscard]] bool MatchesAt(const char* at) const;
  // True if the wanted text begins at one of the sixteen places from `at` on.
  [[nodiscard]] bool IsNear(const char* at) const;

  Text wanted_;  // in lower case
  // Only where both of these fit is the whole text compared.
  BothCases first_, last_;
};

}  // namespace kelvora
