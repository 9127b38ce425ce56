// Saving the details of one food: the own list, the favourites and their files.
#include <gtest/gtest.h>

#include "food/details_fixture.h"
#include "language/built_in_texts.h"
#include "support/file_faults.h"

namespace kelvora {
namespace {

FoodLine WithSodium(std::string_view sodium) {
  FoodLine food = kBread;
  food.sodium = sodium;
  return food;
}

struct NotedLists : FoodListsView {
  int custom = 0, favourites = 0;
  bool fails = false;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Toon_Standaardlijst() override {}
  void Populate_Food_List_Custom() override {
    if (fails) ThrowSystemError(std::errc::not_enough_memory);
    ++custom;
  }
  void Populate_Food_List_Favo() override { ++favourites; }
};

FoodLine With(FoodLine food, std::string_view remark) {
  food.remark = remark;
  return food;
}

constexpr const char* kReplaceBread =
    "You have another food item with the name \"Bread\".\nDo you want to replace it?";

TEST_F(Details, ASavedFoodReplacesTheLineThatWasOpened) {
  const Text longer = LineOf({.product = "Bread roll"});
  const Text white = LineOf(With(kBread, "White")), brown = LineOf(With(kBread, "Brown"));
  for (const char* tag : {"custom", "zoeken", "favo"}) {
    Own() = Lines({white, longer, LineOf(kBread), brown, longer});
    FoodDetails details = Open(LineOf(kBread), tag);
    TakeGrams(program, details, "200");
    EXPECT_TRUE(SaveDetails(program, details));
    const TextList expected = Lines({white, longer, kTwiceBread, brown, longer});
    EXPECT_EQ(Own(), expected);
    EXPECT_EQ(Stored(OwnFile()), expected);
    EXPECT_TRUE(test.boxes.shown.empty());
  }
}

TEST_F(Details, OfEqualLinesTheLastOneIsReplaced) {
  Own() = Lines({LineOf(kBread), LineOf(kBread)});
  FoodDetails details = Open(LineOf(kBread));
  TakeGrams(program, details, "200");
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(Own(), Lines({LineOf(kBread), kTwiceBread}));
}

// A food of a category, and one that was renamed, may meet an own food that bears the name.
TEST_F(Details, AnotherFoodOfTheNameIsAskedAboutBeforeItIsReplaced) {
  const Text white = LineOf(With(kBread, "White")), brown = LineOf(With(kBread, "Brown"));
  const TextList before = Lines({white, brown, LineOf({.product = "Toast"})});
  for (const bool renamed : {false, true}) {
    FoodLine food = OfCategory(kBread);
    if (renamed) food = {.product = "Toast"};
    for (const BoxAnswer answer : {BoxAnswer::no, BoxAnswer::yes}) {
      Own() = before;
      FoodDetails details = Open(LineOf(food), renamed ? "custom" : "zoeken");
      details.bVar[PortionBox::kProduct] = "Bread";
      details.bVar[PortionBox::kRemark] = "Mine";
      test.boxes.shown.clear();
      test.boxes.answers = {answer};
      const bool yes = answer == BoxAnswer::yes;
      EXPECT_EQ(SaveDetails(program, details), yes);
      EXPECT_EQ(details.look_at.has_value(), !yes);
      if (!yes) EXPECT_EQ(details.look_at, DetailsBox{.place = PortionBox::kProduct});
      ASSERT_EQ(Said(), kReplaceBread);
      EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::question);
      EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::yes_no);
      if (yes) {
        EXPECT_EQ(Own(), Lines({white, FoodLineOf(details.bVar), before[2]}));
      } else {
        EXPECT_EQ(Own(), before);
      }
    }
  }
}

