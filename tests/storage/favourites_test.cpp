// Marking favourites, and making the own list a category of the installation.
#include <filesystem>
#include <gtest/gtest.h>

#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

std::vector<Text> Lines(const TextList& list) {
  return {list.begin(), list.end()};
}

struct CountingLists : FoodListsView {
  int standard = 0, own = 0, favourites = 0;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Toon_Standaardlijst() override { ++standard; }
  void Populate_Food_List_Custom() override { ++own; }
  void Populate_Food_List_Favo() override { ++favourites; }
};

class OwnLists : public testing::Test {
 protected:
  OwnLists() {
    MakeUserFolders(test.program.paths, "Anna");
    SetCurrentUser(test.program, "Anna");
    std::filesystem::create_directories(Databases());
    test.program.windows.lists = &view;
  }
  [[nodiscard]] std::string Databases() const {
    return test.program.paths.ProgramPath + "Databases/";
  }
  [[nodiscard]] std::vector<Text> SavedFavourites() const {
    const auto saved = ReadFirstRecord<Rec_ListLine>(FavoritesFile(test.program.paths, "Anna"));
    TextList lines;
    if (saved) SplitBlock(saved->strings[0], lines);
    return Lines(lines);
  }

  TestProgram test;
  CountingLists view;
  KV_data& store = test.program.store;
};

TEST_F(OwnLists, AFavouriteIsAddedSavedShownAndTold) {
  store.Default_list.Add(Packed("Apple|1 piece|Fruit.dat|"));
  Add_To_Favorites(test.program, KeyOf("Apple"));
  EXPECT_EQ(Lines(store.Favorites_list), std::vector<Text>{Packed("Apple|1 piece|Fruit.dat|")});
  EXPECT_EQ(SavedFavourites(), Lines(store.Favorites_list));
  EXPECT_EQ(view.favourites, 1);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::information);
  EXPECT_EQ(test.boxes.shown[0].text, "The food item has been added to the favourites list.");
}

TEST_F(OwnLists, AFavouriteThatCannotBeSavedStaysInMemoryAndIsNotToldAsAdded) {
  store.Default_list.Add(Packed("Apple|1 piece|Fruit.dat|"));
  std::filesystem::remove_all(test.program.paths.UsersPath + "Anna/Databases");
  Add_To_Favorites(test.program, KeyOf("Apple"));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#FF1-4"));
  EXPECT_EQ(store.Favorites_list.Count(), 1u);
  EXPECT_EQ(view.favourites, 1);
}

TEST_F(OwnLists, OfEqualNamesTheLastOfTheStandardListCounts) {
  store.Default_list.Add(Packed("Apple|1|a.dat|"));
  store.Default_list.Add(Packed("Apple|2|b.dat|"));
  store.Default_list.Add(Packed("Apple pie|3|c.dat|"));
  store.Default_list.Add(Packed("apple|4|d.dat|"));
  Add_To_Favorites(test.program, KeyOf("Apple"));
  EXPECT_EQ(Lines(store.Favorites_list), std::vector<Text>{Packed("Apple|2|b.dat|")});
}

TEST_F(OwnLists, TheFirstOfTheOwnListOverridesTheStandardList) {
  store.Default_list.Add(Packed("Apple|1|a.dat|"));
  store.Custom_list.Add(Packed("Pear|1|"));
  store.Custom_list.Add(Packed("Apple|2|"));
  store.Custom_list.Add(Packed("Apple|3|"));
  Add_To_Favorites(test.program, KeyOf("Apple"));
  EXPECT_EQ(Lines(store.Favorites_list), std::vector<Text>{Packed("Apple|2|")});
}

TEST_F(OwnLists, AnEqualLineLeadsToAWarningAndNothingElse) {
  store.Custom_list.Add(Packed("Apple|2|"));
  store.Favorites_list.Add(Packed("Apple|2|"));
  Add_To_Favorites(test.program, KeyOf("Apple"));
  EXPECT_EQ(store.Favorites_list.Count(), 1u);
  EXPECT_FALSE(FileExists(FavoritesFile(test.program.paths, "Anna")));
  EXPECT_EQ(view.favourites, 0);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::warning);
  EXPECT_EQ(test.boxes.shown[0].text,
            "This food item already exists in the favourites list.\n"
            "A food item can be only used once in the favourites list.");
}

