#include "output/export_list.h"

#include <sys/stat.h>

#include "output/export_fixture.h"
#include "support/file_faults.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

class ExportedDays : public Exports {};

TEST_F(ExportedDays, AreListedNewestFirstAndCountFromZero) {
  AddThreeDays();
  AddDay("d.kvf", "31-12-99");  // two digits alone count
  EXPECT_EQ(Column(ExportColumn::kDate),
            (std::vector<Text>{"31-12-99", "05-03-04", "04-03-04", "03-03-04"}));
  EXPECT_EQ(Column(ExportColumn::kNumber), (std::vector<Text>{"0", "1", "2", "3"}));
  EXPECT_EQ(Column(ExportColumn::kFile), (std::vector<Text>{"d.kvf", "b.kvf", "c.kvf", "a.kvf"}));
  EXPECT_FALSE(test.pointer.waiting);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(ExportedDays, HaveSixCellsUnderSixHeadings) {
  AddDay("a.kvf", "05-03-04", "80,5", "Fri,day");
  const std::vector<ExportRow> rows = Read().rows;
  ASSERT_EQ(rows.size(), 1u);
  const std::array<Text, 6> cells = {"0",        PathOf("a.kvf"), "a.kvf",
                                     "05-03-04", "Fri,day",       "80.50 Kg"};
  EXPECT_EQ(rows[0].cells, cells);
  EXPECT_EQ(rows[0].path, PathOf("a.kvf"));
  const std::array<Text, 6> headings = {" ", "Filenamefull", "Filename", "Date", "Day", "Weight"};
  EXPECT_EQ(ExportHeadings(program.texts), headings);
}

// 80.5 kg are 177.4721 lb and, by 14, 12.6766 st.
TEST_F(ExportedDays, ShowWeightAndDateInTheUnitOfTheSettings) {
  AddDay("a.kvf", "05-03-04");
  for (const auto& [system, mark, date, weight] :
       {std::tuple{"0", ".", "05-03-04", "80.50 Kg"},
        std::tuple{"1", ".", "03-05-04", "177.47 Lbs"},
        std::tuple{"2", ".", "05-03-04", "12.7 Stones"},
        std::tuple{"0", ",", "05-03-04", "80,50 Kg"},
        std::tuple{"2", ",", "05-03-04", "12,7 Stones"}}) {
    program.settings[Setting::opt_system] = system;
    test.locale.separator = mark;
    EXPECT_EQ(Column(ExportColumn::kDate), std::vector<Text>{date});
    EXPECT_EQ(Column(ExportColumn::kWeight), std::vector<Text>{weight});
  }
}

TEST_F(ExportedDays, AWeightThatIsEmptyHasNoNumber) {
  for (const char* system : {"0", "1", "2"}) {
    program.settings[Setting::opt_system] = system;
    EXPECT_EQ(ListedWeight(program, "").front(), ' ') << system;
  }
  EXPECT_EQ(ListedWeight(program, "70"), "11.0 Stones");
}

TEST_F(ExportedDays, NoFolderNoFileAndNoUserAreAnEmptyListWithoutAWord) {
  EXPECT_TRUE(Read().rows.empty());
  fs::remove(program.paths.FilesPath);
  EXPECT_TRUE(Read().rows.empty());
  program.paths.FilesPath.clear();
  const ExportList list = Read();
  EXPECT_TRUE(list.rows.empty() && list.unread.Empty());
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(ExportedDays, ThatCannotBeReadAreMissingAndNamedInOneBox) {
  AddThreeDays();
  fs::create_symlink("nowhere", PathOf("lost.kvf"));
  fs::create_symlink("nowhere", PathOf("gone.kvf"));
  ASSERT_EQ(mkfifo(PathOf("pipe.kvf").c_str(), 0600), 0);
  fs::create_directory(PathOf("folder.kvf"));  // no file at all
  AddDay("huge.kvf", "06-03-04", std::string(400, '9'));
  const ExportList list = Read();
  ASSERT_EQ(list.rows.size(), 4u);
  EXPECT_EQ(list.rows[0].cells[ExportColumn::kDate], "06-03-04");
  EXPECT_EQ(list.rows[0].cells[ExportColumn::kWeight], "");
  EXPECT_EQ(list.rows[3].cells[ExportColumn::kWeight], "80.50 Kg");
  EXPECT_TRUE(test.boxes.shown.empty());  // told when the list can be seen
  TellOfUnreadExports(program, list);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(
      LastBox().starts_with("An error occured.\n\nNo such file or directory: gone.kvf, lost.kvf\n"))
      << LastBox();
  EXPECT_NE(LastBox().find(": pipe.kvf\n"), Text::npos);
  EXPECT_NE(LastBox().find(": huge.kvf\n"), Text::npos);
  EXPECT_TRUE(LastBoxEndsWith("\nBrelux CODE:#F5-0"));
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(ExportedDays, NothingPassedOverIsNotTold) {
  AddThreeDays();
  TellOfUnreadExports(program, Read());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(ExportedDays, AFolderThatCannotBeReadIsNoEmptyOne) {
  AddThreeDays();
  fs::permissions(program.paths.FilesPath, fs::perms::none);
  ExportList list;
  {
    const AsNobody nobody;
    list = Read();
  }
  fs::permissions(program.paths.FilesPath, fs::perms::owner_all);
  EXPECT_TRUE(list.rows.empty());
  TellOfUnreadExports(program, list);
  EXPECT_EQ(LastBox(), "An error occured.\n\nPermission denied\nBrelux CODE:#F5-0");
}

// Whichever call to the disk fails, what is missing is told and the rest is there.
TEST_F(ExportedDays, EveryReadThatFailsIsTold) {
  AddThreeDays();
  std::size_t failures = 0;
  for (std::size_t call = 0;; ++call) {
    ExportList list;
    bool failed = false;
    {
      const InjectedFault fault({.reading_call_fails = call});
      list = Read();
      failed = InjectedFault::ReadingCallFailed();
    }
    if (!failed) break;
    ++failures;
    if (list.rows.size() < 3) EXPECT_FALSE(list.unread.Empty()) << call;
    EXPECT_FALSE(test.pointer.waiting) << call;
  }
  EXPECT_GE(failures, 3u * 3u);  // each file is opened, asked for its size and read
}

TEST_F(ExportedDays, AFileWithoutARecordHasARowWithoutWordsWhereverItStands) {
  AddThreeDays();
  for (const auto& [name, bytes] :
       {std::pair{"0.kvf", std::string()}, std::pair{"z.kvf", std::string("\1\0", 2)},
        std::pair{"m.kvf", std::string(4, '\0')}}) {
    WriteFileAnew(PathOf(name), bytes);
  }
  const ExportList list = Read();
  ASSERT_EQ(list.rows.size(), 6u);
  EXPECT_TRUE(list.unread.Empty());
  for (std::size_t row = 3; row < 6; ++row) {
    const auto& cells = list.rows[row].cells;
    EXPECT_EQ(cells[ExportColumn::kDate] + cells[ExportColumn::kDay] + cells[ExportColumn::kWeight],
              "");
    EXPECT_FALSE(cells[ExportColumn::kFile].empty());
  }
}

TEST_F(ExportedDays, ANameThatTextCannotHoldIsReadByItsPath) {
  AddDay("snow \xE2\x98\x83.kvf", "05-03-04");
  const std::vector<ExportRow> rows = Read().rows;
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].cells[ExportColumn::kFile], "snow ?.kvf");
  EXPECT_EQ(rows[0].cells[ExportColumn::kDate], "05-03-04");
  EXPECT_EQ(rows[0].path, PathOf("snow \xE2\x98\x83.kvf"));
}

TEST_F(ExportedDays, AreThoseOnTheDiskAndNotTheOpenOne) {
  AddDay("05032004140709.kvf", "05-03-04", "80.5");
  test.OpenDay("Anna");
  program.store.L_gegevens.Replace(HeaderRow::kWeight, "99");
  SetFileChanged(program, true);
  EXPECT_EQ(Column(ExportColumn::kWeight), std::vector<Text>{"80.50 Kg"});
  EXPECT_EQ(program.store.L_gegevens[HeaderRow::kWeight], "99");
  EXPECT_TRUE(program.day.FileChanged);
}

TEST_F(ExportedDays, LetEventsRunAtEveryDayAndEndWhenTheyAreOvertaken) {
  AddThreeDays();
  (void)Read();
  const int all = test.events.yields;
  EXPECT_GE(all, 3 * 3);  // reading, ordering, making the rows
  for (int after = 0; after < all; ++after) {
    test.events.yields = 0;
    const ExportList list = ReadExportList(program, [&] { return test.events.yields > after; });
    EXPECT_EQ(test.events.yields, after + 1);
    EXPECT_FALSE(test.pointer.waiting);
  }
}

}  // namespace
}  // namespace kelvora
