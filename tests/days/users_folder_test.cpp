#include "days/users_folder.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "days/open_day.h"
#include "days/settings.h"
#include "nutrition/totals.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/kept_files.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kDay = "05032004140709.kvf";

// Anna with a profile, an own food, a favourite and an open day, all saved in the old folder.
class ChangedUsersFolder : public testing::Test {
 protected:
  ChangedUsersFolder() {
    program.store.L_ochtend.Add(LineOf({.product = "Bread"}));
    test.OpenDay("Anna", kDay);
    program.profile[ProfileField::name] = "Anna";
    program.profile[ProfileField::height] = "1.80";
    program.store.Custom_list.Add(LineOf({.product = "Own soup"}));
    program.store.Favorites_list.Add(LineOf({.product = "Apple", .db = "Fruit.dat"}));
    Save_Profile(program, ProfileFile(program.paths, "Anna"));
    Save_Custom(program, CustomFile(program.paths, "Anna"));
    Save_Favorites(program, FavoritesFile(program.paths, "Anna"));
    Refresh_Totalen(program);
    SaveDay(program);
    test.boxes.shown.clear();
  }

  [[nodiscard]] std::string There(const std::string& path = {}) const {
    return test.folders.home.Path("there/" + path);
  }
  [[nodiscard]] std::string Here(const std::string& path = {}) const {
    return test.folders.Documents() + "/Kelvora FOOD/My Users/" + path;
  }
  bool SaveWithFolder() {
    SettingsForm form = FormOfSettings(program);
    form.chk_map = true;
    form.txt_map = There();
    return Save_From_Form(program, form);
  }
  // The same user in the new folder, with another height and another own food.
  void PutOtherData() {
    const std::string folder = There("Anna/");
    for (const char* name : {"Profile", "Files", "Databases"}) {
      fs::create_directories(folder + name);
    }
    Rec_Profile profile;
    profile[ProfileField::name] = "Anna";
    profile[ProfileField::height] = "1.65";
    WriteRecord(folder + "Profile/Profile.usr", profile);
    WriteRecord(folder + "Databases/Custom.dat",
                Rec_ListLine{{LineOf({.product = "Old stew"}) + kLineEnd}});
  }
  [[nodiscard]] Text OnlyBox() const {
    EXPECT_EQ(test.boxes.shown.size(), 1u);
    return test.boxes.shown.empty() ? Text() : test.boxes.shown.back().text;
  }

  TestProgram test;
  Program& program = test.program;
};

TEST_F(ChangedUsersFolder, AllPathsFollowAndTheUsersFilesAreThere) {
  EXPECT_TRUE(SaveWithFolder());
  EXPECT_EQ(program.paths.UsersPath, There());
  EXPECT_EQ(program.paths.FilesPath, There("Anna/Files/"));
  for (const char* file :
       {"Anna/Profile/Profile.usr", "Anna/Databases/Custom.dat", "Anna/Databases/Favorites.dat"}) {
    EXPECT_EQ(ReadFile(There(file)), ReadFile(Here(file))) << file;
  }
  EXPECT_EQ(OnlyBox(), "From now on your data is kept in the folder " + There());
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::information);
  // Nothing moved.
  EXPECT_TRUE(FileExists(Here("Anna/Files/" + std::string(kDay))));
}

TEST_F(ChangedUsersFolder, TheOpenDayCountsAsUnsavedAndIsSavedThere) {
  EXPECT_TRUE(SaveWithFolder());
  EXPECT_TRUE(program.day.FileChanged);
  EXPECT_FALSE(FileExists(There("Anna/Files/" + std::string(kDay))));
  const std::string before = ReadFile(Here("Anna/Files/" + std::string(kDay)));
  program.store.L_avond.Add(LineOf({.product = "Soup"}));
  SaveDay(program);
  EXPECT_FALSE(program.day.FileChanged);
  EXPECT_EQ(ReadFile(There("Anna/Files/" + std::string(kDay))),
            EncodeRecord(PackDay(program.store).strings));
  EXPECT_EQ(ReadFile(Here("Anna/Files/" + std::string(kDay))), before);
}