TEST_F(Details, ANoToReplacingAnotherFoodChangesNoFile) {
  Own() = Lines({LineOf(With(kBread, "White"))});
  FoodDetails details = Open(LineOf(OfCategory(kBread)), "zoeken");
  details.chk_favo = true;
  TakeGrams(program, details, "200");
  EXPECT_FALSE(SaveDetails(program, details));
  EXPECT_TRUE(Favourites().Empty());
  EXPECT_FALSE(std::filesystem::exists(OwnFile()));
  EXPECT_FALSE(std::filesystem::exists(FavouriteFile()));
}

TEST_F(Details, AFoodThatIsAlreadyThereAsItIsSavedNeedsNoQuestion) {
  Own() = Lines({kTwiceBread});
  FoodDetails details = Open(LineOf(kBread), "zoeken");
  TakeGrams(program, details, "200");
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(Own(), Lines({kTwiceBread}));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Details, BlanksAroundAChangedNameGoAndABlankNameIsRefused) {
  FoodDetails details = Open(LineOf(kBread));
  (void)BeginOrFinishEditing(program, details);
  details.bVar[PortionBox::kProduct] = "   ";
  EXPECT_FALSE(BeginOrFinishEditing(program, details));
  EXPECT_TRUE(details.Bewerkmodus);
  EXPECT_TRUE(Said().starts_with("You didn't enter all the required fields."));
  details.bVar[PortionBox::kProduct] = " Toast ";
  EXPECT_TRUE(BeginOrFinishEditing(program, details));
  EXPECT_EQ(FieldOf(Own()[0], FoodField::kProduct), "Toast");
}

TEST_F(Details, AFoodWithoutEnergyCanBeEdited) {
  FoodLine water = kBread;
  water.kj = water.kcal = "0";
  Own() = Lines({LineOf(water)});
  FoodDetails details = Open(LineOf(water));
  EXPECT_EQ(details.oVar[0] + details.oVar[1], "");
  (void)BeginOrFinishEditing(program, details);
  EXPECT_EQ(details.oVar[0] + details.oVar[1], "00");
  details.oVar[5] = "9";
  EXPECT_TRUE(BeginOrFinishEditing(program, details));
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(FieldOf(Own()[0], FoodField::kProtein), "9.00");
}

// Zeros would look like values that somebody knows, and become those of the portion.
TEST_F(Details, WithoutAWeightTheValuesPer100GramsStayBlank) {
  FoodLine food = kBread;
  food.gram = "0";
  FoodDetails details = Open(LineOf(food));
  (void)BeginOrFinishEditing(program, details);
  EXPECT_EQ(details.oVar, ValueBoxes());
}

TEST_F(Details, ANewNameIsANewFoodAndTheOldOneStays) {
  Own() = Lines({LineOf(kBread)});
  FoodDetails details = Open(LineOf(kBread));
  (void)BeginOrFinishEditing(program, details);
  details.bVar[PortionBox::kProduct] = "bread";
  EXPECT_TRUE(BeginOrFinishEditing(program, details));
  EXPECT_EQ(Own(), Lines({LineOf(kBread), "b" + kSavedBread.substr(1)}));
}

TEST_F(Details, AChangedFoodOfACategoryStandsInTheOwnListToo) {
  program.store.Default_list.Add(LineOf(OfCategory(kBread)));
  program.store.L_ochtend.Add(LineOf(OfCategory(kBread)));
  const TextList before = program.store.Default_list;
  FoodDetails details = Open(before[0], "zoeken");
  TakeGrams(program, details, "200");
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(Own(), Lines({kTwiceBread}));
  EXPECT_EQ(program.store.Default_list, before);
  EXPECT_EQ(program.store.L_ochtend, before);
}

struct Telling {
  const char* tag;
  bool tells;
};
class NewInOwnList : public Details, public testing::WithParamInterface<Telling> {};
INSTANTIATE_TEST_SUITE_P(Details, NewInOwnList,
                         testing::Values(Telling{"zoeken", true}, Telling{"internet", true},
                                         Telling{"custom", false}, Telling{"favo", false}));

