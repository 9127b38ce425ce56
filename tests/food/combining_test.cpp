#include "food/combining.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "food/consumption.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "support/file_faults.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

TEST(WrongBoxOfACombinedFood, IsTheOneThatIsToldOf) {
  TestProgram test;
  test.program.store.Custom_list.Add(LineOf({.product = "Lunch"}));
  const auto wrong = [&](std::string_view name, std::string_view unit) {
    return WrongBox(test.program, {.name = Text(name), .unit = Text(unit)});
  };
  EXPECT_EQ(wrong(" ", "1 plate"), CombineBox::name);
  EXPECT_EQ(wrong("a\xBD", "\xBE"), CombineBox::name);
  EXPECT_EQ(wrong("a", "\xBE"), CombineBox::unit);
  EXPECT_EQ(wrong(" Lunch ", "1 plate"), CombineBox::name);
  EXPECT_EQ(wrong("Dinner", ""), std::nullopt);
}

constexpr FoodLine kRice{.product = "Rice",
                         .unit = "1 dish",
                         .gram = "180",
                         .kj = "960",
                         .kcal = "229",
                         .protein = "4.4",
                         .fat_u = "0.5",
                         .fat_s = "0.6",
                         .carbs = "50.6",
                         .sodium = "0.002",
                         .db = "Rice.dat"};
constexpr FoodLine kSauce{.product = "Sauce",
                          .unit = "1 spoon",
                          .gram = "20,5",
                          .kj = "41",
                          .kcal = "10",
                          .protein = "0.1",
                          .fat_u = "0.6",
                          .fat_s = "0.4",
                          .carbs = "1.9",
                          .sodium = "0.0405"};

std::vector<Text> Lines(const TextList& list) {
  return {list.begin(), list.end()};
}

// Takes the totals as a window does, and puts its labels into a form.
struct TotalsWindow : ConsumptionView {
  ConsumptionTotals totals;
  int refreshed = 0;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_Consumpties() override { ++refreshed; }
  void ShowTotals(const ConsumptionTotals& shown) override { totals = shown; }
};
struct CountingLists : FoodListsView {
  int own = 0;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Toon_Standaardlijst() override {}
  void Populate_Food_List_Custom() override { ++own; }
  void Populate_Food_List_Favo() override {}
};

class Combining : public testing::Test {
 protected:
  Combining() {
    test.OpenDay("Anna");
    test.program.windows.consumption[0] = &window;
    test.program.windows.lists = &lists;
  }
  // Two portions of rice and one of the sauce.
  void FillMorning() {
    for (const FoodLine& food : {kRice, kSauce, kRice}) store.L_ochtend.Add(LineOf(food));
    RefreshAfterChange(test.program, DayPart::morning);
    window.refreshed = 0;
  }
  bool Combine(std::string_view name, std::string_view unit = "1 plate") {
    return CombineFoods(test.program, DayPart::morning,
                        {Text(name), Text(unit), window.totals.var});
  }
  // The refusal changed nothing and showed this box.
  void ExpectRefused(BoxIcon icon, std::string_view text) {
    ASSERT_EQ(test.boxes.shown.size(), 1u);
    EXPECT_EQ(test.boxes.shown[0].icon, icon);
    EXPECT_EQ(test.boxes.shown[0].text, text);
    EXPECT_EQ(Lines(store.L_ochtend), before);
    EXPECT_TRUE(store.Custom_list.Empty());
    EXPECT_EQ(window.refreshed, 0);
    EXPECT_FALSE(std::filesystem::exists(CustomFile(test.program.paths, "Anna")));
  }

  TestProgram test;
  KV_data& store = test.program.store;
  TotalsWindow window;
  CountingLists lists;
  std::vector<Text> before;
};

// Sums by hand: 2 x 180 + 20.5 = 380.5 g, printed 381; 2 x 960 + 41 = 1961 kJ; 2 x 229 + 10 = 468
// kcal; protein 8.9; fat 1.6 and 1.6; carbohydrates 103.1. Sodium is 0.0445, and the sum in singles
// lies a little above it, at 0.04450000077, so it prints as 0.045.
constexpr const char* kDish =
    "Rice dish|1 plate|381|1961|468|9|2|2|103|0.045|0|2x Rice\r\n1x Sauce\r\n|";

