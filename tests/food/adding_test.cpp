// Adding a food to the own list: the tests in their order, each box that is shown, and what a food
// leaves behind. Expected values are worked out by hand.
#include "food/adding.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "core/common.h"
#include "language/built_in_texts.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"
#include "support/file_faults.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

struct NotedLists : FoodListsView {
  int own_lists = 0;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Toon_Standaardlijst() override {}
  void Populate_Food_List_Custom() override { ++own_lists; }
  void Populate_Food_List_Favo() override {}
};

// A form that passes every test, without any calculation.
NewFoodForm GoodForm() {
  NewFoodForm form;
  form.txt_dNaam = "Soup";
  form.combo_dEenheid = "1 dish";
  form.printed_weight = {"100", "100", "3.5"};
  form.portion_weight = {"35", "35", "1.2"};
  form.txt_d = {"350", "84", "0.70", "1.54", "2.80", "14.00", "0.420"};
  return form;
}

class AddingAFood : public testing::Test {
 protected:
  AddingAFood() {
    test.OpenDay("Anna");
    program.settings[Setting::chk_addinternet] = "0";
  }

  // Adds the form; the boxes shown by it, each as "title|text".
  std::vector<Text> Add() {
    const std::size_t before = test.boxes.shown.size();
    added = AddNewFood(program, form);
    std::vector<Text> shown;
    for (std::size_t i = before; i < test.boxes.shown.size(); ++i) {
      shown.push_back(test.boxes.shown[i].title + "|" + test.boxes.shown[i].text);
    }
    return shown;
  }
  // Nothing was added, and the form is as it was.
  void ExpectRefused(const std::vector<Text>& boxes) {
    const NewFoodForm before = form;
    const Text list = PackBlock(program.store.Custom_list);
    EXPECT_EQ(Add(), boxes);
    EXPECT_FALSE(added);
    EXPECT_EQ(form, before);
    EXPECT_EQ(PackBlock(program.store.Custom_list), list);
    EXPECT_FALSE(FileExists(Path()));
    EXPECT_EQ(test.boxes.shown.back().icon, BoxIcon::error);
  }
  std::string Path() { return CustomFile(program.paths, "Anna"); }

  TestProgram test;
  Program& program = test.program;
  NewFoodForm form = GoodForm();
  bool added = false;
};

constexpr std::string_view kIncomplete =
    "Kelvora FOOD|You did not enter all the required nutritional values. \n"
    "Please enter the missing values and press 'Add' again.";
constexpr std::string_view kSavedBox =
    "Kelvora FOOD|The food item has been saved in the 'own food list'.";

TEST_F(AddingAFood, WritesALineOfTwelveFieldsInTheOrderOfALine) {
  form.txt_dNaam = "  Soup of the day ";
  form.combo_dEenheid = " 1 dish  ";
  const Text line = Packed("Soup of the day|1 dish|35|350|84|2.80|1.54|0.70|14.00|0.420|0||");
  EXPECT_EQ(LineOfNewFood(form), line);
  EXPECT_EQ(Add(), std::vector<Text>{Text(kSavedBox)});
  EXPECT_EQ(test.boxes.shown.back().icon, BoxIcon::information);
  EXPECT_TRUE(added);
  ASSERT_EQ(program.store.Custom_list.Count(), 1u);
  EXPECT_EQ(program.store.Custom_list[0], line);
  program.store.Custom_list.Clear();
  Load_Custom(program, Path());
  ASSERT_EQ(program.store.Custom_list.Count(), 1u);
  EXPECT_EQ(program.store.Custom_list[0], line);
}

TEST_F(AddingAFood, MakesTheFormThatOfTheNextFood) {
  form.txt_s = {"1000", "240", "2", "4.4", "8", "40", "1.2"};
  form.chk_kj = true;
  Add();
  EXPECT_EQ(form.txt_dNaam + form.combo_dEenheid, "");
  const WeightBoxes hundred{"100", "100", "3.5"};
  EXPECT_EQ(form.printed_weight, hundred);
  EXPECT_EQ(form.portion_weight, hundred);
  EXPECT_EQ(form.txt_s, FoodValues());
  // The calculation ran over the empty values.
  EXPECT_EQ(form.txt_d, (FoodValues{"0", "0", "0.00", "0.00", "0.00", "0.00", "0.000"}));
  EXPECT_EQ(form.txt_i, form.txt_d);
  EXPECT_TRUE(form.chk_kj);
}

