#include "analysis/day_averages.h"

#include <gtest/gtest.h>
#include <system_error>

namespace kelvora {
namespace {

using Heights = std::vector<double>;

Heights HeightsOf(std::vector<Text> fields) {
  DaySeries series;
  series.L_data_1[3] = std::move(fields);
  ConvertPercentages(series, 3);
  return series.L_data_2[3];
}

DaySeries DaysWith(std::size_t index, const std::vector<Text>& fields) {
  DaySeries series;
  series.keys.assign(fields.size(), "040305");
  for (auto& other : series.L_data_1) other.assign(fields.size(), "");
  series.L_data_1[index] = fields;
  return series;
}

float AverageKj(const std::vector<Text>& fields) {
  return AveragesOf(DaysWith(1, fields)).value()[0];
}

TEST(Percentages, HaveTheLargestValueAtTheTopAndZeroAtTheBottom) {
  EXPECT_EQ(HeightsOf({"1000", "2000", "500", "0"}), (Heights{50, 0, 75, 100}));
}

TEST(Percentages, OfZerosLieAtTheBottom) {
  EXPECT_EQ(HeightsOf({"0", "0"}), (Heights{100, 100}));
  EXPECT_EQ(HeightsOf({"abc"}), (Heights{100}));
}

TEST(Percentages, EndAtTheFirstEmptyField) {
  // What comes behind it is no maximum either.
  EXPECT_EQ(HeightsOf({"5", "10", "", "1000"}), (Heights{50, 0}));
  EXPECT_EQ(HeightsOf({"", "7"}), Heights{});
  EXPECT_EQ(HeightsOf({}), Heights{});
}

TEST(Percentages, AreReadFromFifteenDigits) {
  // 100 - 1 * 100 / 3 is 66.666666666666671... in double precision.
  EXPECT_EQ(HeightsOf({"3", "1"}), (Heights{0, 66.6666666666667}));
}

TEST(Percentages, TakeNegativeValuesAsTheyCome) {
  // The largest is -2: 100 - (-4 * 100 / -2) = -100. With zero as the largest it counts as 1.
  EXPECT_EQ(HeightsOf({"-4", "-2"}), (Heights{-100, 0}));
  EXPECT_EQ(HeightsOf({"-4", "0"}), (Heights{500, 100}));
}

TEST(Percentages, OfWhatNoNumberHoldsFailAndKeepTheOnesBefore) {
  DaySeries series;
  series.L_data_1[0] = {"1", Text(400, '9')};
  EXPECT_THROW(ConvertPercentages(series, 0), std::system_error);
  EXPECT_EQ(series.L_data_2[0], (Heights{100}));
}

TEST(Averages, CountEveryDayInTheDivisor) {
  EXPECT_EQ(AverageKj({"3000", "0"}), 1500);
  EXPECT_EQ(AverageKj({"3000", "", ""}), 1000);
}

TEST(Averages, TakeOnlyTextsThatComeBehindZero) {
  // "." and "-" and blanks come before "0" as characters; letters behind it, but count as zero.
  EXPECT_EQ(AverageKj({"8", ".5", "-4", " 9"}), 2);
  EXPECT_EQ(AverageKj({"8", "abc"}), 4);
  EXPECT_EQ(AverageKj({"0.5", "0"}), 0.25F);
}

TEST(Averages, AreSumsOfSingles) {
  // One more than 2^24 is no single. 16777216 / 3 = 5592405.33..., and singles there are 0.5 apart.
  EXPECT_EQ(AverageKj({"16777216", "1", "1"}), 5592405.5F);
  // 16777217 itself is read as a single before it is added.
  EXPECT_EQ(AverageKj({"16777217"}), 16777216.0F);
}

TEST(Averages, StandInTheOrderOfTheRequirements) {
  DaySeries series;
  series.keys = {"040305"};
  for (std::size_t k = 0; k < kSeriesCount; ++k) series.L_data_1[k] = {std::to_string(10 + k)};
  // Kilojoules, kilocalories, both fats, sodium, protein, carbohydrates.
  EXPECT_EQ(AveragesOf(series), (DayTotals{11, 12, 13, 14, 17, 16, 15}));
}

TEST(Averages, OfNoDaysAreNone) {
  EXPECT_EQ(AveragesOf({}), std::nullopt);
  DaySeries without_keys = DaysWith(1, {"5"});
  without_keys.keys.clear();
  EXPECT_EQ(AveragesOf(without_keys), std::nullopt);
  DaySeries without_fields = DaysWith(1, {});
  without_fields.keys = {"040305"};
  EXPECT_EQ(AveragesOf(without_fields), std::nullopt);
}

TEST(Averages, ThatNoSingleHoldsFail) {
  EXPECT_THROW((void)AveragesOf(DaysWith(5, {"9" + Text(39, '0')})), std::system_error);
}

}  // namespace
}  // namespace kelvora
