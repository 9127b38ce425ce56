#include "analysis/top5_panel.h"

#include <algorithm>

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "analysis/chart_look_panel.h"
#include "platform/qt/cell_tips.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr int kMargin = 8;
constexpr int kSwatch = 14;
constexpr int kSwatchGap = 8;
constexpr int kRowGap = 10;       // between two entries, where there is room
constexpr int kLegendLines = 13;  // the heading and two for each entry
constexpr int kLeastPie = 120;
constexpr int kNoticeShare = 90;  // percent of the pie's place

// The lines of one entry; what is too wide is left out at the end of its line, and the tip then has
// the whole.
class LegendLabel : public QLabel {
 public:
  LegendLabel(QWidget* parent, const QString& object_name) : QLabel(parent) {
    setObjectName(object_name);
    setTextFormat(Qt::PlainText);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, Fitting());
  }
  bool event(QEvent* event) override {
    if (event->type() != QEvent::ToolTip || Fitting() == text()) return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainTip(text()), this);
    return true;
  }

 private:
  [[nodiscard]] QString Fitting() const {
    QStringList lines = text().split('\n');
    for (QString& line : lines) line = fontMetrics().elidedText(line, Qt::ElideRight, width());
    return lines.join('\n');
  }
};

// A colour of the legend; a frame alone before the first pie.
class Swatch : public QWidget {
 public:
  Swatch(QWidget* parent, const QString& object_name) : QWidget(parent) {
    setObjectName(object_name);
  }
  void Show(const std::optional<Colour>& colour) {
    colour_ = colour;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(colour_ ? InQt(kWedgeOutline) : palette().color(QPalette::Mid));
    if (colour_) painter.setBrush(InQt(*colour_));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }

 private:
  std::optional<Colour> colour_;
};

QString InWords(const Top5Entry& entry) {
  const Text value = entry.value.empty() ? Text() : entry.value + ", ";
  return ToQt(entry.name + ": " + value + entry.share);
}

int WidthOfLines(const QLabel& label) {
  int width = 0;
  for (const QString& line : label.text().split('\n')) {
    // A fraction of a pixel less would cost the end of the line.
    width = std::max(width, label.fontMetrics().horizontalAdvance(line) + 1);
  }
  return width;
}

}  // namespace

Top5Panel::Top5Panel(SectorMaker sector_of, QWidget* parent)
    : QWidget(parent), sector_of_(std::move(sector_of)) {
  NameWidget(this, "Pic_top5");
  Graph_pie_ = new PiePanel(this, QStringLiteral("Graph_pie"));
  lbl_leeg_ = NewLabel(this, QStringLiteral("lbl_leeg"));
  lbl_leeg_->setAlignment(Qt::AlignCenter);
  lbl_leeg_->setWordWrap(true);
  lbl_leeg_->hide();
  lbl_soort_ = NewLabel(this, QStringLiteral("lbl_soort"));
  for (std::size_t i = 0; i < kTop5Entries; ++i) {
    lbl_piecolor_[i] = new Swatch(this, QStringLiteral("lbl_piecolor_%1").arg(i));
    lbl_piename_[i] = new LegendLabel(this, QStringLiteral("lbl_piename_%1").arg(i));
  }
}

void Top5Panel::Show(const Top5& top5) {
  lbl_soort_->setText(ToQt(top5.lbl_soort));
  if (top5.lbl_leeg) lbl_leeg_->setText(ToQt(*top5.lbl_leeg));
  lbl_leeg_->setVisible(top5.lbl_leeg.has_value());
  for (std::size_t i = 0; i < kTop5Entries; ++i) {
    lbl_piename_[i]->setText(ToQt(top5.lbl_piename[i]));
    static_cast<Swatch*>(lbl_piecolor_[i])->Show(top5.lbl_piecolor[i]);
  }
  wedges_ = top5.Graph_pie;
  Describe(top5);
  LayOut();
}

void Top5Panel::Describe(const Top5& top5) {
  QStringList lines;
  for (const Top5Entry& entry : top5.entries) lines << InWords(entry);
  for (int i = 0; i < static_cast<int>(kTop5Entries); ++i) {
    const QString words = i < lines.size() ? lines[i] : QString();
    lbl_piename_[static_cast<std::size_t>(i)]->setAccessibleName(words);
    lbl_piecolor_[static_cast<std::size_t>(i)]->setAccessibleName(words);
  }
  if (top5.lbl_leeg) lines = lbl_leeg_->text().split('\n', Qt::SkipEmptyParts);
  setAccessibleName(lbl_soort_->text());
  Graph_pie_->setAccessibleName(lbl_soort_->text());
  Graph_pie_->setAccessibleDescription(lines.join('\n'));
}

void Top5Panel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LayOut();
}

void Top5Panel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) LayOut();
}

// The legend is as wide as its widest line, as far as the pie leaves room.
int Top5Panel::LegendWidth() const {
  int wanted = 0;
  for (const QLabel* const name : lbl_piename_) wanted = std::max(wanted, WidthOfLines(*name));
  const int room = std::max(width() - kLeastPie, 0) * 3 / 5;
  return std::max(std::min(wanted + kSwatch + kSwatchGap, room), WidthOfLines(*lbl_soort_));
}

void Top5Panel::LayOut() {
  const QFont letters = FontForLines(font(), kLegendLines, height() - 2 * kMargin);
  lbl_soort_->setFont(letters);
  for (QLabel* const name : lbl_piename_) name->setFont(letters);
  const int legend = LegendWidth();
  LayLegend({width() - legend - kMargin, kMargin, legend, height() - 2 * kMargin});
  QRect pie(0, 0, std::max(width() - legend - 2 * kMargin, 0), height());
  // A square would stay empty.
  if (pie.width() == pie.height()) pie.setWidth(pie.width() - 1);
  Graph_pie_->setGeometry(pie);
  const QSize notice = pie.size() * kNoticeShare / 100;
  lbl_leeg_->setGeometry(QRect(pie.center() - QPoint(notice.width(), notice.height()) / 2, notice));
  DrawPie();
}

void Top5Panel::LayLegend(const QRect& place) {
  const int line = lbl_soort_->fontMetrics().height();
  lbl_soort_->setGeometry(place.left(), place.top(), place.width(), line);
  const int entries = static_cast<int>(kTop5Entries);
  const int row = std::min((place.height() - line) / entries, 2 * line + kRowGap);
  for (int i = 0; i < entries; ++i) {
    const int top = place.top() + line + i * row + (row - 2 * line) / 2;
    const int middle = top + line;
    const auto entry = static_cast<std::size_t>(i);
    lbl_piecolor_[entry]->setGeometry(place.left(), middle - kSwatch / 2, kSwatch, kSwatch);
    const int left = place.left() + kSwatch + kSwatchGap;
    lbl_piename_[entry]->setGeometry(left, top, place.right() + 1 - left, 2 * line);
  }
}

void Top5Panel::DrawPie() {
  std::vector<FilledSector> sectors;
  for (const Wedge& wedge : wedges_) {
    if (const auto sector = sector_of_(wedge, Graph_pie_->Picture())) {
      sectors.push_back({*sector, wedge.colour});
    }
  }
  Graph_pie_->Show(std::move(sectors));
}

}  // namespace kelvora
