// What a set of imported foods is on the disk: its categories, their names, its own file and its
// report, and that it comes, is replaced and goes as a whole.
#include "food/import/importing.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "food/import/table_files.h"
#include "support/file_faults.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;

class Importing : public testing::Test, public TableFiles {
 protected:
  std::optional<FoodSet> ImportRows(const std::string& rows) {
    return ImportText(std::string(kSrHeader) + rows);
  }
  [[nodiscard]] std::vector<Text> FoodsOf(const std::string& file) const {
    std::vector<Text> names;
    for (const Text& line : Lines(file)) names.emplace_back(FieldOf(line, 0));
    return names;
  }
};

TEST_F(Importing, MakesACategoryOfEachGroupBesideTheFileOfTheSet) {
  const auto set = ImportRows(SrRow("Fruit", "Apple") + SrRow("Bread", "Rye") +
                              SrRow("Fruit", "Pear") + SrRow("", "Thing"));
  ASSERT_TRUE(set);
  EXPECT_EQ(Names(), (Strings{"USDA SR.set.txt", "USDA SR: Bread.dat", "USDA SR: Fruit.dat",
                              "USDA SR: other.dat"}));
  EXPECT_EQ(FoodsOf("USDA SR: Fruit.dat"), (std::vector<Text>{"Apple", "Pear"}));
  EXPECT_EQ(ReadFile(folders.of_user + "USDA SR.set.txt"),
            "# Foods imported into Kelvora FOOD\n"
            "name: USDA SR\n"
            "source: U.S. Department of Agriculture, Agricultural Research Service, Nutrient Data "
            "Laboratory. USDA National Nutrient Database for Standard Reference.\n"
            "licence: public domain\n"
            "imported: 2026-11-22\n"
            "table: table.csv\n"
            "foods: 4\n"
            "rows passed over: 0\n"
            "amounts unknown: 0\n"
            "file: USDA SR: Fruit.dat\n"
            "file: USDA SR: Bread.dat\n"
            "file: USDA SR: other.dat\n");
}

TEST_F(Importing, NumbersFoodsOfOneName) {
  ASSERT_TRUE(ImportRows(SrRow("A", "Rye") + SrRow("B", "Rye") + SrRow("A", "Rye (2)") +
                         SrRow("A", "rye") + SrRow("A", "Rye")));
  EXPECT_EQ(FoodsOf("USDA SR: A.dat"), (std::vector<Text>{"Rye", "Rye (2) (2)", "rye", "Rye (3)"}));
  EXPECT_EQ(FoodsOf("USDA SR: B.dat"), std::vector<Text>{"Rye (2)"});
}

TEST_F(Importing, TakesGroupsThatDifferInCaseForOne) {
  ASSERT_TRUE(ImportRows(SrRow("Fruit", "Apple") + SrRow("FRUIT", "Pear")));
  EXPECT_EQ(FoodsOf("USDA SR: Fruit.dat"), (std::vector<Text>{"Apple", "Pear"}));
}

TEST_F(Importing, GivesEveryGroupANameThatAFileCanHaveAndThatLeadsNowhereElse) {
  ASSERT_TRUE(ImportRows(SrRow("a/b", "One") + SrRow("..", "Two") + SrRow("../../x", "Three") +
                         SrRow(std::string(300, 'g'), "Four") +
                         SrRow(std::string(99, 'g') + "hh", "Five") + SrRow("½ €", "Six")));
  Strings expected = {"USDA SR.set.txt",
                      "USDA SR: ...dat",
                      "USDA SR: ..-..-x.dat",
                      "USDA SR: 1-2 €.dat",
                      "USDA SR: a-b.dat",
                      "USDA SR: " + std::string(100, 'g') + ".dat",
                      "USDA SR: " + std::string(99, 'g') + "h.dat"};
  std::ranges::sort(expected);
  EXPECT_EQ(Names(), expected);
}

