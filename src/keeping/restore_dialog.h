// KV_restore, the dialog that shows what a backup holds and brings back what is ticked. A picture:
// carrying.h does the work, a step at a time while the dialog is there.
#pragma once

#include <array>
#include <memory>

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "core/views.h"
#include "keeping/carrying.h"
#include "keeping/tick_table_panel.h"
#include "platform/qt/hint_label.h"
#include "platform/qt/long_label.h"

namespace kelvora {

class RestoreDialog : public QDialog, public WindowView {
  Q_OBJECT

 public:
  RestoreDialog(Program& program, std::string path, QWidget* parent);

  void CloseWindow() override;
  void Set_Taal() override;
  void FollowSettings() override;
  // While files are being brought back this stops it, and the dialog stays.
  void reject() override;
  void done(int result) override;

 private:
  QGroupBox* BuildUsers();
  QGroupBox* BuildFiles();
  QGroupBox* BuildChoice();
  void LayOut();
  void ReadOn();
  void Begin();
  void BringBackOn();
  void End();
  void ShowUsers();
  void ShowFiles();
  void ShowState();
  [[nodiscard]] BackupUser* CurrentUser();
  [[nodiscard]] Text CellOfFile(std::size_t row, std::size_t column);
  [[nodiscard]] bool AnythingIsTicked() const;
  [[nodiscard]] Differing Choice() const;

  Program& program_;
  OpenFlag<WindowView> open_flag_;
  BackupContents contents_;
  bool reading_ = true;
  std::unique_ptr<Restore> restore_;
  QTimer steps_;
  LongLabel* lbl_file_;
  std::array<QGroupBox*, 3> frames_{};
  TickTable* LV_users_ = nullptr;
  TickTable* LV_files_ = nullptr;
  std::array<QRadioButton*, 3> opt_differs_{};  // as Differing
  HintLabel* lbl_state_;
  QProgressBar* ProgressBar_;
  QPushButton* cmd_restore_;
  QPushButton* cmd_annuleer_;
};

// Lets the user choose a backup first; nothing comes up without one.
void ShowRestoreDialog(Program& program, QWidget* parent);

}  // namespace kelvora
