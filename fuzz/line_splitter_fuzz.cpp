// Any bytes as packed text: lines, fields, groups of equal lines and lines that move.
#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <limits>
#include <utility>

#include "core/common.h"
#include "core/store.h"
#include "fuzz/check.h"
#include "fuzz/plain.h"

namespace kelvora {
namespace {

void CheckFields(std::string_view line) {
  const Pieces expected = PlainSplit(line, kFieldEnd);
  const auto fields = FieldsOf(line);
  Check(std::ranges::equal(fields, expected), "FieldsOf gives what a terminator closes");
  for (const std::string_view field : fields) {
    Check(field.data() >= line.data() && field.data() + field.size() < line.data() + line.size(),
          "a field is a view into its line, in front of its terminator");
  }

  // The last and one beyond it, besides more than any food line has.
  constexpr std::size_t kLooked = 20;
  for (std::size_t i = 0; i < std::min(kLooked, fields.size()); ++i) {
    Check(FieldOf(line, i) == fields[i], "FieldOf agrees with FieldsOf");
  }
  if (!fields.empty()) {
    Check(FieldOf(line, fields.size() - 1) == fields.back(), "FieldOf finds the last field");
  }
  for (const std::size_t beyond : {fields.size(), std::numeric_limits<std::size_t>::max()}) {
    Check(FieldOf(line, beyond).empty(), "a field beyond the last is empty");
  }

  TextList list;
  list.Add("goes");
  SplitLine(line, list);
  Check(std::ranges::equal(list, fields), "SplitLine replaces a list by the fields");
}

// What a block of lines becomes, and back.
void CheckBlock(std::string_view block, const Pieces& expected) {
  TextList lines;
  {
    const AllocationMeter meter;
    SplitBlock(block, lines);
    Check(meter.Bytes() <= AllowedMemory(block.size()), "memory is bounded by the block's size");
  }
  Check(Holds(lines, expected), "SplitBlock gives what a terminator closes");
  const Text packed = PackBlock(lines);
  Check(packed == ClosedPart(block, kLineEnd), "packing gives the block without its unclosed end");

  TextList closed;
  SplitBlock(block, "end\xBD", closed);
  Check(closed.Count() == expected.size(), "a closing changes no count");
  for (std::size_t i = 0; i < expected.size(); ++i) {
    Check(closed[i] == Text(expected[i]) + "end\xBD", "every line gets the closing");
  }

  SplitBlock(packed, lines);
  Check(lines.Count() == 2 * expected.size(), "SplitBlock clears nothing");
  for (std::size_t i = 0; i < expected.size(); ++i) {
    Check(lines[i] == expected[i] && lines[expected.size() + i] == expected[i],
          "a packed list reads back");
  }
  Check(lines[lines.Count()].empty(), "a line beyond the last is empty");
  Check(HoldsTerminator(block) ==
            std::ranges::any_of(block, [](char c) { return c == kFieldEnd || c == kLineEnd; }),
        "HoldsTerminator sees both terminators");
}

void CheckCounts(const TextList& lines) {
  TextList distinct, counts;
  distinct.Add("goes");
  counts.Add("goes");
  CountEqualLines(lines, distinct, counts);

  // Equal lines stand together once sorted, in the order in which they appeared.
  std::vector<std::pair<std::string_view, std::size_t>> sorted;
  for (std::size_t i = 0; i < lines.Count(); ++i) sorted.emplace_back(lines[i], i);
  std::ranges::sort(sorted);
  std::vector<std::pair<std::size_t, std::size_t>> groups;  // first appearance, size
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    if (i == 0 || sorted[i].first != sorted[i - 1].first) groups.emplace_back(sorted[i].second, 0);
    ++groups.back().second;
  }
  std::ranges::sort(groups);

  Check(distinct.Count() == groups.size(), "each different line once");
  Check(counts.Count() == groups.size(), "as many counts as different lines");
  std::size_t sum = 0;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    Check(distinct[i] == lines[groups[i].first], "the order is that of first appearance");
    std::size_t count = 0;
    std::from_chars(counts[i].data(), counts[i].data() + counts[i].size(), count);
    Check(count == groups[i].second, "a count is how often its line occurs");
    sum += count;
  }
  Check(sum == lines.Count(), "the counts sum up to all lines");
}

