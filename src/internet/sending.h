// What every request of the program has in common: reading its reply, and counting.
#pragma once

#include "core/text.h"
#include "platform/transfer.h"

namespace kelvora {

// The whole reply of a completed transfer, whose chunks are joined.
[[nodiscard]] Text WholeReply(Transfer& transfer);

// Adds to a counter of the settings. One that holds no number, or one beyond all counting, begins
// anew.
void AddToCounter(Text& counter, std::size_t count);

}  // namespace kelvora
