#include "language/choose_language.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "language/built_in_texts.h"
#include "language/language_file.h"
#include "language/main_texts.h"
#include "language/own_texts.h"
#include "storage/record_file.h"
#include "support/file_faults.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

// A window that writes down when it takes its captions, and what "File" was then.
template <class View>
struct Listening : View {
  Listening(std::string window_name, std::vector<std::string>& log)
      : name(std::move(window_name)), notes(log) {}
  void CloseWindow() override {}
  void Set_Taal() override { notes.push_back(name); }
  std::string name;
  std::vector<std::string>& notes;
};
struct ListeningBrowser : Listening<BrowserView> {
  using Listening::Listening;
  void Refresh_GebruikersLijst() override {}
  void Refresh_Files() override {}
};
struct ListeningSummary : Listening<DaySummaryView> {
  using Listening::Listening;
  void Refresh_Daguittreksel() override {}
  void Maak_Voedingsbehoefte(const DayTotals&) override {}
};
struct ListeningLists : Listening<FoodListsView> {
  using Listening::Listening;
  void Toon_Standaardlijst() override {}
  void Populate_Food_List_Custom() override {}
  void Populate_Food_List_Favo() override {}
};
struct ListeningWizard : Listening<WizardView> {
  using Listening::Listening;
  void SetShowAtStart(bool) override {}
};
struct ListeningConsumption : Listening<ConsumptionView> {
  using Listening::Listening;
  void Refresh_Consumpties() override {}
  void ShowTotals(const ConsumptionTotals&) override {}
};
struct ListeningCore : RecordingCore {
  explicit ListeningCore(std::vector<std::string>& log) : notes(log) {}
  void Set_Taal() override { notes.push_back("core"); }
  std::vector<std::string>& notes;
};

struct ListeningMultiDay : Listening<MultiDayView> {
  using Listening::Listening;
  void Refresh_Meerdaagsuittreksel() override {}
};

struct ListeningComparison : Listening<ComparisonView> {
  using Listening::Listening;
  void TakeFood(CompareBox, std::string_view) override {}
};

struct ListeningDiary : Listening<DiaryView> {
  using Listening::Listening;
  void Refresh_Tekst() override {}
  bool HoldsUntakenText() const override { return false; }
  bool TakeOver() override { return true; }
};

class LanguageOfTheWindows : public testing::Test {
 protected:
  LanguageOfTheWindows() {
    Check_Language_Files(test.program);
    Load_Language_File(test.program, Folder() + "English.lsf");
  }
  [[nodiscard]] const std::string& Folder() const { return test.program.paths.LanguagePath; }
  [[nodiscard]] const Text& FileText() const { return test.program.texts[main_text::kFile]; }

  TestProgram test;
  std::vector<std::string> notes;
};

TEST_F(LanguageOfTheWindows, AChoiceReachesTheMainWindowTheSettingsAndEachOpenWindowInOrder) {
  ListeningCore core(notes);
  Listening<WindowView> properties("properties", notes), details("details", notes),
      day_settings("day settings", notes), export_html("export", notes);
  ListeningComparison comparison("comparison", notes);
  ListeningMultiDay multi_day("multi-day", notes);
  ListeningDiary diary("diary", notes);
  ListeningBrowser browser("browser", notes);
  ListeningWizard wizard("wizard", notes);
  ListeningSummary summary("summary", notes);
  ListeningLists lists("lists", notes);
  std::array consumption = {ListeningConsumption("morning", notes),
                            ListeningConsumption("afternoon", notes),
                            ListeningConsumption("evening", notes)};
  OpenWindows& windows = test.program.windows;
  windows.core = &core;
  windows.properties = &properties;
  windows.food_details = &details;
  windows.multi_day = &multi_day;
  windows.diary = &diary;
  windows.comparison = &comparison;
  windows.wizard = &wizard;
  windows.day_settings = &day_settings;
  windows.export_html = &export_html;
  windows.browser = &browser;
  windows.day_summary = &summary;
  windows.lists = &lists;
  for (std::size_t i = 0; i < 3; ++i) windows.consumption[i] = &consumption[i];

  ChooseLanguage(test.program, "Nederlands.lsf");
  EXPECT_EQ(FileText(), "Bestand");
  EXPECT_EQ(notes, (std::vector<std::string>{"core", "properties", "browser", "summary", "details",
                                             "lists", "multi-day", "diary", "morning", "afternoon",
                                             "evening", "comparison", "wizard"}));
  EXPECT_EQ(test.program.settings[Setting::Combo_taal], "default.lsf");
}

