// What the server answers to a request. It knows nothing of connections.
#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <string_view>

#include "food_server/configuration.h"
#include "food_server/metrics.h"
#include "food_server/store.h"

namespace kelvora::server {

// Foods of one reply at the most.
inline constexpr std::size_t kMostFoodsOfReply = 200;

struct Request {
  std::string target;   // all between the method and the version of HTTP, as it came
  std::string address;  // where it came from
};

struct Reply {
  int status = 200;
  std::string body;
  std::string_view type = "text/plain; charset=windows-1252";
};

// What is asked for, by the path alone.
[[nodiscard]] RequestKind KindOf(std::string_view target);

// The term of a search: everything behind "?item=", undecoded. Nothing if the query doesn't begin
// so.
[[nodiscard]] std::optional<std::string_view> TermOf(std::string_view target);

class Service {
 public:
  // All outlive it.
  Service(const Configuration& configuration, Store& store, Metrics& metrics);

  // From any thread. Failures of the store are answered with 503.
  [[nodiscard]] Reply Answer(const Request& request);

  // Foods were read; before that searches are answered with 503.
  void SetReady() { ready_ = true; }
  // Where the metrics look for what is open and what waits. Before the first answer.
  void TellOf(std::function<Metrics::Now()> now) { now_ = std::move(now); }

 private:
  [[nodiscard]] Reply Search(std::string_view target);
  [[nodiscard]] Reply Submit(const Request& request);
  [[nodiscard]] Reply Health();
  [[nodiscard]] Reply ShowMetrics();

  const Configuration& configuration_;
  Store& store_;
  Metrics& metrics_;
  std::atomic<bool> ready_ = false;
  std::function<Metrics::Now()> now_ = [] { return Metrics::Now(); };
};

}  // namespace kelvora::server
