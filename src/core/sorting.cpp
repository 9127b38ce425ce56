#include "core/sorting.h"

#include <algorithm>
#include <cmath>
#include <numeric>
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

std::vector<std::size_t> OrderByWholePart(const std::vector<double>& values, SortOrder order) {
  std::vector<double> whole(values.size());
  std::ranges::transform(values, whole.begin(), [](double value) { return std::floor(value); });
  std::vector<std::size_t> places(values.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  std::ranges::stable_sort(places,
                           [&](std::size_t a, std::size_t b) { return whole[a] > whole[b]; });
  if (order == SortOrder::ascending) std::ranges::reverse(places);
  return places;
}

}  // namespace kelvora
