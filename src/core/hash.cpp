#include "core/hash.h"

namespace kelvora {

std::uint64_t HashOf(std::string_view bytes) {
  std::uint64_t hash = 0xcbf29ce484222325u;
  for (const char byte : bytes) {
    hash ^= static_cast<unsigned char>(byte);
    hash *= 0x100000001b3u;
  }
  return hash;
}

std::string HashInDigits(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::uint64_t hash = HashOf(bytes);
  std::string digits(16, '0');
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, hash >>= 4) {
    *digit = kDigits[hash & 15u];
  }
  return digits;
}

}  // namespace kelvora
