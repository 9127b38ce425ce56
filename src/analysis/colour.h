// A colour as it is laid down for charts and ladders: the same in a light and in a dark palette.
#pragma once

#include <cstdint>

namespace kelvora {

struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Colour&) const = default;
};

}  // namespace kelvora
