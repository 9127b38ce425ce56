#include "analysis/requirements_panel.h"

#include <algorithm>
#include <cmath>

#include <QEvent>
#include <QPainter>

#include "analysis/chart_look_panel.h"
#include "platform/qt/long_label.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

// A colour for the middle, a darker one for the caps and the edge.
struct BarColours {
  Colour middle;
  Colour edge;
};
constexpr std::array kBarColours = {
    BarColours{{63, 131, 196}, {40, 90, 140}},  // requirement
    BarColours{{240, 138, 60}, {176, 88, 26}},  // use
};

constexpr int kMargin = 4;     // beside the names, and between bar and text
constexpr int kTextStep = 16;  // the text boxes grow by so many pixels
constexpr int kCornerMarginTwips = 60;
constexpr double kCorner = 1.5;  // radius of a bar's ends

}  // namespace

AmountBar::AmountBar(Look look, const QString& object_name, QWidget* parent)
    : QWidget(parent), look_(look) {
  setObjectName(object_name);
}

void AmountBar::SetLength(float twips) {
  middle_ = std::max(InPixels(twips), 0.0);
  update();
}

double AmountBar::MiddlePixels() const {
  // No bar reaches beyond the panel, whatever the amounts.
  const int room = parentWidget()->width();
  return std::min(middle_, static_cast<double>(std::max(room, 0)));
}

// The ends of the middle lie on whole pixels of the screen.
void AmountBar::paintEvent(QPaintEvent*) {
  const auto& [middle, edge] = kBarColours[static_cast<std::size_t>(look_)];
  QPainter painter(this);
  const double scale = painter.deviceTransform().m11();
  const double length = std::round(MiddlePixels() * scale) / scale;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(InQt(edge));
  painter.drawRoundedRect(QRectF(0, 0, length + 2 * kCap, height()), kCorner, kCorner);
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.fillRect(QRectF(kCap, 1, length, height() - 2), InQt(middle));
}

RequirementsPanel::RequirementsPanel(QWidget* parent) : QWidget(parent) {
  NameWidget(this, "Pic_Behoefte");
  setFocusPolicy(Qt::TabFocus);  // where a screen reader reads the panel
  for (std::size_t row = 0; row < kRequirementRows; ++row) {
    names_[row] = NewLabel(this, QStringLiteral("lbl_stof_%1").arg(row));
    const auto line = [&](AmountBar::Look look, const char* bar, const char* text) {
      const QString index = QStringLiteral("_%1").arg(row);
      return Line{new AmountBar(look, QLatin1String(bar) + index, this),
                  new LongLabel(this, QLatin1String(text) + index)};
    };
    LineOf(row, false) = line(AmountBar::Look::requirement, "pic_n", "Pic_nt");
    LineOf(row, true) = line(AmountBar::Look::use, "pic_g", "Pic_gt");
  }
}

void RequirementsPanel::Set_Taal(const TextTables& texts, AnalysisWindow window) {
  for (std::size_t row = 0; row < kRequirementRows; ++row) {
    names_[row]->setText(ToQt(RequirementName(texts, window, row)));
  }
  Plaats_Balken();
}

void RequirementsPanel::ShowLine(Line& line, float length, const Text& text, const Text& tip) {
  line.bar->SetLength(length);
  line.bar->setVisible(length > 0 || !text.empty());  // not before there are amounts
  line.text->setText(ToQt(text));
  const QString words = ToQt(tip);
  if (line.bar->toolTip() == words) return;
  for (QWidget* const piece : {static_cast<QWidget*>(line.bar), static_cast<QWidget*>(line.text)}) {
    piece->setToolTip(words);
    piece->setAccessibleName(words);
  }
}

void RequirementsPanel::Show(const RequirementRows& rows) {
  QStringList words;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const RequirementRow& row = rows[i];
    ShowLine(LineOf(i, false), row.requirement_width, row.requirement_text, row.requirement_tip);
    ShowLine(LineOf(i, true), row.use_width, row.use_text, row.use_tip);
    words << ToQt(row.requirement_tip) << ToQt(row.use_tip);
  }
  setAccessibleDescription(words.join('\n'));
  Plaats_Balken();
}

