// The one failure path of the program.
//
// A routine's body runs inside WithFailurePath together with that routine's own code. Whatever
// escapes the body is shown in a box with the code, and the routine then returns as if done:
// nothing is rolled back; what matters to callers is told as a result. Below that line code throws
// standard exceptions.
#pragma once

#include <exception>
#include <string_view>
#include <system_error>
#include <utility>

#include "core/action_log.h"
#include "platform/boxes.h"

namespace kelvora {

// What a failure box needs: where to show it, the first line in the language of the moment, and
// what has been told already.
struct FailureBox {
  Boxes& boxes;
  const Text& opening_line;
  ActionLog* told = nullptr;
};

// Shows the box: the opening line, an empty line, the system's words, and the code. A code that the
// running action of the user has shown already is not shown again.
void ReportFailure(const FailureBox& box, std::string_view code, std::string_view description);

// The system's own words for an exception; for an escaped one whatever its type.
[[nodiscard]] Text DescribeFailure(const std::exception& failure);
[[nodiscard]] Text DescribeFailure(const std::exception_ptr& failure);

// Ends a routine as the system would: with an error that the system has words for, in the user's
// own language. A failure never carries words of this program.
[[noreturn]] void ThrowSystemError(std::errc error);

// Runs `body`; true if it came to its end.
template <class Body>
bool WithFailurePath(const FailureBox& box, std::string_view code, Body&& body) {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (...) {
    ReportFailure(box, code, DescribeFailure(std::current_exception()));
    return false;
  }
}

}  // namespace kelvora
