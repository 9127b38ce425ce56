// What asks the program to end from outside: SIGTERM, SIGINT and SIGHUP, and the desktop's session.
// A signal reaches the event loop through a pipe, so that what answers it may do anything.
#pragma once

#include <functional>

#include <QObject>

namespace kelvora {

// One at a time; the signals mean what they meant before once it is gone. A signal that was ignored
// when the program was started stays ignored.
class EndingRequests : public QObject {
  Q_OBJECT

 public:
  EndingRequests();
  ~EndingRequests() override;

  std::function<void()> on_signal = [] {};
  // Before the session closes the windows.
  std::function<void()> on_session_end = [] {};

 private:
  void TakeSignal();
};

}  // namespace kelvora
