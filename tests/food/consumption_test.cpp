#include "food/consumption.h"

#include <gtest/gtest.h>

#include "food/drag_text.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr FoodLine kBread{.product = "Bread",
                          .unit = "1 slice",
                          .gram = "35",
                          .kj = "343",
                          .kcal = "82",
                          .protein = "3.5",
                          .fat_u = "0.6",
                          .fat_s = "0.2",
                          .carbs = "14.3",
                          .sodium = "0.172",
                          .db = "Bread.dat"};
constexpr FoodLine kMilk{.product = "Milk", .unit = "1 glass", .gram = "200,5", .kcal = "92"};

std::vector<Text> Lines(const TextList& list) {
  return {list.begin(), list.end()};
}

class Consumption : public testing::Test {
 protected:
  Consumption() { test.OpenDay("Anna"); }
  void Fill(DayPart part, int count) {
    for (int i = 0; i < count; ++i) test.program.store.ListOf(part).Add(LineOf(kBread));
  }
  Text AddPayload(const FoodLine& food) { return "add-" + LineOf(food) + kLineEnd; }
  TestProgram test;
  KV_data& store = test.program.store;
};

TEST_F(Consumption, EqualLinesAreOneRowWithTheirCountAndSums) {
  test.program.profile[ProfileField::type_prioriteit] = "1";
  store.L_ochtend.Add(LineOf(kBread));
  store.L_ochtend.Add(LineOf(kMilk));
  store.L_ochtend.Add(LineOf(kBread));
  const auto rows = ConsumptionRows(test.program, DayPart::morning);
  ASSERT_EQ(rows.size(), 2u);
  const std::array<const char*, 6> bread = {"1", "2", "Bread", "1 slice", "70", "164"};
  const std::array<const char*, 6> milk = {"2", "1", "Milk", "1 glass", "200.5", "92"};
  for (std::size_t i = 0; i < kConsumptionColumns; ++i) {
    EXPECT_EQ(CellOf(rows[0], i), bread[i]);
    EXPECT_EQ(CellOf(rows[1], i), milk[i]);
  }
}

TEST_F(Consumption, LinesOfOneNameThatDifferInAnyFieldAreRowsOfTheirOwn) {
  FoodLine other = kBread;
  other.sodium = "0.173";
  store.L_ochtend.Add(LineOf(kBread));
  store.L_ochtend.Add(LineOf(other));
  EXPECT_EQ(ConsumptionRows(test.program, DayPart::morning).size(), 2u);
}

TEST_F(Consumption, OuncesAreRoundedPerPortionBeforeTheCountMultipliesThem) {
  test.program.settings[Setting::opt_gramoz] = "1";
  Fill(DayPart::evening, 3);
  // 35 g are 1.23 oz, shown as 1.2; three times 1.2 is 3.6, though 105 g are 3.7 oz.
  EXPECT_EQ(ConsumptionRows(test.program, DayPart::evening)[0].weight, "3.6");
  EXPECT_EQ(ConsumptionHeadings(test.program, DayPart::evening)[4], "oz:");
}

TEST_F(Consumption, EachPriorityShowsItsOwnColumn) {
  store.L_middag.Add(LineOf(kBread));
  const std::array<std::pair<const char*, const char*>, 6> expected = {{{"Kj ", "343"},
                                                                        {"Kcal", "82"},
                                                                        {"Fat(u)", "1"},
                                                                        {"Fat(s)", "0"},
                                                                        {"Carbs.", "14"},
                                                                        {"Prt.", "4"}}};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    test.program.profile[ProfileField::type_prioriteit] = std::to_string(i);
    EXPECT_EQ(ConsumptionHeadings(test.program, DayPart::afternoon)[5], expected[i].first);
    EXPECT_EQ(ConsumptionRows(test.program, DayPart::afternoon)[0].nutrient, expected[i].second);
  }
}

TEST_F(Consumption, TheTitleTellsWeekdayAndDate) {
  EXPECT_EQ(ConsumptionTitle(test.program, DayPart::morning),
            "Morning consumptions Friday 05-03-04");
  test.program.settings[Setting::opt_system] = "1";
  EXPECT_EQ(ConsumptionTitle(test.program, DayPart::evening),
            "Evening consumptions Friday 03-05-04");
}

