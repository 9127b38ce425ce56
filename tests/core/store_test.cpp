#include "core/store.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <set>

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

TEST(PackedText, AnyBytesSplitIntoLinesAndFieldsPackToWhatTheirTerminatorsClose) {
  std::mt19937 random(99);
  for (int round = 0; round < 2000; ++round) {
    Text bytes(random() % 60, ' ');
    for (char& byte : bytes) {
      const auto choice = random() % 8;
      byte = choice == 0 ? kFieldEnd : choice == 1 ? kLineEnd : static_cast<char>(random() % 256);
    }
    TextList lines;
    SplitBlock(bytes, lines);
    ASSERT_EQ(PackBlock(lines), bytes.substr(0, bytes.rfind(kLineEnd) + 1));
    TextList fields;
    Text packed;
    SplitLine(bytes, fields);
    for (const std::string_view field : fields) packed.append(field) += kFieldEnd;
    ASSERT_EQ(packed, bytes.substr(0, bytes.rfind(kFieldEnd) + 1));
  }
}

TEST(MergeDay, EachLineGetsTheCodeOfItsPartMorningFirst) {
  TextList merged = ListOf({"left from before"});
  MergeDay({Packed("Bread|~Milk|~"), "", Packed("Soup|~lost")}, merged);
  EXPECT_EQ(Lines(merged),
            (std::vector<Text>{Packed("Bread|0|"), Packed("Milk|0|"), Packed("Soup|2|")}));
  MergeDay({"", Packed("Apple|~"), ""}, merged);
  EXPECT_EQ(Lines(merged), std::vector<Text>{Packed("Apple|1|")});
}

TEST(MergeDay, TheCodeStandsAtIndex13OfALineWithACategoryAndAt12OfAnOwnFood) {
  TextList merged;
  const Text standard = LineOf({.product = "Apple", .db = "Fruit.dat"}) + kLineEnd;
  const Text own = LineOf({.product = "Own soup"}) + kLineEnd;
  MergeDay({"", "", standard + own}, merged);
  EXPECT_EQ(FieldOf(merged[0], FoodField::kDb), "Fruit.dat");
  EXPECT_EQ(FieldOf(merged[0], FoodField::kPod), "2");
  EXPECT_EQ(FieldOf(merged[1], FoodField::kDb), "2");
  EXPECT_EQ(FieldOf(merged[1], FoodField::kPod), "");
}

TEST(Keys, AnEmptyNameMatchesNoValidLine) {
  const TextList list = ListOf({LineOf({.product = "Apple"}), LineOf({.product = " "})});
  EXPECT_EQ(KeyOf(""), "\xBD");
  EXPECT_EQ(list.FindFirst(KeyOf("")), std::nullopt);
}

TEST(Keys, ANameThatBeginsAnotherDoesNotCollide) {
  const TextList list = ListOf({LineOf({.product = "Apple pie"}), LineOf({.product = "Apple"})});
  EXPECT_EQ(list.FindFirst(KeyOf("Apple")), 1u);
  EXPECT_EQ(list.FindLast(KeyOf("Apple pie")), 0u);
}

TEST(PackedText, ALineWithoutItsLastTerminatorLosesItsLastField) {
  TextList fields;
  Text line = LineOf({.product = "Apple", .remark = "fresh"});
  line.pop_back();
  SplitLine(line, fields);
  EXPECT_EQ(fields.Count(), 11u);
  EXPECT_EQ(fields[FoodField::kRemark], "");
}

TEST(Store, HoldsTwentyFourIconsThatDiffer) {
  const KV_data store;
  EXPECT_EQ(store.picIcon.size(), 24u);
  EXPECT_EQ(std::set(store.picIcon.begin(), store.picIcon.end()).size(), 24u);
}

TEST(Keys, AreWholeNamesAndTellCaseApart) {
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

TEST(PackedText, OnlyTheTwoTerminatorsAreTerminators) {
  for (int code = 0; code < 256; ++code) {
    const Text text = {'a', static_cast<char>(code), 'b'};
    EXPECT_EQ(HoldsTerminator(text), code == 0xBD || code == 0xBE) << code;
  }
}

}  // namespace
}  // namespace kelvora
