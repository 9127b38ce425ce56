#include "core/hash.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

// The published values of FNV-1a, 64 bits.
TEST(Hash, IsThePublishedOne) {
  EXPECT_EQ(HashOf(""), 0xcbf29ce484222325u);
  EXPECT_EQ(HashOf("a"), 0xaf63dc4c8601ec8cu);
  EXPECT_EQ(HashOf("foobar"), 0x85944171f73967e8u);
  EXPECT_EQ(HashInDigits("foobar"), "85944171f73967e8");
}

}  // namespace
}  // namespace kelvora
