#include "core/failure.h"

#include <system_error>

#include "core/common.h"

namespace kelvora {

void ReportFailure(const FailureBox& box, std::string_view code, std::string_view description) {
  Text text = box.opening_line;
  text.append("\n\n").append(description).append("\nBrelux CODE:").append(code);
  box.boxes.Show({.title = Text(AppTitle), .text = text});
}

Text DescribeFailure(const std::exception& failure) {
  if (const auto* system = dynamic_cast<const std::system_error*>(&failure)) {
    return TextFromUtf8(system->code().message());
  }
  return TextFromUtf8(failure.what());
}

}  // namespace kelvora
