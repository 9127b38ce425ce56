#include "days/day_settings.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "days/good_form.h"
#include "language/built_in_texts.h"
#include "nutrition/totals.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

void WriteProfile(const Program& program, std::string_view folder, const Rec_Profile& profile) {
  MakeUserFolders(program.paths, folder);
  WriteRecord(ProfileFile(program.paths, folder), profile);
}

Rec_Profile ProfileNamed(std::string_view name) {
  Rec_Profile profile;
  profile[ProfileField::name] = name;
  return profile;
}

// A whole confirmation of one form in the mode of the program.
bool Confirm(Program& program, const DayForm& form) {
  DayEditing editing = OpenDayEditing(program);
  editing.form = form;
  return ConfirmDay(program, editing);
}

DayForm FormOfChosen(Program& program, std::string_view name) {
  DayEditing editing = OpenDayEditing(program);
  ChooseUserForDay(program, editing, UserNamed(name));
  return editing.form;
}

// Forms.

TEST(Forms, ANewUserHasAnEmptyPersonTodayAndTheUsualTargets) {
  TestProgram test;
  DayForm expected;
  expected.pg_9_a = "05";
  expected.pg_9_b = "03";
  expected.pg_9_c = "04";
  expected.pg_11 = "Friday";
  expected.type_prioriteit = "1";
  expected.txt_kj = "9000";
  expected.txt_kcal = "2143";
  expected.txt_ovet = "80";
  expected.txt_vvet = "27";
  expected.txt_nat = "1";
  expected.txt_ew = "60";
  expected.txt_kdr = "300";
  EXPECT_EQ(NewUserForm(test.program), expected);
}

TEST(Forms, AUserThatIsChosenFillsEverythingFromTheProfileButTheDate) {
  TestProgram test;
  Program& program = test.program;
  Rec_Profile profile;
  for (std::size_t i = 0; i < kProfileFieldsInUse; ++i) {
    profile.strings[i] = "f" + std::to_string(i);
  }
  profile.strings[0] = "Anna";
  profile.strings[9] = "102.0582";
  profile.strings[14] = "3";
  profile.strings[15] = "8555";  // between two positions of its slider
  for (std::size_t i = 17; i < kProfileFieldsInUse; ++i) profile.strings[i] = std::to_string(i);
  WriteProfile(program, "Anna", profile);
  const Text bread = LineOf({.product = "Bread"});
  WriteRecord(CustomFile(program.paths, "Anna"), Rec_ListLine{{bread + kLineEnd}});

  const DayForm form = FormOfChosen(program, "Anna");

  EXPECT_EQ(program.paths.UserName, "Anna");
  EXPECT_EQ(program.paths.FilesPath, program.paths.UsersPath + "Anna/Files/");
  EXPECT_EQ(program.profile, profile);
  ASSERT_EQ(program.store.Custom_list.Count(), 1u);
  EXPECT_EQ(program.store.Custom_list[0], bread);
  DayForm expected;
  expected.pg_0 = "Anna";
  expected.pg_1 = "f1";
  expected.pg_2 = "f2";
  expected.pg_3 = "f3";
  expected.pg_4 = "f4";
  expected.pg_5 = "f5";
  expected.pg_7 = "f6";
  expected.pg_8 = "f7";
  expected.pg_6 = "f8";
  expected.pg_10 = "102.0582";
  expected.pg_12 = "f10";
  expected.pg_13 = "f11";
  expected.pg_14 = "f12";
  expected.pg_15 = "f13";
  expected.type_prioriteit = "3";
  expected.txt_kj = "8600";    // 85.55 is nearest to 86
  expected.txt_kcal = "2048";  // 8600 / 4.2 = 2047.6
  expected.txt_ovet = "17";
  expected.txt_vvet = "18";
  expected.txt_nat = "19";
  expected.txt_ew = "20";
  expected.txt_kdr = "21";
  expected.txt_lengte_m = "f5";
  expected.txt_gewicht = "f8";
  expected.txt_streefgewicht = "102.05";
  expected.pg_9_a = "05";
  expected.pg_9_b = "03";
  expected.pg_9_c = "04";
  expected.pg_11 = "Friday";
  EXPECT_EQ(form, expected);
}

TEST(Forms, TheInstructionGoesByTheNumberOfUsers) {
  TestProgram test;
  const TextTables& texts = test.program.texts;
  EXPECT_EQ(texts[InstructionFor(DayDialogMode::new_day, 0)],
            "Please fill in all fields if you start as a new user. If you're an existing user you "
            "can select your name from the user list and fill in the required fields.");
  EXPECT_EQ(texts[InstructionFor(DayDialogMode::new_day, 1)],
            "Please enter your weight and a date in the fields below. Press 'Start' to save "
            "changes.");
  EXPECT_EQ(texts[InstructionFor(DayDialogMode::new_day, 2)],
            "Select a username and fill in the empty fields. Press 'Start' to save changes.");
  EXPECT_EQ(InstructionFor(DayDialogMode::new_day, 50), InstructionFor(DayDialogMode::new_day, 2));
  for (const std::size_t users : {0u, 1u, 2u}) {
    EXPECT_EQ(texts[InstructionFor(DayDialogMode::day_settings, users)],
              "Change fields and press 'save' to save the changes. Press 'cancel' to close this "
              "window without saving.");
  }
  EXPECT_EQ(texts[TitleOf(DayDialogMode::new_day)], "Start a new day");
  EXPECT_EQ(texts[TitleOf(DayDialogMode::day_settings)], "Change settings for this day");
}

