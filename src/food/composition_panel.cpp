#include "food/composition_panel.h"

#include <algorithm>

#include <QPainter>
#include <QVBoxLayout>

#include "platform/qt/long_label.h"
#include "platform/qt/look.h"

namespace kelvora {
namespace {

constexpr int kBarHeight = 14;
constexpr int kLeastBarWidth = 240;
constexpr int kSpaceBetweenBars = 7;

// Unsaturated fat, saturated fat, sodium, protein, carbohydrates.
constexpr std::array<QRgb, kCompositionBars> kColours = {0xFFE8A2A2, 0xFFC14747, 0xFF6887B6,
                                                         0xFFFFD695, 0xFFFF7C3B};

}  // namespace

class CompositionPanel::Bar : public QWidget {
 public:
  Bar(QWidget* parent, QRgb colour) : QWidget(parent), colour_(colour) {
    setFixedHeight(kBarHeight);
    setMinimumWidth(kLeastBarWidth);
  }

  void SetLength(float length) {
    share_ = std::clamp(length / kCompositionLength, 0.0F, 1.0F);
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QRect frame = rect().adjusted(0, 0, -1, -1);
    painter.fillRect(frame, palette().color(QPalette::Base));
    const int length = qRound(static_cast<float>(frame.width()) * share_);
    painter.fillRect(QRect(frame.topLeft(), QSize(length, frame.height())), QColor(colour_));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(frame);
  }

 private:
  QRgb colour_;
  float share_ = 0;
};

CompositionPanel::CompositionPanel(QWidget* parent) : QWidget(parent) {
  NameWidget(this, "pBar");
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  for (std::size_t i = 0; i < bars_.size(); ++i) {
    captions_[i] = new LongLabel(this, QStringLiteral("pBar_caption_%1").arg(i));
    bars_[i] = new Bar(this, kColours[i]);
    bars_[i]->setObjectName(QStringLiteral("pBar_%1").arg(i));
    layout->addWidget(captions_[i]);
    layout->addWidget(bars_[i]);
    layout->addSpacing(kSpaceBetweenBars);
  }
  layout->addStretch();
}

void CompositionPanel::ShowBar(std::size_t bar, const QString& caption, float length) {
  captions_[bar]->setText(caption);
  bars_[bar]->setAccessibleName(caption);
  bars_[bar]->SetLength(length);
}

}  // namespace kelvora
