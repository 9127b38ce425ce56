#include "days/browser.h"

#include <filesystem>

#include "core/common.h"
#include "days/browser_fixture.h"
#include "storage/day_file.h"
#include "storage/settings_file.h"
#include "support/file_faults.h"

namespace kelvora {
namespace {

// Another user.

TEST_F(Browser, TheCurrentUserChosenAgainChangesNothing) {
  test.OpenDay("Anna");
  EXPECT_EQ(SwitchUser(program, UserNamed("Anna")), UserSwitch::same);
  EXPECT_TRUE(program.store.DayIsOpen());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Browser, WithADayOpenAnotherUserIsAskedForFirst) {
  AddUser("Bert");
  RecordingBrowser window;
  program.windows.browser = &window;
  test.OpenDay("Anna");
  test.boxes.answers = {BoxAnswer::no};
  EXPECT_EQ(SwitchUser(program, UserNamed("Bert")), UserSwitch::refused);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  const Box& box = test.boxes.shown[0];
  EXPECT_EQ(box.title, "Switch to another user.");
  EXPECT_EQ(box.text,
            "You're going to switch to another Kelvora FOOD user.\nThe currently opened file will "
            "be closed and changes will be lost.\n\nDo you want to switch to another Kelvora FOOD "
            "user?");
  EXPECT_EQ(box.icon, BoxIcon::question);
  EXPECT_EQ(box.buttons, BoxButtons::yes_no);
  EXPECT_EQ(program.paths.UserName, "Anna");
  EXPECT_TRUE(program.store.DayIsOpen());
  EXPECT_EQ(window.refreshed, 0);

  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_EQ(SwitchUser(program, UserNamed("Bert")), UserSwitch::switched);
  EXPECT_EQ(program.paths.UserName, "Bert");
  EXPECT_EQ(program.paths.FilesPath, program.paths.UsersPath + "Bert/Files/");
  EXPECT_EQ(program.profile[ProfileField::name], "Bert");
  EXPECT_FALSE(program.store.DayIsOpen());
  EXPECT_TRUE(program.store.L_gegevens.Empty());
  EXPECT_EQ(window.refreshed, 1);
  EXPECT_GT(test.core.updates, 0);
}

TEST_F(Browser, WithoutADayNothingIsAsked) {
  AddUser("Bert");
  EXPECT_EQ(SwitchUser(program, UserNamed("Bert")), UserSwitch::switched);
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(program.paths.UserName, "Bert");
}

// Opening a day.

class OpeningADay : public Browser {
 protected:
  OpeningADay() {
    program.windows.browser = &window;
    AddDay("a.kvf", {.date = "05-03-04", .weight = "81"});
  }
  RecordingBrowser window;
};

TEST_F(OpeningADay, LoadsItClosesTheBrowserAndArrangesTheWindows) {
  const auto rows = ReadDays(program).rows;
  ASSERT_EQ(rows.size(), 1u);
  OpenDayOf(program, rows[0]);
  EXPECT_EQ(program.store.KV_bestand, "a.kvf");
  EXPECT_EQ(program.store.L_gegevens[HeaderRow::kDate], "05-03-04");
  EXPECT_FALSE(program.day.FileChanged);
  EXPECT_GE(window.closed, 1);
  EXPECT_EQ(test.core.opened, (std::vector<WindowId>{WindowId::morning, WindowId::afternoon,
                                                     WindowId::evening, WindowId::lists}));
  // Re-totalled: the trend text of the file was that of other foods.
  EXPECT_EQ(program.store.txt_trenddata, Packed("0|0|0|0|0|0|0|0|81|"));
}

TEST_F(OpeningADay, ARefusalKeepsTheUnsavedDayAndItsMark) {
  const auto rows = ReadDays(program).rows;
  test.OpenDay("Anna", "open.kvf");
  program.day.FileChanged = true;
  test.boxes.answers = {BoxAnswer::no};
  OpenDayOf(program, rows[0]);
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(program.store.KV_bestand, "open.kvf");
  EXPECT_TRUE(program.day.FileChanged);
  EXPECT_EQ(window.closed, 0);
  EXPECT_TRUE(test.core.opened.empty());
}

TEST_F(OpeningADay, AFileThatIsGoneIsToldOfAndTheListRebuilt) {
  const auto rows = ReadDays(program).rows;
  test.OpenDay("Anna", "open.kvf");
  program.day.FileChanged = true;
  std::filesystem::remove(program.paths.FilesPath + "a.kvf");
  OpenDayOf(program, rows[0]);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured.\n\nNo such file or directory\nBrelux CODE:#F3-5");
  EXPECT_EQ(window.refreshed, 1);
  EXPECT_EQ(window.closed, 0);
  EXPECT_EQ(program.store.KV_bestand, "open.kvf");
  EXPECT_TRUE(program.day.FileChanged);
}

TEST_F(OpeningADay, AFileWhoseNameTextCannotHoldIsOpenedAndSavedByItsPath) {
  const std::string odd = program.paths.FilesPath + "\xE6\x97\xA5.kvf";  // one character
  const std::string plain = program.paths.FilesPath + "?.kvf";
  AddDay("\xE6\x97\xA5.kvf", {.date = "01-03-04"});
  AddDay("?.kvf", {.date = "02-03-04"});
  const auto rows = ReadDays(program).rows;
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0].file_name, rows[1].file_name);
  const std::string other = ReadFile(plain);

