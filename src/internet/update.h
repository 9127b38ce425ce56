// The check whether a newer version of the program exists. This version of the program has no such
// check: the routine is the place where it goes, and asks no server.
#pragma once

#include "core/program.h"

namespace kelvora {

// Runs the check in the background, if none has run yet since the program started.
void CheckForUpdateOnce(Program& program);

}  // namespace kelvora