TEST_F(AddingAFood, SelectsTheFoodInTheListsOpenOrNot) {
  form.txt_dNaam = " Soup ";
  Add();
  EXPECT_EQ(program.day.last_clicked_food, "Soup");
  NotedLists lists;
  program.windows.lists = &lists;
  form = GoodForm();
  form.txt_dNaam = "Stew";
  Add();
  EXPECT_EQ(program.day.last_clicked_food, "Stew");
  EXPECT_EQ(lists.own_lists, 1);
  program.windows.lists = nullptr;
}

TEST_F(AddingAFood, WithTheInternetOnItIsSavedAndEndsAsAFailedConnection) {
  program.settings[Setting::chk_addinternet] = "1";
  EXPECT_EQ(Add(), std::vector<Text>{
                       "Error #504|The new food item is saved in the 'my own list' but not added "
                       "to the internet database.\nCheck your internet connection and try again."});
  EXPECT_EQ(test.boxes.shown.back().icon, BoxIcon::error);
  EXPECT_TRUE(added);
  EXPECT_TRUE(FileExists(Path()));
  EXPECT_EQ(program.settings[Setting::SubmitCount], "0");
  EXPECT_EQ(program.day.last_clicked_food, "Soup");
  EXPECT_EQ(form.txt_dNaam, "");
}

TEST_F(AddingAFood, RefusesWhatIsMissing) {
  struct Case {
    const char* what;
    void (*spoil)(NewFoodForm&);
  };
  for (const auto& [what, spoil] : {
           Case{"no name", [](NewFoodForm& f) { f.txt_dNaam.clear(); }},
           Case{"no unit", [](NewFoodForm& f) { f.combo_dEenheid.clear(); }},
           Case{"no weight", [](NewFoodForm& f) { f.portion_weight = {}; }},
           Case{"12.5 grams", [](NewFoodForm& f) { f.portion_weight.weight = "12.5"; }},
           Case{"12,5 grams", [](NewFoodForm& f) { f.portion_weight.weight = "12,5"; }},
           Case{"12. grams", [](NewFoodForm& f) { f.portion_weight.weight = "12."; }},
       }) {
    SCOPED_TRACE(what);
    form = GoodForm();
    spoil(form);
    ExpectRefused({Text(kIncomplete)});
  }
}

TEST_F(AddingAFood, RefusesEachValueThatIsNoWholeNumberText) {
  for (std::size_t i = 0; i < FoodValue::kCount; ++i) {
    for (const char* value : {"", ".5", ",5", "5.", "5,", "1..5", "1,,5"}) {
      SCOPED_TRACE(std::to_string(i) + " " + value);
      form = GoodForm();
      form.txt_d[i] = value;
      ExpectRefused({Text(kIncomplete)});
    }
  }
}

TEST_F(AddingAFood, TakesTheLeastThatIsEnough) {
  form.txt_dNaam = " ";  // a text of blanks is a text
  form.combo_dEenheid = "1";
  form.portion_weight.weight = "0";
  form.txt_d.fill("0");
  EXPECT_EQ(Add(), std::vector<Text>{Text(kSavedBox)});
  EXPECT_EQ(program.store.Custom_list[0], Packed("|1|0|0|0|0|0|0|0|0|0||"));
}

TEST_F(AddingAFood, RefusesTheTwoTerminators) {
  const std::vector<Text> refused = {
      "Kelvora FOOD|Some fields contain 'illegal' characters.\n"
      "The characters half and three-quarter and other 'exotic' characters can not be used.\n"
      "Remove the 'illegal' characters and try again."};
  for (const std::string_view character : {"½"_w, "¾"_w}) {
    form = GoodForm();
    form.txt_dNaam.append(character);
    ExpectRefused(refused);
    form = GoodForm();
    form.combo_dEenheid.insert(0, character);
    ExpectRefused(refused);
  }
  form = GoodForm();
  form.txt_dNaam = "¼ of a pie"_w;
  EXPECT_EQ(Add(), std::vector<Text>{Text(kSavedBox)});
}

// "Soup-1 dish-35-350-84-2.80-1.54-0.70-14.00-0.420-0--" has 5+7+3+4+3+5+5+5+6+6+2+1 = 52
// characters, 4 of them the name.
TEST_F(AddingAFood, TakesNineHundredCharactersAndNoMore) {
  const std::vector<Text> refused = {
      "Kelvora FOOD|The food item contains to much data.\nPlease use a shorter description."};
  form.txt_dNaam = Text(853, 'a');
  ExpectRefused(refused);
  form.txt_dNaam = Text(5000, 'a');
  ExpectRefused(refused);
  form = GoodForm();
  form.combo_dEenheid = Text(6 + 849, 'a');  // the unit as the long one
  ExpectRefused(refused);

  form = GoodForm();
  form.txt_dNaam = "  " + Text(852, 'a') + "   ";  // blanks around it don't count
  EXPECT_EQ(Add(), std::vector<Text>{Text(kSavedBox)});
  EXPECT_EQ(program.store.Custom_list[0].size(), 900u);
}

