// KV_bestand, the dialog of a new day and of the settings of the open one. A picture of a
// DayEditing: it draws what day_settings.h gives it and passes what is typed on. Nothing is kept
// before "Start" or "Save" but the setting of chk_apply.
#pragma once

#include <QDialog>

#include "core/views.h"
#include "days/day_settings.h"

class QHBoxLayout;
class QLabel;
class QPushButton;
class QTabWidget;

namespace kelvora {

class DayAddressPanel;
class DayPersonPanel;
class DayTargetsPanel;
class DayUsersPanel;

class DaySettingsDialog : public QDialog, public WindowView {
  Q_OBJECT

 public:
  DaySettingsDialog(Program& program, QWidget* parent);
  ~DaySettingsDialog() override;

  void CloseWindow() override;
  void Set_Taal() override;
  void done(int result) override;

 private:
  void BuildTabs();
  void ConnectUsers();
  QHBoxLayout* BuildButtons();
  [[nodiscard]] bool IsNewDay() const { return editing_.mode == DayDialogMode::new_day; }

  void FillIn();
  void PutFocus();
  void ShowUsers();
  void ShowForm();
  void TakeForm();
  void ChooseSelectedUser();
  void BeginNewUser();
  void RemoveSelectedUser();
  void Confirm();

  Program& program_;
  OpenFlag<WindowView> open_flag_;
  DayEditing editing_;
  std::size_t user_count_ = 0;
  QLabel* lbl_info_;
  QTabWidget* TabStrip1_;
  DayUsersPanel* users_;
  DayPersonPanel* person_;
  DayAddressPanel* address_;
  DayTargetsPanel* targets_;
  QPushButton* cmd_opslaan_;
  QPushButton* cmd_annuleer_;
};

}  // namespace kelvora
