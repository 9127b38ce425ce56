// What both analysis windows consist of: the requirements and what was used of them, the list of
// merged consumptions, the five largest of them, the view that shows and what the status bar says.
// An AnalysisSheet is that state of one window, told apart by AnalysisWindow where the windows
// differ; each has beside it what only it shows.
//
// It takes rows and totals from whoever works them out, and reads no data itself.
#pragma once

#include <memory>
#include <optional>

#include "analysis/analysis_views.h"
#include "analysis/day_charts.h"
#include "analysis/requirements.h"
#include "analysis/summary_list.h"

namespace kelvora {

class AnalysisSheet {
 public:
  // As a window is when it opens: on its first view, with its menus disabled.
  AnalysisSheet(Program& program, AnalysisWindow window);

  // Whose requirements are shown, from the day header.
  void Bepaal_Profiel();
  // The list anew, in the order in which the foods were eaten.
  void TakeRows(SummaryRows rows);
  // The five largest of the rows, and the second text of the status bar.
  void BuildPie(Top5Values values = Top5Values::collect);
  // Takes amounts for the bars. What a failure leaves undone stays as it was.
  void Maak_Voedingsbehoefte(const DayTotals& used);
  // The panel of the bars has these widths; true if they are others than before.
  bool ResizeBars(const PanelWidths& widths);
  // Brings the bars into the language of the moment, and both texts of the status bar.
  void MakeBarsAnew();
  void WriteStatus();

  void ClickButton(AnalysisView view);
  // A heading of the list; the hidden one sorts nothing.
  void ClickColumn(SummaryColumn column);
  // Shows a view without a click: the menus stay as they are.
  void ShowView(AnalysisView view) { view_ = view; }
  void ChooseRequirements(int position) { kelvora::ChooseRequirements(state_, position); }

  [[nodiscard]] AnalysisWindow Window() const { return window_; }
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
  // The first two panels of the status bar.
  [[nodiscard]] const std::array<Text, 2>& Status() const { return status_; }

 private:
  void Zet_Statustekst();

  Program& program_;
  const AnalysisWindow window_;
  AnalysisView view_;
  std::optional<AnalysisView> enabled_menu_;
  RequirementState state_;
  std::optional<DayTotals> used_;  // none before the first totals
  PanelWidths widths_;
  RequirementRows bars_;
  std::shared_ptr<const SummaryRows> rows_ = std::make_shared<const SummaryRows>();
  SummarySort sort_;
  std::optional<ColumnOrder> shown_order_;
  Top5 top5_;
  std::array<Text, 2> status_;
};

}  // namespace kelvora
