// The application, with the outermost net under every event: an exception that leaves a handler
// ends there, and the program goes on. It also tells where an action of the user begins.
#pragma once

#include <exception>
#include <functional>

#include <QApplication>

namespace kelvora {

class GuardedApplication : public QApplication {
 public:
  GuardedApplication(int& argc, char** argv);

  // Is given what escaped, while nothing is being painted or handled any more. Without it an
  // exception goes on its way.
  std::function<void(const std::exception_ptr&)> on_escape;
  // Is called before each key, click or drop of the user is handled; not for those that answer a
  // box, which belong to what the box came from.
  std::function<void()> on_action;

  bool notify(QObject* receiver, QEvent* event) override;

  // True while a window is being painted: no box can come up then.
  [[nodiscard]] static bool IsPainting();

  // Hands the exception that is being handled to the net, where the application has one; false if
  // it has none.
  static bool TakeEscaped();

 private:
  void PostEscaped(const std::exception_ptr& failure);

  int painting_ = 0;
  bool posted_ = false;  // one is under way to on_escape; others of the same moment are dropped
};

// What `make` makes; an exception from it goes to the net and leaves an empty value. For code that
// the toolkit calls in the middle of its own work, which is not made to be left by an exception.
template <class Make>
auto Guarded(Make make) -> decltype(make()) {
  try {
    return make();
  } catch (...) {
    if (!GuardedApplication::TakeEscaped()) throw;
    return {};
  }
}

}  // namespace kelvora