TEST_F(OwnLists, AFoodThatChangedSinceCanStandTwice) {
  store.Custom_list.Add(Packed("Apple|2|"));
  store.Favorites_list.Add(Packed("Apple|1|"));
  Add_To_Favorites(test.program, KeyOf("Apple"));
  EXPECT_EQ(Lines(store.Favorites_list),
            (std::vector<Text>{Packed("Apple|1|"), Packed("Apple|2|")}));
}

TEST_F(OwnLists, AKeyThatNothingBeginsWithDoesNothing) {
  store.Default_list.Add(Packed("Apple|1|a.dat|"));
  Add_To_Favorites(test.program, KeyOf("App"));
  Add_To_Favorites(test.program, KeyOf(""));
  EXPECT_TRUE(store.Favorites_list.Empty());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(OwnLists, OnlyAYesCopiesTheOwnListIntoTheDatabases) {
  store.Custom_list.Add(Packed("Own soup|1 plate|"));
  Save_Custom(test.program, CustomFile(test.program.paths, "Anna"));
  for (const BoxAnswer answer : {BoxAnswer::no, BoxAnswer::cancel}) {
    test.boxes.answers = {answer};
    CopyOwnListToDatabases(test.program);
    EXPECT_TRUE(std::filesystem::is_empty(Databases()));
  }
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::yes_no_cancel);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::question);
  test.boxes.answers = {BoxAnswer::yes};
  CopyOwnListToDatabases(test.program);
  EXPECT_EQ(ReadFile(Databases() + "Anna.dat"), ReadFile(CustomFile(test.program.paths, "Anna")));
  EXPECT_EQ(Lines(store.Default_list), std::vector<Text>{Packed("Own soup|1 plate|Anna.dat|")});
  EXPECT_EQ(Lines(store.lst_categorien), std::vector<Text>{"Anna.dat"});
  EXPECT_EQ(view.standard, 1);
  EXPECT_EQ(view.own, 1);
  EXPECT_EQ(view.favourites, 1);
}

TEST_F(OwnLists, ACopyTakesThePlaceOfTheOneBefore) {
  WriteFileAnew(Databases() + "Anna.dat", std::string(5000, 'x'));
  store.Custom_list.Add(Packed("Own soup|"));
  Save_Custom(test.program, CustomFile(test.program.paths, "Anna"));
  test.boxes.answers = {BoxAnswer::yes};
  CopyOwnListToDatabases(test.program);
  EXPECT_EQ(ReadFile(Databases() + "Anna.dat"), ReadFile(CustomFile(test.program.paths, "Anna")));
}

// What the program's folder can't take goes into the user's, and counts there.
TEST_F(OwnLists, ACopyGoesToTheFolderOfTheUserWhereThatOfTheProgramIsClosed) {
  std::filesystem::remove_all(Databases());
  const std::string of_user = test.program.paths.UserDatabases + "Anna.dat";
  for (const char* soup : {"Own soup|1 plate|", "Own soup|2 plates|"}) {
    store.Custom_list.Clear();
    store.Custom_list.Add(Packed(soup));
    Save_Custom(test.program, CustomFile(test.program.paths, "Anna"));
    test.boxes.answers = {BoxAnswer::yes};
    CopyOwnListToDatabases(test.program);
    EXPECT_EQ(ReadFile(of_user), ReadFile(CustomFile(test.program.paths, "Anna")));
    EXPECT_EQ(Lines(store.Default_list), std::vector<Text>{Packed(soup) + Packed("Anna.dat|")});
    EXPECT_FALSE(FileExists(Databases() + "Anna.dat"));
    // What lies in the user's folder is what counts, so the next copy goes there as well.
    std::filesystem::create_directories(Databases());
  }
  EXPECT_EQ(test.boxes.shown.size(), 2u);
}

