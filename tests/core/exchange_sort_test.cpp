#include "core/exchange_sort.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>
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

// The rule itself, step by step.
Places ByTheRule(std::vector<double> keys) {
  Places places(keys.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  for (std::size_t i = 0; i < keys.size(); ++i) {
    for (std::size_t j = 0; j < keys.size(); ++j) {
      if (i == j || !(keys[i] < keys[j])) continue;
      std::swap(keys[i], keys[j]);
      std::swap(places[i], places[j]);
    }
  }
  return places;
}

TEST(ExchangeSort, LeavesTheOrderOfThePlainLoops) {
  std::mt19937 random(15);
  for (int round = 0; round < 3000; ++round) {
    std::vector<double> keys(random() % 40);
    const unsigned different = 1 + random() % 40;
    for (double& key : keys) key = static_cast<double>(random() % different) - 3;
    EXPECT_EQ(ExchangeSorted(keys, NeverStop), ByTheRule(keys)) << round;
  }
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const std::vector<double> odd = {0.0, kInfinity, -0.0, 1, -kInfinity, kInfinity, 0.0, -1, 1};
  EXPECT_EQ(ExchangeSorted(odd, NeverStop), ByTheRule(odd));
  const std::vector<double> many = ManyTies(1500, 2);
  EXPECT_EQ(ExchangeSorted(many, NeverStop), ByTheRule(many));
}

TEST(ExchangeSort, TakesLongListsWhateverTheirTies) {
  // The plain loops would compare 4 * 10^10 pairs each.
  std::mt19937 random(16);
  for (const unsigned different : {1u, 2u, 450u, 200'000u}) {
    std::vector<double> keys(200'000);
    for (double& key : keys) key = static_cast<double>(random() % different);
    Places places = ExchangeSorted(keys, NeverStop);
    EXPECT_TRUE(std::ranges::is_sorted(places, {}, [&](std::size_t i) { return keys[i]; }));
    std::ranges::sort(places);
    for (std::size_t i = 0; i < places.size(); ++i) ASSERT_EQ(places[i], i);
  }
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