  OpenDayOf(program, rows[0]);
  EXPECT_EQ(program.store.KV_bestand, "?.kvf");
  EXPECT_EQ(program.store.L_gegevens[HeaderRow::kDate], "01-03-04");
  program.store.txt_notities = "by its path";
  EXPECT_TRUE(SaveDay(program));
  EXPECT_EQ(ReadFile(plain), other);
  EXPECT_EQ((*ReadFirstRecord<Rec_DayFile>(odd))[DayFileField::Notes], "by its path");

  OpenDayOf(program, rows[1]);
  EXPECT_EQ(program.store.L_gegevens[HeaderRow::kDate], "02-03-04");
  program.store.txt_notities = "of the other";
  EXPECT_TRUE(SaveDay(program));
  EXPECT_EQ((*ReadFirstRecord<Rec_DayFile>(odd))[DayFileField::Notes], "by its path");
  EXPECT_EQ((*ReadFirstRecord<Rec_DayFile>(plain))[DayFileField::Notes], "of the other");
  EXPECT_TRUE(test.boxes.shown.empty());
}

// Deleting a day.

class DeletingADay : public OpeningADay {
 protected:
  std::string PathOf(const char* name) { return program.paths.FilesPath + name; }
  DayRow OnlyRow() { return ReadDays(program).rows.at(0); }
};

TEST_F(DeletingADay, AsksWithTheDateAsItIsShown) {
  program.settings[Setting::opt_system] = "1";
  EXPECT_FALSE(DeleteDayOf(program, OnlyRow()));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  const Box& box = test.boxes.shown[0];
  EXPECT_EQ(box.title, "Delete selected file?");
  EXPECT_EQ(box.text,
            "Are you sure that you want to delete the file 03-05-04  ? \n\nPress YES to "
            "delete,\nPress NO to cancel.");
  EXPECT_EQ(box.icon, BoxIcon::question);
  EXPECT_EQ(box.buttons, BoxButtons::yes_no);
  EXPECT_TRUE(FileExists(PathOf("a.kvf")));
  EXPECT_EQ(window.refreshed, 0);
}

TEST_F(DeletingADay, AYesDeletesThatFileOnlyAndRebuildsTheList) {
  AddDay("b.kvf", {.date = "06-03-04"});
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_TRUE(DeleteDayOf(program, ReadDays(program).rows.at(0)));
  EXPECT_FALSE(FileExists(PathOf("a.kvf")));
  EXPECT_TRUE(FileExists(PathOf("b.kvf")));
  EXPECT_EQ(window.refreshed, 1);
}

TEST_F(DeletingADay, TheOpenDayStaysInMemoryAndALaterSaveWritesItAgain) {
  const DayRow row = OnlyRow();
  OpenDayOf(program, row);
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_TRUE(DeleteDayOf(program, row));
  EXPECT_FALSE(FileExists(PathOf("a.kvf")));
  EXPECT_EQ(program.store.KV_bestand, "a.kvf");
  EXPECT_EQ(program.store.L_gegevens[HeaderRow::kDate], "05-03-04");
  SaveDay(program);
  const auto saved = ReadFirstRecord<Rec_DayFile>(PathOf("a.kvf"));
  ASSERT_TRUE(saved.has_value());
  EXPECT_EQ((*saved)[DayFileField::Header], PackBlock(program.store.L_gegevens));
}

