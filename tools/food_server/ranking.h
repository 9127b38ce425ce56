// The order in which foods are found. Pure functions over folded text; each store has to answer in
// just this order, whatever index it asks.
//
//   1. one of the food's names, English or Dutch, is the term
//   2. each word of the term begins a word of the food's names
//   3. each word of the term stands in them: one of three letters and more anywhere, a shorter one
//      at the beginning of a word
//
// Within each of these the shorter name comes first (the field Product, folded), then the one that
// the alphabet has first, then the line whose bytes are smaller.
#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "food_server/fold.h"

namespace kelvora::server {

// Words shorter than this are looked for at the beginning of words only.
inline constexpr std::size_t kShortestAnywhere = 3;

enum class Match { whole_name, word_beginning, anywhere };

// How the term stands in the food; nothing if it doesn't, or if it has no word.
[[nodiscard]] std::optional<Match> MatchOf(const FoldedTerm& term, const FoldedFood& food);

// Whether the words of the term stand in the folded text, in the third of these ways at least.
[[nodiscard]] bool StandsAnywhere(const FoldedTerm& term, std::string_view text);

// What orders foods of the same match; the same for every term, so that an index can be kept in it.
[[nodiscard]] bool StandsBefore(std::string_view name, std::string_view line,
                                std::string_view other_name, std::string_view other_line);

// The foods that hold the term, in order, `most` of them at the most. Views of `lines`.
[[nodiscard]] std::vector<std::string_view> RankFoods(const FoldedTerm& term,
                                                      std::span<const std::string_view> lines,
                                                      std::size_t most);

}  // namespace kelvora::server
