#include "analysis/trend_ticks_panel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>

#include "analysis/chart_look_panel.h"
#include "platform/qt/accessibility.h"
#include "platform/qt/hint_label.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace trend_text;

struct FrameRow {
  TextId heading;
  std::size_t first;  // of its tick boxes
  std::size_t end;
};
constexpr std::array kFrameRows = {
    FrameRow{kFrameWeightAndEnergy, 0, 3},
    FrameRow{kFrameFats, 3, 5},
    FrameRow{kFrameOtherNutrients, 5, 8},
};

constexpr std::size_t kLowFrame = 1;

constexpr int kBarWidth = 22;
constexpr int kBarHeight = 10;
constexpr int kGap = 6;
constexpr int kFrameMargin = 4;

// The colour of a line with an edge around it that can be seen on any palette, whatever the colour.
class ColourBar : public QWidget {
 public:
  ColourBar(QWidget* parent, const QString& object_name, const Colour& colour)
      : QWidget(parent), colour_(InQt(colour)) {
    setObjectName(object_name);
    setFixedSize(kBarWidth, kBarHeight);
    MakeSilent(*this);  // the tick beside it has the words
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(
        HintColour(palette().color(QPalette::WindowText), palette().color(QPalette::Window)));
    painter.setBrush(colour_);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }

 private:
  const QColor colour_;
};

}  // namespace

TrendTicksPanel::TrendTicksPanel(QWidget* parent) : QWidget(parent) {
  static_assert(kFrameRows.size() == kFrames && kFrameRows.back().end == kTrendLines.size());
  NameWidget(this, "Pic_trendlijnen");
  UseSmallLetters(this);
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  std::array<QVBoxLayout*, kFrames> columns;
  for (std::size_t frame = 0; frame < kFrames; ++frame) {
    Pic_trendlijnen_[frame] = BuildFrame(frame);
    columns[frame] = new QVBoxLayout;
    columns[frame]->addWidget(Pic_trendlijnen_[frame]);
    layout->addLayout(columns[frame]);
  }
  layout->addStretch();
  // Below the frame that leaves room.
  Teken_dag_ = NewTick(QStringLiteral("Teken_dag"), TrendTicks{}.Teken_dag);
  columns[kLowFrame]->addWidget(Teken_dag_);
}

QGroupBox* TrendTicksPanel::BuildFrame(std::size_t frame) {
  auto* const group = new QGroupBox(this);
  group->setObjectName(QStringLiteral("Pic_trendlijnen_%1").arg(frame + 1));
  auto* const grid = new QGridLayout(group);
  grid->setContentsMargins(kFrameMargin, 0, kFrameMargin, kFrameMargin);
  grid->setHorizontalSpacing(kGap);
  grid->setVerticalSpacing(0);
  for (std::size_t i = kFrameRows[frame].first; i < kFrameRows[frame].end; ++i) {
    Teken_lijn_[i] = NewTick(QStringLiteral("Teken_lijn_%1").arg(i), kTrendLines[i].at_start);
    Bar_kleur_[i] =
        new ColourBar(group, QStringLiteral("Bar_kleur_%1").arg(i), kTrendLines[i].colour);
    grid->addWidget(Teken_lijn_[i], grid->rowCount(), 0);
    grid->addWidget(Bar_kleur_[i], grid->rowCount() - 1, 1);
  }
  grid->setRowStretch(grid->rowCount(), 1);
  return group;
}

QCheckBox* TrendTicksPanel::NewTick(const QString& object_name, bool ticked) {
  auto* const tick = new QCheckBox(this);
  tick->setObjectName(object_name);
  tick->setChecked(ticked);
  connect(tick, &QCheckBox::clicked, this, &TrendTicksPanel::Clicked);
  return tick;
}

void TrendTicksPanel::SetCaptions(const TextTables& texts) {
  for (std::size_t frame = 0; frame < kFrames; ++frame) {
    Pic_trendlijnen_[frame]->setTitle(CaptionFrom(texts[kFrameRows[frame].heading]));
  }
  const auto set = [&texts](QCheckBox* tick, TextId caption, TextId tip) {
    tick->setText(CaptionFrom(Trimmed(texts[caption])));
    tick->setToolTip(ToQt(texts[tip]));
  };
  for (std::size_t i = 0; i < Teken_lijn_.size(); ++i) {
    set(Teken_lijn_[i], kTrendLines[i].caption, kTrendLines[i].tip);
  }
  set(Teken_dag_, kDrawTimeLines, kTipDrawTimeLines);
}

TrendTicks TrendTicksPanel::Ticks() const {
  TrendTicks ticks;
  for (std::size_t i = 0; i < Teken_lijn_.size(); ++i) {
    ticks.Teken_lijn[i] = Teken_lijn_[i]->isChecked();
  }
  ticks.Teken_dag = Teken_dag_->isChecked();
  return ticks;
}

}  // namespace kelvora
