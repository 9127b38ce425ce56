// Adding a food to the own list: each box that is shown, and what a food leaves behind. Expected
// values are worked out by hand.
#include "food/adding_fixture.h"

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

TEST_F(AddingAFood, TheServerGetsItPer100GramsWhileTheFormWaits) {
  program.settings[Setting::chk_addinternet] = "1";
  program.servers.submission = "http://localhost:1/";
  setenv("USERNAME", "Anna", 1);
  form.txt_dNaam = " Soup";
  EXPECT_EQ(Add(), std::vector<Text>{});
  EXPECT_TRUE(added);
  EXPECT_TRUE(sending);
  // On the package are 1000 kilojoules of 100 grams; the portion of 35 has 350.
  EXPECT_EQ(test.transfers.addresses,
            std::vector<std::string>{
                "http://localhost:1/?naam= Soup&kj=1000&kcal=240&vvet=2.00&ovet=4.40&kdr=40.00"
                "&ew=8.00&nat=1.200&opmerking=Kelvora FOOD&gepost=Anna"});
  // The food is saved before anything is heard of the server.
  EXPECT_EQ(program.store.Custom_list[0],
            Packed("Soup|1 dish|35|350|84|2.80|1.54|0.70|14.00|0.420|0||"));
  EXPECT_TRUE(FileExists(Path()));
  EXPECT_EQ(form.txt_dNaam, " Soup");
  EXPECT_EQ(sent, 0);
  test.transfers.Complete({"OK"});
  EXPECT_EQ(sent, 1);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.starts_with("The new food item is saved in the"));
  EXPECT_EQ(program.settings[Setting::SubmitCount], "1");
  EXPECT_EQ(program.day.last_clicked_food, "Soup");
  EXPECT_EQ(form.txt_dNaam, "");
}

TEST_F(AddingAFood, AListThatCanNotBeWrittenIsNotSent) {
  program.settings[Setting::chk_addinternet] = "1";
  program.servers.submission = "http://localhost:1/";
  {
    const InjectedFault full({.disk_full_after = 10});
    Add();
  }
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF1-5"));
  EXPECT_TRUE(test.transfers.addresses.empty());
  EXPECT_FALSE(sending);
}

TEST_F(AddingAFood, WithAServerThatCannotBeReachedItIsSavedAndEndsAsAFailedConnection) {
  program.settings[Setting::chk_addinternet] = "1";
  program.servers.submission = "http://localhost:1/";
  EXPECT_EQ(Add(), std::vector<Text>{});
  test.transfers.Fail();
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].title + "|" + test.boxes.shown[0].text,
            "Error #504|The new food item is saved in the 'my own list' but not added "
            "to the internet database.\nCheck your internet connection and try again.");
  EXPECT_EQ(test.boxes.shown.back().icon, BoxIcon::error);
  EXPECT_TRUE(added);
  EXPECT_TRUE(FileExists(Path()));
  EXPECT_EQ(program.settings[Setting::SubmitCount], "0");
  EXPECT_EQ(program.day.last_clicked_food, "Soup");
  EXPECT_EQ(form.txt_dNaam, "");
}

TEST_F(AddingAFood, WithoutAServerNothingIsSentWhateverTheSetting) {
  program.settings[Setting::chk_addinternet] = "1";
  EXPECT_EQ(Add(), std::vector<Text>{Text(kSavedBox)});
  EXPECT_EQ(program.settings[Setting::chk_addinternet], "1");
}

TEST_F(AddingAFood, AsksAboutMuchSodiumAndNoStopsWithoutAWord) {
  TypeValue(form, FoodValue::kSodium, "250");
  TypeWeight(form.portion_weight, WeightUnit::gram, "100");
  LeaveWeight(program, form, &NewFoodForm::portion_weight, WeightUnit::gram);
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
  EXPECT_EQ(look_at, (NewFoodBox{Kind::value, FoodValue::kSodium}));
  EXPECT_EQ(form, before);
  EXPECT_EQ(program.store.Custom_list.Count(), 1u);
}

TEST_F(AddingAFood, AYesAboutSodiumGoesOnToTheNameAndTheList) {
  program.store.Custom_list.Add(LineOf({.product = "Soup"}));
  TypeValue(form, FoodValue::kSodium, "1,432");  // 0.5012 of it in the portion
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_EQ(Add().size(), 2u);
  EXPECT_TRUE(test.boxes.shown.back().text.starts_with("The name of the food item already"));
  EXPECT_EQ(look_at, NewFoodBox{Kind::name});
  form.txt_dNaam = "Stew";
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_EQ(Add().size(), 2u);
  EXPECT_TRUE(added);
}

TEST_F(AddingAFood, HalfAGramOfSodiumIsNoQuestion) {
  form.portion_weight.weight = "100";
  TypeValue(form, FoodValue::kSodium, "0.5");
  EXPECT_EQ(Add(), std::vector<Text>{Text(kSavedBox)});
  EXPECT_EQ(FieldOf(program.store.Custom_list[0], FoodField::kSodium), "0.500");
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
  ExpectRefused({"Kelvora FOOD|The name of the food item already exists.\n"
                 "Choose another name and press 'Add' again."},
                {Kind::name});
}

TEST_F(AddingAFood, BlanksAroundANameMakeNoOther) {
  program.store.Custom_list.Add(LineOf({.product = "Soup"}));
  for (const char* name : {"Soup ", "  Soup"}) {
    form.txt_dNaam = name;
    Add();
    EXPECT_FALSE(added);
    EXPECT_TRUE(test.boxes.shown.back().text.starts_with("The name of the food item already"));
  }
  EXPECT_EQ(program.store.Custom_list.Count(), 1u);
}

TEST_F(AddingAFood, AnOwnListThatCanNotBeWrittenShowsItsBoxAndStaysInMemory) {
  {
    const InjectedFault full({.disk_full_after = 10});
    Add();
  }
  // The routine that saves tells of its failure itself; nothing says that the food is saved.
  ASSERT_EQ(test.boxes.shown.size(), 1u);
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
                       "'Toevoegen'.\n\nKijk naar het vak \"Naam\"."});
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
  program.servers.submission = "http://localhost:1/";
  for (const Case& row :
       {Case{"1", "1", true, "1"}, Case{"1", "0", false, "0"}, Case{"0", "1", false, "0"},
        Case{"0", "0", false, "0"}, Case{"", "1", false, "1"}}) {
    program.settings[Setting::chk_internet] = row.internet;
    program.settings[Setting::chk_addinternet] = row.add;
    EXPECT_EQ(AddsToInternet(program), row.on);
    EXPECT_EQ(program.settings[Setting::chk_addinternet], row.add_after);
  }
}

TEST_F(AddingAFood, WithoutAServerNothingCanBeAddedToItAndTheTipSaysWhy) {
  program.settings[Setting::chk_internet] = program.settings[Setting::chk_addinternet] = "1";
  EXPECT_FALSE(MayAddToInternet(program));
  EXPECT_FALSE(AddsToInternet(program));
  EXPECT_EQ(AddToInternetTip(program), "No food server is known to this program.");
  program.servers.submission = "http://localhost:1/";
  EXPECT_TRUE(MayAddToInternet(program));
  EXPECT_TRUE(AddsToInternet(program));
  setenv("USERNAME", "Anna", 1);
  EXPECT_EQ(AddToInternetTip(program), program.texts[new_food_text::kTipAddToInternet] +
                                           "\nThe food item is sent under the name \"Anna\".");
  program.settings[Setting::chk_internet] = "0";
  EXPECT_FALSE(MayAddToInternet(program));
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
