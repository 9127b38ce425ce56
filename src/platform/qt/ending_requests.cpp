#include "platform/qt/ending_requests.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>

namespace kelvora {
namespace {

using SignalAction = struct sigaction;

constexpr std::array kSignals = {SIGTERM, SIGINT, SIGHUP};

// A signal handler reaches nothing but what stands still.
std::array<int, 2> ends = {-1, -1};
std::array<SignalAction, kSignals.size()> before{};

void NoteSignal(int) {
  const int error = errno;
  const char note = 1;
  // A full pipe holds notes enough.
  [[maybe_unused]] const ssize_t written = write(ends[1], &note, 1);
  errno = error;
}

}  // namespace

EndingRequests::EndingRequests() {
  connect(
      qGuiApp, &QGuiApplication::commitDataRequest, this,
      [this](QSessionManager&) { on_session_end(); }, Qt::DirectConnection);
  if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* const notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, &EndingRequests::TakeSignal);
  SignalAction action{};
  action.sa_handler = &NoteSignal;
  action.sa_flags = SA_RESTART;
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], nullptr, &before[i]);
    if (before[i].sa_handler != SIG_IGN) sigaction(kSignals[i], &action, nullptr);
  }
}

EndingRequests::~EndingRequests() {
  if (ends[0] < 0) return;
  for (std::size_t i = 0; i < kSignals.size(); ++i) sigaction(kSignals[i], &before[i], nullptr);
  for (int& end : ends) {
    close(end);
    end = -1;
  }
}

void EndingRequests::TakeSignal() {
  std::array<char, 16> notes{};
  while (read(ends[0], notes.data(), notes.size()) > 0) {
  }
  on_signal();
}

}  // namespace kelvora
