// The rules for the numbers and texts of a food that every dialog for foods shares. Numbers are
// texts as they stand in a box, with a comma or a point as their decimal mark.
#pragma once

#include <string_view>

namespace kelvora {

// Kilojoules per kilocalorie. Not 4.184: the factor is part of how this program counts.
inline constexpr double kKilojoulesPerKilocalorie = 4.2;

// The most characters that a food line may have.
inline constexpr std::size_t kMaxFoodLength = 900;

// True for a comma or a point anywhere in the text.
[[nodiscard]] bool HoldsDecimalMark(std::string_view text);

// True for what counts as a number not filled in: an empty text, a decimal mark in front or at the
// end, and two equal marks in a row.
[[nodiscard]] bool IsIncompleteNumber(std::string_view text);

// True for what can't be meant as one value: an incomplete number, and one with several marks.
[[nodiscard]] bool IsWrongNumber(std::string_view text);

// True if that many grams of sodium are worth a question: more than 0.5.
[[nodiscard]] bool IsHighSodium(std::string_view grams);

}  // namespace kelvora