TEST_F(OwnLists, ACategoryOfTheUserWithOtherFoodsIsAskedAboutToo) {
  std::filesystem::create_directories(test.program.paths.UserDatabases);
  const std::string of_user = test.program.paths.UserDatabases + "Anna.dat";
  WriteRecord(of_user, Rec_ListLine{{Packed("Rye|~")}});
  store.Custom_list.Add(Packed("Own soup|1 plate|"));
  Save_Custom(test.program, CustomFile(test.program.paths, "Anna"));
  test.boxes.answers = {BoxAnswer::yes, BoxAnswer::no};
  CopyOwnListToDatabases(test.program);
  EXPECT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(ReadFile(of_user), EncodeRecord(Rec_ListLine{{Packed("Rye|~")}}.strings));
}

// A user may bear the name of a category; its foods would be gone for everybody.
TEST_F(OwnLists, ACategoryWithOtherFoodsIsAskedAboutBeforeItIsReplaced) {
  const Rec_ListLine other{{Packed("Own soup|2 plates|~Rye|~")}};
  store.Custom_list.Add(Packed("Own soup|1 plate|"));
  Save_Custom(test.program, CustomFile(test.program.paths, "Anna"));
  for (const BoxAnswer answer : {BoxAnswer::no, BoxAnswer::yes}) {
    WriteRecord(Databases() + "Anna.dat", other);
    const std::string before = ReadFile(Databases() + "Anna.dat");
    test.boxes.shown.clear();
    test.boxes.answers = {BoxAnswer::yes, answer};
    CopyOwnListToDatabases(test.program);
    ASSERT_EQ(test.boxes.shown.size(), 2u);
    EXPECT_EQ(test.boxes.shown[1].text,
              "The category \"Anna\" holds food items that your own list does not have.\n"
              "Do you want to replace all of them by your own list?");
    EXPECT_EQ(test.boxes.shown[1].buttons, BoxButtons::yes_no);
    const std::string own = ReadFile(CustomFile(test.program.paths, "Anna"));
    EXPECT_EQ(ReadFile(Databases() + "Anna.dat"), answer == BoxAnswer::yes ? own : before);
  }
  // An earlier copy, whose foods the own list still has, goes without a question.
  store.Custom_list.Replace(0, Packed("Own soup|3 plates|"));
  Save_Custom(test.program, CustomFile(test.program.paths, "Anna"));
  test.boxes.shown.clear();
  test.boxes.answers = {BoxAnswer::yes};
  CopyOwnListToDatabases(test.program);
  EXPECT_EQ(test.boxes.shown.size(), 1u);
}

TEST_F(OwnLists, WithoutAFileToCopyTheCategoryStaysAndItsCodeShows) {
  WriteRecord(Databases() + "Anna.dat", Rec_ListLine{{Packed("Old|~")}});
  test.boxes.answers = {BoxAnswer::yes};
  CopyOwnListToDatabases(test.program);
  EXPECT_TRUE(FileExists(Databases() + "Anna.dat"));
  EXPECT_TRUE(test.boxes.shown.back().text.ends_with("#F11-2"));
  EXPECT_EQ(view.standard, 0);
}

TEST_F(OwnLists, LoadingLetsAnOpenWindowRebuildItsOwnViewOnly) {
  Save_Custom(test.program, CustomFile(test.program.paths, "Anna"));
  Save_Favorites(test.program, FavoritesFile(test.program.paths, "Anna"));
  Load_Custom(test.program, CustomFile(test.program.paths, "Anna"));
  EXPECT_EQ(view.own, 1);
  EXPECT_EQ(view.favourites, 0);
  Load_Favorites(test.program, FavoritesFile(test.program.paths, "Anna"));
  EXPECT_EQ(view.own, 1);
  EXPECT_EQ(view.favourites, 1);
  EXPECT_FALSE(test.pointer.waiting);
}

}  // namespace
}  // namespace kelvora
