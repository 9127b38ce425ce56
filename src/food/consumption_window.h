// One of the three consumption windows. A picture of one part of the day: it draws what the logic
// gives it and passes clicks, keys and drops on.
//
// Keys in the list, all of them in the menu of a row too, but for the first line. Drops are taken
// on the whole window, its frame included.
//
//   arrows, Shift, Ctrl+A     choose rows
//   +, -                      one portion of the row more or less
//   F2, Enter                 another amount of the row; its details, as by a double click
//   Delete, Shift+Delete      remove the rows entirely; take one portion of each out of the day
//   Ctrl+1, Ctrl+2, Ctrl+3    move one portion of each row to morning, afternoon or evening
//   Ctrl+X, Ctrl+V            the same by cutting here and pasting there
//   Ctrl+C                    copy the rows; Ctrl+V adds them to whatever list has the focus
//   Ctrl+T                    take over what was eaten on another day
//   Ctrl+Z, Ctrl+Shift+Z      undo and redo, over all three lists of the day
//   Ctrl+D                    add the rows to the favourites
// In the panel to combine foods Enter saves and Escape closes it.
#pragma once

#include <array>
#include <memory>
#include <optional>

#include <QAction>
#include <QLabel>
#include <QMdiSubWindow>
#include <QStatusBar>
#include <QWidget>

#include "core/views.h"
#include "food/combine_panel.h"
#include "food/consumption.h"
#include "food/food_table_panel.h"
#include "food/row_menu_panel.h"
#include "food/totals_panel.h"
#include "food/window_drops_panel.h"
#include "platform/qt/tool_bar.h"

namespace kelvora {

class ConsumptionWindow : public QWidget, public ConsumptionView {
  Q_OBJECT

 public:
  ConsumptionWindow(Program& program, DayPart part, QWidget* parent);

  void CloseWindow() override;
  void Set_Taal() override;
  void Refresh_Consumpties() override;
  void ShowTotals(const ConsumptionTotals& totals) override;
  void SelectLastRow() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void BuildList();
  void BuildToolbars();
  void BuildStatusBar();
  void LayOut();
  void ConnectAll();
  void ShowRows();
  // Widths follow the list only while it has rows.
  void FollowListWidth();
  void SetColumnWidths();
  void FitHeadings();
  void LayStatusBar();
  void ShowPanels(ShownPanels panels);
  void SelectRows(const std::vector<std::size_t>& rows);
  void KeepSelectedRowInView();
  void Combine();
  void RemoveSelected();
  void ShowDetails();
  void AskAmount();
  void FollowFrame();
  [[nodiscard]] TextList SelectedNames() const;
  [[nodiscard]] const ConsumptionRow* CurrentRow() const;
  [[nodiscard]] std::optional<Text> CurrentName() const;

  Program& program_;
  const DayPart part_;
  OpenFlag<ConsumptionView> open_flag_;
  ShownPanels panels_shown_;
  std::shared_ptr<const std::vector<ConsumptionRow>> rows_;  // what the list shows
  QMdiSubWindow* frame_ = nullptr;                           // around this window, once it is shown
  bool rebuilding_ = false;  // the current row changes, but nobody chose another one
  FoodTable* LV_consumpties_;
  ToolBar* Toolbar_;
  ToolBar* Toolbar_control_;
  QAction* totals_action_;
  QAction* combine_action_;
  QAction* plus_action_;
  QAction* minus_action_;
  QAction* remove_action_;
  RowMenu* row_menu_;
  WindowDrops* drops_;
  TotalsPanel* Info_bar_;
  CombinePanel* Pic_SP_;
  QStatusBar* StatusBar_;
  std::array<QLabel*, 3> panels_;
};

}  // namespace kelvora
