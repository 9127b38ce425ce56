// The event loop: its end, and loops long enough to let it run in between.
#pragma once

namespace kelvora {

class Events {
 public:
  virtual ~Events() = default;
  // Handles what is pending and comes back. May be called often: it only acts at a bounded rate.
  virtual void Yield() = 0;
  // Ends the loop, with every loop of a dialog or a box that runs inside it. Comes back at once;
  // no loop of a dialog begins any more.
  virtual void End() = 0;
};

}  // namespace kelvora
