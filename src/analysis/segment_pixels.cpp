#include "analysis/segment_pixels.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kelvora {
namespace {

// Far beyond any picture; nothing further away changes what shows.
constexpr double kFarAway = 1e6;
constexpr double kEndless = std::numeric_limits<double>::infinity();

struct Point {
  double x, y;
};

std::uint32_t PixelOf(const Colour& colour) {
  return 0xFF000000u | std::uint32_t{colour.red} << 16 | std::uint32_t{colour.green} << 8 |
         colour.blue;
}

// `share` of the colour over what is there.
std::uint32_t Blended(std::uint32_t there, std::uint32_t colour, double share) {
  const auto of_256 = static_cast<std::uint32_t>(share * 256 + 0.5);
  const auto mix = [&](std::uint32_t mask) {
    return ((there & mask) * (256 - of_256) + (colour & mask) * of_256) >> 8 & mask;
  };
  return 0xFF000000u | mix(0x00FF00FFu) | mix(0x0000FF00u);
}

class Painter {
 public:
  Painter(int width, int height, double scale)
      : picture_{width, height, {}},
        scale_(scale),
        thickness_(std::max(1, static_cast<int>(std::lround(scale)))) {
    picture_.rows.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                         PixelOf(kChartGround));
  }

  Pixels Of(const std::vector<TrendSegment>& segments) {
    DrawGrey(segments);
    DrawSeries(segments);
    return std::move(picture_);
  }

 private:
  [[nodiscard]] double Place(float twips) const {
    return std::clamp(PictureMiddle(twips), -kFarAway, kFarAway) * scale_;
  }
  // The first pixel of a straight line there.
  [[nodiscard]] int Edge(float twips) const {
    return static_cast<int>(std::lround(Place(twips) - thickness_ / 2.0));
  }
  [[nodiscard]] std::uint32_t& PixelAt(int x, int y) {
    return picture_.rows[static_cast<std::size_t>(y) * static_cast<std::size_t>(picture_.width) +
                         static_cast<std::size_t>(x)];
  }

  void DrawGrey(const std::vector<TrendSegment>& segments) {
    std::vector<bool> grey(static_cast<std::size_t>(picture_.width));
    for (const TrendSegment& segment : segments) {
      if (segment.kind == SegmentKind::series) continue;
      const bool column = segment.kind == SegmentKind::day;
      const int first = Edge(column ? segment.x1 : segment.y1);
      const int length = column ? picture_.width : picture_.height;
      for (int i = std::max(first, 0); i < std::min(first + thickness_, length); ++i) {
        if (column) {
          grey[static_cast<std::size_t>(i)] = true;
        } else {
          std::fill_n(&PixelAt(0, i), picture_.width, PixelOf(segment.colour));
        }
      }
    }
    if (std::ranges::find(grey, true) == grey.end()) return;
    for (int y = 0; y < picture_.height; ++y) {
      for (int x = 0; x < picture_.width; ++x) {
        if (grey[static_cast<std::size_t>(x)]) PixelAt(x, y) = PixelOf(kChartGrey);
      }
    }
  }

  // The pieces of a line follow each other, with nothing but day lines between.
  void DrawSeries(const std::vector<TrendSegment>& segments) {
    std::vector<Point> line;
    const TrendSegment* before = nullptr;
    const auto draw = [&] {
      if (before != nullptr) DrawLine(line, PixelOf(before->colour));
    };
    for (const TrendSegment& piece : segments) {
      if (piece.kind != SegmentKind::series) continue;
      const bool goes_on = before != nullptr && before->colour == piece.colour &&
                           before->x2 == piece.x1 && before->y2 == piece.y1;
      if (!goes_on) {
        draw();
        line = {{Place(piece.x1), Place(piece.y1)}};
      }
      line.push_back({Place(piece.x2), Place(piece.y2)});
      before = &piece;
    }
    draw();
  }

  void DrawLine(const std::vector<Point>& line, std::uint32_t colour) {
    const bool dense = line.size() > static_cast<std::size_t>(picture_.width / thickness_);
    if (dense) return DrawDenseLine(line, colour);
    for (std::size_t i = 0; i + 1 < line.size(); ++i) DrawPiece(line[i], line[i + 1], colour);
  }

