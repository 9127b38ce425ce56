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

Text DescribeFailure(const std::exception_ptr& failure) {
  try {
    std::rethrow_exception(failure);
  } catch (const std::bad_alloc&) {
    return WordsOf(std::errc::not_enough_memory);
  } catch (const std::system_error& system) {
    return TextFromUtf8(system.code().message());
  } catch (const std::exception& other) {
    return TextFromUtf8(other.what());
  } catch (...) {
    return WordsOf(std::errc::state_not_recoverable);  // it has no words of its own
  }
}

}  // namespace kelvora
