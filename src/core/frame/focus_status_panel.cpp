#include "core/frame/focus_status_panel.h"

#include <QPainter>

#include "analysis/chart_look_panel.h"

namespace kelvora {

FocusStatusBar::FocusStatusBar(QWidget* parent) : QStatusBar(parent) {
  setFocusPolicy(Qt::TabFocus);
}

void FocusStatusBar::paintEvent(QPaintEvent* event) {
  QStatusBar::paintEvent(event);
  QPainter painter(this);
  PaintFocus(*this, painter);
}

void FocusStatusBar::focusInEvent(QFocusEvent* event) {
  QStatusBar::focusInEvent(event);
  update();
}

void FocusStatusBar::focusOutEvent(QFocusEvent* event) {
  QStatusBar::focusOutEvent(event);
  update();
}

}  // namespace kelvora
