// Reading the settings at start, with what happens when there are none yet.
#pragma once

#include "core/program.h"

namespace kelvora {

// Fills the settings from their file. Where that is absent, damaged or can't be read, the program
// runs for the first time: defaults and language are made ready, a box says so, and the settings
// dialog opens; its confirmation writes the file.
void Load_Settings(Program& program);

}  // namespace kelvora