TEST_F(Consumption, ADropAddsItsLinesInOrderAndMarksTheDayChanged) {
  const Text payload = "add-" + LineOf(kBread) + kLineEnd + LineOf(kMilk) + kLineEnd + "unclosed";
  EXPECT_TRUE(DropOnDayPart(test.program, DayPart::morning, payload));
  EXPECT_EQ(Lines(store.L_ochtend), (std::vector<Text>{LineOf(kBread), LineOf(kMilk)}));
  EXPECT_TRUE(test.program.day.FileChanged);
  EXPECT_TRUE(store.txt_trenddata.starts_with(Packed("235.5|343|174|")));
}

TEST_F(Consumption, AForeignLineIsMarkedAsSuch) {
  EXPECT_TRUE(DropOnDayPart(test.program, DayPart::afternoon, "NVITEM-" + LineOf(kMilk)));
  EXPECT_EQ(Lines(store.L_middag), std::vector<Text>{LineOf(kMilk) + Packed("Nomivant.exe|")});
}

TEST_F(Consumption, ADropFromAnotherDayPartMovesOneLinePerRow) {
  Fill(DayPart::morning, 2);
  store.L_ochtend.Add(LineOf(kMilk));
  TextList dragged;
  dragged.Add("Bread");
  dragged.Add("Milk");
  const Text payload = BeginConsumptionDrag(test.program, DayPart::morning, dragged);
  EXPECT_EQ(payload, "kill-" + Packed("Bread|~Milk|~"));
  EXPECT_EQ(test.program.day.drag_source, "1");
  EXPECT_TRUE(DropOnDayPart(test.program, DayPart::evening, payload));
  EXPECT_EQ(Lines(store.L_ochtend), std::vector<Text>{LineOf(kBread)});
  EXPECT_EQ(Lines(store.L_avond), (std::vector<Text>{LineOf(kBread), LineOf(kMilk)}));
}

TEST_F(Consumption, OtherTextAddsNothing) {
  for (const char* payload : {"", "add-", "kill-", "hello", "add-no terminator"}) {
    EXPECT_TRUE(DropOnDayPart(test.program, DayPart::morning, payload));
  }
  EXPECT_TRUE(store.L_ochtend.Empty());
}

TEST_F(Consumption, AListOfFiftyTakesOneMoreAndOneOfFiftyOneTakesNone) {
  Fill(DayPart::evening, 50);
  Item_Plus_Een(test.program, DayPart::evening, "Bread");
  EXPECT_EQ(store.L_avond.Count(), 51u);
  EXPECT_TRUE(test.boxes.shown.empty());
  Item_Plus_Een(test.program, DayPart::evening, "Bread");
  EXPECT_EQ(store.L_avond.Count(), 51u);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].title, "");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::error);
  EXPECT_EQ(test.boxes.shown[0].text,
            "You can not add more food items.\n"
            "You have reached the maximum of 50 food items in the evening.\n\n"
            "You have to remove some food items and try again.");
}

TEST_F(Consumption, TheLimitDoesNotCountWhatIsDropped) {
  Fill(DayPart::morning, 50);
  Text payload = "add-";
  for (int i = 0; i < 10; ++i) payload += LineOf(kMilk) + kLineEnd;
  EXPECT_TRUE(DropOnDayPart(test.program, DayPart::morning, payload));
  EXPECT_EQ(store.L_ochtend.Count(), 60u);
  EXPECT_FALSE(DropOnDayPart(test.program, DayPart::morning, payload));
  EXPECT_EQ(store.L_ochtend.Count(), 60u);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occurred while processing data.\n"
            "You have reached the maximum of 50 food items in the morning.\n\n"
            "You have to remove some food items and try again.");
}

TEST_F(Consumption, PlusCopiesTheFirstLineOfTheName) {
  FoodLine other = kBread;
  other.gram = "99";
  store.L_ochtend.Add(LineOf(kBread));
  store.L_ochtend.Add(LineOf(other));
  Item_Plus_Een(test.program, DayPart::morning, "Bread");
  EXPECT_EQ(store.L_ochtend[2], LineOf(kBread));
  EXPECT_EQ(test.program.day.selected_names[0], "Bread");
}

TEST_F(Consumption, MinusRemovesTheLastLineOfTheName) {
  FoodLine other = kBread;
  other.gram = "99";
  store.L_ochtend.Add(LineOf(kBread));
  store.L_ochtend.Add(LineOf(other));
  Item_Min_Een(test.program, DayPart::morning, "Bread");
  EXPECT_EQ(Lines(store.L_ochtend), std::vector<Text>{LineOf(kBread)});
  Item_Min_Een(test.program, DayPart::morning, "Bread");
  EXPECT_TRUE(store.L_ochtend.Empty());
  EXPECT_EQ(test.program.day.selected_names[0], "Bread");
}

