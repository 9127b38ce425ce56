// Changing the settings of the open day, and what a moved slider applies at once.
#include <filesystem>
#include <gtest/gtest.h>

#include "days/day_settings.h"
#include "days/good_form.h"
#include "days/targets.h"
#include "storage/folders.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

// Notes every refresh under a letter.
struct NotedConsumption : ConsumptionView {
  explicit NotedConsumption(Text& notes) : notes(notes) {}
  Text& notes;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_Consumpties() override { notes += 'c'; }
  void ShowTotals(const ConsumptionTotals&) override { notes += 't'; }
};
struct NotedSummary : DaySummaryView {
  explicit NotedSummary(Text& notes) : notes(notes) {}
  Text& notes;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Maak_Voedingsbehoefte(const DayTotals&) override { notes += 'v'; }
  void Refresh_Daguittreksel() override { notes += 'd'; }
};
struct NotedMultiDay : MultiDayView {
  explicit NotedMultiDay(Text& notes) : notes(notes) {}
  Text& notes;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_Meerdaagsuittreksel() override { notes += 'm'; }
};
struct NotedBrowser : BrowserView {
  explicit NotedBrowser(Text& notes) : notes(notes) {}
  Text& notes;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_GebruikersLijst() override { notes += 'u'; }
  void Refresh_Files() override { notes += 'f'; }
};

class OpenDaySettings : public testing::Test {
 protected:
  OpenDaySettings() {
    DayEditing begun = OpenDayEditing(program);
    begun.form = GoodForm();
    EXPECT_TRUE(ConfirmDay(program, begun));
    SetFileChanged(program, false);
    program.day.DayDialogMode = DayDialogMode::day_settings;
    program.windows.Consumption(DayPart::afternoon) = &consumption;
    program.windows.day_summary = &summary;
    program.windows.multi_day = &multi_day;
    program.windows.browser = &browser;
  }
  DayEditing Open() {
    DayEditing editing = OpenDayEditing(program);
    EditOpenDay(program, editing);
    return editing;
  }
  Rec_Profile Stored() { return *ReadFirstRecord<Rec_Profile>(ProfileFile(program.paths, "Anna")); }

  TestProgram test;
  Program& program = test.program;
  Text notes;
  NotedConsumption consumption{notes};
  NotedSummary summary{notes};
  NotedMultiDay multi_day{notes};
  NotedBrowser browser{notes};
};

TEST_F(OpenDaySettings, TheFormIsTheProfileWithWhatTheDayKeeps) {
  // The profile has become newer than the day.
  Rec_Profile newer = Stored();
  newer[ProfileField::city] = "Delft";
  newer[ProfileField::weight] = "99";
  newer[ProfileField::age] = "43";
  WriteRecord(ProfileFile(program.paths, "Anna"), newer);
  program.store.L_gegevens.Replace(HeaderRow::kDate, "31-12-99");
  program.store.L_gegevens.Replace(HeaderRow::kWeekday, "Sunday");

  DayForm expected = GoodForm();
  expected.pg_3 = "Delft";
  expected.pg_9_a = "31";
  expected.pg_9_b = "12";
  expected.pg_9_c = "99";
  expected.pg_11 = "Sunday";
  expected.weekday_is_typed = true;  // it was a Friday
  expected.txt_lengte_m = "1.80";
  expected.txt_gewicht = "80.5";
  expected.txt_streefgewicht = "75";
  EXPECT_EQ(Open().form, expected);
  EXPECT_EQ(program.profile, newer);
}

TEST_F(OpenDaySettings, TheWeightOfTheDayShowsInTheUnitOfTheSystem) {
  program.settings[Setting::opt_system] = "2";
  const DayForm form = Open().form;
  EXPECT_EQ(form.pg_6, "80.5");
  EXPECT_EQ(form.txt_gewicht, "177.47");  // times 2.2046225
  EXPECT_EQ(form.txt_streefgewicht, "165.35");
}

