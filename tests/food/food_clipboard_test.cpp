// Foods over the clipboard, and taking changes of the day back.
#include <gtest/gtest.h>

#include "food/combining.h"
#include "food/consumption.h"
#include "food/consumption_moves.h"
#include "language/choose_language.h"
#include "nutrition/totals.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr FoodLine kTea{
    .product = "Tea", .unit = "1 cup", .gram = "150", .kj = "10,5", .kcal = "2.5"};
constexpr FoodLine kSoup{.product = "Soup", .unit = "1 bowl", .gram = "250", .kj = "400"};

std::vector<Text> Lines(const TextList& list) {
  return {list.begin(), list.end()};
}

class Clipboard : public testing::Test {
 protected:
  Clipboard() {
    test.OpenDay("Anna");
    for (const FoodLine& food : {kTea, kSoup, kTea}) store.L_ochtend.Add(LineOf(food));
    Refresh_Totalen(program);
  }
  void Fill(DayPart part, std::size_t lines) {
    while (store.ListOf(part).Count() < lines) store.ListOf(part).Add(LineOf(kSoup));
  }
  TestProgram test;
  Program& program = test.program;
  KV_data& store = test.program.store;
};

TEST_F(Clipboard, ACopyHoldsEachLineAsOftenAsItWasEaten) {
  const FoodsToClipboard copy = CopyFromDayPart(program, DayPart::morning, {0, 1});
  EXPECT_EQ(copy.foods.payload,
            "add-" + LineOf(kTea) + kLineEnd + LineOf(kTea) + kLineEnd + LineOf(kSoup) + kLineEnd);
  EXPECT_EQ(copy.foods.origin, "");
  EXPECT_FALSE(program.day.FileChanged);
  EXPECT_EQ(CopyFromDayPart(program, DayPart::morning, {}).foods.payload, "");
}

TEST_F(Clipboard, OthersReadATableOfTheRows) {
  // 2 x 150 grams, 2 x 10.5 kilojoules
  EXPECT_EQ(CopyFromDayPart(program, DayPart::morning, {0, 1}).table,
            "X\tFood item\tUnit\tGram\tKj\n2\tTea\t1 cup\t300\t21\n1\tSoup\t1 bowl\t250\t400\n");
  EXPECT_EQ(CutFromDayPart(program, DayPart::morning, {1}).table,
            "X\tFood item\tUnit\tGram\tKj\n1\tSoup\t1 bowl\t250\t400\n");
}

TEST_F(Clipboard, TheTableFollowsTheSettings) {
  program.settings[Setting::opt_gramoz] = "1";
  program.profile[ProfileField::type_prioriteit] = "1";
  // 150 grams are 5.29 ounces, which a portion shows as 5.3, twice that; 2 x 2.5 kilocalories
  EXPECT_TRUE(CopyFromDayPart(program, DayPart::morning, {0}).table.ends_with("\t10.6\t5\n"));
  EXPECT_NE(CopyFromDayPart(program, DayPart::morning, {0}).table.find("\toz:\tKcal\n"),
            Text::npos);
  // A nutrient that is no energy.
  program.profile[ProfileField::type_prioriteit] = "5";
  EXPECT_TRUE(CopyFromDayPart(program, DayPart::morning, {0}).table.ends_with("\t21\n"));
}

TEST_F(Clipboard, NothingInANameBreaksTheTable) {
  store.L_avond.Add(LineOf({.product = "Pie\tor\r\ncake"}));
  EXPECT_NE(CopyFromDayPart(program, DayPart::evening, {0}).table.find("\n1\tPie or  cake\t"),
            Text::npos);
}

TEST_F(Clipboard, ACopyIsPastedIntoAnyPartOfAnyDay) {
  const ClipboardFoods foods = CopyFromDayPart(program, DayPart::morning, {0}).foods;
  EXPECT_TRUE(PasteOnDayPart(program, DayPart::morning, foods));
  EXPECT_EQ(store.L_ochtend.Count(), 5u);
  CloseDay(program);
  EXPECT_FALSE(PasteOnDayPart(program, DayPart::evening, foods));
  test.OpenDay("Anna", "06032004140709.kvf");
  EXPECT_TRUE(PasteOnDayPart(program, DayPart::evening, foods));
  EXPECT_EQ(Lines(store.L_avond), (std::vector<Text>{LineOf(kTea), LineOf(kTea)}));
}

