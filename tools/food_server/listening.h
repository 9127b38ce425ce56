// The socket that the server listens on.
#pragma once

#include <cstdint>
#include <string>

namespace kelvora::server {

// Listens on an address given as a number. Throws ListenFailure.
[[nodiscard]] int Listen(const std::string& address, std::uint64_t port);

[[nodiscard]] std::uint16_t PortOf(int socket);

// Lets this process hold as many open files as the system allows it.
void AllowManyFiles();

}  // namespace kelvora::server
