// The fingerprint of a user in XML files: the CRC-32 of IEEE 802.3, reflected, of the bytes of a
// text in Windows-1252. It tells users apart and protects nothing.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/text.h"

namespace kelvora {

[[nodiscard]] std::uint32_t Crc32(std::string_view bytes);

// The CRC of a text as hexadecimal digits, in capitals, without leading zeros.
[[nodiscard]] Text Get_CRC_UserID(std::string_view text);

}  // namespace kelvora
