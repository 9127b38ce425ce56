// What the food lists window does to the day and to the user's lists.
#include "food/food_list_commands.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "food/consumption.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

std::vector<Text> Lines(const TextList& list) {
  return {list.begin(), list.end()};
}

struct NotedLists : FoodListsView {
  int own = 0, favourites = 0, parts_shown = 0;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Toon_Standaardlijst() override {}
  void Populate_Food_List_Custom() override { ++own; }
  void Populate_Food_List_Favo() override { ++favourites; }
  void ShowActivePart() override { ++parts_shown; }
};

class FoodListCommands : public testing::Test {
 protected:
  FoodListCommands() {
    test.OpenDay("Anna");
    program.windows.lists = &window;
  }
  void AddOwn(std::initializer_list<std::string_view> names) {
    for (const auto name : names) store.Custom_list.Add(LineOf({.product = name}));
  }
  [[nodiscard]] Text Names(const TextList& list) const {
    Text names;
    for (const auto line : list) names.append(FieldOf(line, FoodField::kProduct)) += " ";
    return names;
  }
  [[nodiscard]] std::vector<Text> Saved(const std::string& path) const {
    TextList lines;
    if (const auto saved = ReadFirstRecord<Rec_ListLine>(path)) {
      SplitBlock(saved->strings[0], lines);
    }
    return Lines(lines);
  }
  [[nodiscard]] std::string Custom() const { return CustomFile(program.paths, "Anna"); }
  [[nodiscard]] std::string Favourites() const { return FavoritesFile(program.paths, "Anna"); }

  TestProgram test;
  Program& program = test.program;
  KV_data& store = test.program.store;
  NotedLists window;
  FoodLists lists{test.program};
};

// --- Drops ---

TEST_F(FoodListCommands, AConsumptionDroppedOnAListLeavesTheDay) {
  for (const FoodView view : {FoodView::standard, FoodView::own, FoodView::internet}) {
    store.L_middag.Clear();
    for (const char* name : {"Tea", "Bread", "Tea"}) store.L_middag.Add(LineOf({.product = name}));
    program.day.drag_source = "2";
    DropOnFoodView(program, view, Packed("kill-Tea|~Bread|~"));
    EXPECT_EQ(Names(store.L_middag), "Tea ");
    EXPECT_FALSE(program.day.FileChanged);
    EXPECT_FALSE(store.txt_trenddata.empty());
  }
  EXPECT_TRUE(store.Favorites_list.Empty());
}

TEST_F(FoodListCommands, AConsumptionDroppedOnTheFavouritesBecomesOneAndStaysInTheDay) {
  store.L_ochtend.Add(LineOf({.product = "Porridge"}));
  store.Default_list.Add(LineOf({.product = "Porridge", .db = "Grain.dat"}));
  program.day.drag_source = "1";
  DropOnFoodView(program, FoodView::favourites, Packed("kill-Porridge|~Unknown|~"));
  EXPECT_EQ(store.L_ochtend.Count(), 1u);
  EXPECT_EQ(Names(store.Favorites_list), "Porridge ");
  EXPECT_EQ(Saved(Favourites()), Lines(store.Favorites_list));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text, "The food item has been added to the favourites list.");
}

TEST_F(FoodListCommands, OfADroppedAmountOfAFoodTheFoodBecomesTheFavourite) {
  store.Default_list.Add(LineOf({.product = "Porridge", .db = "Grain.dat"}));
  DropOnFoodView(program, FoodView::favourites, Packed("kill-Porridge, 150 g|~"));
  EXPECT_EQ(Names(store.Favorites_list), "Porridge ");
}

// The rest behind the marker must be longer than six characters: a name of four letters is not.
TEST_F(FoodListCommands, AKeyOfSixCharactersIsTooShortForAFavourite) {
  for (const char* name : {"Beer", "Bread"}) store.Default_list.Add(LineOf({.product = name}));
  DropOnFoodView(program, FoodView::favourites, Packed("kill-Beer|~"));
  EXPECT_TRUE(store.Favorites_list.Empty());
  DropOnFoodView(program, FoodView::favourites, Packed("kill-Bread|~"));
  EXPECT_EQ(Names(store.Favorites_list), "Bread ");
}

