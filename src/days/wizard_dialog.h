// KV_wizzard, the four-way menu that greets at the start. It draws what wizard.h gives it; only OK
// keeps anything.
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "core/views.h"
#include "days/wizard.h"

class QGridLayout;
class QHBoxLayout;

namespace kelvora {

class WizardDialog : public QDialog, public WizardView {
  Q_OBJECT

 public:
  WizardDialog(Program& program, QWidget* parent);

  void CloseWindow() override;
  void Set_Taal() override;
  void FollowSettings() override { SetShowAtStart(WizardShownAtStart(program_)); }
  void SetShowAtStart(bool shown) override;
  void done(int result) override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QHBoxLayout* BuildHeading();
  QGroupBox* BuildChoice();
  QWidget* BuildOption(const WizardRow& row);
  void ChooseFirstOption();
  QHBoxLayout* BuildButtons();
  void ConfirmChoice();

  Program& program_;
  OpenFlag<WizardView> open_flag_;
  QLabel* lbl_welcome_;
  QGroupBox* choice_;
  QButtonGroup* options_;
  std::array<QLabel*, kWizardOptionCount> lines_{};
  QCheckBox* chk_wiz_;
  QPushButton* cmd_opslaan_;
  QPushButton* cmd_annuleer_;
};

}  // namespace kelvora
