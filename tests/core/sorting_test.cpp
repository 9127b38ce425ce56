#include "core/sorting.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace kelvora {
namespace {

using Places = std::vector<std::size_t>;

bool NeverStop() {
  return false;
}

// Values with many ties, some of them in their whole part only.
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

TEST(OrderByWholePart, PutsTheLargestFirstAndLeavesEqualsAsTheyWere) {
  // 1.2 and 1.9 are both 1.
  EXPECT_EQ(OrderByWholePart({1.2, 3, 1.9, 2}, SortOrder::descending), (Places{1, 3, 0, 2}));
  EXPECT_EQ(OrderByWholePart({1.9, 1.2}, SortOrder::descending), (Places{0, 1}));
  EXPECT_EQ(OrderByWholePart({}, SortOrder::descending), Places{});
}

TEST(OrderByWholePart, AscendingIsTheVeryReverse) {
  EXPECT_EQ(OrderByWholePart({1.2, 3, 1.9, 2}, SortOrder::ascending), (Places{2, 0, 3, 1}));
}

TEST(OrderByWholePart, TheWholePartOfANegativeValueIsTheOneBelow) {
  // -0.5 counts as -1, less than 0.5, which counts as 0.
  EXPECT_EQ(OrderByWholePart({-0.5, 0.5, -1}, SortOrder::descending), (Places{1, 0, 2}));
}

// The rule step by step: each row goes before the first with a smaller whole value, and from thirty
// rows on the search for it starts at a fifth, two, three or four fifths if a larger value stands
// there.
Places InsertedOneByOne(const std::vector<double>& values) {
  Places places;
  for (std::size_t row = 0; row < values.size(); ++row) {
    const double value = std::floor(values[row]);
    std::size_t at = 0;
    if (places.size() >= 30) {
      for (const double share : {0.2, 0.4, 0.6, 0.8}) {
        const auto start = static_cast<std::size_t>(static_cast<double>(places.size()) * share);
        if (std::floor(values[places[start]]) > value) at = start;
      }
    }
    while (at < places.size() && std::floor(values[places[at]]) >= value) ++at;
    places.insert(places.begin() + static_cast<std::ptrdiff_t>(at), row);
  }
  return places;
}

TEST(OrderByWholePart, IsTheOrderOfInsertingRowByRow) {
  for (const unsigned seed : {1u, 2u, 3u}) {
    for (const std::size_t count : {1u, 29u, 30u, 31u, 500u}) {
      const std::vector<double> values = ManyTies(count, seed);
      EXPECT_EQ(OrderByWholePart(values, SortOrder::descending), InsertedOneByOne(values));
    }
  }
}

}  // namespace
}  // namespace kelvora