TEST_F(LanguageOfTheWindows, AClosedWindowIsNotReached) {
  ListeningLists lists("lists", notes);
  test.program.windows.lists = &lists;
  ChooseLanguage(test.program, "Nederlands.lsf");
  EXPECT_EQ(notes, std::vector<std::string>{"lists"});
}

TEST_F(LanguageOfTheWindows, TheFilesAreListedWithTheirExtensionWithoutRegardToCase) {
  WriteFileAnew(Folder() + "my own.lsf", "");
  WriteFileAnew(Folder() + "notes.txt", "");
  const TextList names = LanguageFileNames(test.program.paths);
  EXPECT_EQ(std::vector<Text>(names.begin(), names.end()),
            (std::vector<Text>{"default.lsf", "English.lsf", "my own.lsf", "Nederlands.lsf"}));
}

TEST_F(LanguageOfTheWindows, ARepairMakesTheStandardFilesAnewAfterAYes) {
  for (const char* name : {"default.lsf", "English.lsf", "Nederlands.lsf"}) {
    test.program.texts[main_text::kFile] = "spoilt";
    Save_Language_File(test.program, Folder() + name);
  }
  test.program.settings[Setting::Combo_taal] = "Nederlands.lsf";
  test.boxes.answers = {BoxAnswer::yes};
  RepairLanguageFiles(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::question);
  EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::yes_no);
  EXPECT_EQ(test.boxes.shown[0].text,
            "You are going to repair the language files.\n\n"
            "All language files will be overwritten.\nAre you sure?");
  EXPECT_EQ(test.boxes.shown[1].icon, BoxIcon::information);
  EXPECT_EQ(test.boxes.shown[1].text, "Alle taalbestanden zijn hersteld.");
  EXPECT_EQ(FileText(), "Bestand");
  for (const char* name : {"default.lsf", "English.lsf"}) {
    Load_Language_File(test.program, Folder() + name);
    EXPECT_EQ(FileText(), "File") << name;
  }
}

// Every window that is open shows the repaired texts, those of the settings dialog's family too.
TEST_F(LanguageOfTheWindows, ARepairReachesEveryOpenWindow) {
  ListeningCore core(notes);
  Listening<WindowView> properties("properties", notes), day_settings("day settings", notes),
      new_food("new food", notes), export_html("export", notes);
  ListeningLists lists("lists", notes);
  ListeningConsumption evening("evening", notes);
  OpenWindows& windows = test.program.windows;
  windows.core = &core;
  windows.properties = &properties;
  windows.day_settings = &day_settings;
  windows.new_food = &new_food;
  windows.export_html = &export_html;
  windows.lists = &lists;
  windows.consumption[2] = &evening;
  test.boxes.answers = {BoxAnswer::yes};
  RepairLanguageFiles(test.program);
  EXPECT_EQ(notes, (std::vector<std::string>{"core", "properties", "lists", "evening",
                                             "day settings", "new food", "export"}));
  // A repair that was not wanted reaches none.
  notes.clear();
  test.boxes.answers = {BoxAnswer::no};
  RepairLanguageFiles(test.program);
  EXPECT_TRUE(notes.empty());
}

// The captions are there before the box that says so.
TEST_F(LanguageOfTheWindows, ARepairedLanguageIsSeenBeforeItIsTold) {
  test.program.settings[Setting::Combo_taal] = "Nederlands.lsf";
  test.program.texts[main_text::kFile] = "spoilt";
  struct Core : RecordingCore {
    Text file;
    void Set_Taal() override { file = program->texts[main_text::kFile]; }
  } core;
  core.program = &test.program;
  test.program.windows.core = &core;
  test.boxes.answers = {BoxAnswer::yes};
  RepairLanguageFiles(test.program);
  EXPECT_EQ(core.file, "Bestand");
}

TEST_F(LanguageOfTheWindows, ARepairMakesTheOwnTextsAnewToo) {
  WriteFileAnew(Folder() + "Nederlands.own", "spoilt");
  test.program.settings[Setting::Combo_taal] = "Nederlands.lsf";
  test.boxes.answers = {BoxAnswer::yes};
  RepairLanguageFiles(test.program);
  EXPECT_EQ(OwnTextOf(test.program.texts, OwnText::cut_foods), "Knippen");
}

TEST_F(LanguageOfTheWindows, NothingIsCalledRepairedThatCouldNotBeWritten) {
  test.boxes.answers = {BoxAnswer::yes};
  {
    const InjectedFault fault({.disk_full_after = 0});
    RepairLanguageFiles(test.program);
  }
  // The question and one box, though not one of six files could be written.
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(test.boxes.shown[1].text,
            "An error occured while saving the languagefile" + Folder() + "English.lsf");
  // The program keeps its words.
  EXPECT_EQ(FileText(), "File");
}

