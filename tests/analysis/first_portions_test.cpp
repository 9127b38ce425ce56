#include "analysis/first_portions.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "support/test_program.h"

namespace kelvora {
namespace {

using Counts = std::vector<std::pair<Text, std::size_t>>;

Counts CountsOf(const std::vector<Text>& lines) {
  FirstPortions foods;
  for (const Text& line : lines) foods.Add(line);
  Counts counts;
  for (const auto& [line, count] : foods.Foods()) counts.emplace_back(line, count);
  return counts;
}

std::vector<Text> PackedLines(std::initializer_list<std::string_view> lines) {
  std::vector<Text> packed;
  for (const std::string_view line : lines) packed.push_back(Packed(line));
  return packed;
}

// The rule with loops over all lines.
Counts ByTheRule(const std::vector<Text>& lines) {
  const auto name_of = [](const Text& line) { return line.substr(0, line.find(kFieldEnd)); };
  Counts counts;
  for (const Text& line : lines) {
    const bool seen = std::ranges::any_of(
        counts, [&](const auto& one) { return name_of(one.first) == name_of(line); });
    if (!seen) counts.emplace_back(line, std::ranges::count(lines, line));
  }
  return counts;
}

TEST(FirstPortions, CountEqualLinesOfAName) {
  EXPECT_EQ(CountsOf(PackedLines({"Bread|35|", "Milk|200|", "Bread|35|", "Bread|35|"})),
            (Counts{{Packed("Bread|35|"), 3}, {Packed("Milk|200|"), 1}}));
}

TEST(FirstPortions, LeaveOtherPortionsOfANameOut) {
  EXPECT_EQ(CountsOf(PackedLines({"Bread|35|", "Bread|50|", "Bread|35|", "Bread|50|"})),
            (Counts{{Packed("Bread|35|"), 2}}));
}

TEST(FirstPortions, TellNamesApartByTheirFirstField) {
  EXPECT_EQ(CountsOf(PackedLines({"Bread|35|", "Bread, white|35|", "bread|35|", "|35|"})).size(),
            4u);
  EXPECT_EQ(CountsOf({}), Counts{});
}

TEST(FirstPortions, AreThoseOfThePlainLoops) {
  std::mt19937 random(64);
  for (int round = 0; round < 200; ++round) {
    std::vector<Text> lines(random() % 120);
    for (Text& line : lines) {
      line = Packed("Food " + std::to_string(random() % 25) + "|" + std::to_string(random() % 3) +
                    "|");
    }
    EXPECT_EQ(CountsOf(lines), ByTheRule(lines)) << round;
  }
}

}  // namespace
}  // namespace kelvora
