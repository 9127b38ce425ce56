// Lets the user choose a folder that exists. Paths are UTF-8.
#pragma once

#include <optional>
#include <string>

#include "core/text.h"

namespace kelvora {

class FolderChooser {
 public:
  virtual ~FolderChooser() = default;
  // Asks with `prompt`, beginning in the folder `start`, and waits. Nothing if the user cancels.
  virtual std::optional<std::string> Choose(const Text& prompt, const std::string& start) = 0;
};

}  // namespace kelvora
