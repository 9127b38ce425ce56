// The guard of everything that reads and prints numbers. It warns and stops nothing.
#pragma once

#include "core/program.h"

namespace kelvora {

// Warns if the locale's decimal separator is no longer the one of the start.
void CheckDecimal(Program& program);

}  // namespace kelvora
