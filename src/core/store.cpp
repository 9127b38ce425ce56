#include "core/store.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>

namespace kelvora {
namespace {

// Calls `take` with each piece of `text` that a terminator closes.
template <class Take>
void ForEachTerminated(std::string_view text, char terminator, Take take) {
  for (std::size_t end; (end = text.find(terminator)) != std::string_view::npos;) {
    take(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
}

}  // namespace

void TextList::Remove(std::size_t index) {
  if (index < lines_.size()) lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(index));
}

void TextList::Replace(std::size_t index, std::string_view line) {
  if (index < lines_.size()) lines_[index] = line;
}

std::optional<std::size_t> TextList::FindFirst(std::string_view key) const {
  const auto found =
      std::ranges::find_if(lines_, [&](const Text& s) { return s.starts_with(key); });
  if (found == lines_.end()) return std::nullopt;
  return static_cast<std::size_t>(found - lines_.begin());
}

std::optional<std::size_t> TextList::FindLast(std::string_view key) const {
  for (std::size_t i = lines_.size(); i-- > 0;) {
    if (lines_[i].starts_with(key)) return i;
  }
  return std::nullopt;
}

const TextList& KV_data::ListOf(DayPart part) const {
  switch (part) {
    case DayPart::morning:
      return L_ochtend;
    case DayPart::afternoon:
      return L_middag;
    case DayPart::evening:
      break;
  }
  return L_avond;
}

TextList& KV_data::ListOf(DayPart part) {
  return const_cast<TextList&>(std::as_const(*this).ListOf(part));
}

std::vector<std::string_view> FieldsOf(std::string_view line) {
  std::vector<std::string_view> fields;
  fields.reserve(16);
  ForEachTerminated(line, kFieldEnd, [&](std::string_view field) { fields.push_back(field); });
  return fields;
}

std::string_view FieldOf(std::string_view line, std::size_t index) {
  for (std::size_t end; (end = line.find(kFieldEnd)) != std::string_view::npos; --index) {
    if (index == 0) return line.substr(0, end);
    line.remove_prefix(end + 1);
  }
  return {};
}

void SplitLine(std::string_view line, TextList& fields) {
  fields.Clear();
  ForEachTerminated(line, kFieldEnd, [&](std::string_view field) { fields.Add(field); });
}

void SplitBlock(std::string_view block, TextList& lines) {
  ForEachTerminated(block, kLineEnd, [&](std::string_view line) { lines.Add(line); });
}

Text PackBlock(const TextList& lines) {
  Text block;
  for (const Text& line : lines) (block += line) += kLineEnd;
  return block;
}

Text KeyOf(std::string_view name) {
  return Text(name) + kFieldEnd;
}

bool HoldsTerminator(std::string_view text) {
  return text.find_first_of(std::string_view("\xBD\xBE", 2)) != std::string_view::npos;
}

void CountEqualLines(const TextList& lines, TextList& distinct, TextList& counts) {
  distinct.Clear();
  counts.Clear();
  std::unordered_map<std::string_view, std::size_t> place;
  std::vector<std::size_t> tally;
  for (const Text& line : lines) {
    const auto [entry, is_new] = place.try_emplace(line, tally.size());
    if (is_new) {
      distinct.Add(line);
      tally.push_back(0);
    }
    ++tally[entry->second];
  }
  for (const std::size_t count : tally) counts.Add(std::to_string(count));
}

}  // namespace kelvora
