#include "days/settings.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <stdexcept>

#include "language/language_file.h"
#include "language/main_texts.h"
#include "nutrition/totals.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

struct NotedConsumption : ConsumptionView {
  explicit NotedConsumption(std::vector<std::string>& log) : notes(log) {}
  void CloseWindow() override {}
  void Set_Taal() override { notes.push_back("captions"); }
  void Refresh_Consumpties() override { notes.push_back("consumptions"); }
  void ShowTotals(const ConsumptionTotals&) override { notes.push_back("totals"); }
  std::vector<std::string>& notes;
};
struct NotedMultiDay : MultiDayView {
  explicit NotedMultiDay(std::vector<std::string>& log) : notes(log) {}
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_Meerdaagsuittreksel() override { notes.push_back("multi-day"); }
  std::vector<std::string>& notes;
};
struct NotedWizard : WizardView {
  void CloseWindow() override {}
  void Set_Taal() override {}
  void SetShowAtStart(bool on) override { shown.push_back(on); }
  std::vector<bool> shown;
};
struct NotedDayDialog : WindowView {
  void CloseWindow() override {}
  void Set_Taal() override { ++captions; }
  int captions = 0;
};
struct FailingWindow : WindowView {
  void CloseWindow() override {}
  void Set_Taal() override { throw std::runtime_error("no captions"); }
};

class SettingsOfForm : public testing::Test {
 protected:
  Text& Stored(Setting setting) { return test.program.settings[setting]; }
  [[nodiscard]] std::optional<Rec_Settings> OnDisk() const {
    if (!FileExists(test.program.paths.SettingsFile)) return std::nullopt;
    return ReadFirstRecord<Rec_Settings>(test.program.paths.SettingsFile);
  }
  [[nodiscard]] const Text& FileText() const { return test.program.texts[main_text::kFile]; }

  TestProgram test;
};

// Each tick with its setting.
struct TickCase {
  std::size_t index;
  bool SettingsForm::*value;
};
constexpr std::array kTickCases = {
    TickCase{1, &SettingsForm::chk_wiz},       TickCase{2, &SettingsForm::chk_profiel},
    TickCase{16, &SettingsForm::chk_map},      TickCase{20, &SettingsForm::chk_apply},
    TickCase{21, &SettingsForm::chk_export},   TickCase{22, &SettingsForm::chk_all_screens},
    TickCase{23, &SettingsForm::chk_internet}, TickCase{24, &SettingsForm::chk_addinternet},
    TickCase{28, &SettingsForm::chk_help},
};
struct TextCase {
  std::size_t index;
  Text SettingsForm::*value;
};
constexpr std::array kTextCases = {
    TextCase{0, &SettingsForm::Combo_taal},     TextCase{14, &SettingsForm::opt_system},
    TextCase{15, &SettingsForm::combo_printer}, TextCase{17, &SettingsForm::opt_gramoz},
    TextCase{18, &SettingsForm::txt_map},       TextCase{19, &SettingsForm::opt_server},
};

TEST_F(SettingsOfForm, EachTickShowsItsSettingAndSavesToItAlone) {
  for (const auto& [index, value] : kTickCases) {
    for (const bool on : {false, true}) {
      // Whatever else is stored: nothing of this form depends on another control.
      for (const TickCase& all : kTickCases) test.program.settings.strings[all.index] = "1";
      Stored(Setting::txt_map) = "/data/";
      test.program.settings.strings[index] = on ? "1" : "0";
      SettingsForm form = FormOfSettings(test.program);
      EXPECT_EQ(form.*value, on) << index;

      form.chk_internet = true;
      form.chk_addinternet = true;
      form.*value = !on;
      Rec_Settings expected = test.program.settings;
      expected.strings[23] = expected.strings[24] = "1";
      expected.strings[index] = on ? "0" : "1";
      EXPECT_TRUE(Save_From_Form(test.program, form));
      EXPECT_EQ(test.program.settings, expected) << index;
    }
  }
}

TEST_F(SettingsOfForm, EachChoiceAndTextShowsItsSettingAndSavesToItAlone) {
  for (const auto& [index, value] : kTextCases) {
    test.program.settings.strings[index] = "1";
    SettingsForm form = FormOfSettings(test.program);
    EXPECT_EQ(form.*value, "1") << index;
    form.*value = "0";
    Rec_Settings expected = test.program.settings;
    expected.strings[index] = "0";
    EXPECT_TRUE(Save_From_Form(test.program, form));
    EXPECT_EQ(test.program.settings, expected) << index;
  }
}

