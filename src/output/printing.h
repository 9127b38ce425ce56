// The commands that print: from the printer of the settings to the page that is handed over, with
// everything that is asked and told on the way.
#pragma once

#include "core/program.h"

namespace kelvora {

// Prints the summary of the open day. A failure shows "#FF10-0".
void Print_Day(Program& program);

// Prints an empty travel form. A failure shows "#FF10-1".
void Print_Travel_Form(Program& program);

}  // namespace kelvora
