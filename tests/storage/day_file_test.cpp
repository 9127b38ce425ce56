#include "storage/day_file.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "days/open_day.h"
#include "nutrition/totals.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr FoodLine kBread{.product = "Bread", .gram = "35", .kcal = "82", .sodium = "0.172"};

std::string DayPath(const TestProgram& test) {
  return test.program.paths.FilesPath + "05032004140709.kvf";
}

TEST(DayFile, IsSixStringsInTheirOrder) {
  TestProgram test;
  test.OpenDay("Anna");
  test.program.store.txt_trenddata = "trend";
  test.program.store.txt_notities = "line 1\r\nline 2";
  test.program.store.L_ochtend.Add(LineOf(kBread));
  test.program.store.L_avond.Add(LineOf({.product = "Soup"}));
  SaveDay(test.program);
  const auto record = ReadFirstRecord<Rec_DayFile>(DayPath(test));
  ASSERT_TRUE(record.has_value());
  EXPECT_EQ((*record)[DayFileField::Trend], "trend");
  EXPECT_EQ((*record)[DayFileField::Notes], "line 1\r\nline 2");
  EXPECT_EQ((*record)[DayFileField::Header],
            Packed("Anna~~~~~1.80~80.5~Male~42~05-03-04~75~Friday~~~~"));
  EXPECT_EQ((*record)[DayFileField::Morning], Packed("Bread|1 piece|35|0|82|0|0|0|0|0.172|0||~"));
  EXPECT_EQ((*record)[DayFileField::Afternoon], "");
  EXPECT_EQ((*record)[DayFileField::Evening], Packed("Soup|1 piece|0|0|0|0|0|0|0|0|0||~"));
}

TEST(DayFile, SavingTwiceWritesTheSameBytes) {
  TestProgram test;
  test.OpenDay("Anna");
  test.program.store.L_ochtend.Add(LineOf(kBread));
  SetFileChanged(test.program, true);
  SaveDay(test.program);
  const std::string first = ReadFile(DayPath(test));
  EXPECT_FALSE(test.program.day.FileChanged);
  SaveDay(test.program);
  EXPECT_EQ(ReadFile(DayPath(test)), first);
}

TEST(DayFile, ADayWrittenUnderACommaLocaleOpensAndTotalsAlikeUnderAPointLocale) {
  TestProgram comma;
  comma.locale.separator = comma.program.StartSeparator = ",";
  comma.OpenDay("Anna");
  comma.program.store.L_ochtend.Add(
      LineOf({.product = "Own dish", .gram = "12,5", .kj = "100,25"}));
  comma.program.store.L_ochtend.Add(LineOf({.product = "Shop dish", .gram = "12.5", .kj = "0.5"}));
  Refresh_Totalen(comma.program);
  EXPECT_TRUE(comma.program.store.txt_trenddata.starts_with(Packed("25|100,75|")));
  SaveDay(comma.program);

  TestProgram point;
  const Rec_DayFile written = *ReadFirstRecord<Rec_DayFile>(DayPath(comma));
  point.OpenDay("Anna", "other.kvf");
  WriteRecord(point.program.paths.FilesPath + "05032004140709.kvf", written);
  LoadDay(point.program, point.program.paths.FilesPath, "05032004140709.kvf");
  EXPECT_EQ(point.program.store.L_ochtend, comma.program.store.L_ochtend);
  AfterOpenDay(point.program);
  EXPECT_EQ(point.program.store.txt_trenddata, Packed("25|100.75|0|0|0|0|0|0|80.5|"));
  EXPECT_FALSE(point.program.day.FileChanged);
}

TEST(DayFile, SavingWithNoOpenDayDoesNothing) {
  TestProgram test;
  SaveDay(test.program);
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_TRUE(std::filesystem::is_empty(test.program.paths.UsersPath));
}

TEST(DayFile, AFailingSaveShowsItsCodeAndTheDayStaysChanged) {
  TestProgram test;
  test.OpenDay("Anna");
  SetFileChanged(test.program, true);
  std::filesystem::remove_all(test.program.paths.FilesPath);
  SaveDay(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured.\n\nNo such file or directory\nBrelux CODE:#FF1-9");
  EXPECT_TRUE(test.program.day.FileChanged);
  EXPECT_EQ(test.program.store.L_gegevens.Count(), 15u);
  std::filesystem::create_directories(test.program.paths.FilesPath);
  SaveDay(test.program);
  EXPECT_FALSE(test.program.day.FileChanged);
  EXPECT_TRUE(std::filesystem::exists(DayPath(test)));
}

TEST(DayFile, AMissingFileChangesNothing) {
  TestProgram test;
  test.OpenDay("Anna");
  LoadDay(test.program, test.program.paths.FilesPath, "missing.kvf");
  EXPECT_TRUE(test.program.store.DayIsOpen());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(DayFile, OpeningAsksAboutUnsavedChangesAndNoKeepsTheDay) {
  TestProgram test;
  test.OpenDay("Anna");
  SaveDay(test.program);
  test.program.store.L_middag.Add(LineOf(kBread));
  SetFileChanged(test.program, true);
  test.boxes.answers = {BoxAnswer::no, BoxAnswer::yes};
  LoadDay(test.program, test.program.paths.FilesPath, "05032004140709.kvf");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].title, "Open file");
  EXPECT_EQ(test.boxes.shown[0].text,
            "You are going to open another Kelvora FOOD file.\n"
            "The file that you are working in is not saved yet.\n\n"
            "Are you sure that you want to open another file?");
  EXPECT_EQ(test.program.store.L_middag.Count(), 1u);
  EXPECT_FALSE(test.pointer.waiting);
  LoadDay(test.program, test.program.paths.FilesPath, "05032004140709.kvf");
  EXPECT_TRUE(test.program.store.L_middag.Empty());
  EXPECT_FALSE(test.program.day.FileChanged);
}

