// The event loop, for loops long enough to let it run in between.
#pragma once

namespace kelvora {

class Events {
 public:
  virtual ~Events() = default;
  // Handles what is pending and comes back. May be called often: it only acts at a bounded rate.
  virtual void Yield() = 0;
};

}  // namespace kelvora