TEST_F(FoodListCommands, AFoodOfTheSeparateProgramBecomesOneOfTheOwnListAsItStands) {
  const Text line = LineOf({.product = "Soup", .gram = "250"});
  DropOnFoodView(program, FoodView::own, "NVITEM-" + line);
  EXPECT_EQ(Lines(store.Custom_list), std::vector<Text>{line});
  EXPECT_EQ(Saved(Custom()), std::vector<Text>{line});
  EXPECT_EQ(window.own, 1);
  EXPECT_FALSE(program.day.FileChanged);
  for (const FoodView view : {FoodView::standard, FoodView::favourites, FoodView::internet}) {
    DropOnFoodView(program, view, "NVITEM-" + line);
  }
  EXPECT_EQ(store.Custom_list.Count(), 1u);
}

TEST_F(FoodListCommands, ADropOfFoodLinesDoesNothing) {
  for (const FoodView view : kFoodViews) {
    EXPECT_FALSE(TakesDrop(view, "add-" + LineOf({.product = "Tea"}) + kLineEnd));
    DropOnFoodView(program, view, "add-" + LineOf({.product = "Tea"}) + kLineEnd);
  }
  EXPECT_TRUE(store.Custom_list.Empty());
  EXPECT_TRUE(store.Favorites_list.Empty());
}

TEST_F(FoodListCommands, OnlyWhatDoesSomethingIsTaken) {
  for (const FoodView view : kFoodViews) {
    EXPECT_TRUE(TakesDrop(view, Packed("kill-Tea|~")));
    EXPECT_EQ(TakesDrop(view, Packed("NVITEM-Tea|")), view == FoodView::own);
    for (const char* other : {"", "Tea", "KILL-Tea", "NVITEM", " kill-"}) {
      EXPECT_FALSE(TakesDrop(view, other)) << other;
    }
  }
}

