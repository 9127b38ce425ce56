#include "analysis/segment_picture_panel.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "analysis/chart_look_panel.h"
#include "platform/qt/look.h"

namespace kelvora {
namespace {

// Far beyond any picture; nothing further away changes what shows.
constexpr double kFarAway = 1e6;

// Draws into device pixels.
class Drawing {
 public:
  Drawing(QSize size, double scale)
      : drawing_(size * scale),
        painter_(&drawing_),
        scale_(scale),
        thickness_(std::max(1, static_cast<int>(std::lround(scale)))) {
    painter_.fillRect(drawing_.rect(), InQt(kChartGround));
  }

  QPixmap Of(const std::vector<TrendSegment>& segments) {
    DrawGrey(segments);
    DrawSeries(segments);
    painter_.end();
    drawing_.setDevicePixelRatio(scale_);
    return drawing_;
  }

 private:
  [[nodiscard]] double Place(float twips) const {
    return std::clamp(PictureMiddle(twips), -kFarAway, kFarAway) * scale_;
  }
  // The first pixel of a straight line there.
  [[nodiscard]] int Edge(float twips) const {
    return static_cast<int>(std::lround(Place(twips) - thickness_ / 2.0));
  }

  void DrawGrey(const std::vector<TrendSegment>& segments) {
    std::vector<bool> drawn(static_cast<std::size_t>(drawing_.width()));
    for (const TrendSegment& segment : segments) {
      const QColor colour = InQt(segment.colour);
      if (segment.kind == SegmentKind::grid) {
        painter_.fillRect(0, Edge(segment.y1), drawing_.width(), thickness_, colour);
      } else if (segment.kind == SegmentKind::day) {
        const int column = Edge(segment.x1);
        if (column < 0 || column >= drawing_.width()) continue;
        const auto place = static_cast<std::size_t>(column);
        if (drawn[place]) continue;
        drawn[place] = true;
        painter_.fillRect(column, 0, thickness_, drawing_.height(), colour);
      }
    }
  }

  // The pieces of a line follow each other, with nothing but day lines between.
  void DrawSeries(const std::vector<TrendSegment>& segments) {
    painter_.setRenderHint(QPainter::Antialiasing);
    QPolygonF line;
    const TrendSegment* before = nullptr;
    const auto draw = [&] {
      if (before == nullptr) return;
      painter_.setPen(QPen(InQt(before->colour), thickness_, Qt::SolidLine, Qt::FlatCap));
      painter_.drawPolyline(line);
    };
    for (const TrendSegment& piece : segments) {
      if (piece.kind != SegmentKind::series) continue;
      const bool goes_on = before != nullptr && before->colour == piece.colour &&
                           before->x2 == piece.x1 && before->y2 == piece.y1;
      if (!goes_on) {
        draw();
        line = {QPointF(Place(piece.x1), Place(piece.y1))};
      }
      line << QPointF(Place(piece.x2), Place(piece.y2));
      before = &piece;
    }
    draw();
  }

  QPixmap drawing_;
  QPainter painter_;
  const double scale_;
  const int thickness_;  // one pixel of the layout
};

}  // namespace

SegmentPicture::SegmentPicture(QWidget* parent, const char* object_name) : QWidget(parent) {
  NameWidget(this, object_name);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void SegmentPicture::Show(const std::vector<TrendSegment>& segments) {
  segments_ = &segments;
  drawing_ = {};
  update();
}

TrendSize SegmentPicture::Size() const {
  const auto twips = [](int pixels) {
    return static_cast<float>(TwipsOfPixels(std::max(pixels - 1, 0)));
  };
  return {twips(width()), twips(height())};
}

void SegmentPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const double scale = painter.deviceTransform().m11();
  if (drawing_.isNull() || drawing_.devicePixelRatio() != scale) {
    static const std::vector<TrendSegment> nothing;
    drawing_ = Drawing(size(), scale).Of(segments_ == nullptr ? nothing : *segments_);
  }
  painter.drawPixmap(0, 0, drawing_);
}

void SegmentPicture::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  drawing_ = {};
  emit Resized();
}

}  // namespace kelvora
