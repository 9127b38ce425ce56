#include "days/browser.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>

#include "storage/folders.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

// What is laid down of a day file for a test.
struct Day {
  std::string_view date;
  std::string_view weekday = "Friday";
  std::string_view weight = "80.5";
  std::string_view height = "1.80";
  std::string_view trend = "10|20.4|30.5|1.4|2.5|3.6|4.5|0.5|80.5|";
};

struct RecordingBrowser : BrowserView {
  int closed = 0;
  int refreshed = 0;
  void CloseWindow() override { ++closed; }
  void Set_Taal() override {}
  void Refresh_GebruikersLijst() override {}
  void Refresh_Files() override { ++refreshed; }
};

class Browser : public testing::Test {
 protected:
  Browser() {
    program.profile[ProfileField::type_prioriteit] = "1";
    AddUser("Anna");
    SetCurrentUser(program, "Anna");
  }

  void AddUser(std::string_view name) {
    MakeUserFolders(program.paths, name);
    Rec_Profile profile;
    profile[ProfileField::name] = name;
    profile[ProfileField::type_prioriteit] = "1";
    WriteRecord(ProfileFile(program.paths, name), profile);
  }

  void AddDay(const std::string& file_name, const Day& day) {
    TextList header;
    for (const std::string_view row :
         {std::string_view("Anna"), std::string_view(), std::string_view(), std::string_view(),
          std::string_view(), day.height, day.weight, std::string_view("Male"),
          std::string_view("42"), day.date, std::string_view("75"), day.weekday, std::string_view(),
          std::string_view(), std::string_view()}) {
      header.Add(row);
    }
    Rec_DayFile record;
    record[DayFileField::Trend] = Packed(day.trend);
    record[DayFileField::Header] = PackBlock(header);
    WriteRecord(program.paths.FilesPath + file_name, record);
  }

  std::vector<Text> Column(std::size_t column) {
    std::vector<Text> cells;
    for (const DayRow& row : ReadDays(program)) cells.push_back(row.cells[column]);
    return cells;
  }

  bool LastBoxEndsWith(std::string_view code) {
    return !test.boxes.shown.empty() && test.boxes.shown.back().text.ends_with(code);
  }

  TestProgram test;
  Program& program = test.program;
};

// The order.

TEST(DateKeys, AreYearMonthDay) {
  EXPECT_EQ(DateKeyOf("05-03-04"), "040305");
  EXPECT_EQ(DateKeyOf("31/12/99"), "991231");
  EXPECT_EQ(DateKeyOf("0 1\\02-03"), "030201");
  EXPECT_EQ(DateKeyOf("050304"), "040305");
  EXPECT_EQ(DateKeyOf(""), "");
}

TEST(ExchangeSort, LeavesItsOwnOrderOfEqualKeys) {
  CountingEvents events;
  // The 1 at the end changes places with the first 3, which so comes behind its equal.
  EXPECT_EQ(ExchangeSorted({3, 3, 1}, events), (std::vector<std::size_t>{2, 1, 0}));
  EXPECT_EQ(ExchangeSorted({2, 1, 1}, events), (std::vector<std::size_t>{1, 2, 0}));
  EXPECT_EQ(ExchangeSorted({}, events), (std::vector<std::size_t>{}));
  EXPECT_EQ(ExchangeSorted({7}, events), (std::vector<std::size_t>{0}));
}

TEST(ExchangeSort, YieldsOnceAPassAndSortsAnything) {
  CountingEvents events;
  std::mt19937 random(1);
  std::vector<double> keys(300);
  for (double& key : keys) key = static_cast<double>(random() % 40);
  std::vector<double> sorted;
  for (const std::size_t place : ExchangeSorted(keys, events)) sorted.push_back(keys[place]);
  EXPECT_EQ(events.yields, 300);
  std::ranges::sort(keys);
  EXPECT_EQ(sorted, keys);
}

// The list.

