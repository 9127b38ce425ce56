#include "analysis/day_averages.h"

#include "nutrition/numbers.h"

namespace kelvora {
namespace {

constexpr double kBottom = 100;

// The series of kilojoules, kilocalories, unsaturated fat, saturated fat, sodium, protein and
// carbohydrates.
constexpr std::array<std::size_t, std::tuple_size_v<DayTotals>> kRequirementOrder = {1, 2, 3, 4,
                                                                                     7, 6, 5};

float Average(const std::vector<Text>& fields, float days) {
  float sum = 0;
  for (const Text& field : fields) {
    if (field > "0") sum = Single(sum + Single(Val(field)));
  }
  return Single(sum / days);
}

}  // namespace

void ConvertPercentages(DaySeries& series, std::size_t index) {
  std::vector<double> values;
  for (const Text& field : series.L_data_1[index]) {
    if (field.empty()) break;
    values.push_back(Val(field));
  }
  std::vector<double>& heights = series.L_data_2[index];
  heights.clear();
  if (values.empty()) return;
  double largest = values.front();
  for (const double value : values) {
    if (value > largest) largest = value;
  }
  if (largest == 0) largest = 1;
  heights.reserve(values.size());
  for (const double value : values) {
    heights.push_back(Val(Str(kBottom - value * kBottom / largest, ".")));
  }
}

std::optional<DayTotals> AveragesOf(const DaySeries& series) {
  const std::size_t days = series.L_data_1[kRequirementOrder.front()].size();
  if (series.keys.empty() || days == 0) return std::nullopt;
  DayTotals averages{};
  for (std::size_t row = 0; row < averages.size(); ++row) {
    averages[row] = Average(series.L_data_1[kRequirementOrder[row]], static_cast<float>(days));
  }
  return averages;
}

}  // namespace kelvora
