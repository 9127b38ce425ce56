// What fills both analysis windows: the toolbar with its menus, the panels of which one shows, the
// status bar. It draws an AnalysisSheet and passes clicks on to it; a panel that only one of the
// windows has is added by that window, and so is what a menu entry does.
//
// The arrow down opens the menu of a button that has one.
#pragma once

#include <array>

#include <QProgressBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QWidget>

#include "analysis/analysis_sheet.h"
#include "analysis/analysis_toolbar_panel.h"
#include "analysis/day_reading.h"
#include "analysis/requirements_panel.h"
#include "analysis/summary_table_panel.h"
#include "analysis/top5_panel.h"
#include "platform/qt/long_label.h"

class QMdiSubWindow;

namespace kelvora {

// Holds a window's frame to its limits; a window without one is as large as it likes.
void HoldFrame(QMdiSubWindow* frame, const SizeLimits& limits);

class AnalysisBody : public QWidget {
  Q_OBJECT

 public:
  // Fills `window`. The sheet is kept by the window.
  AnalysisBody(Program& program, AnalysisSheet& sheet, QWidget* window);

  // One more panel, found by its object name when its button is down.
  void AddPanel(QWidget* panel);
  [[nodiscard]] bool Shows(const QWidget* panel) const { return panels_->currentWidget() == panel; }
  [[nodiscard]] RequirementsPanel& Pic_Behoefte() { return *Pic_Behoefte_; }
  [[nodiscard]] AnalysisToolbar& Toolbar() { return *Toolbar_; }

  void SetCaptions();
  // The toolbar and the status bar, which the small size does without.
  void ShowFrame(bool shown);
  // Each shows anew what the sheet has of it, as far as its view is the one that shows: every drop
  // comes this way, and what nobody sees is drawn when its view is chosen.
  void ShowBars();
  void ShowRows();
  void ShowPie();
  void ShowView();
  void ShowStatus();
  // What is being worked on, in the third panel of the status bar, and how far it has come; empty
  // when there is nothing.
  void ShowStage(const Text& stage, const Progress& progress);

 signals:
  // A position of the menu under the button that is down.
  void EntryChosen(int position);
  // A view has come up.
  void ViewShown();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void BuildPanels();
  void BuildStatusBar();
  void ConnectAll();
  void LayStatusBar();

  Program& program_;
  AnalysisSheet& sheet_;
  AnalysisToolbar* Toolbar_;
  QStackedWidget* panels_;
  RequirementsPanel* Pic_Behoefte_;
  Top5Panel* Pic_top5_;
  QWidget* Pic_uittreksel_;
  SummaryTable* LV_uittreksel_;
  QStatusBar* StatusBar_;
  std::array<LongLabel*, 3> status_;
  QProgressBar* ProgressBar_ = nullptr;  // of the window that works in stages only
};

}  // namespace kelvora
