// Users as the day dialog meets them: odd names, broken profiles, and their removal.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>

#include "days/day_settings.h"
#include "days/good_form.h"
#include "days/open_day.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

class DayUsers : public testing::Test {
 protected:
  void AddUser(std::string_view name) {
    MakeUserFolders(program.paths, name);
    Rec_Profile profile;
    profile[ProfileField::name] = name;
    profile[ProfileField::city] = "Utrecht";
    profile[ProfileField::remark] = Text(name) + "'s remark";
    WriteRecord(ProfileFile(program.paths, name), profile);
  }
  DayEditing Choose(std::string_view name) {
    DayEditing editing = OpenDayEditing(program);
    ChooseUserForDay(program, editing, UserNamed(name));
    return editing;
  }
  bool Start(std::string_view name) {
    DayEditing editing = OpenDayEditing(program);
    editing.form = GoodForm();
    editing.form.pg_0 = name;
    return ConfirmDay(program, editing);
  }
  // Every file below the home with its content.
  std::map<std::string, std::string> Everything() {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(test.folders.home.Path())) {
      files[entry.path().string()] = entry.is_regular_file() ? ReadFile(entry.path().string()) : "";
    }
    return files;
  }

  TestProgram test;
  Program& program = test.program;
};

// Names.

TEST_F(DayUsers, NamesThatAFolderCanHaveAreUsedAsTyped) {
  Text upper;  // 30 characters of every kind that the code page has
  for (int code = 0xC1; code < 0xC1 + 30; ++code) upper += static_cast<char>(code);
  Text symbols;
  for (int code = 0x80; code < 0x80 + 30; ++code) symbols += static_cast<char>(code);
  Text ascii = " !\"#$%&'()*+,-.:;<=>?@[\\]^_`{";
  for (const Text& name : {upper, symbols, ascii, Text("..."), Text(".hidden"), Text("a..b"),
                           Text("Anna. "), Text(" "), Text("~"), Text("con"), Text("\t\n")}) {
    ASSERT_LE(name.size(), 30u);
    EXPECT_TRUE(Start(name)) << name;
    EXPECT_TRUE(test.boxes.shown.empty()) << name;
    const auto profile = ReadFirstRecord<Rec_Profile>(program.paths.UsersPath + Utf8FromText(name) +
                                                      "/Profile/Profile.usr");
    ASSERT_TRUE(profile.has_value()) << name;
    EXPECT_EQ((*profile)[ProfileField::name], name);
    SaveDay(program);
    EXPECT_FALSE(program.day.FileChanged) << name;
    CloseDay(program);
  }
}

TEST_F(DayUsers, ANameThatNoFolderCanHaveIsRefusedBeforeAnythingIsMade) {
  AddUser("Anna");
  fs::create_directories(program.paths.UsersPath + "../My Reports/Profile");
  const auto before = Everything();
  for (const Text& name :
       {Text(".."), Text("."), Text("/"), Text("../My Users/Anna"), Text("Anna/"), Text("./Anna"),
        Text("Anna/."), Text("../My Reports"), Text("/tmp"), Text("a\0b", 3), Text(256, 'x'),
        Text(128, '\xEB')}) {  // the last takes 256 bytes on disk
    test.boxes.shown.clear();
    EXPECT_FALSE(Start(name)) << name;
    ASSERT_EQ(test.boxes.shown.size(), 1u) << name;
    EXPECT_EQ(test.boxes.shown[0].text,
              "This name can't be used for your folder.\nChoose a name without \"/\" that is not "
              "\".\" or \"..\" and isn't too long.");
    EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::error);
    EXPECT_FALSE(program.store.DayIsOpen());
    EXPECT_EQ(program.paths.UserName, "");
  }
  EXPECT_EQ(Everything(), before);
  // As long as a name may be.
  EXPECT_TRUE(Start(Text(255, 'x')));
  CloseDay(program);
  EXPECT_TRUE(Start(Text(127, '\xEB')));
}

TEST_F(DayUsers, TheNameOfTheFolderIsTestedBehindEverythingElse) {
  DayEditing editing = OpenDayEditing(program);
  editing.form = GoodForm();
  editing.form.pg_0 = "a/b";
  editing.form.pg_9_a = "32";
  EXPECT_FALSE(ConfirmDay(program, editing));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.starts_with("You did not enter the date correctly."));
}

TEST_F(DayUsers, ASecondSpellingInCaseIsAnotherUser) {
  AddUser("Anna");
  EXPECT_TRUE(Start("anna"));
  EXPECT_EQ(ReadUsers(program).users.size(), 2u);
}

