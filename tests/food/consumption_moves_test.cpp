// Food on its way: between parts of the day, out of the day, to the favourites, over the clipboard;
// and what is dropped that should not be.
#include "food/consumption_moves.h"

#include <gtest/gtest.h>

#include "food/consumption.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr FoodLine kTea{.product = "Tea", .unit = "1 cup", .gram = "150"};
constexpr FoodLine kIceTea{.product = "Tea, iced", .unit = "1 glass", .gram = "200"};
constexpr FoodLine kSoup{
    .product = "Soup", .unit = "1 bowl", .gram = "250", .remark = "1x Leek\r\n2x Carrot\r\n"};

std::vector<Text> Lines(const TextList& list) {
  return {list.begin(), list.end()};
}
TextList Names(std::initializer_list<std::string_view> names) {
  TextList list;
  for (const std::string_view name : names) list.Add(name);
  return list;
}

// Notes in which order a window is told to do what.
struct NotingWindow : ConsumptionView {
  NotingWindow(Text own_name, std::vector<Text>& all) : name(std::move(own_name)), notes(all) {}
  Text name;
  std::vector<Text>& notes;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_Consumpties() override { notes.push_back(name + " rows"); }
  void ShowTotals(const ConsumptionTotals&) override { notes.push_back(name + " totals"); }
  void SelectLastRow() override { notes.push_back(name + " last row"); }
};

class Moves : public testing::Test {
 protected:
  Moves() {
    test.OpenDay("Anna");
    for (const FoodLine& food : {kTea, kSoup, kTea, kIceTea}) store.L_ochtend.Add(LineOf(food));
  }
  TestProgram test;
  KV_data& store = test.program.store;
};

TEST_F(Moves, TheKeyboardMovesOneLineForEachNameAsADropDoes) {
  EXPECT_TRUE(
      MoveToDayPart(test.program, DayPart::morning, DayPart::evening, Names({"Tea", "Soup"})));
  EXPECT_EQ(Lines(store.L_ochtend), (std::vector<Text>{LineOf(kTea), LineOf(kIceTea)}));
  EXPECT_EQ(Lines(store.L_avond), (std::vector<Text>{LineOf(kTea), LineOf(kSoup)}));
  EXPECT_TRUE(test.program.day.FileChanged);
  EXPECT_EQ(test.program.day.drag_source, "1");
}

TEST_F(Moves, ADropRefreshesTheSourceThenTheTargetThenTotalsAndSelectsTheLastRow) {
  std::vector<Text> notes;
  NotingWindow morning("morning", notes), evening("evening", notes);
  test.program.windows.consumption = {&morning, nullptr, &evening};
  MoveToDayPart(test.program, DayPart::morning, DayPart::evening, Names({"Tea"}));
  EXPECT_EQ(notes, (std::vector<Text>{"morning rows", "evening rows", "morning totals",
                                      "evening totals", "evening last row"}));
}

TEST_F(Moves, ADropOnItsOwnListSendsTheLineToTheEnd) {
  const Text payload = BeginConsumptionDrag(test.program, DayPart::morning, Names({"Soup"}));
  EXPECT_TRUE(DropOnDayPart(test.program, DayPart::morning, payload));
  EXPECT_EQ(Lines(store.L_ochtend),
            (std::vector<Text>{LineOf(kTea), LineOf(kTea), LineOf(kIceTea), LineOf(kSoup)}));
}

TEST_F(Moves, TakingOutOfTheDayRemovesTheLastEqualLineOfEachName) {
  FoodLine stronger = kTea;
  stronger.gram = "151";
  store.L_ochtend.Add(LineOf(stronger));
  TakeOutOfDay(test.program, DayPart::morning, Names({"Tea", "Tea, iced", "Nobody"}));
  EXPECT_EQ(Lines(store.L_ochtend), (std::vector<Text>{LineOf(kTea), LineOf(kSoup), LineOf(kTea)}));
  EXPECT_TRUE(test.program.day.FileChanged);
  // 150 + 250 + 150 grams
  EXPECT_TRUE(store.txt_trenddata.starts_with(Packed("550|")));
}

