#include "food/import/delimited.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace kelvora {
namespace {

constexpr std::size_t kFirstBuffer = 64 << 10;  // grows where a row needs more

// The bytes of a word that equal the one that `pattern` repeats: their highest bits.
std::uint64_t EqualBytes(std::uint64_t word, std::uint64_t pattern) {
  constexpr std::uint64_t kLow = 0x7F7F7F7F7F7F7F7F;
  const std::uint64_t differences = word ^ pattern;
  return ~(((differences & kLow) + kLow) | differences | kLow);
}

// The place of the first byte in memory among those marked.
std::size_t FirstOf(std::uint64_t marks) {
  const int bits = std::endian::native == std::endian::little ? std::countr_zero(marks)
                                                              : std::countl_zero(marks);
  return static_cast<std::size_t>(bits) / 8;
}

std::uint64_t WithoutFirst(std::uint64_t marks) {
  if (std::endian::native == std::endian::little) return marks & (marks - 1);
  return marks & ~(std::uint64_t{1} << (63 - std::countl_zero(marks)));
}

}  // namespace

DelimitedReader::DelimitedReader(Source source, const DelimitedForm& form)
    : source_(std::move(source)), form_(form), buffer_(kFirstBuffer) {
  while (end_ < form_.mark && Refill()) {
  }
  Take(std::min(form_.mark, end_));
}

bool DelimitedReader::Refill() {
  if (source_ended_) return false;
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
  }
  if (end_ > buffer_.size() / 2) buffer_.resize(buffer_.size() * 2);
  const std::size_t size = source_(buffer_.data() + end_, buffer_.size() - end_);
  end_ += size;
  source_ended_ = size == 0;
  return !source_ended_;
}

void DelimitedReader::Take(std::size_t size) {
  begin_ += size;
  taken_ += size;
}

bool DelimitedReader::Next(TableRow& row) {
  unescaped_.clear();
  row.cells.clear();
  row.problem = RowProblem::none;
  return form_.quoted ? NextQuoted(row) : NextBare(row);
}

void DelimitedReader::PassOverLine() {
  while (true) {
    const char* const from = buffer_.data() + begin_;
    const void* const end = std::memchr(from, form_.line_end, end_ - begin_);
    if (end != nullptr) {
      Take(static_cast<std::size_t>(static_cast<const char*>(end) - from) + 1);
      break;
    }
    Take(end_ - begin_);
    if (!Refill()) break;
  }
  ++line_;
}

bool DelimitedReader::NextBare(TableRow& row) {
  std::size_t searched = 0;
  while (true) {
    const char* const from = buffer_.data() + begin_;
    const void* const found =
        end_ - begin_ > searched
            ? std::memchr(from + searched, form_.line_end, end_ - begin_ - searched)
            : nullptr;
    if (found == nullptr) {
      searched = end_ - begin_;
      if (searched > kLongestRow) {
        row.line = line_;
        row.problem = RowProblem::too_long;
        PassOverLine();
        return true;
      }
      if (Refill()) continue;
      if (begin_ == end_) return false;
    }
    row.ended = found != nullptr;
    const std::size_t size = row.ended
                                 ? static_cast<std::size_t>(static_cast<const char*>(found) - from)
                                 : end_ - begin_;
    // Memory has moved if more was read.
    std::string_view line(buffer_.data() + begin_, size);
    if (line.ends_with('\r')) line.remove_suffix(1);
    row.line = line_++;
    Take(size + row.ended);
    searched = 0;
    if (line.empty()) continue;
    if (size > kLongestRow) {
      row.problem = RowProblem::too_long;
    } else {
      SplitBare(line, row);
    }
    return true;
  }
}

void DelimitedReader::SplitBare(std::string_view line, TableRow& row) const {
  const char* const text = line.data();
  const std::uint64_t pattern = 0x0101010101010101 * static_cast<unsigned char>(form_.delimiter);
  std::size_t begin = 0;
  std::size_t at = 0;
  for (; at + 8 <= line.size(); at += 8) {
    std::uint64_t word = 0;
    std::memcpy(&word, text + at, sizeof word);
    for (std::uint64_t marks = EqualBytes(word, pattern); marks != 0; marks = WithoutFirst(marks)) {
      const std::size_t end = at + FirstOf(marks);
      row.cells.emplace_back(text + begin, end - begin);
      begin = end + 1;
    }
  }
  for (; at < line.size(); ++at) {
    if (text[at] != form_.delimiter) continue;
    row.cells.emplace_back(text + begin, at - begin);
    begin = at + 1;
  }
  row.cells.emplace_back(text + begin, line.size() - begin);
}

