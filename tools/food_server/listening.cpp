#include "food_server/listening.h"

#include <cerrno>
#include <cstring>
#include <memory>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>

#include "food_server/http_server.h"

namespace kelvora::server {
namespace {

constexpr int kBacklog = 1024;

[[noreturn]] void Fail(const std::string& address, std::uint64_t port, const std::string& why) {
  throw ListenFailure("can't listen on " + address + ", port " + std::to_string(port) + ": " + why);
}

}  // namespace

int Listen(const std::string& address, std::uint64_t port) {
  addrinfo hints{};
  hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV | AI_PASSIVE;
  hints.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  const int result = getaddrinfo(address.c_str(), std::to_string(port).c_str(), &hints, &found);
  if (result != 0) Fail(address, port, gai_strerror(result));
  const std::unique_ptr<addrinfo, void (*)(addrinfo*)> holds(found, freeaddrinfo);
  const int listener = socket(found->ai_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  const int on = 1;
  if (listener >= 0 && setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on) == 0 &&
      bind(listener, found->ai_addr, found->ai_addrlen) == 0 && listen(listener, kBacklog) == 0) {
    return listener;
  }
  const std::string why = std::generic_category().message(errno);
  if (listener >= 0) close(listener);
  Fail(address, port, why);
}

std::uint16_t PortOf(int socket) {
  sockaddr_storage bound{};
  socklen_t size = sizeof bound;
  if (getsockname(socket, reinterpret_cast<sockaddr*>(&bound), &size) != 0) return 0;
  // The port lies at the same place for both families.
  sockaddr_in four{};
  std::memcpy(&four, &bound, sizeof four);
  return ntohs(four.sin_port);
}

void AllowManyFiles() {
  rlimit files{};
  if (getrlimit(RLIMIT_NOFILE, &files) != 0) return;
  files.rlim_cur = files.rlim_max;
  setrlimit(RLIMIT_NOFILE, &files);
}

}  // namespace kelvora::server
