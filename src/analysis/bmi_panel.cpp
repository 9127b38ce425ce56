#include "analysis/bmi_panel.h"

#include <algorithm>

#include <QGridLayout>
#include <QPainter>

#include "analysis/chart_look_panel.h"
#include "language/day_summary_texts.h"
#include "platform/qt/contrast.h"
#include "platform/qt/long_label.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

namespace st = day_summary_text;

// By the number in the name, and the row in which each stands.
struct CaptionRow {
  TextId text;
  int row;
};
constexpr std::array kCaptionRows = {
    CaptionRow{st::kBodyMassIndex, 0}, CaptionRow{st::kHeight, 1},
    CaptionRow{st::kWeight, 3},        CaptionRow{st::kBmi, 5},
    CaptionRow{st::kIdealWeight, 6},   CaptionRow{st::kMinimally, 7},
    CaptionRow{st::kAtMost, 9},
};
constexpr int kRows = 11;

// Each value with the caption that it belongs to.
struct ValueRow {
  const char* name;
  Text BmiChart::*text;
  int row;
  std::size_t caption;
};
constexpr std::array kValueRows = {
    ValueRow{"lbl_lengte", &BmiChart::lbl_lengte, 1, 1},
    ValueRow{"lbl_lengte_feet", &BmiChart::lbl_lengte_feet, 2, 1},
    ValueRow{"lbl_gewicht", &BmiChart::lbl_gewicht, 3, 2},
    ValueRow{"lbl_gewicht_lbs", &BmiChart::lbl_gewicht_lbs, 4, 2},
    ValueRow{"lbl_bmiscore", &BmiChart::lbl_bmiscore, 5, 3},
    ValueRow{"lbl_ideaalmin", &BmiChart::lbl_ideaalmin, 7, 5},
    ValueRow{"lbl_ideaalmin_lbs", &BmiChart::lbl_ideaalmin_lbs, 8, 5},
    ValueRow{"lbl_ideaalmax", &BmiChart::lbl_ideaalmax, 9, 6},
    ValueRow{"lbl_ideaalmax_lbs", &BmiChart::lbl_ideaalmax_lbs, 10, 6},
};

constexpr int kMargin = 10;
constexpr int kMostRowGap = 8;

// A step of the ladder: its colour to the edge, and a line around it that overlaps its neighbours'.
class StepLabel : public QLabel {
 public:
  StepLabel(QWidget* parent, const LadderStep& step)
      : QLabel(ToQt(step.caption), parent), ground_(InQt(step.background)) {
    setObjectName(ToQt(step.name));
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, ground_);
    colours.setColor(QPalette::WindowText, LettersOn(ground_));
    setPalette(colours);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    constexpr int kDarker = 160;
    QPainter painter(this);
    painter.setPen(ground_.darker(kDarker));
    painter.setBrush(ground_);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.end();
    QLabel::paintEvent(event);
  }

 private:
  const QColor ground_;
};

// An arrow to the right, from edge to edge of its place.
class Arrow : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    const double w = width(), h = height(), neck = w / 2;
    const QPolygonF shape({{0, h * 0.35},
                           {neck, h * 0.35},
                           {neck, 0},
                           {w, h / 2},
                           {neck, h},
                           {neck, h * 0.65},
                           {0, h * 0.65}});
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::WindowText));
    painter.drawPolygon(shape);
  }
};

// To whole pixels, edge by edge, so that what touches still touches.
QRect PixelRect(const TwipRect& place) {
  return {QPoint(NearestPixel(place.left), NearestPixel(place.top)),
          QPoint(NearestPixel(place.Right()) - 1, NearestPixel(place.Bottom()) - 1)};
}

}  // namespace

BmiPanel::BmiPanel(QWidget* parent) : QWidget(parent) {
  static_assert(kCaptionRows.size() == kCaptions && kValueRows.size() == kValues);
  NameWidget(this, "Pic_BMI");
  setFocusPolicy(Qt::TabFocus);  // where a screen reader reads the panel
  BuildTexts();
  BuildLadder();
}

