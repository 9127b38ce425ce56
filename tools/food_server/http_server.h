// HTTP by libmicrohttpd: connections and the forms of requests are its own, what is answered is the
// service's. Requests wait in a bounded queue for a thread that answers them; beyond the bound they
// are answered with 503 at once.
#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>

#include "food_server/configuration.h"
#include "food_server/service.h"

namespace kelvora::server {

// The address can't be listened on.
class ListenFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class HttpServer {
 public:
  // Begins to serve. Both outlive it. Throws ListenFailure.
  HttpServer(const Configuration& configuration, Service& service, Metrics& metrics);
  // Takes no more connections, answers what was asked, and ends within a few seconds.
  ~HttpServer();
  HttpServer(const HttpServer&) = delete;
  HttpServer& operator=(const HttpServer&) = delete;

  [[nodiscard]] std::uint16_t Port() const;

 private:
  class Running;
  std::unique_ptr<Running> running_;
};

// Threads of a pool, by the configuration and the cores of the machine.
[[nodiscard]] unsigned WorkersOf(const Configuration& configuration);

}  // namespace kelvora::server