// Everything was copied there by hand before: nothing to ask, and the day is the same one.
TEST_F(ChangedUsersFolder, ACopyOfTheSameDataIsTakenWithoutAQuestion) {
  fs::create_directories(There());
  fs::copy(Here("Anna"), There("Anna"), fs::copy_options::recursive);
  EXPECT_TRUE(SaveWithFolder());
  EXPECT_TRUE(OnlyBox().starts_with("From now on your data"));
  EXPECT_EQ(program.store.KV_bestand, kDay);
}

TEST_F(ChangedUsersFolder, OtherDataThereIsAskedAboutAndStaysAfterANo) {
  PutOtherData();
  const std::string profile = ReadFile(There("Anna/Profile/Profile.usr"));
  const std::string own = ReadFile(There("Anna/Databases/Custom.dat"));
  EXPECT_TRUE(SaveWithFolder());  // a question is answered with No unless the test says otherwise
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::yes_no);
  EXPECT_EQ(test.boxes.shown[0].text,
            "There is other data of this user in the new folder already.\n"
            "Do you want to replace it by the data of now?\n\n"
            "With 'No' it stays there, and you go on with it. No day is lost.");
  EXPECT_EQ(ReadFile(There("Anna/Profile/Profile.usr")), profile);
  EXPECT_EQ(ReadFile(There("Anna/Databases/Custom.dat")), own);
  // What is in memory is what lies there, or the next save would write over it.
  EXPECT_EQ(program.profile[ProfileField::height], "1.65");
  ASSERT_EQ(program.store.Custom_list.Count(), 1u);
  EXPECT_TRUE(program.store.Custom_list[0].starts_with("Old stew"));
  // The favourites were not there yet.
  EXPECT_EQ(program.store.Favorites_list.Count(), 1u);
  EXPECT_TRUE(FileExists(There("Anna/Databases/Favorites.dat")));
}

TEST_F(ChangedUsersFolder, OtherDataThereIsWrittenOverAfterAYes) {
  PutOtherData();
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_TRUE(SaveWithFolder());
  for (const char* file : {"Anna/Profile/Profile.usr", "Anna/Databases/Custom.dat"}) {
    EXPECT_EQ(ReadFile(There(file)), ReadFile(Here(file))) << file;
  }
  EXPECT_EQ(program.profile[ProfileField::height], "1.80");
}

// Another day of the same file name: after a No neither takes the place of the other.
TEST_F(ChangedUsersFolder, AnotherDayOfThatNameStaysAfterANo) {
  fs::create_directories(There("Anna/Files"));
  WriteFileAnew(There("Anna/Files/" + std::string(kDay)), "another day");
  test.clock.now = {.year = 2026, .month = 1, .day = 2, .hour = 3, .minute = 4, .second = 5};
  EXPECT_TRUE(SaveWithFolder());
  EXPECT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(program.store.KV_bestand, "0201202603045.kvf");
  EXPECT_TRUE(program.day.FileChanged);
  SaveDay(program);
  EXPECT_EQ(ReadFile(There("Anna/Files/" + std::string(kDay))), "another day");
  EXPECT_TRUE(FileExists(There("Anna/Files/0201202603045.kvf")));
}

