// The time of day, in the user's time zone.
#pragma once

namespace kelvora {

struct LocalTime {
  int year = 2000;  // four digits
  int month = 1;    // 1 to 12
  int day = 1;      // 1 to 31
  int hour = 0;     // 0 to 23
  int minute = 0;
  int second = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  [[nodiscard]] virtual LocalTime Now() const = 0;
};

}  // namespace kelvora