TEST_F(DeletingADay, AWriteProtectedFileStaysWithTheCode) {
  const DayRow row = OnlyRow();
  std::filesystem::permissions(PathOf("a.kvf"), std::filesystem::perms::owner_read);
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_FALSE(DeleteDayOf(program, row));
  EXPECT_TRUE(FileExists(PathOf("a.kvf")));
  EXPECT_EQ(test.boxes.shown.back().text,
            "An error occured.\n\nPermission denied\nBrelux CODE:#F3-6");
  EXPECT_EQ(window.refreshed, 0);
}

TEST_F(DeletingADay, ADiskThatRefusesIsReported) {
  const DayRow row = OnlyRow();
  test.boxes.answers = {BoxAnswer::yes};
  const InjectedFault fault({.delete_fails = true});
  EXPECT_FALSE(DeleteDayOf(program, row));
  EXPECT_TRUE(LastBoxEndsWith("Brelux CODE:#F3-6"));
}

TEST_F(DeletingADay, AFileThatIsGoneAlreadyLeavesTheListToo) {
  const DayRow row = OnlyRow();
  std::filesystem::remove(PathOf("a.kvf"));
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_TRUE(DeleteDayOf(program, row));
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(window.refreshed, 1);
}

TEST_F(DeletingADay, OfTwoFilesThatLookAlikeTheChosenOneGoes) {
  std::filesystem::remove(PathOf("a.kvf"));
  AddDay("\xE6\x97\xA5.kvf", {.date = "01-03-04"});
  AddDay("?.kvf", {.date = "02-03-04"});
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_TRUE(DeleteDayOf(program, ReadDays(program).rows.at(0)));
  EXPECT_FALSE(FileExists(PathOf("\xE6\x97\xA5.kvf")));
  EXPECT_TRUE(FileExists(PathOf("?.kvf")));
}

TEST_F(DeletingADay, ALinkGoesAndWhatItLeadsToStays) {
  const std::string outside = test.folders.home.Path("outside.kvf");
  std::filesystem::rename(PathOf("a.kvf"), outside);
  std::filesystem::create_symlink(outside, PathOf("a.kvf"));
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_TRUE(DeleteDayOf(program, OnlyRow()));
  EXPECT_FALSE(std::filesystem::is_symlink(PathOf("a.kvf")));
  EXPECT_TRUE(FileExists(outside));
}

// The profile pane.

TEST_F(Browser, TheProfilePaneShowsTheUserInTheUnitsOfTheSettings) {
  Rec_Profile& profile = program.profile;
  profile[ProfileField::reference] = "REF-7";
  profile[ProfileField::weight] = "70";
  profile[ProfileField::goal_weight] = "80,5";
  profile[ProfileField::height] = "1.80";
  profile[ProfileField::gender] = "Female";
  profile[ProfileField::age] = "42";
  profile[ProfileField::name] = "Anna";
  using Labels = std::array<Text, 6>;
  ProfilePane pane = ProfilePaneOf(program);
  EXPECT_EQ(pane.heading, "Profile of Anna:");
  EXPECT_EQ(pane.lbl_pr, (Labels{"REF-7", "70.00 Kg ", "80.50 Kg ", "1.80 Meter", "Female", "42"}));
  program.settings[Setting::opt_system] = "1";
  EXPECT_EQ(ProfilePaneOf(program).lbl_pr,
            (Labels{"REF-7", "154.32 Lbs", "177.47 Lbs", "5'11''", "Female", "42"}));
  program.settings[Setting::opt_system] = "2";
  EXPECT_EQ(ProfilePaneOf(program).lbl_pr,
            (Labels{"REF-7", "11.0 Stones", "12.7 Stones", "5'11''", "Female", "42"}));
  EXPECT_EQ(profile[ProfileField::goal_weight], "80,5");
}

TEST_F(Browser, TheProfilePaneIsEmptyWithoutAUserAndWithoutValues) {
  EXPECT_EQ(ProfilePaneOf(program).lbl_pr, (std::array<Text, 6>{}));
  program.paths.UserName.clear();
  EXPECT_EQ(ProfilePaneOf(program).heading, "");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Browser, TickingTheProfilePaneIsSavedAtOnce) {
  EXPECT_TRUE(ProfilePaneShown(program));
  SetProfilePaneShown(program, false);
  EXPECT_FALSE(ProfilePaneShown(program));
  const auto saved = ReadFirstRecord<Rec_Settings>(program.paths.SettingsFile);
  ASSERT_TRUE(saved.has_value());
  EXPECT_EQ((*saved)[Setting::chk_profiel], "0");
}

}  // namespace
}  // namespace kelvora
