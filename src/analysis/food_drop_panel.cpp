#include "analysis/food_drop_panel.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>

#include "analysis/chart_look_panel.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr QSize kPicture{64, 48};
constexpr int kMargin = 4;

}  // namespace

FoodDropPanel::FoodDropPanel(QWidget* parent, const QString& object_name, const QIcon& picture)
    : QWidget(parent), picture_(picture) {
  setObjectName(object_name);
  setAcceptDrops(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize FoodDropPanel::sizeHint() const {
  return kPicture + QSize(2 * kMargin, 2 * kMargin);
}

// Any text may be dropped; what it means is not decided here. What text can't hold comes from no
// food list, and would become something else.
void FoodDropPanel::dragEnterEvent(QDragEnterEvent* event) {
  if (!event->mimeData()->hasText() || !TextHolds(event->mimeData()->text())) {
    return event->ignore();
  }
  event->acceptProposedAction();
  SetDropLight(true);
}

void FoodDropPanel::dragLeaveEvent(QDragLeaveEvent*) {
  SetDropLight(false);
}

void FoodDropPanel::dropEvent(QDropEvent* event) {
  SetDropLight(false);
  event->acceptProposedAction();
  drop(FromQt(event->mimeData()->text()));
}

void FoodDropPanel::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter) return QWidget::keyPressEvent(event);
  emit DetailsAsked();
}

void FoodDropPanel::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit DetailsAsked();
}

void FoodDropPanel::SetDropLight(bool on) {
  drop_light_ = on;
  update();
}

void FoodDropPanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QRect place(QPoint(), kPicture);
  place.moveCenter(rect().center());
  picture_.paint(&painter, place);
  if (drop_light_) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }
  PaintFocus(*this, painter);
}

}  // namespace kelvora
