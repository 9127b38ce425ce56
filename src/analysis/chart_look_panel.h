// What the drawn panels of the analysis share: laid-down colours and lengths as the toolkit has
// them, and letters that fit.
#pragma once

#include <QColor>
#include <QFont>
#include <QWidget>

#include "analysis/colour.h"
#include "core/geometry.h"

namespace kelvora {

[[nodiscard]] inline QColor InQt(const Colour& colour) {
  return {colour.red, colour.green, colour.blue};
}

[[nodiscard]] constexpr double InPixels(double twips) {
  return twips / kTwipsPerPixel;
}

// To the nearest whole pixel, where PixelsOfTwips leaves a fraction out.
[[nodiscard]] int NearestPixel(double twips);

// The frame around what has the focus; nothing around anything else.
void PaintFocus(const QWidget& widget, QPainter& painter);

// The font, made smaller as far as so many lines need it in that height, but not unreadable.
[[nodiscard]] QFont FontForLines(const QFont& font, int lines, int height);

}  // namespace kelvora
