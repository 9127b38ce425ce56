// The exchange sort of the day lists, over numbers and places only: who sorts parses every key once
// and moves rows to the places that come back. The order of equal keys is part of the rule.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace kelvora {

// Asked again and again during long work: lets other events run, and answers true once the work is
// not wanted any more. It ends at once then, and what it returns is of no use.
using Pause = std::function<bool()>;

// The order that a plain exchange sort over all pairs leaves: for each i, for each j, entries i and
// j change places when key i is less than key j. Ascending; what stood behind what among equal keys
// is not kept, but the same keys always give the same order. It is worked out without comparing all
// pairs: different keys take n log n steps, and n to the power 1.5 is the worst that ties can make
// of it. No key may be not-a-number. Pauses once for each entry. Returns places in `keys`.
[[nodiscard]] std::vector<std::size_t> ExchangeSorted(const std::vector<double>& keys,
                                                      const Pause& pause);

}  // namespace kelvora
