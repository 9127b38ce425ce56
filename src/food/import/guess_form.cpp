#include <algorithm>
#include <array>

#include "core/text.h"
#include "food/import/delimited.h"

namespace kelvora {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::array<char, 4> kDelimiters = {'\t', ';', '|', ','};
constexpr std::size_t kComparedLines = 30;

bool IsCompressed(std::string_view sample) {
  constexpr std::array<std::string_view, 6> kFronts = {"PK\x03\x04",
                                                       "\x1F\x8B",
                                                       "BZh",
                                                       "\xFD"
                                                       "7zXZ",
                                                       "7z\xBC\xAF",
                                                       "Rar!"};
  return std::ranges::any_of(kFronts, [&](auto front) { return sample.starts_with(front); });
}

// Without a mark: every other byte of plain letters is 0.
bool IsUtf16(std::string_view sample) {
  if (sample.starts_with("\xFF\xFE") || sample.starts_with("\xFE\xFF")) return true;
  std::array<std::size_t, 2> zeros{};
  for (std::size_t i = 0; i < sample.size(); ++i) zeros[i % 2] += sample[i] == '\0';
  const auto [few, many] = std::minmax(zeros[0], zeros[1]);
  return many * 4 > sample.size() && few * 10 < many;
}

bool IsBinary(std::string_view sample) {
  if (sample.starts_with("%PDF") || sample.starts_with("\xD0\xCF\x11\xE0")) return true;
  const auto controls = std::ranges::count_if(sample, [](char c) {
    const auto code = static_cast<unsigned char>(c);
    return code < ' ' && c != '\t' && c != '\n' && c != '\r';
  });
  return static_cast<std::size_t>(controls) * 10 > sample.size();
}

// What is no UTF-8 is Windows-1252. A single bad byte among good characters makes no difference,
// nor does a character that the sample cuts.
Encoding EncodingOf(std::string_view sample, bool is_whole) {
  std::size_t good = 0;
  std::size_t bad = 0;
  for (std::size_t i = 0; i < sample.size();) {
    const auto [code_point, length] = DecodeUtf8(sample, i);
    if (length > 1) ++good;
    if (code_point == 0xFFFD && length == 1 && (is_whole || i + 4 < sample.size())) ++bad;
    i += length;
  }
  return bad > good / 20 ? Encoding::windows_1252 : Encoding::utf8;
}

// How often the delimiter stands in the line outside of quotes.
std::size_t CountIn(std::string_view line, char delimiter) {
  std::size_t count = 0;
  bool in_quotes = false;
  bool at_front = true;
  for (const char c : line) {
    if (c == '"' && (at_front || in_quotes)) in_quotes = !in_quotes;
    at_front = c == delimiter && !in_quotes;
    count += at_front;
  }
  return count;
}

// A delimiter stands in each line as often as in the first.
std::size_t ScoreOf(char delimiter, const std::vector<std::string_view>& lines) {
  const std::size_t in_header = CountIn(lines.front(), delimiter);
  if (in_header == 0) return 0;
  std::size_t equal = 0;
  for (const std::string_view line : lines) equal += CountIn(line, delimiter) == in_header;
  return equal * 100'000 / lines.size() + in_header;
}

std::vector<std::string_view> LinesOf(std::string_view sample, char line_end, bool is_whole) {
  std::vector<std::string_view> lines;
  while (!sample.empty() && lines.size() < kComparedLines) {
    const std::size_t end = sample.find(line_end);
    if (end == sample.npos && !is_whole && !lines.empty()) break;
    std::string_view line = sample.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (!line.empty()) lines.push_back(line);
    sample.remove_prefix(end == sample.npos ? sample.size() : end + 1);
  }
  return lines;
}

// Commas and semicolons stand inside of cells, so that tables with them use quotes; the others do
// so if their first cell does.
bool IsQuoted(std::string_view header, char delimiter) {
  if (delimiter == ',' || delimiter == ';') return true;
  const std::string_view first = header.substr(0, header.find(delimiter));
  return first.size() >= 2 && first.front() == '"' && first.back() == '"';
}

}  // namespace

std::string DescriptionOf(const DelimitedForm& form) {
  const std::string encoding = form.encoding == Encoding::utf8 ? "UTF-8" : "Windows-1252";
  const std::string delimiter = form.delimiter == '\t' ? "TAB" : std::string(1, form.delimiter);
  return encoding + ", \"" + delimiter + "\"" + (form.quoted ? ", \"...\"" : "");
}

std::variant<DelimitedForm, NoTable> GuessForm(std::string_view sample) {
  if (IsCompressed(sample)) return NoTable::compressed;
  if (IsUtf16(sample)) return NoTable::utf16;
  if (IsBinary(sample)) return NoTable::binary;
  DelimitedForm form;
  const bool is_whole = sample.size() < kSampleSize;
  if (sample.starts_with(kUtf8Mark)) form.mark = kUtf8Mark.size();
  sample.remove_prefix(form.mark);
  form.encoding = form.mark != 0 ? Encoding::utf8 : EncodingOf(sample, is_whole);
  form.line_end =
      sample.find('\n') == sample.npos && sample.find('\r') != sample.npos ? '\r' : '\n';
  const auto lines = LinesOf(sample, form.line_end, is_whole);
  if (lines.empty()) return NoTable::empty;
  std::size_t best = 0;
  for (const char delimiter : kDelimiters) {
    const std::size_t score = ScoreOf(delimiter, lines);
    if (score <= best) continue;
    best = score;
    form.delimiter = delimiter;
  }
  if (best == 0) return NoTable::one_column;
  form.quoted = IsQuoted(lines.front(), form.delimiter);
  return form;
}

}  // namespace kelvora
