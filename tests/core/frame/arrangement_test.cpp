#include "core/frame/arrangement.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace kelvora {
namespace {

TEST(Arrangement, ANewOrOpenedDayTakesTheArrangementOfTheSettings) {
  TestProgram test;
  test.program.settings[Setting::chk_all_screens] = "1";
  ApplyChosenArrangement(test.program);
  EXPECT_EQ(test.program.windows.geometry.SummarySmall, 1);
  EXPECT_EQ(test.core.opened.size(), 5u);
  test.program.settings[Setting::chk_all_screens] = "0";
  ApplyChosenArrangement(test.program);
  EXPECT_EQ(test.program.windows.geometry.SummarySmall, 0);
  EXPECT_EQ(test.core.opened.size(), 9u);
}

// A day summary that does nothing but note that it was closed.
struct NotedSummary : DaySummaryView {
  explicit NotedSummary(OpenWindows& all) : windows(all) { windows.day_summary = this; }
  OpenWindows& windows;
  int closed = 0;
  void CloseWindow() override {
    windows.day_summary = nullptr;
    ++closed;
  }
  void Set_Taal() override {}
  void Refresh_Daguittreksel() override {}
  void Maak_Voedingsbehoefte(const DayTotals&) override {}
};

TEST(DaySummaryCommand, OpensAClosedSummaryAtItsRecord) {
  TestProgram test;
  const GeometryRecords before = test.program.windows.geometry;
  ShowOrHideDaySummary(test.program);
  EXPECT_EQ(test.core.opened, std::vector<WindowId>{WindowId::day_summary});
  EXPECT_EQ(test.program.windows.geometry, before);
}

TEST(DaySummaryCommand, ClosesTheNormalLayout) {
  TestProgram test;
  NotedSummary summary(test.program.windows);
  ShowOrHideDaySummary(test.program);
  EXPECT_EQ(summary.closed, 1);
  EXPECT_TRUE(test.core.opened.empty());
}

// W = 15360 and M = 11520: a quarter of W is 3840, three tenths of M are 3456.
TEST(DaySummaryCommand, TakesTheSmallLayoutToTheNormalOne) {
  TestProgram test;
  test.program.windows.geometry = GeometryWithSummary(test.core.size);
  NotedSummary summary(test.program.windows);
  ShowOrHideDaySummary(test.program);
  EXPECT_EQ(summary.closed, 1);
  EXPECT_EQ(test.core.opened, std::vector<WindowId>{WindowId::day_summary});
  EXPECT_EQ(test.program.windows.geometry.day_summary, (WindowRecord{7000, 4800, 3840, 3456}));
  EXPECT_EQ(test.program.windows.geometry.SummarySmall, 0);
}

}  // namespace
}  // namespace kelvora