TEST_F(AddingAFood, TellsTheFirstFailureOnly) {
  form.txt_dNaam = Text(5000, kFieldEnd);
  form.txt_d[FoodValue::kSodium] = "";
  EXPECT_EQ(CheckNewFood(form), NewFoodError::incomplete);
  form.txt_d[FoodValue::kSodium] = "250";
  EXPECT_EQ(CheckNewFood(form), NewFoodError::illegal_characters);
  form.txt_dNaam = Text(5000, 'a');
  EXPECT_EQ(CheckNewFood(form), NewFoodError::too_long);
  form.txt_dNaam = "a";
  EXPECT_EQ(CheckNewFood(form), std::nullopt);
}

TEST_F(AddingAFood, AsksAboutMuchSodiumAndNoStopsWithoutAWord) {
  form.txt_d[FoodValue::kSodium] = "250.000";
  program.store.Custom_list.Add(LineOf({.product = "Soup"}));
  const NewFoodForm before = form;
  test.boxes.answers = {BoxAnswer::no};
  EXPECT_EQ(Add(), std::vector<Text>{"High sodium value!|The sodium value is very high.\n\n"
                                     "The value in the sodium field is 250.000\n"
                                     "Sodium must be entered in gram. 1 gram is 1000 milligram.\n\n"
                                     "Are you sure that the current value of Sodium is correct?"});
  EXPECT_EQ(test.boxes.shown.back().icon, BoxIcon::question);
  EXPECT_EQ(test.boxes.shown.back().buttons, BoxButtons::yes_no);
  EXPECT_FALSE(added);
  EXPECT_EQ(form, before);
  EXPECT_EQ(program.store.Custom_list.Count(), 1u);
}

TEST_F(AddingAFood, AYesAboutSodiumGoesOnToTheNameAndTheList) {
  program.store.Custom_list.Add(LineOf({.product = "Soup"}));
  form.txt_d[FoodValue::kSodium] = "0,501";
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_EQ(Add().size(), 2u);
  EXPECT_TRUE(test.boxes.shown.back().text.starts_with("The name of the food item already"));
  form.txt_dNaam = "Stew";
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_EQ(Add().size(), 2u);
  EXPECT_TRUE(added);
}

TEST_F(AddingAFood, HalfAGramOfSodiumIsNoQuestion) {
  form.txt_d[FoodValue::kSodium] = "0.500";
  EXPECT_EQ(Add(), std::vector<Text>{Text(kSavedBox)});
}

TEST_F(AddingAFood, RefusesANameOfTheOwnListOnly) {
  program.store.Default_list.Add(LineOf({.product = "Soup", .db = "Soups.dat"}));
  program.store.Favorites_list.Add(LineOf({.product = "Soup"}));
  for (const char* other : {"Soup of the day", "soup", "Sou"}) {
    program.store.Custom_list.Add(LineOf({.product = other}));
  }
  EXPECT_EQ(Add(), std::vector<Text>{Text(kSavedBox)});
  std::filesystem::remove(Path());
  form = GoodForm();
  ExpectRefused(
      {"Kelvora FOOD|The name of the food item already exists.\n"
       "Choose another name and press 'Add' again."});
}

// Meant: the name is looked for as it was typed, and lines begin with a trimmed one.
TEST_F(AddingAFood, ABlankBehindANameMakesItAnother) {
  program.store.Custom_list.Add(LineOf({.product = "Soup"}));
  form.txt_dNaam = "Soup ";
  EXPECT_EQ(Add(), std::vector<Text>{Text(kSavedBox)});
  EXPECT_EQ(FieldOf(program.store.Custom_list[1], FoodField::kProduct), "Soup");
}

TEST_F(AddingAFood, AnOwnListThatCanNotBeWrittenShowsItsBoxAndStaysInMemory) {
  {
    const InjectedFault full({.disk_full_after = 10});
    Add();
  }
  // Meant: a routine that saves tells of its failure itself, and no caller knows of it.
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF1-5"));
  ASSERT_EQ(program.store.Custom_list.Count(), 1u);
  EXPECT_FALSE(FileExists(Path()));
  // The next food writes both.
  form = GoodForm();
  form.txt_dNaam = "Stew";
  EXPECT_EQ(Add(), std::vector<Text>{Text(kSavedBox)});
  program.store.Custom_list.Clear();
  Load_Custom(program, Path());
  EXPECT_EQ(program.store.Custom_list.Count(), 2u);
}

