#include "core/small_geometry.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

// 800 x 574 pixels with an area of 800 x 446.
constexpr MainWindowSize kSmallest{12000, 8610, 420, 12000, 6690};
// What 1366 x 768 pixels at 125% leave: 1092 x 590 with an area of 1092 x 460.
constexpr MainWindowSize kScaled{16380, 8850, 420, 16380, 6900};

TEST(SmallGeometry, BeginsBelowAScreenOf1024By768) {
  EXPECT_TRUE(IsSmall(kSmallest));
  EXPECT_TRUE(IsSmall(kScaled));
  // A screen of 1024 x 768, with a bar at its top and the window's title bar; and one at its side.
  EXPECT_FALSE(IsSmall({15360, 10650, 480, 15360, 8700}));
  EXPECT_FALSE(IsSmall({15000, 11220, 480, 15000, 9200}));
  EXPECT_TRUE(IsSmall({14985, 11220, 480, 14985, 9200}));
  EXPECT_FALSE(IsSmall({15360, 9750, 480, 15360, 7800}));
  EXPECT_TRUE(IsSmall({15360, 9735, 480, 15360, 7785}));
  // As long as nothing is known of the area.
  EXPECT_FALSE(IsSmall({12000, 8610, 420}));
}

TEST(SmallGeometry, LeavesTheLaidDownRecordsOfALargeWindow) {
  const MainWindowSize large{15360, 11220, 480, 15360, 9300};
  EXPECT_EQ(Fitted(DefaultGeometry(large), large), DefaultGeometry(large));
  EXPECT_EQ(Fitted(GeometryWithSummary(large), large), GeometryWithSummary(large));
  const WindowRecord outside{20000, 20000, -500, 9000};
  EXPECT_EQ(Fitted(outside, large), outside);
}

// Three gaps of 60 leave 11820 of the width: 7000 for the lists, the rest for the parts of the day.
// Four leave 6450 of the height, a third of it is 2150.
TEST(SmallGeometry, PutsThePartsOfTheDayBesideTheLists) {
  const GeometryRecords records = Fitted(DefaultGeometry(kSmallest), kSmallest);
  EXPECT_EQ(records.lists, (WindowRecord{7000, 6570, 60, 60}));
  EXPECT_EQ(records.morning, (WindowRecord{4820, 2150, 7120, 60}));
  EXPECT_EQ(records.afternoon, (WindowRecord{4820, 2150, 7120, 2270}));
  EXPECT_EQ(records.evening, (WindowRecord{4820, 2150, 7120, 4480}));
}

// The summary is 2400 high and stands 60 above the end of the area.
TEST(SmallGeometry, PutsTheSmallSummaryBelowTheLists) {
  const GeometryRecords records = Fitted(GeometryWithSummary(kSmallest), kSmallest);
  EXPECT_EQ(records.SummarySmall, 1);
  EXPECT_EQ(records.day_summary, (WindowRecord{7000, 2400, 60, 4230}));
  EXPECT_EQ(records.lists, (WindowRecord{7000, 4110, 60, 60}));
}

// Half of 16380 is 8190; the parts of the day keep their laid-down width.
TEST(SmallGeometry, GivesTheListsHalfOfAWiderWindow) {
  const GeometryRecords records = Fitted(DefaultGeometry(kScaled), kScaled);
  EXPECT_EQ(records.lists, (WindowRecord{8190, 6780, 60, 60}));
  EXPECT_EQ(records.morning, (WindowRecord{5600, 2220, 10720, 60}));
  EXPECT_EQ(records.evening.top, 60 + 2 * (2220 + 60));
}

TEST(SmallGeometry, BringsEveryOtherWindowIntoTheArea) {
  EXPECT_EQ(Fitted(WindowRecord{9200, 6500, 3600, 1290}, kSmallest),
            (WindowRecord{9200, 6500, 2800, 190}));
  EXPECT_EQ(Fitted(WindowRecord{20000, 9000, 300, 200}, kSmallest),
            (WindowRecord{12000, 6690, 0, 0}));
  EXPECT_EQ(Fitted(WindowRecord{4000, 3000, -200, -100}, kSmallest),
            (WindowRecord{4000, 3000, 0, 0}));
  const GeometryRecords records = Fitted(DefaultGeometry(kSmallest), kSmallest);
  EXPECT_EQ(records.multi_day, (WindowRecord{9200, 6500, 2800, 190}));
  EXPECT_EQ(records.day_summary, (WindowRecord{8500, 4800, 3000, 1890}));
}

}  // namespace
}  // namespace kelvora