TEST_F(Consumption, RemoveTakesEveryLineOfTheNameAndOfNoOther) {
  FoodLine other = kBread;
  other.gram = "99";
  FoodLine longer = kBread;
  longer.product = "Bread roll";
  for (const FoodLine& food : {kBread, other, longer, kMilk}) store.L_ochtend.Add(LineOf(food));
  TextList names;
  names.Add("Bread");
  Item_Verwijder(test.program, DayPart::morning, names);
  EXPECT_EQ(Lines(store.L_ochtend), (std::vector<Text>{LineOf(longer), LineOf(kMilk)}));
}

TEST_F(Consumption, MinusOnARowOfOneRemovesItAndKeepsTheGoneName) {
  for (const FoodLine& food : {kBread, kMilk}) store.L_ochtend.Add(LineOf(food));
  Item_Min_Een(test.program, DayPart::morning, "Bread");
  EXPECT_EQ(test.program.day.selected_names[0], "Bread");
  const auto rows = ConsumptionRows(test.program, DayPart::morning);
  EXPECT_TRUE(RowsToSelect(test.program, DayPart::morning, rows).empty());
}

TEST_F(Consumption, EveryRowOfTheNameIsSelectedAgain) {
  FoodLine other = kBread;
  other.gram = "99";
  FoodLine longer = kBread;
  longer.product = "Bread roll";
  for (const FoodLine& food : {kBread, longer, kMilk, other}) store.L_avond.Add(LineOf(food));
  SelectName(test.program, DayPart::evening, "Bread");
  const auto rows = ConsumptionRows(test.program, DayPart::evening);
  EXPECT_EQ(RowsToSelect(test.program, DayPart::evening, rows), (std::vector<std::size_t>{0, 3}));
  EXPECT_TRUE(RowsToSelect(test.program, DayPart::morning, rows).empty());
}

TEST_F(Consumption, WithoutASelectedRowPlusAndMinusOnlyMarkTheDayChanged) {
  store.L_ochtend.Add(LineOf({.product = ""}));
  SelectName(test.program, DayPart::morning, "Bread");
  Item_Plus_Een(test.program, DayPart::morning, std::nullopt);
  Item_Min_Een(test.program, DayPart::morning, std::nullopt);
  EXPECT_EQ(store.L_ochtend.Count(), 1u);
  EXPECT_EQ(test.program.day.selected_names[0], "Bread");
  EXPECT_TRUE(test.program.day.FileChanged);
}

TEST_F(Consumption, AFoodWithAnEmptyNameHasARowThatCanBeChangedAndRemoved) {
  store.L_ochtend.Add(LineOf({.product = "", .gram = "5"}));
  store.L_ochtend.Add(LineOf(kBread));
  Item_Plus_Een(test.program, DayPart::morning, "");
  EXPECT_EQ(ConsumptionRows(test.program, DayPart::morning)[0].weight, "10");
  TextList names;
  names.Add("");
  Item_Verwijder(test.program, DayPart::morning, names);
  EXPECT_EQ(Lines(store.L_ochtend), std::vector<Text>{LineOf(kBread)});
}

TEST_F(Consumption, RemoveOnAnEmptyListOnlyMarksTheDayChanged) {
  Item_Verwijder(test.program, DayPart::evening, {});
  EXPECT_TRUE(test.program.day.FileChanged);
  EXPECT_EQ(store.txt_trenddata, "");  // nothing was totalled
}

TEST_F(Consumption, MinusOnAnEmptyListTotalsAllTheSame) {
  Item_Min_Een(test.program, DayPart::evening, std::nullopt);
  EXPECT_TRUE(test.program.day.FileChanged);
  EXPECT_TRUE(store.txt_trenddata.starts_with(Packed("0|0|0|")));
}

