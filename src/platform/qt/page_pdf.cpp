#include "platform/qt/page_pdf.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

#include "core/common.h"
#include "core/failure.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr int kTwipsOfInch = 1440;
constexpr double kTwipsOfPoint = 20;

QFont FontOf(const PrintFont& font) {
  QFont made(QString::fromLatin1(font.family.data(), static_cast<qsizetype>(font.family.size())));
  made.setPointSizeF(font.points);
  made.setBold(font.bold);
  made.setItalic(font.italic);
  made.setUnderline(font.underline);
  // Letters stand where their widths put them, and each stays a letter of its own.
  made.setHintingPreference(QFont::PreferNoHinting);
  made.setStyleStrategy(
      static_cast<QFont::StyleStrategy>(QFont::PreferOutline | QFont::PreferNoShaping));
  return made;
}

// A pixel of the painter is a twip.
class Player {
 public:
  explicit Player(QPainter& painter) : painter_(painter) {}

  void operator()(const PrintedText& text) const {
    const QFont font(FontOf(text.font), painter_.device());
    painter_.setFont(font);
    const double base_line = text.y + QFontMetricsF(font, painter_.device()).ascent();
    painter_.drawText(QPointF(text.x, base_line), ToQtCell(text.text));
  }
  void operator()(const PrintedLine& line) const {
    painter_.setPen(QPen(Qt::black, line.width, Qt::SolidLine, Qt::FlatCap));
    painter_.drawLine(QPointF(line.from_x, line.from_y), QPointF(line.to_x, line.to_y));
  }

 private:
  QPainter& painter_;
};

}  // namespace

QByteArray PdfOf(const PrintedPage& page, const Sheet& sheet, const QString& title) {
  QByteArray pdf;
  QBuffer buffer(&pdf);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(kTwipsOfInch);
  writer.setTitle(title);
  writer.setCreator(ToQt(AppTitle));
  const QSizeF points(sheet.width / kTwipsOfPoint, sheet.height / kTwipsOfPoint);
  writer.setPageLayout({QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch),
                        QPageLayout::Portrait, QMarginsF(), QPageLayout::Point});
  QPainter painter;
  if (!painter.begin(&writer)) ThrowSystemError(std::errc::io_error);
  for (const auto& operation : page) std::visit(Player(painter), operation);
  painter.end();
  return pdf;
}

}  // namespace kelvora
