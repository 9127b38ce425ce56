// The file layout and the packed text once more, in the plainest code there is, to hold the
// program's own readers against. Shares nothing with them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

#include "core/text_list.h"

namespace kelvora {

// Reads a file image by offsets; views into the image.
class PlainReader {
 public:
  explicit PlainReader(std::string_view file) : file_(file) {}

  // The count at the front; first of all. A file that is cut short inside it holds empty strings.
  [[nodiscard]] bool HoldsARecord() {
    const std::size_t count = Number(4);
    return file_.size() < 4 || (count != 0 && count <= 0x7FFFFFFF);
  }

  [[nodiscard]] std::string_view String() {
    std::size_t length = Number(2);
    if (length == 65535) length = Number(4);
    const std::size_t begin = position_;
    position_ = std::min(begin + length, file_.size());
    return {file_.data() + begin, file_.data() + position_};
  }

 private:
  std::size_t Number(int bytes) {
    std::size_t number = 0;
    std::size_t weight = 1;
    for (; bytes > 0; --bytes, weight *= 256) {
      if (position_ == file_.size()) continue;
      number += weight * static_cast<std::uint8_t>(file_[position_++]);
    }
    return number;
  }

  std::string_view file_;
  std::size_t position_ = 0;
};

// Views into the text that they were split from.
using Pieces = std::vector<std::string_view>;

// The pieces of `text` that `terminator` closes, byte by byte.
[[nodiscard]] Pieces PlainSplit(std::string_view text, char terminator);

// `text` up to and with its last `terminator`.
[[nodiscard]] std::string_view ClosedPart(std::string_view text, char terminator);

// True if the list holds just these pieces, in this order.
[[nodiscard]] bool Holds(const TextList& list, const Pieces& pieces);

// Memory that a list may ask for while it takes the lines of that many bytes one by one.
[[nodiscard]] std::size_t AllowedMemory(std::size_t bytes);

}  // namespace kelvora
