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

TEST(Forms, ALongWeekdayIsCutAtNineCharacters) {
  TestProgram test;
  test.locale.weekday = "Donnerstag";
  EXPECT_EQ(NewUserForm(test.program).pg_11, "Donnersta");
}

TEST(Forms, AUserThatIsChosenFillsEverythingFromTheProfileButTheDate) {
  TestProgram test;
  Program& program = test.program;
  Rec_Profile profile;
  for (std::size_t i = 0; i < kProfileFieldsInUse; ++i) {
    profile.strings[i] = "f" + std::to_string(i);
  }
  profile.strings[0] = "Anna";
  WriteProfile(program, "Anna", profile);
  const Text bread = LineOf({.product = "Bread"});
  WriteRecord(CustomFile(program.paths, "Anna"), Rec_ListLine{{bread + kLineEnd}});

  const DayForm form = ChooseUserForDay(program, "Anna");

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
  expected.pg_10 = "f9";
  expected.pg_12 = "f10";
  expected.pg_13 = "f11";
  expected.pg_14 = "f12";
  expected.pg_15 = "f13";
  expected.type_prioriteit = "f14";
  expected.txt_kj = "f15";
  expected.txt_kcal = "f16";
  expected.txt_ovet = "f17";
  expected.txt_vvet = "f18";
  expected.txt_nat = "f19";
  expected.txt_ew = "f20";
  expected.txt_kdr = "f21";
  expected.pg_9_a = "05";
  expected.pg_9_b = "03";
  expected.pg_9_c = "04";
  expected.pg_11 = "Friday";
  EXPECT_EQ(form, expected);
}

