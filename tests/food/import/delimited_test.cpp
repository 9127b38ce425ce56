// Reading delimited text: what its form is guessed to be, and the rows that any bytes give.
#include "food/import/delimited.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace kelvora {
namespace {

using Rows = std::vector<std::vector<std::string>>;

// Gives the text in pieces of that size, so that rows begin and end anywhere in them.
DelimitedReader::Source InPieces(std::string_view text, std::size_t piece) {
  return [text, piece](char* to, std::size_t size) mutable {
    const std::size_t given = text.substr(0, std::min(piece, size)).copy(to, size);
    text.remove_prefix(given);
    return given;
  };
}

struct Read {
  Rows rows;
  std::vector<std::uint64_t> lines;
  std::vector<RowProblem> problems;
  bool last_ended = true;
};

Read ReadAll(std::string_view text, const DelimitedForm& form, std::size_t piece = 1 << 20) {
  DelimitedReader reader(InPieces(text, piece), form);
  Read read;
  TableRow row;
  while (reader.Next(row)) {
    read.rows.emplace_back(row.cells.begin(), row.cells.end());
    read.lines.push_back(row.line);
    read.problems.push_back(row.problem);
    read.last_ended = row.ended;
  }
  return read;
}

DelimitedForm FormOf(std::string_view sample) {
  return std::get<DelimitedForm>(GuessForm(sample));
}

NoTable ReasonOf(std::string_view sample) {
  return std::get<NoTable>(GuessForm(sample));
}

TEST(GuessForm, TellsTheDelimiterByTheOneThatEachLineHasAsOften) {
  EXPECT_EQ(FormOf("a,b,c\n1,2,3\n").delimiter, ',');
  EXPECT_EQ(FormOf("a;b, b;c\n1,5;2,5;3,5\n").delimiter, ';');
  EXPECT_EQ(FormOf("a\tb\n1,2,3\t4\n5,6,7\t8\n").delimiter, '\t');
  EXPECT_EQ(FormOf("a|b|c\n1;1|2|3\n").delimiter, '|');
  EXPECT_EQ(FormOf("\"a,b\";c\n\"d,e,f\";g\n").delimiter, ';');
}

TEST(GuessForm, TakesQuotesForQuotesWhereTheTableUsesThem) {
  EXPECT_TRUE(FormOf("a,b\n1,2\n").quoted);
  EXPECT_TRUE(FormOf("a;b\n1;2\n").quoted);
  EXPECT_FALSE(FormOf("a\tb\n1\" sq\t2\n").quoted);
  EXPECT_FALSE(FormOf("a|b\n1|2\n").quoted);
  EXPECT_TRUE(FormOf("\"a\"|\"b\"\n\"1\"|\"2\"\n").quoted);
}

TEST(GuessForm, TellsTheEncodingByMarkAndBytes) {
  EXPECT_EQ(FormOf("a,cr\xC3\xA8me\n").encoding, Encoding::utf8);
  EXPECT_EQ(FormOf("a,cr\xE8me\n").encoding, Encoding::windows_1252);
  const DelimitedForm marked = FormOf(
      "\xEF\xBB\xBF"
      "a,cr\xE8me\n");
  EXPECT_EQ(marked.encoding, Encoding::utf8);
  EXPECT_EQ(marked.mark, 3u);
  // A sample may end in the middle of a character.
  std::string sample = "a,cr\xC3\xA8me\n";
  sample.resize(kSampleSize - 1, 'x');
  EXPECT_EQ(FormOf(sample + '\xC3').encoding, Encoding::utf8);
}

TEST(GuessForm, CanBeShown) {
  EXPECT_EQ(DescriptionOf(FormOf("a\tb\n1\t2\n")), "UTF-8, \"TAB\"");
  EXPECT_EQ(DescriptionOf(FormOf("a;cr\xE8me\n1;2\n")), "Windows-1252, \";\", \"...\"");
}

TEST(GuessForm, TellsLineEnds) {
  EXPECT_EQ(FormOf("a,b\r\n1,2\r\n").line_end, '\n');
  EXPECT_EQ(FormOf("a,b\r1,2\r").line_end, '\r');
}

TEST(GuessForm, SaysWhyTextIsNoTable) {
  using namespace std::string_view_literals;
  EXPECT_EQ(ReasonOf(""), NoTable::empty);
  EXPECT_EQ(ReasonOf("\xEF\xBB\xBF"), NoTable::empty);
  EXPECT_EQ(ReasonOf("\n\r\n\n"), NoTable::empty);
  EXPECT_EQ(ReasonOf("PK\x03\x04 and, more"), NoTable::compressed);
  EXPECT_EQ(ReasonOf("\x1F\x8B, and more"), NoTable::compressed);
  EXPECT_EQ(ReasonOf("\xFF\xFE"
                     "a\0,\0b\0"sv),
            NoTable::utf16);
  EXPECT_EQ(ReasonOf("a\0,\0b\0\n\0"sv), NoTable::utf16);
  EXPECT_EQ(ReasonOf("\0a\0,\0b\0\n"sv), NoTable::utf16);
  EXPECT_EQ(ReasonOf("%PDF-1.7, and more"), NoTable::binary);
  EXPECT_EQ(ReasonOf("\x01\x02\x03\x04,\x05\x06"sv), NoTable::binary);
  EXPECT_EQ(ReasonOf("one\ntwo\nthree\n"), NoTable::one_column);
}

TEST(DelimitedReader, ReadsBareCellsOfAnyLength) {
  const DelimitedForm form{'\t', false};
  const std::string text = "a\tbb\t\tccccccccccc\n\t\n\"q\" x\t1\n";
  const Rows rows = {{"a", "bb", "", "ccccccccccc"}, {"", ""}, {"\"q\" x", "1"}};
  for (const std::size_t piece : {1, 2, 3, 7, 1000}) {
    const Read read = ReadAll(text, form, piece);
    EXPECT_EQ(read.rows, rows) << piece;
    EXPECT_EQ(read.lines, (std::vector<std::uint64_t>{1, 2, 3}));
    EXPECT_TRUE(read.last_ended);
  }
}

TEST(DelimitedReader, ReadsQuotedCellsWithEverythingInThem) {
  const std::string text =
      "\"a\"\"b\",\"c,d\",\"e\r\nf\"\r\n\"\",x,\"\"\"\"\r\n\"g\"h,i\"j,\" k \"\n";
  const Rows rows = {{"a\"b", "c,d", "e\r\nf"}, {"", "x", "\""}, {"gh", "i\"j", " k "}};
  for (const std::size_t piece : {1, 2, 3, 7, 1000}) {
    const Read read = ReadAll(text, {}, piece);
    EXPECT_EQ(read.rows, rows) << piece;
    EXPECT_EQ(read.lines, (std::vector<std::uint64_t>{1, 3, 4}));
  }
}

TEST(DelimitedReader, PassesOverEmptyLinesAndCountsThem) {
  for (const bool quoted : {false, true}) {
    const Read read = ReadAll("\n\r\na,b\r\n\n1,2", {',', quoted});
    EXPECT_EQ(read.rows, (Rows{{"a", "b"}, {"1", "2"}}));
    EXPECT_EQ(read.lines, (std::vector<std::uint64_t>{3, 5}));
    EXPECT_FALSE(read.last_ended);
  }
}

TEST(DelimitedReader, ReadsLinesThatOnlyCarriageReturnsEnd) {
  for (const bool quoted : {false, true}) {
    const Read read = ReadAll("a,b\r1,2\r", {',', quoted, Encoding::utf8, '\r'});
    EXPECT_EQ(read.rows, (Rows{{"a", "b"}, {"1", "2"}}));
  }
}

TEST(DelimitedReader, LeavesTheMarkOut) {
  EXPECT_EQ(ReadAll("\xEF\xBB\xBF\"a\",b\n", {',', true, Encoding::utf8, '\n', 3}, 1).rows,
            (Rows{{"a", "b"}}));
}

TEST(DelimitedReader, GoesOnInTheNextLineAfterAQuoteThatNobodyCloses) {
  const Read at_end = ReadAll("a,b\n\"x,1\ny,2\nz,3\n", {});
  EXPECT_EQ(at_end.rows, (Rows{{"a", "b"}, {}, {"y", "2"}, {"z", "3"}}));
  EXPECT_EQ(at_end.problems[1], RowProblem::unbalanced_quote);
  EXPECT_EQ(at_end.lines, (std::vector<std::uint64_t>{1, 2, 3, 4}));

  // In the middle of a long table.
  std::string text = "a,b\n\"x,1\n";
  for (int i = 0; i < 100'000; ++i) text += "food,2\n";
  const Read read = ReadAll(text, {});
  ASSERT_EQ(read.rows.size(), 100'002u);
  EXPECT_EQ(read.problems[1], RowProblem::unbalanced_quote);
  EXPECT_EQ(std::ranges::count(read.problems, RowProblem::none), 100'001);
}

TEST(DelimitedReader, PassesOverALineOfAHundredMegabytesWithoutHoldingIt) {
  for (const bool quoted : {false, true}) {
    // Never in memory at once: the source makes it.
    const std::string before = "a,b\n";
    const std::string after = "\nc,d\n";
    std::size_t long_line = 100'000'000;
    std::size_t given_before = 0;
    std::size_t given_after = 0;
    const DelimitedReader* reading = nullptr;
    std::size_t given_of_line = 0;
    DelimitedReader reader(
        [&](char* to, std::size_t size) {
          if (reading != nullptr) {
            EXPECT_LT(given_of_line, reading->BytesTaken() + (4 << 20));
          }
          if (given_before < before.size()) {
            return given_before += before.copy(to, size);
          }
          if (long_line > 0) {
            const std::size_t given = std::min(size, long_line);
            std::fill(to, to + given, 'x');
            long_line -= given;
            given_of_line += given;
            return given;
          }
          const std::size_t given = after.substr(given_after).copy(to, size);
          given_after += given;
          return given;
        },
        {',', quoted});
    reading = &reader;
    TableRow row;
    ASSERT_TRUE(reader.Next(row));
    ASSERT_TRUE(reader.Next(row));
    EXPECT_EQ(row.problem, RowProblem::too_long);
    EXPECT_TRUE(row.cells.empty());
    ASSERT_TRUE(reader.Next(row));
    EXPECT_EQ(row.line, 3u);
    EXPECT_EQ(row.cells[1], "d");
    EXPECT_FALSE(reader.Next(row));
  }
}

TEST(DelimitedReader, ReadsTenThousandColumns) {
  std::string text;
  for (int i = 0; i < 10'000; ++i) text += (i == 0 ? "c" : ",c") + std::to_string(i);
  for (const bool quoted : {false, true}) {
    const Read read = ReadAll(text + "\n" + text, {',', quoted}, 1000);
    ASSERT_EQ(read.rows.size(), 2u);
    EXPECT_EQ(read.rows[1].size(), 10'000u);
    EXPECT_EQ(read.rows[1][9'999], "c9999");
  }
}

TEST(DelimitedReader, TakesNulsAsTheyCome) {
  using namespace std::string_literals;
  for (const bool quoted : {false, true}) {
    EXPECT_EQ(ReadAll("a\0b,c\0\n"s, {',', quoted}).rows, (Rows{{"a\0b"s, "c\0"s}}));
  }
}

}  // namespace
}  // namespace kelvora
