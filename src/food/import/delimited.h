// Delimited text: tables of one row a line, whose cells one character keeps apart. The form of a
// table is guessed from its beginning; the reader then gives row by row in constant memory,
// whatever the table holds. Nothing here knows what the cells mean.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kelvora {

enum class Encoding { utf8, windows_1252 };

struct DelimitedForm {
  char delimiter = ',';
  // A cell may stand in double quotes, two of which are one in it. Otherwise a quote is a character
  // like any other.
  bool quoted = true;
  Encoding encoding = Encoding::utf8;
  char line_end = '\n';  // '\r' where the table has no line feed
  std::size_t mark = 0;  // bytes of a byte order mark in front
};

// The form as anybody can check it: Windows-1252, ";"
[[nodiscard]] std::string DescriptionOf(const DelimitedForm& form);

// Why something is no table.
enum class NoTable { empty, compressed, utf16, binary, one_column };

// How much of a table is looked at.
inline constexpr std::size_t kSampleSize = 64 << 10;

// The form of the table that begins with `sample`.
[[nodiscard]] std::variant<DelimitedForm, NoTable> GuessForm(std::string_view sample);

enum class RowProblem { none, too_long, unbalanced_quote };

struct TableRow {
  std::vector<std::string_view> cells;  // good until the next row is read
  std::uint64_t line = 0;               // the line of the file that it begins in, from 1
  RowProblem problem = RowProblem::none;
  bool ended = true;  // by a line end, not by the end of the file
};

class DelimitedReader {
 public:
  // Fills up to that many bytes and tells how many; 0 at the end.
  using Source = std::function<std::size_t(char* to, std::size_t size)>;

  // A row longer than this is passed over.
  static constexpr std::size_t kLongestRow = 1 << 20;
  // A quote that is closed later than this many bytes behind the end of its line is taken for one
  // that nobody closes.
  static constexpr std::size_t kLongestQuote = 64 << 10;

  DelimitedReader(Source source, const DelimitedForm& form);

  // The next row that is not empty; false at the end. A row with a problem has no cells. After an
  // unbalanced quote reading goes on in the next line.
  bool Next(TableRow& row);

  [[nodiscard]] std::uint64_t BytesTaken() const { return taken_; }

 private:
  enum class Split { done, needs_more, unbalanced };

  // Moves what is not read yet to the front and adds to it; false at the end of the source.
  bool Refill();
  void Take(std::size_t size);
  bool NextBare(TableRow& row);
  bool NextQuoted(TableRow& row);
  Split SplitQuoted(TableRow& row, std::size_t& size);
  void SplitBare(std::string_view line, TableRow& row) const;
  // Passes over the line that begins here, however long it is.
  void PassOverLine();

  Source source_;
  DelimitedForm form_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0, end_ = 0;
  bool source_ended_ = false;
  std::uint64_t taken_ = 0;
  std::uint64_t line_ = 1;
  std::deque<std::string> unescaped_;  // cells whose quotes were doubled
};

}  // namespace kelvora