// The last line that begins with `key` goes to the end of the target, by indexes over plain lists.
void MovePlain(std::array<Pieces, 3>& parts, std::string_view source, std::string_view key,
               std::string_view target) {
  const auto part_of = [&parts](std::string_view code) -> Pieces* {
    if (code == "1") return &parts[0];
    if (code == "2") return &parts[1];
    return code == "3" ? &parts[2] : nullptr;
  };
  Pieces* const from = part_of(source);
  if (from == nullptr) return;
  for (std::size_t i = from->size(); i-- > 0;) {
    if ((*from)[i].compare(0, key.size(), key) != 0) continue;
    const std::string_view line = (*from)[i];
    from->erase(from->begin() + static_cast<std::ptrdiff_t>(i));
    if (Pieces* const to = part_of(target)) to->push_back(line);
    return;
  }
}

// The first three bytes choose source, target and key; the lines go round the day parts.
void CheckMove(std::string_view input, const Pieces& lines) {
  if (input.size() < 3) return;
  constexpr std::array<std::string_view, 8> kCodes = {"1", "2", "3", "0", "", "4", "11", "\xBD"};
  const auto chosen = [&input](std::size_t i) { return static_cast<std::uint8_t>(input[i]); };
  const std::string_view source = kCodes[chosen(0) % kCodes.size()];
  const std::string_view target = kCodes[chosen(1) % kCodes.size()];

  std::array<Pieces, 3> parts;
  KV_data store;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    parts[i % 3].push_back(lines[i]);
    store.ListOf(kDayParts[i % 3]).Add(lines[i]);
  }
  Text key = "absent\xBD";
  if (!lines.empty()) {
    const std::string_view line = lines[chosen(2) % lines.size()];
    key = line.substr(0, line.find(kFieldEnd));
    if (key.size() < line.size()) key = KeyOf(key);
  }

  MoveConsumption(store, source, key, target);
  MovePlain(parts, source, key, target);
  for (std::size_t i = 0; i < 3; ++i) {
    Check(Holds(store.ListOf(kDayParts[i]), parts[i]),
          "one line moves from where it stood to the end of the target");
  }
}

// Finding, replacing and removing in a list of all lines, at a place that the input chooses.
void CheckList(TextList list, Pieces plain, std::size_t place) {
  const Pieces original = plain;
  place %= plain.size() + 1;
  const std::string_view line = list[place];
  const Text key(line.substr(0, line.size() / 2));

  const auto begins = [&key](std::string_view s) { return s.compare(0, key.size(), key) == 0; };
  const auto first = std::ranges::find_if(plain, begins);
  const auto last = std::find_if(plain.rbegin(), plain.rend(), begins);
  const auto found_first = list.FindFirst(key);
  const auto found_last = list.FindLast(key);
  Check(found_first.has_value() == (first != plain.end()), "FindFirst finds what is there");
  Check(found_last.has_value() == found_first.has_value(), "FindLast finds if FindFirst does");
  if (found_first) {
    Check(static_cast<std::ptrdiff_t>(*found_first) == first - plain.begin(), "the first is found");
    Check(static_cast<std::ptrdiff_t>(*found_last) == plain.rend() - last - 1, "the last is found");
  }

  TextList shared;
  shared.Add("first");
  shared.AddSharedLines(list, [](std::string_view taken) { return !taken.empty(); });
  const TextList copy = list;

  list.Replace(place, "new");
  if (place < plain.size()) plain[place] = "new";
  Check(Holds(list, plain), "Replace changes that line only");
  list.Remove(place);
  if (place < plain.size()) plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(place));
  Check(Holds(list, plain), "Remove takes that line only");

  list.Clear();
  Check(list.Empty(), "Clear leaves nothing");
  Pieces not_empty = {"first"};
  std::ranges::copy_if(original, std::back_inserter(not_empty),
                       [](std::string_view taken) { return !taken.empty(); });
  Check(Holds(shared, not_empty), "shared lines stay when their list goes");
  // From here on nothing but the copy holds the lines.
  shared.Clear();
  Check(Holds(copy, original), "a copy keeps its lines when all others go");
}

}  // namespace
}  // namespace kelvora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvora;
  const std::string_view input = InputOf(data, size);
  // One matter for each input, since many short runs find more than few long ones.
  const Pieces plain = PlainSplit(input, kLineEnd);
  TextList lines;
  switch (size % 5) {
    case 0:
      CheckFields(input);
      break;
    case 1:
      CheckBlock(input, plain);
      break;
    case 2:
      SplitBlock(input, lines);
      CheckCounts(lines);
      break;
    case 3:
      CheckMove(input, plain);
      break;
    default:
      SplitBlock(input, lines);
      CheckList(std::move(lines), plain, data[0]);
  }
  return 0;
}
