#include "food_server/configuration.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <functional>
#include <optional>
#include <system_error>

#include "core/web_address.h"
#include "storage/record_file.h"

namespace kelvora::server {
namespace {

constexpr std::array<std::string_view, 12> kKeys = {"address",
                                                    "port",
                                                    "store",
                                                    "foods",
                                                    "workers",
                                                    "queue",
                                                    "connections",
                                                    "connections_of_address",
                                                    "request_seconds",
                                                    "submissions_per_hour",
                                                    "unchecked_submissions",
                                                    "log"};

struct NumberKey {
  std::string_view key;
  std::uint64_t Configuration::*number;
  std::uint64_t least, most;
};
constexpr std::array kNumbers = {
    NumberKey{"port", &Configuration::port, 0, 65535},
    NumberKey{"workers", &Configuration::workers, 0, 256},
    NumberKey{"queue", &Configuration::queue, 1, 100'000},
    NumberKey{"connections", &Configuration::connections, 8, 100'000},
    NumberKey{"connections_of_address", &Configuration::connections_of_address, 0, 100'000},
    NumberKey{"request_seconds", &Configuration::request_seconds, 1, 3600},
    NumberKey{"submissions_per_hour", &Configuration::submissions_per_hour, 0, 1'000'000},
    NumberKey{"unchecked_submissions", &Configuration::unchecked_submissions, 0, 10'000'000},
};

struct TextKey {
  std::string_view key;
  std::string Configuration::*text;
};
constexpr std::array kTexts = {
    TextKey{"address", &Configuration::address},
    TextKey{"store", &Configuration::store},
};

struct LogName {
  std::string_view name;
  LogLevel level;
};
constexpr std::array kLogNames = {LogName{"error", LogLevel::error},
                                  LogName{"info", LogLevel::info},
                                  LogName{"debug", LogLevel::debug}};

// Takes one value in; what is wrong with it, if anything.
using Problem = std::optional<std::string>;

Problem TakeNumber(const NumberKey& key, std::string_view value, Configuration& configuration) {
  std::uint64_t number = 0;
  const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
  const bool whole = error == std::errc() && end == value.data() + value.size();
  if (!whole || number < key.least || number > key.most) {
    return "needs a number from " + std::to_string(key.least) + " to " + std::to_string(key.most);
  }
  configuration.*key.number = number;
  return std::nullopt;
}

Problem TakeValue(std::string_view key, std::string_view value, Configuration& configuration) {
  if (value.empty()) return "has no value";
  if (key == "foods") {
    configuration.foods.emplace_back(value);
    return std::nullopt;
  }
  if (key == "log") {
    const auto found = std::ranges::find(kLogNames, value, &LogName::name);
    if (found == kLogNames.end()) return "is one of error, info and debug";
    configuration.log = found->level;
    return std::nullopt;
  }
  for (const TextKey& text : kTexts) {
    if (text.key == key) configuration.*text.text = value;
  }
  for (const NumberKey& number : kNumbers) {
    if (number.key == key) return TakeNumber(number, value, configuration);
  }
  return std::nullopt;
}

}  // namespace

std::span<const std::string_view> ConfigurationKeys() {
  return kKeys;
}

Configuration ParseConfiguration(std::string_view text, const std::string& file) {
  Configuration configuration;
  std::vector<std::string_view> seen;
  for (int number = 1; !text.empty(); ++number) {
    const auto fail = [&](const std::string& what) {
      throw ConfigurationError(file + ":" + std::to_string(number) + ": " + what);
    };
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = TrimmedLine(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.empty() || line.starts_with('#')) continue;
    const std::size_t equals = line.find('=');
    if (equals == line.npos) fail("not of the form \"key = value\"");
    const std::string_view key = TrimmedLine(line.substr(0, equals));
    const std::string quoted = "\"" + std::string(key) + "\"";
    if (std::ranges::find(kKeys, key) == kKeys.end()) fail("no key is named " + quoted);
    if (key != "foods" && std::ranges::find(seen, key) != seen.end())
      fail(quoted + " is there twice");
    seen.push_back(key);
    if (const auto problem = TakeValue(key, TrimmedLine(line.substr(equals + 1)), configuration)) {
      fail(quoted + " " + *problem);
    }
  }
  return configuration;
}

Configuration ReadConfiguration(const std::string& path) {
  try {
    return ParseConfiguration(ReadFile(path), path);
  } catch (const std::system_error& failure) {
    throw ConfigurationError(path + ": " + failure.code().message());
  }
}

}  // namespace kelvora::server
