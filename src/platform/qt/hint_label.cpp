#include "platform/qt/hint_label.h"

#include <QEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTextLayout>

#include "platform/qt/readable_palette.h"

namespace kelvora {

HintLabel::HintLabel(QWidget* parent, const QString& object_name) : QLabel(parent) {
  setObjectName(object_name);
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setForegroundRole(QPalette::WindowText);
  TakeColour();
}

void HintLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && !taking_colour_) TakeColour();
}

bool HintLabel::IsCut() const {
  return heightForWidth(width()) > height();
}

void HintLabel::paintEvent(QPaintEvent* event) {
  if (!IsCut()) return QLabel::paintEvent(event);
  const QFontMetrics letters = fontMetrics();
  QTextLayout layout(text(), font());
  layout.beginLayout();
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  QRect place = contentsRect();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(place.width());
    const bool last = place.height() < 2 * letters.lineSpacing();
    const QString rest = text().mid(line.textStart());
    const QString words = last ? letters.elidedText(rest, Qt::ElideRight, place.width())
                               : rest.left(line.textLength());
    painter.drawText(place, Qt::AlignTop | static_cast<int>(alignment() & Qt::AlignHorizontal_Mask),
                     words);
    if (last) break;
    place.setTop(place.top() + letters.lineSpacing());
  }
  layout.endLayout();
}

void HintLabel::TakeColour() {
  const QScopedValueRollback taking(taking_colour_, true);
  const QWidget& under = *parentWidget();
  QPalette grey;
  grey.setColor(QPalette::WindowText,
                QuietColour(under.palette(), under.foregroundRole(), under.backgroundRole()));
  setPalette(grey);
}

}  // namespace kelvora