TEST_F(Combining, TheDishTakesTheShownTotalsAndTheIngredientsAsItsRemark) {
  FillMorning();
  EXPECT_TRUE(Combine("  Rice dish ", " 1 plate  "));
  EXPECT_EQ(Lines(store.Custom_list), std::vector<Text>{Packed(kDish)});
}

TEST_F(Combining, TheDishTakesThePlaceOfItsFoods) {
  FillMorning();
  EXPECT_TRUE(Combine("Rice dish"));
  EXPECT_EQ(Lines(store.L_ochtend), std::vector<Text>{Packed(kDish)});
  EXPECT_EQ(window.refreshed, 1);
  EXPECT_EQ(window.totals.var[7], "381");
  EXPECT_EQ(lists.own, 1);
  EXPECT_TRUE(store.txt_trenddata.starts_with(Packed("381|1961|468|")));
}

TEST_F(Combining, TheDayIsNotMarkedAsChanged) {
  FillMorning();
  EXPECT_TRUE(Combine("Rice dish"));
  EXPECT_FALSE(test.program.day.FileChanged);
  SetFileChanged(test.program, true);
  store.L_ochtend.Add(LineOf(kSauce));
  EXPECT_TRUE(Combine("Rice dish with more sauce"));
  EXPECT_TRUE(test.program.day.FileChanged);
}

TEST_F(Combining, TheOwnListIsOnDiskAndItsLineBreaksSurvive) {
  FillMorning();
  EXPECT_TRUE(Combine("Rice dish"));
  store.Custom_list.Clear();
  Load_Custom(test.program, CustomFile(test.program.paths, "Anna"));
  EXPECT_EQ(Lines(store.Custom_list), std::vector<Text>{Packed(kDish)});
}

TEST_F(Combining, TheMessageNamesTheDishAndThePartOfTheDay) {
  const std::array<const char*, 3> expected = {
      "Mix has been saved in the 'own list' and saved in the moring consumption list.",
      "Mix has been saved in the 'own list' and saved in the afternoon consumption list.",
      "Mix has been saved in the 'own list' and saved in the evening consumption list."};
  for (const DayPart part : kDayParts) {
    store.Custom_list.Clear();
    for (const FoodLine& food : {kRice, kSauce}) store.ListOf(part).Add(LineOf(food));
    EXPECT_TRUE(CombineFoods(test.program, part, {"Mix ", "", {}}));
    ASSERT_FALSE(test.boxes.shown.empty());
    EXPECT_EQ(test.boxes.shown.back().icon, BoxIcon::information);
    EXPECT_EQ(test.boxes.shown.back().text, expected[static_cast<std::size_t>(part)]);
    EXPECT_EQ(store.ListOf(part).Count(), 1u);
  }
}

TEST_F(Combining, FewerThanTwoRowsAreRefusedHoweverManyPortionsThereAre) {
  for (int i = 0; i < 3; ++i) store.L_ochtend.Add(LineOf(kRice));
  before = Lines(store.L_ochtend);
  EXPECT_FALSE(Combine(""));
  ExpectRefused(BoxIcon::warning,
                "You need at least 2 food items.\nAdd more food items and try again.");
}

TEST_F(Combining, AnEmptyDayPartIsRefused) {
  EXPECT_FALSE(Combine("Nothing"));
  ExpectRefused(BoxIcon::warning,
                "You need at least 2 food items.\nAdd more food items and try again.");
}

TEST_F(Combining, AnEmptyNameIsRefused) {
  FillMorning();
  before = Lines(store.L_ochtend);
  EXPECT_FALSE(Combine("", Packed("|")));
  ExpectRefused(BoxIcon::warning,
                "Please enter a name for the new food item.\nEnter a name for the food item.");
}

