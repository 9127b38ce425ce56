#include "days/day_list.h"

#include <filesystem>
#include <map>
#include <set>
#include <sys/stat.h>

#include "days/browser_fixture.h"
#include "nutrition/dates.h"
#include "nutrition/numbers.h"
#include "support/file_faults.h"

namespace kelvora {
namespace {

// The order.

TEST(DateKeys, AreYearMonthDay) {
  EXPECT_EQ(DateKeyOf("05-03-04"), "040305");
  EXPECT_EQ(DateKeyOf("31/12/99"), "991231");
  EXPECT_EQ(DateKeyOf("0 1\\02-03"), "030201");
  EXPECT_EQ(DateKeyOf("050304"), "040305");
  EXPECT_EQ(DateKeyOf(""), "");
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
  const auto rows = ReadDays(program).rows;
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

TEST_F(Browser, ASeparatorOtherThanACommaCountsAsAPoint) {
  AddDay("a.kvf", {.date = "05-03-04"});
  for (const char* system : {"'", "?", "", "\xB7", "."}) {
    test.locale.separator = system;
    EXPECT_EQ(test.locale.DecimalSeparator(), ".");
    EXPECT_EQ(Column(BrowseColumn::kWeight), (std::vector<Text>{"80.50"})) << system;
  }
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
  EXPECT_TRUE(ReadDays(program).rows.empty());
  EXPECT_TRUE(test.boxes.shown.empty());
}

// What can't be read, or holds nothing to show.

TEST_F(Browser, FilesThatCannotBeReadArePassedOverAndNamedInOneBox) {
  AddDay("b.kvf", {.date = "05-03-04"});
  AddDay("d.kvf", {.date = "01-03-04"});
  AddDay("f.kvf", {.date = "02-03-04"});
  std::filesystem::create_symlink("nowhere", program.paths.FilesPath + "a.kvf");
  ASSERT_EQ(mkfifo((program.paths.FilesPath + "c.kvf").c_str(), 0600), 0);
  std::filesystem::create_symlink("nowhere", program.paths.FilesPath + "e.kvf");
  const DayList days = ReadDays(program);
  ASSERT_EQ(days.rows.size(), 3u);
  EXPECT_EQ(days.rows[0].file_name, "d.kvf");
  EXPECT_EQ(days.rows[1].file_name, "f.kvf");
  EXPECT_EQ(days.rows[2].file_name, "b.kvf");
  EXPECT_TRUE(test.boxes.shown.empty());
  TellOfUnreadDays(program, days);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  const Text& text = test.boxes.shown[0].text;
  EXPECT_TRUE(text.starts_with("An error occured.\n\nNo such file or directory: a.kvf, e.kvf\n"));
  EXPECT_TRUE(text.find(": c.kvf\n") != Text::npos) << text;
  EXPECT_TRUE(text.ends_with("\nBrelux CODE:#F3-0"));
}

TEST_F(Browser, NothingPassedOverIsNotTold) {
  AddDay("a.kvf", {.date = "05-03-04"});
  TellOfUnreadDays(program, ReadDays(program));
  EXPECT_TRUE(test.boxes.shown.empty());
}

// One value that no pattern can print doesn't hide the days behind it.
TEST_F(Browser, AValueBeyondAllMeasureLeavesTheRestOfItsRowEmpty) {
  AddDay("a.kvf", {.date = "05-03-04"});
  const Text huge(400, '9');
  AddDay("b.kvf", {.date = "06-03-04", .weight = huge});
  AddDay("c.kvf", {.date = "07-03-04"});
  const DayList days = ReadDays(program);
  ASSERT_EQ(days.rows.size(), 3u);
  EXPECT_EQ(days.rows[1].cells[BrowseColumn::kDate], "06-03-04");
  EXPECT_EQ(days.rows[1].cells[BrowseColumn::kWeight], "");
  EXPECT_EQ(days.rows[1].cells[BrowseColumn::kNutrient], "");
  EXPECT_EQ(days.rows[2].cells[BrowseColumn::kWeight], "80.50");
  TellOfUnreadDays(program, days);
  EXPECT_TRUE(LastBoxEndsWith(": b.kvf\nBrelux CODE:#F3-1"));
}

// A file with no record shows its name and nothing of the file, the day or the user before it,
// wherever it stands in the list.
TEST_F(Browser, AFileWithoutARecordHasARowWithItsNameAndEmptyCells) {
  AddUser("Bert");
  SetCurrentUser(program, "Bert");
  AddDay("berts.kvf", {.date = "07-03-04", .weight = "99"});
  ASSERT_EQ(ReadDays(program).rows.size(), 1u);  // read last before Anna's
  SetCurrentUser(program, "Anna");
  AddDay("c.kvf", {.date = "05-03-04"});
  AddDay("e.kvf", {.date = "06-03-04"});
  // The name says where it stands among the others: in front, between, behind.
  for (const char* name : {"a.kvf", "d.kvf", "f.kvf"}) {
    for (const std::string_view bytes :
         {std::string_view(""), std::string_view("\1", 1), std::string_view("\1\0", 2),
          std::string_view("\1\0\0", 3), std::string_view("\0\0\0\0", 4),
          std::string_view("\xFF\xFF\xFF\xFF", 4), std::string_view("\0\0\0\0\1\0x", 7)}) {
      WriteFileAnew(program.paths.FilesPath + name, bytes);
      const DayList days = ReadDays(program);
      ASSERT_EQ(days.rows.size(), 3u) << name << bytes.size();
      // Without a date it stands first.
      const std::array<Text, 8> expected = {
          "1", program.paths.FilesPath + name, name, "", "", "", "", ""};
      EXPECT_EQ(days.rows[0].cells, expected);
      EXPECT_EQ(days.rows[1].file_name, "c.kvf");
      EXPECT_EQ(days.rows[2].cells[BrowseColumn::kWeight], "80.50");
      TellOfUnreadDays(program, days);
      EXPECT_TRUE(test.boxes.shown.empty());
    }
    std::filesystem::remove(program.paths.FilesPath + name);
  }
}

TEST_F(Browser, ReadingDoesNotTouchTheOpenDay) {
  test.OpenDay("Anna", "open.kvf");
  const KV_data before = program.store;
  AddDay("a.kvf", {.date = "05-03-04"});
  EXPECT_EQ(ReadDays(program).rows.size(), 1u);
  EXPECT_EQ(program.store.L_gegevens, before.L_gegevens);
  EXPECT_EQ(program.store.txt_trenddata, before.txt_trenddata);
  EXPECT_EQ(program.store.KV_bestand, "open.kvf");
}

// What a folder may hold besides whole day files.

// The date of the day file of that number; no two below 33,600 are the same.
Text DateOfNumber(std::size_t number) {
  return TwoDigits(static_cast<int>(number % 28 + 1)) + "-" +
         TwoDigits(static_cast<int>(number / 28 % 12 + 1)) + "-" +
         TwoDigits(static_cast<int>(number / 336 % 100));
}

std::string NameOfNumber(std::size_t number) {
  return std::to_string(10000 + number) + ".kvf";
}

TEST_F(Browser, OfFiveThousandFilesTheBrokenOnesShowWhatTheyHold) {
  constexpr std::size_t kFiles = 5000;
  constexpr std::size_t kOfEachKind = kFiles / 50;
  for (std::size_t i = 0; i < kFiles; ++i) {
    const std::string path = program.paths.FilesPath + NameOfNumber(i);
    switch (i % 50) {
      case 1:  // holds no record, and neither does the next
        WriteFileAnew(path, "");
        break;
      case 2:
        WriteFileAnew(path, std::string_view("\0\0\0\0", 4));
        break;
      case 3:  // ends inside the header's length
        WriteFileAnew(path, std::string_view("\1\0\0\0\2\0"
                                             "5\xBD"
                                             "\0\0\7",
                                             11));
        break;
      case 4:
        std::filesystem::create_directory(path);
        break;
      default:
        AddDay(NameOfNumber(i), {.date = DateOfNumber(i)});
    }
  }
  const std::vector<DayRow> rows = ReadDays(program).rows;
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_FALSE(test.pointer.waiting);
  ASSERT_EQ(rows.size(), kFiles - kOfEachKind);
  std::map<Text, std::size_t> dates;
  double last_key = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i].cells[BrowseColumn::kNumber], std::to_string(i + 1));
    const Text& date = rows[i].cells[BrowseColumn::kDate];
    ++dates[date];
    const double key = ReadStoredNumber(DateKeyOf(date));
    EXPECT_GE(key, last_key);
    last_key = key;
  }
  EXPECT_EQ(dates[""], 3 * kOfEachKind);
  EXPECT_EQ(rows[0].cells[BrowseColumn::kBmi], "");
  for (std::size_t i = 0; i < kFiles; i += 50) EXPECT_EQ(dates[DateOfNumber(i)], 1u);
  for (std::size_t i = 5; i < kFiles; i += 50) EXPECT_EQ(dates[DateOfNumber(i)], 1u);
}

