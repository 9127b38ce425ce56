#include "core/exchange_sort.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace kelvora {
namespace {

using Places = std::vector<std::size_t>;

bool NeverStop() {
  return false;
}

// Values with many ties.
std::vector<double> ManyTies(std::size_t count, unsigned seed) {
  std::mt19937 random(seed);
  std::vector<double> values(count);
  for (double& value : values) value = static_cast<double>(random() % 400) / 10 - 5;
  return values;
}

TEST(ExchangeSort, LeavesItsOwnOrderOfEqualKeys) {
  // The 1 at the end changes places with the first 3, which so comes behind its equal.
  EXPECT_EQ(ExchangeSorted({3, 3, 1}, NeverStop), (Places{2, 1, 0}));
  EXPECT_EQ(ExchangeSorted({2, 1, 1}, NeverStop), (Places{1, 2, 0}));
  EXPECT_EQ(ExchangeSorted({}, NeverStop), Places{});
  EXPECT_EQ(ExchangeSorted({7}, NeverStop), Places{0});
}

TEST(ExchangeSort, PausesOnceAPassAndSortsAnything) {
  std::vector<double> keys = ManyTies(300, 1);
  int pauses = 0;
  const Pause count = [&pauses] {
    ++pauses;
    return false;
  };
  std::vector<double> sorted;
  for (const std::size_t place : ExchangeSorted(keys, count)) sorted.push_back(keys[place]);
  EXPECT_EQ(pauses, 300);
  std::ranges::sort(keys);
  EXPECT_EQ(sorted, keys);
}

TEST(ExchangeSort, EndsAtOnceWhenItIsNotWantedAnyMore) {
  int pauses = 0;
  EXPECT_EQ(ExchangeSorted({3, 2, 1, 5}, [&pauses] { return ++pauses == 2; }).size(), 4u);
  EXPECT_EQ(pauses, 2);
}

}  // namespace
}  // namespace kelvora
