// What a cell says: its text as the program can hold it, and its amount.
#include "food/import/cell.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

Text Utf8(std::string_view cell) {
  return ReadCellText(cell, Encoding::utf8).text;
}

TEST(CellText, KeepsTheLettersOfTheCodePage) {
  EXPECT_EQ(Utf8("Crème brûlée, 5 €"), "Crème brûlée, 5 €"_w);
  EXPECT_EQ(ReadCellText("Cr\xE8me", Encoding::windows_1252).text, "Crème"_w);
  // A byte of no character, in a table that else is UTF-8.
  EXPECT_EQ(Utf8("Cr\xE8me br\xC3\xBBl\xC3\xA9"
                 "e"),
            "Crème brûlée"_w);
}

TEST(CellText, ReplacesWhatLinesAndTextCannotHold) {
  EXPECT_EQ(Utf8("½ loaf, ¾ full"), "1/2 loaf, 3/4 full");
  EXPECT_EQ(Utf8("Żywiec Łódź ő"), "Zywiec Lódz o"_w);
  EXPECT_EQ(Utf8("a−b ≤ c ﬁg"), "a-b <= c fig");
  EXPECT_EQ(Utf8("寿司 sushi"), "?? sushi");
}

TEST(CellText, ComposesLettersAndLeavesOutWhatShowsNothing) {
  EXPECT_EQ(Utf8("Cre\xCC\x80me"), "Crème"_w);  // e and a grave accent
  EXPECT_EQ(Utf8("C\xCC\xA7"
                 "a"),
            "Ça"_w);  // C and a cedilla
  EXPECT_EQ(Utf8("a\xE2\x80\x8B"
                 "b"),
            "ab");  // zero width space
  EXPECT_EQ(Utf8("choco\xC2\xAD"
                 "late"),
            "chocolate");  // soft hyphen
}

TEST(CellText, MakesBlanksAndControlCharactersSingleBlanks) {
  EXPECT_EQ(Utf8("  two\t\n words\xC2\xA0 "), "two words");
  EXPECT_EQ(Utf8(std::string_view("a\0b", 3)), "a b");
  EXPECT_EQ(Utf8(" \xE2\x80\x83\t "), "");
}

TEST(CellText, TakesHtmlOut) {
  EXPECT_EQ(Utf8("<b>Big</b> &amp; <i class=\"x\">round</i>"), "Big & round");
  EXPECT_EQ(Utf8("&quot;Light&quot; &lt; 5 &#233; &#xE9;"), "\"Light\" < 5 é é"_w);
  EXPECT_EQ(Utf8("<5% fat & more > less &unknown; &#0; &#12"),
            "<5% fat & more > less &unknown; &#0; &#12");
}

TEST(CellText, CountsWhatTextCannotHold) {
  const CellText cell = ReadCellText("寿司 su", Encoding::utf8);
  EXPECT_EQ(cell.characters, 4u);
  EXPECT_EQ(cell.unheld, 2u);
  EXPECT_EQ(ReadCellText("Żywiec", Encoding::utf8).unheld, 0u);
}

struct AmountRow {
  std::string_view cell;
  std::optional<double> amount;
};

TEST(CellAmount, IsWhollyANumberOrUnknown) {
  constexpr std::nullopt_t kUnknown = std::nullopt;
  const std::vector<AmountRow> rows = {{"0", 0.0},
                                       {"12", 12.0},
                                       {"0.85", 0.85},
                                       {"0,85", 0.85},
                                       {" 7,5 ", 7.5},
                                       {".5", 0.5},
                                       {",5", 0.5},
                                       {"5.", 5.0},
                                       {"1.234,5", 1234.5},
                                       {"1,234.5", 1234.5},
                                       {"1.234.567", 1234567.0},
                                       {"1,234,567", 1234567.0},
                                       {"12.345.678,9", 12345678.9},
                                       {"1e3", 1000.0},
                                       {"1.5E-2", 0.015},
                                       {"\xC2\xA0"
                                        "3",
                                        3.0},
                                       {"traces", 0.0},
                                       {"Traces", 0.0},
                                       {"tr", 0.0},
                                       {"sporen", 0.0},
                                       {"< 0,5", 0.0},
                                       {"<0.02", 0.0},
                                       {"", kUnknown},
                                       {"  ", kUnknown},
                                       {"-", kUnknown},
                                       {"-5", kUnknown},
                                       {"12 g", kUnknown},
                                       {"1.2.3", kUnknown},
                                       {"1,23,456", kUnknown},
                                       {"1,2.3,4", kUnknown},
                                       {"12,34.5", kUnknown},
                                       {"nan", kUnknown},
                                       {"inf", kUnknown},
                                       {"0x10", kUnknown},
                                       {"< x", kUnknown},
                                       {"<", kUnknown},
                                       {"1e999", kUnknown},
                                       {"~5", kUnknown},
                                       {"trac", kUnknown},
                                       {"1,", 1.0},
                                       {",", kUnknown},
                                       {".", kUnknown}};
  for (const auto& [cell, amount] : rows) EXPECT_EQ(ReadCellAmount(cell), amount) << cell;
}

}  // namespace
}  // namespace kelvora
