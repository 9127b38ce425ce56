// What is given instead of a table, and what tables hold that they should not.
#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "food/import/table_files.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

class BadTables : public testing::Test, public TableFiles {
 protected:
  [[nodiscard]] NoSourceTable Reason(const std::string& path) const {
    return std::get<NoSourceTable>(LookAtTable(path));
  }
  std::optional<FoodSet> ImportRows(const std::string& rows) {
    return ImportText(std::string(kSrHeader) + rows);
  }
};

TEST_F(BadTables, AreToldApart) {
  using namespace std::string_literals;
  EXPECT_EQ(Reason(Write("empty.csv", "")), NoSourceTable::empty);
  EXPECT_EQ(Reason(Write("foods.zip", "PK\x03\x04zip"s)), NoSourceTable::compressed);
  EXPECT_EQ(Reason(Write("utf16.csv",
                         "\xFF\xFE"
                         "a\0,\0b\0"s)),
            NoSourceTable::utf16);
  EXPECT_EQ(Reason(Write("page.pdf", "%PDF-1.4 a,b")), NoSourceTable::binary);
  EXPECT_EQ(Reason(Write("list.txt", "one\ntwo\n")), NoSourceTable::one_column);
  EXPECT_EQ(Reason(folder.Path()), NoSourceTable::folder);
}

TEST_F(BadTables, APipeIsNotWaitedForAndALinkIsFollowed) {
  ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
  EXPECT_THROW((void)LookAtTable(folder.Path("pipe")), std::system_error);
  EXPECT_THROW((void)LookAtTable("/dev/zero"), std::system_error);
  EXPECT_THROW((void)LookAtTable(folder.Path("missing.csv")), std::system_error);
  fs::create_symlink(folder.Path("missing.csv"), folder.Path("dangling"));
  EXPECT_THROW((void)LookAtTable(folder.Path("dangling")), std::system_error);
  const std::string table = Write("sr.csv", std::string(kSrHeader) + SrRow("A", "Rye"));
  fs::create_symlink(table, folder.Path("link"));
  EXPECT_TRUE(Import(Look(folder.Path("link"))));
}

TEST_F(BadTables, AnUnknownOneHasNoMapping) {
  const SourceTable table = Look(Write("own.csv", "Product,kcal\nRye,200\n"));
  EXPECT_FALSE(table.known);
  EXPECT_TRUE(table.mapping.columns.empty());
  EXPECT_EQ(table.header, (std::vector<Text>{"Product", "kcal"}));
  EXPECT_EQ(table.first_rows, (std::vector<std::vector<Text>>{{"Rye", "200"}}));
}

TEST_F(BadTables, OnlyCarriageReturnsEndLinesToo) {
  std::string text = std::string(kSrHeader) + SrRow("A", "Rye") + SrRow("A", "Oats");
  std::ranges::replace(text, '\n', '\r');
  ASSERT_TRUE(ImportText(text));
  EXPECT_EQ(Lines("USDA SR: A.dat").size(), 2u);
}

TEST_F(BadTables, AmountsThatCannotBeTrueAreUnknown) {
  const auto set = ImportRows(
      "1\tA\tHeavy\t\t\t100\t420\t100.1\t200\t-3\t1\t1\t12 g\t200000\n"
      "1\tB\tHot\t\t\t5000\t420\t1\t1\t1\t0\t0\t1\t1\n"
      "1\tA\tToo hot\t\t\t5000\t50000\t1\t1\t1\t0\t0\t1\t1\n");
  ASSERT_TRUE(set);
  EXPECT_EQ(set->foods, 2u);
  EXPECT_EQ(set->by_reason[static_cast<std::size_t>(SkipReason::no_energy)], 1u);
  EXPECT_EQ(set->unknown, 4u);
  EXPECT_EQ(OnlyLine("USDA SR: A.dat"), (std::vector<Text>{"Heavy", "100 gram", "100", "420", "100",
                                                           "0", "2", "0", "0", "0", "A", ""}));
  EXPECT_EQ(OnlyLine("USDA SR: B.dat")[4], "100");  // 420 / 4.2
}

TEST_F(BadTables, NumbersOfAllSortsAreRead) {
  ASSERT_TRUE(
      ImportRows("1\tA\tRye\t\t\t\t\"\t1\t1\t1\t1\t1\t1\t1\n"
                 "1\tB\tOats\t\t\t1e2\t4,2e2\t< 0,5\ttraces\t1,5\t-\t\t1.234,5\t"
                 "1.234,5\n"));
  // Fat without a part of it: 0 - 1.5 is not below 0. 1,234.5 g of carbohydrates are none.
  EXPECT_EQ(OnlyLine("USDA SR: B.dat"),
            (std::vector<Text>{"Oats", "100 gram", "100", "420", "100", "0", "0", "1.5", "0",
                               "1.235", "B", ""}));
}

TEST_F(BadTables, NamesWithHtmlNulsAndTerminatorsBecomePlain) {
  using namespace std::string_literals;
  ASSERT_TRUE(ImportRows(SrRow("A", "<b>Rye</b>\0&amp; ½ \x01oats"s)));
  EXPECT_EQ(OnlyLine("USDA SR: A.dat")[0], "Rye & 1/2 oats");
}

TEST_F(BadTables, AQuoteThatNobodyClosesCostsOneRow) {
  std::string text(kSrHeader);
  std::ranges::replace(text, '\t', ',');
  const auto row = [](const std::string& name) {
    return "1,A," + name + ",,,100,420,1,1,1,1,0,1,1\n";
  };
  const auto set = ImportText(text + row("Rye") + row("\"Oats") + row("Corn"));
  ASSERT_TRUE(set);
  EXPECT_EQ(set->foods, 2u);
  EXPECT_EQ(set->by_reason[static_cast<std::size_t>(SkipReason::unbalanced_quote)], 1u);
}

TEST_F(BadTables, ALineThatIsTooLongCostsItself) {
  const auto set =
      ImportRows(SrRow("A", "Rye") + SrRow("A", std::string(3'000'000, 'x')) + SrRow("A", "Oats"));
  ASSERT_TRUE(set);
  EXPECT_EQ(set->foods, 2u);
  EXPECT_EQ(set->by_reason[static_cast<std::size_t>(SkipReason::too_long)], 1u);
}

TEST_F(BadTables, PortionsThatCannotBeTrueAreAHundredGrams) {
  const auto row = [](const std::string& group, const std::string& grams) {
    return "1\t" + group + "\tRye\t1 cup\t" + grams + "\t100\t420\t1\t1\t1\t1\t1\t1\t1\n";
  };
  ASSERT_TRUE(ImportRows(row("zero", "0") + row("minus", "-5") + row("tons", "10001") +
                         row("words", "much") + row("little", "0.2") + row("half", "2.5")));
  for (const char* group : {"zero", "minus", "tons", "words"}) {
    const auto food = OnlyLine("USDA SR: " + std::string(group) + ".dat");
    EXPECT_EQ(food[1], "100 gram") << group;
    EXPECT_EQ(food[2], "100") << group;
  }
  EXPECT_EQ(OnlyLine("USDA SR: little.dat")[2], "1");
  EXPECT_EQ(OnlyLine("USDA SR: little.dat")[4], "1");
  EXPECT_EQ(OnlyLine("USDA SR: half.dat")[2], "3");
}

}  // namespace
}  // namespace kelvora
