// KV_tb_meerdaags, the trends of the current user. A picture of a MultiDay in one of four panels;
// it passes clicks and sizes on, and takes the steps of its work from the event loop, as many at a
// time as nobody notices.
#pragma once

#include <memory>

#include <QTimer>
#include <QWidget>

#include "analysis/analysis_body_panel.h"
#include "analysis/multi_day.h"
#include "analysis/trend_panel.h"
#include "core/views.h"

class QMdiSubWindow;

namespace kelvora {

class MultiDayWindow : public QWidget, public MultiDayView {
  Q_OBJECT

 public:
  // Reads the days once it is shown.
  MultiDayWindow(Program& program, QWidget* parent);

  void CloseWindow() override;
  void Set_Taal() override;
  void Refresh_Meerdaagsuittreksel() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  // A slice of the work, and the next one later.
  void Work();
  void SetCaptions();
  void Interface_Draw();
  [[nodiscard]] QMdiSubWindow* Frame() const;  // null without one
  void ClickEntry(int position);
  void ShowStage();
  void ShowAll();
  void Teken_Grafiek();

  Program& program_;
  OpenFlag<MultiDayView> open_flag_;
  std::shared_ptr<MultiDay> multi_day_;
  AnalysisBody* body_;
  TrendPanel* Pic_grafiekbox_;
  QTimer timer_;
  bool closed_ = false;
  bool working_ = false;
};

}  // namespace kelvora
