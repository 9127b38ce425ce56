#include "core/exchange_sort.h"

#include <algorithm>
#include <numeric>

namespace kelvora {
namespace {

using Places = std::vector<std::size_t>;

// Every key's place among the different keys, the least first.
Places RanksOf(const std::vector<double>& keys) {
  Places order(keys.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::sort(order, [&](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
  Places ranks(keys.size());
  std::size_t rank = 0;
  for (std::size_t i = 0; i < order.size(); ++i) {
    if (i > 0 && keys[order[i - 1]] < keys[order[i]]) ++rank;
    ranks[order[i]] = rank;
  }
  return ranks;
}

// How many of the ranks added so far are less than one: a tree of partial sums.
class RankCounter {
 public:
  explicit RankCounter(std::size_t ranks) : sums_(ranks + 1) {}
  void Add(std::size_t rank) {
    for (std::size_t i = rank + 1; i < sums_.size(); i += i & (~i + 1)) ++sums_[i];
  }
  [[nodiscard]] std::size_t Below(std::size_t rank) const {
    std::size_t sum = 0;
    for (std::size_t i = rank; i > 0; i -= i & (~i + 1)) sum += sums_[i];
    return sum;
  }

 private:
  Places sums_;
};

// What the passes behind the first do. Each finds the entries before its own in order, the largest
// key last, and lets its own change places with the first of every greater key in turn: it comes to
// stand behind its equals, and of each greater key the first entry goes behind the others. So the
// entries of one key are kept as a ring, which is turned as often as smaller keys came in.
class Rings {
 public:
  explicit Rings(const std::vector<double>& keys)
      : ranks_(RanksOf(keys)), next_(keys.size()), rings_(keys.size()), came_in_(keys.size()) {}

  void Insert(std::size_t place) {
    const std::size_t rank = ranks_[place];
    Ring& ring = rings_[rank];
    Turn(rank);
    next_[place] = ring.size == 0 ? place : next_[ring.last];
    if (ring.size > 0) next_[ring.last] = place;
    ring.last = place;
    ++ring.size;
    came_in_.Add(rank);
  }

  [[nodiscard]] Places InOrder() {
    Places places;
    places.reserve(ranks_.size());
    for (std::size_t rank = 0; rank < rings_.size(); ++rank) {
      Turn(rank);
      const Ring& ring = rings_[rank];
      std::size_t place = ring.last;
      for (std::size_t i = 0; i < ring.size; ++i) places.push_back(place = next_[place]);
    }
    return places;
  }

 private:
  struct Ring {
    std::size_t last = 0;  // its entry behind all others; the first is the next to it
    std::size_t size = 0;
    std::size_t smaller = 0;  // how many smaller keys it has been turned for
  };

  void Turn(std::size_t rank) {
    Ring& ring = rings_[rank];
    const std::size_t smaller = came_in_.Below(rank);
    if (ring.size > 1) {
      const std::size_t turns = (smaller - ring.smaller) % ring.size;
      for (std::size_t i = 0; i < turns; ++i) ring.last = next_[ring.last];
    }
    ring.smaller = smaller;
  }

  Places ranks_;
  Places next_;  // by place, within its ring
  std::vector<Ring> rings_;
  RankCounter came_in_;
};

}  // namespace

std::vector<std::size_t> ExchangeSorted(const std::vector<double>& keys, const Pause& pause) {
  Places places(keys.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  if (places.empty()) return places;
  // The first pass brings the first of the largest keys to the front, each larger one than those
  // before it on its way.
  for (std::size_t& place : places) {
    if (keys[places.front()] < keys[place]) std::swap(places.front(), place);
  }
  Rings rings(keys);
  for (const std::size_t place : places) {
    rings.Insert(place);
    if (pause()) return places;
  }
  return rings.InOrder();
}

}  // namespace kelvora
