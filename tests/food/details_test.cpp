#include "food/details.h"

#include <gtest/gtest.h>

#include "food/details_fixture.h"
#include "language/built_in_texts.h"
#include "language/food_details_texts.h"

namespace kelvora {
namespace {

TEST_F(Details, ALineOpensOnItsPortionAndPer100Grams) {
  const Text line = LineOf(OfCategory(kBread));
  const FoodDetails details = Open(line, "zoeken");
  EXPECT_EQ(details.tag, "zoeken");
  EXPECT_EQ(details.txt_item, line);
  EXPECT_EQ(details.bVar, (PortionBoxes{"Bread", "2 slices", "100", "1000", "239", "2.00", "1.00",
                                        "0.400", "8.50", "45.00", "0", ""}));
  EXPECT_EQ(details.oVar, (ValueBoxes{"1000", "239", "2.00", "1.00", "0.400", "8.50", "45.00"}));
  EXPECT_EQ(details.txt_gram, "100");
  EXPECT_EQ(details.txt_oz, "3.5");
  EXPECT_FALSE(details.chk_favo || details.WasFavo || details.Bewerkmodus);
  EXPECT_EQ(details.cmd_bewerk, food_details_text::kEditPer100Grams);
  EXPECT_EQ(program.store.temp_filter.Count(), 13u);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Details, OnlyAnEqualLineMakesAFavourite) {
  Favourites().Add(LineOf(OfCategory(kBread)));
  const FoodDetails same = Open(LineOf(OfCategory(kBread)));
  EXPECT_TRUE(same.WasFavo && same.chk_favo);
  const FoodDetails own = Open(LineOf(kBread));
  EXPECT_FALSE(own.WasFavo || own.chk_favo);
}

TEST_F(Details, TheHeadingsTellUnitAndWeight) {
  const FoodDetails details = Open(LineOf(kBread));
  EXPECT_EQ(PortionTabText(program.texts, details), "Per 100");
  EXPECT_EQ(PortionHeading(program, details), "Nutrition value per 2 slices (of) 100 Gram:");
  program.settings[Setting::opt_gramoz] = "1";
  EXPECT_EQ(PortionHeading(program, details), "Nutrition value per 2 slices (of) 3.5 oz :");
  EXPECT_EQ(PortionTabText(program.texts, details), "Per 100");
  Make_Taal_Dutch(program.texts);
  EXPECT_EQ(PortionHeading(program, details), "Voedingswaarde per 2 slices (van) 3.5 oz :");
  program.settings[Setting::opt_gramoz] = "0";
  EXPECT_EQ(PortionHeading(program, details), "Voedingswaarde per 2 slices (van) 100 Gram:");
}

// 2 + 1 + 0.4 + 8.5 + 45 = 56.9; 2 / 56.9 = 3.515 %, 1 gives 1.757, 0.4 gives 0.703, 8.5 gives
// 14.938 and 45 gives 79.086.
TEST_F(Details, TheBarsAreCaptioned) {
  const FoodDetails details = Open(LineOf(kBread));
  constexpr std::array kEnglish = {"Unsaturated fats: 2 [3.51%]", "Saturated fats: 1 [1.76%]",
                                   "Sodium: 0.4 [0.70%]", "Proteins: 8.5 [14.94%]",
                                   "Carbohydrates: 45 [79.09%]"};
  for (std::size_t bar = 0; bar < kCompositionBars; ++bar) {
    EXPECT_EQ(BarCaption(program.texts, details, bar), kEnglish[bar]);
  }
  Make_Taal_Dutch(program.texts);
  EXPECT_EQ(BarCaption(program.texts, details, 4), "Koolhydraten: 45 [79.09%]");
}

TEST_F(Details, DrawingTheBarsFirstLooksAtTheSeparator) {
  test.locale.separator = ",";
  FoodDetails details = Open(LineOf(kBread));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.starts_with("The separation character of you computer"));
  EXPECT_EQ(BarCaption(program.texts, details, 2), "Sodium: 0,4 [0,70%]");
  TakeGrams(program, details, "50");
  EXPECT_EQ(test.boxes.shown.size(), 2u);
}

TEST_F(Details, GramsChangeThePortionAndLeaveTheValuesPer100Grams) {
  FoodDetails details = Open(LineOf(kBread));
  const ValueBoxes before = details.oVar;
  TakeGrams(program, details, "200");
  EXPECT_EQ(FoodLineOf(details.bVar), kTwiceBread);
  EXPECT_EQ(details.oVar, before);
  EXPECT_EQ(details.txt_gram, "200");
  EXPECT_EQ(details.txt_oz, "7.1");  // 7.0548
  EXPECT_EQ(details.pBar[4].value, "90");
}

TEST_F(Details, OuncesBecomeWholeGrams) {
  FoodDetails details = Open(LineOf(kBread));
  TakeOunces(program, details, "3.5");  // 99.22 grams
  EXPECT_EQ(details.txt_gram, "99");
  EXPECT_EQ(details.txt_oz, "3.5");
  EXPECT_EQ(details.bVar[PortionBox::kGram], "99");
  EXPECT_EQ(details.bVar[PortionBox::kKj], "990");
  TakeOunces(program, details, "1,76");  // 49.9 grams
  EXPECT_EQ(details.txt_gram, "50");
  EXPECT_EQ(details.txt_oz, "1,76");
  EXPECT_EQ(details.bVar[PortionBox::kKj], "500");
}

TEST_F(Details, AnEmptyWeightBoxClearsTheOtherAndChangesNothingElse) {
  FoodDetails details = Open(LineOf(kBread));
  const PortionBoxes before = details.bVar;
  TakeGrams(program, details, "");
  EXPECT_EQ(details.txt_gram + details.txt_oz, "");
  EXPECT_EQ(details.bVar, before);
  TakeOunces(program, details, "1");
  TakeOunces(program, details, "");
  EXPECT_EQ(details.txt_gram + details.txt_oz, "");
  EXPECT_EQ(details.bVar[PortionBox::kGram], "28");  // 28.35
}

TEST_F(Details, AWeightOfZeroShowsThePortionAndNothingPer100Grams) {
  FoodLine food = kBread;
  food.gram = "0";
  FoodDetails details = Open(LineOf(food));
  EXPECT_EQ(details.bVar[PortionBox::kKj], "1000");
  EXPECT_EQ(details.oVar, ValueBoxes());
  EXPECT_EQ(details.txt_oz, "0");
  EXPECT_TRUE(test.boxes.shown.empty());
  // A weight that is filled in now finds no values per 100 grams to begin with.
  TakeGrams(program, details, "100");
  EXPECT_EQ(details.bVar[PortionBox::kKj], "");
  details = Open(LineOf(kBread));
  TakeGrams(program, details, "0");
  EXPECT_EQ(details.bVar[PortionBox::kFatU], "0.00");
  EXPECT_EQ(details.oVar[0], "1000");
}

TEST_F(Details, AVeryHeavyPortionIsTaken) {
  FoodDetails details = Open(LineOf(kBread));
  const Text heavy = "1" + Text(30, '0');
  TakeGrams(program, details, heavy);
  EXPECT_EQ(details.bVar[PortionBox::kKj], heavy + "0");  // 1000 x 10^30 / 100
  EXPECT_EQ(details.txt_gram, heavy);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Details, WeightsBeyondEveryNumberAreFailures) {
  FoodDetails details = Open(LineOf(kBread));
  TakeGrams(program, details, Text(400, '9'));
  EXPECT_EQ(Codes(), ":#FF11-3:#F6-2");
  test.boxes.shown.clear();
  details = Open(LineOf(kBread));
  const PortionBoxes before = details.bVar;
  TakeOunces(program, details, Text(400, '9'));
  EXPECT_EQ(Codes(), ":#FF11-4");
  EXPECT_EQ(details.bVar, before);
  test.boxes.shown.clear();
  details.oVar[0] = Text(308, '9');
  TakeOunces(program, details, "1000");
  EXPECT_EQ(Codes(), ":#F6-3");
}

TEST_F(Details, ALineBeyondEveryNumberOpensAsFarAsItCame) {
  FoodLine food = kBread;
  const Text endless(400, '9');
  food.kcal = endless;
  FoodDetails details = Open(LineOf(food));
  EXPECT_EQ(Codes(), ":#F6-0");
  EXPECT_EQ(details.bVar[PortionBox::kKj], "1000");
  EXPECT_EQ(details.txt_gram, "");
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_TRUE(Own().Empty());
}

TEST_F(Details, AMixtureBeyondASingleHasNoBars) {
  FoodLine food = kBread;
  const Text large = "1" + Text(39, '0');
  food.fat_u = large;
  const FoodDetails details = Open(LineOf(food));
  EXPECT_EQ(Codes(), ":#F6-1");
  EXPECT_EQ(details.txt_gram, "100");
}

TEST_F(Details, EditingBeginsAndEndsWithASave) {
  FoodDetails details = Open(LineOf(kBread));
  EXPECT_FALSE(BeginOrFinishEditing(program, details));
  EXPECT_TRUE(details.Bewerkmodus);
  EXPECT_EQ(program.texts[details.cmd_bewerk], "(Save)");
  details.oVar[0] = "1100";
  details.bVar[PortionBox::kUnit] = "3 slices";
  EXPECT_TRUE(BeginOrFinishEditing(program, details));
  EXPECT_TRUE(details.Geldig);
  EXPECT_FALSE(details.Bewerkmodus);
  EXPECT_EQ(program.texts[details.cmd_bewerk], "Edit");
  const Text saved = Packed("Bread|3 slices|100|1100|239|8.50|2.00|1.00|45.00|0.400|0||");
  EXPECT_EQ(Own(), Lines({saved}));
  EXPECT_EQ(Stored(OwnFile()), Lines({saved}));
}

TEST_F(Details, AnEditThatFailsATestGoesOn) {
  FoodDetails details = Open(LineOf(kBread));
  (void)BeginOrFinishEditing(program, details);
  details.oVar[0] = "2000";
  details.oVar[2] = "1.";
  const PortionBoxes before = details.bVar;
  EXPECT_FALSE(BeginOrFinishEditing(program, details));
  EXPECT_EQ(Said(),
            "You didn't enter all the required fields.\n"
            "Please fill in the missing fields and try again.\n\n"
            "Fill in a '0' (Zero) when you don't know the value.");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::error);
  EXPECT_EQ(test.boxes.shown[0].title, "Kelvora FOOD");
  EXPECT_TRUE(details.Bewerkmodus);
  EXPECT_FALSE(details.Geldig);
  EXPECT_EQ(details.bVar, before);
  EXPECT_EQ(program.texts[details.cmd_bewerk], "(Save)");
  EXPECT_FALSE(std::filesystem::exists(OwnFile()));
  details.oVar[2] = "1.0";
  EXPECT_TRUE(BeginOrFinishEditing(program, details));
  EXPECT_TRUE(details.Geldig);
}

TEST_F(Details, AnEditWithAValueBeyondEveryNumberGoesOn) {
  FoodDetails details = Open(LineOf(kBread));
  (void)BeginOrFinishEditing(program, details);
  details.oVar[0] = Text(400, '9');
  EXPECT_FALSE(BeginOrFinishEditing(program, details));
  EXPECT_EQ(Codes(), ":#F6-4");
  EXPECT_TRUE(details.Bewerkmodus);
  EXPECT_TRUE(Own().Empty());
}

}  // namespace
}  // namespace kelvora
