// The printers of the user's system.
#pragma once

#include <vector>

#include "core/text.h"

namespace kelvora {

class Printers {
 public:
  virtual ~Printers() = default;
  // The device names, in the system's order; asked anew each time. None where nothing on this
  // computer prints. Throws if what prints gives no answer.
  [[nodiscard]] virtual std::vector<Text> Names() const = 0;
};

}  // namespace kelvora
