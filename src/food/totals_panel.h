// `Info_bar` of a consumption window: the totals of its part of the day, under their captions. Low,
// so that the list above it keeps its rows.
#pragma once

#include <array>

#include <QLabel>
#include <QWidget>

#include "core/program.h"

namespace kelvora {

class TotalsPanel : public QWidget {
  Q_OBJECT

 public:
  explicit TotalsPanel(QWidget* parent);

  void SetCaptions(const TextTables& texts, TextTable table);
  void Show(const ConsumptionTotals& totals);
  // What stands in `var` now.
  [[nodiscard]] std::array<Text, 8> ShownValues() const;

 private:
  std::array<QLabel*, 7> captions_;
  std::array<QLabel*, 7> lbl_nfo_;
  std::array<QLabel*, 8> var_;
};

}  // namespace kelvora
