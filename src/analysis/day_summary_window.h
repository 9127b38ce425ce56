// KV_tb_daguittreksel, the summary of the open day. A picture of a DaySummary in one of four
// panels, or, small, in that of the requirements alone; it passes clicks and sizes on.
//
// The arrow down opens the menu of a button that has one.
#pragma once

#include <array>
#include <functional>
#include <memory>

#include <QLabel>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolButton>
#include <QWidget>

#include "analysis/analysis_toolbar_panel.h"
#include "analysis/bmi_panel.h"
#include "analysis/day_summary.h"
#include "analysis/requirements_panel.h"
#include "analysis/summary_table_panel.h"
#include "analysis/top5_panel.h"
#include "core/views.h"

class QMdiSubWindow;

namespace kelvora {

class DaySummaryWindow : public QWidget, public DaySummaryView {
  Q_OBJECT

 public:
  DaySummaryWindow(Program& program, QWidget* parent);

  void CloseWindow() override;
  void Set_Taal() override;
  void FollowSettings() override { Refresh_Daguittreksel(); }
  void Refresh_Daguittreksel() override;
  void Maak_Voedingsbehoefte(const DayTotals& totals) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void BuildPanels();
  void BuildStatusBar();
  void LayOut();
  void LayStatusBar();
  void ConnectAll();
  void SetCaptions();
  // Holds the frame to the limits of the size, and shows what belongs to it.
  void Interface_Draw();
  void Rescale();
  [[nodiscard]] QMdiSubWindow* Frame() const;  // null without one
  // Lets the summary do it; false if the window is gone then.
  [[nodiscard]] bool Survives(const std::function<void(DaySummary&)>& work);
  void ShowBars();
  void ShowRows();
  void ShowCharts();
  void ShowView();
  void ShowStatus();

  Program& program_;
  OpenFlag<DaySummaryView> open_flag_;
  std::shared_ptr<DaySummary> summary_;
  AnalysisToolbar* Toolbar_;
  QStackedWidget* panels_;
  RequirementsPanel* Pic_Behoefte_;
  Top5Panel* Pic_top5_;
  QWidget* Pic_uittreksel_;
  BmiPanel* Pic_BMI_;
  SummaryTable* LV_uittreksel_;
  QToolButton* Pic_rescale_;
  QStatusBar* StatusBar_;
  std::array<QLabel*, 3> status_;
};

}  // namespace kelvora