TEST_F(FoodListCommands, BadTextIsDroppedWithoutHarm) {
  store.L_ochtend.Add(LineOf({.product = "Tea"}));
  store.Default_list.Add(LineOf({.product = "Tea"}));
  AddOwn({"Soup"});
  program.day.drag_source = "1";
  const Text megabyte(1 << 20, 'x');
  for (const FoodView view : kFoodViews) {
    for (const Text& text :
         {Text(), Text("kill-"), Text("NVITEM-"), Packed("kill-Tea|"), Packed("kill-Cake|~"),
          "kill-" + megabyte, "NVITEM-" + megabyte, megabyte, Packed("NVITEM-Tea|~Cake|~"),
          Packed("kill-|~|~"), Packed("kill-~~~~~~~~"), Packed("kill-Te~Tea~Te~")}) {
      DropOnFoodView(program, view, text);
    }
  }
  EXPECT_EQ(Names(store.L_ochtend), "Tea ");
  EXPECT_EQ(Names(store.Custom_list), "Soup ");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(FoodListCommands, AMegabyteOfOneFoodIsOneFood) {
  const Text line = LineOf({.product = "Big", .remark = Text(1 << 20, 'x')});
  DropOnFoodView(program, FoodView::own, "NVITEM-" + line);
  EXPECT_EQ(Saved(Custom()), std::vector<Text>{line});
}

TEST_F(FoodListCommands, ADragWithoutASourceTakesNothingFromTheDay) {
  store.L_ochtend.Add(LineOf({.product = "Tea"}));
  DropOnFoodView(program, FoodView::standard, Packed("kill-Tea|~"));
  EXPECT_EQ(store.L_ochtend.Count(), 1u);
}

// --- Deleting ---

TEST_F(FoodListCommands, ADeletedOwnFoodThatIsAFavouriteGoesFromBothFiles) {
  AddOwn({"Soup", "Stew", "Pie"});
  store.Favorites_list.Add(LineOf({.product = "Tea"}));
  store.Favorites_list.Add(LineOf({.product = "Stew"}));
  store.L_ochtend.Add(LineOf({.product = "Stew"}));
  DeleteRows(program, lists, FoodView::own, {1});
  EXPECT_EQ(Names(store.Custom_list), "Soup Pie ");
  EXPECT_EQ(Names(store.Favorites_list), "Tea ");
  EXPECT_EQ(Names(store.L_ochtend), "Stew ");
  EXPECT_EQ(Saved(Custom()), Lines(store.Custom_list));
  EXPECT_EQ(Saved(Favourites()), Lines(store.Favorites_list));
  EXPECT_EQ(window.own, 1);
  EXPECT_EQ(window.favourites, 1);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(FoodListCommands, OfEqualLinesTheLastGoes) {
  AddOwn({"Soup", "Pie", "Soup"});
  lists.SortByColumn(FoodView::own, 1);  // Pie, Soup, Soup
  DeleteRows(program, lists, FoodView::own, {1});
  EXPECT_EQ(Names(store.Custom_list), "Soup Pie ");
}

TEST_F(FoodListCommands, AFoodWithTheSameNameButOtherValuesStays) {
  store.Custom_list.Add(LineOf({.product = "Soup", .gram = "1"}));
  store.Custom_list.Add(LineOf({.product = "Soup", .gram = "2"}));
  store.Favorites_list.Add(LineOf({.product = "Soup", .gram = "2"}));
  DeleteRows(program, lists, FoodView::own, {0});
  EXPECT_EQ(Lines(store.Custom_list), std::vector<Text>{LineOf({.product = "Soup", .gram = "2"})});
  EXPECT_EQ(store.Favorites_list.Count(), 1u);
}

// The numbers are not counted anew: after A is gone, number 2 is C.
TEST_F(FoodListCommands, OfSeveralRowsALaterOneTakesTheLineThatMovedUpToItsNumber) {
  AddOwn({"A", "B", "C", "D"});
  DeleteRows(program, lists, FoodView::own, {0, 1});
  EXPECT_EQ(Names(store.Custom_list), "B D ");
}

// A, then number 2 of B C D which is C, then the end of B D twice.
TEST_F(FoodListCommands, AllRowsEmptyTheListAndTakeNoForeignFavourite) {
  AddOwn({"A", "B", "C", "D"});
  for (const char* name : {"Tea", "B"}) store.Favorites_list.Add(LineOf({.product = name}));
  DeleteRows(program, lists, FoodView::own, {0, 1, 2, 3});
  EXPECT_TRUE(store.Custom_list.Empty());
  EXPECT_EQ(Names(store.Favorites_list), "Tea ");
}

TEST_F(FoodListCommands, ADeletedFavouriteStaysInTheOwnList) {
  AddOwn({"Soup"});
  store.Favorites_list = store.Custom_list;
  DeleteRows(program, lists, FoodView::favourites, {0});
  EXPECT_TRUE(store.Favorites_list.Empty());
  EXPECT_EQ(store.Custom_list.Count(), 1u);
  EXPECT_TRUE(Saved(Favourites()).empty());
  EXPECT_FALSE(FileExists(Custom()));
}

TEST_F(FoodListCommands, TheStandardAndTheInternetListHaveNothingToDelete) {
  store.Default_list.Add(LineOf({.product = "Tea", .db = "Drinks.dat"}));
  lists.Zoek_In_Lijsten("tea");
  for (const FoodView view : {FoodView::standard, FoodView::internet}) {
    DeleteRows(program, lists, view, {0});
  }
  EXPECT_EQ(store.Default_list.Count(), 1u);
  EXPECT_FALSE(FileExists(Favourites()));
  EXPECT_EQ(window.own, 0);
}

TEST_F(FoodListCommands, FiveThousandOwnFoodsAreDeletedAtOnce) {
  for (int i = 0; i < 5000; ++i) AddOwn({std::to_string(i)});
  std::vector<std::size_t> all(5000);
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = i;
  DeleteRows(program, lists, FoodView::own, all);
  EXPECT_TRUE(store.Custom_list.Empty());
  EXPECT_TRUE(Saved(Custom()).empty());
}

TEST_F(FoodListCommands, AListThatCanNotBeWrittenStaysInMemoryAsItBecame) {
  AddOwn({"Soup", "Pie"});
  std::filesystem::remove_all(program.paths.UsersPath);
  DeleteRows(program, lists, FoodView::own, {0});
  EXPECT_EQ(Names(store.Custom_list), "Pie ");
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#FF1-5"));
  EXPECT_TRUE(test.boxes.shown[1].text.ends_with("#FF1-4"));
  EXPECT_EQ(window.own, 1);
  DropOnFoodView(program, FoodView::own, Packed("NVITEM-Stew|"));
  EXPECT_EQ(Names(store.Custom_list), "Pie Stew ");
  EXPECT_TRUE(test.boxes.shown[2].text.ends_with("#FF1-5"));
}

// --- Menu, details, favourites, new foods ---

TEST_F(FoodListCommands, TheMenuOffersWhatTheViewAllows) {
  using Menu = FoodMenu;
  const auto menu = [&](FoodView view, std::size_t rows) {
    return FoodMenuFor(program, view, rows);
  };
  EXPECT_EQ(menu(FoodView::standard, 0), Menu{});
  EXPECT_EQ(menu(FoodView::own, 0), Menu{.add = true});
  EXPECT_EQ(menu(FoodView::favourites, 0), Menu{});
  EXPECT_EQ(menu(FoodView::internet, 0), Menu{});
  EXPECT_EQ(menu(FoodView::standard, 1),
            (Menu{.info = true, .favourite = true, .day_parts = true}));
  EXPECT_EQ(menu(FoodView::own, 1),
            (Menu{.del = true, .add = true, .info = true, .favourite = true, .day_parts = true}));
  EXPECT_EQ(menu(FoodView::favourites, 1), (Menu{.del = true, .info = true, .day_parts = true}));
  EXPECT_EQ(menu(FoodView::internet, 1), (Menu{.add = true, .info = true, .day_parts = true}));
  store.KV_bestand.clear();
  EXPECT_FALSE(menu(FoodView::own, 1).day_parts);
}

TEST_F(FoodListCommands, TheMenuOpensForOneRowAndWarnsOfSeveral) {
  OpenFoodMenu(program, FoodView::own, 1, {});
  OpenFoodMenu(program, FoodView::own, 0, {});
  ASSERT_EQ(test.core.food_menus.size(), 2u);
  EXPECT_EQ(test.core.food_menus[1], FoodMenu{.add = true});
  OpenFoodMenu(program, FoodView::own, 2, {});
  EXPECT_EQ(test.core.food_menus.size(), 2u);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::warning);
  EXPECT_EQ(test.boxes.shown[0].text,
            "You selected to many food items.\nSelect 1 food item and try again.");
}

TEST_F(FoodListCommands, DetailsAreShownUnderTheTagOfTheView) {
  AddOwn({"Soup"});
  store.Favorites_list = store.Custom_list;
  lists.Zoek_In_Lijsten("soup");
  for (const FoodView view : kFoodViews) ShowDetails(program, lists, view, 0);
  using Item = std::pair<Text, Text>;
  const Text line = LineOf({.product = "Soup"});
  // The internet list is empty: nothing happens there.
  EXPECT_EQ(test.core.items_shown,
            (std::vector<Item>{{"zoeken", line}, {"custom", line}, {"favo", line}}));
}

TEST_F(FoodListCommands, AFavouriteIsMadeOfARowOfTheStandardOrTheOwnList) {
  AddOwn({"Soup"});
  store.Default_list.Add(LineOf({.product = "Tea", .db = "Drinks.dat"}));
  lists.Zoek_In_Lijsten("tea");
  AddRowToFavourites(program, lists, FoodView::standard, 0);
  AddRowToFavourites(program, lists, FoodView::own, 0);
  AddRowToFavourites(program, lists, FoodView::own, 1);
  EXPECT_EQ(Names(store.Favorites_list), "Tea Soup ");
  AddRowToFavourites(program, lists, FoodView::favourites, 0);
  EXPECT_EQ(test.boxes.shown.size(), 2u);
  AddRowToFavourites(program, lists, FoodView::own, 0);
  ASSERT_EQ(test.boxes.shown.size(), 3u);
  EXPECT_EQ(test.boxes.shown[2].text,
            "This food item already exists in the favourites list.\n"
            "A food item can be only used once in the favourites list.");
}

TEST_F(FoodListCommands, OfTwoFoodsOfOneNameTheRowsOwnBecomesAFavourite) {
  store.Default_list.Clear();
  store.Default_list.Add(LineOf({.product = "Milk", .gram = "100", .db = "Dairy.dat"}));
  store.Default_list.Add(LineOf({.product = "Milk", .gram = "250", .db = "Drinks.dat"}));
  lists.SearchPrefix("milk");
  AddRowToFavourites(program, lists, FoodView::standard, 1);
  ASSERT_EQ(store.Favorites_list.Count(), 1u);
  EXPECT_EQ(store.Favorites_list[0], store.Default_list[1]);
}

TEST_F(FoodListCommands, ANewFoodBelongsToTheOwnAndTheInternetList) {
  for (const FoodView view : kFoodViews) AddNewFood(program, view);
  EXPECT_EQ(test.core.new_foods_opened, 2);
}

// --- To a day part without a drag ---

TEST_F(FoodListCommands, RowsGoToADayPartAsADropDoes) {
  AddOwn({"Soup", "Pie", "Stew"});
  EXPECT_TRUE(AddRowsToDay(program, lists, FoodView::own, {0, 2}, DayPart::evening).added);
  EXPECT_EQ(Names(store.L_avond), "Soup Stew ");
  EXPECT_TRUE(program.day.FileChanged);
  EXPECT_EQ(store.L_avond[0], store.Custom_list[0]);
}

TEST_F(FoodListCommands, AnAmountGoesWithEachRow) {
  AddOwn({"Soup", "Pie"});
  AddRowsToDay(program, lists, FoodView::own, {0, 1}, DayPart::morning, {.value = 2});
  EXPECT_EQ(Names(store.L_ochtend), "Soup Soup Pie Pie ");
  AddRowsToDay(program, lists, FoodView::own, {1}, DayPart::morning, {.value = 0.5});
  EXPECT_EQ(FieldOf(store.L_ochtend[4], FoodField::kProduct), "Pie, 0.5 x");
}

TEST_F(FoodListCommands, AnAmountThatOneRowCantHaveAddsNothing) {
  store.Custom_list.Add(LineOf({.product = "Bread", .gram = "35"}));
  AddOwn({"Soup"});
  const Amount weight{Amount::Kind::grams, 150};
  const AddedRows result =
      AddRowsToDay(program, lists, FoodView::own, {0, 1}, DayPart::evening, weight);
  EXPECT_FALSE(result.added);
  EXPECT_EQ(result.fault, AmountFault::no_weight);
  EXPECT_TRUE(store.L_avond.Empty());
  EXPECT_FALSE(program.day.FileChanged);
  EXPECT_EQ(program.day.active_part, DayPart::morning);
  EXPECT_TRUE(AddRowsToDay(program, lists, FoodView::own, {0}, DayPart::evening, weight).added);
  EXPECT_EQ(Names(store.L_avond), "Bread, 150 g ");
}

TEST_F(FoodListCommands, AValueBeyondAnyNumberShowsItsCodeAndAddsNothing) {
  store.Custom_list.Add(LineOf({.product = "Much", .gram = "1", .kj = Text(400, '9')}));
  EXPECT_FALSE(
      AddRowsToDay(program, lists, FoodView::own, {0}, DayPart::morning, {.value = 0.5}).added);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_NE(test.boxes.shown[0].text.find("#F11-7"), Text::npos);
  EXPECT_TRUE(store.L_ochtend.Empty());
}

TEST_F(FoodListCommands, ThePartThatWasAddedToIsTheActiveOne) {
  AddOwn({"Soup"});
  EXPECT_EQ(ActivePartText(program), "Enter adds to: morning");
  AddRowsToDay(program, lists, FoodView::own, {0}, DayPart::evening);
  EXPECT_EQ(ActivePartText(program), "Enter adds to: evening");
  EXPECT_EQ(window.parts_shown, 1);
  MakeActive(program, DayPart::afternoon);
  EXPECT_EQ(ActivePartText(program), "Enter adds to: afternoon");
  EXPECT_EQ(window.parts_shown, 2);
  store.KV_bestand.clear();
  EXPECT_EQ(ActivePartText(program), "");
}

TEST_F(FoodListCommands, TheCursorIsWhereTheFirstDeletedRowWasOrOnTheLast) {
  AddOwn({"Soup", "Pie", "Stew"});
  EXPECT_EQ(PlaceAfterDelete(lists, FoodView::own, 0), 0u);
  EXPECT_EQ(PlaceAfterDelete(lists, FoodView::own, 2), 2u);
  EXPECT_EQ(PlaceAfterDelete(lists, FoodView::own, 3), 2u);
  EXPECT_EQ(PlaceAfterDelete(lists, FoodView::favourites, 0), std::nullopt);
}

TEST_F(FoodListCommands, ARowAllowsWhatDoesSomethingInItsView) {
  EXPECT_EQ(FoodMenuOfRow(FoodView::standard, true), (FoodMenu{.info = true, .favourite = true}));
  EXPECT_EQ(FoodMenuOfRow(FoodView::own, true),
            (FoodMenu{.del = true, .add = true, .info = true, .favourite = true}));
  EXPECT_EQ(FoodMenuOfRow(FoodView::favourites, true), (FoodMenu{.del = true, .info = true}));
  EXPECT_EQ(FoodMenuOfRow(FoodView::internet, true), (FoodMenu{.add = true, .info = true}));
  EXPECT_EQ(FoodMenuOfRow(FoodView::favourites, false), FoodMenu{});
}

TEST_F(FoodListCommands, AFullDayPartTakesNoMoreAndTellsSo) {
  AddOwn({"Soup"});
  for (int i = 0; i < 51; ++i) store.L_ochtend.Add(LineOf({.product = "Tea"}));
  AddRowsToDay(program, lists, FoodView::own, {0}, DayPart::morning);
  EXPECT_EQ(store.L_ochtend.Count(), 51u);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::error);
}

