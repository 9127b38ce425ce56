// A whole program in a test: real files in a temporary home, and recording doubles at the platform
// interfaces. A double does nothing but remember what it was asked and answer what the test set.
#pragma once

#include <deque>
#include <exception>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/program.h"

namespace kelvora {

// Remembers every box; answers from the front of `answers`, then "ok" or, to a question, "no".
struct RecordingBoxes : Boxes {
  std::vector<Box> shown;
  std::deque<BoxAnswer> answers;
  BoxAnswer Show(const Box& box) override;
};

struct RecordingPointer : Pointer {
  bool waiting = false;

 private:
  void Show(bool wait) override { waiting = wait; }
};

struct FixedLocale : Locale {
  Text separator = ".";
  Text date_mark = "/";         // what the locale puts in the place of "/"
  Text time_suffix;             // " PM" and the like
  std::optional<Text> weekday;  // for every date; without it the true one, in English
  Text long_date = "dddd d MMMM yyyy";
  std::optional<Text> short_date;  // of every day
  bool has_short_form = true;      // 3/5/04 and 2:07 PM
  Text SystemDecimalSeparator() const override { return separator; }
  Text DayMonthYear(const LocalTime& time) const override;
  Text HourMinuteSecond(const LocalTime& time) const override;
  Text ShortDate(const LocalTime& time) const override;
  Text ShortTime(const LocalTime& time) const override;
  Text LongDatePattern() const override { return long_date; }
  Text WeekdayName(const LocalTime& time) const override;
};

struct FixedClock : Clock {
  LocalTime now{.year = 2004, .month = 3, .day = 5, .hour = 14, .minute = 7, .second = 9};
  LocalTime Now() const override { return now; }
};

struct FixedScreen : Screen {
  ScreenSize size{1024, 768};
  ScreenSize Size() const override { return size; }
};

struct CountingEvents : Events {
  int yields = 0;
  int ends = 0;
  std::function<void()> at_yield = [] {};  // what a user does meanwhile
  void Yield() override {
    ++yields;
    at_yield();
  }
  void End() override { ++ends; }
};

// Opens and starts nothing but a note.
struct RecordingOpener : Opener {
  bool knows_a_program = true;
  std::vector<std::string> opened, chosen_for;
  std::vector<CommandLine> started;
  std::vector<std::string> start_folders;
  bool starts = true;
  bool Open(const std::string& address) override;
  void OpenWithChosenProgram(const std::string& path) override { chosen_for.push_back(path); }
  bool Start(const CommandLine& command, const std::string& folder) override;
};

struct ListedPrinters : Printers {
  std::vector<Text> names;
  std::exception_ptr no_names;
  std::vector<Text> Names() const override;
};

// Prints nothing but a note. Its sheet is A4 without margins; what it is to throw, it throws.
struct RecordingPrinting : Printing {
  Sheet sheet{.width = 11906, .height = 16838, .medium = "iso_a4_210x297mm"};
  std::exception_ptr no_sheet, no_print;
  std::vector<Text> asked_for;
  std::vector<PrintJob> jobs;
  Sheet SheetOf(const Text& printer) override;
  void Print(const PrintJob& job) override;
};

// Chooses `answer`, or `zip` where a file is asked for; remembers what it was asked with.
struct RecordingFolderChooser : FolderChooser {
  std::optional<std::string> zip;
  std::optional<std::string> answer;
  std::vector<Text> prompts;
  std::vector<std::string> starts;
  std::optional<std::string> Choose(const Text& prompt, const std::string& start) override;
  std::optional<std::string> ChooseNewZip(const Text& prompt, const std::string& proposed) override;
  std::optional<std::string> ChooseZip(const Text& prompt, const std::string& start) override;
};

// Sends nothing. The test ends the transfer that is under way, or the program lets it go.
struct RecordingTransfers : Transfers {
  Transfers* real = nullptr;           // sends what is asked for, where a test has one
  std::vector<std::string> addresses;  // as they were asked for
  bool network_is_up = true;
  int cancelled = 0;
  std::unique_ptr<Transfer> Get(const std::string& address, OnState on_state) override;
  bool NetworkIsUp() const override { return network_is_up; }
  [[nodiscard]] bool UnderWay() const { return running_ != nullptr; }
  // End the transfer that was begun last: with a reply in these chunks, or with an error.
  void Complete(std::deque<std::string> chunks);
  void Fail(std::string response_text = "Could not connect");

 private:
  class Noted;
  void End(TransferState state);
  Noted* running_ = nullptr;
};

// A folder of its own below the system's temporary folder, gone with its content at the end.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  [[nodiscard]] std::string Path(const std::string& name = {}) const;

