#include "analysis/trend_panel.h"

#include <QGridLayout>
#include <QPainter>

#include "analysis/chart_look_panel.h"
#include "analysis/trend_days.h"
#include "nutrition/totals.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr int kTopStrip = 8;
constexpr int kSide = 8;
constexpr int kGap = 4;
constexpr int kDateGap = 10;    // between two dates
constexpr int kDateMargin = 4;  // digits differ in width
constexpr int kLeastChart = 90;

// The percentages beside the grid. Each is printed from its top left corner on.
class ScaleStrip : public QWidget {
 public:
  ScaleStrip(QWidget* parent, const std::vector<ScaleLabel>& labels)
      : QWidget(parent), labels_(labels) {
    NameWidget(this, "Pic_txt");
    setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("90%")) + 2 * kSide);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setFont(FontForLines(font(), static_cast<int>(labels_.size()) + 1, height()));
    for (const auto& [x, y, text] : labels_) {
      const double base = InPixels(y) + painter.fontMetrics().ascent();
      painter.drawText(QPointF(InPixels(x), base), ToQt(text));
    }
  }

 private:
  const std::vector<ScaleLabel>& labels_;
};

// The dates below their days.
class DateStrip : public QWidget {
 public:
  explicit DateStrip(QWidget* parent) : QWidget(parent) {
    NameWidget(this, "Pic_dates");
    setFixedHeight(fontMetrics().height());
  }
  [[nodiscard]] int LabelWidth() const {
    return fontMetrics().horizontalAdvance(QStringLiteral("88-88-88")) + kDateMargin;
  }
  struct Date {
    int left;
    QString text;
  };
  void Show(std::vector<Date> dates) {
    dates_ = std::move(dates);
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    for (const auto& [left, text] : dates_) {
      painter.drawText(QRect(left, 0, LabelWidth(), height()), Qt::AlignCenter, text);
    }
  }

 private:
  std::vector<Date> dates_;
};

}  // namespace

TrendPanel::TrendPanel(Program& program, QWidget* parent) : QWidget(parent), program_(program) {
  NameWidget(this, "Pic_grafiekbox");
  Pic_Grafiek_top_ = new SegmentPicture(this, "Pic_Grafiek_top");
  Pic_txt_ = new ScaleStrip(this, chart_.Pic_txt);
  Pic_Grafiek_ = new TrendPicture(this);
  Pic_dates_ = new DateStrip(this);
  ticks_ = new TrendTicksPanel(this);
  Pic_Grafiek_->words_of = [this](std::size_t day) {
    QStringList lines;
    for (const Text& words : WordsOfDay(program_, days_, ticks_->Ticks(), day))
      lines << ToQt(words);
    return lines;
  };
  LayOut();
  connect(Pic_Grafiek_, &SegmentPicture::Resized, this, &TrendPanel::Redraw);
  connect(ticks_, &TrendTicksPanel::Clicked, this, &TrendPanel::Redraw);
}

void TrendPanel::LayOut() {
  Pic_Grafiek_top_->setFixedHeight(kTopStrip);
  Pic_Grafiek_->setMinimumHeight(kLeastChart);
  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins(0, kGap, kSide, kGap);
  grid->setSpacing(0);
  grid->addWidget(Pic_Grafiek_top_, 0, 1);
  grid->addWidget(Pic_txt_, 1, 0);
  grid->addWidget(Pic_Grafiek_, 1, 1);
  grid->addWidget(Pic_dates_, 2, 1);
  grid->setRowMinimumHeight(3, kGap);
  auto* const ticks = new QHBoxLayout;
  ticks->setContentsMargins(kSide, 0, 0, 0);
  ticks->addWidget(ticks_);
  grid->addLayout(ticks, 4, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(1, 1);
}

void TrendPanel::Show(const DaySeries& series, float tijdlijn_stand) {
  Pic_Grafiek_->SetDays({});  // a box may come before there are others
  days_ = series;
  time_line_ = TimeLineOf(days_, tijdlijn_stand, UnitsOf(program_));
  Redraw();
}

void TrendPanel::SetWords(const TextTables& texts) {
  using namespace trend_text;
  ticks_->SetCaptions(texts);
  setAccessibleName(ToQt(texts[kDescriptionChart]));
  Pic_Grafiek_->setAccessibleName(ToQt(texts[kDescriptionChart]));
  Pic_Grafiek_top_->setAccessibleName(ToQt(texts[kDescriptionTimeLines]));
  Pic_txt_->setAccessibleName(ToQt(texts[kDescriptionScale]));
  ShowDates();
}

void TrendPanel::Redraw() {
  const TrendSize size = Pic_Grafiek_->Size();
  Teken_Grafiek(program_, days_, time_line_, ticks_->Ticks(), size, chart_);
  Pic_Grafiek_->Show(chart_.Pic_Grafiek);
  Pic_Grafiek_top_->Show(chart_.Pic_Grafiek_top);
  Pic_txt_->update();
  ShowDates();
}

// The first and the last date, for those who can't see the chart.
QString TrendPanel::Span() const {
  if (days_.keys.empty()) return {};
  const Text& system = program_.settings[Setting::opt_system];
  return ToQt(DateOfDay(days_.keys.front(), system) + " - " + DateOfDay(days_.keys.back(), system));
}

void TrendPanel::ShowDates() {
  auto* const strip = static_cast<DateStrip*>(Pic_dates_);
  const float width = Pic_Grafiek_->Size().width;
  const std::vector<float> places = PlacesOfDays(days_, time_line_, width);
  const auto twips = [](int pixels) { return static_cast<float>(TwipsOfPixels(pixels)); };
  std::vector<DateStrip::Date> dates;
  for (const auto& [day, left] :
       DatesThatFit(places, width, twips(strip->LabelWidth()), twips(kDateGap))) {
    const Text date = DateOfDay(days_.keys[day], program_.settings[Setting::opt_system]);
    dates.push_back({NearestPixel(left), ToQt(date)});
  }
  strip->Show(std::move(dates));
  strip->setAccessibleName(Span());
  Pic_Grafiek_->SetDescription(Span());
  Pic_Grafiek_->SetDays(places);
}

}  // namespace kelvora
