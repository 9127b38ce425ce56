#include "analysis/summary_list.h"

#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

using Cells = std::array<Text, kSummaryColumns>;

class SummaryOfLines : public testing::Test {
 protected:
  SummaryRows RowsOf(std::initializer_list<std::pair<FoodLine, const char*>> foods) {
    TextList lines, counts;
    for (const auto& [food, count] : foods) {
      lines.Add(LineOf(food));
      counts.Add(count);
    }
    return SummaryRowMaker().RowsOf(test.program, lines, counts);
  }

  TestProgram test;
};

constexpr FoodLine kSoup{.product = "Soup",
                         .unit = "1 plate",
                         .gram = "250",
                         .kj = "412,5",
                         .kcal = "98.21",
                         .protein = "4.2",
                         .fat_u = "1.5",
                         .fat_s = "0.4",
                         .carbs = "12,5",
                         .sodium = "0.8125"};

// By hand: each number of the line times 3, rounded by the column's pattern, halves up.
TEST_F(SummaryOfLines, MultipliesEachAmountByTheCount) {
  const SummaryRows rows = RowsOf({{kSoup, "3"}});
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].cells, (Cells{"2", "Soup", "3", "1 plate", "750", "1238", "295", "5", "1", "13",
                                  "2.438", "38"}));
}

TEST_F(SummaryOfLines, WritesTheSeparatorOfTheSystem) {
  test.locale.separator = ",";
  EXPECT_EQ(RowsOf({{kSoup, "3"}})[0][SummaryColumn::sodium], "2,438");
}

TEST_F(SummaryOfLines, ShowsNoWeightOfZeroButEveryOtherZero) {
  const SummaryRows rows = RowsOf({{{.product = "Air"}, "1"}});
  EXPECT_EQ(rows[0].cells,
            (Cells{"2", "Air", "1", "1 piece", "", "0", "0", "0", "0", "0", "0.000", "0"}));
}

// 750 x 0.03527396 = 26.455, with one decimal.
TEST_F(SummaryOfLines, WeighsInOuncesWhereTheUserDoes) {
  test.program.settings[Setting::opt_gramoz] = "1";
  const SummaryRows rows = RowsOf({{kSoup, "3"}, {{.product = "Air"}, "1"}});
  EXPECT_EQ(rows[0][SummaryColumn::weight], "26.5");
  EXPECT_EQ(rows[1][SummaryColumn::weight], "0");
}

TEST_F(SummaryOfLines, CountsItsKeysByTwo) {
  const SummaryRows rows = RowsOf({{{.product = "A"}, "1"}, {{.product = "B"}, "1"}, {kSoup, "2"}});
  EXPECT_EQ(rows[0][SummaryColumn::key], "2");
  EXPECT_EQ(rows[1][SummaryColumn::key], "4");
  EXPECT_EQ(rows[2][SummaryColumn::key], "6");
}

TEST_F(SummaryOfLines, LeavesOutWhatNoNumberCanHold) {
  const Text huge(400, '9');
  const SummaryRows rows =
      RowsOf({{{.product = "Whale", .gram = huge, .kj = huge, .kcal = "7"}, "2"}});
  EXPECT_EQ(rows[0][SummaryColumn::weight], "");
  EXPECT_EQ(rows[0][SummaryColumn::kj], "");
  EXPECT_EQ(rows[0][SummaryColumn::kcal], "14");
  EXPECT_TRUE(test.boxes.shown.empty());
}

// Whatever changes in between, the rows are those of lines that are seen for the first time.
TEST_F(SummaryOfLines, AreTheSameWhenMadeAgainAfterEachChange) {
  SummaryRowMaker maker;
  TextList lines, counts;
  const auto expect_as_new = [&](const char* what) {
    const SummaryRows again = maker.RowsOf(test.program, lines, counts);
    const SummaryRows anew = SummaryRowMaker().RowsOf(test.program, lines, counts);
    ASSERT_EQ(again.size(), anew.size()) << what;
    for (std::size_t i = 0; i < anew.size(); ++i) EXPECT_EQ(again[i].cells, anew[i].cells) << what;
  };
  lines.Add(LineOf(kSoup));
  counts.Add("1");
  lines.Add(LineOf({.product = "Air", .sodium = "1.5"}));
  counts.Add("2");
  expect_as_new("first");
  expect_as_new("unchanged");
  counts.Replace(0, "4");
  expect_as_new("another count");
  test.locale.separator = ",";
  expect_as_new("another separator");
  test.program.settings[Setting::opt_gramoz] = "1";
  expect_as_new("ounces");
  lines.Remove(0);
  counts.Remove(0);
  expect_as_new("one less");
  EXPECT_EQ(maker.RowsOf(test.program, lines, counts)[0][SummaryColumn::key], "2");
}

