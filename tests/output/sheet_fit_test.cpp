#include "output/sheet_fit.h"

#include <gtest/gtest.h>

#include "output/page_writer.h"

namespace kelvora {
namespace {

// A text of 10 points is 200 twips high, and its cell 0.905 + 0.212 of that: 223.4.
TEST(SheetHolds, ATextUntilItsFeetReachBelow) {
  const Sheet sheet{.width = 1000, .height = 823.4 + 1e-6};
  EXPECT_TRUE(SheetHolds(sheet, {PrintedText{kPageText, 200, 600, "a"}}));
  EXPECT_FALSE(SheetHolds(sheet, {PrintedText{kPageText, 200, 600.1, "a"}}));
}

TEST(SheetHolds, ATextUntilItBeginsBeyondTheRightEdge) {
  const Sheet sheet{.width = 1000, .height = 5000};
  EXPECT_TRUE(SheetHolds(sheet, {PrintedText{kPageText, 999, 0, "a"}}));
  EXPECT_FALSE(SheetHolds(sheet, {PrintedText{kPageText, 1000, 0, "a"}}));
}

TEST(SheetHolds, ALineDownToTheEdge) {
  const Sheet sheet{.width = 1000, .height = 850};
  EXPECT_TRUE(SheetHolds(sheet, {PrintedLine{200, 850, 700, 850, 10}}));
  EXPECT_FALSE(SheetHolds(sheet, {PrintedLine{200, 850.1, 700, 850.1, 10}}));
}

TEST(SheetHolds, AnEmptyTextAnywhere) {
  EXPECT_TRUE(SheetHolds({.width = 1000, .height = 850}, {PrintedText{kPageText, 9999, 9999, ""}}));
}

TEST(SheetHolds, APageOnlyIfItHoldsAllOfIt) {
  const Sheet sheet{.width = 1000, .height = 850};
  EXPECT_FALSE(SheetHolds(
      sheet, {PrintedText{kPageText, 200, 100, "a"}, PrintedText{kPageText, 200, 900, "b"},
              PrintedText{kPageText, 200, 200, "c"}}));
}

PrintedPage SmallPage() {
  return {PrintedText{kPageBold, 200, 600, "a"}, PrintedLine{200, 850, 700, 850, 10}};
}

TEST(WithinMargins, APageWithoutThemStaysAsItIs) {
  EXPECT_EQ(WithinMargins(SmallPage(), {.width = 1000, .height = 2000}), SmallPage());
}

// 100 + 100 of 1000 leave 0.8 of the width, 100 + 100 of 2000 leave 0.9 of the height: 0.8 of both.
TEST(WithinMargins, ShrinksByTheNarrowerSideAndBeginsAtTheTopLeftCorner) {
  const PrintedPage page = WithinMargins(
      SmallPage(),
      {.width = 1000, .height = 2000, .left = 100, .top = 50, .right = 100, .bottom = 150});
  PrintFont smaller = kPageBold;
  smaller.points = 8;
  EXPECT_EQ(page,
            (PrintedPage{PrintedText{smaller, 260, 530, "a"}, PrintedLine{260, 730, 660, 730, 8}}));
}

// The height leaves 0.5 here.
TEST(WithinMargins, NothingLaidDownIsOutsideOfWhatThePrinterReaches) {
  const Sheet sheet{
      .width = 1000, .height = 1000, .left = 20, .top = 300, .right = 30, .bottom = 200};
  const PrintedPage page = WithinMargins({PrintedLine{0, 0, 1000, 1000, 10}}, sheet);
  EXPECT_EQ(page, (PrintedPage{PrintedLine{20, 300, 520, 800, 5}}));
}

}  // namespace
}  // namespace kelvora
