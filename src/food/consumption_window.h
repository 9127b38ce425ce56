// One of the three consumption windows. A picture of one day part: it draws what consumption.h
// gives it and passes clicks, keys and drops on.
#pragma once

#include <array>

#include <QAction>
#include <QLabel>
#include <QStatusBar>
#include <QToolBar>
#include <QWidget>

#include "core/views.h"
#include "food/food_table_panel.h"

namespace kelvora {

struct Program;

class ConsumptionWindow : public QWidget, public ConsumptionView {
  Q_OBJECT

 public:
  ConsumptionWindow(Program& program, DayPart part, QWidget* parent);

  void CloseWindow() override;
  void Set_Taal() override;
  void Refresh_Consumpties() override;
  void ShowTotals(const ConsumptionTotals& totals) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void BuildToolbars();
  void BuildTotalsPanel();
  void BuildStatusBar();
  // Widths follow the list only while it has rows.
  void FollowListWidth();
  void SetColumnWidths();
  void ApplyTotalsPanel();
  [[nodiscard]] Text NameInRow(std::size_t row) const;
  [[nodiscard]] TextList SelectedNames() const;
  [[nodiscard]] Text CurrentName() const;

  Program& program_;
  const DayPart part_;
  OpenFlag<ConsumptionView> open_flag_;
  FoodTable* LV_consumpties_;
  QToolBar* Toolbar_;
  QToolBar* Toolbar_control_;
  QAction* totals_action_;
  QAction* combine_action_;
  QAction* plus_action_;
  QAction* minus_action_;
  QAction* remove_action_;
  QWidget* Info_bar_;
  std::array<QLabel*, 7> captions_;
  std::array<QLabel*, 7> lbl_nfo_;
  std::array<QLabel*, 8> var_;
  QStatusBar* StatusBar_;
  std::array<QLabel*, 3> panels_;
};

}  // namespace kelvora