TEST_F(FoodListCommands, ElevenRowsWarnOnceAndWithoutADayOrRowsNothingIsAdded) {
  for (int i = 0; i < 11; ++i) AddOwn({"Soup"});
  std::vector<std::size_t> rows = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
  EXPECT_FALSE(AddRowsToDay(program, lists, FoodView::own, rows, DayPart::morning).added);
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_FALSE(AddRowsToDay(program, lists, FoodView::own, {}, DayPart::morning).added);
  store.KV_bestand.clear();
  EXPECT_FALSE(AddRowsToDay(program, lists, FoodView::own, {0}, DayPart::morning).added);
  EXPECT_TRUE(store.L_ochtend.Empty());
  EXPECT_FALSE(program.day.FileChanged);
}

// --- The food server ---

TEST_F(FoodListCommands, TheChosenServerIsSavedAndNamed) {
  std::filesystem::create_directories(program.paths.ProgramPath);
  WriteFileAnew(program.paths.ProgramPath + "servers.conf",
                "dutch = http://nl.test\nenglish = http://uk.test\n");
  ChooseServer(program, "1");
  EXPECT_EQ(program.servers.search, "http://uk.test/modules/kvzoek.php");
  EXPECT_TRUE(UsesEnglishServer(program));
  EXPECT_EQ(ServerText(program), "[English Database]");
  const auto saved = ReadFirstRecord<Rec_Settings>(program.paths.SettingsFile);
  ASSERT_TRUE(saved);
  EXPECT_EQ((*saved)[Setting::opt_server], "1");
  ChooseServer(program, "0");
  EXPECT_EQ(program.servers.search, "http://nl.test/modules/kvzoek.php");
  EXPECT_EQ(ServerText(program), "[Dutch Database]");
}

}  // namespace
}  // namespace kelvora
