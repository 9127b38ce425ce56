// lst_users, the list of users in the day dialog and in the browser. Shows what it is given and
// tells what is chosen.
#pragma once

#include <optional>
#include <vector>

#include <QListWidget>

#include "core/program.h"
#include "days/user_list.h"

namespace kelvora {

class UserRows : public QListWidget {
  Q_OBJECT

 public:
  UserRows(Program& program, QWidget* parent);

  // Shows the users, the current one selected. Nothing here but what somebody does tells of a
  // choice.
  void ShowUsers(std::vector<User> users);
  void SelectCurrentUser();
  // Selects a user of the list, without a word.
  void Select(const User& user);
  void SelectNone();
  [[nodiscard]] std::optional<User> Selected() const;
  // Tells at once what is still to be told: before something is done with the chosen user, for a
  // key may follow faster than the list tells.
  void TellNow();
  // Tells it no more: the window closes.
  void TellNothing();

 signals:
  // Another user was selected. Told when the list is done with the key or the click: a question may
  // follow, and after a No the selection goes back to what it was.
  void Chosen();
  // A user was clicked, or the space bar pressed on one, chosen before or not.
  void Confirmed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Program& program_;
  std::vector<User> users_;
};

}  // namespace kelvora
