// The order of the steps of a start, told by what each of them asks of the outside or shows, and by
// what stands in the program at that moment.
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>

#include "core/frame/net.h"
#include "core/frame/startup.h"
#include "language/language_file.h"
#include "language/main_texts.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

// Notes a step, and fails there if it is told to.
struct Steps {
  std::vector<std::string> names;
  std::string failing{};
  std::function<void()> fail = [] {};
  std::function<std::string()> state = [] { return std::string(); };

  void Note(const std::string& name) {
    names.push_back(name + state());
    if (name == failing) fail();
  }
};

struct OrderedFolders : TemporaryFolders {
  explicit OrderedFolders(Steps& all) : steps(all) {}
  std::string ProgramFolder() const override {
    steps.Note("folders");
    return TemporaryFolders::ProgramFolder();
  }
  Steps& steps;
};
struct OrderedLocale : FixedLocale {
  explicit OrderedLocale(Steps& all) : steps(all) {}
  Text SystemDecimalSeparator() const override {
    steps.Note("separator");
    return separator;
  }
  Steps& steps;
};
struct OrderedScreen : FixedScreen {
  explicit OrderedScreen(Steps& all) : steps(all) {}
  ScreenSize Size() const override {
    steps.Note("screen");
    return size;
  }
  Steps& steps;
};
struct OrderedPointer : RecordingPointer {
  explicit OrderedPointer(Steps& all) : steps(all) {}
  void Show(bool wait) override {
    if (wait) steps.Note("databases");
  }
  Steps& steps;
};
struct OrderedBoxes : RecordingBoxes {
  explicit OrderedBoxes(Steps& all) : steps(all) {}
  BoxAnswer Show(const Box& box) override {
    shown.push_back(box);
    const bool of_version = box.text.find("version retrieval") != Text::npos;
    if (of_version) steps.Note("language files");
    if (box.title == "Error during loading #03") steps.Note("chosen language");
    return BoxAnswer::ok;
  }
  Steps& steps;
};
struct OrderedCore : RecordingCore {
  explicit OrderedCore(Steps& all) : steps(all) {}
  void ShowSplash() override { steps.Note("splash"); }
  void ShowMainWindow() override { steps.Note("main window"); }
  void OpenSettings() override { steps.Note("settings"); }
  MainWindowSize Size() const override {
    steps.Note("geometry");
    return size;
  }
  void Set_Taal() override { steps.Note("captions"); }
  void UpdateCommands() override { steps.Note("commands"); }
  void UpdateStatusBar() override { steps.Note("status bar"); }
  void BringToFront() override { steps.Note("to front"); }
  void OpenWindow(WindowId id) override {
    steps.Note(id == WindowId::wizard ? "wizard" : "another window");
  }
  Steps& steps;
};

// A home with everything in place, except that the Dutch language file, which is not the chosen
// one, and the chosen one hold no record: each then shows a box of its own when it is read.
class OrderOfTheStart : public testing::Test {
 protected:
  OrderOfTheStart() {
    core.program = &program;
    program.windows.core = &core;
    const std::string documents = folders.Documents() + "/Kelvora FOOD";
    fs::create_directories(documents + "/My Language");
    fs::create_directories(folders.ApplicationData() + "/Brelux");
    fs::create_directories(folders.home.Path("program/Databases"));
    WriteFileAnew(folders.home.Path("program/servers.conf"), "dutch = http://nl.test\n");
    const std::string no_record(4, '\0');
    WriteFileAnew(documents + "/My Language/Nederlands.lsf", no_record);
    WriteFileAnew(documents + "/My Language/Mine.lsf", no_record);
    Rec_Settings settings;
    settings[Setting::Combo_taal] = "Mine.lsf";
    settings[Setting::chk_map] = "1";
    settings[Setting::txt_map] = "/other/";
    settings[Setting::StartCount] = "4";
    WriteRecord(SettingsPath(), settings);
  }

  [[nodiscard]] std::string SettingsPath() const {
    return folders.ApplicationData() + "/Brelux/kvfset.dat";
  }
  [[nodiscard]] Text CountOnDisk() const {
    return (*ReadFirstRecord<Rec_Settings>(SettingsPath()))[Setting::StartCount];
  }
  // A letter for each thing that an earlier step has left, in the order of the steps.
  [[nodiscard]] std::string State() const {
    std::string state = " ";
    if (!program.paths.SettingsFile.empty()) state += 'f';
    if (!program.StartSeparator.empty()) state += 's';
    if (program.texts[main_text::kFile] == "File") state += 't';
    if (program.settings[Setting::StartCount] == "4") state += 'l';
    if (program.windows.geometry.lists.width != 0) state += 'g';
    if (program.paths.UsersPath == "/other/") state += 'u';
    if (!program.servers.search.empty()) state += 'a';
    if (!program.store.txt_testdata.empty()) state += 'h';
    return state;
  }

