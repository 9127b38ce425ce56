#include "analysis/trend_picture_panel.h"

#include <algorithm>

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include "analysis/chart_look_panel.h"
#include "analysis/segment_pixels.h"
#include "analysis/trend_days.h"
#include "platform/qt/cell_tips.h"

namespace kelvora {

TrendPicture::TrendPicture(QWidget* parent) : SegmentPicture(parent, "Pic_Grafiek") {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
}

void TrendPicture::SetDays(std::vector<float> places) {
  places_ = std::move(places);
  if (day_ && *day_ >= places_.size()) EndPointing();
  Describe();
  update();
}

void TrendPicture::SetDescription(const QString& words) {
  description_ = words;
  Describe();
}

bool TrendPicture::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return SegmentPicture::event(event);
  PointOutUnder(static_cast<QHelpEvent*>(event)->pos());
  return true;
}

// The tip follows the pointer from day to day while it stands.
void TrendPicture::mouseMoveEvent(QMouseEvent* event) {
  SegmentPicture::mouseMoveEvent(event);
  if (by_pointer_ && QToolTip::isVisible()) PointOutUnder(event->position().toPoint());
}

void TrendPicture::PointOutUnder(QPoint pointer) {
  const auto day = NearestDay(places_, static_cast<float>(TwipsOfPixels(pointer.x())));
  if (!day) return;
  by_pointer_ = true;
  PointOut(*day, pointer);
}

void TrendPicture::PointOut(std::size_t day, QPoint tip_place) {
  day_ = day;
  Describe();
  update();
  QToolTip::showText(mapToGlobal(tip_place), PlainTip(words_of(day).join('\n')), this);
}

void TrendPicture::EndPointing() {
  if (!day_) return;
  day_.reset();
  by_pointer_ = false;
  QToolTip::hideText();
  Describe();
  update();
}

void TrendPicture::Describe() {
  setAccessibleDescription(day_ ? words_of(*day_).join('\n') : description_);
}

void TrendPicture::leaveEvent(QEvent* event) {
  SegmentPicture::leaveEvent(event);
  if (by_pointer_) EndPointing();
}

void TrendPicture::focusOutEvent(QFocusEvent* event) {
  SegmentPicture::focusOutEvent(event);
  EndPointing();
}

std::optional<std::size_t> TrendPicture::DayOfKey(int key) const {
  if (places_.empty()) return std::nullopt;
  const auto last = static_cast<std::ptrdiff_t>(places_.size()) - 1;
  const std::ptrdiff_t many = std::max<std::ptrdiff_t>(last / 10, 1);
  const auto from_here = [&](std::ptrdiff_t step) {
    // The first step goes to an end of the days.
    const auto here = day_ ? static_cast<std::ptrdiff_t>(*day_) : step > 0 ? -step : last - step;
    return static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(here + step, 0, last));
  };
  switch (key) {
    case Qt::Key_Left:
      return from_here(-1);
    case Qt::Key_Right:
      return from_here(1);
    case Qt::Key_PageUp:
      return from_here(-many);
    case Qt::Key_PageDown:
      return from_here(many);
    case Qt::Key_Home:
      return 0;
    case Qt::Key_End:
      return static_cast<std::size_t>(last);
    default:
      return std::nullopt;
  }
}

void TrendPicture::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && day_) return EndPointing();
  const auto day = DayOfKey(event->key());
  if (!day) return SegmentPicture::keyPressEvent(event);
  by_pointer_ = false;
  PointOut(*day, {static_cast<int>(PictureMiddle(places_[*day])), height() / 2});
}

void TrendPicture::paintEvent(QPaintEvent* event) {
  SegmentPicture::paintEvent(event);
  QPainter painter(this);
  if (day_) {
    painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
    const double x = PictureMiddle(places_[*day_]);
    painter.drawLine(QPointF(x, 0), QPointF(x, height()));
  }
  PaintFocus(*this, painter);
}

}  // namespace kelvora
