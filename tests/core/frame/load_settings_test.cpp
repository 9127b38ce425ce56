#include "core/frame/load_settings.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "language/built_in_texts.h"
#include "language/language_file.h"
#include "language/main_texts.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

class LoadSettings : public testing::Test {
 protected:
  LoadSettings() { DetermineFolders(test.program); }

  [[nodiscard]] const std::string& Path() const { return test.program.paths.SettingsFile; }
  [[nodiscard]] bool WasFirstRun() const { return test.core.settings_opened == 1; }

  TestProgram test{Machine::bare};
};

TEST_F(LoadSettings, FillsAll51StringsFromTheFile) {
  Rec_Settings settings;
  for (std::size_t i = 0; i < settings.kSize; ++i) settings.strings[i] = std::to_string(i * 7);
  WriteRecord(Path(), settings);
  Load_Settings(test.program);
  EXPECT_EQ(test.program.settings, settings);
  EXPECT_FALSE(WasFirstRun());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(LoadSettings, AMissingFileIsAFirstRunWithBoxAndDialog) {
  Load_Settings(test.program);
  EXPECT_TRUE(WasFirstRun());
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].title, "Kelvora FOOD");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::information);
  EXPECT_EQ(test.boxes.shown[0].text,
            "The file 'kvfset.dat' has not been found or has been damaged.\n"
            "Probably this is the first time that you start Kelvora FOOD.\n"
            "\n"
            "Press OK to open the settings screen.");
  // The languages were made before the box, the defaults are in, and only the dialog's
  // confirmation writes the file.
  EXPECT_TRUE(FileExists(test.program.paths.LanguagePath + "default.lsf"));
  EXPECT_EQ(test.program.texts[main_text::kFile], "File");
  EXPECT_EQ(test.program.settings[Setting::Combo_taal], "default.lsf");
  EXPECT_EQ(test.program.settings[Setting::chk_wiz], "1");
  EXPECT_FALSE(FileExists(Path()));
}

// The main window is there with its words before the box, and the dialog comes after it.
TEST_F(LoadSettings, AFirstRunShowsTheMainWindowThenTheBoxThenTheDialog) {
  std::vector<std::string> order;
  struct Core : RecordingCore {
    explicit Core(std::vector<std::string>& steps) : order(steps) {}
    void ShowMainWindow() override { order.push_back("main window"); }
    void Set_Taal() override { order.push_back("captions"); }
    void OpenSettings() override { order.push_back("settings"); }
    std::vector<std::string>& order;
  } core(order);
  struct OrderedBoxes : Boxes {
    explicit OrderedBoxes(std::vector<std::string>& steps) : order(steps) {}
    BoxAnswer Show(const Box&) override {
      order.push_back("box");
      return BoxAnswer::ok;
    }
    std::vector<std::string>& order;
  } boxes(order);
  Platform platform{boxes,         test.pointer,  test.locale,         test.folders,
                    test.clock,    test.screen,   test.events,         test.opener,
                    test.printers, test.printing, test.folder_chooser, test.transfers};
  Program program(platform);
  program.windows.core = &core;
  DetermineFolders(program);
  Load_Settings(program);
  EXPECT_EQ(order, (std::vector<std::string>{"main window", "captions", "box", "settings"}));
}

TEST_F(LoadSettings, AFirstRunSpeaksAsTheLanguageFileThatIsThere) {
  Make_Taal_English(test.program.texts);
  test.program.texts[main_text::kFile] = "Dossier";
  Save_Language_File(test.program, test.program.paths.LanguagePath + "default.lsf");
  test.program.texts = {};
  Load_Settings(test.program);
  EXPECT_EQ(test.program.texts[main_text::kFile], "Dossier");
}

