// KV_backup, the dialog that makes a backup. A picture: carrying.h does the work, a step at a time
// while the dialog is there.
#pragma once

#include <memory>

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "core/views.h"
#include "keeping/carrying.h"
#include "platform/qt/choice_list.h"
#include "platform/qt/hint_label.h"

namespace kelvora {

class BackupDialog : public QDialog, public WindowView {
  Q_OBJECT

 public:
  BackupDialog(Program& program, QWidget* parent);

  void CloseWindow() override;
  void Set_Taal() override;
  void FollowSettings() override;
  // While a backup is being made this gives it up, and the dialog stays.
  void reject() override;
  void done(int result) override;

 private:
  void LayOut();
  void Begin();
  void DoSteps();
  void End();
  void ShowState();

  Program& program_;
  OpenFlag<WindowView> open_flag_;
  std::vector<User> users_;
  std::unique_ptr<Backup> backup_;
  QTimer steps_;
  QLabel* lbl_info_;
  QLabel* lbl_users_;
  ChoiceList* cmb_users_;
  HintLabel* lbl_unsaved_;
  QCheckBox* chk_reminder_;
  QProgressBar* ProgressBar_;
  QPushButton* cmd_backup_;
  QPushButton* cmd_annuleer_;
};

void ShowBackupDialog(Program& program, QWidget* parent);

}  // namespace kelvora
