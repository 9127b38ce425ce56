#include "platform/qt/long_label.h"

#include <algorithm>

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "platform/qt/cell_tips.h"

namespace kelvora {

LongLabel::LongLabel(QWidget* parent, const QString& object_name) : QLabel(parent) {
  setObjectName(object_name);
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize LongLabel::minimumSizeHint() const {
  return {0, QLabel::minimumSizeHint().height()};
}

QRect LongLabel::Place() const {
  return contentsRect().adjusted(std::max(indent(), 0), 0, 0, 0);
}

QString LongLabel::Fitting() const {
  return fontMetrics().elidedText(text(), Qt::ElideMiddle, Place().width());
}

void LongLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  style()->drawItemText(&painter, Place(), static_cast<int>(alignment()), palette(), isEnabled(),
                        Fitting(), foregroundRole());
}

bool LongLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || Fitting() == text()) return QLabel::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainTip(text()), this);
  return true;
}

}  // namespace kelvora
