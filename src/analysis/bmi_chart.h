// The body-mass index of the open day's person: texts, and an arrow on a ladder of colours. Worked
// out from the day header; where things stand is worked out from the size of the panel, in twips.
//
// The ladder's colours are all that it says: there are no names for ranges of the index.
#pragma once

#include <array>
#include <limits>
#include <optional>
#include <string_view>

#include "analysis/colour.h"
#include "core/program.h"

namespace kelvora {

struct LadderStep {
  std::string_view name;
  std::string_view caption;  // with a comma in every language, which is meant
  Colour background;
  // The arrow points here at an index between these two. Of two steps that fit the later test
  // counts, in the order of StepOf.
  double above;
  double below;
};

inline constexpr double kEndless = std::numeric_limits<double>::infinity();

// From top to bottom. The step of 19,50 begins a little early and an index of exactly 25.5 fits
// none, both of which are meant.
inline constexpr std::array kBmiLadder = {
    LadderStep{"lbl_bmi_top", "", {220, 35, 0}, 25.5, kEndless},
    LadderStep{"lbl_bmi_0", "25,00", {192, 54, 0}, 24.99, 25.5},
    LadderStep{"lbl_bmi_1", "24,50", {167, 71, 0}, 24.49, 25},
    LadderStep{"lbl_bmi_2", "24,00", {136, 92, 0}, 23.99, 24.5},
    LadderStep{"lbl_bmi_3", "23,50", {113, 108, 0}, 23.49, 24},
    LadderStep{"lbl_bmi_4", "23,00", {113, 108, 0}, 22.99, 23.5},
    LadderStep{"lbl_bmi_5", "22,50", {60, 137, 1}, 22.49, 23},
    LadderStep{"lbl_bmi_6", "22,00", {47, 149, 1}, 21.99, 22.5},
    LadderStep{"lbl_bmi_7", "21,50", {31, 163, 1}, 21.49, 22},
    LadderStep{"lbl_bmi_8", "21,00", {47, 149, 1}, 20.99, 21.5},
    LadderStep{"lbl_bmi_9", "20,50", {60, 137, 1}, 20.49, 21},
    LadderStep{"lbl_bmi_10", "20,00", {113, 108, 0}, 19.99, 20.5},
    LadderStep{"lbl_bmi_11", "19,50", {113, 108, 0}, 19.45, 20},
    LadderStep{"lbl_bmi_12", "19,00", {136, 92, 0}, 18.99, 19.5},
    LadderStep{"lbl_bmi_13", "18,50", {167, 71, 0}, 18.49, 19},
    LadderStep{"lbl_bmi_bottum", "", {192, 54, 0}, -kEndless, 18.5},
};

// The step that the arrow moves to; none if it stays where it stood. Steps are tested from the
// lowest to the highest.
[[nodiscard]] std::optional<std::size_t> StepOf(double bmi);

// What the panel shows besides its captions. It lasts: what a step leaves alone stays as it was.
struct BmiChart {
  Text lbl_lengte, lbl_lengte_feet;
  Text lbl_gewicht, lbl_gewicht_lbs;
  Text lbl_bmiscore;
  Text lbl_ideaalmin, lbl_ideaalmin_lbs;
  Text lbl_ideaalmax, lbl_ideaalmax_lbs;
  std::optional<std::size_t> step;  // where the arrow stands; nowhere before the first index
};

// Reads height and weight of the open day; without one of them nothing changes. A height of 0
// leaves what stands behind the weight as it was. A failure shows "#F9-12".
void Toon_BMI(Program& program, BmiChart& chart);

// What the arrow says, for those who hear it: the index and the range of its step.
[[nodiscard]] Text ArrowDescription(const BmiChart& chart);

// A rectangle in twips, which may have fractions.
struct TwipRect {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  [[nodiscard]] double Bottom() const { return top + height; }
  [[nodiscard]] double Right() const { return left + width; }
};

// Where the ladder stands in a panel of that size, with the bar on its left along which the arrow
// moves.
struct LadderPlaces {
  std::array<TwipRect, kBmiLadder.size()> steps;
  TwipRect lbl_pijlbar;
};
[[nodiscard]] LadderPlaces PlaceLadder(double panel_width, double panel_height);

inline constexpr double kArrowWidth = 360;
inline constexpr double kArrowHeight = 240;

// The arrow's rectangle while it stands at the step.
[[nodiscard]] TwipRect PlaceArrow(const LadderPlaces& places, std::size_t step);

}  // namespace kelvora