// A category is found by its file name in whole lines.
TEST_F(Importing, NamesNoCategorySoThatItEndsAnother) {
  fs::create_directories(folders.of_user);
  WriteFileAnew(folders.of_program + "Snacks.dat", "");
  WriteFileAnew(folders.of_user + "BREAD.DAT", "");
  ASSERT_TRUE(ImportRows(SrRow("Snacks", "Crisps") + SrRow("bread", "Rye") +
                         SrRow("snacks (2)", "Nuts") + SrRow("Fruit", "Apple")));
  EXPECT_EQ(FoodsOf("USDA SR: Snacks (2).dat"), std::vector<Text>{"Crisps"});
  EXPECT_EQ(FoodsOf("USDA SR: bread (2).dat"), std::vector<Text>{"Rye"});
  EXPECT_EQ(FoodsOf("USDA SR: snacks (2) (2).dat"), std::vector<Text>{"Nuts"});
  EXPECT_EQ(FoodsOf("USDA SR: Fruit.dat"), std::vector<Text>{"Apple"});
  // The same names when the table is imported again: those of the old set don't count.
  const Strings before = Names();
  ASSERT_TRUE(ImportRows(SrRow("Snacks", "Crisps") + SrRow("bread", "Rye") +
                         SrRow("snacks (2)", "Nuts") + SrRow("Fruit", "Apple")));
  EXPECT_EQ(Names(), before);
}

TEST_F(Importing, PutsAllGroupsBeyondFiveHundredIntoOne) {
  std::string rows;
  for (int i = 0; i < 600; ++i) rows += SrRow("g" + std::to_string(i) + "x", "Food");
  const auto set = ImportRows(rows);
  ASSERT_TRUE(set);
  EXPECT_EQ(set->files.size(), 501u);
  EXPECT_EQ(Lines("USDA SR: other.dat").size(), 100u);
}

TEST_F(Importing, WritesListsOfAnyLengthInTheirForm) {
  // The sizes at which a list changes its form and goes to its file in pieces.
  for (const int foods : {1, 900, 1200, 5000}) {
    std::string rows;
    for (int i = 0; i < foods; ++i) rows += SrRow("A", "Food " + std::to_string(i));
    ASSERT_TRUE(ImportRows(rows));
    const auto lines = Lines("USDA SR: A.dat");
    ASSERT_EQ(lines.size(), static_cast<std::size_t>(foods));
    EXPECT_EQ(FieldOf(lines.back(), 0), "Food " + std::to_string(foods - 1));
    TextList list;
    for (const Text& line : lines) list.Add(line);
    EXPECT_EQ(ReadFile(folders.of_user + "USDA SR: A.dat"),
              EncodeRecord(Rec_ListLine{{PackBlock(list)}}.strings));
  }
}

TEST_F(Importing, KeepsALineWithItsCategoryWithinWhatTheProgramTakes) {
  const std::string x(2000, 'x');
  ASSERT_TRUE(ImportRows("1\t" + x + "\t" + x + "\t" + x +
                         "\t9999\t999.999\t4199.999\t99.999\t99\t99.999\t50.111\t49.111\t99.999\t"
                         "99999\n"));
  const Strings names = Names();
  EXPECT_LE(Lines(names[1])[0].size() + names[1].size() + 1, 900u);
}

TEST_F(Importing, TakesThePlaceOfTheSetBeforeWhole) {
  ASSERT_TRUE(ImportRows(SrRow("Fruit", "Apple") + SrRow("Bread", "Rye") + SrRow("Fruit", "")));
  EXPECT_EQ(Names().size(), 4u);
  WriteFileAnew(folders.of_user + "Mine.dat", "mine");
  ASSERT_TRUE(ImportRows(SrRow("Fruit", "Pear")));
  EXPECT_EQ(Names(), (Strings{"Mine.dat", "USDA SR.set.txt", "USDA SR: Fruit.dat"}));
  EXPECT_EQ(FoodsOf("USDA SR: Fruit.dat"), std::vector<Text>{"Pear"});
  EXPECT_EQ(ReadFile(folders.of_user + "Mine.dat"), "mine");
}

