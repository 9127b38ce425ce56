// The start of the program. The order of the steps is binding: the decimal separator is captured
// before any number is read, and no message of a text table can appear before its language is
// loaded. A failure inside a step is reported by that step's own routine and the next one runs; the
// words of that box are the default ones until then. A program that is told to end meanwhile takes
// no further step.
#pragma once

#include "core/program.h"

namespace kelvora {

// Runs every step. The main window exists already; nothing is shown yet.
void StartUp(Program& program);

}  // namespace kelvora
