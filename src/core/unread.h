// What a list had to pass over because it could not be read. The list goes on without it, and says
// so once, when it is filled.
#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "core/failure.h"
#include "core/text.h"

namespace kelvora {

class Unread {
 public:
  // Runs `read`; what escapes it is kept under the name, if it has one. True if it came to its end.
  template <class Body>
  bool Try(std::string_view name, Body&& read) {
    try {
      std::forward<Body>(read)();
      return true;
    } catch (const std::exception& failure) {
      Add(name, failure);
      return false;
    }
  }
  void Add(std::string_view name, const std::exception& failure);
  [[nodiscard]] bool Empty() const { return reasons_.empty(); }

  // Shows one failure box with the system's words for each reason and the names behind it, the
  // first few of many; none if nothing was passed over.
  void Report(const FailureBox& box, std::string_view code) const;

 private:
  struct Reason {
    Text words;
    std::vector<Text> names;
  };
  std::vector<Reason> reasons_;
};

}  // namespace kelvora
