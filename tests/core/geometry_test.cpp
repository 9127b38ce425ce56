#include "core/geometry.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

// Worked out by hand for 1024 x 768 pixels with a quick toolbar of 32 pixels:
// W = 15360, M = 11520, B = 480, H = 11520 - 480 - 920 = 10120, T = (10120 - 860) / 3 = 3086.67,
// rounded 3087.
TEST(Geometry, DefaultsAt1024By768) {
  const GeometryRecords records = DefaultGeometry({15360, 11520, 480});
  EXPECT_EQ(records.lists, (WindowRecord{6144, 9380, 60, 60}));
  EXPECT_EQ(records.diary, (WindowRecord{6144, 4048, 3072, 2304}));
  EXPECT_EQ(records.day_summary, (WindowRecord{8500, 4800, 3840, 3456}));
  EXPECT_EQ(records.multi_day, (WindowRecord{9200, 6500, 4608, 1728}));
  EXPECT_EQ(records.morning, (WindowRecord{5600, 3087, 9460, 60}));
  EXPECT_EQ(records.afternoon, (WindowRecord{5600, 3087, 9460, 3207}));
  EXPECT_EQ(records.evening, (WindowRecord{5600, 3087, 9460, 6354}));
  // (15360 - 5625) / 1.2 = 8112.5, to even 8112; (10120 - 5550) / 2 = 2285.
  EXPECT_EQ(records.comparison, (WindowRecord{5625, 5820, 8112, 2285}));
  EXPECT_EQ(records.SummarySmall, 0);
}

// W = 12000, M = 8600, B = 420: H = 7260, T = 6400 / 3 = 2133.33, rounded 2133.
TEST(Geometry, DefaultsAtTheSmallestMainWindow) {
  const GeometryRecords records = DefaultGeometry({12000, 8600, 420});
  EXPECT_EQ(records.lists, (WindowRecord{4800, 6520, 60, 60}));
  EXPECT_EQ(records.morning, (WindowRecord{5600, 2133, 6100, 60}));
  EXPECT_EQ(records.afternoon.top, 2253);
  EXPECT_EQ(records.evening.top, 4446);
  // (12000 - 5625) / 1.2 = 5312.5, to even 5312; (7260 - 5550) / 2 = 855.
  EXPECT_EQ(records.comparison, (WindowRecord{5625, 5820, 5312, 855}));
}

// W = 28800, M = 16200, B = 480 (1920 x 1080): H = 14800, T = 13940 / 3 = 4646.67, rounded 4647.
TEST(Geometry, DefaultsAt1920By1080) {
  const GeometryRecords records = DefaultGeometry({28800, 16200, 480});
  EXPECT_EQ(records.lists, (WindowRecord{11520, 14060, 60, 60}));
  EXPECT_EQ(records.evening, (WindowRecord{5600, 4647, 22900, 9474}));
  // (28800 - 5625) / 1.2 = 19312.5, to even 19312.
  EXPECT_EQ(records.comparison.left, 19312);
}

// W = 12000, B = 420: half of W is 6000; H = 7260, less 3220 is 4040, and 120 below that 4160.
TEST(Geometry, WithSummaryAtTheSmallestMainWindow) {
  const GeometryRecords records = GeometryWithSummary({12000, 8600, 420});
  EXPECT_EQ(records.lists, (WindowRecord{6000, 4040, 60, 60}));
  EXPECT_EQ(records.day_summary, (WindowRecord{6000, 4800, 60, 4160}));
}

// W = 28800, B = 480: half of W is 14400; H = 14800, less 3220 is 11580, and 120 below that 11700.
TEST(Geometry, WithSummaryAt1920By1080) {
  const GeometryRecords records = GeometryWithSummary({28800, 16200, 480});
  EXPECT_EQ(records.lists, (WindowRecord{14400, 11580, 60, 60}));
  EXPECT_EQ(records.day_summary, (WindowRecord{14400, 4800, 60, 11700}));
}

// Three tenths of 8600 are 2580; a quarter of 12010 is 3002.5, to even 3002, and of 12030 3007.5,
// to even 3008.
TEST(Geometry, TheSummaryComesBackNarrowerThanByDefault) {
  EXPECT_EQ(NormalSummaryRecord({12000, 8600, 420}), (WindowRecord{7000, 4800, 3000, 2580}));
  EXPECT_EQ(NormalSummaryRecord({12010, 8600, 420}).left, 3002);
  EXPECT_EQ(NormalSummaryRecord({12030, 8600, 420}).left, 3008);
  EXPECT_EQ(NormalSummaryRecord({28800, 16200, 480}), (WindowRecord{7000, 4800, 7200, 4860}));
}

// All windows at the smallest size and at 1920 x 1080, beyond what stands above.
TEST(Geometry, TheOtherDefaultsAtBothEnds) {
  const GeometryRecords small = DefaultGeometry({12000, 8600, 420});
  EXPECT_EQ(small.diary, (WindowRecord{4800, 2904, 2400, 1720}));
  EXPECT_EQ(small.day_summary, (WindowRecord{8500, 4800, 3000, 2580}));
  EXPECT_EQ(small.multi_day, (WindowRecord{9200, 6500, 3600, 1290}));
  EXPECT_EQ(small.afternoon, (WindowRecord{5600, 2133, 6100, 2253}));
  EXPECT_EQ(small.evening, (WindowRecord{5600, 2133, 6100, 4446}));
  const GeometryRecords large = DefaultGeometry({28800, 16200, 480});
  EXPECT_EQ(large.diary, (WindowRecord{11520, 5920, 5760, 3240}));
  EXPECT_EQ(large.day_summary, (WindowRecord{8500, 4800, 7200, 4860}));
  EXPECT_EQ(large.multi_day, (WindowRecord{9200, 6500, 8640, 2430}));
  EXPECT_EQ(large.morning, (WindowRecord{5600, 4647, 22900, 60}));
  EXPECT_EQ(large.afternoon, (WindowRecord{5600, 4647, 22900, 4767}));
  EXPECT_EQ(large.comparison, (WindowRecord{5625, 5820, 19312, 4625}));
}

TEST(Geometry, StatusPanelsFillTheMainWindow) {
  EXPECT_EQ(StatusPanelWidths(15360), (std::array{3500, 4000, 6660, 1200}));
  EXPECT_EQ(StatusPanelWidths(12000), (std::array{3500, 4000, 3300, 1200}));
  EXPECT_EQ(StatusPanelWidths(28800), (std::array{3500, 4000, 20100, 1200}));
}

TEST(Geometry, PixelsThatCoverTwipsAreNoFewer) {
  EXPECT_EQ(PixelsCovering(12000), 800);
  EXPECT_EQ(PixelsCovering(8600), 574);  // 573 pixels are 8595 twips
  EXPECT_EQ(PixelsCovering(8610), 574);
}

TEST(Geometry, WithSummaryTheListsAreWiderAndTheSmallSummaryStandsBelow) {
  const GeometryRecords records = GeometryWithSummary({15360, 11520, 480});
  EXPECT_EQ(records.lists, (WindowRecord{7680, 6900, 60, 60}));
  EXPECT_EQ(records.day_summary, (WindowRecord{7680, 4800, 60, 7020}));
  EXPECT_EQ(records.SummarySmall, 1);
  EXPECT_EQ(records.morning, DefaultGeometry({15360, 11520, 480}).morning);
}

}  // namespace
}  // namespace kelvora
