// The outermost net of the program: what escapes from any routine without a failure path of its
// own.
#pragma once

#include <exception>

#include "core/program.h"

namespace kelvora {

// Shows what escaped from the handling of an event, once in an action of the user: "#F4-17".
void TellEscaped(Program& program, const std::exception_ptr& failure);

// Runs a step of the start; what escapes from it shows "#F4-18", and the start goes on.
void RunStep(Program& program, void (*step)(Program&));

}  // namespace kelvora
