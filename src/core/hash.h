// A number that tells apart what differs by chance. It is no protection: anybody can make two texts
// of one number.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvora {

// FNV-1a with 64 bits.
[[nodiscard]] std::uint64_t HashOf(std::string_view bytes);

// The same as sixteen hexadecimal digits.
[[nodiscard]] std::string HashInDigits(std::string_view bytes);

}  // namespace kelvora