void RequirementsPanel::SetStand(Schermstand stand) {
  stand_ = stand;
  FitLetters();
  Plaats_Balken();
}

void RequirementsPanel::SetCorner(QWidget* corner) {
  corner_ = corner;
  corner_->setParent(this);
  Plaats_Balken();
}

int RequirementsPanel::NamesWidth() const {
  int width = 0;
  for (const QLabel* const name : names_) {
    width = std::max(width, name->fontMetrics().horizontalAdvance(name->text()));
  }
  return width + 2 * kMargin;
}

int RequirementsPanel::CornerWidth() const {
  return corner_ == nullptr ? 0 : corner_->width();
}

PanelWidths RequirementsPanel::Widths() const {
  int letters = 0;
  for (const Line& line : lines_) {
    letters = std::max(letters, line.text->fontMetrics().horizontalAdvance(line.text->text()));
  }
  // In steps, so that the bars don't move with every digit.
  const int boxes = (letters + 2 * kMargin + kTextStep - 1) / kTextStep * kTextStep;
  const int least = PlaceBars(stand_, TwipsOfPixels(height())).text_width;
  const int panel = TwipsOfPixels(width() - NamesWidth() - CornerWidth());
  // A number of forty digits leaves the bars their half.
  return {.panel = panel, .text = std::max(least, std::min(TwipsOfPixels(boxes), panel / 2))};
}

void RequirementsPanel::FitLetters() {
  const BarPlaces places = PlaceBars(stand_, TwipsOfPixels(height()));
  const auto rows = static_cast<int>(kRequirementRows);
  const QFont text_font = FontForLines(font(), 1, NearestPixel(places.tops[1] - places.tops[0]));
  const QFont name_font = FontForLines(font(), rows, height());
  for (QLabel* const name : names_) name->setFont(name_font);
  for (Line& line : lines_) line.text->setFont(text_font);
}

void RequirementsPanel::Plaats_Balken() {
  const BarPlaces places = PlaceBars(stand_, TwipsOfPixels(height()));
  const int names_width = NamesWidth();
  for (std::size_t i = 0; i < lines_.size(); ++i) PlaceLine(i, names_width, places);
  for (std::size_t row = 0; row < kRequirementRows; ++row) {
    const QRect both = LineOf(row, false).bar->geometry() | LineOf(row, true).bar->geometry();
    const int height = names_[row]->fontMetrics().height();
    const int top = both.center().y() - height / 2;
    names_[row]->setGeometry(kMargin, top, names_width - kMargin, height);
  }
  if (corner_ == nullptr) return;
  const QPoint margin(NearestPixel(kCornerMarginTwips), NearestPixel(kCornerMarginTwips));
  corner_->move(rect().bottomRight() + QPoint(1, 1) - margin -
                QPoint(corner_->width(), corner_->height()));
}

void RequirementsPanel::PlaceLine(std::size_t index, int left, const BarPlaces& places) {
  const Line& line = lines_[index];
  const int top = NearestPixel(places.tops[index]);
  const int height = PixelsOfTwips(places.height);
  const int bar_left = left + NearestPixel(places.left);
  const int bar_width = static_cast<int>(std::ceil(line.bar->MiddlePixels())) + 2 * AmountBar::kCap;
  line.bar->setGeometry(bar_left, top, bar_width, height);
  const int text_left = bar_left + bar_width + kMargin;
  const int letters = line.text->fontMetrics().height();
  line.text->setGeometry(text_left, top + (height - letters) / 2,
                         std::max(width() - CornerWidth() - text_left, 0), letters);
}

void RequirementsPanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FitLetters();
  Plaats_Balken();
  emit Resized();
}

void RequirementsPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  FitLetters();
  emit Resized();
}

void RequirementsPanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintFocus(*this, painter);
}

}  // namespace kelvora