TEST(DayFile, AFileCutShortOpensWithWhatIsThere) {
  TestProgram test;
  test.OpenDay("Anna");
  test.program.store.L_ochtend.Add(LineOf(kBread));
  SaveDay(test.program);
  const std::string whole = ReadFile(DayPath(test));
  WriteFileAnew(DayPath(test), std::string_view(whole).substr(0, 20));
  LoadDay(test.program, test.program.paths.FilesPath, "05032004140709.kvf");
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(test.program.store.KV_bestand, "05032004140709.kvf");
  EXPECT_TRUE(test.program.store.L_ochtend.Empty());
}

TEST(DayFile, AFileWithoutARecordFailsBeforeAnyReadAndFallsBackOnTheLastOneAfter) {
  TestProgram test;
  test.OpenDay("Anna");
  test.program.store.L_ochtend.Add(LineOf(kBread));
  SaveDay(test.program);
  WriteFileAnew(test.program.paths.FilesPath + "none.kvf", std::string(4, '\0'));
  LoadDay(test.program, test.program.paths.FilesPath, "none.kvf");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF1-8"));
  EXPECT_FALSE(test.program.store.DayIsOpen());

  LoadDay(test.program, test.program.paths.FilesPath, "05032004140709.kvf");
  LoadDay(test.program, test.program.paths.FilesPath, "none.kvf");
  EXPECT_EQ(test.program.store.KV_bestand, "none.kvf");
  EXPECT_EQ(test.program.store.L_ochtend.Count(), 1u);
  EXPECT_EQ(test.boxes.shown.size(), 1u);
}

TEST(DayFile, ClosingEmptiesTheDayAndLeavesTheFoodLists) {
  TestProgram test;
  test.OpenDay("Anna");
  test.program.store.L_ochtend.Add(LineOf(kBread));
  test.program.store.txt_notities = "note";
  test.program.store.Custom_list.Add(LineOf(kBread));
  test.program.day.selected_names[0] = "Bread";
  test.program.day.DayDialogMode = DayDialogMode::day_settings;
  SetFileChanged(test.program, true);
  CloseDay(test.program);
  const KV_data& store = test.program.store;
  EXPECT_TRUE(store.L_gegevens.Empty());
  EXPECT_TRUE(store.L_ochtend.Empty());
  EXPECT_EQ(store.txt_notities, "");
  EXPECT_FALSE(store.DayIsOpen());
  EXPECT_EQ(store.Custom_list.Count(), 1u);
  EXPECT_EQ(test.program.day.selected_names[0], "");
  EXPECT_EQ(test.program.day.DayDialogMode, DayDialogMode::new_day);
  EXPECT_FALSE(test.program.day.FileChanged);
}

// Windows that write down what is asked of them.
template <class View>
struct Noting : View {
  Noting(std::string window_name, std::vector<std::string>& log) : name(window_name), notes(log) {}
  void CloseWindow() override { notes.push_back(name); }
  void Set_Taal() override {}
  std::string name;
  std::vector<std::string>& notes;
};
struct NotingLists : Noting<FoodListsView> {
  using Noting::Noting;
  void Toon_Standaardlijst() override {}
  void Populate_Food_List_Custom() override { notes.push_back("own"); }
  void Populate_Food_List_Favo() override { notes.push_back("favourites"); }
};
struct NotingConsumption : Noting<ConsumptionView> {
  using Noting::Noting;
  void Refresh_Consumpties() override {}
  void ShowTotals(const ConsumptionTotals&) override {}
};
struct NotingSummary : Noting<DaySummaryView> {
  using Noting::Noting;
  void Refresh_Daguittreksel() override {}
  void Maak_Voedingsbehoefte(const DayTotals&) override {}
};