// Starting the day.

TEST(StartingADay, BringsTheFormIntoTheStoreTheProfileAndTheFolders) {
  TestProgram test;
  Program& program = test.program;
  ASSERT_TRUE(Confirm(program, GoodForm()));

  EXPECT_EQ(program.paths.UserName, "Anna");
  EXPECT_EQ(program.paths.FilesPath, program.paths.UsersPath + "Anna/Files/");
  EXPECT_EQ(program.store.KV_bestand, "0503200414079.kvf");
  for (const char* folder : {"Anna/Profile", "Anna/Files", "Anna/Databases"}) {
    EXPECT_TRUE(std::filesystem::is_directory(program.paths.UsersPath + folder)) << folder;
  }
  const std::array<Text, 15> header = {"Anna", "Street 1", "Second floor", "Utrecht", "3511 AB",
                                       "1.80", "80.5",     "Female",       "42",      "05-03-04",
                                       "75",   "Friday",   "Netherlands",  "REF-7",   "UT"};
  ASSERT_EQ(program.store.L_gegevens.Count(), header.size());
  for (std::size_t i = 0; i < header.size(); ++i) {
    EXPECT_EQ(program.store.L_gegevens[i], header[i]) << i;
  }
  const std::array<Text, 26> strings = {
      "Anna", "Street 1",    "Second floor", "Utrecht", "3511 AB", "1.80", "Female", "42",   "80.5",
      "75",   "Netherlands", "REF-7",        "Runs",    "UT",      "5",    "8000",   "1905", "70",
      "20",   "2",           "55",           "250",     "",        "",     "",       ""};
  EXPECT_EQ(program.profile.strings, strings);
  const auto written =
      ReadFirstRecord<Rec_Profile>(program.paths.UsersPath + "Anna/Profile/Profile.usr");
  ASSERT_TRUE(written.has_value());
  EXPECT_EQ(written->strings, strings);
  EXPECT_EQ(program.store.txt_trenddata, Packed("0|0|0|0|0|0|0|0|80.5|"));
  EXPECT_TRUE(program.day.FileChanged);
  EXPECT_GT(test.core.updates, 0);
  EXPECT_TRUE(test.boxes.shown.empty());
  // The day itself is written by the first save.
  EXPECT_TRUE(std::filesystem::is_empty(program.paths.FilesPath));
}

TEST(StartingADay, KeepsTheDaysOfAUserOfThatName) {
  TestProgram test;
  Program& program = test.program;
  WriteProfile(program, "Anna", ProfileNamed("Somebody"));
  std::ofstream(program.paths.UsersPath + "Anna/Files/old.kvf") << "day";
  ASSERT_TRUE(Confirm(program, GoodForm()));
  EXPECT_TRUE(std::filesystem::exists(program.paths.UsersPath + "Anna/Files/old.kvf"));
  EXPECT_EQ(ReadFirstRecord<Rec_Profile>(ProfileFile(program.paths, "Anna"))->strings[0], "Anna");
}

TEST(StartingADay, LoadsTheListsOfTheUser) {
  TestProgram test;
  Program& program = test.program;
  MakeUserFolders(program.paths, "Anna");
  const Text bread = LineOf({.product = "Bread"});
  const Text apple = LineOf({.product = "Apple"});
  WriteRecord(CustomFile(program.paths, "Anna"), Rec_ListLine{{bread + kLineEnd}});
  WriteRecord(FavoritesFile(program.paths, "Anna"), Rec_ListLine{{apple + kLineEnd}});
  ASSERT_TRUE(Confirm(program, GoodForm()));
  EXPECT_EQ(program.store.Custom_list[0], bread);
  EXPECT_EQ(program.store.Favorites_list[0], apple);
}

struct FailingCore : RecordingCore {
  bool failing = false;
  void UpdateCommands() override {
    if (failing) throw std::runtime_error("out of order");
  }
};

TEST(StartingADay, StopsWhereItFailed) {
  TestProgram test;
  FailingCore core;
  test.program.windows.core = &core;
  core.failing = true;
  DayEditing editing = OpenDayEditing(test.program);
  editing.form = GoodForm();
  EXPECT_FALSE(ConfirmDay(test.program, editing));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text, "An error occured.\n\nout of order\nBrelux CODE:#F2-3");
  EXPECT_TRUE(test.program.store.DayIsOpen());
  // Cancelled then, the day in the making is absent.
  core.failing = false;
  CancelDay(test.program, editing);
  EXPECT_FALSE(test.program.store.DayIsOpen());
  EXPECT_TRUE(test.program.store.L_gegevens.Empty());
  EXPECT_FALSE(test.program.day.FileChanged);
}

TEST(DaySettingsTexts, StandAtTheirPlacesInBothLanguages) {
  TextTables texts;
  Make_Taal_Dutch(texts);
  EXPECT_EQ((texts[{TextTable::taal_day_settings, 82}]), "De leeftijd is niet ingevoerd.");
  EXPECT_EQ((texts[{TextTable::taal_day_settings, 83}]),
            "Voer een leeftijd in tussen de 13 en 99 jaar.");
  EXPECT_EQ((texts[{TextTable::taal_day_settings, 84}]), "De datum is niet correct ingevoerd.");
  for (const TextRow& row : DaySettingsTextRows()) {
    EXPECT_FALSE(row.english.empty());
    EXPECT_FALSE(row.dutch.empty());
  }
}

}  // namespace
}  // namespace kelvora
