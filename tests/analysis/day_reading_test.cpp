#include "analysis/day_reading.h"

#include <filesystem>
#include <set>

#include "analysis/days_of_anna.h"
#include "support/file_faults.h"

namespace kelvora {
namespace {

using Texts = std::vector<Text>;
namespace fs = std::filesystem;

constexpr std::string_view kTooFew =
    "There are not enough days (files) filled in to make a summary.\n"
    "You need to fill in at least 2 days and save them.\n\n"
    "Fill in more days and try again.";

class ReadingOfDays : public DaysOfAnna {
 protected:
  const DayHistory& Read() {
    reading.emplace(program);
    while (reading->Lees_Dagen()) EXPECT_TRUE(test.pointer.waiting);
    return reading->Days();
  }
  Texts Lines() {
    Texts lines;
    for (const std::string_view line : reading->Days().lst_totaal) lines.emplace_back(line);
    return lines;
  }
  Text KeyOf(std::string_view date) {
    AddDay("a.kvf", {.date = date});
    AddDay("b.kvf", {.date = date});
    return Read().series.keys.at(0);
  }
  Text OnlyBox() {
    EXPECT_EQ(test.boxes.shown.size(), 1u);
    return test.boxes.shown.empty() ? Text() : test.boxes.shown[0].text;
  }

