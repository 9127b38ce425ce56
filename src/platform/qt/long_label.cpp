#include "platform/qt/long_label.h"

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

QString LongLabel::Fitting() const {
  return fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
}

void LongLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                        isEnabled(), Fitting(), foregroundRole());
}

bool LongLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || Fitting() == text()) return QLabel::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainTip(text()), this);
  return true;
}

}  // namespace kelvora