void BmiPanel::BuildTexts() {
  words_ = new QWidget(this);
  auto* const grid = new QGridLayout(words_);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(kMargin);
  grid->setVerticalSpacing(0);
  for (std::size_t i = 0; i < kCaptions; ++i) {
    txt_[i] = NewLabel(words_, QStringLiteral("txt_%1").arg(i));
    txt_[i]->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);  // as the values
    const bool heads_a_group =
        kCaptionRows[i].text == st::kBodyMassIndex || kCaptionRows[i].text == st::kIdealWeight;
    if (heads_a_group) {
      QFont bold = txt_[i]->font();
      bold.setBold(true);
      txt_[i]->setFont(bold);
    }
    grid->addWidget(txt_[i], kCaptionRows[i].row, 0, 1, heads_a_group ? 2 : 1);
  }
  for (std::size_t i = 0; i < kValues; ++i) {
    values_[i] = new LongLabel(words_, QLatin1String(kValueRows[i].name));
    grid->addWidget(values_[i], kValueRows[i].row, 1);
  }
  grid->setColumnStretch(1, 1);
  for (int row = 0; row < kRows; ++row) grid->setRowStretch(row, 1);
}

void BmiPanel::BuildLadder() {
  lbl_pijlbar_ = new QWidget(this);
  NameWidget(lbl_pijlbar_, "lbl_pijlbar");
  lbl_pijlbar_->setBackgroundRole(QPalette::WindowText);
  lbl_pijlbar_->setAutoFillBackground(true);
  // Each lies over the one above it.
  for (std::size_t i = 0; i < kBmiLadder.size(); ++i)
    lbl_bmi_[i] = new StepLabel(this, kBmiLadder[i]);
  pic_pijl_ = new Arrow(this);
  NameWidget(pic_pijl_, "pic_pijl");
  pic_pijl_->hide();
}

void BmiPanel::SetCaptions(const TextTables& texts) {
  for (std::size_t i = 0; i < kCaptions; ++i) txt_[i]->setText(ToQt(texts[kCaptionRows[i].text]));
  Describe();
}

void BmiPanel::Show(const BmiChart& chart) {
  for (std::size_t i = 0; i < kValues; ++i) values_[i]->setText(ToQt(chart.*kValueRows[i].text));
  step_ = chart.step;
  arrow_in_words_ = ToQt(ArrowDescription(chart));
  Describe();
  LayOut();
}

void BmiPanel::Describe() {
  QStringList lines;
  for (std::size_t i = 0; i < kValues; ++i) {
    const QString words = txt_[kValueRows[i].caption]->text() + values_[i]->text();
    values_[i]->setAccessibleName(words);
    lines << words;
  }
  pic_pijl_->setAccessibleName(txt_[3]->text());
  pic_pijl_->setAccessibleDescription(arrow_in_words_);
  setAccessibleName(txt_[0]->text());
  if (!arrow_in_words_.isEmpty()) lines << arrow_in_words_;
  setAccessibleDescription(lines.join('\n'));
}

void BmiPanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LayOut();
}

void BmiPanel::LayOut() {
  const LadderPlaces places = PlaceLadder(TwipsOfPixels(width()), TwipsOfPixels(height()));
  for (std::size_t i = 0; i < lbl_bmi_.size(); ++i) {
    lbl_bmi_[i]->setGeometry(PixelRect(places.steps[i]));
    lbl_bmi_[i]->setFont(FontForLines(font(), 1, lbl_bmi_[i]->height() - 1));
  }
  lbl_pijlbar_->setGeometry(PixelRect(places.lbl_pijlbar));
  const QRect arrow = PixelRect(PlaceArrow(places, step_.value_or(0)));
  pic_pijl_->setGeometry(arrow);
  pic_pijl_->setVisible(step_.has_value());
  const int lines = kRows * (fontMetrics().height() + kMostRowGap);
  const int words = std::min(height() - 2 * kMargin, lines);
  words_->setGeometry(kMargin, (height() - words) / 2, arrow.left() - 2 * kMargin, words);
}

void BmiPanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintFocus(*this, painter);
}

}  // namespace kelvora