  Steps steps;
  OrderedBoxes boxes{steps};
  OrderedPointer pointer{steps};
  OrderedLocale locale{steps};
  OrderedFolders folders{steps};
  FixedClock clock;
  OrderedScreen screen{steps};
  CountingEvents events;
  RecordingOpener opener;
  ListedPrinters printers;
  RecordingPrinting printing;
  RecordingFolderChooser folder_chooser;
  RecordingTransfers transfers;
  Platform platform{boxes,  pointer, locale,   folders,  clock,          screen,
                    events, opener,  printers, printing, folder_chooser, transfers};
  OrderedCore core{steps};
  Program program{platform};
};

TEST_F(OrderOfTheStart, EveryStepComesWhereItIsLaidDown) {
  steps.state = [this] { return State(); };
  StartUp(program);
  const std::vector<std::string> expected = {
      "folders ",              //  1, before any path is known
      "separator f",           //  2, captured before any number is read
      "splash fst",            //  3, with the words there are before a language is loaded
      "main window fst",       //
      "databases fstl",        //  6, after the settings
      "geometry fstl",         //  7
      "language files fstlg",  //  8, before the users folder
      // 9 to 11: users folder and server addresses are there when the chosen language is read.
      "chosen language fstlgua",
      "captions fstlgua",     // 12
      "screen fstlgua",       // 13
      "separator fstlgua",    // 14, compared
      "commands fstlguah",    // 16, after the separators were written and read back
      "status bar fstlguah",  // 17
      "separator fstlguah",   // 18, judged
      "captions fstlguah",    // 19
      "to front fstlguah",    //
      "wizard fstlguah",      // 20, before the start counts
  };
  EXPECT_EQ(steps.names, expected);
  EXPECT_EQ(program.settings[Setting::StartCount], "5");
  EXPECT_EQ(CountOnDisk(), "5");
}

// What escapes from a step ends that step only: all that follow are the same as in a good start.
TEST_F(OrderOfTheStart, AStepThatThrowsIsToldAndTheStartGoesOn) {
  StartUp(program);
  const std::vector<std::string> good = steps.names;
  const std::vector<std::function<void()>> throwers = {[] { throw std::runtime_error("no step"); },
                                                       [] { throw 7; }};
  for (const std::string failing : {"separator", "splash", "main window", "geometry", "captions",
                                    "screen", "commands", "status bar", "to front", "wizard"}) {
    for (const auto& thrower : throwers) {
      steps.failing = failing;
      steps.fail = thrower;
      steps.names.clear();
      boxes.shown.clear();
      StartUp(program);
      std::vector<std::string> expected = good;
      // With its captions, the last step but two would have brought the window to the front.
      if (failing == "captions") std::erase(expected, "to front");
      // Only the first of two starts finds the Dutch file without a record.
      std::erase(expected, "language files");
      EXPECT_EQ(steps.names, expected) << failing;
      EXPECT_TRUE(std::ranges::any_of(boxes.shown, [](const Box& box) {
        return box.text.ends_with("Brelux CODE:#F4-18");
      })) << failing;
      EXPECT_EQ(CountOnDisk(), program.settings[Setting::StartCount]);
    }
  }
  EXPECT_EQ(CountOnDisk(), "25");
}

// Told to end during any step, the program takes no other: nothing new comes up, nothing is
// counted.
TEST_F(OrderOfTheStart, AProgramThatIsToldToEndTakesNoFurtherStep) {
  StartUp(program);
  const std::vector<std::string> good = steps.names;
  for (const std::string ending : {"splash", "main window", "geometry", "to front", "wizard"}) {
    steps.failing = ending;
    steps.fail = [this] { EndProgram(program); };
    steps.names.clear();
    program.ending = false;
    const Text count = CountOnDisk();
    StartUp(program);
    EXPECT_EQ(steps.names.back(), ending);
    EXPECT_EQ(CountOnDisk(), count) << ending;
    EXPECT_TRUE(program.ending);
  }
  EXPECT_EQ(events.ends, 5);
  EXPECT_EQ(CountOnDisk(), "5");
}

// On a first run too: the box under which it ends is the last that comes up.
TEST_F(OrderOfTheStart, AFirstRunThatEndsUnderItsBoxShowsNoSettings) {
  fs::remove(SettingsPath());
  struct EndingBoxes : RecordingBoxes {
    Program* all = nullptr;
    BoxAnswer Show(const Box& box) override {
      shown.push_back(box);
      EndProgram(*all);
      return BoxAnswer::ok;
    }
  } ending_boxes;
  Platform outside{ending_boxes, pointer, locale,   folders,  clock,          screen,
                   events,       opener,  printers, printing, folder_chooser, transfers};
  Program first_run(outside);
  ending_boxes.all = &first_run;
  first_run.windows.core = &core;
  fs::remove(folders.Documents() + "/Kelvora FOOD/My Language/Nederlands.lsf");
  StartUp(first_run);
  ASSERT_EQ(ending_boxes.shown.size(), 1u);
  EXPECT_TRUE(ending_boxes.shown[0].text.starts_with("The file 'kvfset.dat' has not been found"));
  EXPECT_EQ(std::ranges::count(steps.names, "settings"), 0);
  EXPECT_EQ(std::ranges::count(steps.names, "wizard"), 0);
  EXPECT_FALSE(FileExists(SettingsPath()));
}

}  // namespace
}  // namespace kelvora