TEST(DayFile, ClosingReloadsTheFoodListsAndClosesTheWindowsInTheirOrder) {
  TestProgram test;
  test.OpenDay("Anna");
  std::vector<std::string> notes;
  NotingLists lists("lists", notes);
  NotingSummary summary("summary", notes);
  std::array windows = {NotingConsumption("morning", notes), NotingConsumption("afternoon", notes),
                        NotingConsumption("evening", notes)};
  test.program.windows.lists = &lists;
  test.program.windows.day_summary = &summary;
  for (std::size_t i = 0; i < 3; ++i) test.program.windows.consumption[i] = &windows[i];
  CloseDay(test.program);
  EXPECT_EQ(notes, (std::vector<std::string>{"own", "favourites", "lists", "summary", "morning",
                                             "afternoon", "evening"}));
}

TEST(DayFile, ClosingEmptiesEveryScratchListOfTheDay) {
  TestProgram test;
  KV_data& store = test.program.store;
  for (TextList* list :
       {&store.temp_filter, &store.Dupe_list, &store.Dupe_list_teller, &store.var_filter}) {
    list->Add("left over");
  }
  CloseDay(test.program);
  for (const TextList* list :
       {&store.temp_filter, &store.Dupe_list, &store.Dupe_list_teller, &store.var_filter}) {
    EXPECT_TRUE(list->Empty());
  }
}

TEST(DayFile, ADayWithoutConsumptionsHasThreeEmptyBlocksAndAFullHeader) {
  TestProgram test;
  test.OpenDay("Anna");
  SaveDay(test.program);
  // The bytes from outside: count, two empty texts, the header of 15 rows, three empty blocks.
  const Text header = Packed("Anna~~~~~1.80~80.5~Male~42~05-03-04~75~Friday~~~~");
  EXPECT_EQ(ReadFile(DayPath(test)), std::string("\1\0\0\0\0\0\0\0", 8) +
                                         static_cast<char>(header.size()) + '\0' + header +
                                         std::string(6, '\0'));
}

TEST(AfterOpening, BringsTheChosenArrangementAndClearsTheMark) {
  TestProgram test;
  test.OpenDay("Anna");
  test.program.settings[Setting::chk_all_screens] = "1";
  SetFileChanged(test.program, true);
  AfterOpenDay(test.program);
  EXPECT_EQ(test.core.opened,
            (std::vector<WindowId>{WindowId::morning, WindowId::afternoon, WindowId::evening,
                                   WindowId::lists, WindowId::day_summary}));
  EXPECT_EQ(test.program.store.txt_trenddata, Packed("0|0|0|0|0|0|0|0|80.5|"));
  EXPECT_FALSE(test.program.day.FileChanged);
}

TEST(DayFile, ANewNameIsTheMomentOfItsCreation) {
  FixedLocale locale;
  const LocalTime moment{.year = 2004, .month = 3, .day = 5, .hour = 14, .minute = 7, .second = 9};
  EXPECT_EQ(NewDayFileName(locale, moment), "0503200414079.kvf");
  const LocalTime later{.year = 2004, .month = 3, .day = 5, .hour = 14, .minute = 7, .second = 42};
  EXPECT_EQ(NewDayFileName(locale, later), "05032004140742.kvf");
}

TEST(DayFile, ANewNameDropsWhateverTheLocalePutsBetween) {
  FixedLocale locale;
  const LocalTime moment{.year = 2004, .month = 3, .day = 5, .hour = 2, .minute = 7, .second = 42};
  for (const char* mark : {"-", ":", "\\", " "}) {
    for (const char* suffix : {"", " PM", " am", " p.m.", "A.M."}) {
      locale.date_mark = mark;
      locale.time_suffix = suffix;
      EXPECT_EQ(NewDayFileName(locale, moment), "05032004020742.kvf") << mark << suffix;
    }
  }
}

TEST(NewDay, AsksAboutUnsavedChangesAndNoDoesNothing) {
  TestProgram test;
  test.OpenDay("Anna");
  SetFileChanged(test.program, true);
  test.boxes.answers = {BoxAnswer::no, BoxAnswer::yes};
  BeginNewDay(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].title, "New file");
  EXPECT_EQ(test.boxes.shown[0].text,
            "You're going to make a new file.\n"
            "Changes that haven't been saved yet will be lost.\n\n"
            "Do you want to start a new file?");
  EXPECT_TRUE(test.program.store.DayIsOpen());
  EXPECT_TRUE(test.core.opened.empty());
  BeginNewDay(test.program);
  EXPECT_FALSE(test.program.store.DayIsOpen());
  EXPECT_EQ(test.core.opened, std::vector<WindowId>{WindowId::day_settings});
}

TEST(NewDay, WithNothingUnsavedThereIsNoQuestion) {
  TestProgram test;
  test.OpenDay("Anna");
  BeginNewDay(test.program);
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_FALSE(test.program.store.DayIsOpen());
  EXPECT_EQ(test.program.paths.UserName, "Anna");
}

}  // namespace
}  // namespace kelvora