TEST_F(SettingsOfForm, SavingAnUntouchedFormChangesNoSettingAndWritesThemAll) {
  for (std::size_t i = 29; i < 51; ++i) test.program.settings.strings[i] = std::to_string(i);
  const Rec_Settings before = test.program.settings;
  EXPECT_TRUE(Save_From_Form(test.program, FormOfSettings(test.program)));
  EXPECT_EQ(test.program.settings, before);
  EXPECT_EQ(OnDisk(), before);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(SettingsOfForm, WithoutTheInternetNothingIsAddedToIt) {
  SettingsForm form = FormOfSettings(test.program);
  EXPECT_TRUE(form.chk_addinternet);
  EXPECT_EQ(EnabledIn(form), (EnabledControls{false, true, true}));
  form.chk_internet = false;
  FollowInternet(form);
  EXPECT_FALSE(form.chk_addinternet);
  EXPECT_EQ(EnabledIn(form), (EnabledControls{false, false, false}));
  EXPECT_TRUE(Save_From_Form(test.program, form));
  EXPECT_EQ(Stored(Setting::chk_internet), "0");
  EXPECT_EQ(Stored(Setting::chk_addinternet), "0");
  // Back again, the controls are open and the tick stays the user's own.
  form.chk_internet = true;
  FollowInternet(form);
  EXPECT_FALSE(form.chk_addinternet);
  EXPECT_EQ(EnabledIn(form), (EnabledControls{false, true, true}));
}

TEST_F(SettingsOfForm, OpeningBringsWhatDependsOnTheInternetInStep) {
  Stored(Setting::chk_internet) = "0";
  EXPECT_FALSE(FormOfSettings(test.program).chk_addinternet);
  EXPECT_EQ(Stored(Setting::chk_addinternet), "1");
}

TEST_F(SettingsOfForm, AnotherFolderCanBeBrowsedForWhileItIsWanted) {
  SettingsForm form = FormOfSettings(test.program);
  EXPECT_FALSE(EnabledIn(form).cmd_browse);
  form.chk_map = true;
  EXPECT_TRUE(EnabledIn(form).cmd_browse);
}

TEST_F(SettingsOfForm, AChosenFolderGetsItsClosingSlashAndKeepsItsLetters) {
  SettingsForm form = FormOfSettings(test.program);
  test.folder_chooser.answer = "/home/Anna/My Data";
  BrowseForFolder(test.program, form);
  EXPECT_EQ(form.txt_map, "/home/Anna/My Data/");
  EXPECT_EQ(test.folder_chooser.prompts.at(0),
            "Please select the folder where you want to save all user data.");
  EXPECT_EQ(test.folder_chooser.starts.at(0), test.program.paths.UsersPath);

  test.folder_chooser.answer = "/";
  BrowseForFolder(test.program, form);
  EXPECT_EQ(form.txt_map, "/");
  EXPECT_EQ(test.folder_chooser.starts.at(1), "/home/Anna/My Data/");

  test.folder_chooser.answer = "/home/Zo\xC3\xAB";
  BrowseForFolder(test.program, form);
  EXPECT_EQ(form.txt_map, "/home/Zo\xEB/");
  BrowseForFolder(test.program, form);
  EXPECT_EQ(test.folder_chooser.starts.at(3), "/home/Zo\xC3\xAB/");
}

TEST_F(SettingsOfForm, ACancelledBrowseKeepsTheFolder) {
  SettingsForm form = FormOfSettings(test.program);
  form.txt_map = "/data/";
  BrowseForFolder(test.program, form);
  EXPECT_EQ(form.txt_map, "/data/");
  EXPECT_TRUE(test.boxes.shown.empty());
}

// "ł" is no letter of Windows-1252; as "?" the folder would be another one.
TEST_F(SettingsOfForm, AFolderWhoseNameCanNotBeKeptIsRefused) {
  SettingsForm form = FormOfSettings(test.program);
  form.txt_map = "/data/";
  test.folder_chooser.answer = "/home/Pawe\xC5\x82";
  BrowseForFolder(test.program, form);
  EXPECT_EQ(form.txt_map, "/data/");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#F8-1"));
}

TEST_F(SettingsOfForm, WithoutALanguageNothingIsSaved) {
  SettingsForm form = FormOfSettings(test.program);
  form.Combo_taal = "";
  form.chk_map = true;  // would be the second complaint
  const Rec_Settings before = test.program.settings;
  EXPECT_FALSE(Save_From_Form(test.program, form));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text, "Select a language.");
  EXPECT_EQ(test.program.settings, before);
  EXPECT_EQ(OnDisk(), std::nullopt);
}

