#include "analysis/segment_picture_panel.h"

#include <algorithm>

#include <QPainter>

#include "analysis/segment_pixels.h"
#include "platform/qt/look.h"

namespace kelvora {
namespace {

QPixmap Painted(const std::vector<TrendSegment>& segments, QSize size, double scale) {
  const QSize device = size * scale;
  const Pixels pixels = PaintSegments(segments, device.width(), device.height(), scale);
  const QImage image(reinterpret_cast<const uchar*>(pixels.rows.data()), pixels.width,
                     pixels.height, QImage::Format_RGB32);
  QPixmap drawing = QPixmap::fromImage(image.copy());  // its own, or it would be lent the rows
  drawing.setDevicePixelRatio(scale);
  return drawing;
}

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
    drawing_ = Painted(segments_ == nullptr ? nothing : *segments_, size(), scale);
  }
  painter.drawPixmap(0, 0, drawing_);
}

void SegmentPicture::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  drawing_ = {};
  emit Resized();
}

}  // namespace kelvora
