// kelvora-food-server: answers searches and takes submissions; see docs/food_server.md.
#include <csignal>
#include <cstdio>
#include <functional>
#include <span>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "food_server/food_watch.h"
#include "food_server/http_server.h"
#include "food_server/listening.h"
#include "food_server/log.h"
#include "food_server/migrate.h"
#include "food_server/review.h"
#include "storage/disk.h"

namespace {

using namespace kelvora;
using namespace kelvora::server;

constexpr int kFailed = 1;
constexpr int kWrongUse = 2;
constexpr const char* kDefaultConfiguration = "/etc/kelvora-food-server.conf";

std::string Help() {
  return "Usage: kelvora-food-server [--config FILE] [COMMAND]\n"
         "A food server for Kelvora FOOD.\n\n"
         "Commands:\n"
         "  serve                          answer requests until SIGTERM (default);\n"
         "                                 SIGHUP reads the foods again\n" +
         std::string(ReviewHelp()) + std::string(MigrateHelp()) +
         "\nOptions:\n"
         "  --config FILE                  default: " +
         kDefaultConfiguration +
         "\n"
         "  --help, --version\n\n"
         "Status: 0 done, 1 failed, 2 wrong arguments or configuration.\n";
}

struct Arguments {
  std::string configuration = kDefaultConfiguration;
  std::vector<std::string> command;
  bool help = false, version = false;
};

// Options stand before the command. Throws ConfigurationError.
Arguments ReadArguments(std::span<char* const> given) {
  constexpr std::string_view kConfig = "--config";
  Arguments arguments;
  std::size_t i = 0;
  for (; i < given.size(); ++i) {
    const std::string_view option = given[i];
    if (!option.starts_with('-')) break;
    if (option == "--help") {
      arguments.help = true;
    } else if (option == "--version") {
      arguments.version = true;
    } else if (option == kConfig && i + 1 < given.size()) {
      arguments.configuration = given[++i];
    } else if (option.starts_with(std::string(kConfig) + "=")) {
      arguments.configuration = option.substr(kConfig.size() + 1);
    } else {
      throw ConfigurationError("unknown or incomplete option " + std::string(option));
    }
  }
  arguments.command.assign(given.begin() + static_cast<std::ptrdiff_t>(i), given.end());
  return arguments;
}

StoreOptions OptionsOf(const Configuration& configuration) {
  return {.connections = WorkersOf(configuration)};
}

// The signals that Serve waits for. Set before any thread begins, so that none takes them.
sigset_t HoldSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&signals, signal);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  return signals;
}

int Serve(const Configuration& configuration) {
  const sigset_t signals = HoldSignals();
  AllowManyFiles();
  const auto store = OpenStore(configuration.store, OptionsOf(configuration));
  Metrics metrics;
  Service service(configuration, *store, metrics);
  const HttpServer server(configuration, service, metrics);
  FoodWatch watch(configuration, *store, service);
  Log(LogLevel::info,
      "listening on " + configuration.address + ", port " + std::to_string(server.Port()));
  for (;;) {
    int signal = 0;
    if (sigwait(&signals, &signal) != 0 || signal != SIGHUP) break;
    watch.ReadAgain();
  }
  Log(LogLevel::info, "ending");
  return 0;
}

int Say(const CommandResult& result) {
  std::fputs(result.errors.c_str(), stderr);
  std::fputs(result.out.c_str(), stdout);
  return std::fflush(stdout) == 0 ? result.status : kFailed;
}

int ReviewFor(const Configuration& configuration, std::span<const std::string> arguments) {
  const auto store = OpenStore(configuration.store, OptionsOf(configuration));
  return Say(Review(*store, arguments));
}

int Run(std::span<char* const> given) {
  const Arguments arguments = ReadArguments(given);
  if (arguments.help) return std::fputs(Help().c_str(), stdout) < 0 ? kFailed : 0;
  if (arguments.version) return std::puts("kelvora-food-server " KELVORA_VERSION) < 0 ? kFailed : 0;
  const std::string command = arguments.command.empty() ? "serve" : arguments.command.front();
  const auto rest = std::span(arguments.command).subspan(arguments.command.empty() ? 0 : 1);
  if (command == "migrate") return Say(RunMigrate(rest));
  if (command != "serve" && command != "review") {
    throw ConfigurationError("there is no command " + command + "; see --help");
  }
  const Configuration configuration = ReadConfiguration(arguments.configuration);
  SetLogLevel(configuration.log);
  if (command == "review") return ReviewFor(configuration, rest);
  if (!rest.empty()) throw ConfigurationError("serve takes no arguments");
  return Serve(configuration);
}

}  // namespace

int main(int argc, char** argv) {
  IgnoreFileSignals();
  umask(0077);  // who sent what is nobody else's business
  try {
    return Run(std::span(argv, static_cast<std::size_t>(argc)).subspan(argc > 0 ? 1 : 0));
  } catch (const ConfigurationError& error) {
    Log(LogLevel::error, error.what());
    return kWrongUse;
  } catch (const std::exception& failure) {
    Log(LogLevel::error, failure.what());
    return kFailed;
  }
}
