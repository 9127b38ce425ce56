#include "core/text_search.h"

#include <gtest/gtest.h>
#include <random>

namespace kelvora {
namespace {

bool StandsIn(std::string_view wanted, std::string_view text) {
  return CaselessFinder(wanted).IsIn(text);
}
bool Begins(std::string_view wanted, std::string_view text) {
  return CaselessFinder(wanted).IsAtFrontOf(text);
}

TEST(CaselessFinder, FindsATextAnywhereWithoutRegardToCase) {
  EXPECT_TRUE(StandsIn("milk", "Low fat MILK, fresh"));
  EXPECT_TRUE(StandsIn("MILK", "milk"));
  EXPECT_FALSE(StandsIn("milk", "Low fat MIL"));
  EXPECT_TRUE(StandsIn("CR\xC8ME",
                       "Verse cr\xE8me fra\xEE"
                       "che"));
  EXPECT_FALSE(StandsIn("creme", "cr\xE8me"));
}

TEST(CaselessFinder, FindsATextAtTheFrontOnlyWhereItBegins) {
  EXPECT_TRUE(Begins("br", "Bread"));
  EXPECT_TRUE(Begins("\x8A",
                     "\x9A"
                     "ljivovica"));
  EXPECT_FALSE(Begins("read", "Bread"));
  EXPECT_FALSE(Begins("Breads", "Bread"));
}

TEST(CaselessFinder, AnEmptyTextStandsEverywhere) {
  EXPECT_TRUE(StandsIn("", ""));
  EXPECT_TRUE(StandsIn("", "Bread"));
  EXPECT_TRUE(Begins("", ""));
  EXPECT_FALSE(StandsIn("a", ""));
}

TEST(CaselessFinder, FindsATextAtEveryPlaceOfLinesOfEveryLength) {
  for (std::size_t length = 3; length < 70; ++length) {
    for (std::size_t at = 0; at + 3 <= length; ++at) {
      Text text(length, 'a');
      EXPECT_FALSE(StandsIn("xyz", text));
      text.replace(at, 3, "XyZ");
      EXPECT_TRUE(StandsIn("xYz", text)) << length << " " << at;
      EXPECT_EQ(Begins("xyz", text), at == 0);
    }
  }
}

// Against lower case made of both and a plain search, on texts full of near misses.
TEST(CaselessFinder, EqualsAPlainSearchInLowerCase) {
  std::mt19937 random(5);
  const auto any = [&random](std::size_t longest) {
    constexpr std::string_view kLetters = "aAbB\xC9\xE9\xD7\xF7\x8A\x9A \xBD";
    Text text(random() % (longest + 1), ' ');
    for (char& c : text) c = kLetters[random() % kLetters.size()];
    return text;
  };
  int found = 0;
  for (int round = 0; round < 100000; ++round) {
    const Text wanted = any(4);
    const Text text = any(60);
    const bool expected = LowerCase(text).find(LowerCase(wanted)) != Text::npos;
    ASSERT_EQ(StandsIn(wanted, text), expected) << round;
    ASSERT_EQ(Begins(wanted, text), LowerCase(text).starts_with(LowerCase(wanted))) << round;
    found += expected ? 1 : 0;
  }
  EXPECT_GT(found, 20000);
  EXPECT_LT(found, 80000);
}

}  // namespace
}  // namespace kelvora
