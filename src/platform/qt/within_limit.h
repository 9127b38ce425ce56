// Waiting for something outside that may never answer, without the windows standing still.
#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <thread>
#include <type_traits>
#include <utility>

#include "core/failure.h"

namespace kelvora {

using Deadline = std::chrono::steady_clock::time_point;

// Comes back when `is_ready` says so, or at the deadline. Windows are drawn meanwhile and timers
// run on; what the user does waits.
void WaitWhileDrawing(Deadline deadline, const std::function<bool()>& is_ready);

// What `work` gives or throws, on a thread of its own; std::errc::timed_out where it takes longer
// than the limit. It is told its deadline. Work that goes on behind it is on its own: it holds
// whatever it needs by value.
template <class Work>
std::invoke_result_t<Work, Deadline> WithinLimit(std::chrono::milliseconds limit, Work work) {
  using namespace std::chrono_literals;
  // What comes in this time needs no loop of events, and what gives up at its deadline still tells.
  constexpr auto kAtOnce = 50ms;
  constexpr auto kLastWords = 200ms;
  const Deadline deadline = std::chrono::steady_clock::now() + limit;
  std::packaged_task<std::invoke_result_t<Work, Deadline>(Deadline)> task(std::move(work));
  auto answer = task.get_future();
  std::thread(std::move(task), deadline).detach();
  if (answer.wait_for(kAtOnce) != std::future_status::ready) {
    WaitWhileDrawing(deadline + kLastWords,
                     [&] { return answer.wait_for(0ms) == std::future_status::ready; });
  }
  // A program that is about to end runs no loop any more.
  if (answer.wait_until(deadline + kLastWords) != std::future_status::ready) {
    ThrowSystemError(std::errc::timed_out);
  }
  return answer.get();
}

}  // namespace kelvora
