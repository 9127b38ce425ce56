// The list of users: what it shows of folders with odd names, without a profile, or none at all.
#include "days/user_list.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "days/browser.h"
#include "days/day_settings.h"
#include "days/good_form.h"
#include "days/open_day.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"
#include "support/file_faults.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

// On disk: a letter that text can't hold, another script, and a letter with its mark behind it.
constexpr const char* kLukasz = "\xC5\x81ukasz";
constexpr const char* kIvan = "\xD0\x98\xD0\xB2\xD0\xB0\xD0\xBD";
constexpr const char* kDecomposedZoe = "Zoe\xCC\x88";

class Users : public testing::Test {
 protected:
  std::string FolderOf(const std::string& folder_name) {
    return program.paths.UsersPath + folder_name + "/";
  }
  // The folders of a user, with no profile in them.
  void MakeFolders(const std::string& folder_name) {
    for (const char* name : {"Profile", "Files", "Databases"}) {
      fs::create_directories(FolderOf(folder_name) + name);
    }
  }
  void AddUser(const std::string& folder_name, std::string_view name) {
    MakeFolders(folder_name);
    Rec_Profile profile;
    profile[ProfileField::name] = name;
    profile[ProfileField::remark] = Text("remark of ") + Text(name);
    WriteRecord(ProfileFileIn(FolderOf(folder_name)), profile);
  }
  void WriteProfile(const std::string& folder_name, std::string_view bytes) {
    MakeFolders(folder_name);
    WriteFileAnew(ProfileFileIn(FolderOf(folder_name)), bytes);
  }
  std::vector<Text> Names(const UserList& list) {
    std::vector<Text> names;
    for (const User& user : list.users) names.push_back(user.name);
    return names;
  }
  // The one box of a list that could not be read whole.
  Text ToldOf(const UserList& list) {
    test.boxes.shown.clear();
    TellOfUnreadUsers(program, list);
    EXPECT_LE(test.boxes.shown.size(), 1u);
    return test.boxes.shown.empty() ? Text() : test.boxes.shown[0].text;
  }

  TestProgram test;
  Program& program = test.program;
};

TEST_F(Users, AreShownByTheNamesInTheirProfilesInOrderOfTheFolders) {
  program.profile[ProfileField::name] = "Current";
  AddUser("bert", "Bert");
  AddUser("Anna", "Anna B.");
  const UserList list = ReadUsers(program);
  EXPECT_EQ(list.users, (std::vector<User>{{"Anna B.", "Anna"}, {"Bert", "bert"}}));
  EXPECT_EQ(program.store.lst_data_dir[0], "Anna");
  // The working copy stays that of the current user.
  EXPECT_EQ(program.profile[ProfileField::name], "Current");
  EXPECT_EQ(ToldOf(list), "");
}

TEST_F(Users, WhoseFoldersTextCannotNameHideNobody) {
  AddUser("Anna", "Anna");
  AddUser(kLukasz, "Lukasz");
  AddUser(kIvan, "Ivan");
  AddUser(kDecomposedZoe, "Zo\xEB");
  AddUser("Zz", "Zz");
  const UserList list = ReadUsers(program);
  EXPECT_EQ(list.users, (std::vector<User>{{"Ivan", kIvan},
                                           {"Lukasz", kLukasz},
                                           {"Anna", "Anna"},
                                           {"Zo\xEB", kDecomposedZoe},
                                           {"Zz", "Zz"}}));
  EXPECT_EQ(ToldOf(list), "");
}

TEST_F(Users, WithoutAReadableProfileAreShownByTheirFoldersAndToldOfOnce) {
  AddUser("Anna", "Anna");
  MakeFolders("Bert");
  fs::create_directories(FolderOf(kLukasz));
  AddUser("Carl", "Carl");
  MakeFolders("Dora");
  fs::create_symlink("nowhere", ProfileFileIn(FolderOf("Dora")));
  const UserList list = ReadUsers(program);
  EXPECT_EQ(Names(list), (std::vector<Text>{"?ukasz", "Anna", "Bert", "Carl", "Dora"}));
  EXPECT_EQ(
      ToldOf(list),
      "An error occured.\n\nNo such file or directory: ?ukasz, Bert, Dora\nBrelux CODE:#F3-2");
  test.boxes.shown.clear();
  TellOfUnreadUsersForDay(program, list);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(
      test.boxes.shown[0].text,
      "An error occured.\n\nNo such file or directory: ?ukasz, Bert, Dora\nBrelux CODE:#F2-0");
}

