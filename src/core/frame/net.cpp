#include "core/frame/net.h"

namespace kelvora {

void TellEscaped(Program& program, const std::exception_ptr& failure) {
  ReportFailure(program.FailurePath(), "#F4-17", DescribeFailure(failure));
}

void RunStep(Program& program, void (*step)(Program&)) {
  program.Guard("#F4-18", [&] { step(program); });
}

}  // namespace kelvora
