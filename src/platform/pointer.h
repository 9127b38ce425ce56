// The mouse pointer: an hourglass while something takes its time.
#pragma once

namespace kelvora {

class Pointer {
 public:
  virtual ~Pointer() = default;
  void ShowWait() { Show(true); }
  // Back to normal, however often the hourglass was asked for; not while it is held.
  void Restore() {
    if (held_ == 0) Show(false);
  }
  // Keeps the hourglass for something that goes on between the events, whatever else comes and goes
  // meanwhile. Each Hold needs its Release.
  void Hold() {
    ++held_;
    Show(true);
  }
  void Release() {
    --held_;
    Restore();
  }

 private:
  // May be told again what is shown already.
  virtual void Show(bool waiting) = 0;

  int held_ = 0;
};

}  // namespace kelvora