// Neither the user before it nor the one read last takes its place.
TEST_F(Users, WithAProfileThatHoldsNoRecordAreShownByTheirFolders) {
  AddUser("Anna", "Anna");
  AddUser("Carl", "Carl");
  ChooseUser(program, {"Carl", "Carl"});
  for (const char* folder : {"Aaron", "Bert", "Dora"}) {
    for (const std::string_view bytes :
         {std::string_view(""), std::string_view("\1\0\0", 3), std::string_view("\0\0\0\0", 4),
          std::string_view("\xFF\xFF\xFF\xFF", 4), std::string_view("\1\0\0\0\0\0", 6)}) {
      WriteProfile(folder, bytes);
      const UserList list = ReadUsers(program);
      ASSERT_EQ(list.users.size(), 3u) << folder << bytes.size();
      for (const User& user : list.users) EXPECT_EQ(user.name, user.folder_name);
      EXPECT_EQ(ToldOf(list), "");
    }
    fs::remove_all(FolderOf(folder));
  }
}

TEST_F(Users, AProfileCutInsideItsNameShowsWhatIsThere) {
  // Count, length of the name, and two letters of it.
  WriteProfile("Carl", std::string_view("\1\0\0\0\4\0Ca", 8));
  EXPECT_EQ(Names(ReadUsers(program)), std::vector<Text>{"Ca"});
}

TEST_F(Users, WhatIsNoFolderIsPassedOverAndTheOthersShow) {
  AddUser("Anna", "Anna");
  AddUser("Zoe", "Zoe");
  ASSERT_EQ(mkfifo((program.paths.UsersPath + "pipe").c_str(), 0600), 0);
  fs::create_symlink("nowhere", program.paths.UsersPath + "gone");
  std::ofstream(program.paths.UsersPath + "file.txt") << "no user";
  MakeFolders(".hidden");
  const UserList list = ReadUsers(program);
  EXPECT_EQ(Names(list), (std::vector<Text>{"Anna", "Zoe"}));
  EXPECT_EQ(ToldOf(list),
            "An error occured.\n\nNo such file or directory: gone\nNot a directory: pipe\nBrelux "
            "CODE:#F3-2");
}

TEST_F(Users, AFolderThatCannotBeEnteredIsPassedOver) {
  AddUser("Anna", "Anna");
  AddUser("Bert", "Bert");
  for (fs::path path = FolderOf("Bert") + "Profile/Profile.usr"; path != test.folders.home.Path();
       path = path.parent_path()) {
    fs::permissions(path, fs::perms::all);
  }
  fs::permissions(test.folders.home.Path(), fs::perms::all);
  fs::permissions(FolderOf("Anna"), fs::perms::none);
  const AsNobody nobody;
  const UserList list = ReadUsers(program);
  EXPECT_EQ(Names(list), std::vector<Text>{"Bert"});
  EXPECT_EQ(ToldOf(list), "An error occured.\n\nPermission denied: Anna\nBrelux CODE:#F3-2");
}

TEST_F(Users, ManyThatCannotBeReadAreNamedAsFarAsABoxHasRoom) {
  for (int i = 10; i < 22; ++i) MakeFolders("u" + std::to_string(i));
  const UserList list = ReadUsers(program);
  EXPECT_EQ(list.users.size(), 12u);
  EXPECT_EQ(ToldOf(list),
            "An error occured.\n\nNo such file or directory: u10, u11, u12, u13, u14, u15, u16, "
            "u17, u18, u19, ...\nBrelux CODE:#F3-2");
}

// Choosing.

TEST_F(Users, OfAFolderThatTextCannotNameAreChosenByTheFolder) {
  AddUser(kLukasz, "?ukasz");
  const User user{"?ukasz", kLukasz};
  EXPECT_EQ(SwitchUser(program, user), UserSwitch::switched);
  EXPECT_EQ(program.paths.UserName, "?ukasz");
  EXPECT_EQ(program.paths.FilesPath, FolderOf(kLukasz) + "Files/");
  EXPECT_EQ(program.profile[ProfileField::remark], "remark of ?ukasz");
  EXPECT_EQ(ProfilePaneOf(program).heading, "Profile of ?ukasz:");
  EXPECT_EQ(CustomFile(program.paths, program.paths.UserName),
            FolderOf(kLukasz) + "Databases/Custom.dat");
  EXPECT_EQ(SwitchUser(program, user), UserSwitch::same);
}