TEST_F(Browser, AnUnreadableFileAmongThousandsIsPassedOver) {
  for (std::size_t i = 0; i < 2000; ++i) AddDay(NameOfNumber(i), {.date = DateOfNumber(i)});
  std::filesystem::path folder = test.folders.home.Path();
  for (const auto& part : std::filesystem::relative(program.paths.FilesPath, folder)) {
    std::filesystem::permissions(folder, std::filesystem::perms::all);
    folder /= part;
  }
  std::filesystem::permissions(program.paths.FilesPath, std::filesystem::perms::all);
  std::filesystem::permissions(program.paths.FilesPath + NameOfNumber(1500),
                               std::filesystem::perms::none);
  DayList days;
  {
    const AsNobody nobody;
    days = ReadDays(program);
  }
  EXPECT_EQ(days.rows.size(), 1999u);
  TellOfUnreadDays(program, days);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text, "An error occured.\n\nPermission denied: " +
                                          NameOfNumber(1500) + "\nBrelux CODE:#F3-0");
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(Browser, FilesWithNamesOfEveryKindAreListed) {
  // The last two look alike as text.
  const std::array<std::string, 8> names = {"a b.kvf",          "'\"$(x)`.kvf",   "-rf.kvf",
                                            "line\nend.kvf",    "Zo\xC3\xAB.kvf", "bad\xFF.kvf",
                                            "\xE6\x97\xA5.kvf", "?.kvf"};
  std::set<std::string> expected;
  for (const std::string& name : names) {
    AddDay(name, {.date = "05-03-04"});
    expected.insert(program.paths.FilesPath + name);
  }
  std::set<std::string> listed;
  std::multiset<Text> shown;
  for (const DayRow& row : ReadDays(program).rows) {
    listed.insert(row.path);
    shown.insert(row.cells[BrowseColumn::kFile]);
  }
  EXPECT_EQ(listed, expected);
  EXPECT_EQ(shown.count("Zo\xEB.kvf"), 1u);
  EXPECT_EQ(shown.count("?.kvf"), 2u);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Browser, OtherEventsRunWhileTheDaysAreReadSortedAndMadeIntoRows) {
  for (const char* name : {"a.kvf", "b.kvf", "c.kvf"}) AddDay(name, {.date = "05-03-04"});
  EXPECT_EQ(ReadDays(program).rows.size(), 3u);
  EXPECT_EQ(test.events.yields, 9);
}