TEST_F(AddingAFood, SpeaksTheLanguageOfTheTables) {
  Make_Taal_Dutch(program.texts);
  EXPECT_EQ(Add(), std::vector<Text>{"Kelvora FOOD|Het voedingsmiddel is opgeslagen in de 'eigen "
                                     "voedingsmiddelenlijst'."});
  form.txt_dNaam.clear();
  EXPECT_EQ(Add(), std::vector<Text>{
                       "Kelvora FOOD|Je hebt niet alle verplichte gegevens en voedingswaarden "
                       "ingevuld. \nVul de ontbrekende waarden in en druk nog een keer op "
                       "'Toevoegen'."});
  EXPECT_EQ(UnitChoices(program.texts)[0], "1 stuk");
}

TEST_F(AddingAFood, TheUnitsAreOffered) {
  EXPECT_EQ(UnitChoices(program.texts),
            (std::array<Text, 5>{"1 piece", "1 spoon", "1 glass", "1 dish", "1 slice, for"}));
}

TEST_F(AddingAFood, WithoutTheInternetNothingIsAddedToIt) {
  struct Case {
    const char* internet;
    const char* add;
    bool on;
    const char* add_after;
  };
  for (const Case& row :
       {Case{"1", "1", true, "1"}, Case{"1", "0", false, "0"}, Case{"0", "1", false, "0"},
        Case{"0", "0", false, "0"}, Case{"", "1", false, "1"}}) {
    program.settings[Setting::chk_internet] = row.internet;
    program.settings[Setting::chk_addinternet] = row.add;
    EXPECT_EQ(AddsToInternet(program), row.on);
    EXPECT_EQ(program.settings[Setting::chk_addinternet], row.add_after);
  }
}

TEST_F(AddingAFood, TheChoiceForTheInternetIsSavedAtOnce) {
  for (const char* choice : {"1", "0"}) {
    StoreAddsToInternet(program, choice == Text("1"));
    program.settings[Setting::chk_addinternet] = "?";
    ASSERT_TRUE(ReadSettingsFile(program));
    EXPECT_EQ(program.settings[Setting::chk_addinternet], choice);
  }
}

TEST_F(AddingAFood, LeavingBoxesLinksAndCalculates) {
  form = EmptyNewFood(program);
  TypeWeight(form.portion_weight, WeightUnit::gram, "35");
  LeaveWeight(program, form, &NewFoodForm::portion_weight, WeightUnit::gram);
  TypeValue(form, FoodValue::kKj, "1000");
  LeaveValue(program, form, FoodValue::kKj);
  EXPECT_EQ(form.txt_d[FoodValue::kKj], "350");
  EXPECT_EQ(form.txt_i[FoodValue::kKj], "1000");
  EXPECT_EQ(form.txt_s[FoodValue::kKcal], "");
  TypeValue(form, FoodValue::kFatS, "3");
  TickEnergyLink(program, form, true);
  // The tick calculates, and links nothing yet.
  EXPECT_EQ(form.txt_d[FoodValue::kFatS], "1.05");
  EXPECT_EQ(form.txt_s[FoodValue::kKcal], "");
  LeaveValue(program, form, FoodValue::kKj);
  EXPECT_EQ(form.txt_s[FoodValue::kKcal], "238");
  EXPECT_EQ(form.txt_d[FoodValue::kKcal], "83");  // 83.3
  TypeValue(form, FoodValue::kFatS, "4");
  TickEnergyLink(program, form, false);
  EXPECT_EQ(form.txt_d[FoodValue::kFatS], "1.05");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(AddingAFood, AnEmptiedWeightCalculatesNothing) {
  form = EmptyNewFood(program);
  form.txt_s[FoodValue::kKj] = "1000";
  TypeWeight(form.portion_weight, WeightUnit::gram, "");
  LeaveWeight(program, form, &NewFoodForm::portion_weight, WeightUnit::gram);
  EXPECT_EQ(form.txt_d, FoodValues());
  EXPECT_EQ(form.portion_weight, WeightBoxes());
}

TEST_F(AddingAFood, NumbersBeyondAnyBoundShowTheirCodes) {
  form = EmptyNewFood(program);
  form.chk_kj = true;
  TypeValue(form, FoodValue::kKj, Text(400, '9'));
  LeaveValue(program, form, FoodValue::kKj);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#F1-1"));
  form.chk_kj = false;
  LeaveValue(program, form, FoodValue::kKj);
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_TRUE(test.boxes.shown[1].text.ends_with("Brelux CODE:#F1-0"));
  EXPECT_EQ(form.txt_d, FoodValues());
}

}  // namespace
}  // namespace kelvora