TEST_P(NewInOwnList, IsToldOfAFoodFromElsewhere) {
  FoodDetails details = Open(LineOf(kBread), GetParam().tag);
  TakeGrams(program, details, "200");
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(Own(), Lines({kTwiceBread}));
  if (!GetParam().tells) {
    EXPECT_TRUE(test.boxes.shown.empty());
    return;
  }
  EXPECT_EQ(Said(), "The food item Bread has been saved in 'my own list'.");
}

TEST_F(Details, SavingWithoutAChangeLeavesTheOwnListAlone) {
  FoodLine commas = kBread;
  commas.protein = "8,5";
  for (const FoodLine& food : {kBread, OfCategory(kBread), commas, WithSodium("9")}) {
    for (const char* tag : {"zoeken", "custom", "favo", "internet"}) {
      FoodDetails details = Open(LineOf(food), tag);
      EXPECT_TRUE(SaveDetails(program, details));
      EXPECT_TRUE(Own().Empty());
      EXPECT_FALSE(std::filesystem::exists(OwnFile()));
      EXPECT_TRUE(std::filesystem::exists(FavouriteFile()));
      EXPECT_TRUE(test.boxes.shown.empty());
    }
  }
}

TEST_F(Details, TheFavouriteBoxCountsWithoutAnyChange) {
  const Text line = LineOf(OfCategory(kBread));
  FoodDetails details = Open(line, "zoeken");
  details.chk_favo = true;
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(Favourites(), Lines({line}));
  EXPECT_EQ(Stored(FavouriteFile()), Lines({line}));
  // The food shows its tick from now on, and can lose it.
  details = Open(line, "zoeken");
  EXPECT_TRUE(details.WasFavo);
  details.chk_favo = false;
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_TRUE(Favourites().Empty());
  EXPECT_TRUE(Stored(FavouriteFile()).Empty());
  EXPECT_TRUE(Own().Empty());
}

TEST_F(Details, ANewFavouriteIsTheChangedLine) {
  Favourites() = Lines({LineOf({.product = "Tea"})});
  FoodDetails details = Open(LineOf(kBread));
  details.chk_favo = true;
  TakeGrams(program, details, "200");
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(Favourites(), Lines({LineOf({.product = "Tea"}), kTwiceBread}));
}

TEST_F(Details, AFavouriteThatStaysOneBecomesTheChangedLine) {
  const Text other = LineOf(OfCategory(kBread));
  Favourites() = Lines({other, LineOf(kBread), other});
  FoodDetails details = Open(LineOf(kBread));
  TakeGrams(program, details, "200");
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(Favourites(), Lines({other, kTwiceBread, other}));
  EXPECT_TRUE(test.boxes.shown.empty());
  // Without a change all of them stay as they are.
  FoodDetails twice = Open(kTwiceBread);
  EXPECT_TRUE(SaveDetails(program, twice));
  EXPECT_EQ(Favourites(), Lines({other, kTwiceBread, other}));
}

TEST_F(Details, AFavouriteThatBearsTheNewNameIsAskedAbout) {
  const Text toast = LineOf({.product = "Toast"});
  for (const BoxAnswer answer : {BoxAnswer::no, BoxAnswer::yes}) {
    Favourites() = Lines({toast, LineOf(kBread)});
    Own().Clear();
    FoodDetails details = Open(LineOf(kBread));
    details.bVar[PortionBox::kProduct] = "Toast";
    test.boxes.shown.clear();
    test.boxes.answers = {answer};
    const bool yes = answer == BoxAnswer::yes;
    EXPECT_EQ(SaveDetails(program, details), yes);
    EXPECT_EQ(Said(),
              "You have another food item with the name \"Toast\".\nDo you want to replace it?");
    EXPECT_EQ(Favourites(), Lines({yes ? FoodLineOf(details.bVar) : toast, LineOf(kBread)}));
    EXPECT_EQ(Own().Count(), yes ? 1u : 0u);
  }
}

