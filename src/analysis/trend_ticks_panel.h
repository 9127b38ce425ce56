// The tick boxes of the trend chart: one for each line, in three frames, with a bar of its colour,
// and one for the day lines.
#pragma once

#include <array>

#include <QCheckBox>
#include <QGroupBox>
#include <QWidget>

#include "analysis/trend.h"

namespace kelvora {

class TrendTicksPanel : public QWidget {
  Q_OBJECT

 public:
  explicit TrendTicksPanel(QWidget* parent);

  void SetCaptions(const TextTables& texts);
  [[nodiscard]] TrendTicks Ticks() const;

 signals:
  void Clicked();

 private:
  QGroupBox* BuildFrame(std::size_t frame);
  QCheckBox* NewTick(const QString& object_name, bool ticked);

  static constexpr std::size_t kFrames = 3;

  std::array<QGroupBox*, kFrames> Pic_trendlijnen_;
  std::array<QCheckBox*, kTrendLines.size()> Teken_lijn_;
  std::array<QWidget*, kTrendLines.size()> Bar_kleur_;
  QCheckBox* Teken_dag_;
};

}  // namespace kelvora
