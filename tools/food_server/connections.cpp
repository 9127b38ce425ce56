#include "food_server/connections.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cstring>
#include <netinet/in.h>
#include <sys/socket.h>

namespace kelvora::server {
namespace {

constexpr std::chrono::milliseconds kWhenCrowded(1000);

std::string TextOf(int family, const void* bytes) {
  std::array<char, INET6_ADDRSTRLEN> text{};
  return inet_ntop(family, bytes, text.data(), text.size()) == nullptr ? std::string()
                                                                       : std::string(text.data());
}

}  // namespace

std::string AddressOf(const sockaddr* address) {
  if (address == nullptr) return {};
  if (address->sa_family == AF_INET) {
    sockaddr_in four{};
    std::memcpy(&four, address, sizeof four);
    return TextOf(AF_INET, &four.sin_addr);
  }
  if (address->sa_family != AF_INET6) return {};
  sockaddr_in6 six{};
  std::memcpy(&six, address, sizeof six);
  constexpr std::size_t kOfHousehold = 8, kOfFour = 12;
  auto* const bytes = six.sin6_addr.s6_addr;
  // An address of IPv4 that reaches a socket of IPv6.
  if (IN6_IS_ADDR_V4MAPPED(&six.sin6_addr) != 0) return TextOf(AF_INET, bytes + kOfFour);
  if (IN6_IS_ADDR_LOOPBACK(&six.sin6_addr) != 0) return TextOf(AF_INET6, bytes);
  std::memset(bytes + kOfHousehold, 0, sizeof six.sin6_addr - kOfHousehold);
  return TextOf(AF_INET6, bytes) + "/64";
}

bool IsOfThisMachine(const std::string& address) {
  return address.starts_with("127.") || address == "::1";
}

void Connections::Open::Enter(Phase phase) {
  since_ = Clock::now();
  phase_ = phase;
}

bool Connections::MayOpen(const std::string& address) {
  if (limits_.of_address == 0 || IsOfThisMachine(address)) return true;
  const std::lock_guard lock(mutex_);
  const auto found = of_address_.find(address);
  return found == of_address_.end() || found->second < limits_.of_address;
}

Connections::Open* Connections::Add(int socket, const std::string& address) {
  const std::lock_guard lock(mutex_);
  Open& open = open_.emplace_front();
  open.socket_ = socket;
  open.address_ = address;
  open.place_ = open_.begin();
  ++of_address_[address];
  return &open;
}

void Connections::Close(Open* open) {
  const std::lock_guard lock(mutex_);
  const auto count = of_address_.find(open->address_);
  if (--count->second == 0) of_address_.erase(count);
  open_.erase(open->place_);
}

void Connections::EndLate() {
  const std::lock_guard lock(mutex_);
  const auto now = Open::Clock::now();
  const bool crowded = open_.size() * 4 >= limits_.all * 3;
  const auto to_bring = crowded ? std::min(kWhenCrowded, limits_.request) : limits_.request;
  for (Open& open : open_) {
    const Phase phase = open.phase_;
    if (phase == Phase::waiting) continue;
    const auto allowed = phase == Phase::bringing ? to_bring : limits_.request;
    // The thread that serves it sees the end and closes it.
    if (now - open.since_.load() > allowed) shutdown(open.socket_, SHUT_RDWR);
  }
}

std::uint64_t Connections::Count() {
  const std::lock_guard lock(mutex_);
  return open_.size();
}

std::uint64_t Connections::CountBusy() {
  const std::lock_guard lock(mutex_);
  return static_cast<std::uint64_t>(
      std::ranges::count_if(open_, [](const Open& o) { return o.phase_ != Phase::bringing; }));
}

}  // namespace kelvora::server
