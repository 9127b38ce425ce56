// The screen that the program stands on.
#pragma once

namespace kelvora {

struct ScreenSize {
  int width = 0;   // pixels of the screen itself, whatever its scale
  int height = 0;  // the same
};

class Screen {
 public:
  virtual ~Screen() = default;
  [[nodiscard]] virtual ScreenSize Size() const = 0;
};

}  // namespace kelvora
