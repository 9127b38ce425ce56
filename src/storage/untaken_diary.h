// What is asked before text is left behind that stands in the diary window and was not taken over
// into the day: take it over, drop it, or go back. One question for all ways in which it can go.
#pragma once

#include "core/program.h"

namespace kelvora {

// True if the diary may be left as the store has it: nothing was typed, or it has been taken over,
// or the user drops it, which the window then does at once. Before the day is saved and before the
// window closes.
[[nodiscard]] bool MayLeaveDiary(Program& program);

// The same before the whole day is closed, about which more may be asked: text that the user drops
// stays in the window until the day is closed.
[[nodiscard]] bool MayCloseDiaryWithDay(Program& program);

}  // namespace kelvora
