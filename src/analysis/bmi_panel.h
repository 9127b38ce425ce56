// `Pic_BMI`: height, weight, body-mass index and ideal weight, and an arrow on a ladder of colours.
// It draws a BmiChart and decides nothing.
#pragma once

#include <array>

#include <QLabel>
#include <QWidget>

#include "analysis/bmi_chart.h"

namespace kelvora {

class BmiPanel : public QWidget {
  Q_OBJECT

 public:
  explicit BmiPanel(QWidget* parent);

  void SetCaptions(const TextTables& texts);
  void Show(const BmiChart& chart);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void BuildTexts();
  void BuildLadder();
  void Describe();
  void LayOut();

  static constexpr std::size_t kCaptions = 7;
  static constexpr std::size_t kValues = 9;

  QWidget* words_;
  std::array<QLabel*, kCaptions> txt_;
  std::array<QLabel*, kValues> values_;
  std::array<QLabel*, kBmiLadder.size()> lbl_bmi_;
  QWidget* lbl_pijlbar_;
  QWidget* pic_pijl_;
  std::optional<std::size_t> step_;
  QString arrow_in_words_;
};

}  // namespace kelvora
