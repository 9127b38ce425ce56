#include "analysis/summary_size.h"

#include <algorithm>

namespace kelvora {
namespace {

constexpr int kStep = 2000;  // by which the top moves from one size to the other

// What the bars of a size leave free: above the first, below the last, and between the two of a
// row.
struct BarMargins {
  int share;  // of the panel's height goes to one bar
  int less;
  int top;
  int bottom;
  int in_row;
  int text_width;
};
constexpr BarMargins kNormalBars{14, 84, 135, 30, 50, 2000};
constexpr BarMargins kSmallBars{15, 0, 15, 15, 0, 1700};
constexpr int kLeft = 60;

}  // namespace

WindowRecord HeldTo(const SizeLimits& limits, WindowRecord window) {
  window.width = std::clamp(window.width, limits.least_width, limits.most_width);
  window.height = std::clamp(window.height, limits.least_height, limits.most_height);
  return window;
}

WindowRecord Rescaled(const WindowRecord& window, Schermstand stand) {
  WindowRecord other = HeldTo(LimitsOf(stand), window);
  if (stand == Schermstand::small) {
    other.top += kStep;
  } else {
    // A window that stood above the top already goes no higher.
    other.top = std::max(other.top - kStep, std::min(other.top, 0));
  }
  return other;
}

std::array<int, 3> SummaryPanelWidths(AnalysisWindow window, int bar_width) {
  constexpr int kView = 1500;
  const int status = window == AnalysisWindow::day_summary ? 4000 : 2300;
  return {kView, status, std::max(0, bar_width - kView - status)};
}

BarPlaces PlaceBars(Schermstand stand, int panel_height) {
  const BarMargins& margins = stand == Schermstand::small ? kSmallBars : kNormalBars;
  BarPlaces places{.left = kLeft,
                   .height = std::max(0, panel_height / margins.share - margins.less),
                   .text_width = margins.text_width};
  const int row_height = 2 * places.height + margins.in_row;
  const int room = panel_height - margins.top - margins.bottom - row_height;
  const int last_row = static_cast<int>(kRequirementRows) - 1;
  for (int row = 0; row <= last_row; ++row) {
    const int top = margins.top + std::max(0, room) * row / last_row;
    places.tops[static_cast<std::size_t>(2 * row)] = top;
    places.tops[static_cast<std::size_t>(2 * row + 1)] = top + places.height + margins.in_row;
  }
  return places;
}

}  // namespace kelvora