TEST_F(Users, WhoLookAlikeStayTwo) {
  AddUser(kLukasz, "?ukasz");
  AddUser("?ukasz", "?ukasz");
  const UserList list = ReadUsers(program);
  ASSERT_EQ(list.users.size(), 2u);
  for (const User& user : list.users) {
    EXPECT_EQ(SwitchUser(program, user), UserSwitch::switched);
    EXPECT_TRUE(IsCurrent(program, user));
    EXPECT_EQ(program.paths.FilesPath, FolderOf(user.folder_name) + "Files/");
  }
  EXPECT_FALSE(IsCurrent(program, list.users[0]));
}

// A day of a user whose folder text can't name: begun, saved, opened again, and nothing of it in
// the folder that has the name with the "?".
TEST_F(Users, OfAFolderThatTextCannotNameKeepTheirDaysInIt) {
  AddUser(kLukasz, "?ukasz");
  AddUser("?ukasz", "?ukasz");
  const std::string other = FolderOf("?ukasz");
  const std::string others_profile = ReadFile(ProfileFileIn(other));
  DayEditing editing = OpenDayEditing(program);
  ChooseUserForDay(program, editing, {"?ukasz", kLukasz});
  const Text name = editing.form.pg_0;
  editing.form = GoodForm();
  editing.form.pg_0 = name;
  ASSERT_TRUE(ConfirmDay(program, editing));
  SaveDay(program);
  EXPECT_FALSE(program.day.FileChanged);
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_TRUE(fs::exists(FolderOf(kLukasz) + "Files/0503200414079.kvf"));
  EXPECT_TRUE(fs::is_empty(other + "Files"));
  EXPECT_EQ(ReadFile(ProfileFileIn(other)), others_profile);
  EXPECT_EQ((*ReadFirstRecord<Rec_Profile>(ProfileFileIn(FolderOf(kLukasz))))[ProfileField::city],
            "Utrecht");
  CloseDay(program);
  const DayList days = ReadDays(program);
  ASSERT_EQ(days.rows.size(), 1u);
  OpenDayOf(program, days.rows[0]);
  SaveDay(program);
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_TRUE(fs::is_empty(other + "Files"));
}

// The name that a new user types is that of a folder, whoever is current and looks like it.
TEST_F(Users, ANewNameIsNeverTheFolderOfWhoOnlyLooksLikeIt) {
  AddUser(kLukasz, "?ukasz");
  DayEditing editing = OpenDayEditing(program);
  ChooseUserForDay(program, editing, {"?ukasz", kLukasz});
  BeginNewUser(program, editing);
  editing.form = GoodForm();
  editing.form.pg_0 = "?ukasz";
  ASSERT_TRUE(ConfirmDay(program, editing));
  EXPECT_EQ(program.paths.FilesPath, FolderOf("?ukasz") + "Files/");
  EXPECT_TRUE(fs::exists(ProfileFileIn(FolderOf("?ukasz"))));
  EXPECT_EQ((*ReadFirstRecord<Rec_Profile>(ProfileFileIn(FolderOf(kLukasz))))[ProfileField::remark],
            "remark of ?ukasz");
}

TEST_F(Users, OfAFolderThatTextCannotNameAreRemovedByTheFolder) {
  AddUser(kLukasz, "?ukasz");
  AddUser("?ukasz", "?ukasz");
  DayEditing editing = OpenDayEditing(program);
  const User user{"?ukasz", kLukasz};
  ChooseUserForDay(program, editing, user);
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_EQ(RemoveUser(program, editing, user), UserRemoval::removed);
  EXPECT_FALSE(fs::exists(FolderOf(kLukasz)));
  EXPECT_TRUE(fs::exists(ProfileFileIn(FolderOf("?ukasz"))));
  EXPECT_EQ(program.paths.UserName, "");
}

TEST_F(Users, ALinkedFolderIsRemovedAsALink) {
  TemporaryFolder elsewhere;
  fs::create_directories(elsewhere.Path("Profile"));
  Rec_Profile profile;
  profile[ProfileField::name] = "Linked";
  WriteRecord(elsewhere.Path("Profile/Profile.usr"), profile);
  fs::create_directory_symlink(elsewhere.Path(), program.paths.UsersPath + "Linked");
  const UserList list = ReadUsers(program);
  ASSERT_EQ(Names(list), std::vector<Text>{"Linked"});
  DayEditing editing = OpenDayEditing(program);
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_EQ(RemoveUser(program, editing, list.users[0]), UserRemoval::removed);
  EXPECT_FALSE(fs::is_symlink(program.paths.UsersPath + "Linked"));
  EXPECT_TRUE(fs::exists(elsewhere.Path("Profile/Profile.usr")));
}