  std::optional<DayReading> reading;
};

TEST_F(ReadingOfDays, PutsTheDaysInTheOrderOfTheirDates) {
  AddDay("a.kvf", {.date = "02-01-04", .trend = "1|"});
  AddDay("b.kvf", {.date = "31-12-03", .trend = "2|"});
  AddDay("c.kvf", {.date = "01-02-04", .trend = "3|"});
  const DayHistory& days = Read();
  EXPECT_EQ(days.series.keys, (Texts{"031231", "040102", "040201"}));
  EXPECT_EQ(days.lst_files_sorted, (Texts{"b.kvf", "a.kvf", "c.kvf"}));
  EXPECT_EQ(days.series.L_data_1[0], (Texts{"2", "1", "3"}));
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(ReadingOfDays, CountsYearsByTwoDigits) {
  AddDay("a.kvf", {.date = "31-12-99"});
  AddDay("b.kvf", {.date = "01-01-00"});
  EXPECT_EQ(Read().series.keys, (Texts{"000101", "991231"}));
}

TEST_F(ReadingOfDays, KeepsEveryDayOfOneDate) {
  for (const char* file : {"a.kvf", "b.kvf"}) AddDay(file, {.date = "05-03-04"});
  AddDay("c.kvf", {.date = "01-03-04"});
  const DayHistory& days = Read();
  EXPECT_EQ(days.series.keys, (Texts{"040301", "040305", "040305"}));
  // The third changes places with the first, which so comes behind its equal.
  EXPECT_EQ(days.lst_files_sorted, (Texts{"c.kvf", "b.kvf", "a.kvf"}));
}

TEST_F(ReadingOfDays, MakesKeysOfHeadersOfEveryKind) {
  EXPECT_EQ(KeyOf("12-03-03"), "030312");
  EXPECT_EQ(KeyOf("12/03\\0 3"), "030312");
  EXPECT_EQ(KeyOf("120303"), "030312");
  EXPECT_EQ(KeyOf("12032003"), "030312");
  // A comma becomes a point, which stands in the place of a digit.
  EXPECT_EQ(KeyOf("12,03,03"), "03.012");
  EXPECT_EQ(KeyOf("abc"), "bcbcab");
  EXPECT_EQ(KeyOf("5"), "555");
  EXPECT_EQ(KeyOf(""), "");
  EXPECT_EQ(KeyOf("  "), "");
}

TEST_F(ReadingOfDays, SortsKeysThatAreNoDatesByTheirNumber) {
  // Keys "", "yzyzxy" and "000005" count as 0, 0 and 5; ties by the exchange sort: a 5 in front
  // changes places with nothing larger, then each zero goes before it.
  AddDay("a.kvf", {.date = "050000"});
  AddDay("b.kvf", {.date = ""});
  AddDay("c.kvf", {.date = "xyz"});
  EXPECT_EQ(Read().series.keys, (Texts{"", "yzyzxy", "000005"}));
}

TEST_F(ReadingOfDays, TakesAHeaderThatEndsBeforeItsDate) {
  Rec_DayFile record;
  record[DayFileField::Header] = Packed("Anna~~");
  WriteRecord(PathOf("a.kvf"), record);
  AddDay("b.kvf", {.date = "05-03-04"});
  EXPECT_EQ(Read().series.keys, (Texts{"", "040305"}));
}

TEST_F(ReadingOfDays, SplitsATrendIntoNineSeriesWithPoints) {
  AddDay("a.kvf", {.date = "01-03-04", .trend = "1520,5|8700|2071.4|45|22|250|80|2,2|80,5|"});
  AddDay("b.kvf", {.date = "02-03-04", .trend = "1|2|"});
  AddDay("c.kvf", {.date = "03-03-04", .trend = "1|2|3|4|5|6|7|8|9|10|11|12|"});
  AddDay("d.kvf", {.date = "04-03-04"});
  // A field that nothing ends is none.
  AddDay("e.kvf", {.date = "05-03-04", .trend = "1|2"});
  const auto& data = Read().series.L_data_1;
  EXPECT_EQ(data[0], (Texts{"1520.5", "1", "1", "", "1"}));
  EXPECT_EQ(data[1], (Texts{"8700", "2", "2", "", ""}));
  EXPECT_EQ(data[2], (Texts{"2071.4", "", "3", "", ""}));
  EXPECT_EQ(data[7], (Texts{"2.2", "", "8", "", ""}));
  EXPECT_EQ(data[8], (Texts{"80.5", "", "9", "", ""}));
  EXPECT_EQ(reading->Days().series.L_data_2[2], (std::vector<double>{0}));
}

TEST_F(ReadingOfDays, EndsASeriesWithADayOfNineEmptyFields) {
  AddDay("a.kvf", {.date = "01-03-04", .trend = "1|1|1|1|1|1|1|1|1|"});
  AddDay("b.kvf", {.date = "02-03-04", .trend = "|||||||||"});
  AddDay("c.kvf", {.date = "03-03-04", .trend = "9|9|9|9|9|9|9|9|9|"});
  const DaySeries& series = Read().series;
  for (std::size_t k = 0; k < kSeriesCount; ++k) {
    EXPECT_EQ(series.L_data_1[k], (Texts{"1", "", "9"}));
    EXPECT_EQ(series.L_data_2[k], (std::vector<double>{0}));
  }
}

TEST_F(ReadingOfDays, JoinsTheFoodsOfAllDaysInTheOrderOfTheDates) {
  AddDay("a.kvf", {.date = "02-03-04", .morning = "Tea|1,5|~", .evening = "Soup|2|~Rice|3|~"});
  AddDay("b.kvf", {.date = "01-03-04", .morning = "Milk|4|~", .afternoon = "Cake|5|~"});
  Read();
  EXPECT_EQ(Lines(), (Texts{Packed("Milk|4|"), Packed("Cake|5|"), Packed("Tea|1.5|"),
                            Packed("Soup|2|"), Packed("Rice|3|")}));
}

TEST_F(ReadingOfDays, TakesTheFileBeforeForOneWithoutARecord) {
  AddDay("a.kvf", {.date = "02-03-04", .trend = "22|", .morning = "Tea|~"});
  AddBytes("b.kvf", std::string(4, '\0'));
  AddDay("c.kvf", {.date = "01-03-04", .trend = "11|", .morning = "Milk|~"});
  // Its date is that of a, the file before it in the folder; so it stands between c and a, and has
  // the contents of c, the day before it.
  EXPECT_EQ(Read().lst_files_sorted, (Texts{"c.kvf", "b.kvf", "a.kvf"}));
  EXPECT_EQ(reading->Days().series.keys, (Texts{"040301", "040302", "040302"}));
  EXPECT_EQ(reading->Days().series.L_data_1[0], (Texts{"11", "11", "22"}));
  EXPECT_EQ(Lines(), (Texts{Packed("Milk|"), Packed("Milk|"), Packed("Tea|")}));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(ReadingOfDays, HasNothingForAFirstFileWithoutARecord) {
  AddBytes("a.kvf", std::string("\xFF\xFF\xFF\xFF", 4) + "rest");
  AddDay("b.kvf", {.date = "01-03-04", .trend = "11|", .morning = "Milk|~"});
  EXPECT_EQ(Read().series.keys, (Texts{"", "040301"}));
  EXPECT_EQ(reading->Days().series.L_data_1[0], (Texts{"", "11"}));
  EXPECT_EQ(Lines(), (Texts{Packed("Milk|")}));
}

TEST_F(ReadingOfDays, KeepsWhatIsThereOfCutFilesAndOfOtherContents) {
  AddDay("a.kvf", {.date = "01-03-04", .trend = "11|", .morning = "Milk|~"});
  std::string cut = ReadFile(PathOf("a.kvf"));
  AddBytes("b.kvf", cut.substr(0, 8));  // within the trend: count, length, "11"
  AddBytes("c.kvf", "");
  AddBytes("d.kvf", "This is not a day, but a letter.");
  const DayHistory& days = Read();
  EXPECT_EQ(days.series.keys.size(), 4u);
  EXPECT_EQ(days.series.keys.back(), "040301");
  EXPECT_EQ(Lines(), (Texts{Packed("Milk|")}));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(ReadingOfDays, PassesFoldersAndHiddenFilesOver) {
  fs::create_directory(PathOf("x.kvf"));
  AddDay(".hidden.kvf", {});
  AddDay("notes.txt", {});
  AddDay("B.KVF", {.date = "02-03-04"});
  AddDay("a.kvf", {.date = "01-03-04"});
  EXPECT_EQ(Read().lst_files_sorted, (Texts{"a.kvf", "B.KVF"}));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(ReadingOfDays, NamesAllThatItCouldNotReadInOneBoxAtTheEnd) {
  for (const char* file : {"a.kvf", "b.kvf", "c.kvf", "d.kvf"}) AddDay(file, {.trend = "1|"});
  reading.emplace(program);
  EXPECT_TRUE(reading->Lees_Dagen());  // the list
  fs::remove(PathOf("b.kvf"));
  fs::remove(PathOf("d.kvf"));
  while (reading->Lees_Dagen()) EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(OnlyBox(),
            "An error occured.\n\nNo such file or directory: b.kvf, d.kvf\nBrelux CODE:#F12-15");
  EXPECT_EQ(reading->Days().series.L_data_1[0], (Texts{"1", "1"}));
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(ReadingOfDays, GoesOnWithOneDayOfTwo) {
  AddDay("a.kvf", {.trend = "1|"});
  fs::create_symlink("nowhere", PathOf("b.kvf"));
  EXPECT_EQ(Read().series.keys, (Texts{"040305"}));
  EXPECT_EQ(OnlyBox(),
            "An error occured.\n\nNo such file or directory: b.kvf\nBrelux CODE:#F12-15");
}

TEST_F(ReadingOfDays, EndsWithNothingWhereNoFileCanBeRead) {
  for (const char* file : {"a.kvf", "b.kvf"}) fs::create_symlink("nowhere", PathOf(file));
  const DayHistory& days = Read();
  EXPECT_TRUE(days.series.keys.empty());
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(ReadingOfDays, OfOneDayTellsSoWithANormalPointer) {
  AddDay("a.kvf", {.trend = "1|"});
  const DayHistory& days = Read();
  EXPECT_TRUE(days.series.keys.empty());
  ASSERT_EQ(OnlyBox(), kTooFew);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::warning);
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(ReadingOfDays, OfNoDayTellsSoAndLeavesThePointerBusy) {
  Read();
  EXPECT_EQ(OnlyBox(), kTooFew);
  EXPECT_TRUE(test.pointer.waiting);
}

TEST_F(ReadingOfDays, OfAUserWithoutAFolderOfDaysIsThatOfNoDay) {
  fs::remove(program.paths.FilesPath);
  Read();
  EXPECT_EQ(OnlyBox(), kTooFew);
}

TEST_F(ReadingOfDays, WithoutAUserStopsAtOnce) {
  program.paths.FilesPath.clear();
  Read();
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_TRUE(test.pointer.waiting);
}

TEST_F(ReadingOfDays, StopsAtAValueThatNoNumberHolds) {
  AddDay("a.kvf", {.date = "01-03-04", .trend = "5|"});
  const Text huge = Text(400, '9') + "|";
  AddDay("b.kvf", {.date = "02-03-04", .trend = huge, .morning = "Milk|~"});
  const DayHistory& days = Read();
  EXPECT_TRUE(OnlyBox().ends_with("Brelux CODE:#F12-15"));
  EXPECT_EQ(days.series.keys.size(), 2u);
  EXPECT_EQ(Lines(), (Texts{Packed("Milk|")}));
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(ReadingOfDays, TakesASmallStepAtATime) {
  for (const char* file : {"a.kvf", "b.kvf", "c.kvf"}) AddDay(file, {});
  reading.emplace(program);
  std::vector<ReadingStage> stages;
  std::set<std::pair<ReadingStage, std::size_t>> steps;
  do {
    const Progress progress = reading->HowFar();
    EXPECT_LT(progress.done, progress.of);
    EXPECT_TRUE(steps.emplace(reading->Stage(), progress.done).second);
    if (stages.empty() || stages.back() != reading->Stage()) stages.push_back(reading->Stage());
  } while (reading->Lees_Dagen());
  EXPECT_EQ(stages, (std::vector{ReadingStage::listing, ReadingStage::reading_data,
                                 ReadingStage::sorting_data, ReadingStage::reading_files,
                                 ReadingStage::converting}));
  // The list, each file, the sort, each day, nine series.
  EXPECT_EQ(steps.size(), 1u + 3 + 1 + 3 + 9);
}

TEST_F(ReadingOfDays, GivesThePointerBackWhereverItIsGivenUp) {
  for (const char* file : {"a.kvf", "b.kvf"}) AddDay(file, {});
  for (int steps = 0; steps < 15; ++steps) {
    reading.emplace(program);
    for (int i = 0; i < steps; ++i) reading->Lees_Dagen();
    reading.reset();
    EXPECT_FALSE(test.pointer.waiting) << steps;
  }
  reading.emplace(program);
  reading->Lees_Dagen();
  reading->GiveUp();
  EXPECT_FALSE(test.pointer.waiting);
  EXPECT_FALSE(reading->Lees_Dagen());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(ReadingOfDays, LeavesTheOpenDayAlone) {
  test.OpenDay("Anna");
  program.store.L_ochtend.Add("Line");
  for (const char* file : {"a.kvf", "b.kvf"}) AddDay(file, {.morning = "Tea|~"});
  const TextList header = program.store.L_gegevens;
  Read();
  EXPECT_EQ(program.store.L_gegevens, header);
  EXPECT_EQ(program.store.L_ochtend.Count(), 1u);
  EXPECT_FALSE(program.opened_day.has_value());
}

TEST_F(ReadingOfDays, SurvivesAnInputErrorAtEveryCall) {
  for (const char* file : {"a.kvf", "b.kvf", "c.kvf"}) AddDay(file, {.trend = "1|"});
  for (std::size_t call = 0;; ++call) {
    test.boxes.shown.clear();
    {
      const InjectedFault fault({.reading_call_fails = call});
      Read();
      if (!InjectedFault::ReadingCallFailed()) break;
    }
    ASSERT_EQ(test.boxes.shown.size(), 1u) << call;
    EXPECT_TRUE(OnlyBox().ends_with("Brelux CODE:#F12-15")) << call;
    EXPECT_FALSE(test.pointer.waiting) << call;
  }
  EXPECT_EQ(reading->Days().series.keys.size(), 3u);
}

}  // namespace
}  // namespace kelvora
