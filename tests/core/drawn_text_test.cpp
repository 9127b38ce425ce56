#include "core/drawn_text.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

constexpr std::size_t kHuge = 20'000'000;

TEST(DrawnTexts, StayWholeUpToFiveHundredCharacters) {
  EXPECT_EQ(DrawnText(""), "");
  EXPECT_EQ(DrawnText("Bread\nand\tbutter"), "Bread\nand\tbutter");
  EXPECT_EQ(DrawnText(Text(500, 'a')), Text(500, 'a'));
}

TEST(DrawnTexts, LongerOnesAreCutWithAMarkForTheRest) {
  EXPECT_EQ(DrawnText(Text(501, 'a')), Text(499, 'a') + "\x85");
  EXPECT_EQ(DrawnText(Text(kHuge, 'a')), Text(499, 'a') + "\x85");
}

TEST(DrawnTexts, ACellShowsControlCharactersAsBlanks) {
  EXPECT_EQ(DrawnCell("a\tb\r\nc\x7F"), "a b  c ");
  // The five that the code page leaves open are controls like the others.
  EXPECT_EQ(DrawnCell("\x81\x8D\x8F\x90\x9D"), "     ");
  EXPECT_EQ(DrawnCell(std::string_view("a\0b", 3)), "a b");
  Text others;
  for (int code = 0x20; code < 0x100; ++code) {
    const bool control = code == 0x7F || code == 0x81 || code == 0x8D || code == 0x8F ||
                         code == 0x90 || code == 0x9D;
    if (!control) others += static_cast<char>(code);
  }
  EXPECT_EQ(DrawnCell(others), others);
  EXPECT_EQ(DrawnCell(Text(kHuge, '\n')), Text(499, ' ') + "\x85");
}

TEST(DrawnTexts, AMessageKeepsTheQuestionAroundALongName) {
  const Text name(kHuge, 'n');
  EXPECT_EQ(DrawnMessage("Remove " + name + "?\n\nAre you sure?"),
            "Remove " + Text(242, 'n') + "\x85" + Text(249, 'n') + "?\n\nAre you sure?");
  EXPECT_EQ(DrawnMessage("One.\n\nTwo.\n"), "One.\n\nTwo.\n");
  EXPECT_EQ(DrawnMessage(Text(500, 'a')), Text(500, 'a'));
  EXPECT_EQ(DrawnMessage(""), "");
}

TEST(DrawnTexts, AMessageHasNoMoreLinesThanAScreen) {
  Text lines, shown;
  for (int line = 1; line <= 40; ++line) {
    lines += std::to_string(line) + "\n";
    if (line <= 30) shown += std::to_string(line) + "\n";
  }
  EXPECT_EQ(DrawnMessage(lines), shown + "\x85");
  EXPECT_LE(DrawnMessage(Text(kHuge, '\n')).size(), 32u);
}

}  // namespace
}  // namespace kelvora
