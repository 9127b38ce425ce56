// The mouse pointer: an hourglass while something takes its time.
#pragma once

namespace kelvora {

class Pointer {
 public:
  virtual ~Pointer() = default;
  virtual void ShowWait() = 0;
  // Back to normal, however often the hourglass was asked for.
  virtual void Restore() = 0;
};

}  // namespace kelvora
