// KV_tb_internet_update, the small window of the check for a newer version. A picture of an
// UpdateCheck, which closes it. In the background it stays hidden.
#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>
#include <QTimer>
#include <QWidget>

#include "core/views.h"
#include "internet/update.h"

namespace kelvora {

class UpdateWindow : public QWidget, public UpdateView, private UpdateCheckView {
  Q_OBJECT

 public:
  // The check begins with the next events, so that its window is seen first.
  UpdateWindow(Program& program, UpdateMode mode, QWidget* parent);

  void CloseWindow() override;
  void Set_Taal() override;
  void ShowWindow() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void LayOut();
  void ShowState() override;
  void StartTimer(int milliseconds) override;
  void CloseAfter(int milliseconds) override;

  Program& program_;
  OpenFlag<UpdateView> open_flag_;
  UpdateCheck check_;
  QTimer Timeout_timer_;
  QLabel* lbl_1_;
  QLabel* lbl_versie_;
  QLabel* lbl_2_;
  QLabel* lbl_status_;
  QProgressBar* ProgressBar_;
  QStatusBar* StatusBar_;
  QLabel* panel_;
};

}  // namespace kelvora
