#include "core/frame/child_area_panel.h"

#include <QCloseEvent>
#include <QPainter>

#include "platform/qt/look.h"

namespace kelvora {
namespace {

constexpr int kMarkSize = 220;
constexpr double kMarkOpacity = 0.14;

// A length that was not touched keeps the twips that a pixel can't tell.
void TakePixels(int pixels, int& twips) {
  const bool untouched = PixelsOfTwips(twips) == pixels || PixelsCovering(twips) == pixels;
  if (!untouched) twips = TwipsOfPixels(pixels);
}

}  // namespace

ChildArea::ChildArea(QWidget* parent) : QMdiArea(parent) {
  NameWidget(this, "child_area");
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void ChildArea::paintEvent(QPaintEvent* event) {
  const QRect area = viewport()->rect();
  QPainter painter(viewport());
  const QColor base = palette().color(QPalette::Window);
  QLinearGradient ground(area.topLeft(), area.bottomLeft());
  ground.setColorAt(0, base.darker(104));
  ground.setColorAt(1, base.darker(114));
  painter.fillRect(event->rect(), ground);
  if (mark_.isNull()) {
    mark_ = IconNamed("kelvora-mark").pixmap(QSize(kMarkSize, kMarkSize), devicePixelRatioF());
  }
  painter.setOpacity(kMarkOpacity);
  painter.drawPixmap(area.center() - QPoint(kMarkSize / 2, kMarkSize / 2), mark_);
}

ChildFrame::ChildFrame(QWidget* content, WindowRecord& record) : record_(record) {
  setWidget(content);
  setAttribute(Qt::WA_DeleteOnClose);
  setObjectName(content->objectName() + QStringLiteral("_frame"));
}

void ChildFrame::MoveToRecord() {
  setGeometry(PixelsOfTwips(record_.left), PixelsOfTwips(record_.top), PixelsOfTwips(record_.width),
              PixelsOfTwips(record_.height));
}

void ChildFrame::closeEvent(QCloseEvent* event) {
  const QRect place = isMinimized() || isMaximized() ? normalGeometry() : geometry();
  if (place.isValid()) {
    TakePixels(place.width(), record_.width);
    TakePixels(place.height(), record_.height);
    TakePixels(place.x(), record_.left);
    TakePixels(place.y(), record_.top);
  }
  QMdiSubWindow::closeEvent(event);
}

}  // namespace kelvora
