// kelvora-food-import: brings tables of foods in without a window.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

#include "food/import/command.h"
#include "storage/disk.h"
#include "storage/folders.h"

namespace {

volatile std::sig_atomic_t stopped = 0;

void Stop(int) {
  stopped = 1;
}

// By the rules of desktops: a relative path counts as none.
std::string UserData() {
  const char* const folder = std::getenv("XDG_DATA_HOME");
  if (folder != nullptr && folder[0] == '/') return folder;
  const char* const home = std::getenv("HOME");
  return home == nullptr || *home == '\0' ? std::string() : std::string(home) + "/.local/share";
}

// The categories that come with the program lie beside it.
std::string ProgramDatabases() {
  std::error_code ignored;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored);
  return ignored ? std::string() : program.parent_path().string() + "/Databases/";
}

std::string Today() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  if (localtime_r(&now, &local) == nullptr) return {};
  char text[16];
  return std::string(text, std::strftime(text, sizeof text, "%Y-%m-%d", &local));
}

bool Write(std::FILE* to, const std::string& text) {
  return std::fwrite(text.data(), 1, text.size(), to) == text.size() && std::fflush(to) == 0;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace kelvora;
  IgnoreFileSignals();
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, Stop);
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  const ImportOutside outside{.folders = {UserDatabasesIn(UserData()), ProgramDatabases()},
                              .date = Today(),
                              .go_on = [] { return stopped == 0; }};
  const CommandResult result = RunImportCommand(arguments, outside);
  const bool said = Write(stderr, result.errors);
  return Write(stdout, result.out) && said ? result.status : 1;
}
