// What the open day adds up to: the requirements and what was used of them, the merged
// consumptions, the five largest of them, the body-mass index. DaySummary is the state of one day
// summary window, whose window draws it and passes clicks on.
//
// It holds no data of the day; every Refresh_Daguittreksel takes them from the store anew.
#pragma once

#include <memory>
#include <optional>

#include "analysis/analysis_views.h"
#include "analysis/bmi_chart.h"
#include "analysis/day_charts.h"
#include "analysis/requirements.h"
#include "analysis/summary_list.h"
#include "analysis/summary_size.h"

namespace kelvora {

class DaySummary {
 public:
  // As a window is when it opens: on the requirements, with its menus disabled.
  explicit DaySummary(Program& program);

  // Rebuilds the list, the five largest, the body-mass index and the texts.
  void Refresh_Daguittreksel();
  // Takes the totals of the day for the bars. What a failure leaves undone stays as it was.
  void Maak_Voedingsbehoefte(const DayTotals& used);
  // The panel of the bars has these widths; true if they are others than before.
  bool ResizeBars(const PanelWidths& widths);
  // Brings what was written in one language into another: the charts and the status bar.
  void Set_Taal();

  void ClickButton(AnalysisView view);
  // A position of the menu under the button that is down; bars or pie follow.
  void ClickEntry(int position);
  // A heading of the list; the hidden one sorts nothing.
  void ClickColumn(SummaryColumn column);
  // A click on `Pic_rescale`: the other size, and the requirements in it. Returns where the window
  // goes.
  WindowRecord ClickRescale(const WindowRecord& window);

  [[nodiscard]] Schermstand Stand() const;
  [[nodiscard]] Text Title() const;
  [[nodiscard]] AnalysisView View() const { return view_; }
  [[nodiscard]] const AnalysisButton& ButtonDown() const;
  // The view whose menu is enabled; none until a button was clicked.
  [[nodiscard]] std::optional<AnalysisView> EnabledMenu() const { return enabled_menu_; }
  [[nodiscard]] const RequirementState& Requirement() const { return state_; }
  [[nodiscard]] const RequirementRows& Bars() const { return bars_; }
  // A list that goes on showing rows while others take their place keeps them by this pointer.
  [[nodiscard]] const std::shared_ptr<const SummaryRows>& Rows() const { return rows_; }
  // How the rows stand; nothing while they stand in the order in which the foods were eaten.
  [[nodiscard]] const std::optional<ColumnOrder>& ShownOrder() const { return shown_order_; }
  [[nodiscard]] const Top5& Pie() const { return top5_; }
  [[nodiscard]] const BmiChart& Bmi() const { return bmi_; }
  // The first two panels of the status bar.
  [[nodiscard]] const std::array<Text, 2>& Status() const { return status_; }

 private:
  void Vul_Uittreksel();
  void BuildPie();
  void MakeBars();
  void Zet_Statustekst();
  void WriteStatus();

  Program& program_;
  AnalysisView view_ = AnalysisView::requirements;
  std::optional<AnalysisView> enabled_menu_;
  RequirementState state_;
  std::optional<DayTotals> used_;  // none before the first totals
  PanelWidths widths_;
  RequirementRows bars_;
  std::shared_ptr<const SummaryRows> rows_ = std::make_shared<const SummaryRows>();
  SummaryRowMaker row_maker_;
  SummarySort sort_;
  std::optional<ColumnOrder> shown_order_;
  Top5 top5_;
  BmiChart bmi_;
  std::array<Text, 2> status_;
};

}  // namespace kelvora
