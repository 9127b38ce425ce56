// Confirming the day dialog when the profile can't be written: the box, and everything as it was.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "days/browser.h"
#include "days/day_settings.h"
#include "days/good_form.h"
#include "days/open_day.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"
#include "support/file_faults.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

// What a failed confirmation must not change.
struct State {
  Text user;
  std::string folder, files;
  Rec_Profile profile;
  std::vector<Text> header, own, favourites;
  Text trend, file;
  bool changed = false;
  bool operator==(const State&) const = default;
};

std::vector<Text> LinesOf(const TextList& list) {
  return {list.begin(), list.end()};
}

State StateOf(const Program& program) {
  const KV_data& store = program.store;
  return {program.paths.UserName,
          program.paths.UserFolderName,
          program.paths.FilesPath,
          program.profile,
          LinesOf(store.L_gegevens),
          LinesOf(store.Custom_list),
          LinesOf(store.Favorites_list),
          store.txt_trenddata,
          store.KV_bestand,
          program.day.FileChanged};
}

// A folder in the place of the profile stops everybody, whoever runs the test.
void BlockProfile(const Program& program, std::string_view name) {
  const std::string file = ProfileFile(program.paths, name);
  std::error_code ignored;
  fs::remove(file, ignored);
  fs::create_directories(file + "/in the way");
}

class ProfileThatCannotBeWritten : public testing::Test {
 protected:
  // The dialog's part in it.
  bool Confirm(DayEditing& editing) {
    test.boxes.shown.clear();
    const bool confirmed = ConfirmDay(program, editing);
    EXPECT_EQ(test.boxes.shown.size(), 1u);
    if (!test.boxes.shown.empty()) {
      EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF1-7"));
    }
    return confirmed;
  }
  void BeginDayOfAnna() {
    DayEditing begun = OpenDayEditing(program);
    begun.form = GoodForm();
    ASSERT_TRUE(ConfirmDay(program, begun));
    SaveDay(program);
    ASSERT_FALSE(program.day.FileChanged);
  }

  TestProgram test;
  Program& program = test.program;
};

TEST_F(ProfileThatCannotBeWritten, LeavesTheOpenDayAsItWas) {
  BeginDayOfAnna();
  program.day.DayDialogMode = DayDialogMode::day_settings;
  DayEditing editing = OpenDayEditing(program);
  EditOpenDay(program, editing);
  const State before = StateOf(program);
  BlockProfile(program, "Anna");
  editing.form.pg_3 = "Delft";
  editing.form.pg_6 = "79";
  EXPECT_FALSE(Confirm(editing));
  EXPECT_EQ(StateOf(program), before);
  EXPECT_FALSE(editing.confirmed);
  // What was typed is still there for another try.
  EXPECT_EQ(editing.form.pg_3, "Delft");
  fs::remove_all(ProfileFile(program.paths, "Anna"));
  test.boxes.shown.clear();
  EXPECT_TRUE(ConfirmDay(program, editing));
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(program.store.L_gegevens[HeaderRow::kWeight], "79");
  SaveDay(program);
  EXPECT_FALSE(program.day.FileChanged);
}

TEST_F(ProfileThatCannotBeWritten, LeavesUnsavedWorkMarkedAndInMemory) {
  BeginDayOfAnna();
  program.store.L_ochtend.Add(LineOf({.product = "Bread"}));
  SetFileChanged(program, true);
  program.day.DayDialogMode = DayDialogMode::day_settings;
  DayEditing editing = OpenDayEditing(program);
  EditOpenDay(program, editing);
  BlockProfile(program, "Anna");
  EXPECT_FALSE(Confirm(editing));
  EXPECT_TRUE(program.day.FileChanged);
  EXPECT_EQ(program.store.L_ochtend.Count(), 1u);
}

TEST_F(ProfileThatCannotBeWritten, CancellingAfterwardsTakesBackWhatWasAppliedAtOnceToo) {
  BeginDayOfAnna();
  program.day.DayDialogMode = DayDialogMode::day_settings;
  DayEditing editing = OpenDayEditing(program);
  EditOpenDay(program, editing);
  const State before = StateOf(program);
  BlockProfile(program, "Anna");
  editing.form.txt_kj = "9900";
  ApplyAtOnce(program, editing);
  EXPECT_FALSE(Confirm(editing));
  EXPECT_EQ(program.profile[ProfileField::txt_kj], "9900");  // as before the confirmation
  CancelDay(program, editing);
  EXPECT_EQ(StateOf(program), before);
  EXPECT_TRUE(program.store.DayIsOpen());
}

TEST_F(ProfileThatCannotBeWritten, BeginsNoDayForANewUserAndLeavesNoFolder) {
  fs::create_directories(program.paths.UsersPath);
  const State before = StateOf(program);
  DayEditing editing = OpenDayEditing(program);
  editing.form = GoodForm();
  {
    const InjectedFault full({.disk_full_after = 0});
    EXPECT_FALSE(Confirm(editing));
  }
  EXPECT_EQ(StateOf(program), before);
  EXPECT_TRUE(fs::is_empty(program.paths.UsersPath));
  CancelDay(program, editing);
  EXPECT_EQ(StateOf(program), before);
  EXPECT_TRUE(ConfirmDay(program, editing));
  EXPECT_TRUE(program.store.DayIsOpen());
}

