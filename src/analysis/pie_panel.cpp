#include "analysis/pie_panel.h"

#include <numbers>

#include <QPainter>
#include <QPainterPath>

#include "analysis/chart_look_panel.h"

namespace kelvora {
namespace {

constexpr double kDegrees = 180 / std::numbers::pi;

QPainterPath PathOf(const Sector& sector) {
  const QPointF centre(InPixels(sector.centre_x), InPixels(sector.centre_y));
  const double radius = InPixels(sector.radius);
  const double start = sector.start_angle * kDegrees;
  const double end = sector.end_angle * kDegrees;
  QPainterPath path(centre);
  path.arcTo(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius), start,
             end - start);
  path.closeSubpath();
  return path;
}

}  // namespace

PiePanel::PiePanel(QWidget* parent, const QString& object_name) : QWidget(parent) {
  setObjectName(object_name);
  setFocusPolicy(Qt::TabFocus);  // where a screen reader reads the chart
}

void PiePanel::Show(std::vector<FilledSector> sectors) {
  sectors_ = std::move(sectors);
  update();
}

PictureSize PiePanel::Picture() const {
  return {TwipsOfPixels(width()), TwipsOfPixels(height())};
}

void PiePanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(InQt(kWedgeOutline), 1, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
  for (const auto& [sector, fill] : sectors_) {
    if (sector.radius == 0) continue;
    painter.setBrush(InQt(fill));
    painter.drawPath(PathOf(sector));
  }
  PaintFocus(*this, painter);
}

}  // namespace kelvora