TEST_F(Combining, ANameOfBlanksIsRefusedAsAnEmptyOne) {
  FillMorning();
  before = Lines(store.L_ochtend);
  EXPECT_FALSE(Combine("   "));
  ExpectRefused(BoxIcon::warning,
                "Please enter a name for the new food item.\nEnter a name for the food item.");
}

TEST_F(Combining, TheTwoTerminatorsAreRefusedInNameAndUnit) {
  FillMorning();
  before = Lines(store.L_ochtend);
  for (const auto& [name, unit] : {std::pair{"a|b", "1"}, {"a~", "1"}, {"a", "|"}, {"a", "1~2"}}) {
    test.boxes.shown.clear();
    EXPECT_FALSE(Combine(Packed(name), Packed(unit)));
    ExpectRefused(BoxIcon::error,
                  "Some fields contain illegal characters.\n"
                  "The characters half and three-quarters can not be used.\n"
                  "Remove the illegal characters and try again.");
  }
}

TEST_F(Combining, ANameOfTheOwnListIsRefused) {
  FillMorning();
  store.Custom_list.Add(Packed("Rice dish|1|"));
  EXPECT_FALSE(Combine(" Rice dish "));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::error);
  EXPECT_EQ(test.boxes.shown[0].text,
            "The name for the food item already exists in the list.\n"
            "Please change the name of the food item and try again.");
  EXPECT_EQ(store.L_ochtend.Count(), 3u);
  EXPECT_EQ(store.Custom_list.Count(), 1u);
}

TEST_F(Combining, OtherCaseALongerNameAndTheOtherListsAreNoConflict) {
  FillMorning();
  store.Custom_list.Add(Packed("rice dish|1|"));
  store.Custom_list.Add(Packed("Rice dish and more|1|"));
  store.Default_list.Add(Packed("Rice dish|1|"));
  store.Favorites_list.Add(Packed("Rice dish|1|"));
  EXPECT_TRUE(Combine("Rice dish"));
}

TEST_F(Combining, AnEmptyUnitIsAllowed) {
  FillMorning();
  EXPECT_TRUE(Combine("Rice dish", ""));
  EXPECT_TRUE(store.Custom_list[0].starts_with(Packed("Rice dish||381|")));
}

TEST_F(Combining, FourteenTenthsOfAGramBecomeOneGram) {
  FoodLine first = kRice, second = kSauce;
  first.fat_s = "0.9";
  second.fat_s = "0.5";
  for (const FoodLine& food : {first, second}) store.L_ochtend.Add(LineOf(food));
  RefreshAfterChange(test.program, DayPart::morning);
  EXPECT_TRUE(Combine("Mix"));
  EXPECT_EQ(FieldOf(store.Custom_list[0], FoodField::kFatS), "1");
}

TEST_F(Combining, ACommaLocaleWritesTheSodiumWithAComma) {
  test.locale.separator = ",";
  test.program.StartSeparator = ",";
  FillMorning();
  EXPECT_TRUE(Combine("Mix"));
  EXPECT_EQ(FieldOf(store.Custom_list[0], FoodField::kSodium), "0,045");
  EXPECT_EQ(window.totals.var[6], "0,045");
}

// Memory has all, and a later save writes it; but nothing says that it is saved.
TEST_F(Combining, AnOwnListThatCannotBeWrittenShowsItsCodeAndNoWordOfSaving) {
  FillMorning();
  {
    const InjectedFault full({.disk_full_after = 10});
    EXPECT_TRUE(Combine("Rice dish"));
  }
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF1-5"));
  EXPECT_EQ(Lines(store.Custom_list), std::vector<Text>{Packed(kDish)});
  EXPECT_EQ(Lines(store.L_ochtend), std::vector<Text>{Packed(kDish)});
  Save_Custom(test.program, CustomFile(test.program.paths, "Anna"));
  EXPECT_EQ(test.boxes.shown.size(), 1u);
}

TEST_F(Combining, ALongNameIsKeptWhole) {
  FillMorning();
  const Text name(134, 'n');
  EXPECT_TRUE(Combine(name));
  EXPECT_EQ(FieldOf(store.Custom_list[0], FoodField::kProduct), name);
}

}  // namespace
}  // namespace kelvora
