#include "analysis/trend_days.h"

#include <algorithm>
#include <cmath>

#include "days/day_form.h"
#include "language/compare_texts.h"
#include "language/day_summary_texts.h"
#include "nutrition/dates.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"

namespace kelvora {
namespace {

constexpr std::size_t kFoodWeight = 0, kKilojoules = 1, kKilocalories = 2, kSodium = 7,
                      kBodyWeight = 8;
constexpr double kLargestPrinted = 1e9;  // what is larger is shown as it is stored
constexpr std::string_view kNoValue = "-";

// The value of one day in words.
class DayValues {
 public:
  DayValues(Program& program, const DaySeries& days, std::size_t day)
      : texts_(program.texts),
        units_(UnitsOf(program)),
        system_(UnitSystemOf(program)),
        ounces_(program.settings[Setting::opt_gramoz] == "1"),
        days_(days),
        day_(day) {}

  [[nodiscard]] Text Of(std::size_t series) const {
    if (series == kKilojoules) {
      return Printed(kKilojoules, "#####0", trend_text::kPieUnitKj) + " / " +
             Printed(kKilocalories, "#####0", trend_text::kPieUnitKcal);
    }
    if (series == kBodyWeight) return BodyWeight();
    if (series == kFoodWeight && ounces_) return Ounces();
    if (series == kFoodWeight) return Printed(series, "#####0", trend_text::kPieUnitGram);
    return Printed(series, series == kSodium ? "##0.000" : "##0.00", trend_text::kPieUnitGram);
  }

 private:
  [[nodiscard]] const Text& Stored(std::size_t series) const {
    return days_.L_data_1[series][day_];
  }

  template <class Print>
  [[nodiscard]] Text With(std::size_t series, TextId unit, Print print) const {
    const Text& stored = Stored(series);
    if (stored.empty()) return Text(kNoValue);
    const double value = ReadStoredNumber(stored);
    const Text shown = std::fabs(value) < kLargestPrinted ? print(value) : stored;
    return (shown + " ").append(Trimmed(texts_[unit]));
  }

  [[nodiscard]] Text Printed(std::size_t series, std::string_view pattern, TextId unit) const {
    return With(series, unit, [&](double value) {
      return FormatNumber(value, pattern, units_.locale.DecimalSeparator());
    });
  }

  [[nodiscard]] Text Ounces() const {
    return With(kFoodWeight, compare_text::kUnitOunces, [&](double grams) {
      return OuncesOfGrams(grams, units_.locale.DecimalSeparator());
    });
  }

  [[nodiscard]] Text BodyWeight() const {
    namespace st = day_summary_text;
    if (system_ == UnitSystem::metric) return Printed(kBodyWeight, "##0.00", st::kUnitKilogram);
    const bool stones = system_ == UnitSystem::imperial_uk;
    return With(kBodyWeight, stones ? st::kUnitStones : st::kUnitPounds, [&](double) {
      Text kilograms = Stored(kBodyWeight);
      return stones ? Kg_To_Stones(kilograms, units_) : Kg_To_Lbs(kilograms, units_);
    });
  }

  const TextTables& texts_;
  const UnitContext units_;
  const UnitSystem system_;
  const bool ounces_;
  const DaySeries& days_;
  const std::size_t day_;
};

}  // namespace

std::vector<float> PlacesOfDays(const DaySeries& days, const TimeLine& time_line, float width) {
  std::vector<float> places;
  if (time_line.span <= 0) return places;
  if (time_line.tijdlijn_stand == kPerFile) {
    const auto steps = static_cast<double>(days.keys.size() - 1);
    for (std::size_t i = 0; i < days.keys.size(); ++i) {
      places.push_back(Single(static_cast<double>(i) / steps * width));
    }
  } else if (time_line.tijdlijn_stand == kPerDate) {
    const double twips_per_day = TwipsPerDay(time_line, width);
    for (const int since : time_line.since) places.push_back(Single(since * twips_per_day));
  }
  return places;
}

std::optional<std::size_t> NearestDay(const std::vector<float>& places, float x) {
  const auto nearest =
      std::ranges::min_element(places, {}, [x](float place) { return std::fabs(place - x); });
  if (nearest == places.end()) return std::nullopt;
  return static_cast<std::size_t>(nearest - places.begin());
}

Text DateOfDay(std::string_view key, std::string_view opt_system) {
  constexpr std::size_t kPair = 2;
  const bool six_digits =
      key.size() == 3 * kPair && key.find_first_not_of("0123456789") == key.npos;
  if (!six_digits) return Text(key);
  const Text stored = Text(key.substr(2 * kPair)).append(key, kPair, kPair).append(key, 0, kPair);
  return FormatStoredDate(stored, opt_system);
}

std::vector<DateLabel> DatesThatFit(const std::vector<float>& places, float width,
                                    float label_width, float gap) {
  if (places.empty()) return {};
  std::vector<DateLabel> labels{{0, 0}};
  const float last_left = width - label_width;
  const float least_left = label_width + gap;
  if (last_left < least_left) return labels;
  for (std::size_t day = 1; day + 1 < places.size(); ++day) {
    const float left = places[day] - label_width / 2;
    const bool behind = left >= labels.back().left + least_left;
    if (behind && left + least_left <= last_left) labels.push_back({day, left});
  }
  labels.push_back({places.size() - 1, last_left});
  return labels;
}

std::vector<Text> WordsOfDay(Program& program, const DaySeries& days, const TrendTicks& ticks,
                             std::size_t day) {
  std::vector<Text> words{DateOfDay(days.keys[day], program.settings[Setting::opt_system])};
  const DayValues values(program, days, day);
  for (std::size_t i = 0; i < kTrendLines.size(); ++i) {
    if (!ticks.Teken_lijn[i]) continue;
    const TrendLine& line = kTrendLines[i];
    words.push_back(Text(Trimmed(program.texts[line.caption])) + ": " + values.Of(line.series));
  }
  return words;
}

}  // namespace kelvora
