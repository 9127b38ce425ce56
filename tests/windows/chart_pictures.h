// A panel drawn into a picture, to be probed as a user sees it.
#pragma once

#include <QImage>
#include <QWidget>

#include "analysis/colour.h"

namespace kelvora {

// The panel at that size, drawn at that scale of the screen.
inline QImage PictureOf(QWidget& panel, QSize size, double scale) {
  panel.resize(size);
  QImage picture(size * scale, QImage::Format_RGB32);
  picture.setDevicePixelRatio(scale);
  picture.fill(panel.palette().color(QPalette::Window));
  panel.render(&picture);
  return picture;
}

// The colour at a place in device-independent pixels.
inline QColor At(const QImage& picture, QPointF place) {
  return picture.pixelColor((place * picture.devicePixelRatio()).toPoint());
}

inline QColor AsDrawn(const Colour& colour) {
  return {colour.red, colour.green, colour.blue};
}

}  // namespace kelvora
