// Offering a new food to the food server. This version of the program has no connection to it: the
// routine is the place where the request goes, and sends nothing.
#pragma once

#include "core/program.h"

namespace kelvora {

// Ends as a request ends whose connection fails: a box says that the food stands in the own list
// only. The food is in that list before.
void SubmitFood(Program& program);

}  // namespace kelvora
