#include "core/text.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

TEST(Text, EveryByteSurvivesTheWayThroughUtf8) {
  for (int code = 0; code < 256; ++code) {
    const Text byte(1, static_cast<char>(code));
    EXPECT_EQ(TextFromUtf8(Utf8FromText(byte)), byte) << code;
  }
}

TEST(Text, ACharacterThatTheCodePageLacksBecomesAQuestionMark) {
  EXPECT_EQ(TextFromUtf8("a→b"), "a?b");
  EXPECT_EQ(TextFromUtf8("Ω"), "?");
  EXPECT_EQ(TextFromUtf8("\xF0\x9F\x8D\x8E apple"), "? apple");
}

TEST(Text, TheEuroSignAndAccentsAreSingleBytes) {
  EXPECT_EQ(TextFromUtf8("€"), "\x80");
  EXPECT_EQ(TextFromUtf8("crème brûlée"),
            "cr\xE8me br\xFBl\xE9"
            "e");
  EXPECT_EQ("Ÿž"_w, "\x9F\x9E");
}

TEST(Text, BrokenUtf8NeitherCrashesNorSwallowsWhatFollows) {
  EXPECT_EQ(TextFromUtf8("\xC3"), "?");
  EXPECT_EQ(TextFromUtf8("\xE2\x82"
                         "A"),
            "??A");
  EXPECT_EQ(TextFromUtf8("\xFF"
                         "A"),
            "?A");
}

TEST(Text, LowerCaseKnowsAccentedCapitals) {
  EXPECT_EQ(LowerCase("ÀÉÎÕÜŠŒŽŸ Bread 12"_w), "àéîõüšœžÿ bread 12"_w);
  EXPECT_EQ(LowerCase("×ß÷"_w), "×ß÷"_w);
}

TEST(Text, ReplaceAllReplacesEachFromTheLeft) {
  EXPECT_EQ(ReplaceAll("aaa", "aa", "b"), "ba");
  EXPECT_EQ(ReplaceAll("1,2,3", ",", ""), "123");
  EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
}

TEST(Trimmed, TakesTheBlanksAroundATextOnly) {
  EXPECT_EQ(Trimmed("  a b  "), "a b");
  EXPECT_EQ(Trimmed("a"), "a");
  EXPECT_EQ(Trimmed("   "), "");
  EXPECT_EQ(Trimmed(""), "");
  EXPECT_EQ(Trimmed("\ta\n"), "\ta\n");
}

}  // namespace
}  // namespace kelvora
