#include "analysis/chart_look_panel.h"

#include <cmath>

#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include "platform/qt/hint_label.h"

namespace kelvora {

int NearestPixel(double twips) {
  return static_cast<int>(std::lround(InPixels(twips)));
}

void PaintFocus(const QWidget& widget, QPainter& painter) {
  if (!widget.hasFocus()) return;
  QStyleOptionFocusRect frame;
  frame.initFrom(&widget);
  widget.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, &widget);
}

QColor LettersOn(const QColor& ground) {
  const QColor white(Qt::white), black(Qt::black);
  return ContrastOf(white, ground) >= ContrastOf(black, ground) ? white : black;
}

QFont FontForLines(const QFont& font, int lines, int height) {
  constexpr int kSmallest = 8;
  QFont fitting = font;
  for (int size = QFontInfo(font).pixelSize();
       size > kSmallest && QFontMetrics(fitting).height() * lines > height; --size) {
    fitting.setPixelSize(size - 1);
  }
  return fitting;
}

}  // namespace kelvora
