#include "core/column_sort.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "core/text.h"

namespace kelvora {
namespace {

using Rows = std::vector<std::uint32_t>;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// The insertion row by row, with its jump to a later place to begin the search at.
Rows OrderByInsertion(const std::vector<double>& values, SortOrder order) {
  Rows rows;
  for (std::uint32_t row = 0; row < values.size(); ++row) {
    std::size_t place = 0;
    if (rows.size() >= 30) {
      for (const double share : {0.2, 0.4, 0.6, 0.8}) {
        const auto jump = static_cast<std::size_t>(static_cast<double>(rows.size()) * share);
        if (values[rows[jump]] > values[row]) place = jump;
      }
    }
    while (place < rows.size() && values[rows[place]] >= values[row]) ++place;
    rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(place), row);
  }
  if (order == SortOrder::ascending) std::ranges::reverse(rows);
  return rows;
}

TEST(OrderByWholeValue, EqualValuesKeepTheirOrderDescendingAndTurnItAscending) {
  const std::vector<double> values = {5, 9, 5, 1, 9, 5};
  EXPECT_EQ(OrderByWholeValue(values, SortOrder::descending), (Rows{1, 4, 0, 2, 5, 3}));
  EXPECT_EQ(OrderByWholeValue(values, SortOrder::ascending), (Rows{3, 5, 2, 0, 4, 1}));
}

TEST(OrderByWholeValue, OfNothingAndOfOneRow) {
  EXPECT_EQ(OrderByWholeValue({}, SortOrder::ascending), Rows());
  EXPECT_EQ(OrderByWholeValue({-3}, SortOrder::descending), Rows{0});
}

TEST(OrderByWholeValue, IsThatOfTheInsertionWhateverTheValuesAndTheirTies) {
  std::mt19937 random(7);
  for (const double span : {2.0, 10.0, 500.0, 1e6, 1e12}) {
    for (const std::size_t count : {2u, 29u, 30u, 31u, 32u, 100u, 700u}) {
      std::uniform_real_distribution<double> pick(-span, span);
      std::vector<double> values(count);
      std::ranges::generate(values, [&] { return std::floor(pick(random)); });
      for (const SortOrder order : {SortOrder::ascending, SortOrder::descending}) {
        EXPECT_EQ(OrderByWholeValue(values, order), OrderByInsertion(values, order))
            << span << " " << count;
      }
    }
  }
}

TEST(OrderByWholeValue, SortsValuesFarApartAndInfiniteOnes) {
  EXPECT_EQ(
      OrderByWholeValue({1, kInfinity, -kInfinity, 1e300, 1, kInfinity}, SortOrder::descending),
      (Rows{1, 5, 3, 0, 4, 2}));
  EXPECT_EQ(OrderByWholeValue({kInfinity, kInfinity}, SortOrder::ascending), (Rows{1, 0}));
}

TEST(OrderByText, IsWithoutRegardToCaseAndAccents) {
  const std::vector<std::string_view> texts = {"pear",
                                               "\xC9"
                                               "clair",
                                               "Apple",
                                               "apple pie",
                                               "eclairs",
                                               "Zest",
                                               ""};
  EXPECT_EQ(OrderByText(texts, SortOrder::ascending), (Rows{6, 2, 3, 1, 4, 0, 5}));
  EXPECT_EQ(OrderByText(texts, SortOrder::descending), (Rows{5, 0, 4, 1, 3, 2, 6}));
}

TEST(OrderByText, ComparesWhatStandsBehindTheFirstLetters) {
  const std::vector<std::string_view> texts = {"bread roll, white", "bread roll, brown", "bread ro",
                                               "bread roll"};
  EXPECT_EQ(OrderByText(texts, SortOrder::ascending), (Rows{2, 3, 1, 0}));
}

TEST(OrderByText, EqualTextsKeepTheirOrderBothWays) {
  const std::vector<std::string_view> texts = {"b", "A", "a", "B"};
  EXPECT_EQ(OrderByText(texts, SortOrder::ascending), (Rows{1, 2, 0, 3}));
  EXPECT_EQ(OrderByText(texts, SortOrder::descending), (Rows{0, 3, 1, 2}));
}

TEST(OrderByText, IsThatOfAPlainSortOfRandomTexts) {
  std::mt19937 random(11);
  std::uniform_int_distribution<int> letter('a', 'c');
  std::uniform_int_distribution<int> length(0, 12);
  std::vector<std::string> kept(2000);
  for (std::string& text : kept) {
    text.resize(static_cast<std::size_t>(length(random)));
    std::ranges::generate(text, [&] { return static_cast<char>(letter(random)); });
  }
  const std::vector<std::string_view> texts(kept.begin(), kept.end());
  Rows expected(texts.size());
  for (std::uint32_t i = 0; i < expected.size(); ++i) expected[i] = i;
  std::ranges::stable_sort(expected, {}, [&](std::uint32_t row) { return texts[row]; });
  EXPECT_EQ(OrderByText(texts, SortOrder::ascending), expected);
}

}  // namespace
}  // namespace kelvora
