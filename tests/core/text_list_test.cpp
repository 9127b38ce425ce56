#include "core/text_list.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace kelvora {
namespace {

std::vector<Text> Lines(const TextList& list) {
  return {list.begin(), list.end()};
}

TEST(TextList, AnIndexBeyondTheEndReadsAsNothing) {
  TextList list;
  EXPECT_EQ(list[0], "");
  list.Add("one");
  EXPECT_EQ(list[0], "one");
  EXPECT_EQ(list[1], "");
  EXPECT_EQ(list[static_cast<std::size_t>(-1)], "");
}

TEST(TextList, RemovingAndReplacingBeyondTheEndChangesNothing) {
  TextList list;
  list.Add("one");
  list.Remove(1);
  list.Replace(1, "two");
  EXPECT_EQ(Lines(list), std::vector<Text>{"one"});
}

TEST(TextList, ALineOfTheListItselfCanBeAddedAndPutInAnyPlace) {
  TextList list;
  for (int i = 0; i < 2000; ++i) {
    list.Add(list.Empty() ? std::string_view("a line of some length") : list[list.Count() - 1]);
  }
  list.Replace(0, list[1999]);
  EXPECT_EQ(list[0], "a line of some length");
  EXPECT_EQ(list[1999], "a line of some length");
}

TEST(TextList, JoinsThePiecesOfALine) {
  TextList list;
  list.Add({"Bread", "|", "", "fresh"});
  list.Add({});
  EXPECT_EQ(Lines(list), (std::vector<Text>{"Bread|fresh", ""}));
}

TEST(TextList, ACopyAndItsSourceGoTheirOwnWays) {
  TextList source;
  source.Add("both");
  TextList copy = source;
  source.Add("source");
  copy.Add("copy");
  EXPECT_EQ(Lines(source), (std::vector<Text>{"both", "source"}));
  EXPECT_EQ(Lines(copy), (std::vector<Text>{"both", "copy"}));
  source.Clear();
  source.Add("anew");
  EXPECT_EQ(Lines(copy), (std::vector<Text>{"both", "copy"}));
}

TEST(TextList, AMovedListTakesItsLinesAlongAndLeavesAnEmptyOneToUse) {
  TextList source;
  source.Add("moved");
  TextList target = std::move(source);
  source.Clear();
  source.Add("new");
  target.Add("more");
  EXPECT_EQ(Lines(source), std::vector<Text>{"new"});
  EXPECT_EQ(Lines(target), (std::vector<Text>{"moved", "more"}));
}

TEST(TextList, SharedLinesOutliveTheirSource) {
  TextList result;
  result.Add("own");
  {
    TextList source;
    for (int i = 0; i < 10000; ++i) source.Add("line " + std::to_string(i));
    result.AddSharedLines(source, [](std::string_view line) { return line.ends_with("77"); });
    source.Clear();
  }
  ASSERT_EQ(result.Count(), 101u);
  EXPECT_EQ(result[0], "own");
  EXPECT_EQ(result[1], "line 77");
  EXPECT_EQ(result[100], "line 9977");
  result.Add("own again");
  EXPECT_EQ(result[101], "own again");
}

TEST(TextList, LinesOfAnySizeStandAsTheyCame) {
  TextList list;
  std::vector<Text> expected;
  for (const std::size_t size : {0u, 1u, 1023u, 1024u, 1025u, 0u, 3u, 1u << 20, 2u << 20, 5u}) {
    expected.emplace_back(size, static_cast<char>('a' + expected.size()));
    list.Add(expected.back());
  }
  EXPECT_EQ(Lines(list), expected);
}

// What a plain vector of strings does, in a long random row of operations.
TEST(TextList, BehavesLikeAPlainListOfStrings) {
  std::mt19937 random(11);
  TextList list, other;
  std::vector<Text> plain, plain_other;
  for (int step = 0; step < 20000; ++step) {
    const Text line(random() % 40, static_cast<char>(random()));
    const std::size_t at = plain.empty() ? 0 : random() % plain.size();
    switch (random() % 16) {
      case 0:
        list.Remove(at);
        if (!plain.empty()) plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(at));
        break;
      case 1:
        list.Replace(at, line);
        if (!plain.empty()) plain[at] = line;
        break;
      case 2:
        other = list;
        plain_other = plain;
        break;
      case 3:
        std::swap(list, other);
        std::swap(plain, plain_other);
        break;
      case 4:
        if (random() % 50 == 0) {
          list.Clear();
          plain.clear();
        }
        break;
      default:
        list.Add(line);
        plain.push_back(line);
    }
    ASSERT_EQ(list.Count(), plain.size());
    ASSERT_EQ(list.Empty(), plain.empty());
    if (step % 500 == 0) {
      ASSERT_EQ(Lines(list), plain);
      ASSERT_EQ(Lines(other), plain_other);
      ASSERT_EQ(list == other, plain == plain_other);
    }
  }
}

TEST(TextList, TheFirstAndTheLastLineOfAKeyAreFound) {
  TextList list;
  for (const char* line : {"Bread\xBD", "Bread roll\xBD", "bread\xBD", "Bread\xBD"}) list.Add(line);
  EXPECT_EQ(list.FindFirst("Bread\xBD"), 0u);
  EXPECT_EQ(list.FindLast("Bread\xBD"), 3u);
  EXPECT_EQ(list.FindFirst("bread\xBD"), 2u);
  EXPECT_EQ(list.FindLast("bread\xBD"), 2u);
  EXPECT_EQ(list.FindFirst("BREAD\xBD"), std::nullopt);
}

}  // namespace
}  // namespace kelvora