TEST_F(LanguageOfTheWindows, ANoRepairsNothing) {
  WriteFileAnew(Folder() + "English.lsf", "spoilt");
  test.boxes.answers = {BoxAnswer::no};
  RepairLanguageFiles(test.program);
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(ReadFile(Folder() + "English.lsf"), "spoilt");
}

TEST_F(LanguageOfTheWindows, ARepairLeavesAUsersOwnFileAndLoadsItAsItStands) {
  test.program.texts[main_text::kFile] = "Fichier";
  Save_Language_File(test.program, Folder() + "mine.lsf");
  const std::string before = ReadFile(Folder() + "mine.lsf");
  test.program.settings[Setting::Combo_taal] = "mine.lsf";
  std::filesystem::remove(Folder() + "default.lsf");
  test.boxes.answers = {BoxAnswer::yes};
  RepairLanguageFiles(test.program);
  EXPECT_EQ(ReadFile(Folder() + "mine.lsf"), before);
  EXPECT_EQ(FileText(), "Fichier");
  EXPECT_TRUE(FileExists(Folder() + "default.lsf"));
}

TEST_F(LanguageOfTheWindows, AFailingRepairShowsItsCode) {
  std::filesystem::permissions(Folder() + "English.lsf", std::filesystem::perms::owner_read);
  test.boxes.answers = {BoxAnswer::yes};
  std::filesystem::remove(Folder() + "Nederlands.lsf");
  RepairLanguageFiles(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_TRUE(test.boxes.shown[1].text.ends_with("Brelux CODE:#F4-16"));
  // The others are whole again all the same.
  for (const char* name : {"default.lsf", "Nederlands.lsf"}) {
    EXPECT_TRUE(FileExists(Folder() + name)) << name;
  }
}

TEST_F(LanguageOfTheWindows, AFileThatCannotBeOpenedIsNotOffered) {
  WriteFileAnew(Folder() + "mine.lsf", "");
  std::filesystem::create_directory(Folder() + "folder.lsf");
  std::filesystem::create_symlink(Folder() + "gone", Folder() + "link.lsf");
  ASSERT_EQ(mkfifo((Folder() + "pipe.lsf").c_str(), 0600), 0);
  // Shown as "Slaw?.lsf", it would be looked for under that name.
  WriteFileAnew(Folder() + "S\xC5\x82" + "aw.lsf", "");
  WriteFileAnew(Folder() + "secret.lsf", "");
  std::filesystem::permissions(Folder() + "secret.lsf", std::filesystem::perms::none);
  std::filesystem::permissions(test.folders.home.Path(), std::filesystem::perms(0755));
  const AsNobody nobody;
  const TextList names = LanguageFileNames(test.program.paths);
  EXPECT_EQ(std::vector<Text>(names.begin(), names.end()),
            (std::vector<Text>{"default.lsf", "English.lsf", "mine.lsf", "Nederlands.lsf"}));
}

// What the chosen file lacks has the words of "default.lsf", not none.
TEST_F(LanguageOfTheWindows, AShortFileLiesOverTheDefaultTexts) {
  test.program.texts[main_text::kNewFile] = "Fresh file";
  Save_Language_File(test.program, Folder() + "default.lsf");
  Rec_Language record;
  record[TextTable::taal_main] = Packed("Fichier~");
  WriteRecord(Folder() + "short.lsf", record);
  test.program.settings[Setting::Combo_taal] = "short.lsf";
  test.program.texts = {};
  LoadChosenLanguage(test.program);
  EXPECT_EQ(FileText(), "Fichier");
  EXPECT_EQ(test.program.texts[main_text::kNewFile], "Fresh file");
  EXPECT_EQ(test.program.texts[main_text::kOpenFile], "Open file");
}

TEST_F(LanguageOfTheWindows, WithoutAnyFileThatCanBeReadTheWordsAreTheBuiltInEnglishOnes) {
  for (const std::string& bytes :
       {std::string(), std::string(4, '\0'), std::string("\1\0\0\0", 4)}) {
    for (const char* name : {"default.lsf", "Nederlands.lsf"}) {
      WriteFileAnew(Folder() + name, bytes);
    }
    test.program.settings[Setting::Combo_taal] = "Nederlands.lsf";
    test.program.texts = {};
    LoadChosenLanguage(test.program);
    EXPECT_EQ(FileText(), "File");
    EXPECT_EQ(test.program.texts[main_text::kRepaired], "All language files are repaired.");
  }
}

}  // namespace
}  // namespace kelvora