TEST_F(Browser, AReadingThatIsOvertakenEndsWithinOneStep) {
  for (const char* name : {"a.kvf", "b.kvf", "c.kvf"}) AddDay(name, {.date = "05-03-04"});
  for (const int last : {1, 2, 3, 4, 5, 6, 7, 8, 9}) {
    test.events.yields = 0;
    (void)ReadDays(program, [&] { return test.events.yields >= last; });
    EXPECT_EQ(test.events.yields, last);
    EXPECT_FALSE(test.pointer.waiting);
  }
}

// Sorting by a column.

TEST(DayListHeadings, SortFromTheWeightOnAndFlipAtEachClick) {
  DayListSort sort;
  for (const std::size_t column : {0u, 1u, 2u, 3u, 4u}) EXPECT_FALSE(ClickHeading(sort, column));
  EXPECT_FALSE(sort.column.has_value());
  EXPECT_TRUE(ClickHeading(sort, BrowseColumn::kWeight));
  EXPECT_EQ(sort.column, std::size_t{BrowseColumn::kWeight});
  EXPECT_EQ(sort.order, SortOrder::ascending);
  EXPECT_FALSE(ClickHeading(sort, BrowseColumn::kDate));
  EXPECT_TRUE(ClickHeading(sort, BrowseColumn::kWeight));
  EXPECT_EQ(sort.order, SortOrder::descending);
  EXPECT_TRUE(ClickHeading(sort, BrowseColumn::kBmi));
  EXPECT_EQ(sort.column, std::size_t{BrowseColumn::kBmi});
  EXPECT_EQ(sort.order, SortOrder::ascending);
}

