#include "core/store.h"

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

void SplitBlock(std::string_view block, std::string_view closing, TextList& lines) {
  ForEachTerminated(block, kLineEnd, [&](std::string_view line) { lines.Add({line, closing}); });
}

Text PackBlock(const TextList& lines) {
  std::size_t size = 0;
  for (const std::string_view line : lines) size += line.size() + 1;
  Text block;
  block.reserve(size);
  for (const std::string_view line : lines) (block += line) += kLineEnd;
  return block;
}

Text KeyOf(std::string_view name) {
  return Text(name) + kFieldEnd;
}

bool HoldsTerminator(std::string_view text) {
  return text.find_first_of(std::string_view("\xBD\xBE", 2)) != std::string_view::npos;
}

std::string_view PodCodeOf(DayPart part) {
  constexpr std::array<std::string_view, 3> kCodes = {"0", "1", "2"};
  return kCodes[static_cast<std::size_t>(part)];
}

void MergeDay(const std::array<std::string_view, 3>& blocks, TextList& merged) {
  merged.Clear();
  for (const DayPart part : kDayParts) {
    SplitBlock(blocks[static_cast<std::size_t>(part)], Text(PodCodeOf(part)) + kFieldEnd, merged);
  }
}

void CountEqualLines(const TextList& lines, TextList& distinct, TextList& counts) {
  distinct.Clear();
  counts.Clear();
  std::unordered_map<std::string_view, std::size_t> place;
  place.reserve(lines.Count());
  std::vector<std::size_t> tally;
  for (const std::string_view line : lines) {
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