TEST_F(Details, OneQuestionIsAskedForBothLists) {
  const Text toast = LineOf({.product = "Toast"});
  Own() = Lines({toast, LineOf(kBread)});
  Favourites() = Lines({toast, LineOf(kBread)});
  FoodDetails details = Open(LineOf(kBread));
  details.bVar[PortionBox::kProduct] = "Toast";
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  const TextList expected = Lines({FoodLineOf(details.bVar), LineOf(kBread)});
  EXPECT_EQ(Own(), expected);
  EXPECT_EQ(Favourites(), expected);
}

TEST_F(Details, AFavouriteOfAnotherNameStaysAsItWas) {
  Favourites() = Lines({LineOf(kBread)});
  FoodDetails details = Open(LineOf(kBread));
  details.bVar[PortionBox::kProduct] = "Toast";
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(Favourites(), Lines({LineOf(kBread)}));
}

TEST_F(Details, ALostFavouriteIsTheLineThatWasOpened) {
  const Text tea = LineOf({.product = "Tea"});
  Favourites() = Lines({tea, LineOf(OfCategory(kBread)), LineOf(kBread)});
  FoodDetails details = Open(LineOf(kBread));
  details.chk_favo = false;
  TakeGrams(program, details, "200");
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(Favourites(), Lines({tea, LineOf(OfCategory(kBread))}));
}

// The line may have gone while the dialog was open; what begins with it goes then.
TEST_F(Details, ALostFavouriteThatIsGoneIsTheFirstLineThatBeginsWithIt) {
  Favourites() = Lines({LineOf(kBread)});
  FoodDetails details = Open(LineOf(kBread));
  Favourites() = Lines({LineOf({.product = "Tea"}), LineOf(OfCategory(kBread))});
  details.chk_favo = false;
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(Favourites(), Lines({LineOf({.product = "Tea"})}));
}

TEST_F(Details, AFoodThatIsNoFavouriteLeavesTheFavouritesAlone) {
  Favourites() = Lines({LineOf(OfCategory(kBread))});
  FoodDetails details = Open(LineOf(kBread));
  TakeGrams(program, details, "200");
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(Favourites(), Lines({LineOf(OfCategory(kBread))}));
}

struct Sodium {
  std::string_view typed;
  bool asks;
};
class SodiumQuestion : public Details, public testing::WithParamInterface<Sodium> {};
INSTANTIATE_TEST_SUITE_P(Details, SodiumQuestion,
                         testing::Values(Sodium{"0.5", false}, Sodium{"0.500", false},
                                         Sodium{"0,5", false}, Sodium{"0", false},
                                         Sodium{"0.501", true}, Sodium{"0,501", true},
                                         Sodium{"250", true}));

TEST_P(SodiumQuestion, ComesForMoreThanHalfAGram) {
  const auto& [typed, asks] = GetParam();
  FoodDetails details = Open(LineOf(kBread));
  (void)BeginOrFinishEditing(program, details);
  details.oVar[kSodiumValue] = typed;
  EXPECT_EQ(BeginOrFinishEditing(program, details), !asks);
  EXPECT_EQ(test.boxes.shown.size(), asks ? 1u : 0u);
  EXPECT_EQ(Own().Empty(), asks);
}

TEST_F(Details, ANoToTheSodiumSavesNothing) {
  const Text line = LineOf(WithSodium("0.501"));
  FoodDetails details = Open(line);
  details.chk_favo = true;
  details.bVar[PortionBox::kRemark] = "Salty";
  EXPECT_FALSE(SaveDetails(program, details));
  EXPECT_EQ(Said(),
            "Kelvora FOOD detected a high sodium value!\n\n"
            "The value in the sodium field is 0.501\n"
            "Sodium must be filled in per gram. 1 gram is 1000 milligram.\n\n"
            "Are you sure you want to keep the sodium value?");
  EXPECT_EQ(test.boxes.shown[0].title, "Do you want to keep the value of sodium?");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::question);
  EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::yes_no);
  EXPECT_TRUE(Own().Empty());
  EXPECT_TRUE(Favourites().Empty());
  EXPECT_FALSE(std::filesystem::exists(OwnFile()));
  EXPECT_FALSE(std::filesystem::exists(FavouriteFile()));
}

