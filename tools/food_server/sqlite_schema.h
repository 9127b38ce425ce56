// The tables of the embedded store.
//
// Foods lie in one of two slots, "a" and "b"; `state` says in which. A replacement fills the other
// one piece by piece, so that nobody waits for it, and then changes `state`. In a slot each food
// has a place, and places are in the order of ranking.h: the first hits of an index are the best
// ones, and no more than are wanted have to be read.
//
//   food_a   place, line, words (folded text of all names)
//   name_a   each folded name of a food, with its place
//   word_a   FTS5: the words, and their beginnings of up to twelve letters; longer ones are put
//            together from all words that begin so
//   gram_a   FTS5: every three letters that follow each other
//
//   submission   all that was submitted; an accepted one has its place in the current slot
#pragma once

#include <string>

#include "food_server/sqlite.h"

namespace kelvora::server {

// Distance of the places of two foods: accepted ones find room between them.
inline constexpr std::int64_t kPlaceDistance = 16;

// Makes what isn't there. Throws StoreFailure for a file of something else or of a newer version.
void PrepareSchema(Connection& connection);

// A text of SQL with "$" replaced by the letter of the slot.
[[nodiscard]] std::string ForSlot(std::string_view sql, char slot);

}  // namespace kelvora::server