TEST_F(ChangedUsersFolder, AFolderThatTakesNothingLeavesEverythingAsItWas) {
  WriteFileAnew(test.folders.home.Path("there"), "no folder");
  const Rec_Settings before = program.settings;
  EXPECT_FALSE(SaveWithFolder());
  EXPECT_TRUE(OnlyBox().ends_with("Brelux CODE:#FF1-7"));
  EXPECT_EQ(program.settings, before);
  EXPECT_EQ(program.paths.UsersPath, Here());
  EXPECT_EQ(program.paths.FilesPath, Here("Anna/Files/"));
  EXPECT_FALSE(program.day.FileChanged);
  // Nothing counts as unsaved, and every save goes to the old folder as before.
  EXPECT_FALSE(HoldsUnwrittenWork(program));
  EXPECT_TRUE(SaveDay(program));
  EXPECT_TRUE(Save_Custom(program, CustomFile(program.paths, "Anna")));
  EXPECT_EQ(test.boxes.shown.size(), 1u);
}

// One that could not be read is empty in memory, and no such list goes anywhere.
TEST_F(ChangedUsersFolder, AListThatWasNotReadIsNotWritten) {
  fs::remove(CustomFile(program.paths, "Anna"));
  fs::create_directory(CustomFile(program.paths, "Anna"));
  program.store.Custom_list.Clear();
  Load_Custom(program, CustomFile(program.paths, "Anna"));
  EXPECT_TRUE(SaveWithFolder());
  EXPECT_FALSE(fs::exists(There("Anna/Databases/Custom.dat")));
  EXPECT_TRUE(FileExists(There("Anna/Databases/Favorites.dat")));
}

// What lies in the new folder was read there: the next save of a list has nothing to ask.
TEST_F(ChangedUsersFolder, TheNextSaveOfAListAsksNothing) {
  fs::create_directories(There());
  fs::copy(Here("Anna"), There("Anna"), fs::copy_options::recursive);
  EXPECT_TRUE(SaveWithFolder());
  test.boxes.shown.clear();
  program.store.Custom_list.Add(LineOf({.product = "Own bread"}));
  EXPECT_TRUE(Save_Custom(program, CustomFile(program.paths, "Anna")));
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(ReadFile(There("Anna/Databases/Custom.dat")),
            EncodeRecord(Rec_ListLine{{PackBlock(program.store.Custom_list)}}.strings));
}

TEST_F(ChangedUsersFolder, WithoutAUserOnlyThePathsFollow) {
  CloseDay(program);
  SetCurrentUser(program, "");
  EXPECT_TRUE(SaveWithFolder());
  EXPECT_EQ(program.paths.UsersPath, There());
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_FALSE(fs::exists(There()));
}

TEST_F(ChangedUsersFolder, AnOpenBrowserFollows) {
  struct NotedBrowser : BrowserView {
    std::string notes;
    void CloseWindow() override {}
    void Set_Taal() override {}
    void Refresh_GebruikersLijst() override { notes += "users "; }
    void Refresh_Files() override { notes += "days "; }
  } browser;
  program.windows.browser = &browser;
  EXPECT_TRUE(SaveWithFolder());
  EXPECT_EQ(browser.notes, "users days ");
}

TEST_F(ChangedUsersFolder, BackToTheDocumentsIsTheSameTheOtherWayRound) {
  EXPECT_TRUE(SaveWithFolder());
  SaveDay(program);
  test.boxes.shown.clear();
  SettingsForm form = FormOfSettings(program);
  form.chk_map = false;
  EXPECT_TRUE(Save_From_Form(program, form));
  EXPECT_EQ(program.paths.FilesPath, Here("Anna/Files/"));
  // The copies are equal: nothing to ask, and the day lies there already.
  EXPECT_EQ(OnlyBox(), "From now on your data is kept in the folder " + Here());
  EXPECT_FALSE(program.day.FileChanged);
}

// Without a folder in it the setting would point to wherever the program happens to stand.
TEST_F(ChangedUsersFolder, AnEmptySettingAtTheStartMeansTheDocuments) {
  program.settings[Setting::chk_map] = "1";
  program.settings[Setting::txt_map] = "";
  ApplyAlternativeUsersFolder(program);
  EXPECT_EQ(program.paths.UsersPath, Here());
}

}  // namespace
}  // namespace kelvora