// The largest double has 309 digits.
TEST_F(Consumption, AnAmountThatNoNumberHoldsLeavesItsCellEmpty) {
  const Text huge(400, '9');
  store.L_ochtend.Add(LineOf({.product = "Huge", .gram = huge, .kj = huge}));
  store.L_ochtend.Add(LineOf(kMilk));
  const auto rows = ConsumptionRows(test.program, DayPart::morning);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].product, "Huge");
  EXPECT_EQ(rows[0].weight, "");
  EXPECT_EQ(rows[0].nutrient, "");
  EXPECT_EQ(rows[1].weight, "200.5");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Consumption, TheLastColumnIsPrintedByThePatternOfItsNutrient) {
  store.L_avond.Add(LineOf({.product = "A", .kj = "1.5", .kcal = "0.4", .protein = "0,5"}));
  for (const auto& [priority, expected] :
       {std::pair{"0", "2"}, {"1", "0"}, {"2", "0"}, {"5", "1"}}) {
    test.program.profile[ProfileField::type_prioriteit] = priority;
    EXPECT_EQ(ConsumptionRows(test.program, DayPart::evening)[0].nutrient, expected) << priority;
  }
}

TEST_F(Consumption, HeadingsTitlesAndLimitsAreThoseOfThePartOfTheDay) {
  const std::array<const char*, 3> counts = {" X ", "X  ", " X "};
  const std::array<const char*, 3> titles = {"Morning consumptions Friday 05-03-04",
                                             "Afternoon consumptions Friday 05-03-04",
                                             "Evening consumptions Friday 05-03-04"};
  const std::array<const char*, 3> windows = {"KV_tb_vochtend", "KV_tb_vmiddag", "KV_tb_vavond"};
  const std::array<const char*, 3> words = {"morning", "afternoon", "evening"};
  for (const DayPart part : kDayParts) {
    const auto i = static_cast<std::size_t>(part);
    EXPECT_EQ(ConsumptionHeadings(test.program, part),
              (std::array<Text, 6>{"#", counts[i], "Food item", "Unit", "Gram", "Kj "}));
    EXPECT_EQ(ConsumptionTitle(test.program, part), titles[i]);
    EXPECT_EQ(RowOf(part).window_name, windows[i]);
    Fill(part, 51);
    for (const bool drop : {false, true}) {
      test.boxes.shown.clear();
      if (drop) {
        EXPECT_FALSE(DropOnDayPart(test.program, part, AddPayload(kMilk)));
      } else {
        Item_Plus_Een(test.program, part, "Bread");
      }
      ASSERT_EQ(test.boxes.shown.size(), 1u);
      const Text first = drop && part == DayPart::morning
                             ? "An error occurred while processing data."
                             : "You can not add more food items.";
      EXPECT_EQ(test.boxes.shown[0].text,
                first + "\nYou have reached the maximum of 50 food items in the " + words[i] +
                    ".\n\nYou have to remove some food items and try again.");
    }
    EXPECT_EQ(store.ListOf(part).Count(), 51u);
  }
  EXPECT_FALSE(test.program.day.FileChanged);
}

TEST_F(Consumption, ThePanelsOfTheStatusBarTakeTheirTwipsAndTheRest) {
  EXPECT_EQ(ConsumptionPanelWidths(5600), (std::array{1000, 3000, 1600}));
}

TEST_F(Consumption, TheCombinePanelNeverStandsWithoutTheTotals) {
  ShownPanels panels = FlipInfo({});
  EXPECT_TRUE(panels.ToonInfo && !panels.ToonCombineer);
  panels = FlipCombineer(panels);
  EXPECT_TRUE(panels.ToonInfo && panels.ToonCombineer);
  EXPECT_FALSE(FlipCombineer(panels).ToonInfo || FlipCombineer(panels).ToonCombineer);
  EXPECT_FALSE(FlipInfo(panels).ToonInfo || FlipInfo(panels).ToonCombineer);
  EXPECT_TRUE(FlipCombineer({}).ToonInfo && FlipCombineer({}).ToonCombineer);
}

TEST_F(Consumption, PlusOnAnEmptyListOnlyMarksTheDayChanged) {
  Item_Plus_Een(test.program, DayPart::morning, "");
  EXPECT_TRUE(test.program.day.FileChanged);
  EXPECT_TRUE(store.L_ochtend.Empty());
}

TEST(DragText, KnowsItsThreeMarkersOnly) {
  EXPECT_TRUE(IsDragText("add-"));
  EXPECT_TRUE(IsDragText("kill-x"));
  EXPECT_TRUE(IsDragText("NVITEM-x"));
  EXPECT_FALSE(IsDragText("Add-"));
  EXPECT_FALSE(IsDragText(""));
}

}  // namespace
}  // namespace kelvora