TEST_F(OpenDaySettings, SavingChangesTheDayAndTheProfileAndBeginsNothing) {
  const Text file = program.store.KV_bestand;
  test.clock.now.second = 59;
  program.store.Custom_list.Add("own");
  program.store.txt_notities = "diary";
  DayEditing editing = Open();
  editing.form.pg_3 = "Delft";
  editing.form.pg_6 = "79";
  notes.clear();
  test.core.updates = 0;
  ASSERT_TRUE(ConfirmDay(program, editing));
  EXPECT_EQ(program.store.KV_bestand, file);
  EXPECT_EQ(program.store.L_gegevens[HeaderRow::kCity], "Delft");
  EXPECT_EQ(program.store.L_gegevens[HeaderRow::kWeight], "79");
  EXPECT_EQ(program.store.L_gegevens[HeaderRow::kDate], "05-03-04");
  EXPECT_EQ(program.store.L_gegevens.Count(), HeaderRow::kCount);
  EXPECT_EQ(program.store.txt_notities, "diary");
  EXPECT_EQ(program.store.txt_trenddata, Packed("0|0|0|0|0|0|0|0|79|"));
  EXPECT_EQ(program.store.Custom_list.Count(), 1u);
  EXPECT_EQ(Stored()[ProfileField::city], "Delft");
  EXPECT_EQ(Stored()[ProfileField::remark], "Runs");
  EXPECT_TRUE(program.day.FileChanged);
  EXPECT_GT(test.core.updates, 0);
  // Summary, multi-day, consumptions and totals, twice; then the lists of the browser.
  EXPECT_EQ(notes, "dmctvdmctvuf");
  ArrangeAfterConfirming(program, editing);
  EXPECT_TRUE(test.core.opened.empty());
}

TEST_F(OpenDaySettings, AFailedTestChangesNothing) {
  DayEditing editing = Open();
  const Rec_Profile profile = program.profile;
  const Text header = PackBlock(program.store.L_gegevens);
  editing.form.pg_3 = "Delft";
  editing.form.pg_8 = "12";
  notes.clear();
  EXPECT_FALSE(ConfirmDay(program, editing));
  EXPECT_EQ(program.profile, profile);
  EXPECT_EQ(Stored(), profile);
  EXPECT_EQ(PackBlock(program.store.L_gegevens), header);
  EXPECT_EQ(notes, "");
  EXPECT_FALSE(program.day.FileChanged);
}

TEST_F(OpenDaySettings, ABrowserFailsUnderTheCodeOfTheRoutine) {
  struct : NotedBrowser {
    using NotedBrowser::NotedBrowser;
    void Refresh_Files() override { throw std::runtime_error("out of order"); }
  } failing{notes};
  program.windows.browser = &failing;
  DayEditing editing = Open();
  EXPECT_FALSE(ConfirmDay(program, editing));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("out of order\nBrelux CODE:#F2-3"));
  // The open day was there before: cancelling doesn't close it.
  CancelDay(program, editing);
  EXPECT_TRUE(program.store.DayIsOpen());
}

// Nobody is given another's data, whatever lies in the folder of the user.
TEST_F(OpenDaySettings, AProfileOfAnotherNameLeavesThePersonToTheDay) {
  Rec_Profile foreign = Stored();
  foreign[ProfileField::name] = "Bert";
  foreign[ProfileField::city] = "Elsewhere";
  foreign[ProfileField::remark] = "Private";
  WriteRecord(ProfileFile(program.paths, "Anna"), foreign);
  DayEditing editing = Open();
  EXPECT_EQ(editing.form.pg_0, "Anna");
  EXPECT_EQ(editing.form.pg_3, "Utrecht");
  EXPECT_EQ(editing.form.pg_5, "1.80");
  EXPECT_EQ(editing.form.pg_10, "75");
  EXPECT_EQ(editing.form.pg_14, "");
  EXPECT_EQ(editing.form.txt_kj, "9000");
  ASSERT_TRUE(ConfirmDay(program, editing));
  EXPECT_EQ(Stored()[ProfileField::name], "Anna");
  EXPECT_EQ(program.store.L_gegevens[HeaderRow::kName], "Anna");
  EXPECT_FALSE(std::filesystem::exists(program.paths.UsersPath + "Bert"));
}

TEST_F(OpenDaySettings, WithoutAProfileTheWorkingCopyOfThisUserServes) {
  std::filesystem::remove(ProfileFile(program.paths, "Anna"));
  DayEditing editing = Open();
  EXPECT_EQ(editing.form.pg_14, "Runs");
  EXPECT_TRUE(test.boxes.shown.empty());
}

// Applying at once.