TEST_F(DayUsers, AFolderThatCannotBeWrittenIsToldAndNothingIsBegun) {
  // A file where the folder would be stops everybody, whoever runs this test.
  std::ofstream(program.paths.UsersPath + "Anna") << "in the way";
  EXPECT_FALSE(Start("Anna"));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#FF1-7"));
  EXPECT_FALSE(program.store.DayIsOpen());
  EXPECT_FALSE(program.day.FileChanged);
  EXPECT_EQ(program.paths.UserName, "");
  EXPECT_EQ(ReadFile(program.paths.UsersPath + "Anna"), "in the way");
}

// Profiles.

TEST_F(DayUsers, ACutProfileIsReadAsFarAsItGoes) {
  AddUser("Anna");
  const std::string whole = ReadFile(ProfileFile(program.paths, "Anna"));
  // The count, the name with its length, three empty strings, "Utre" of the city.
  std::ofstream(ProfileFile(program.paths, "Anna"), std::ios::binary)
      << whole.substr(0, 4 + 6 + 2 + 2 + 2 + 4);
  const DayForm form = Choose("Anna").form;
  EXPECT_EQ(form.pg_0, "Anna");
  EXPECT_EQ(form.pg_3, "Utre");
  EXPECT_EQ(form.pg_14, "");
  EXPECT_EQ(form.txt_kj, "2000");
  EXPECT_EQ(form.type_prioriteit, "0");
}

TEST_F(DayUsers, WhoHasNoProfileIsGivenNobodyElses) {
  AddUser("Bert");
  MakeUserFolders(program.paths, "Anna");
  Choose("Bert");
  DayForm expected = NewUserForm(program);
  expected.pg_0 = "Anna";
  const DayEditing editing = Choose("Anna");
  EXPECT_EQ(editing.form, expected);
  EXPECT_EQ(program.paths.UserName, "Anna");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(DayUsers, AProfileThatBearsAnotherNameIsNotThatUsers) {
  AddUser("Bert");
  MakeUserFolders(program.paths, "Anna");
  fs::copy(ProfileFile(program.paths, "Bert"), ProfileFile(program.paths, "Anna"));
  const DayEditing editing = Choose("Anna");
  EXPECT_EQ(editing.form.pg_0, "Anna");
  EXPECT_EQ(editing.form.pg_14, "");
}

TEST_F(DayUsers, WhatWasAppliedForOneUserNeverReachesTheNext) {
  AddUser("Anna");
  DayEditing editing = OpenDayEditing(program);
  editing.form.pg_0 = "Carl";
  ApplyAtOnce(program, editing);
  MakeUserFolders(program.paths, "Bert");  // without a profile
  ChooseUserForDay(program, editing, UserNamed("Bert"));
  Rec_Profile nothing_filled_in = DefaultsOfNewUser();
  nothing_filled_in[ProfileField::name] = "Bert";
  EXPECT_EQ(program.profile, nothing_filled_in);
  ChooseUserForDay(program, editing, UserNamed("Anna"));
  EXPECT_EQ(program.profile[ProfileField::remark], "Anna's remark");
}

// Removal.

TEST_F(DayUsers, RemovalAsksWithNoAsTheSafeAnswer) {
  AddUser("Anna");
  DayEditing editing = Choose("Anna");
  const DayForm before = editing.form;
  EXPECT_EQ(RemoveUser(program, editing, UserNamed("Anna")), UserRemoval::refused);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].title, "Remove Anna?");
  EXPECT_EQ(test.boxes.shown[0].text,
            "You're going to delete Anna , are you sure?\nAll files of this person will be "
            "deleted.");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::question);
  EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::yes_no);
  EXPECT_TRUE(fs::exists(ProfileFile(program.paths, "Anna")));
  EXPECT_EQ(program.paths.UserName, "Anna");
  EXPECT_EQ(editing.form, before);
}

TEST_F(DayUsers, ARemovedUserLeavesNothingBehind) {
  AddUser("Anna");
  AddUser("Bert");
  std::ofstream(program.paths.UsersPath + "Anna/Files/1.kvf") << "day";
  WriteRecord(CustomFile(program.paths, "Anna"),
              Rec_ListLine{{LineOf({.product = "Bread"}) + kLineEnd}});
  WriteRecord(FavoritesFile(program.paths, "Anna"),
              Rec_ListLine{{LineOf({.product = "Apple"}) + kLineEnd}});
  fs::permissions(program.paths.UsersPath + "Anna/Files", fs::perms::owner_read);
  DayEditing editing = Choose("Anna");
  ASSERT_EQ(program.store.Custom_list.Count(), 1u);
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_EQ(RemoveUser(program, editing, UserNamed("Anna")), UserRemoval::removed);
  EXPECT_FALSE(fs::exists(program.paths.UsersPath + "Anna"));
  EXPECT_TRUE(fs::exists(ProfileFile(program.paths, "Bert")));
  EXPECT_EQ(editing.form, NewUserForm(program));
  EXPECT_EQ(program.paths.UserName, "");
  EXPECT_EQ(program.paths.FilesPath, "");
  EXPECT_EQ(program.profile[ProfileField::remark], "");
  // The next user is not given these foods.
  EXPECT_TRUE(program.store.Custom_list.Empty());
  EXPECT_TRUE(program.store.Favorites_list.Empty());
  EXPECT_GT(test.core.updates, 0);
}