TEST_F(SettingsOfForm, AnotherFolderMustBeNamedBeforeItIsUsed) {
  SettingsForm form = FormOfSettings(test.program);
  form.chk_map = true;
  const Rec_Settings before = test.program.settings;
  EXPECT_FALSE(Save_From_Form(test.program, form));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::warning);
  EXPECT_EQ(test.boxes.shown[0].text,
            "You did not select a (remote) folder to save all user data.\n"
            "Please select a folder (user data) in the first tab or disable this option.");
  EXPECT_EQ(test.program.settings, before);
  EXPECT_EQ(OnDisk(), std::nullopt);
}

TEST_F(SettingsOfForm, TheUsersFolderFollowsAndNothingMoves) {
  const std::string documents = test.folders.Documents() + "/Kelvora FOOD/My Users/";
  MakeUserFolders(test.program.paths, "Anna");
  SettingsForm form = FormOfSettings(test.program);
  form.chk_map = true;
  form.txt_map = test.folders.home.Path("Zo\xEB/");
  EXPECT_TRUE(Save_From_Form(test.program, form));
  EXPECT_EQ(test.program.paths.UsersPath, test.folders.home.Path("Zo\xC3\xAB/"));
  EXPECT_TRUE(std::filesystem::exists(documents + "Anna"));

  form.chk_map = false;
  EXPECT_TRUE(Save_From_Form(test.program, form));
  EXPECT_EQ(test.program.paths.UsersPath, documents);
  // Kept for the next time.
  EXPECT_EQ(Stored(Setting::txt_map), form.txt_map);
}

TEST_F(SettingsOfForm, TheServerAddressesFollow) {
  std::filesystem::create_directories(test.program.paths.ProgramPath);
  WriteFileAnew(test.program.paths.ProgramPath + "servers.conf",
                "dutch = http://nl.test\nenglish = http://uk.test\n");
  SettingsForm form = FormOfSettings(test.program);
  form.opt_server = "1";
  EXPECT_TRUE(Save_From_Form(test.program, form));
  EXPECT_EQ(test.program.servers.search, "http://uk.test/modules/kvzoek.php");
}

TEST_F(SettingsOfForm, TheDayIsTotalledBeforeTheMultiDayWindowAndTheConsumptionsAreRefreshed) {
  std::vector<std::string> notes;
  NotedConsumption morning(notes), evening(notes);
  NotedMultiDay multi_day(notes);
  OpenWindows& windows = test.program.windows;
  windows.consumption = {&morning, nullptr, &evening};
  windows.multi_day = &multi_day;
  EXPECT_TRUE(Save_From_Form(test.program, FormOfSettings(test.program)));
  EXPECT_EQ(notes, (std::vector<std::string>{"multi-day", "consumptions", "consumptions"}));

  notes.clear();
  test.OpenDay("Anna");
  const int updates = test.core.updates;
  EXPECT_TRUE(Save_From_Form(test.program, FormOfSettings(test.program)));
  EXPECT_EQ(notes, (std::vector<std::string>{"totals", "totals", "multi-day", "consumptions",
                                             "consumptions"}));
  EXPECT_EQ(test.core.updates, updates + 1);
  EXPECT_FALSE(test.program.store.txt_trenddata.empty());
}

// The file can't be written where its folder is a file; the settings of the run stay valid.
TEST_F(SettingsOfForm, AFailedWriteIsToldAndEverythingElseHappens) {
  const std::string folder = test.folders.ApplicationData() + "/Brelux";
  std::filesystem::remove_all(folder);
  WriteFileAnew(folder, "");
  std::vector<std::string> notes;
  NotedMultiDay multi_day(notes);
  test.program.windows.multi_day = &multi_day;
  SettingsForm form = FormOfSettings(test.program);
  form.opt_system = "2";
  EXPECT_TRUE(Save_From_Form(test.program, form));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF1-0"));
  EXPECT_EQ(Stored(Setting::opt_system), "2");
  EXPECT_EQ(notes.size(), 1u);
}

TEST_F(SettingsOfForm, AFailureWhileSavingShowsItsCode) {
  struct FailingMultiDay : MultiDayView {
    void CloseWindow() override {}
    void Set_Taal() override {}
    void Refresh_Meerdaagsuittreksel() override { throw std::runtime_error("no trend"); }
  } multi_day;
  test.program.windows.multi_day = &multi_day;
  EXPECT_FALSE(Save_From_Form(test.program, FormOfSettings(test.program)));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#F8-2"));
}

