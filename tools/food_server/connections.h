// Which connections are open, how many of each address, and which have taken too long.
//
// A connection has so many seconds to bring a whole request, from its beginning or from the answer
// before, whether it brings a byte a second or none; and as long again to take an answer. While
// nearly all connections are in use it has one second to bring the request, so that those who only
// hold a connection don't shut out the others.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <list>
#include <map>
#include <mutex>
#include <string>

struct sockaddr;

namespace kelvora::server {

// The address as limits count it: that of the peer, of IPv6 the first 64 bits, which is what one
// household has. Empty for an address of another kind.
[[nodiscard]] std::string AddressOf(const sockaddr* address);
[[nodiscard]] bool IsOfThisMachine(const std::string& address);

class Connections {
 public:
  struct Limits {
    std::uint64_t all = 0;
    std::uint64_t of_address = 0;  // 0 is no limit; this machine has none
    std::chrono::milliseconds request{};
  };
  explicit Connections(const Limits& limits) : limits_(limits) {}

  enum class Phase : std::uint8_t { bringing, waiting, taking };
  class Open {
   public:
    void Enter(Phase phase);
    [[nodiscard]] const std::string& Address() const { return address_; }

   private:
    friend class Connections;
    using Clock = std::chrono::steady_clock;
    int socket_ = -1;
    std::string address_;
    std::atomic<Phase> phase_ = Phase::bringing;
    std::atomic<Clock::time_point> since_ = Clock::now();
    std::list<Open>::iterator place_;
  };

  // False for a connection too many of its address.
  [[nodiscard]] bool MayOpen(const std::string& address);
  // Valid until Close, which has to come before the socket is closed.
  [[nodiscard]] Open* Add(int socket, const std::string& address);
  void Close(Open* open);

  // Ends what has taken too long. Called every second or so.
  void EndLate();
  [[nodiscard]] std::uint64_t Count();
  // Those whose request waits for an answer, or that take one.
  [[nodiscard]] std::uint64_t CountBusy();

 private:
  Limits limits_;
  std::mutex mutex_;
  std::list<Open> open_;
  std::map<std::string, std::uint64_t> of_address_;
};

}  // namespace kelvora::server
