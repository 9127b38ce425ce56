// What the running action of the user has been told already: one cause gives one box, however many
// rows or files meet it.
//
// The program's application begins an action with each key, click or drop. The logic joins it, or
// begins one of its own where none is under way. Outside of any action everything is told.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelvora {

class ActionLog {
 public:
  // Another action is under way from now on, of which nothing has been told yet.
  void Begin();
  void End();
  [[nodiscard]] bool UnderWay() const { return under_way_; }

  // True if `what` is to be told: the first time in an action. A failure goes by its code.
  [[nodiscard]] bool FirstTime(std::string_view what);

 private:
  bool under_way_ = false;
  std::vector<std::string> told_;
};

// An action as long as this object; part of the running one if there is one.
class UserAction {
 public:
  explicit UserAction(ActionLog& log);
  ~UserAction();
  UserAction(const UserAction&) = delete;
  UserAction& operator=(const UserAction&) = delete;

 private:
  ActionLog* begun_;
};

}  // namespace kelvora
