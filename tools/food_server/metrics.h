// What the server counts, and the text form in which it tells.
#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <string>

#include "food_server/store.h"

namespace kelvora::server {

enum class RequestKind { search, submission, health, metrics, other };
inline constexpr std::size_t kRequestKinds = 5;

class Metrics {
 public:
  using Duration = std::chrono::steady_clock::duration;

  // A request that was answered with that status, so long after it was there as a whole.
  void Count(RequestKind kind, int status, Duration took);

  // What isn't counted but looked at.
  struct Now {
    StoreCounts store;
    bool store_answers = false;
    std::uint64_t connections = 0, waiting = 0;
  };
  // The text form of Prometheus, version 0.0.4.
  [[nodiscard]] std::string Text(const Now& now) const;

 private:
  static constexpr std::array kStatuses = {200, 400, 404, 405, 429, 503};
  static constexpr std::array kBounds = {0.001, 0.0025, 0.005, 0.01, 0.025, 0.05,
                                         0.1,   0.25,   0.5,   1.0,  2.5};
  using Counter = std::atomic<std::uint64_t>;

  std::array<std::array<Counter, kStatuses.size()>, kRequestKinds> requests_{};
  std::array<Counter, kBounds.size() + 1> searches_{};  // by what they took
  Counter search_microseconds_ = 0;
};

}  // namespace kelvora::server
