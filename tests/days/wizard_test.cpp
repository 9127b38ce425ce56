#include "days/wizard.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

// A wizard that does nothing but note that it was closed.
struct NotedWizard : WizardView {
  explicit NotedWizard(OpenWindows& all) : windows(all) { windows.wizard = this; }
  void CloseWindow() override {
    ++closed;
    windows.wizard = nullptr;
  }
  void Set_Taal() override {}
  void SetShowAtStart(bool) override {}
  OpenWindows& windows;
  int closed = 0;
};

Text SavedTick(const Program& program) {
  const auto saved = ReadFirstRecord<Rec_Settings>(program.paths.SettingsFile);
  return saved ? (*saved)[Setting::chk_wiz] : "nothing saved";
}

TEST(Wizard, EachOptionHasItsTextsAndItsCommand) {
  TestProgram test;
  struct Expected {
    Text caption, explanation, dutch;
    Command command;
  };
  const std::array<Expected, 4> expected = {{
      {"Start a new day", "Start a new day and fill in your consumptions.", "Begin een nieuwe dag",
       Command::mnu_new},
      {"Open a day", "Open an existing day to edit or view.", "Open een dag", Command::mnu_browse},
      {"Settings", "Go to the settings screen of Kelvora FOOD.", "Instellingen",
       Command::mnu_properties},
      {"Manual (Help)", "Start the manual of Kelvora FOOD", "Handleiding (Help)",
       Command::mnu_help_index},
  }};
  TextTables dutch;
  Make_Taal_Dutch(dutch);
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const WizardRow& row = WizardRows()[i];
    EXPECT_EQ(test.program.texts[row.caption], expected[i].caption);
    EXPECT_EQ(test.program.texts[row.explanation], expected[i].explanation);
    EXPECT_EQ(dutch[row.caption], expected[i].dutch);
    EXPECT_EQ(row.command, expected[i].command);
    EXPECT_FALSE(test.program.texts[row.tip].empty());
  }
}

TEST(Wizard, AnOptionIsEnabledWhileItsCommandIs) {
  struct DenyingCore : RecordingCore {
    Command denied = Command::none;
    bool CommandEnabled(Command command) const override { return command != denied; }
  };
  TestProgram test;
  DenyingCore core;
  core.denied = Command::mnu_browse;
  test.program.windows.core = &core;
  EXPECT_TRUE(OptionEnabled(test.program, WizardOption::new_day));
  EXPECT_FALSE(OptionEnabled(test.program, WizardOption::open_day));
  EXPECT_TRUE(OptionEnabled(test.program, WizardOption::settings));
  EXPECT_TRUE(OptionEnabled(test.program, WizardOption::manual));
  test.program.windows.core = nullptr;
  EXPECT_FALSE(OptionEnabled(test.program, WizardOption::new_day));
}

TEST(Wizard, ComesUpAtStartOnlyWithTheSettingOne) {
  TestProgram test;
  EXPECT_TRUE(WizardShownAtStart(test.program));
  for (const char* other : {"0", "", "yes", "11"}) {
    test.program.settings[Setting::chk_wiz] = other;
    EXPECT_FALSE(WizardShownAtStart(test.program)) << other;
  }
}

TEST(Wizard, WithoutAnOptionOkKeepsTheTickAndClosesTheWizard) {
  TestProgram test;
  for (const bool tick : {false, true}) {
    NotedWizard wizard(test.program.windows);
    Confirm(test.program, std::nullopt, tick);
    EXPECT_EQ(wizard.closed, 1);
    EXPECT_EQ(SavedTick(test.program), tick ? "1" : "0");
    EXPECT_EQ(test.program.settings[Setting::chk_wiz], tick ? "1" : "0");
  }
  EXPECT_TRUE(test.core.opened.empty());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(Wizard, AnOptionRunsItsCommandAfterTheSettingsAreSaved) {
  struct LookingCore : RecordingCore {
    Text saved;
    void OpenWindow(WindowId id) override {
      saved = SavedTick(*program);
      RecordingCore::OpenWindow(id);
    }
  };
  TestProgram test;
  LookingCore core;
  core.program = &test.program;
  test.program.windows.core = &core;
  NotedWizard wizard(test.program.windows);
  Confirm(test.program, WizardOption::new_day, false);
  EXPECT_EQ(core.opened, std::vector<WindowId>{WindowId::day_settings});
  EXPECT_EQ(core.saved, "0");
  Confirm(test.program, WizardOption::open_day, true);
  EXPECT_EQ(core.opened, (std::vector<WindowId>{WindowId::day_settings, WindowId::browser}));
  EXPECT_EQ(core.saved, "1");
  // Closing is up to the window that takes over, and none did here.
  EXPECT_EQ(wizard.closed, 0);
}

TEST(Wizard, ADayThatTheUserKeepsIsKept) {
  TestProgram test;
  test.OpenDay("Anna");
  SetFileChanged(test.program, true);
  test.boxes.answers = {BoxAnswer::no};
  NotedWizard wizard(test.program.windows);
  Confirm(test.program, WizardOption::new_day, true);
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.program.store.DayIsOpen());
  EXPECT_TRUE(test.core.opened.empty());
  EXPECT_EQ(wizard.closed, 0);
}

TEST(Wizard, SettingsThatCannotBeSavedShowTheirCodeAndTheOptionRunsAllTheSame) {
  TestProgram test;
  // A folder stands where the file should go.
  std::filesystem::remove(test.program.paths.SettingsFile);
  std::filesystem::create_directories(test.program.paths.SettingsFile + "/in_the_way");
  Confirm(test.program, WizardOption::open_day, false);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF1-0"));
  EXPECT_EQ(test.core.opened, std::vector<WindowId>{WindowId::browser});
}

}  // namespace
}  // namespace kelvora
