// The two analysis windows, that of the open day and that of all days of the user. What they share
// stands once, and what differs in one row for each.
#pragma once

#include <string_view>

namespace kelvora {

enum class AnalysisWindow { day_summary, multi_day };

// Of two failure codes that of the window.
[[nodiscard]] constexpr std::string_view CodeOf(AnalysisWindow window, std::string_view day,
                                                std::string_view several) {
  return window == AnalysisWindow::day_summary ? day : several;
}

}  // namespace kelvora