// A profile can hold any name; the folder that it lies in is what counts.
TEST_F(Users, ANameInAProfileLeadsNowhere) {
  fs::create_directories(program.paths.UsersPath + "../outside/Files");
  for (const char* name : {"../outside", "..", ".", "/tmp"}) {
    AddUser("Bert", name);
    const UserList list = ReadUsers(program);
    ASSERT_EQ(Names(list), std::vector<Text>{name});
    SetCurrentUser(program, "Anna");
    EXPECT_EQ(SwitchUser(program, list.users[0]), UserSwitch::switched);
    EXPECT_EQ(program.paths.FilesPath, FolderOf("Bert") + "Files/");
    EXPECT_EQ(CustomFile(program.paths, name), FolderOf("Bert") + "Databases/Custom.dat");
  }
  EXPECT_TRUE(fs::is_empty(program.paths.UsersPath + "../outside/Files"));
}

// A user whose folder has gone.

struct CountingBrowser : BrowserView {
  int users_rebuilt = 0;
  int days_rebuilt = 0;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_GebruikersLijst() override { ++users_rebuilt; }
  void Refresh_Files() override { ++days_rebuilt; }
};

TEST_F(Users, WhoseFolderHasGoneAreNotChosenAndTheListIsRebuilt) {
  AddUser("Anna", "Anna");
  AddUser("Bert", "Bert");
  CountingBrowser browser;
  program.windows.browser = &browser;
  SwitchUser(program, {"Anna", "Anna"});
  browser = {};
  test.OpenDay("Anna");
  fs::remove_all(FolderOf("Bert"));
  EXPECT_EQ(SwitchUser(program, {"Bert", "Bert"}), UserSwitch::refused);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured.\n\nNo such file or directory\nBrelux CODE:#F3-3");
  EXPECT_EQ(browser.users_rebuilt, 1);
  EXPECT_EQ(program.paths.UserName, "Anna");
  EXPECT_TRUE(program.store.DayIsOpen());
  const ProfilePane pane = ProfilePaneOf(program);
  EXPECT_EQ(pane.heading, "Profile of Anna:");
}

TEST_F(Users, WithoutAProfileAreGivenNobodyElsesValues) {
  AddUser("Anna", "Anna");
  program.profile[ProfileField::reference] = "REF";
  ChooseUser(program, {"Anna", "Anna"});
  program.profile[ProfileField::reference] = "REF";
  MakeFolders("Bert");
  EXPECT_EQ(SwitchUser(program, {"Bert", "Bert"}), UserSwitch::switched);
  const ProfilePane pane = ProfilePaneOf(program);
  EXPECT_EQ(pane.heading, "Profile of Bert:");
  EXPECT_EQ(pane.lbl_pr, (std::array<Text, 6>{}));
  EXPECT_EQ(program.profile[ProfileField::remark], "");
}

// The pane goes by whose values the working copy holds, however they came there.
TEST_F(Users, ThePaneNeverShowsAnothersValuesUnderAName) {
  SetCurrentUser(program, "Bert");
  program.profile[ProfileField::name] = "Anna";
  program.profile[ProfileField::reference] = "REF-Anna";
  const ProfilePane pane = ProfilePaneOf(program);
  EXPECT_EQ(pane.heading, "Profile of Bert:");
  EXPECT_EQ(pane.lbl_pr, (std::array<Text, 6>{}));
}

TEST(OnlyUserOfAList, IsTakenWhileNobodyIsChosenAndNoDayIsOpen) {
  TestProgram test;
  UserList list;
  EXPECT_EQ(OnlyUser(test.program, list), std::nullopt);
  list.users = {{"Anna", "Anna"}};
  EXPECT_EQ(OnlyUser(test.program, list), list.users[0]);
  list.users.push_back({"Bert", "Bert"});
  EXPECT_EQ(OnlyUser(test.program, list), std::nullopt);
  list.users.pop_back();
  SetCurrentUser(test.program, "Anna");
  EXPECT_EQ(OnlyUser(test.program, list), std::nullopt);
  SetCurrentUser(test.program, "");
  test.program.store.KV_bestand = "open.kvf";
  EXPECT_EQ(OnlyUser(test.program, list), std::nullopt);
  test.program.store.KV_bestand.clear();
  EXPECT_TRUE(OnlyUser(test.program, list).has_value());
  list.unread.Add("Carl", std::runtime_error("unreadable"));
  EXPECT_EQ(OnlyUser(test.program, list), std::nullopt);
}

}  // namespace
}  // namespace kelvora
