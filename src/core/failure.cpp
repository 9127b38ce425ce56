#include "core/failure.h"

#include <new>

#include "core/common.h"

namespace kelvora {
namespace {

Text WordsOf(std::errc error) {
  return TextFromUtf8(std::make_error_code(error).message());
}

}  // namespace

void ReportFailure(const FailureBox& box, std::string_view code, std::string_view description) {
  if (box.told != nullptr && !box.told->FirstTime(code)) return;
  Text text = box.opening_line;
  text.append("\n\n").append(description).append("\nBrelux CODE:").append(code);
  box.boxes.Show({.title = Text(AppTitle), .text = text});
}

void ThrowSystemError(std::errc error) {
  throw std::system_error(std::make_error_code(error));
}

Text DescribeFailure(const std::exception& failure) {
  if (dynamic_cast<const std::bad_alloc*>(&failure) != nullptr) {
    return WordsOf(std::errc::not_enough_memory);
  }
  if (const auto* system = dynamic_cast<const std::system_error*>(&failure)) {
    return TextFromUtf8(system->code().message());
  }
  return TextFromUtf8(failure.what());
}

Text DescribeFailure(const std::exception_ptr& failure) {
  try {
    std::rethrow_exception(failure);
  } catch (const std::exception& known) {
    return DescribeFailure(known);
  } catch (...) {
    return WordsOf(std::errc::state_not_recoverable);  // it has no words of its own
  }
}

}  // namespace kelvora