TEST_F(SummaryOfLines, TakesALineWithoutFields) {
  TextList lines, counts;
  lines.Add("no field");
  counts.Add("1");
  const SummaryRows rows = SummaryRowMaker().RowsOf(test.program, lines, counts);
  EXPECT_EQ(rows[0].cells, (Cells{"2", "", "1", "", "", "0", "0", "0", "0", "0", "0.000", "0"}));
}

TEST_F(SummaryOfLines, HasTwelveHeadingsInEachWindow) {
  EXPECT_EQ(SummaryHeadings(test.program.texts, AnalysisWindow::day_summary),
            (Cells{"#", "Food item", "X  ", "Unit", "Weight", "Kj ", "Kcal", "Fat(u)", "Fat(s)",
                   "Protein", "Sodium", "Carbs."}));
  EXPECT_EQ(SummaryHeadings(test.program.texts, AnalysisWindow::multi_day),
            (Cells{"#", "Food item", " X ", "Unit", "Weight", "Kj ", "Kcal", "Fat(u)", "Fat(s)",
                   "Protein", "Sodium", "Carb."}));
}

TEST(SummaryColumns, LeaveTheRestToTheFoods) {
  EXPECT_EQ(SummaryColumnWidths(8380),
            (std::array<int, kSummaryColumns>{0, 2160, 360, 1080, 600, 700, 550, 550, 550, 550, 600,
                                              600}));
}

class SortedSummary : public testing::Test {
 protected:
  SortedSummary() {
    Add("appel", "1 piece", "330", "0.9");
    Add("Éclair", "1 piece", "937", "0.95");
    Add("zuurkool", "1 portion", "100", "10.5");
    Add("Brood", "1 slice", "330", "10.2");
  }
  void Add(const Text& food, const Text& unit, const Text& kj, const Text& sodium) {
    SummaryRow row;
    row[SummaryColumn::key] = std::to_string(2 * (rows.size() + 1));
    row[SummaryColumn::food] = TextFromUtf8(food);
    row[SummaryColumn::unit] = unit;
    row[SummaryColumn::kj] = kj;
    row[SummaryColumn::sodium] = sodium;
    rows.push_back(row);
  }
  // The keys from top to bottom after a click.
  Text Click(SummaryColumn column) {
    shown = SortSummary(rows, column, sort);
    Text keys;
    for (const SummaryRow& row : rows) keys += row[SummaryColumn::key];
    return keys;
  }

  SummaryRows rows;
  SummarySort sort;
  std::optional<ColumnOrder> shown;
};

TEST_F(SortedSummary, PutsTextsDescendingFirstThenTurnsThemRound) {
  EXPECT_EQ(Click(SummaryColumn::food), "6482");
  EXPECT_EQ(*shown, (ColumnOrder{1, SortOrder::descending}));
  EXPECT_EQ(Click(SummaryColumn::food), "2846");
  EXPECT_EQ(*shown, (ColumnOrder{1, SortOrder::ascending}));
  EXPECT_EQ(Click(SummaryColumn::food), "6482");
}

// Equal units keep the order they have.
TEST_F(SortedSummary, BeginsDescendingOnEachOtherTextColumn) {
  Click(SummaryColumn::food);
  EXPECT_EQ(Click(SummaryColumn::unit), "8642");
  EXPECT_EQ(Click(SummaryColumn::food), "6482");
  // A column of numbers in between is no other text column.
  Click(SummaryColumn::kj);
  EXPECT_EQ(Click(SummaryColumn::food), "2846");
}

TEST_F(SortedSummary, PutsNumbersAscendingFirstThenTurnsThemRound) {
  // 100, 330 and 330 turned round, 937; then 937, both 330 as they stand, 100.
  EXPECT_EQ(Click(SummaryColumn::kj), "6824");
  EXPECT_EQ(*shown, (ColumnOrder{5, SortOrder::ascending}));
  EXPECT_EQ(Click(SummaryColumn::kj), "4826");
  EXPECT_EQ(*shown, (ColumnOrder{5, SortOrder::descending}));
}

TEST_F(SortedSummary, HasOneDirectionForAllNumbersAndComparesWholeValues) {
  Click(SummaryColumn::kj);
  // 0.9 and 0.95 are equal, and so are 10.5 and 10.2: descending keeps their order.
  EXPECT_EQ(Click(SummaryColumn::sodium), "6824");
  // Ascending again: the same insertion, read from its end.
  EXPECT_EQ(Click(SummaryColumn::sodium), "4286");
}

TEST_F(SortedSummary, DoesNothingForTheHiddenColumn) {
  Click(SummaryColumn::kj);
  const SummarySort before = sort;
  EXPECT_EQ(Click(SummaryColumn::key), "6824");
  EXPECT_FALSE(shown.has_value());
  EXPECT_EQ(sort, before);
}

}  // namespace
}  // namespace kelvora
