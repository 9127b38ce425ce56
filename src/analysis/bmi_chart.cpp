#include "analysis/bmi_chart.h"

#include "days/day_form.h"
#include "language/day_summary_texts.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"
#include "nutrition/units.h"

namespace kelvora {
namespace {

using namespace day_summary_text;

constexpr double kLowestIdeal = 18.5;
constexpr double kHighestIdeal = 25;
constexpr std::size_t kIdealLength = 5;

constexpr double kStepShare = 0.05;  // of the panel's height
constexpr double kStepOverlap = 20;
constexpr double kStepWidth = 1200;
constexpr double kLadderMargin = 240;
constexpr double kBarWidth = 30;
constexpr double kArrowGap = 60;

class Texts {
 public:
  explicit Texts(Program& program)
      : texts_(program.texts),
        units_(UnitsOf(program)),
        separator_(units_.locale.DecimalSeparator()),
        metric_(UnitSystemOf(program) == UnitSystem::metric) {}

  void ShowHeight(const Text& height, BmiChart& chart) const {
    chart.lbl_lengte = ": " + FormatNumber(Single(ReadStoredNumber(height)), "#.00", separator_) +
                       " " + texts_[kUnitMeter];
    Text metres = height;
    const Text feet = Meter_To_Feet_Inch(metres, HeightPart::feet, units_);
    const Text inches = Meter_To_Feet_Inch(metres, HeightPart::inches, units_);
    chart.lbl_lengte_feet = ": " + feet + "'" + inches + "'' " + texts_[kUnitFeetInch];
  }

  void ShowWeight(const Text& weight, BmiChart& chart) const {
    const Text kilograms = FormatNumber(Single(ReadStoredNumber(weight)), "##0.00", separator_);
    ShowBoth(kilograms, weight, chart.lbl_gewicht, chart.lbl_gewicht_lbs);
  }

  // Worked out in double precision and put into a single once, so that 1.80 gives 81 and not a
  // little less.
  void ShowIdeal(double height, BmiChart& chart) const {
    const auto show = [&](double index, Text& first, Text& second) {
      const Text weight = Str(Single(height * height * index), ".");
      ShowBoth(weight.substr(0, kIdealLength), weight, first, second);
    };
    show(kLowestIdeal, chart.lbl_ideaalmin, chart.lbl_ideaalmin_lbs);
    show(kHighestIdeal, chart.lbl_ideaalmax, chart.lbl_ideaalmax_lbs);
  }

  [[nodiscard]] Text ScoreOf(Text height, Text weight) const {
    return CommaToPoint(Bereken_BMI(height, weight, units_));
  }

 private:
  // A weight in the two units of the moment, of which the first is that of the settings.
  void ShowBoth(const Text& printed_kilograms, Text weight, Text& first, Text& second) const {
    const Text pounds = ": " + Kg_To_Lbs(weight, units_) + " " + texts_[kUnitPounds];
    if (metric_) {
      first = ": " + printed_kilograms + " " + texts_[kUnitKilogram];
      second = pounds;
    } else {
      first = pounds;
      second = ": " + Kg_To_Stones(weight, units_) + " " + texts_[kUnitStones];
    }
  }

  const TextTables& texts_;
  const UnitContext units_;
  const Text separator_;
  const bool metric_;
};

}  // namespace

std::optional<std::size_t> StepOf(double bmi) {
  std::optional<std::size_t> step;
  for (std::size_t i = kBmiLadder.size(); i-- > 0;) {
    if (kBmiLadder[i].above < bmi && bmi < kBmiLadder[i].below) step = i;
  }
  return step;
}

void Toon_BMI(Program& program, BmiChart& chart) {
  program.Guard("#F9-12", [&] {
    const Text height(program.store.L_gegevens[HeaderRow::kHeight]);
    const Text weight(program.store.L_gegevens[HeaderRow::kWeight]);
    if (height.empty() || weight.empty()) return;
    const Texts texts(program);
    texts.ShowHeight(height, chart);
    texts.ShowWeight(weight, chart);
    const Text score = texts.ScoreOf(height, weight);
    if (score.empty()) return;  // it has said why
    chart.lbl_bmiscore = ": " + score;
    texts.ShowIdeal(ReadStoredNumber(height), chart);
    if (const auto step = StepOf(Val(score))) chart.step = step;
  });
}

Text ArrowDescription(const BmiChart& chart) {
  if (!chart.step) return {};
  const Text score = chart.lbl_bmiscore.substr(chart.lbl_bmiscore.find_first_not_of(": "));
  const LadderStep& step = kBmiLadder[*chart.step];
  if (*chart.step == 0) return score + " (> 25,50)";
  if (step.caption.empty()) return score + " (< 18,50)";
  const LadderStep& next = kBmiLadder[*chart.step - 1];
  const Text end(next.caption.empty() ? "25,50" : next.caption);
  return score + " (" + Text(step.caption) + " - " + end + ")";
}

LadderPlaces PlaceLadder(double panel_width, double panel_height) {
  LadderPlaces places;
  const double height = panel_height * kStepShare;
  const double distance = height - kStepOverlap;
  const double whole = height + distance * (kBmiLadder.size() - 1);
  double top = (panel_height - whole) / 2;
  for (TwipRect& step : places.steps) {
    step = {panel_width - kStepWidth - kLadderMargin, top, kStepWidth, height};
    top += distance;
  }
  const TwipRect& first = places.steps.front();
  places.lbl_pijlbar = {first.left - kBarWidth, first.top, kBarWidth, whole};
  return places;
}

TwipRect PlaceArrow(const LadderPlaces& places, std::size_t step) {
  const TwipRect& label = places.steps[step];
  return {places.steps.front().left - kArrowWidth - kArrowGap,
          label.height / 2 + label.top - kArrowHeight / 2, kArrowWidth, kArrowHeight};
}

}  // namespace kelvora