TEST_F(Moves, WithoutANameNothingHappens) {
  EXPECT_FALSE(MoveToDayPart(test.program, DayPart::morning, DayPart::evening, {}));
  TakeOutOfDay(test.program, DayPart::morning, {});
  AddToFavourites(test.program, Names({""}));
  EXPECT_FALSE(test.program.day.FileChanged);
  EXPECT_EQ(store.L_ochtend.Count(), 4u);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Moves, FavouritesAreTheFoodsOfTheListsAndStayInTheDay) {
  store.Default_list.Add(LineOf(kTea));
  store.Custom_list.Add(LineOf(kSoup));
  AddToFavourites(test.program, Names({"Tea", "Soup"}));
  EXPECT_EQ(Lines(store.Favorites_list), (std::vector<Text>{LineOf(kTea), LineOf(kSoup)}));
  EXPECT_EQ(store.L_ochtend.Count(), 4u);
  EXPECT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_FALSE(test.program.day.FileChanged);
}

TEST_F(Moves, OfAnAmountOfAFoodTheFoodBecomesTheFavourite) {
  store.Custom_list.Add(LineOf(kSoup));
  AddToFavourites(test.program, Names({"Soup, 150 g", "Tea, 0.5 x", "Bagel"}));
  EXPECT_EQ(Lines(store.Favorites_list), std::vector<Text>{LineOf(kSoup)});
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(test.boxes.shown[0].text, "The food item has been added to the favourites list.");
  EXPECT_EQ(test.boxes.shown[1].text,
            "None of your lists has \"Tea, 0.5 x, Bagel\", so that it can't be a favourite.");
}

// A name that only looks like an amount of another is a name.
TEST_F(Moves, AFoodThatIsNamedLikeAnAmountBecomesTheFavouriteItself) {
  FoodLine cup = kSoup;
  cup.product = "Soup, 150 g";
  store.Custom_list.Add(LineOf(kSoup));
  store.Custom_list.Add(LineOf(cup));
  AddToFavourites(test.program, Names({"Soup, 150 g"}));
  EXPECT_EQ(Lines(store.Favorites_list), std::vector<Text>{LineOf(cup)});
}

TEST_F(Moves, WhatIsCutStaysUntilItIsPasted) {
  const ClipboardFoods cut = CutFromDayPart(test.program, DayPart::morning, {0, 1}).foods;
  EXPECT_EQ(cut.payload, "kill-" + Packed("Tea|~Soup|~"));
  EXPECT_EQ(store.L_ochtend.Count(), 4u);
  // A drag begins elsewhere in between.
  test.program.day.drag_source = "3";
  EXPECT_TRUE(CanPaste(test.program, cut));
  EXPECT_TRUE(PasteOnDayPart(test.program, DayPart::afternoon, cut));
  EXPECT_EQ(Lines(store.L_middag), (std::vector<Text>{LineOf(kTea), LineOf(kSoup)}));
  EXPECT_EQ(store.L_ochtend.Count(), 2u);
}

TEST_F(Moves, WhatWasCutFromAnotherDayOrElsewhereIsNotPasted) {
  const ClipboardFoods cut = CutFromDayPart(test.program, DayPart::morning, {0}).foods;
  store.KV_bestand = "06032004140709.kvf";
  for (const ClipboardFoods& clipboard :
       {cut, ClipboardFoods{cut.payload, ""}, ClipboardFoods{cut.payload, "4" + store.KV_bestand},
        ClipboardFoods{"some text", "1" + store.KV_bestand}, ClipboardFoods{}}) {
    EXPECT_FALSE(CanPaste(test.program, clipboard));
    EXPECT_FALSE(PasteOnDayPart(test.program, DayPart::evening, clipboard));
  }
  EXPECT_FALSE(test.program.day.FileChanged);
  EXPECT_EQ(store.L_ochtend.Count(), 4u);
}

TEST_F(Moves, AFoodLineOnTheClipboardIsPastedAsItIsDropped) {
  EXPECT_TRUE(
      PasteOnDayPart(test.program, DayPart::evening, {"add-" + LineOf(kSoup) + kLineEnd, ""}));
  EXPECT_EQ(Lines(store.L_avond), std::vector<Text>{LineOf(kSoup)});
}

TEST_F(Moves, APasteAboveTheLimitShowsTheMessageAndChangesNothing) {
  for (int i = 0; i < 51; ++i) store.L_avond.Add(LineOf(kSoup));
  const ClipboardFoods cut = CutFromDayPart(test.program, DayPart::morning, {0}).foods;
  EXPECT_FALSE(PasteOnDayPart(test.program, DayPart::evening, cut));
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(store.L_ochtend.Count(), 4u);
}

// What is dropped on the evening, and what must lie there afterwards.
struct DropCase {
  const char* payload;
  std::vector<const char*> expected;
};

