// The screen that the program stands on.
#pragma once

namespace kelvora {

struct ScreenSize {
  int width = 0;   // device-independent pixels
  int height = 0;  // device-independent pixels
};

class Screen {
 public:
  virtual ~Screen() = default;
  [[nodiscard]] virtual ScreenSize Size() const = 0;
};

}  // namespace kelvora
