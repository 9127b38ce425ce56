#include "analysis/summary_size.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

TEST(SummarySize, IsHeldToTheLimits) {
  EXPECT_EQ(HeldTo(kNormalLimits, {5000, 300, 10, 20}), (WindowRecord{8500, 4400, 10, 20}));
  EXPECT_EQ(HeldTo(kNormalLimits, {20000, 20000, 10, 20}), (WindowRecord{11400, 11900, 10, 20}));
  EXPECT_EQ(HeldTo(kNormalLimits, {9000, 5000, -5, 0}), (WindowRecord{9000, 5000, -5, 0}));
  EXPECT_EQ(HeldTo(kSmallLimits, {5000, 4800, 10, 20}), (WindowRecord{7000, 2400, 10, 20}));
  EXPECT_EQ(HeldTo(kSmallLimits, {12000, 100, 10, 20}), (WindowRecord{11400, 2400, 10, 20}));
  EXPECT_EQ(&LimitsOf(Schermstand::small), &kSmallLimits);
  EXPECT_EQ(&LimitsOf(Schermstand::normal), &kNormalLimits);
}

TEST(SummarySize, GoesDownWhenItBecomesSmallAndUpWhenItGrowsBack) {
  const WindowRecord normal{8500, 4800, 300, 2500};
  const WindowRecord small = Rescaled(normal, Schermstand::small);
  EXPECT_EQ(small, (WindowRecord{8500, 2400, 300, 4500}));
  EXPECT_EQ(Rescaled(small, Schermstand::normal), (WindowRecord{8500, 4400, 300, 2500}));
}

TEST(SummarySize, NeverGrowsBackAboveTheTop) {
  EXPECT_EQ(Rescaled({7000, 2400, 0, 1999}, Schermstand::normal).top, 0);
  EXPECT_EQ(Rescaled({7000, 2400, 0, 2000}, Schermstand::normal).top, 0);
  EXPECT_EQ(Rescaled({7000, 2400, 0, 2001}, Schermstand::normal).top, 1);
  // A window that somebody pushed out of sight goes no further.
  EXPECT_EQ(Rescaled({7000, 2400, 0, -300}, Schermstand::normal).top, -300);
}

TEST(SummarySize, GivesTheStatusBarItsThreePanels) {
  EXPECT_EQ(SummaryPanelWidths(AnalysisWindow::day_summary, 8380),
            (std::array<int, 3>{1500, 4000, 2880}));
  EXPECT_EQ(SummaryPanelWidths(AnalysisWindow::day_summary, 5000),
            (std::array<int, 3>{1500, 4000, 0}));
}

// 3800 / 14 - 84 = 187 and 2040 / 15 = 136, whole numbers.
TEST(SummarySize, MakesTheBarsAsHighAsThePanelAllows) {
  const BarPlaces normal = PlaceBars(Schermstand::normal, 3800);
  EXPECT_EQ(normal.left, 60);
  EXPECT_EQ(normal.height, 187);
  EXPECT_EQ(normal.text_width, 2000);
  EXPECT_EQ(normal.tops[0], 135);
  const BarPlaces small = PlaceBars(Schermstand::small, 2040);
  EXPECT_EQ(small.height, 136);
  EXPECT_EQ(small.text_width, 1700);
  // A panel that is still without a size.
  EXPECT_EQ(PlaceBars(Schermstand::normal, 0).height, 0);
}

TEST(SummarySize, StacksTheBarsWithoutOverlapInThePanel) {
  for (const auto& [stand, height] :
       {std::pair{Schermstand::normal, 3400}, std::pair{Schermstand::normal, 3690},
        std::pair{Schermstand::normal, 10900}, std::pair{Schermstand::small, 1950},
        std::pair{Schermstand::small, 2040}}) {
    const BarPlaces places = PlaceBars(stand, height);
    for (std::size_t i = 1; i < places.tops.size(); ++i) {
      EXPECT_GE(places.tops[i], places.tops[i - 1] + places.height) << height << " " << i;
    }
    EXPECT_LE(places.tops.back() + places.height, height);
    // The rows stand further apart than the two bars of one.
    EXPECT_GT(places.tops[2] - places.tops[1], places.tops[1] - places.tops[0]) << height;
  }
}

}  // namespace
}  // namespace kelvora
