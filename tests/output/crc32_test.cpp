#include "output/crc32.h"

#include <array>
#include <gtest/gtest.h>

namespace kelvora {
namespace {

// Expected values: zlib's crc32 over the bytes in Windows-1252, printed by "%X".
struct Seal {
  std::string_view text;
  std::string_view digits;
};
constexpr std::array kSeals = {
    Seal{"", "0"},
    Seal{"a", "E8B7BE43"},
    Seal{"123456789", "CBF43926"},
    Seal{"Anna Zoë1.80REF-1"_w, "7CF5AD61"},
    Seal{"Anna1.80", "8632620C"},
    Seal{"Anna1.81", "F135529A"},
    Seal{"user3062", "7D547"},  // leading zeros are not written
};

TEST(Crc32, IsThatOfZlib) {
  for (const auto& [text, digits] : kSeals) EXPECT_EQ(Get_CRC_UserID(text), digits) << text;
}

TEST(Crc32, TakesEveryByte) {
  Text bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(Crc32(bytes), 0x29058C73u);
}

}  // namespace
}  // namespace kelvora
