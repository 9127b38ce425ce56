// The sizes of the analysis windows, of which the day summary has two, and where things stand in
// them. All lengths are twips, and whole
// numbers; sizes of windows are those with their frame.
#pragma once

#include <array>

#include "analysis/requirements.h"
#include "core/geometry.h"

namespace kelvora {

// `schermstand`, which the geometry records keep as SummarySmall.
enum class Schermstand { normal, small };

struct SizeLimits {
  int least_width = 0;
  int most_width = 0;
  int least_height = 0;
  int most_height = 0;
};

inline constexpr SizeLimits kNormalLimits{8500, 11400, 4400, 11900};
inline constexpr SizeLimits kSmallLimits{7000, 11400, 2400, 2400};

[[nodiscard]] constexpr const SizeLimits& LimitsOf(Schermstand stand) {
  return stand == Schermstand::small ? kSmallLimits : kNormalLimits;
}

// The window of several days has one size.
inline constexpr SizeLimits kMultiDayLimits{9200, 11400, 5500, 11900};

// The window with its size held to the limits.
[[nodiscard]] WindowRecord HeldTo(const SizeLimits& limits, WindowRecord window);

// The window in its other size, `stand`: lower down when it becomes small, higher up when it grows
// back, but never with its top above that of the main window.
[[nodiscard]] WindowRecord Rescaled(const WindowRecord& window, Schermstand stand);

// The widths of the three panels of a window's status bar, for a bar of that width.
[[nodiscard]] std::array<int, 3> SummaryPanelWidths(AnalysisWindow window, int bar_width);

// The bars of the requirements, each row a requirement bar over a use bar, and the rows apart from
// each other. Text boxes are wider where the letters need it.
struct BarPlaces {
  int left = 0;
  int height = 0;  // of one bar; never negative
  int text_width = 0;
  std::array<int, 2 * kRequirementRows> tops{};
};
[[nodiscard]] BarPlaces PlaceBars(Schermstand stand, int panel_height);

}  // namespace kelvora