TEST_F(DayUsers, TheFolderOfARemovedUserIsNobodys) {
  const std::string nowhere = UserFolder(program.paths, "");
  AddUser("Anna");
  DayEditing editing = Choose("Anna");
  test.boxes.answers = {BoxAnswer::yes};
  ASSERT_EQ(RemoveUser(program, editing, UserNamed("Anna")), UserRemoval::removed);
  EXPECT_EQ(UserFolder(program.paths, ""), nowhere);
}

TEST_F(DayUsers, AnotherUserThanTheCurrentOneIsRemovedWithoutTouchingIt) {
  AddUser("Anna");
  AddUser("Bert");
  DayEditing editing = Choose("Bert");
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_EQ(RemoveUser(program, editing, UserNamed("Anna")), UserRemoval::removed);
  EXPECT_EQ(program.paths.UserName, "Bert");
  EXPECT_EQ(program.profile[ProfileField::remark], "Bert's remark");
}

TEST_F(DayUsers, AnOpenDayOfARemovedUserStaysInMemoryAsUnsaved) {
  ASSERT_TRUE(Start("Anna"));
  SaveDay(program);
  ASSERT_FALSE(program.day.FileChanged);
  const Text header = PackBlock(program.store.L_gegevens);
  DayEditing editing = OpenDayEditing(program);
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_EQ(RemoveUser(program, editing, UserNamed("Anna")), UserRemoval::removed);
  EXPECT_TRUE(program.store.DayIsOpen());
  EXPECT_EQ(PackBlock(program.store.L_gegevens), header);
  EXPECT_TRUE(program.day.FileChanged);
}

struct CountingBrowser : BrowserView {
  int rebuilt = 0;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_GebruikersLijst() override { ++rebuilt; }
  void Refresh_Files() override { ++rebuilt; }
};

TEST_F(DayUsers, AnOpenBrowserRebuildsItsListsAfterEitherAnswer) {
  CountingBrowser browser;
  program.windows.browser = &browser;
  AddUser("Anna");
  DayEditing editing = Choose("Anna");
  test.boxes.answers = {BoxAnswer::no, BoxAnswer::yes};
  static_cast<void>(RemoveUser(program, editing, UserNamed("Anna")));
  EXPECT_EQ(browser.rebuilt, 2);
  static_cast<void>(RemoveUser(program, editing, UserNamed("Anna")));
  EXPECT_EQ(browser.rebuilt, 4);
}

TEST_F(DayUsers, RemovalNeverReachesOutsideTheUsersFolder) {
  AddUser("Anna");
  DayEditing editing = Choose("Anna");
  const auto before = Everything();
  for (const Text& name :
       {Text(".."), Text("."), Text(""), Text("../My Reports"), Text("Anna/Files"), Text("/")}) {
    test.boxes.shown.clear();
    test.boxes.answers = {BoxAnswer::yes};
    EXPECT_EQ(RemoveUser(program, editing, UserNamed(name)), UserRemoval::refused) << name;
    ASSERT_EQ(test.boxes.shown.size(), 2u) << name;
    EXPECT_TRUE(test.boxes.shown[1].text.ends_with("Brelux CODE:#F2-7")) << name;
  }
  EXPECT_EQ(Everything(), before);
  EXPECT_EQ(program.paths.UserName, "Anna");
}

TEST(AnotherUser, TakesNothingOfTheFormerOnesFoods) {
  TestProgram test;
  Program& program = test.program;
  MakeUserFolders(program.paths, "Anna");
  Rec_Profile anna;
  anna[ProfileField::name] = "Anna";
  WriteRecord(ProfileFile(program.paths, "Anna"), anna);
  SetCurrentUser(program, "Zoe");
  program.store.Custom_list.Add(LineOf({.product = "Bread"}));
  program.store.Favorites_list.Add(LineOf({.product = "Apple"}));
  ChooseUser(program, UserNamed("Zoe"));  // the same one: files that are not there change nothing
  EXPECT_EQ(program.store.Custom_list.Count(), 1u);
  ChooseUser(program, UserNamed("Anna"));
  EXPECT_TRUE(program.store.Custom_list.Empty());
  EXPECT_TRUE(program.store.Favorites_list.Empty());
}

}  // namespace
}  // namespace kelvora
