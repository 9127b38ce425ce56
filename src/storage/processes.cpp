#include "storage/processes.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace kelvora {
namespace {

std::string LineOf(const std::string& path) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  return line;
}

}  // namespace

std::string StartOfProcess(const std::string& number) {
  const std::string status = LineOf("/proc/" + number + "/stat");
  // The name of the program stands in brackets and may hold anything.
  const std::size_t name_end = status.rfind(')');
  if (name_end == status.npos) return {};
  std::istringstream fields(status.substr(name_end + 1));
  std::string state, field;
  fields >> state;
  if (state == "Z" || state == "X") return {};
  constexpr int kFieldsToStart = 19;  // behind the state
  for (int i = 0; i < kFieldsToStart; ++i) fields >> field;
  return LineOf("/proc/sys/kernel/random/boot_id") + " " + field;
}

ProcessMark OwnProcess() {
  std::error_code unknown;
  const std::string number = std::filesystem::read_symlink("/proc/self", unknown).string();
  return {number, StartOfProcess(number)};
}

bool IsAlive(const ProcessMark& process) {
  // What is no number could lead elsewhere.
  if (process.number.empty() ||
      process.number.find_first_not_of("0123456789") != std::string::npos) {
    return false;
  }
  const std::string start = StartOfProcess(process.number);
  return !start.empty() && start == process.start;
}

}  // namespace kelvora
