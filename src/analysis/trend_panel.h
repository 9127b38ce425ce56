// `Pic_grafiekbox`: the trend chart with its scale, the dates of its days and its tick boxes. It
// draws a TrendChart, and makes it anew after each tick and each change of its size.
#pragma once

#include <QWidget>

#include "analysis/trend.h"
#include "analysis/trend_picture_panel.h"
#include "analysis/trend_ticks_panel.h"

namespace kelvora {

class TrendPanel : public QWidget {
  Q_OBJECT

 public:
  TrendPanel(Program& program, QWidget* parent);

  // Shows these days from now on, of which it keeps a copy.
  void Show(const DaySeries& series, float tijdlijn_stand);
  void SetWords(const TextTables& texts);

 private:
  void LayOut();
  void Redraw();
  void ShowDates();
  [[nodiscard]] QString Span() const;

  Program& program_;
  DaySeries days_;
  TimeLine time_line_;
  TrendChart chart_;
  SegmentPicture* Pic_Grafiek_top_;
  QWidget* Pic_txt_;
  TrendPicture* Pic_Grafiek_;
  QWidget* Pic_dates_;
  TrendTicksPanel* ticks_;
};

}  // namespace kelvora