 private:
  std::filesystem::path path_;
};

struct TemporaryFolders : Folders {
  TemporaryFolder home;
  std::string ApplicationData() const override { return home.Path(".config"); }
  std::string Documents() const override { return home.Path("Documents"); }
  std::string State() const override { return home.Path("state"); }
  std::string UserData() const override { return home.Path(".local/share"); }
  std::string ProgramFolder() const override { return home.Path("program"); }
};

// The main window as the logic sees it; windows open nothing but a note. Commands and arrangements
// are the program's own.
struct RecordingCore : CoreView {
  Program* program = nullptr;  // whose commands it gives
  MainWindowSize size{15360, 11520, 480};
  std::vector<WindowId> opened;
  int updates = 0;
  int settings_opened = 0;
  int new_foods_opened = 0;
  int exports_opened = 0;
  int backups_opened = 0;
  int restores_opened = 0;
  int imports_opened = 0;
  std::vector<std::pair<Text, Text>> items_shown;  // tag and line
  std::vector<std::pair<std::optional<DayPart>, std::string>> take_overs;
  std::vector<FoodMenu> food_menus;
  int toolbar_texts_set = 0;
  int splashes = 0;
  int abouts = 0;
  std::vector<UpdateMode> updates_opened;
  void Set_Taal() override {}
  void Set_toolbar_teksten() override { ++toolbar_texts_set; }
  void ShowMainWindow() override {}
  void BringToFront() override {}
  void UpdateStatusBar() override {}
  void UpdateCommands() override { ++updates; }
  MainWindowSize Size() const override { return size; }
  void OpenWindow(WindowId id) override { opened.push_back(id); }
  void ArrangeWindows() override;
  bool CommandEnabled(Command command) const override;
  void GiveCommand(Command command) override;
  void OpenSettings() override { ++settings_opened; }
  void ShowItem(std::string_view tag, std::string_view line) override {
    items_shown.emplace_back(tag, line);
  }
  void OpenNewFood() override { ++new_foods_opened; }
  void OpenExport() override { ++exports_opened; }
  void OpenTakeOver(std::optional<DayPart> part, const std::string& path) override {
    take_overs.emplace_back(part, path);
  }
  void OpenBackup() override { ++backups_opened; }
  void OpenRestore() override { ++restores_opened; }
  void OpenFoodImport() override { ++imports_opened; }
  void PopUpFoodMenu(const FoodMenu& enabled, ScreenPlace) override {
    food_menus.push_back(enabled);
  }
  void ShowSplash() override { ++splashes; }
  void ShowAbout() override { ++abouts; }
  void OpenUpdate(UpdateMode mode) override { updates_opened.push_back(mode); }
};

// `bare` is the machine before a first start; `prepared` has its folders determined, English texts
// in the tables and default settings.
enum class Machine { bare, prepared };

class TestProgram {
 public:
  explicit TestProgram(Machine machine = Machine::prepared);
  ~TestProgram();

  RecordingBoxes boxes;
  RecordingPointer pointer;
  FixedLocale locale;
  TemporaryFolders folders;
  FixedClock clock;
  FixedScreen screen;
  CountingEvents events;
  RecordingOpener opener;
  ListedPrinters printers;
  RecordingPrinting printing;
  RecordingFolderChooser folder_chooser;
  RecordingTransfers transfers;
  Platform platform{boxes,  pointer, locale,   folders,  clock,          screen,
                    events, opener,  printers, printing, folder_chooser, transfers};
  RecordingCore core;
  Program program{platform};

  // A day of this user, with all fifteen header rows, unchanged and saved nowhere yet.
  void OpenDay(std::string_view user, std::string_view file_name = "05032004140709.kvf");
};

// A food line with its closing terminators, "" for what is not given. Numbers stand as given.
struct FoodLine {
  std::string_view product;
  std::string_view unit = "1 piece";
  std::string_view gram = "0";
  std::string_view kj = "0";
  std::string_view kcal = "0";
  std::string_view protein = "0";
  std::string_view fat_u = "0";
  std::string_view fat_s = "0";
  std::string_view carbs = "0";
  std::string_view sodium = "0";
  std::string_view group = "0";
  std::string_view remark = "";
  std::string_view db = "";  // no thirteenth field when empty
};
[[nodiscard]] Text LineOf(const FoodLine& food);

// `text` written in a test with "|" for the end of a field and "~" for the end of a line.
[[nodiscard]] Text Packed(std::string_view text);

}  // namespace kelvora