bool DelimitedReader::NextQuoted(TableRow& row) {
  while (true) {
    if (begin_ == end_ && !Refill()) return false;
    row.cells.clear();
    unescaped_.clear();
    std::size_t size = 0;
    switch (SplitQuoted(row, size)) {
      case Split::needs_more:
        if (end_ - begin_ <= kLongestRow) {
          Refill();
          continue;
        }
        row.problem = RowProblem::too_long;
        break;
      case Split::unbalanced:
        row.problem = RowProblem::unbalanced_quote;
        break;
      case Split::done:
        if (size > kLongestRow) row.problem = RowProblem::too_long;
        break;
    }
    row.line = line_;
    if (row.problem != RowProblem::none) {
      row.cells.clear();
      PassOverLine();
      return true;
    }
    const char* const from = buffer_.data() + begin_;
    line_ += static_cast<std::uint64_t>(std::count(from, from + size, form_.line_end));
    if (!row.ended) ++line_;
    Take(size);
    if (row.cells.size() == 1 && row.cells[0].empty()) continue;
    return true;
  }
}

// `size` is that of the row with its line end.
DelimitedReader::Split DelimitedReader::SplitQuoted(TableRow& row, std::size_t& size) {
  const char* const begin = buffer_.data() + begin_;
  const char* const end = buffer_.data() + end_;
  const char* at = begin;
  const auto ends_bare = [this](char c) { return c == form_.delimiter || c == form_.line_end; };
  while (true) {
    if (at != end && *at == '"') {
      const char* piece = ++at;
      const char* first_line_end = nullptr;
      std::string* joined = nullptr;
      while (true) {
        while (at != end && *at != '"') {
          if (*at == form_.line_end) {
            if (first_line_end == nullptr) first_line_end = at;
            if (static_cast<std::size_t>(at - first_line_end) > kLongestQuote) {
              return Split::unbalanced;
            }
          }
          ++at;
        }
        if (at == end) return source_ended_ ? Split::unbalanced : Split::needs_more;
        if (at + 1 == end && !source_ended_) return Split::needs_more;
        const bool doubled = at + 1 != end && at[1] == '"';
        // What stands behind the closing quote belongs to the cell all the same.
        const bool closes = !doubled && (at + 1 == end || ends_bare(at[1]) ||
                                         (at[1] == '\r' && (at + 2 == end || ends_bare(at[2]))));
        if (closes && joined == nullptr) {
          row.cells.emplace_back(piece, static_cast<std::size_t>(at - piece));
          ++at;
          break;
        }
        if (joined == nullptr) joined = &unescaped_.emplace_back();
        joined->append(piece, static_cast<std::size_t>(at - piece));
        if (doubled) {
          *joined += '"';
          at += 2;
          piece = at;
          continue;
        }
        ++at;
        if (!closes) {
          const char* const rest = at;
          while (at != end && !ends_bare(*at)) ++at;
          if (at == end && !source_ended_) return Split::needs_more;
          joined->append(rest, static_cast<std::size_t>(at - rest));
        }
        row.cells.push_back(*joined);
        break;
      }
      if (at != end && *at == '\r' && form_.line_end != '\r') ++at;
    } else {
      const char* const cell = at;
      while (at != end && !ends_bare(*at)) ++at;
      if (at == end && !source_ended_) return Split::needs_more;
      std::string_view text(cell, static_cast<std::size_t>(at - cell));
      const bool is_last = at == end || *at == form_.line_end;
      if (is_last && text.ends_with('\r')) text.remove_suffix(1);
      row.cells.push_back(text);
    }
    if (at == end) {
      if (!source_ended_) return Split::needs_more;
      row.ended = false;
      size = static_cast<std::size_t>(at - begin);
      return Split::done;
    }
    row.ended = *at == form_.line_end;
    ++at;
    if (!row.ended) continue;
    size = static_cast<std::size_t>(at - begin);
    return Split::done;
  }
}

}  // namespace kelvora
