#include "output/crc32.h"

#include <array>
#include <cstddef>

namespace kelvora {
namespace {

constexpr std::uint32_t kPolynomial = 0xEDB88320;
constexpr std::uint32_t kAllBits = 0xFFFFFFFF;

// The remainder of each byte.
constexpr auto kRemainders = [] {
  std::array<std::uint32_t, 256> remainders{};
  for (std::uint32_t byte = 0; byte < remainders.size(); ++byte) {
    std::uint32_t value = byte;
    for (int bit = 0; bit < 8; ++bit) value = (value >> 1) ^ ((value & 1) != 0 ? kPolynomial : 0);
    remainders[byte] = value;
  }
  return remainders;
}();

}  // namespace

std::uint32_t Crc32(std::string_view bytes) {
  std::uint32_t value = kAllBits;
  for (const char byte : bytes) {
    value = (value >> 8) ^ kRemainders[(value ^ static_cast<unsigned char>(byte)) & 0xFF];
  }
  return ~value;
}

Text Get_CRC_UserID(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::uint32_t value = Crc32(text);
  Text digits;
  do {
    digits.insert(digits.begin(), kDigits[value & 0xF]);
    value >>= 4;
  } while (value != 0);
  return digits;
}

}  // namespace kelvora