TEST_F(LoadSettings, AFileWithoutARecordAnEmptyOneAndAFolderAreFirstRuns) {
  for (const std::string_view bytes :
       {std::string_view(), std::string_view("\0\0\0\0", 4), std::string_view("\xFF\xFF\xFF\xFF"),
        std::string_view("\0\0", 2)}) {
    test.core.settings_opened = 0;
    WriteFileAnew(Path(), bytes);
    Load_Settings(test.program);
    EXPECT_TRUE(WasFirstRun());
  }
  std::filesystem::remove(Path());
  std::filesystem::create_directory(Path());
  test.core.settings_opened = 0;
  Load_Settings(test.program);
  EXPECT_TRUE(WasFirstRun());
  std::filesystem::remove(Path());
  ASSERT_EQ(mkfifo(Path().c_str(), 0600), 0);
  test.core.settings_opened = 0;
  Load_Settings(test.program);
  EXPECT_TRUE(WasFirstRun());
}

TEST_F(LoadSettings, AFileCutAtAnyByteGivesDefaultsForWhatIsMissing) {
  Rec_Settings settings;
  Apply_Default_Settings(test.program);
  settings = test.program.settings;
  settings[Setting::txt_map] = "/data/";
  settings[Setting::chk_wiz] = "0";
  const std::string whole = EncodeRecord(settings.strings);
  for (std::size_t size = 4; size <= whole.size(); ++size) {
    WriteFileAnew(Path(), std::string_view(whole).substr(0, size));
    Load_Settings(test.program);
    Apply_Default_Settings(test.program);
    EXPECT_EQ(test.program.settings[Setting::chk_help], "1") << size;
    EXPECT_EQ(test.program.settings[Setting::Combo_taal], "default.lsf") << size;
    // The second string ends behind the first, "default.lsf", and its own length.
    EXPECT_EQ(test.program.settings[Setting::chk_wiz], size < 4 + 13 + 3 ? "1" : "0") << size;
  }
  EXPECT_EQ(test.program.settings[Setting::txt_map], "/data/");
  EXPECT_EQ(test.core.settings_opened, 0);
}

TEST_F(LoadSettings, EachEmptyFieldGetsItsDefault) {
  Apply_Default_Settings(test.program);
  const std::array<std::string_view, 29> expected = {
      "default.lsf", "1", "1", "",  "",  "",  "",  "",  "",  "",  "",  "1", "0", "0", "0", "",
      "0",           "0", "",  "0", "1", "1", "0", "1", "1", "0", "0", "0", "1"};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(test.program.settings.strings[i], expected[i]) << i;
  }
  for (std::size_t i = expected.size(); i < Rec_Settings::kSize; ++i) {
    EXPECT_EQ(test.program.settings.strings[i], "") << i;
  }
}

TEST_F(LoadSettings, ValuesThatAreThereStayAndAnUnusedFolderIsKept) {
  for (std::size_t i = 1; i < Rec_Settings::kSize; ++i) test.program.settings.strings[i] = "x";
  test.program.settings[Setting::chk_map] = "0";
  test.program.settings[Setting::txt_map] = "/data/";
  Rec_Settings expected = test.program.settings;
  expected[Setting::Combo_taal] = "default.lsf";
  Apply_Default_Settings(test.program);
  EXPECT_EQ(test.program.settings, expected);
  Save_Settings(test.program);
  Load_Settings(test.program);
  ApplyAlternativeUsersFolder(test.program);
  EXPECT_EQ(test.program.settings[Setting::txt_map], "/data/");
  EXPECT_EQ(test.program.paths.UsersPath, DefaultUsersPath(test.folders));
}

TEST_F(LoadSettings, ALanguageFileThatIsThereIsKept) {
  WriteFileAnew(test.program.paths.LanguagePath + "Mine.lsf", "");
  test.program.settings[Setting::Combo_taal] = "Mine.lsf";
  Apply_Default_Settings(test.program);
  EXPECT_EQ(test.program.settings[Setting::Combo_taal], "Mine.lsf");
}

}  // namespace
}  // namespace kelvora
