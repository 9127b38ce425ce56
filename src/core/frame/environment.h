// Checks of the machine that the program runs on. Each warns and none stops anything.
#pragma once

#include "core/program.h"

namespace kelvora {

// Warns below a screen width of 1024 pixels; the height never matters.
void CheckScreenResolution(Program& program);

// Warns if the decimal separator is neither "," nor ".".
void CheckSeparatorIsValid(Program& program);

// Writes the two terminators to a text cell of the store and warns if they don't come back.
void CheckHalfCharacter(Program& program);

// The second half of that check: warns unless `read_back` is the two terminators.
void WarnUnlessTerminators(Program& program, std::string_view read_back);

}  // namespace kelvora
