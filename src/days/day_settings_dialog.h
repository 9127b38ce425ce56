// KV_bestand, the dialog in which a new day begins. A picture of a DayForm: it draws what
// day_settings.h gives it and passes what is typed on. Nothing is kept before "Start".
#pragma once

#include <array>

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

#include "core/views.h"
#include "days/day_settings.h"

class QGridLayout;
class QHBoxLayout;

namespace kelvora {

class DaySettingsDialog : public QDialog, public WindowView {
  Q_OBJECT

 public:
  DaySettingsDialog(Program& program, QWidget* parent);
  ~DaySettingsDialog() override;

  void CloseWindow() override;
  void Set_Taal() override;
  void done(int result) override;

 private:
  // A caption and the texts that it takes from the tables.
  struct Caption {
    QLabel* label;
    TextId text;
  };

  void BuildTabs();
  QWidget* BuildUsers();
  QWidget* BuildFields();
  QHBoxLayout* BuildButtons();
  QLabel* AddCaption(QGridLayout* grid, int row, const char* name, TextId text);
  QLabel* AddHint(QGridLayout* grid, int row, const char* name);
  void AddFieldRow(QGridLayout* grid, int row, DayFieldId id, std::optional<TextId> unit);
  void AddDateRow(QGridLayout* grid, int row);
  QLineEdit* MakeField(DayFieldId id);
  [[nodiscard]] QLineEdit* Field(DayFieldId id) const {
    return fields_[static_cast<std::size_t>(id)];
  }

  void FilterTyping(DayFieldId id);
  void TakeTyped(DayFieldId id);
  void TakeForm();
  void ShowForm();
  void ShowGender();
  void ShowHints();
  void ShowUsers();
  void ChooseSelectedUser();
  void BeginNewUser();
  void Start();

  Program& program_;
  OpenFlag<WindowView> open_flag_;
  DayForm form_;
  QLabel* lbl_info_;
  QTabWidget* TabStrip1_;
  QLabel* lbl_users_;
  QListWidget* lst_users_;
  QToolButton* new_user_button_;
  QToolButton* delete_user_button_;
  QComboBox* pg_7_;
  std::array<QLineEdit*, kDayFieldCount> fields_{};
  std::vector<Caption> captions_;
  QLabel* lbl_lengteinfo_;
  QLabel* lbl_gewichtinfo_;
  QLabel* lbl_streefgewichtinfo_;
  QLabel* lbl_datuminfo_;
  QPushButton* cmd_opslaan_;
  QPushButton* cmd_annuleer_;
};

}  // namespace kelvora
