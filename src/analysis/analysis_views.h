// The views of an analysis window: the buttons of its toolbar, one a view, the menus below them,
// and what its status bar says. What the windows write differently stands in tables.
//
// An entry of a menu is known by its position alone, counted from 1; what it means is up to the
// button that is down.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "analysis/requirements.h"

namespace kelvora {

enum class AnalysisView { trend, requirements, top5, consumptions, bmi };

// Entries by position; nothing is a separator.
using AnalysisMenu = std::span<const std::optional<TextId>>;

struct AnalysisButton {
  AnalysisView view;
  std::string_view panel;  // the name of what it shows
  std::string_view icon;
  TextId caption;
  TextId tip;
  TextId status;  // first panel of the status bar
  AnalysisMenu menu;
};

// From left to right; their indexes begin with 1, and the first is down when the window opens.
[[nodiscard]] std::span<const AnalysisButton> DaySummaryButtons();
[[nodiscard]] std::span<const AnalysisButton> MultiDayButtons();
[[nodiscard]] std::span<const AnalysisButton> ButtonsOf(AnalysisWindow window);

// Take the choice at a position of the menu of the requirements, of that of the pie, and of that of
// the trend. A position that means nothing changes nothing.
void ChooseRequirements(RequirementState& state, int position);
void ChooseNutrient(AnalysisState& state, int position);
void ChooseTimeLine(float& tijdlijn_stand, int position);

// The positions whose choice holds now.
[[nodiscard]] std::array<int, 2> ChosenRequirements(const RequirementState& state);
[[nodiscard]] int ChosenNutrient(const AnalysisState& state);
[[nodiscard]] int ChosenTimeLine(float tijdlijn_stand);

// The second panel of the status bar; nothing for the view of the body-mass index, which leaves it
// as it is.
[[nodiscard]] std::optional<Text> StatusOf(const Program& program, AnalysisWindow window,
                                           AnalysisView view, const RequirementState& state,
                                           std::size_t row_count);

}  // namespace kelvora