TEST_F(Importing, AFailureOnTheWayLeavesAllAsItWas) {
  std::string rows;
  for (int i = 0; i < 2000; ++i) {
    rows += SrRow(i % 2 == 0 ? "Fruit" : "Bread", "Food " + std::to_string(i));
  }
  rows += SrRow("Fruit", "");
  const SourceTable table = Look(Write("new.csv", std::string(kSrHeader) + rows));
  std::size_t whole = 0;
  for (const bool is_first : {true, false}) {
    if (!is_first) ASSERT_TRUE(ImportRows(SrRow("Fruit", "Apple") + SrRow("Old", "Rye")));
    const Strings before = Names();
    const std::string fruit = is_first ? "" : ReadFile(folders.of_user + "USDA SR: Fruit.dat");
    for (const std::size_t room : {0, 5, 4000, 60'000, 90'000}) {
      const InjectedFault fault({.disk_full_after = room});
      EXPECT_THROW((void)Import(table), std::system_error) << room;
      EXPECT_EQ(Names(), before) << room;
    }
    {
      const InjectedFault fault({.folder_sync_fails = true});
      EXPECT_THROW((void)Import(table), std::system_error);
      EXPECT_EQ(Names(), before);
    }
    {
      const InjectedFault fault({.close_fails = true});
      EXPECT_THROW((void)Import(table), std::system_error);
      EXPECT_EQ(Names(), before);
    }
    if (!is_first) EXPECT_EQ(ReadFile(folders.of_user + "USDA SR: Fruit.dat"), fruit);
    ASSERT_TRUE(Import(table));
    EXPECT_EQ(Names(), (Strings{"USDA SR.set.txt", "USDA SR.skipped.txt", "USDA SR: Bread.dat",
                                "USDA SR: Fruit.dat"}));
    whole = Lines("USDA SR: Fruit.dat").size();
    RemoveFoodSet(folders.of_user, FoodSetsIn(folders.of_user).at(0));
  }
  EXPECT_EQ(whole, 1000u);
}