TEST_F(Browser, ListsTheDaysOldestFirstByTwoDigitYears) {
  AddDay("1.kvf", {.date = "01-01-99"});
  AddDay("2.kvf", {.date = "05-03-04"});
  AddDay("3.kvf", {.date = "31-12-03"});
  EXPECT_EQ(Column(BrowseColumn::kDate), (std::vector<Text>{"31-12-03", "05-03-04", "01-01-99"}));
  EXPECT_EQ(Column(BrowseColumn::kNumber), (std::vector<Text>{"1", "2", "3"}));
  EXPECT_EQ(Column(BrowseColumn::kFile), (std::vector<Text>{"3.kvf", "2.kvf", "1.kvf"}));
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(Browser, ARowTellsTheKeyFiguresOfItsDay) {
  AddDay("a.kvf", {.date = "05-03-04", .weight = "80,5", .height = "1,80"});
  const auto rows = ReadDays(program);
  ASSERT_EQ(rows.size(), 1u);
  // 80.5 / (1.80 x 1.80) = 24.8457
  const std::array<Text, 8> expected = {
      "1", program.paths.FilesPath + "a.kvf", "a.kvf", "05-03-04", "Friday", "80.50", "24.85",
      "31"};
  EXPECT_EQ(rows[0].cells, expected);
  EXPECT_EQ(rows[0].folder, program.paths.FilesPath);
  EXPECT_EQ(rows[0].file_name, "a.kvf");
}

TEST_F(Browser, WordsAreShownAsTheyStand) {
  AddDay("a.kvf", {.date = "05-03-04", .weekday = "Fri,day 1"});
  EXPECT_EQ(Column(BrowseColumn::kDay), (std::vector<Text>{"Fri,day 1"}));
}

TEST_F(Browser, WeightAndDateFollowTheUnitSystem) {
  AddDay("a.kvf", {.date = "05-03-04"});
  program.settings[Setting::opt_system] = "1";
  EXPECT_EQ(Column(BrowseColumn::kWeight), (std::vector<Text>{"177.47"}));  // 177.4721 pounds
  EXPECT_EQ(Column(BrowseColumn::kDate), (std::vector<Text>{"03-05-04"}));
  program.settings[Setting::opt_system] = "2";
  EXPECT_EQ(Column(BrowseColumn::kWeight), (std::vector<Text>{"12.7"}));  // 12.6766 stones
  EXPECT_EQ(Column(BrowseColumn::kDate), (std::vector<Text>{"05-03-04"}));
}

TEST_F(Browser, NumbersTakeTheSeparatorOfTheLocale) {
  test.locale.separator = ",";
  AddDay("a.kvf", {.date = "05-03-04"});
  EXPECT_EQ(Column(BrowseColumn::kWeight), (std::vector<Text>{"80,50"}));
  program.settings[Setting::opt_system] = "1";
  EXPECT_EQ(Column(BrowseColumn::kWeight), (std::vector<Text>{"177,47"}));
}

TEST_F(Browser, TheLastColumnIsThatOfThePriority) {
  struct Expected {
    const char* code;
    Text heading;
    Text value;
  };
  AddDay("a.kvf", {.date = "05-03-04"});
  for (const auto& [code, heading, value] :
       {Expected{"0", "Kj ", "20"}, Expected{"1", "Kcal", "31"}, Expected{"2", "Fat(u)", "1"},
        Expected{"3", "Fat(s)", "3"}, Expected{"4", "Carb.", "4"}, Expected{"5", "Protein", "5"}}) {
    program.profile[ProfileField::type_prioriteit] = code;
    EXPECT_EQ(Column(BrowseColumn::kNutrient), (std::vector<Text>{value})) << code;
    const std::array<Text, 8> headings = {"#",   "Filenamefull", "Filename", "Date",
                                          "Day", "Weight",       "BMI",      heading};
    EXPECT_EQ(BrowseHeadings(program), headings);
  }
}

TEST_F(Browser, ADayWithoutTrendTextShowsZero) {
  AddDay("a.kvf", {.date = "05-03-04", .trend = ""});
  EXPECT_EQ(Column(BrowseColumn::kNutrient), (std::vector<Text>{"0"}));
}

TEST_F(Browser, OnlyDayFilesAreListed) {
  AddDay("a.kvf", {.date = "05-03-04"});
  AddDay("a.bak", {.date = "06-03-04"});
  std::filesystem::create_directory(program.paths.FilesPath + "folder.kvf");
  EXPECT_EQ(Column(BrowseColumn::kFile), (std::vector<Text>{"a.kvf"}));
  EXPECT_EQ(program.store.lst_files.Count(), 1u);
}

TEST_F(Browser, AUserWithoutDaysHasAnEmptyListAndNoMessage) {
  EXPECT_TRUE(ReadDays(program).empty());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Browser, AFileThatCannotBeReadEndsTheListWithItsCode) {
  AddDay("a.kvf", {.date = "05-03-04"});
  std::filesystem::create_symlink("nowhere", program.paths.FilesPath + "b.kvf");
  AddDay("c.kvf", {.date = "01-03-04"});
  EXPECT_EQ(Column(BrowseColumn::kFile), (std::vector<Text>{"a.kvf"}));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured.\n\nNo such file or directory\nBrelux CODE:#F3-0");
}

TEST_F(Browser, AValueBeyondAllMeasureEndsTheListWithACodeOfItsOwn) {
  AddDay("a.kvf", {.date = "05-03-04"});
  const Text huge(400, '9');
  AddDay("b.kvf", {.date = "06-03-04", .weight = huge});
  AddDay("c.kvf", {.date = "07-03-04"});
  EXPECT_EQ(ReadDays(program).size(), 1u);
  EXPECT_TRUE(LastBoxEndsWith("Brelux CODE:#F3-1"));
}

TEST_F(Browser, ReadingDoesNotTouchTheOpenDay) {
  test.OpenDay("Anna", "open.kvf");
  const KV_data before = program.store;
  AddDay("a.kvf", {.date = "05-03-04"});
  EXPECT_EQ(ReadDays(program).size(), 1u);
  EXPECT_EQ(program.store.L_gegevens, before.L_gegevens);
  EXPECT_EQ(program.store.txt_trenddata, before.txt_trenddata);
  EXPECT_EQ(program.store.KV_bestand, "open.kvf");
}

TEST_F(Browser, AFolderWithoutAProfileEndsTheUserListWithItsCode) {
  std::filesystem::create_directories(program.paths.UsersPath + "Bert");
  AddUser("Carl");
  const TextList names = UsersToBrowse(program);
  ASSERT_EQ(names.Count(), 1u);
  EXPECT_EQ(names[0], "Anna");
  EXPECT_TRUE(LastBoxEndsWith("Brelux CODE:#F3-2"));
}

// Another user.

TEST_F(Browser, TheCurrentUserChosenAgainChangesNothing) {
  test.OpenDay("Anna");
  EXPECT_EQ(SwitchUser(program, "Anna"), UserSwitch::same);
  EXPECT_TRUE(program.store.DayIsOpen());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Browser, WithADayOpenAnotherUserIsAskedForFirst) {
  AddUser("Bert");
  RecordingBrowser window;
  program.windows.browser = &window;
  test.OpenDay("Anna");
  test.boxes.answers = {BoxAnswer::no};
  EXPECT_EQ(SwitchUser(program, "Bert"), UserSwitch::refused);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  const Box& box = test.boxes.shown[0];
  EXPECT_EQ(box.title, "Switch to another user.");
  EXPECT_EQ(box.text,
            "You're going to switch to another Kelvora FOOD user.\nThe currently opened file will "
            "be closed and changes will be lost.\n\nDo you want to switch to another Kelvora FOOD "
            "user?");
  EXPECT_EQ(box.icon, BoxIcon::question);
  EXPECT_EQ(box.buttons, BoxButtons::yes_no);
  EXPECT_EQ(program.paths.UserName, "Anna");
  EXPECT_TRUE(program.store.DayIsOpen());
  EXPECT_EQ(window.refreshed, 0);

  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_EQ(SwitchUser(program, "Bert"), UserSwitch::switched);
  EXPECT_EQ(program.paths.UserName, "Bert");
  EXPECT_EQ(program.paths.FilesPath, program.paths.UsersPath + "Bert/Files/");
  EXPECT_EQ(program.profile[ProfileField::name], "Bert");
  EXPECT_FALSE(program.store.DayIsOpen());
  EXPECT_TRUE(program.store.L_gegevens.Empty());
  EXPECT_EQ(window.refreshed, 1);
  EXPECT_GT(test.core.updates, 0);
}

TEST_F(Browser, WithoutADayNothingIsAsked) {
  AddUser("Bert");
  EXPECT_EQ(SwitchUser(program, "Bert"), UserSwitch::switched);
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(program.paths.UserName, "Bert");
}

// Opening a day.

class OpeningADay : public Browser {
 protected:
  OpeningADay() {
    program.windows.browser = &window;
    AddDay("a.kvf", {.date = "05-03-04", .weight = "81"});
  }
  RecordingBrowser window;
};

TEST_F(OpeningADay, LoadsItClosesTheBrowserAndArrangesTheWindows) {
  const auto rows = ReadDays(program);
  ASSERT_EQ(rows.size(), 1u);
  OpenDayOf(program, rows[0]);
  EXPECT_EQ(program.store.KV_bestand, "a.kvf");
  EXPECT_EQ(program.store.L_gegevens[HeaderRow::kDate], "05-03-04");
  EXPECT_FALSE(program.day.FileChanged);
  EXPECT_GE(window.closed, 1);
  EXPECT_EQ(test.core.opened, (std::vector<WindowId>{WindowId::morning, WindowId::afternoon,
                                                     WindowId::evening, WindowId::lists}));
  // Re-totalled: the trend text of the file was that of other foods.
  EXPECT_EQ(program.store.txt_trenddata, Packed("0|0|0|0|0|0|0|0|81|"));
}

TEST_F(OpeningADay, ARefusalKeepsTheUnsavedDayAndItsMark) {
  const auto rows = ReadDays(program);
  test.OpenDay("Anna", "open.kvf");
  program.day.FileChanged = true;
  test.boxes.answers = {BoxAnswer::no};
  OpenDayOf(program, rows[0]);
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(program.store.KV_bestand, "open.kvf");
  EXPECT_TRUE(program.day.FileChanged);
  EXPECT_EQ(window.closed, 0);
  EXPECT_TRUE(test.core.opened.empty());
}

TEST_F(OpeningADay, AFileThatIsGoneLeavesTheBrowserOpen) {
  const auto rows = ReadDays(program);
  std::filesystem::remove(program.paths.FilesPath + "a.kvf");
  OpenDayOf(program, rows[0]);
  EXPECT_FALSE(program.store.DayIsOpen());
  EXPECT_EQ(window.closed, 0);
}

// The profile pane.

TEST_F(Browser, TheProfilePaneShowsTheUserInTheUnitsOfTheSettings) {
  Rec_Profile& profile = program.profile;
  profile[ProfileField::reference] = "REF-7";
  profile[ProfileField::weight] = "70";
  profile[ProfileField::goal_weight] = "80,5";
  profile[ProfileField::height] = "1.80";
  profile[ProfileField::gender] = "Female";
  profile[ProfileField::age] = "42";
  using Labels = std::array<Text, 6>;
  ProfilePane pane = ProfilePaneOf(program);
  EXPECT_EQ(pane.heading, "Profile of Anna:");
  EXPECT_EQ(pane.lbl_pr, (Labels{"REF-7", "70.00 Kg ", "80.50 Kg ", "1.80 Meter", "Female", "42"}));
  program.settings[Setting::opt_system] = "1";
  EXPECT_EQ(ProfilePaneOf(program).lbl_pr,
            (Labels{"REF-7", "154.32 Lbs", "177.47 Lbs", "5'11''", "Female", "42"}));
  program.settings[Setting::opt_system] = "2";
  EXPECT_EQ(ProfilePaneOf(program).lbl_pr,
            (Labels{"REF-7", "11.0 Stones", "12.7 Stones", "5'11''", "Female", "42"}));
  EXPECT_EQ(profile[ProfileField::goal_weight], "80,5");
}

TEST_F(Browser, TheProfilePaneIsEmptyWithoutAUserAndWithoutValues) {
  EXPECT_EQ(ProfilePaneOf(program).lbl_pr, (std::array<Text, 6>{}));
  program.paths.UserName.clear();
  EXPECT_EQ(ProfilePaneOf(program).heading, "");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Browser, TickingTheProfilePaneIsSavedAtOnce) {
  EXPECT_TRUE(ProfilePaneShown(program));
  SetProfilePaneShown(program, false);
  EXPECT_FALSE(ProfilePaneShown(program));
  const auto saved = ReadFirstRecord<Rec_Settings>(program.paths.SettingsFile);
  ASSERT_TRUE(saved.has_value());
  EXPECT_EQ((*saved)[Setting::chk_profiel], "0");
}

}  // namespace
}  // namespace kelvora
