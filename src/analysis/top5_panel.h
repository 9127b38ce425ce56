// `Pic_top5`: the pie of the five largest consumptions, its legend beside it, or a notice where
// there is too little to draw. It draws a Top5 and decides nothing.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <vector>

#include <QLabel>
#include <QWidget>

#include "analysis/day_charts.h"
#include "analysis/pie_panel.h"

namespace kelvora {

class Top5Panel : public QWidget {
  Q_OBJECT

 public:
  // Works a wedge out for a picture, under the failure path of the window; none after a failure.
  using SectorMaker = std::function<std::optional<Sector>(const Wedge&, const PictureSize&)>;

  Top5Panel(SectorMaker sector_of, QWidget* parent);

  void Show(const Top5& top5);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Describe(const Top5& top5);
  void LayOut();
  [[nodiscard]] int LegendWidth() const;
  void LayLegend(const QRect& place);
  void DrawPie();

  SectorMaker sector_of_;
  std::vector<Wedge> wedges_;
  PiePanel* Graph_pie_;
  QLabel* lbl_leeg_;
  QLabel* lbl_soort_;
  std::array<QWidget*, kTop5Entries> lbl_piecolor_;
  std::array<QLabel*, kTop5Entries> lbl_piename_;
};

}  // namespace kelvora
