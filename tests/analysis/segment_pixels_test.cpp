// The pixels of the trend chart. A picture of 21 by 11 pixels is 300 by 150 twips from the middle
// of the first to the middle of the last column and row.
#include "analysis/segment_pixels.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

constexpr std::uint32_t kGround = 0xFFB6CACA;  // 182, 202, 202
constexpr std::uint32_t kGrey = 0xFF808080;
constexpr std::uint32_t kBlue = 0xFF0050C8;  // 0, 80, 200

TrendSegment Piece(float x1, float y1, float x2, float y2) {
  return {SegmentKind::series, {0, 80, 200}, x1, y1, x2, y2};
}

std::uint32_t At(const Pixels& pixels, int x, int y) {
  return pixels.rows[static_cast<std::size_t>(y * pixels.width + x)];
}

// A letter a pixel: "." ground, "g" grey, "#" the line, "+" between.
std::string Row(const Pixels& pixels, int y) {
  std::string row;
  for (int x = 0; x < pixels.width; ++x) {
    const std::uint32_t pixel = At(pixels, x, y);
    row += pixel == kGround ? '.' : pixel == kGrey ? 'g' : pixel == kBlue ? '#' : '+';
  }
  return row;
}

TEST(SegmentPixels, LieOnTheGround) {
  const Pixels pixels = PaintSegments({}, 3, 2, 1);
  EXPECT_EQ(pixels.width, 3);
  EXPECT_EQ(pixels.rows, std::vector<std::uint32_t>(6, kGround));
  EXPECT_TRUE(PaintSegments({Piece(0, 0, 300, 0)}, 0, 5, 1).rows.empty());
}

TEST(SegmentPixels, DrawALevelLineAsOneRow) {
  const Pixels pixels = PaintSegments({Piece(75, 150, 150, 150)}, 21, 11, 1);
  EXPECT_EQ(Row(pixels, 10), ".....######..........");
  EXPECT_EQ(Row(pixels, 9), std::string(21, '.'));
}

TEST(SegmentPixels, DrawASteepLineAsOneColumn) {
  const Pixels pixels = PaintSegments({Piece(45, 30, 45, 90)}, 21, 11, 1);
  for (int y = 0; y < 11; ++y) {
    EXPECT_EQ(Row(pixels, y), y < 2 || y > 6 ? std::string(21, '.') : "...#.................") << y;
  }
}

TEST(SegmentPixels, DrawTwoPixelsAtScaleTwo) {
  const Pixels pixels = PaintSegments({Piece(0, 75, 300, 75)}, 42, 22, 2);
  for (int y = 0; y < 22; ++y) {
    // 75 twips are the sixth row of the layout, device rows 10 and 11; the ends are those of the
    // middles of the first and the last column.
    const bool line = y == 10 || y == 11;
    EXPECT_EQ(At(pixels, 20, y), line ? kBlue : kGround) << y;
  }
}

// Half way between two rows both get half of the colour: 182 to 0 is 91, 202 to 80 is 141, 202 to
// 200 is 201.
TEST(SegmentPixels, HaveSmoothEdges) {
  const Pixels pixels = PaintSegments({Piece(0, 67.5F, 300, 67.5F)}, 21, 11, 1);
  EXPECT_EQ(At(pixels, 10, 4), 0xFF5B8DC9u);
  EXPECT_EQ(At(pixels, 10, 5), 0xFF5B8DC9u);
  EXPECT_EQ(At(pixels, 10, 3), kGround);
}

// Measured across the line: at half a right angle a column of it is 1.41 pixels high.
TEST(SegmentPixels, AreAsThickAtAnyAngle) {
  const Pixels pixels = PaintSegments({Piece(0, 0, 150, 150)}, 21, 11, 1);
  EXPECT_EQ(Row(pixels, 5), "....+#+..............");
}

TEST(SegmentPixels, DrawDayLinesOnceBehindTheLines) {
  const TrendSegment day{SegmentKind::day, kChartGrey, 150, 0, 150, 150};
  const Pixels pixels = PaintSegments(
      {Piece(0, 75, 300, 75), day, day, {SegmentKind::grid, kChartGrey, 0, 30, 300, 30}}, 21, 11,
      1);
  EXPECT_EQ(Row(pixels, 0), "..........g..........");
  EXPECT_EQ(Row(pixels, 2), std::string(21, 'g'));
  EXPECT_EQ(Row(pixels, 5), std::string(21, '#'));
}

TEST(SegmentPixels, CutWhatLiesOutside) {
  const Pixels pixels = PaintSegments({Piece(-300, 75, 900, 75),
                                       Piece(30, -1e9F, 30, 1e9F),
                                       Piece(0, 1e30F, 300, 2e30F),
                                       {SegmentKind::day, kChartGrey, 1e9F, 0, 1e9F, 150}},
                                      21, 11, 1);
  EXPECT_EQ(Row(pixels, 5), std::string(21, '#'));
  EXPECT_EQ(Row(pixels, 0), "..#..................");
  EXPECT_EQ(Row(pixels, 10), "..#..................");
}

// A line of more points than columns covers, in each column, what its pieces reach there.
TEST(SegmentPixels, FillTheColumnsOfADenseLine) {
  std::vector<TrendSegment> pieces;
  for (int i = 0; i < 100; ++i) {
    const auto x = static_cast<float>(3 * i);
    pieces.push_back(i % 2 == 0 ? Piece(x, 30, x + 3, 90) : Piece(x, 90, x + 3, 30));
  }
  const Pixels pixels = PaintSegments(pieces, 21, 11, 1);
  for (int y = 0; y < 11; ++y) {
    EXPECT_EQ(Row(pixels, y), std::string(21, y < 2 || y > 6 ? '.' : '#')) << y;
  }
}

TEST(SegmentPixels, BridgeAGapInADenseLine) {
  std::vector<TrendSegment> pieces;
  for (int i = 0; i < 40; ++i) pieces.push_back(Piece(0, 0, 0, 0));
  pieces.push_back(Piece(0, 0, 300, 150));
  const Pixels pixels = PaintSegments(pieces, 21, 11, 1);
  // One row down every two columns.
  EXPECT_EQ(At(pixels, 10, 5), kBlue);
  EXPECT_EQ(At(pixels, 20, 10), kBlue);
  EXPECT_EQ(At(pixels, 10, 2), kGround);
}

TEST(SegmentPixels, LeaveNoHoleInASteepPieceOfADenseLine) {
  std::vector<TrendSegment> pieces;
  for (int i = 0; i < 40; ++i) pieces.push_back(Piece(0, 0, 0, 0));
  pieces.push_back(Piece(0, 0, 30, 150));
  const Pixels pixels = PaintSegments(pieces, 21, 11, 1);
  for (int y = 0; y < 11; ++y) EXPECT_NE(Row(pixels, y).find('#'), std::string::npos) << y;
}

TEST(SegmentPixels, KeepLinesOfOneColourApart) {
  const Pixels pixels = PaintSegments({Piece(0, 0, 75, 0), Piece(225, 150, 300, 150)}, 21, 11, 1);
  EXPECT_EQ(Row(pixels, 0), "######...............");
  EXPECT_EQ(Row(pixels, 5), std::string(21, '.'));
  EXPECT_EQ(Row(pixels, 10), "...............######");
}

}  // namespace
}  // namespace kelvora
