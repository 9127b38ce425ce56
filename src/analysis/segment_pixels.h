// The segments of a chart as pixels: the grey lines first, each column of pixels once, and the
// series over them in their order, with smooth edges.
//
// The toolkit's own smooth lines take too long here: a line of many days goes up and down across
// the whole picture, and all of it is drawn anew with each step of a change of size.
#pragma once

#include <cstdint>
#include <vector>

#include "analysis/trend.h"
#include "core/geometry.h"

namespace kelvora {

// Row by row, each pixel as 0xFFrrggbb.
struct Pixels {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> rows;
};

// The picture in device pixels, of which `scale` make one pixel of the layout. Lines are one pixel
// of the layout wide; what lies on the right and the bottom edge shows in the last column and row.
[[nodiscard]] Pixels PaintSegments(const std::vector<TrendSegment>& segments, int width, int height,
                                   double scale);

// Where a place in twips lies in such a picture, in pixels of the layout: the middle of its column
// or row.
[[nodiscard]] constexpr double PictureMiddle(double twips) {
  return twips / kTwipsPerPixel + 0.5;
}

}  // namespace kelvora
