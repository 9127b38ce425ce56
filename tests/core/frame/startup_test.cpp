#include "core/frame/startup.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "language/main_texts.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

// Notes what comes up in which order, and how often the program had started by its settings then.
struct OrderedCore : RecordingCore {
  explicit OrderedCore(const Program& all) : program(all) {}
  void ShowSplash() override { Note("splash"); }
  void ShowMainWindow() override { Note("main window"); }
  void OpenSettings() override { Note("settings"); }
  void BringToFront() override { Note("to front"); }
  void OpenWindow(WindowId id) override { Note(id == WindowId::wizard ? "wizard" : "other"); }
  void Note(const char* what) {
    shown.emplace_back(what);
    starts.push_back(program.settings[Setting::StartCount]);
  }
  const Program& program;
  std::vector<std::string> shown;
  std::vector<Text> starts;
};

TEST(StartUp, TheSplashComesFirstAndTheWizardLastButTheCount) {
  TestProgram machine(Machine::bare);
  OrderedCore core(machine.program);
  machine.program.windows.core = &core;
  StartUp(machine.program);
  // A first start shows the main window once more for its settings.
  EXPECT_EQ(core.shown, (std::vector<std::string>{"splash", "main window", "main window",
                                                  "settings", "to front", "wizard"}));
  EXPECT_EQ(core.starts.back(), "0");
  EXPECT_EQ(machine.program.settings[Setting::StartCount], "1");
}

TEST(StartUp, TheWizardStaysAwayUnlessItsSettingIsOne) {
  for (const auto& [setting, comes] :
       {std::pair{"1", true}, std::pair{"0", false}, std::pair{"yes", false}}) {
    TestProgram machine(Machine::bare);
    std::filesystem::create_directories(machine.folders.ApplicationData() + "/Brelux");
    Rec_Settings settings;
    settings[Setting::chk_wiz] = setting;
    WriteRecord(machine.folders.ApplicationData() + "/Brelux/kvfset.dat", settings);
    StartUp(machine.program);
    EXPECT_EQ(machine.core.opened == std::vector<WindowId>{WindowId::wizard}, comes) << setting;
    EXPECT_EQ(machine.core.opened.empty(), !comes) << setting;
    EXPECT_EQ(machine.core.splashes, 1);
  }
}

TEST(StartUp, AFirstStartMakesFoldersLanguagesAndSettings) {
  TestProgram machine(Machine::bare);
  StartUp(machine.program);
  ASSERT_EQ(machine.boxes.shown.size(), 1u);
  EXPECT_TRUE(machine.boxes.shown[0].text.starts_with("The file 'kvfset.dat' has not been found"));
  EXPECT_EQ(machine.core.settings_opened, 1);
  for (const char* name : {"My Users", "My Reports", "My Language"}) {
    EXPECT_TRUE(
        std::filesystem::is_directory(machine.folders.Documents() + "/Kelvora FOOD/" + name))
        << name;
  }
  for (const char* name : {"English.lsf", "Nederlands.lsf", "default.lsf"}) {
    EXPECT_TRUE(std::filesystem::exists(machine.program.paths.LanguagePath + name)) << name;
  }
  EXPECT_EQ(machine.program.texts[main_text::kFile], "File");
  EXPECT_FALSE(machine.program.store.DayIsOpen());
  EXPECT_TRUE(machine.program.paths.UserName.empty());

  const auto saved =
      ReadFirstRecord<Rec_Settings>(machine.folders.ApplicationData() + "/Brelux/kvfset.dat");
  ASSERT_TRUE(saved.has_value());
  EXPECT_EQ((*saved)[Setting::StartCount], "1");
  EXPECT_EQ((*saved)[Setting::Combo_taal], "default.lsf");
  EXPECT_EQ((*saved)[Setting::chk_help], "1");
  EXPECT_EQ((*saved)[Setting::reserved_11], "1");
  EXPECT_EQ((*saved)[Setting::reserved_3], "");
}

TEST(StartUp, EachStartCountsAndTheChosenLanguageIsLoaded) {
  TestProgram machine(Machine::bare);
  StartUp(machine.program);
  Rec_Settings settings = *ReadFirstRecord<Rec_Settings>(machine.program.paths.SettingsFile);
  settings[Setting::Combo_taal] = "Nederlands.lsf";
  WriteRecord(machine.program.paths.SettingsFile, settings);
  StartUp(machine.program);
  EXPECT_EQ(machine.program.settings[Setting::StartCount], "2");
  EXPECT_EQ(machine.program.texts[main_text::kFile], "Bestand");
}

TEST(StartUp, ALanguageThatIsGoneFallsBackWithoutAWord) {
  TestProgram machine(Machine::bare);
  StartUp(machine.program);
  Rec_Settings settings = *ReadFirstRecord<Rec_Settings>(machine.program.paths.SettingsFile);
  settings[Setting::Combo_taal] = "Gone.lsf";
  WriteRecord(machine.program.paths.SettingsFile, settings);
  machine.boxes.shown.clear();
  StartUp(machine.program);
  EXPECT_EQ(machine.program.settings[Setting::Combo_taal], "default.lsf");
  EXPECT_TRUE(machine.boxes.shown.empty());
}

TEST(StartUp, TheAlternativeUsersFolderTakesOverAsItIsStored) {
  TestProgram machine(Machine::bare);
  std::filesystem::create_directories(machine.folders.ApplicationData() + "/Brelux");
  Rec_Settings settings;
  settings[Setting::chk_map] = "1";
  settings[Setting::txt_map] = "/elsewhere/data/";
  WriteRecord(machine.folders.ApplicationData() + "/Brelux/kvfset.dat", settings);
  StartUp(machine.program);
  EXPECT_EQ(machine.program.paths.UsersPath, "/elsewhere/data/");
}

TEST(StartUp, MessagesComeInTheChosenLanguage) {
  TestProgram machine(Machine::bare);
  std::filesystem::create_directories(machine.folders.ApplicationData() + "/Brelux");
  Rec_Settings settings;
  settings[Setting::Combo_taal] = "English.lsf";
  WriteRecord(machine.folders.ApplicationData() + "/Brelux/kvfset.dat", settings);
  machine.screen.size = {800, 600};
  StartUp(machine.program);
  ASSERT_EQ(machine.boxes.shown.size(), 1u);
  EXPECT_TRUE(machine.boxes.shown[0].text.starts_with("Your screen resolution"));
}

}  // namespace
}  // namespace kelvora
