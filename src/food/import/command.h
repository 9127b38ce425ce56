// The import without a window, for servers and scripts: what kelvora-food-import does with its
// arguments.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "food/import/importing.h"

namespace kelvora {

struct ImportOutside {
  DatabaseFolders folders;
  std::string date;                                   // of today: 2026-11-22
  std::function<bool()> go_on = [] { return true; };  // false gives up
};

struct CommandResult {
  int status = 0;           // 0: done; 1: not done; 2: the arguments are wrong
  std::string out, errors;  // UTF-8, for the standard output and the standard error
};

// `arguments` are those behind the name of the program.
[[nodiscard]] CommandResult RunImportCommand(std::span<const std::string> arguments,
                                             const ImportOutside& outside);

}  // namespace kelvora