// An amount that no number can hold stops the totals of the day and those of each window.
TEST_F(SettingsOfForm, OneCauseGivesOneBoxHoweverManyWindowsTotalTheDay) {
  struct TotallingConsumption : ConsumptionView {
    Program* program = nullptr;
    int refreshed = 0;
    void CloseWindow() override {}
    void Set_Taal() override {}
    void Refresh_Consumpties() override {
      ++refreshed;
      Refresh_Totalen(*program);
    }
    void ShowTotals(const ConsumptionTotals&) override {}
  };
  std::array<TotallingConsumption, 3> windows;
  for (std::size_t i = 0; i < windows.size(); ++i) {
    windows[i].program = &test.program;
    test.program.windows.consumption[i] = &windows[i];
  }
  test.OpenDay("Anna");
  test.program.store.L_avond.Add(LineOf({.product = "Sun", .kj = std::string(400, '9')}));
  for (const std::size_t boxes : {1u, 2u}) {  // each saving is an action of its own
    EXPECT_TRUE(Save_From_Form(test.program, FormOfSettings(test.program)));
    ASSERT_EQ(test.boxes.shown.size(), boxes);
    EXPECT_TRUE(test.boxes.shown.back().text.ends_with("Brelux CODE:#FF11-0"));
  }
  for (const TotallingConsumption& window : windows) EXPECT_EQ(window.refreshed, 2);
}

TEST_F(SettingsOfForm, TheHelpTextsFollowAtOnceInMemoryOnly) {
  ShowHelp(test.program, false);
  EXPECT_EQ(Stored(Setting::chk_help), "0");
  EXPECT_EQ(test.core.toolbar_texts_set, 1);
  ShowHelp(test.program, true);
  EXPECT_EQ(Stored(Setting::chk_help), "1");
  EXPECT_EQ(test.core.toolbar_texts_set, 2);
  EXPECT_EQ(OnDisk(), std::nullopt);
}

TEST_F(SettingsOfForm, AnOpenWizardFollowsTheForm) {
  SettingsForm form = FormOfSettings(test.program);
  FollowInWizard(test.program, form);  // none is open
  NotedWizard wizard;
  test.program.windows.wizard = &wizard;
  form.chk_wiz = false;
  FollowInWizard(test.program, form);
  form.chk_wiz = true;
  FollowInWizard(test.program, form);
  EXPECT_EQ(wizard.shown, (std::vector<bool>{false, true}));
  EXPECT_EQ(Stored(Setting::chk_wiz), "1");
}

TEST_F(SettingsOfForm, ALanguageTakesEffectAtOnceAndLastsWhenItIsSaved) {
  Check_Language_Files(test.program);
  LoadChosenLanguage(test.program);
  NotedDayDialog day_dialog;
  test.program.windows.day_settings = &day_dialog;
  SettingsForm form = FormOfSettings(test.program);
  EXPECT_EQ(form.Combo_taal, "default.lsf");
  EXPECT_EQ(FileText(), "File");
  Save_Settings(test.program);

  TakeLanguage(test.program, form, "default.lsf");  // no other one
  EXPECT_EQ(day_dialog.captions, 0);
  TakeLanguage(test.program, form, "Nederlands.lsf");
  EXPECT_EQ(FileText(), "Bestand");
  EXPECT_EQ(day_dialog.captions, 1);
  EXPECT_EQ(form.Combo_taal, "Nederlands.lsf");
  EXPECT_EQ(Stored(Setting::Combo_taal), "Nederlands.lsf");
  EXPECT_EQ((*OnDisk())[Setting::Combo_taal], "default.lsf");

  EXPECT_TRUE(Save_From_Form(test.program, form));
  EXPECT_EQ((*OnDisk())[Setting::Combo_taal], "Nederlands.lsf");
}

TEST_F(SettingsOfForm, AFailureWhileTheLanguageChangesShowsItsCode) {
  FailingWindow window;
  test.program.windows.day_settings = &window;
  SettingsForm form = FormOfSettings(test.program);
  TakeLanguage(test.program, form, "English.lsf");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#F8-0"));
}

TEST_F(SettingsOfForm, AChosenNameThatTheSystemLacksStaysAChoice) {
  EXPECT_EQ(WithChosen({"A", "B"}, "B"), (std::vector<Text>{"A", "B"}));
  EXPECT_EQ(WithChosen({"A", "B"}, "C"), (std::vector<Text>{"A", "B", "C"}));
  EXPECT_EQ(WithChosen({"A", "B"}, ""), (std::vector<Text>{"A", "B"}));
  EXPECT_EQ(WithChosen({}, ""), std::vector<Text>{});
}

}  // namespace
}  // namespace kelvora