TEST(Forms, TheUserListShowsTheNamesInTheProfilesAndLeavesTheCurrentUserAlone) {
  TestProgram test;
  test.program.profile[ProfileField::name] = "Current";
  WriteProfile(test.program, "bert", ProfileNamed("Bert"));
  WriteProfile(test.program, "Anna", ProfileNamed("Anna B."));
  const TextList names = UsersForNewDay(test.program);
  ASSERT_EQ(names.Count(), 2u);
  EXPECT_EQ(names[0], "Anna B.");
  EXPECT_EQ(names[1], "Bert");
  EXPECT_EQ(test.program.store.lst_data_dir[0], "Anna");
  EXPECT_EQ(test.program.profile[ProfileField::name], "Current");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(Forms, AFolderWithoutAProfileEndsTheUserListWithItsCode) {
  TestProgram test;
  WriteProfile(test.program, "Anna", ProfileNamed("Anna"));
  std::filesystem::create_directories(test.program.paths.UsersPath + "Bert");
  WriteProfile(test.program, "Carl", ProfileNamed("Carl"));
  const TextList names = UsersForNewDay(test.program);
  ASSERT_EQ(names.Count(), 1u);
  EXPECT_EQ(names[0], "Anna");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured.\n\nNo such file or directory\nBrelux CODE:#F2-0");
}

TEST(Forms, TheInstructionGoesByTheNumberOfUsers) {
  TestProgram test;
  const TextTables& texts = test.program.texts;
  EXPECT_EQ(texts[InstructionFor(0)],
            "Please fill in all fields if you start as a new user. If you're an existing user you "
            "can select your name from the user list and fill in the required fields.");
  EXPECT_EQ(texts[InstructionFor(1)],
            "Please enter your weight and a date in the fields below. Press 'Start' to save "
            "changes.");
  EXPECT_EQ(texts[InstructionFor(2)],
            "Select a username and fill in the empty fields. Press 'Start' to save changes.");
  EXPECT_EQ(InstructionFor(50), InstructionFor(2));
}

// Hints.

TEST(Hints, ShowTheOtherUnits) {
  TestProgram test;
  DayForm form = GoodForm();
  form.pg_6 = "70";
  form.pg_10 = "75,5";  // 166.44900 pounds
  const DayHints hints = DrawCoversionsText(test.program, form);
  EXPECT_EQ(hints.lbl_lengteinfo, "(1.80 Meter = 5'11'')");
  EXPECT_EQ(hints.lbl_gewichtinfo, "(70.00 KG  = 154.32 Lbs)");
  EXPECT_EQ(hints.lbl_streefgewichtinfo, "(75.50 KG  = 166.45 Lbs)");
  EXPECT_EQ(hints.lbl_datuminfo, "05-03-04");
  EXPECT_EQ(form.pg_10, "75,5");
}

TEST(Hints, InchesRoundUpWithoutACarryAndNumbersTakeTheSeparator) {
  TestProgram test;
  test.locale.separator = ",";
  DayForm form = GoodForm();
  form.pg_5 = "1,82";  // 5.97113 feet: 11.65 inches
  form.pg_6 = "70.25";
  const DayHints hints = DrawCoversionsText(test.program, form);
  EXPECT_EQ(hints.lbl_lengteinfo, "(1,82 Meter = 5'12'')");
  EXPECT_EQ(hints.lbl_gewichtinfo, "(70,25 KG  = 154,87 Lbs)");
}

TEST(Hints, AreEmptyWhileTheirFieldsAre) {
  TestProgram test;
  const DayHints hints = DrawCoversionsText(test.program, DayForm{});
  EXPECT_EQ(hints.lbl_lengteinfo, "");
  EXPECT_EQ(hints.lbl_gewichtinfo, "");
  EXPECT_EQ(hints.lbl_streefgewichtinfo, "");
  EXPECT_EQ(hints.lbl_datuminfo, "");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(Hints, TheDateWaitsForAllSixDigitsAndFollowsTheUnitSystem) {
  TestProgram test;
  DayForm form = GoodForm();
  for (const auto part : {&DayForm::pg_9_a, &DayForm::pg_9_b, &DayForm::pg_9_c}) {
    DayForm incomplete = form;
    incomplete.*part = "1";
    EXPECT_EQ(DateHint(test.program, incomplete), "");
  }
  test.program.settings[Setting::opt_system] = "1";
  EXPECT_EQ(DateHint(test.program, form), "03-05-04");
  test.program.settings[Setting::opt_system] = "2";
  EXPECT_EQ(DateHint(test.program, form), "05-03-04");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(Hints, AWeightBeyondAllMeasureIsAFailureOfTheConversion) {
  TestProgram test;
  DayForm form;
  form.pg_6 = "1" + Text(39, '0');  // larger than any single
  EXPECT_EQ(DrawCoversionsText(test.program, form).lbl_streefgewichtinfo, "");
  ASSERT_FALSE(test.boxes.shown.empty());
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF11-1"));
}

TEST(FeetAndInches, WorkedFigures) {
  TestProgram test;
  const auto convert = [&](Text metres, HeightPart part) {
    return Meter_To_Feet_Inch(metres, part, UnitsOf(test.program));
  };
  EXPECT_EQ(convert("1.80", HeightPart::feet), "5");
  EXPECT_EQ(convert("1.80", HeightPart::inches), "11");
  EXPECT_EQ(convert("", HeightPart::feet), "");
  EXPECT_EQ(convert("0.3", HeightPart::feet), "0");
  EXPECT_EQ(convert("1.85", HeightPart::inches), "1");  // 6.06955 feet: 0.83 inches
  EXPECT_EQ(convert("0.31", HeightPart::inches), "");   // 1.01706 feet: 0.2 inches
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(FeetAndInches, AHeightOfZeroIsAFailureOfItsOwn) {
  TestProgram test;
  Text metres = "0,0";
  EXPECT_EQ(Meter_To_Feet_Inch(metres, HeightPart::feet, UnitsOf(test.program)), "");
  EXPECT_EQ(metres, "0.0");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF11-5"));
}

// Starting the day.

TEST(StartingADay, BringsTheFormIntoTheStoreTheProfileAndTheFolders) {
  TestProgram test;
  Program& program = test.program;
  ASSERT_TRUE(StartDay(program, GoodForm()));

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
  ASSERT_TRUE(StartDay(program, GoodForm()));
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
  ASSERT_TRUE(StartDay(program, GoodForm()));
  EXPECT_EQ(program.store.Custom_list[0], bread);
  EXPECT_EQ(program.store.Favorites_list[0], apple);
}

TEST(StartingADay, AProfileThatCannotBeWrittenIsToldAndTheDayGoesOn) {
  TestProgram test;
  Program& program = test.program;
  std::filesystem::create_directories(ProfileFile(program.paths, "Anna") + "/in the way");
  EXPECT_TRUE(StartDay(program, GoodForm()));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF1-7"));
  EXPECT_TRUE(program.store.DayIsOpen());
  EXPECT_TRUE(program.day.FileChanged);
}

struct FailingCore : RecordingCore {
  void UpdateCommands() override { throw std::runtime_error("out of order"); }
};

TEST(StartingADay, StopsWhereItFailed) {
  TestProgram test;
  FailingCore core;
  test.program.windows.core = &core;
  EXPECT_FALSE(StartDay(test.program, GoodForm()));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text, "An error occured.\n\nout of order\nBrelux CODE:#F2-3");
  EXPECT_TRUE(test.program.store.DayIsOpen());
}

struct CountingConsumption : ConsumptionView {
  int refreshes = 0;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_Consumpties() override { ++refreshes; }
  void ShowTotals(const ConsumptionTotals&) override {}
};

TEST(ApplyingAProfile, RefreshesTheOpenConsumptionWindows) {
  TestProgram test;
  CountingConsumption afternoon;
  test.program.windows.Consumption(DayPart::afternoon) = &afternoon;
  Apply_To_Profile(test.program, GoodForm());
  EXPECT_EQ(afternoon.refreshes, 1);
  EXPECT_EQ(test.program.profile[ProfileField::goal_weight], "75");
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
