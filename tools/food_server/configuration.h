// The configuration of the food server: one file, one `key = value` a line, "#" begins a comment.
#pragma once

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kelvora::server {

enum class LogLevel { error, info, debug };

struct Configuration {
  std::string address = "127.0.0.1";  // a number; "::" and "0.0.0.0" are all of this machine
  std::uint64_t port = 8080;          // 0 lets the system choose one
  std::string store = "sqlite:/var/lib/kelvora-food-server/foods.db";
  std::vector<std::string> foods;    // folders, in order
  std::uint64_t workers = 0;         // threads that search; 0: as many as there are cores
  std::uint64_t queue = 256;         // requests that wait for one of them, the others get 503
  std::uint64_t connections = 4000;  // of all addresses
  std::uint64_t connections_of_address = 200;   // 0 is no limit; this machine itself has none
  std::uint64_t request_seconds = 10;           // for a whole request to come in
  std::uint64_t submissions_per_hour = 20;      // of one address; 0 is no limit
  std::uint64_t unchecked_submissions = 10000;  // kept for the review; 0 is no limit
  LogLevel log = LogLevel::info;
};

// What is wrong, with the file and the line.
class ConfigurationError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// `file` is the name that errors tell. Throws ConfigurationError for an unknown key, a key that is
// there twice (but "foods"), and a value that the key can't have.
[[nodiscard]] Configuration ParseConfiguration(std::string_view text, const std::string& file);

// Throws ConfigurationError for a file that can't be read, too.
[[nodiscard]] Configuration ReadConfiguration(const std::string& path);

// All keys, in the order of the help.
[[nodiscard]] std::span<const std::string_view> ConfigurationKeys();

}  // namespace kelvora::server
