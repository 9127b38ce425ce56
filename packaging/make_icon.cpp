// Draws an SVG icon as a square PNG: make_icon <icon.svg> <pixels> <icon.png>
#include <cstdio>

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: make_icon <icon.svg> <pixels> <icon.png>\n");
    return 2;
  }
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  const int pixels = QByteArray(argv[2]).toInt();
  if (!drawing.isValid() || pixels <= 0) {
    std::fprintf(stderr, "make_icon: cannot draw %s at %s pixels\n", argv[1], argv[2]);
    return 1;
  }
  QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  drawing.render(&painter);
  painter.end();
  if (!image.save(QString::fromLocal8Bit(argv[3]), "PNG")) {
    std::fprintf(stderr, "make_icon: cannot write %s\n", argv[3]);
    return 1;
  }
  return 0;
}
