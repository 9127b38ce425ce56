#include "core/store.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "core/common.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

std::vector<Text> Lines(const TextList& list) {
  return {list.begin(), list.end()};
}

TextList ListOf(std::initializer_list<std::string_view> lines) {
  TextList list;
  for (const std::string_view line : lines) list.Add(line);
  return list;
}

TEST(PackedText, TerminatorsAreTheWindows1252Bytes) {
  EXPECT_EQ("½"_w, "\xBD");
  EXPECT_EQ("¾"_w, "\xBE");
}

TEST(PackedText, SplitsOnlyWhatATerminatorCloses) {
  TextList fields;
  SplitLine(Packed("a||c|lost"), fields);
  EXPECT_EQ(Lines(fields), (std::vector<Text>{"a", "", "c"}));
  SplitLine("no terminator", fields);
  EXPECT_TRUE(fields.Empty());
}

TEST(PackedText, SplittingABlockAddsToWhatIsThere) {
  TextList lines = ListOf({"first"});
  SplitBlock(Packed("a|~b|~lost|"), lines);
  EXPECT_EQ(Lines(lines), (std::vector<Text>{"first", Packed("a|"), Packed("b|")}));
}

TEST(PackedText, PackClosesEachLineAndAnEmptyListIsEmpty) {
  EXPECT_EQ(PackBlock(ListOf({Packed("a|"), Packed("b|")})), Packed("a|~b|~"));
  EXPECT_EQ(PackBlock({}), "");
}

TEST(PackedText, AnyLinesWithoutTerminatorSurvivePackAndSplit) {
  std::mt19937 random(20041105);
  for (int round = 0; round < 200; ++round) {
    TextList lines;
    for (auto i = random() % 20; i > 0; --i) {
      Text line;
      for (auto n = random() % 40; n > 0; --n) {
        const auto byte = static_cast<char>(random() % 256);
        if (byte != kLineEnd) line += byte;
      }
      lines.Add(line);
    }
    TextList back;
    SplitBlock(PackBlock(lines), back);
    ASSERT_EQ(back, lines);
  }
}

TEST(PackedText, AFieldBeyondTheLineReadsAsEmpty) {
  const Text line = LineOf({.product = "Apple", .gram = "150"});
  EXPECT_EQ(FieldOf(line, FoodField::kProduct), "Apple");
  EXPECT_EQ(FieldOf(line, FoodField::kGram), "150");
  EXPECT_EQ(FieldOf(line, FoodField::kRemark), "");
  EXPECT_EQ(FieldOf(line, 12), "");
  EXPECT_EQ(FieldOf(line, FoodField::kPod), "");
  EXPECT_EQ(FieldsOf(line).size(), 12u);
}

TEST(TextList, AnIndexBeyondTheEndReadsAsEmptyAndChangesNothing) {
  TextList list = ListOf({"a"});
  EXPECT_EQ(list[1], "");
  list.Remove(5);
  list.Replace(5, "x");
  EXPECT_EQ(Lines(list), std::vector<Text>{"a"});
}

TEST(TextList, KeysAreWholeNamesAndTellCaseApart) {
  const TextList list =
      ListOf({Packed("Milk, semi|"), Packed("Milk|1"), Packed("milk|"), Packed("Milk|2")});
  EXPECT_EQ(list.FindFirst(KeyOf("Milk")), 1u);
  EXPECT_EQ(list.FindLast(KeyOf("Milk")), 3u);
  EXPECT_EQ(list.FindFirst(KeyOf("milk")), 2u);
  EXPECT_EQ(list.FindFirst(KeyOf("Mil")), std::nullopt);
  EXPECT_EQ(list.FindFirst(KeyOf("")), std::nullopt);
}

TEST(CountEqualLines, KeepsTheOrderOfFirstAppearanceAndTellsLinesApartByAnyField) {
  TextList distinct, counts;
  CountEqualLines(ListOf({"b", "a", "b", "c", "b", "a", "B"}), distinct, counts);
  EXPECT_EQ(Lines(distinct), (std::vector<Text>{"b", "a", "c", "B"}));
  EXPECT_EQ(Lines(counts), (std::vector<Text>{"3", "2", "1", "1"}));
}

TEST(CountEqualLines, EqualsThePlainDoubleLoopOnManyTies) {
  std::mt19937 random(7);
  for (int round = 0; round < 100; ++round) {
    TextList lines;
    for (auto i = random() % 60; i > 0; --i) lines.Add(std::string(1, char('a' + random() % 6)));
    TextList distinct, counts;
    CountEqualLines(lines, distinct, counts);

    std::vector<Text> plain_lines, plain_counts;
    for (const std::string_view line : lines) {
      if (std::ranges::find(plain_lines, line) != plain_lines.end()) continue;
      plain_lines.emplace_back(line);
      plain_counts.push_back(std::to_string(std::ranges::count(lines, line)));
    }
    ASSERT_EQ(Lines(distinct), plain_lines);
    ASSERT_EQ(Lines(counts), plain_counts);
  }
}

class MoveConsumptionTest : public testing::Test {
 protected:
  MoveConsumptionTest() {
    store.L_ochtend = ListOf({Packed("Milk|1|"), Packed("Bread|"), Packed("Milk|2|")});
    store.L_avond = ListOf({Packed("Soup|")});
  }
  KV_data store;
};

TEST_F(MoveConsumptionTest, MovesTheLastLineOfTheNameToTheEndOfTheTarget) {
  MoveConsumption(store, "1", KeyOf("Milk"), "3");
  EXPECT_EQ(Lines(store.L_ochtend), (std::vector<Text>{Packed("Milk|1|"), Packed("Bread|")}));
  EXPECT_EQ(Lines(store.L_avond), (std::vector<Text>{Packed("Soup|"), Packed("Milk|2|")}));
}

TEST_F(MoveConsumptionTest, TargetZeroDeletesOneLine) {
  MoveConsumption(store, "1", KeyOf("Milk"), "0");
  EXPECT_EQ(Lines(store.L_ochtend), (std::vector<Text>{Packed("Milk|1|"), Packed("Bread|")}));
  EXPECT_EQ(store.L_avond.Count(), 1u);
}

TEST_F(MoveConsumptionTest, OntoItsOwnListSendsTheLineToTheEnd) {
  MoveConsumption(store, "1", KeyOf("Bread"), "1");
  EXPECT_EQ(Lines(store.L_ochtend),
            (std::vector<Text>{Packed("Milk|1|"), Packed("Milk|2|"), Packed("Bread|")}));
}

TEST_F(MoveConsumptionTest, AnUnknownKeyOrSourceMovesNothing) {
  const TextList before = store.L_ochtend;
  MoveConsumption(store, "1", KeyOf("Mil"), "2");
  MoveConsumption(store, "9", KeyOf("Milk"), "2");
  MoveConsumption(store, "1", KeyOf(""), "2");
  EXPECT_EQ(store.L_ochtend, before);
  EXPECT_TRUE(store.L_middag.Empty());
}

}  // namespace
}  // namespace kelvora
