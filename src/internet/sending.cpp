#include "internet/sending.h"

#include <cmath>

#include "nutrition/numbers.h"

namespace kelvora {

Text WholeReply(Transfer& transfer) {
  Text reply;
  for (Text chunk = transfer.GetChunk(); !chunk.empty(); chunk = transfer.GetChunk()) {
    if (reply.empty()) {
      reply = std::move(chunk);
    } else {
      reply += chunk;
    }
  }
  return reply;
}

void AddToCounter(Text& counter, std::size_t count) {
  constexpr double kMost = 999'999'999'999'999;  // what a number prints with all its digits
  const double sum = std::floor(Val(counter)) + static_cast<double>(count);
  counter = Str(Val(counter) >= 0 && sum <= kMost ? sum : static_cast<double>(count), ".");
}

}  // namespace kelvora
