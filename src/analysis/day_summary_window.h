// KV_tb_daguittreksel, the summary of the open day. A picture of a DaySummary in one of four
// panels, or, small, in that of the requirements alone; it passes clicks and sizes on.
#pragma once

#include <functional>
#include <memory>

#include <QToolButton>
#include <QWidget>

#include "analysis/analysis_body_panel.h"
#include "analysis/bmi_panel.h"
#include "analysis/day_summary.h"
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

 private:
  void BuildRescale();
  void SetCaptions();
  // Holds the frame to the limits of the size, and shows what belongs to it.
  void Interface_Draw();
  void Rescale();
  [[nodiscard]] QMdiSubWindow* Frame() const;  // null without one
  // Lets the summary do it; false if the window is gone then.
  [[nodiscard]] bool Survives(const std::function<void(DaySummary&)>& work);
  void ClickEntry(int position);
  void ShowBmi();

  Program& program_;
  OpenFlag<DaySummaryView> open_flag_;
  std::shared_ptr<DaySummary> summary_;
  AnalysisBody* body_;
  BmiPanel* Pic_BMI_;
  QToolButton* Pic_rescale_;
};

}  // namespace kelvora
