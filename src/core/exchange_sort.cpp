#include "core/exchange_sort.h"

#include <utility>

namespace kelvora {

std::vector<std::size_t> ExchangeSorted(const std::vector<double>& keys, const Pause& pause) {
  struct Entry {
    double key;
    std::size_t place;
  };
  std::vector<Entry> entries;
  entries.reserve(keys.size());
  for (std::size_t i = 0; i < keys.size(); ++i) entries.push_back({keys[i], i});
  for (Entry& entry : entries) {
    for (Entry& other : entries) {
      if (entry.key < other.key) std::swap(entry, other);
    }
    if (pause()) break;
  }
  std::vector<std::size_t> places;
  places.reserve(entries.size());
  for (const Entry& entry : entries) places.push_back(entry.place);
  return places;
}

}  // namespace kelvora
