#include "core/text_entry.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

constexpr std::size_t kPlenty = 1000;

Text Taken(std::u32string_view entered, const EntryRule& rule = {}, std::size_t room = kPlenty) {
  return TakeEntered(rule, entered, room, ".").taken;
}
std::u32string LeftOut(std::u32string_view entered, const EntryRule& rule = {}) {
  return TakeEntered(rule, entered, kPlenty, ".").left_out;
}

TEST(EnteredText, WhatTextHoldsIsTakenAsItIs) {
  EXPECT_EQ(Taken(U"Zo\u00EB"), "Zo\xEB");
  EXPECT_EQ(Taken(U"\u20AC 5 \u0160 \u0178"), "\x80 5 \x8A \x9F");
  // Its last character and the marks that close fields and lines in a file.
  EXPECT_EQ(Taken(U"\u00FF\u00BD\u00BE?"), "\xFF\xBD\xBE?");
  EXPECT_EQ(LeftOut(U"Zo\u00EB \u20AC \u00FF\u00BD?"), U"");
}

TEST(EnteredText, WhatTextCantHoldIsLeftOutAndTold) {
  EXPECT_EQ(Taken(U"\u0141ukasz"), "ukasz");
  EXPECT_EQ(LeftOut(U"\u0141ukasz"), U"\u0141");
  EXPECT_EQ(Taken(U"\u0421\u0443\u043F\u044B"), "");
  // Each once, in the order in which they came.
  EXPECT_EQ(LeftOut(U"\u4E2D\u6587 a \u4E2D"), U"\u4E2D\u6587");
  EXPECT_EQ(Taken(U"\U0001F34E apple"), " apple");
  EXPECT_EQ(LeftOut(U"\U0001F34E apple"), U"\U0001F34E");
}

TEST(EnteredText, NoCharacterEverBecomesAQuestionMark) {
  std::size_t taken = 0;
  for (char32_t character = 0; character < 0x3000; ++character) {
    if (character == U'?') continue;
    const Entry entry = TakeEntered({}, std::u32string(1, character), 1, ".");
    EXPECT_EQ(entry.taken.find('?'), Text::npos) << static_cast<unsigned>(character);
    EXPECT_NE(entry.taken.empty(), entry.left_out.empty()) << static_cast<unsigned>(character);
    taken += entry.taken.size();
  }
  // 95 printable ones without "?", 33 controls, 32 more controls, 96 from 0xA0 to 0xFF, 27 of the
  // code page's own, and two separators of lines.
  EXPECT_EQ(taken, 94u + 33u + 32u + 96u + 27u + 2u);
}

TEST(EnteredText, ABoxOfOneLineMakesBlanksOfControlCharacters) {
  EXPECT_EQ(Taken(U"a\tb\nc\rd"), "a b c d");
  EXPECT_EQ(Taken(U"a\r\nb"), "a b");
  EXPECT_EQ(Taken(U"a\n\r\nb\r"), "a  b ");
  EXPECT_EQ(Taken(U"\u0001\u001F\u007F\u0080\u009F"), "     ");
  EXPECT_EQ(Taken(U"a\u0085b\u2028c\u2029d"), "a b c d");
  // The five that the code page leaves open are controls like the others.
  EXPECT_EQ(Taken(U"\u0081\u008D\u008F\u0090\u009D"), "     ");
  EXPECT_EQ(Taken(std::u32string_view(U"a\0b", 3)), "a b");
  EXPECT_EQ(LeftOut(U"a\tb\u0080\u2028"), U"");
}

TEST(EnteredText, ABoxOfManyLinesKeepsLineBreaksAndTabs) {
  const EntryRule rule{.many_lines = true};
  EXPECT_EQ(Taken(U"a\r\nb\nc\rd\u2029e\u2028f\u0085g", rule), "a\nb\nc\nd\ne\nf\ng");
  EXPECT_EQ(Taken(U"a\tb\u0001c\u0090", rule), "a\tb c ");
  EXPECT_EQ(LeftOut(U"a\u0141\n", rule), U"\u0141");
}

TEST(EnteredText, WhatHasNoRoomIsDroppedAtTheEnd) {
  EXPECT_EQ(Taken(U"abcdef", {}, 3), "abc");
  EXPECT_EQ(Taken(U"abc", {}, 0), "");
  // Room is counted in characters of text: what is left out takes none.
  EXPECT_EQ(Taken(U"\u0141\u4E2Da\U0001F34Ebcd", {}, 3), "abc");
  EXPECT_EQ(Taken(U"a1b2c3d4", {.filter = KeyFilter::whole_number}, 3), "123");
}

TEST(EnteredText, AFilterTakesWhatIsLeft) {
  const EntryRule decimal{.filter = KeyFilter::decimal};
  EXPECT_EQ(TakeEntered(decimal, U"7\u0141 2,5\tkg", kPlenty, ",").taken, "72,5");
  EXPECT_EQ(TakeEntered(decimal, U"7.5", kPlenty, ",").taken, "7,5");
  EXPECT_FALSE(TakeEntered(decimal, U"7.5", kPlenty, ",").mark_dropped);
}

TEST(EnteredText, AMarkThatAWholeNumberCantHaveIsTold) {
  const EntryRule whole{.filter = KeyFilter::whole_number};
  for (const auto* entered : {U"12.5", U"12,5", U".", U","}) {
    EXPECT_TRUE(TakeEntered(whole, entered, kPlenty, ".").mark_dropped);
  }
  EXPECT_EQ(Taken(U"12.5", whole), "125");
  EXPECT_FALSE(TakeEntered(whole, U"12 a-5", kPlenty, ".").mark_dropped);
  EXPECT_FALSE(TakeEntered({}, U"12.5", kPlenty, ".").mark_dropped);
}

// A diary's line break is two characters, and is never halved.
TEST(EnteredText, ALineBreakCountsAsTheRuleSays) {
  const EntryRule rule{.many_lines = true, .break_length = 2};
  EXPECT_EQ(LengthUnder(rule, std::string_view("a\nb\n")), 6u);
  EXPECT_EQ(LengthUnder(EntryRule{.many_lines = true}, std::string_view("a\nb\n")), 4u);
  EXPECT_EQ(Taken(U"ab\ncd", rule, 6), "ab\ncd");
  EXPECT_EQ(Taken(U"ab\ncd", rule, 5), "ab\nc");
  EXPECT_EQ(Taken(U"ab\ncd", rule, 4), "ab\n");
  EXPECT_EQ(Taken(U"ab\ncd", rule, 3), "ab");
  EXPECT_EQ(Taken(U"ab\r\ncd", rule, 4), "ab\n");
  EXPECT_EQ(Taken(U"ab\rcd", rule, 4), "ab\n");
}

TEST(EnteredText, WhetherTheEndWasCutIsTold) {
  EXPECT_FALSE(TakeEntered({}, U"abc", 3, ".").cut);
  EXPECT_TRUE(TakeEntered({}, U"abcd", 3, ".").cut);
  // What is left out for another reason is not cut.
  EXPECT_FALSE(TakeEntered({}, U"abc\u4E2D", 3, ".").cut);
}

}  // namespace
}  // namespace kelvora
