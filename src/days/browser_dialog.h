// KV_browsefiles, the dialog that lists the users and the days of one of them. A picture: it draws
// what browser.h gives it and passes clicks and keys on.
#pragma once

#include <array>

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "core/views.h"
#include "days/browser.h"
#include "days/day_form.h"
#include "days/day_table_panel.h"
#include "days/user_rows_panel.h"

namespace kelvora {

class BrowserDialog : public QDialog, public BrowserView {
  Q_OBJECT

 public:
  BrowserDialog(Program& program, QWidget* parent);

  // Shows the window and fills it: the days are read while it can be seen.
  void Open();

  void CloseWindow() override;
  void Set_Taal() override;
  void FollowSettings() override;
  void Refresh_GebruikersLijst() override;
  void Refresh_Files() override;
  void done(int result) override;

 private:
  QWidget* BuildUsers();
  QWidget* BuildDays();
  QWidget* BuildProfilePane();
  void SetCaptions();
  UserList ShowUsers();
  bool ChooseOnlyUser(const UserList& list);
  void ShowDays(std::vector<DayRow> rows);
  void ShowProfile();
  void ChooseSelectedUser();
  void OpenSelectedDay();
  void DeleteSelectedDay();
  void TakeOverFromSelectedDay();

  Program& program_;
  OpenFlag<BrowserView> open_flag_;
  // Tells a reading that was overtaken while events ran: by another one, or by the window's end.
  int readings_ = 0;
  // What the days in the list are shown by.
  struct ShownBy {
    UnitSystem system;
    Priority priority;
    std::string folder;
    bool operator==(const ShownBy&) const = default;
  };
  [[nodiscard]] ShownBy ShownNow() const;
  ShownBy shown_by_;
  QLabel* lbl_users_;
  UserRows* lst_users_;
  QLabel* lbl_days_;
  DayTable* LV_browse_files_;
  QWidget* profile_pane_;
  QLabel* lbl_profile_of_;
  std::array<QLabel*, 6> captions_;
  std::array<QLabel*, 6> lbl_pr_;
  QCheckBox* chk_profiel_;
  QPushButton* cmd_take_over_;
  QPushButton* cmd_openen_;
  QPushButton* cmd_annuleer_;
};

}  // namespace kelvora
