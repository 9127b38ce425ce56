// Text as searches see it: words of small letters and digits without accents, one blank between
// two.
//
// "Crème fraîche, 35%" and "creme FRAICHE 35%" are the same folded text. Letters, digits and "%"
// make words; apostrophes and combining accents are left out, all else parts words. Both stores
// index folded text and compare it byte by byte, so none of them folds by rules of its own.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelvora::server {

// Words of a term beyond this many don't count, nor do letters beyond kMostLettersOfTerm.
inline constexpr std::size_t kMostWordsOfTerm = 12;
inline constexpr std::size_t kMostLettersOfTerm = 200;

// Text of Windows-1252, as foods are.
[[nodiscard]] std::string FoldText(std::string_view text);

// Bytes from outside: UTF-8 if they are valid UTF-8, else Windows-1252.
[[nodiscard]] std::string FoldBytes(std::string_view bytes);
[[nodiscard]] bool IsUtf8(std::string_view bytes);

// The words of a folded text; views into it.
[[nodiscard]] std::vector<std::string_view> WordsOf(std::string_view folded);

// What is searched for. Without a word nothing is found.
struct FoldedTerm {
  std::string text;                // the words, one blank between two
  std::vector<std::string> words;  // each once, in the order of their first appearance
};
[[nodiscard]] FoldedTerm FoldTerm(std::string_view bytes);

// What is searched in: names of a food, in English and Dutch.
struct FoldedFood {
  std::string name;                // the field Product
  std::vector<std::string> names;  // it, then the parts between commas of the remark's first line
  std::string text;                // all words of name and remark
};
[[nodiscard]] FoldedFood FoldFood(std::string_view line);

}  // namespace kelvora::server
