// The text routines against all 256 characters of Windows-1252 as Python knows them. The table and
// its columns: tests/oracles/make_code_page.py.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>

#include "core/text.h"
#include "oracles/table.h"

namespace kelvora {
namespace {

unsigned HexOf(const std::string& text) {
  return static_cast<unsigned>(std::stoul(text, nullptr, 16));
}

struct CodePageRow {
  char byte;
  char32_t code_point;
  std::string utf8;
  char lower;
  bool open;
};

std::vector<CodePageRow> CodePage() {
  std::vector<CodePageRow> rows;
  for (const TableRow& fields : ReadTable("code_page.tsv", "byte code_point utf8 lower note")) {
    std::string utf8;
    for (std::size_t i = 0; i < fields[2].size(); i += 2) {
      utf8 += static_cast<char>(HexOf(fields[2].substr(i, 2)));
    }
    rows.push_back({static_cast<char>(HexOf(fields[0])), HexOf(fields[1]), utf8,
                    static_cast<char>(HexOf(fields[3])), fields[4] == "open"});
  }
  return rows;
}

class CodePageOracle : public testing::Test {
 protected:
  const std::vector<CodePageRow> rows = CodePage();
};

TEST_F(CodePageOracle, TheTableHoldsEveryByteOnceAndFiveOpenOnes) {
  ASSERT_EQ(rows.size(), 256u);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(static_cast<unsigned char>(rows[i].byte), i);
  }
  EXPECT_EQ(std::ranges::count(rows, true, &CodePageRow::open), 5);
}

TEST_F(CodePageOracle, BytesAndCodePointsAreThoseOfTheTable) {
  for (const CodePageRow& row : rows) {
    EXPECT_EQ(CodePointOf(row.byte), row.code_point);
    EXPECT_EQ(ByteOf(row.code_point), row.byte) << std::hex << std::uint32_t{row.code_point};
  }
}

TEST_F(CodePageOracle, NoOtherCodePointHasAByte) {
  std::map<char32_t, char> bytes;
  for (const CodePageRow& row : rows) bytes[row.code_point] = row.byte;
  for (char32_t code_point = 0; code_point < 0x110000; ++code_point) {
    if (!bytes.contains(code_point)) {
      ASSERT_EQ(ByteOf(code_point), std::nullopt) << std::hex << std::uint32_t{code_point};
    }
  }
}

TEST_F(CodePageOracle, Utf8IsThatOfTheTableInBothDirections) {
  Text all;
  std::string all_utf8;
  for (const CodePageRow& row : rows) {
    EXPECT_EQ(Utf8FromText(Text(1, row.byte)), row.utf8);
    EXPECT_EQ(TextFromUtf8(row.utf8), Text(1, row.byte)) << row.utf8;
    all += row.byte;
    all_utf8 += row.utf8;
  }
  EXPECT_EQ(Utf8FromText(all), all_utf8);
  EXPECT_EQ(TextFromUtf8(all_utf8), all);
}

TEST_F(CodePageOracle, LowerCaseIsThatOfTheTable) {
  int changed = 0;
  for (const CodePageRow& row : rows) {
    EXPECT_EQ(LowerCase(Text(1, row.byte)), Text(1, row.lower)) << row.utf8;
    changed += row.lower != row.byte;
  }
  // A to Z, the thirty accented capitals of the upper half and four more below them.
  EXPECT_EQ(changed, 26 + 30 + 4);
}

}  // namespace
}  // namespace kelvora