TEST_F(Browser, RowsAreSortedByTheWholePartOfWhatTheyShow) {
  test.locale.separator = ",";
  // In order of dates: 80,90  79,10  80,20  100,50
  AddDay("a.kvf", {.date = "01-03-04", .weight = "80.9"});
  AddDay("b.kvf", {.date = "02-03-04", .weight = "79.1"});
  AddDay("c.kvf", {.date = "03-03-04", .weight = "80.2"});
  AddDay("d.kvf", {.date = "04-03-04", .weight = "100.5"});
  std::vector<DayRow> rows = ReadDays(program).rows;
  DayListSort sort;
  const auto numbers = [&rows] {
    Text all;
    for (const DayRow& row : rows) all += row.cells[BrowseColumn::kNumber];
    return all;
  };
  ASSERT_TRUE(ClickHeading(sort, BrowseColumn::kWeight));
  // 79, then the two of 80 in reverse, then 100.
  EXPECT_EQ(SortRows(rows, sort), (std::vector<std::uint32_t>{1, 2, 0, 3}));
  EXPECT_EQ(numbers(), "2314");
  EXPECT_EQ(rows[1].path, program.paths.FilesPath + "c.kvf");
  ASSERT_TRUE(ClickHeading(sort, BrowseColumn::kWeight));
  // Descending leaves the two of 80 as they stood.
  EXPECT_EQ(SortRows(rows, sort), (std::vector<std::uint32_t>{3, 1, 2, 0}));
  EXPECT_EQ(numbers(), "4312");
}

TEST_F(Browser, AnUnsortedListStaysAsItIs) {
  AddDay("a.kvf", {.date = "01-03-04", .weight = "80"});
  AddDay("b.kvf", {.date = "02-03-04", .weight = "70"});
  std::vector<DayRow> rows = ReadDays(program).rows;
  EXPECT_EQ(SortRows(rows, {}), (std::vector<std::uint32_t>{0, 1}));
  EXPECT_EQ(rows[0].file_name, "a.kvf");
}

TEST(RowThatIsOpened, IsTheSelectedOneInFocusOrElseTheFirstSelected) {
  EXPECT_EQ(RowToOpen({}, 3, false), std::nullopt);
  EXPECT_EQ(RowToOpen({}, 3, true), 3u);
  EXPECT_EQ(RowToOpen({}, std::nullopt, true), std::nullopt);
  for (const bool keys : {false, true}) {
    EXPECT_EQ(RowToOpen({2, 5}, 5, keys), 5u);
    EXPECT_EQ(RowToOpen({2, 5}, 3, keys), 2u);
    EXPECT_EQ(RowToOpen({2, 5}, std::nullopt, keys), 2u);
  }
}

}  // namespace
}  // namespace kelvora
