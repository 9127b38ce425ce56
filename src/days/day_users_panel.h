// The users on the first tab of the day dialog: the list and the toolbar below it. Shows what it is
// given and tells what is chosen.
#pragma once

#include <optional>
#include <vector>

#include <QToolButton>
#include <QWidget>

#include "days/user_list.h"

class QLabel;

namespace kelvora {

class UserRows;

class DayUsersPanel : public QWidget {
  Q_OBJECT

 public:
  DayUsersPanel(Program& program, QWidget* parent);

  void Set_Taal();
  // Shows the users; the current one is selected, without a word, if it is among them.
  void ShowUsers(std::vector<User> users);
  [[nodiscard]] bool AnySelected() const;
  [[nodiscard]] std::optional<User> Selected() const;
  // As in UserRows.
  void TellNow();
  void TellNothing();
  void SelectNone();
  void SelectCurrentUser();
  void Select(const User& user);
  void FocusList();
  void SetRemovable(bool removable);
  // While the settings of a day are changed, its user can't be.
  void Lock();

 signals:
  void Chosen();
  // A user was pointed at, chosen before or not.
  void Confirmed();
  void NewUserWanted();
  void RemovalWanted();

 private:
  Program& program_;
  QLabel* lbl_users_;
  UserRows* lst_users_;
  QWidget* Toolbar_control_;
  QToolButton* new_user_;
  QToolButton* delete_user_;
};

}  // namespace kelvora