  // Column by column, or row by row where the piece is steep.
  void DrawPiece(Point from, Point to, std::uint32_t colour) {
    const bool steep = std::fabs(to.y - from.y) > std::fabs(to.x - from.x);
    if (steep) {
      std::swap(from.x, from.y);
      std::swap(to.x, to.y);
    }
    if (from.x > to.x) std::swap(from, to);
    const int along = steep ? picture_.height : picture_.width;
    const int across = steep ? picture_.width : picture_.height;
    const double slope = to.x > from.x ? (to.y - from.y) / (to.x - from.x) : 0;
    const double half = thickness_ / 2.0 * std::sqrt(1 + slope * slope);
    const int first = static_cast<int>(std::max(std::floor(from.x), 0.0));
    const int last = static_cast<int>(std::min(std::floor(to.x), along - 1.0));
    for (int i = first; i <= last; ++i) {
      const double middle = from.y + slope * (std::clamp(i + 0.5, from.x, to.x) - from.x);
      const double top = std::max(middle - half, 0.0);
      const double bottom = std::min(middle + half, static_cast<double>(across));
      const auto blend = [&](int j, double share) {
        std::uint32_t& pixel = steep ? PixelAt(j, i) : PixelAt(i, j);
        pixel = share < 1 ? Blended(pixel, colour, share) : colour;
      };
      if (top >= bottom) continue;
      const int begin = static_cast<int>(top), end = static_cast<int>(std::ceil(bottom)) - 1;
      blend(begin, std::min(begin + 1.0, bottom) - top);
      for (int j = begin + 1; j < end; ++j) blend(j, 1);
      if (end > begin) blend(end, bottom - end);
    }
  }

  // With more points than columns a line is what it covers in each column.
  void DrawDenseLine(const std::vector<Point>& line, std::uint32_t colour) {
    const auto count = static_cast<std::size_t>(picture_.width);
    std::vector<double> tops(count, kEndless), bottoms(count, -kEndless);
    const auto cover = [&](std::size_t column, double y) {
      if (column >= count) return;
      tops[column] = std::min(tops[column], y);
      bottoms[column] = std::max(bottoms[column], y);
    };
    const auto column_of = [&](double x) {
      return static_cast<std::size_t>(std::clamp(x, 0.0, static_cast<double>(count)));
    };
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
      const Point& from = line[i];
      const Point& to = line[i + 1];
      cover(column_of(from.x), from.y);
      cover(column_of(to.x), to.y);
      // Between, where it goes from one column to the next.
      for (std::size_t edge = column_of(from.x) + 1; edge <= column_of(to.x); ++edge) {
        const double share = (static_cast<double>(edge) - from.x) / (to.x - from.x);
        const double y = from.y + share * (to.y - from.y);
        cover(edge - 1, y);
        cover(edge, y);
      }
    }
    FillColumns(tops, bottoms, colour);
  }

  // Row by row, as the pixels lie: from half a line above the top to half a line below the bottom.
  void FillColumns(const std::vector<double>& tops, const std::vector<double>& bottoms,
                   std::uint32_t colour) {
    const auto row = [this](double y) {
      return static_cast<int>(std::lround(std::clamp(y, -kFarAway, kFarAway) - thickness_ / 2.0));
    };
    std::vector<std::int32_t> first;
    std::vector<std::uint32_t> rows;
    std::int32_t begin = picture_.height, end = 0;
    for (std::size_t i = 0; i < tops.size(); ++i) {
      const int above = row(tops[i]);
      const int below = std::max(row(bottoms[i]) + thickness_, above);
      first.push_back(above);
      rows.push_back(static_cast<std::uint32_t>(below - above));
      begin = std::min(begin, std::max(above, 0));
      end = std::max(end, std::min(below, picture_.height));
    }
    for (std::int32_t y = begin; y < end; ++y) {
      std::uint32_t* const pixels = &PixelAt(0, y);
      // Without a branch, so that the compiler takes several columns at once.
      for (std::size_t i = 0; i < first.size(); ++i) {
        const bool covered = static_cast<std::uint32_t>(y - first[i]) < rows[i];
        pixels[i] = covered ? colour : pixels[i];
      }
    }
  }

  Pixels picture_;
  const double scale_;
  const int thickness_;  // of a line
};

}  // namespace

Pixels PaintSegments(const std::vector<TrendSegment>& segments, int width, int height,
                     double scale) {
  if (width <= 0 || height <= 0) return {};
  return Painter(width, height, scale).Of(segments);
}

}  // namespace kelvora