TEST_F(Moves, BadPayloadsAddNothingThatIsNoFood) {
  test.program.day.drag_source = "1";
  const DropCase cases[] = {
      {"", {}},
      {"add-", {}},
      {"kill-", {}},
      {"text of another program~", {}},
      {"add-Tea|1 cup|", {}},  // no line is closed
      {"add-~~~", {}},         // lines without a field
      {"add-no field~Tea|~", {"Tea|"}},
      {"kill-~", {}},    // the empty text would match any line
      {"kill-Te~", {}},  // the beginning of a name is no key
      {"kill-Tea|", {}},
      {"kill-tea|~Nobody|~|~", {}},  // keys that match nothing
      {"ADD-Tea|~", {}},
      {"NVITEM-", {"Nomivant.exe|"}},
      {"NVITEM-Pie|1|~Cake|2|~", {"Pie|1|Nomivant.exe|"}},
      {"add-kill-Tea|~", {"kill-Tea|"}},
  };
  for (const DropCase& one : cases) {
    store.L_avond.Clear();
    EXPECT_TRUE(DropOnDayPart(test.program, DayPart::evening, Packed(one.payload)));
    std::vector<Text> expected;
    for (const char* line : one.expected) expected.push_back(Packed(line));
    if (Text(one.payload) == "add-kill-Tea|~") {
      // What a marker leaves is looked at again: the same key then moves a line, as is meant.
      expected.push_back(LineOf(kTea));
    }
    EXPECT_EQ(Lines(store.L_avond), expected) << one.payload;
  }
  EXPECT_EQ(store.L_ochtend.Count(), 3u);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Moves, KeysWithoutADragOfThisProgramMoveNothing) {
  EXPECT_EQ(test.program.day.drag_source, "");
  EXPECT_TRUE(DropOnDayPart(test.program, DayPart::evening, "kill-" + Packed("Tea|~")));
  EXPECT_TRUE(store.L_avond.Empty());
  EXPECT_EQ(store.L_ochtend.Count(), 4u);
}

TEST_F(Moves, AMegabyteIsTakenAsWhatItIs) {
  const Text megabyte(1 << 20, 'x');
  EXPECT_TRUE(DropOnDayPart(test.program, DayPart::evening, "add-" + megabyte));
  EXPECT_TRUE(DropOnDayPart(test.program, DayPart::evening, "add-" + megabyte + kLineEnd));
  EXPECT_TRUE(store.L_avond.Empty());
  Text keys = "kill-";
  while (keys.size() < megabyte.size()) keys += Packed("Nobody|~");
  test.program.day.drag_source = "1";
  EXPECT_TRUE(DropOnDayPart(test.program, DayPart::evening, keys));
  EXPECT_TRUE(store.L_avond.Empty());
  Text lines = "add-";
  while (lines.size() < megabyte.size()) lines += LineOf(kTea) + kLineEnd;
  EXPECT_TRUE(DropOnDayPart(test.program, DayPart::evening, lines));
  const auto rows = ConsumptionRows(test.program, DayPart::evening);
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].count, std::to_string(store.L_avond.Count()));
  EXPECT_GT(store.L_avond.Count(), 20000u);
  TakeOutOfDay(test.program, DayPart::evening, Names({"Tea"}));
  Item_Verwijder(test.program, DayPart::evening, Names({"Tea"}));
  EXPECT_TRUE(store.L_avond.Empty());
}

TEST_F(Moves, LongNamesAndLineBreaksInARemarkTravelWhole) {
  FoodLine long_one = kSoup;
  const Text name(134, 'w');
  long_one.product = name;
  store.L_middag.Add(LineOf(long_one));
  EXPECT_TRUE(MoveToDayPart(test.program, DayPart::afternoon, DayPart::evening, Names({name})));
  EXPECT_EQ(Lines(store.L_avond), std::vector<Text>{LineOf(long_one)});
}

TEST_F(Moves, ABadLineKeepsTheOnesThatWereAddedBeforeIt) {
  const Text huge(400, '9');
  const Text bad = LineOf({.product = "Huge", .kj = huge});
  EXPECT_TRUE(DropOnDayPart(test.program, DayPart::evening,
                            "add-" + LineOf(kTea) + kLineEnd + bad + kLineEnd));
  EXPECT_EQ(Lines(store.L_avond), (std::vector<Text>{LineOf(kTea), bad}));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF11-0"));
}

}  // namespace
}  // namespace kelvora