TEST_F(OpenDaySettings, AMovedSliderReachesTheWindowsAtOnce) {
  DayEditing editing = Open();
  const Rec_Profile before = program.profile;
  MoveSlider(editing.form, Target::ovet, 71);
  editing.form.type_prioriteit = "2";
  editing.form.pg_3 = "Delft";
  notes.clear();
  ApplyAtOnce(program, editing);
  EXPECT_EQ(notes, "dmctv");
  EXPECT_EQ(program.profile[ProfileField::txt_ovet], "71");
  EXPECT_EQ(program.profile[ProfileField::type_prioriteit], "2");
  // The whole form goes.
  EXPECT_EQ(program.profile[ProfileField::city], "Delft");
  EXPECT_EQ(Stored(), before);
  EXPECT_FALSE(program.day.FileChanged);
}

TEST_F(OpenDaySettings, WithoutItsTickItWaitsForSaving) {
  DayEditing editing = Open();
  SetAppliesAtOnce(program, false);
  MoveSlider(editing.form, Target::ovet, 71);
  notes.clear();
  ApplyAtOnce(program, editing);
  EXPECT_EQ(notes, "");
  EXPECT_EQ(program.profile[ProfileField::txt_ovet], "70");
  ASSERT_TRUE(ConfirmDay(program, editing));
  EXPECT_EQ(Stored()[ProfileField::txt_ovet], "71");
}

TEST_F(OpenDaySettings, TheTickIsASettingSavedAtOnce) {
  EXPECT_TRUE(AppliesAtOnce(program));
  for (const char* value : {"0", "1"}) {
    SetAppliesAtOnce(program, value[0] == '1');
    EXPECT_EQ(AppliesAtOnce(program), value[0] == '1');
    const auto stored = ReadFirstRecord<Rec_Settings>(program.paths.SettingsFile);
    ASSERT_TRUE(stored.has_value());
    EXPECT_EQ((*stored)[Setting::chk_apply], value);
  }
}

TEST_F(OpenDaySettings, CancellingTakesBackWhatWasAppliedAtOnce) {
  DayEditing editing = Open();
  const Rec_Profile before = program.profile;
  const Text trend = program.store.txt_trenddata;
  MoveSlider(editing.form, Target::kdr, 500);
  ApplyAtOnce(program, editing);
  ASSERT_NE(program.profile, before);
  notes.clear();
  CancelDay(program, editing);
  EXPECT_EQ(program.profile, before);
  EXPECT_EQ(program.store.txt_trenddata, trend);
  EXPECT_EQ(notes, "dmctv");
  EXPECT_FALSE(program.day.FileChanged);
  notes.clear();
  CancelDay(program, editing);
  EXPECT_EQ(notes, "");
}

TEST_F(OpenDaySettings, CancellingAfterSavingTakesNothingBack) {
  DayEditing editing = Open();
  MoveSlider(editing.form, Target::kdr, 500);
  ApplyAtOnce(program, editing);
  ASSERT_TRUE(ConfirmDay(program, editing));
  CancelDay(program, editing);
  EXPECT_EQ(program.profile[ProfileField::txt_kdr], "500");
  EXPECT_TRUE(program.store.DayIsOpen());
}

TEST(ApplyingAtOnce, ANewUserThatIsCancelledLeavesNoTrace) {
  TestProgram test;
  Program& program = test.program;
  program.profile[ProfileField::name] = "Bert";
  const Rec_Profile before = program.profile;
  DayEditing editing = OpenDayEditing(program);
  editing.form.pg_0 = "Anna";
  ApplyAtOnce(program, editing);
  EXPECT_EQ(program.profile[ProfileField::name], "Anna");
  CancelDay(program, editing);
  EXPECT_EQ(program.profile, before);
  EXPECT_EQ(program.store.txt_trenddata, "");
  EXPECT_FALSE(program.store.DayIsOpen());
}

TEST(ApplyingAtOnce, FailsUnderItsOwnCodes) {
  TestProgram test;
  struct : MultiDayView {
    void CloseWindow() override {}
    void Set_Taal() override {}
    void Refresh_Meerdaagsuittreksel() override { throw std::runtime_error("out of order"); }
  } failing;
  test.program.windows.multi_day = &failing;
  DayEditing editing = OpenDayEditing(test.program);
  ApplyAtOnce(test.program, editing);
  CancelDay(test.program, editing);
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#F2-5"));
  EXPECT_TRUE(test.boxes.shown[1].text.ends_with("#F2-6"));
}

}  // namespace
}  // namespace kelvora