TEST_F(Importing, GivingUpLeavesAllAsItWas) {
  ASSERT_TRUE(ImportRows(SrRow("Fruit", "Apple")));
  const Strings before = Names();
  std::string rows;
  for (int i = 0; i < 20'000; ++i) rows += SrRow("Bread", "Food " + std::to_string(i));
  const SourceTable table = Look(Write("new.csv", std::string(kSrHeader) + rows));
  for (const int steps : {0, 1, 3}) {
    int left = steps;
    EXPECT_FALSE(ImportFoods(table, {}, folders, "2026-11-22",
                             [&](std::uint64_t, std::uint64_t) { return left-- > 0; }));
    EXPECT_EQ(Names(), before);
  }
}

TEST_F(Importing, ATableWithoutFoodsChangesNothing) {
  ASSERT_TRUE(ImportRows(SrRow("Fruit", "Apple")));
  const Strings before = Names();
  EXPECT_FALSE(ImportRows(SrRow("Fruit", " ")));
  EXPECT_EQ(Names(), before);
  EXPECT_EQ(FoodsOf("USDA SR: Fruit.dat"), std::vector<Text>{"Apple"});
}

// What a process that was killed has left.
TEST_F(Importing, SettlesWhatAnEarlierProcessLeftInTheMiddle) {
  ASSERT_TRUE(ImportRows(SrRow("Fruit", "Apple") + SrRow("Bread", "Rye")));
  // One that had not begun to replace.
  fs::create_directories(folders.of_user + ".import-7/");
  WriteFileAnew(folders.of_user + ".import-7/Other: X.dat", "half");
  // One that had moved an old category away and not brought its own file yet.
  fs::create_directories(folders.of_user + ".import-8/old/");
  WriteFileAnew(folders.of_user + ".import-8/Gone.set.txt", "new");
  WriteFileAnew(folders.of_user + ".import-8/old/Gone: Y.dat", "old");
  // One that had brought its own file, and had not come to this category.
  fs::create_directories(folders.of_user + ".import-9/old/");
  WriteFileAnew(folders.of_user + ".import-9/Come: Z.dat", "new");
  WriteFileAnew(folders.of_user + ".import-9/old/Come: Z.dat", "old");
  ASSERT_TRUE(ImportRows(SrRow("Fruit", "Pear")));
  EXPECT_EQ(Names(),
            (Strings{"Come: Z.dat", "Gone: Y.dat", "USDA SR.set.txt", "USDA SR: Fruit.dat"}));
  EXPECT_EQ(ReadFile(folders.of_user + "Come: Z.dat"), "new");
}

TEST_F(Importing, LeavesTheWorkOfARunningProcessAlone) {
  fs::create_directories(folders.of_user + ".import-1/");
  const auto hold = TryHoldFolder(folders.of_user + ".import-1/");
  ASSERT_TRUE(hold);
  ASSERT_TRUE(ImportRows(SrRow("Fruit", "Apple")));
  EXPECT_TRUE(fs::exists(folders.of_user + ".import-1/"));
}

TEST_F(Importing, TheReportNamesEachRowThatWasPassedOver) {
  const std::string header(kSrHeader);
  const auto set = ImportText(header + SrRow("Fruit", "Apple") + SrRow("Fruit", "   ") +
                              "1\tFruit\tNo energy\t\t\t-\t\t1\t1\t1\t1\t1\t1\t1\n" + header +
                              SrRow("Fruit", "寿司寿司 a") + "1\tFruit\tCut sh");
  ASSERT_TRUE(set);
  EXPECT_EQ(set->foods, 1u);
  EXPECT_EQ(set->skipped, 5u);
  EXPECT_EQ(ReadFile(folders.of_user + "USDA SR.skipped.txt"),
            "line\treason\tname\n"
            "3\tno name\t\n"
            "4\tno energy\tNo energy\n"
            "5\theader again\t\n"
            "6\tunreadable name\t???? a\n"
            "7\tcut short at the end\t\n");
}

TEST_F(Importing, ARemovedSetIsGoneWithItsReportAndNothingElse) {
  ASSERT_TRUE(ImportRows(SrRow("Fruit", "Apple") + SrRow("Fruit", "")));
  WriteFileAnew(folders.of_user + "USDA SR: Mine.dat", "mine");
  const auto sets = FoodSetsIn(folders.of_user);
  ASSERT_EQ(sets.size(), 1u);
  EXPECT_EQ(sets[0].foods, 1u);
  EXPECT_EQ(sets[0].skipped, 1u);
  RemoveFoodSet(folders.of_user, sets[0]);
  EXPECT_EQ(Names(), Strings{"USDA SR: Mine.dat"});
}

TEST_F(Importing, ASetNamesNoFileOutsideItsFolder) {
  fs::create_directories(folders.of_user);
  WriteFileAnew(folder.Path("user/precious.dat"), "mine");
  WriteFileAnew(folders.of_user + "Bad.set.txt",
                "name: Bad\nfile: ../precious.dat\nfile: ok.dat\nfile: .dat\nfile: x.txt\n");
  const auto sets = FoodSetsIn(folders.of_user);
  ASSERT_EQ(sets.size(), 1u);
  EXPECT_EQ(sets[0].files, Strings{"ok.dat"});
}

TEST(AppendAmount, WritesAtMostThreeDecimalsAndRoundsHalvesUp) {
  const std::vector<std::pair<double, std::string_view>> rows = {
      {0, "0"},         {5, "5"},           {0.5, "0.5"},      {0.0005, "0.001"},
      {0.00049, "0"},   {0.0045, "0.005"},  {1.0005, "1.001"}, {2.675, "2.675"},
      {99.9996, "100"}, {1234.1, "1234.1"}, {0.01, "0.01"},    {4.2 * 717, "3011.4"}};
  for (const auto& [value, text] : rows) {
    Text out;
    AppendAmount(out, value);
    EXPECT_EQ(out, text);
  }
}

TEST(FoodNames, StaysRightWhileItGrows) {
  FoodNames names;
  for (int i = 0; i < 50'000; ++i) {
    const std::string name = "Food " + std::to_string(i);
    ASSERT_EQ(names.Give(name), name);
  }
  for (int i = 0; i < 50'000; i += 1000) {
    const std::string name = "Food " + std::to_string(i);
    ASSERT_EQ(names.Give(name), name + " (2)");
    ASSERT_EQ(names.Give(name), name + " (3)");
  }
}

}  // namespace
}  // namespace kelvora
