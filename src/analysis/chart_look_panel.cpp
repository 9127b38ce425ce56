#include "analysis/chart_look_panel.h"

#include <cmath>

#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

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