TEST_F(Details, AYesToTheSodiumSaves) {
  Make_Taal_Dutch(program.texts);
  FoodDetails details = Open(LineOf(WithSodium("0.501")), "zoeken");
  details.bVar[PortionBox::kRemark] = "Zout";
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_TRUE(SaveDetails(program, details));
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(test.boxes.shown[0].title, "Wil je de natriumwaarde behouden?");
  EXPECT_EQ(test.boxes.shown[0].text,
            "Kelvora FOOD heeft een hoge natriumwaarde gevonden!\n\n"
            "De waarde in het veld natrium is 0.501\n"
            "Natrium vul je in grammen in. 1 gram is 1000 milligram.\n\n"
            "Weet je zeker dat je deze natriumwaarde wilt behouden?");
  EXPECT_EQ(test.boxes.shown[1].text,
            "Het voedingsmiddel Bread is opgeslagen in 'mijn eigen lijst'.");
  EXPECT_EQ(Own().Count(), 1u);
}

TEST_F(Details, NumbersAreSavedWithTheSeparatorOfTheLocale) {
  test.locale.separator = program.StartSeparator = ",";
  FoodDetails details = Open(LineOf(kBread));
  EXPECT_EQ(details.oVar[2], "2,00");
  (void)BeginOrFinishEditing(program, details);
  details.oVar[2] = "2,25";
  EXPECT_TRUE(BeginOrFinishEditing(program, details));
  EXPECT_EQ(Own(), Lines({Packed("Bread|2 slices|100|1000|239|8,50|2,25|1,00|45,00|0,400|0||")}));
}

TEST_F(Details, TheFoodListsShowWhatWasSaved) {
  NotedLists lists;
  program.windows.lists = &lists;
  FoodDetails details = Open(LineOf(kBread));
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(lists.custom, 0);
  EXPECT_EQ(lists.favourites, 1);
  TakeGrams(program, details, "200");
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(lists.custom, 1);
  EXPECT_EQ(lists.favourites, 2);
}

TEST_F(Details, AFailureOfTheSaveLeavesTheWindowOpen) {
  NotedLists lists;
  lists.fails = true;
  program.windows.lists = &lists;
  FoodDetails details = Open(LineOf(kBread));
  TakeGrams(program, details, "200");
  EXPECT_FALSE(SaveDetails(program, details));
  EXPECT_EQ(Codes(), ":#F6-5");
}

// A write that fails says so by its own code; what was saved before it stands in memory.
TEST_F(Details, AnOwnListThatCannotBeWrittenIsReportedAndKeptInMemory) {
  std::filesystem::create_directory(OwnFile());
  FoodDetails details = Open(LineOf(kBread), "zoeken");  // nothing says that it has been saved
  details.chk_favo = true;
  TakeGrams(program, details, "200");
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(Codes(), ":#FF1-5");
  EXPECT_EQ(Own(), Lines({kTwiceBread}));
  EXPECT_EQ(Stored(FavouriteFile()), Lines({kTwiceBread}));
}

TEST_F(Details, AFullDiskIsReportedForBothFiles) {
  FoodDetails details = Open(LineOf(kBread));
  TakeGrams(program, details, "200");
  const InjectedFault fault({.disk_full_after = 3});
  EXPECT_TRUE(SaveDetails(program, details));
  EXPECT_EQ(Codes(), ":#FF1-5:#FF1-4");
}

}  // namespace
}  // namespace kelvora
