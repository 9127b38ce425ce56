// Which process wrote something down, so that a later one can tell whether it still lives.
#pragma once

#include <string>

namespace kelvora {

// A number alone may belong to another process later; together with the start of the machine and of
// the process it never does.
struct ProcessMark {
  std::string number;
  std::string start;
  bool operator==(const ProcessMark&) const = default;
};

[[nodiscard]] ProcessMark OwnProcess();

// The start of the machine and, in ticks since then, of the process of that number; empty without
// such a process.
[[nodiscard]] std::string StartOfProcess(const std::string& number);

// False for a process that has ended, be it one that nobody has waited for yet.
[[nodiscard]] bool IsAlive(const ProcessMark& process);

}  // namespace kelvora
