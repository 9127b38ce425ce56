// The ways in which the program ends, and what becomes of the recovery copy in each.
#pragma once

#include "core/program.h"

namespace kelvora {

// The user has ended the program and has been asked what there was to ask. The changes that are
// lost by that are dropped on purpose.
void EndAsAsked(Program& program);

// The system wants the process to end: what is not saved is kept for the next start. Asks nothing.
void EndBySignal(Program& program);

// The desktop's session is about to end, and all its windows will be closed: what is not saved is
// kept for the next start, and no question comes. Another program may still keep the session from
// ending: an action of the user shows that it goes on.
void PrepareForSessionEnd(Program& program);
void TakeSessionAsGoingOn(Program& program);

}  // namespace kelvora
