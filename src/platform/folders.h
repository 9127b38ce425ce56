// Where this platform keeps a user's data. Paths are UTF-8 without a closing "/".
#pragma once

#include <string>

namespace kelvora {

class Folders {
 public:
  virtual ~Folders() = default;
  // Settings of applications; empty when the platform can't tell.
  [[nodiscard]] virtual std::string ApplicationData() const = 0;
  // The user's documents; empty when the platform can't tell.
  [[nodiscard]] virtual std::string Documents() const = 0;
  // What programs keep of their own state from one start to the next; empty when the platform can't
  // tell.
  [[nodiscard]] virtual std::string State() const = 0;
  // Data of the user that programs bring in for themselves; empty when the platform can't tell.
  [[nodiscard]] virtual std::string UserData() const = 0;
  // The folder of the real executable, links resolved.
  [[nodiscard]] virtual std::string ProgramFolder() const = 0;
};

}  // namespace kelvora
