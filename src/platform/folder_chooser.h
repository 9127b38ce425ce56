// Lets the user choose a folder or a file. Paths are UTF-8.
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
  // The same for a zip file: one to be written, whose replacing is agreed to then, and one that
  // exists. `proposed` is a path whose folder exists, `start` a folder.
  virtual std::optional<std::string> ChooseNewZip(const Text& prompt,
                                                  const std::string& proposed) = 0;
  virtual std::optional<std::string> ChooseZip(const Text& prompt, const std::string& start) = 0;
};

}  // namespace kelvora