TEST_F(ProfileThatCannotBeWritten, GivesTheUserBeforeBackWithTheFoods) {
  MakeUserFolders(program.paths, "Bert");
  Rec_Profile bert;
  bert[ProfileField::name] = "Bert";
  WriteRecord(ProfileFile(program.paths, "Bert"), bert);
  WriteRecord(CustomFile(program.paths, "Bert"),
              Rec_ListLine{{LineOf({.product = "Bread"}) + kLineEnd}});
  WriteRecord(FavoritesFile(program.paths, "Bert"),
              Rec_ListLine{{LineOf({.product = "Apple"}) + kLineEnd}});
  ChooseUser(program, {"Bert", "Bert"});
  ASSERT_EQ(program.store.Custom_list.Count(), 1u);
  ASSERT_EQ(program.store.Favorites_list.Count(), 1u);
  const State before = StateOf(program);
  DayEditing editing = OpenDayEditing(program);
  editing.form = GoodForm();
  // Nothing of what lies in a folder that was there before goes with it.
  fs::create_directories(program.paths.UsersPath + "Anna/Files");
  std::ofstream(program.paths.UsersPath + "Anna/Files/old.kvf") << "day";
  BlockProfile(program, "Anna");
  EXPECT_FALSE(Confirm(editing));
  EXPECT_EQ(StateOf(program), before);
  EXPECT_TRUE(fs::exists(program.paths.UsersPath + "Anna/Files/old.kvf"));
}

// Foods that no file holds yet.

class FoodsThatCouldNotBeSaved : public testing::Test {
 protected:
  FoodsThatCouldNotBeSaved() {
    for (const char* name : {"Anna", "Bert"}) {
      MakeUserFolders(program.paths, name);
      Rec_Profile profile;
      profile[ProfileField::name] = name;
      WriteRecord(ProfileFile(program.paths, name), profile);
    }
    ChooseUser(program, anna);
    program.store.Custom_list.Add(LineOf({.product = "Bread"}));
    const InjectedFault full({.disk_full_after = 0});
    EXPECT_FALSE(Save_Custom(program, CustomFile(program.paths, "Anna")));
    test.boxes.shown.clear();
  }
  TestProgram test;
  Program& program = test.program;
  const User anna = UserNamed("Anna");
  const User bert = UserNamed("Bert");
};

TEST_F(FoodsThatCouldNotBeSaved, AreAskedAboutBeforeAnotherUserIsChosen) {
  DayEditing editing = OpenDayEditing(program);
  EXPECT_FALSE(ChooseUserForDay(program, editing, bert));
  EXPECT_EQ(SwitchUser(program, bert), UserSwitch::refused);
  editing.form = GoodForm();
  editing.form.pg_0 = "Carl";
  EXPECT_FALSE(ConfirmDay(program, editing));
  ASSERT_EQ(test.boxes.shown.size(), 3u);
  for (const Box& box : test.boxes.shown) EXPECT_EQ(box.buttons, BoxButtons::yes_no);
  EXPECT_EQ(program.paths.UserName, "Anna");
  EXPECT_EQ(program.store.Custom_list.Count(), 1u);
  EXPECT_FALSE(fs::exists(program.paths.UsersPath + "Carl"));
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_EQ(SwitchUser(program, bert), UserSwitch::switched);
  EXPECT_TRUE(program.store.Custom_list.Empty());
}

TEST_F(FoodsThatCouldNotBeSaved, StayWhileTheirUserIsChosenAgainAndBeginsADay) {
  DayEditing editing = OpenDayEditing(program);
  EXPECT_TRUE(ChooseUserForDay(program, editing, anna));
  editing.form = GoodForm();
  ASSERT_TRUE(ConfirmDay(program, editing));
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(program.store.Custom_list.Count(), 1u);
  EXPECT_TRUE(SaveDay(program));
  EXPECT_TRUE(fs::exists(CustomFile(program.paths, "Anna")));
}

struct NotingCore : RecordingCore {
  int status_bars = 0;
  void UpdateStatusBar() override { ++status_bars; }
};
struct NotingSummary : DaySummaryView {
  Program& program;
  Text shown_target;
  explicit NotingSummary(Program& shown) : program(shown) {}
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Maak_Voedingsbehoefte(const DayTotals&) override {}
  void Refresh_Daguittreksel() override { shown_target = program.profile[ProfileField::txt_kj]; }
};

TEST_F(ProfileThatCannotBeWritten, LetsTheWindowsShowWhatIsThere) {
  BeginDayOfAnna();
  NotingCore core;
  core.program = &program;
  program.windows.core = &core;
  NotingSummary summary(program);
  program.windows.day_summary = &summary;
  program.day.DayDialogMode = DayDialogMode::day_settings;
  DayEditing editing = OpenDayEditing(program);
  EditOpenDay(program, editing);
  BlockProfile(program, "Anna");
  editing.form.txt_kj = "9900";
  core.status_bars = 0;
  EXPECT_FALSE(Confirm(editing));
  EXPECT_EQ(summary.shown_target, "8000");
  EXPECT_GT(core.status_bars, 0);
  program.windows.day_summary = nullptr;
}

}  // namespace
}  // namespace kelvora