TEST_F(Clipboard, APasteUpToTheLimitIsTakenAndOneBeyondRefusedWhole) {
  const ClipboardFoods foods = CopyFromDayPart(program, DayPart::morning, {0}).foods;
  Fill(DayPart::evening, 48);
  EXPECT_TRUE(PasteOnDayPart(program, DayPart::evening, foods));
  EXPECT_EQ(store.L_avond.Count(), 50u);
  EXPECT_TRUE(test.boxes.shown.empty());
  Fill(DayPart::afternoon, 49);
  EXPECT_FALSE(PasteOnDayPart(program, DayPart::afternoon, foods));
  EXPECT_EQ(store.L_middag.Count(), 49u);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  // The message of a drop there.
  Fill(DayPart::afternoon, 51);
  DropOnDayPart(program, DayPart::afternoon, foods.payload);
  EXPECT_EQ(test.boxes.shown[1].text, test.boxes.shown[0].text);
}

TEST_F(Clipboard, CutFoodsCountForTheLimitOfAnotherPartOnly) {
  Fill(DayPart::morning, 50);
  Fill(DayPart::evening, 50);
  const ClipboardFoods cut = CutFromDayPart(program, DayPart::morning, {0}).foods;
  EXPECT_FALSE(PasteOnDayPart(program, DayPart::evening, cut));
  EXPECT_EQ(store.L_ochtend.Count(), 50u);
  EXPECT_TRUE(PasteOnDayPart(program, DayPart::morning, cut));
  EXPECT_EQ(store.L_ochtend.Count(), 50u);
  EXPECT_EQ(store.L_ochtend[49], LineOf(kTea));
}

TEST_F(Clipboard, OfPlainTextOnlyWhatBeginsAsFoodsDoIsTaken) {
  const Text foods = "add-" + LineOf(kTea) + kLineEnd;
  EXPECT_EQ(FoodsInPlainText(foods).payload, foods);
  for (const Text& text : {Text("kill-Tea\xBD\xBE"), Text("NVITEM-Pie\xBD"), Text("Add-"), Text(),
                           " " + foods, Text("text of another program")}) {
    EXPECT_EQ(FoodsInPlainText(text).payload, "") << text;
  }
}

TEST_F(Clipboard, WhatHoldsNoWholeFoodCannotBePasted) {
  const Text megabyte(1 << 20, 'x');
  for (const Text& text : {Text("add-"), Text("add-\xBE"), "add-" + LineOf(kTea), "add-" + megabyte,
                           "add-" + megabyte + kLineEnd}) {
    EXPECT_FALSE(CanPaste(program, FoodsInPlainText(text)));
    EXPECT_FALSE(PasteOnDayPart(program, DayPart::evening, FoodsInPlainText(text)));
  }
  EXPECT_TRUE(store.L_avond.Empty());
  EXPECT_FALSE(program.day.FileChanged);
  // Half a line behind a whole one is left out.
  EXPECT_TRUE(PasteOnDayPart(program, DayPart::evening,
                             FoodsInPlainText("add-" + LineOf(kTea) + kLineEnd + "Sou")));
  EXPECT_EQ(Lines(store.L_avond), std::vector<Text>{LineOf(kTea)});
}

TEST_F(Clipboard, AMegabyteOfFoodsIsRefusedWhole) {
  Text text = "add-";
  while (text.size() < 1 << 20) text.append(LineOf(kTea)).push_back(kLineEnd);
  EXPECT_FALSE(PasteOnDayPart(program, DayPart::evening, FoodsInPlainText(text)));
  EXPECT_TRUE(store.L_avond.Empty());
  EXPECT_EQ(test.boxes.shown.size(), 1u);
}

// Taking back.

