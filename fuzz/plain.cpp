#include "fuzz/plain.h"

namespace kelvora {

Pieces PlainSplit(std::string_view text, char terminator) {
  Pieces pieces;
  std::size_t begin = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != terminator) continue;
    pieces.push_back(text.substr(begin, i - begin));
    begin = i + 1;
  }
  return pieces;
}

std::string_view ClosedPart(std::string_view text, char terminator) {
  while (!text.empty() && text.back() != terminator) text.remove_suffix(1);
  return text;
}

bool Holds(const TextList& list, const Pieces& pieces) {
  return std::equal(list.begin(), list.end(), pieces.begin(), pieces.end());
}

std::size_t AllowedMemory(std::size_t bytes) {
  // The first block of a list; then a view of 16 bytes for each line, four times that in a list
  // that doubles, and as much again for blocks that are not full.
  return 2048 + 72 * bytes;
}

}  // namespace kelvora
