// Any bytes as delimited text: guessed or told its form, read in pieces of any size.
#include <algorithm>
#include <cmath>

#include "core/store.h"
#include "food/import/cell.h"
#include "food/import/delimited.h"
#include "fuzz/check.h"
#include "fuzz/plain.h"

namespace kelvora {
namespace {

struct Row {
  std::vector<std::string> cells;
  std::uint64_t line;
  RowProblem problem;
  bool operator==(const Row&) const = default;
};

std::vector<Row> RowsOf(std::string_view text, const DelimitedForm& form, std::size_t piece) {
  DelimitedReader reader(
      [rest = text, piece](char* to, std::size_t size) mutable {
        const std::size_t given = rest.substr(0, std::min(piece, size)).copy(to, size);
        rest.remove_prefix(given);
        return given;
      },
      form);
  std::vector<Row> rows;
  TableRow row;
  while (reader.Next(row)) {
    rows.push_back({{row.cells.begin(), row.cells.end()}, row.line, row.problem});
  }
  Check(reader.BytesTaken() == text.size(), "every byte is read");
  return rows;
}

// A bare table by the plain loops: split into lines, then into cells.
std::vector<Row> PlainRows(std::string_view text, const DelimitedForm& form) {
  std::vector<Row> rows;
  text.remove_prefix(std::min(form.mark, text.size()));
  for (std::uint64_t number = 1; !text.empty(); ++number) {
    std::string_view line = text.substr(0, text.find(form.line_end));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty()) continue;
    Row& row = rows.emplace_back(Row{{""}, number, RowProblem::none});
    for (const char c : line) {
      if (c == form.delimiter) {
        row.cells.emplace_back();
      } else {
        row.cells.back() += c;
      }
    }
  }
  return rows;
}

void CheckCells(const std::vector<Row>& rows, Encoding encoding) {
  for (const Row& row : rows) {
    Check(row.problem == RowProblem::none || row.cells.empty(), "a bad row has no cells");
    for (const std::string& cell : row.cells) {
      const CellText text = ReadCellText(cell, encoding);
      Check(!HoldsTerminator(text.text), "no cell holds a terminator");
      Check(text.unheld <= text.characters, "what text can't hold is among the characters");
      Check(Trimmed(text.text) == text.text, "no blanks stand around a text");
      Check(std::ranges::none_of(text.text,
                                 [](char c) { return static_cast<unsigned char>(c) < ' '; }),
            "a text has no control characters");
      const auto amount = ReadCellAmount(cell);
      Check(!amount || (std::isfinite(*amount) && *amount >= 0), "an amount is one");
    }
  }
}

void CheckTable(std::string_view text, const DelimitedForm& form) {
  const auto rows = RowsOf(text, form, 1 << 20);
  for (const std::size_t piece : {1, 7}) {
    Check(RowsOf(text, form, piece) == rows, "the size of the pieces makes no difference");
  }
  if (!form.quoted) Check(rows == PlainRows(text, form), "bare rows are what the line splits into");
  CheckCells(rows, form.encoding);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = InputOf(data, size);
  const auto guessed = GuessForm(text);
  if (const auto* const form = std::get_if<DelimitedForm>(&guessed)) CheckTable(text, *form);
  CheckTable(text, {',', true});
  CheckTable(text, {'\t', false, Encoding::windows_1252});
  CheckTable(text, {'|', true, Encoding::utf8, '\r'});
  return 0;
}

}  // namespace kelvora
