// The arguments of kelvora-food-import, by the rules of the GNU tools: "--group=X", "--group X",
// "-g X" and "-gX" are the same, "--" ends the options.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kelvora {

struct ImportArguments {
  enum class Action { import, count, list, remove, help, version };
  Action action = Action::import;
  std::string table;    // the file or folder; of `remove` the name of the set
  std::string columns;  // a saved mapping, or a file with one
  std::string directory;
  std::vector<std::string> groups;
  std::string country;
  double completeness = 0;  // 0 to 1
  bool hundred_grams = false;
  bool quiet = false;
};

// Nothing with what is wrong in `problem`, in English.
[[nodiscard]] std::optional<ImportArguments> ReadArguments(std::span<const std::string> arguments,
                                                           std::string& problem);

[[nodiscard]] std::string_view ImportHelp();

}  // namespace kelvora
