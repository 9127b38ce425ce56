// pBar, the composition of one food: five bars, each under its caption.
#pragma once

#include <array>

#include <QWidget>

#include "food/details_values.h"

class QLabel;

namespace kelvora {

class CompositionPanel : public QWidget {
  Q_OBJECT

 public:
  explicit CompositionPanel(QWidget* parent);

  // Shows one bar; `length` of kCompositionLength. What lies beyond either end is not drawn.
  void ShowBar(std::size_t bar, const QString& caption, float length);

 private:
  class Bar;

  std::array<QLabel*, kCompositionBars> captions_{};
  std::array<Bar*, kCompositionBars> bars_{};
};

}  // namespace kelvora