TEST_F(Clipboard, EachChangeIsTakenBackWhateverItWas) {
  const auto morning = Lines(store.L_ochtend);
  Item_Plus_Een(program, DayPart::morning, "Soup");
  Item_Verwijder(program, DayPart::morning, [] {
    TextList names;
    names.Add("Tea");
    return names;
  }());
  PasteOnDayPart(program, DayPart::evening, FoodsInPlainText("add-" + LineOf(kTea) + kLineEnd));
  TextList soup;
  soup.Add("Soup");
  MoveToDayPart(program, DayPart::morning, DayPart::evening, soup);
  EXPECT_EQ(Lines(store.L_avond), (std::vector<Text>{LineOf(kTea), LineOf(kSoup)}));
  UndoFoods(program);
  EXPECT_EQ(Lines(store.L_avond), std::vector<Text>{LineOf(kTea)});
  EXPECT_EQ(Lines(store.L_ochtend), (std::vector<Text>{LineOf(kSoup), LineOf(kSoup)}));
  UndoFoods(program);
  EXPECT_TRUE(store.L_avond.Empty());
  UndoFoods(program);
  EXPECT_EQ(store.L_ochtend.Count(), 4u);
  UndoFoods(program);
  EXPECT_EQ(Lines(store.L_ochtend), morning);
  for (int i = 0; i < 4; ++i) RedoFoods(program);
  EXPECT_EQ(Lines(store.L_avond), (std::vector<Text>{LineOf(kTea), LineOf(kSoup)}));
}

TEST_F(Clipboard, TakingBackMarksTheDayAndTotalsItAnew) {
  Item_Plus_Een(program, DayPart::morning, "Soup");
  const auto updates = test.core.updates;
  SetFileChanged(program, false);
  UndoFoods(program);
  EXPECT_TRUE(program.day.FileChanged);
  EXPECT_GT(test.core.updates, updates);
  // 150 + 250 + 150 grams
  EXPECT_TRUE(store.txt_trenddata.starts_with(Packed("550|")));
  SetFileChanged(program, false);
  RedoFoods(program);
  EXPECT_TRUE(program.day.FileChanged);
  EXPECT_TRUE(store.txt_trenddata.starts_with(Packed("800|")));
}

TEST_F(Clipboard, WithoutAChangeNothingIsTakenBackAndTheDayIsNotMarked) {
  UndoFoods(program);
  RedoFoods(program);
  EXPECT_FALSE(program.day.FileChanged);
  EXPECT_EQ(store.L_ochtend.Count(), 3u);
}

TEST_F(Clipboard, GoesOnAcrossASaveAndALanguage) {
  MakeUserFolders(program.paths, "Anna");
  Item_Plus_Een(program, DayPart::morning, "Soup");
  ASSERT_TRUE(SaveDay(program));
  FollowSettings(program);
  UndoFoods(program);
  EXPECT_EQ(store.L_ochtend.Count(), 3u);
  EXPECT_TRUE(program.day.FileChanged);
}

TEST_F(Clipboard, ACombinedFoodStaysInTheOwnList) {
  MakeUserFolders(program.paths, "Anna");
  const CombineForm form{.name = "Meal", .unit = "1 plate", .var = {}};
  ASSERT_TRUE(CombineFoods(program, DayPart::morning, form));
  EXPECT_EQ(store.L_ochtend.Count(), 1u);
  UndoFoods(program);
  EXPECT_EQ(store.L_ochtend.Count(), 3u);
  EXPECT_EQ(store.Custom_list.Count(), 1u);
}

TEST_F(Clipboard, TheNextDayKnowsNothingOfThisOne) {
  Item_Plus_Een(program, DayPart::morning, "Soup");
  CloseDay(program);
  UndoFoods(program);
  EXPECT_TRUE(store.L_ochtend.Empty());
  test.OpenDay("Anna", "06032004140709.kvf");
  Refresh_Totalen(program);
  UndoFoods(program);
  EXPECT_TRUE(store.L_ochtend.Empty());
  EXPECT_FALSE(program.day.FileChanged);
}

}  // namespace
}  // namespace kelvora
