// Where child windows stand. All lengths are twips of the program's window layout; 15 twips are one
// device-independent pixel. The records live for one run only.
#pragma once

#include <array>

namespace kelvora {

inline constexpr int kTwipsPerPixel = 15;

[[nodiscard]] constexpr int PixelsOfTwips(int twips) {
  return twips / kTwipsPerPixel;
}
// The fewest whole pixels that are no smaller.
[[nodiscard]] constexpr int PixelsCovering(int twips) {
  return (twips + kTwipsPerPixel - 1) / kTwipsPerPixel;
}
[[nodiscard]] constexpr int TwipsOfPixels(int pixels) {
  return pixels * kTwipsPerPixel;
}

inline constexpr int kMainMinimumWidth = 12000;
inline constexpr int kMainMinimumHeight = 8600;

// A consumption window with its frame is never smaller.
inline constexpr int kConsumptionMinimumWidth = 5000;
inline constexpr int kConsumptionMinimumHeight = 2800;

// The diary with its frame is never smaller.
inline constexpr int kDiaryMinimumWidth = 6000;
inline constexpr int kDiaryMinimumHeight = 4000;

struct WindowRecord {
  int width = 0;
  int height = 0;
  int left = 0;
  int top = 0;
  bool operator==(const WindowRecord&) const = default;
};

// The four panels of the main status bar, left to right, for a main window of that width.
[[nodiscard]] std::array<int, 4> StatusPanelWidths(int main_width);

// One record per child window, and which layout the day summary has.
struct GeometryRecords {
  WindowRecord lists, diary, day_summary, multi_day, morning, afternoon, evening, comparison;
  int SummarySmall = 0;
  bool operator==(const GeometryRecords&) const = default;
};

// The main window as the arrangements see it.
struct MainWindowSize {
  int width = kMainMinimumWidth;
  int height = kMainMinimumHeight;
  int quick_toolbar_height = 0;
  // Of the area of the child windows; 0 while nothing is known of it.
  int area_width = 0;
  int area_height = 0;
};

// The records of arrangement A, which are also the defaults. Real values round half to even.
[[nodiscard]] GeometryRecords DefaultGeometry(const MainWindowSize& main);

// Where the day summary goes when its command takes it from the small layout to the normal one. Its
// width differs from that of the defaults, as it is meant to.
[[nodiscard]] WindowRecord NormalSummaryRecord(const MainWindowSize& main);

// The records of arrangement B: wider food lists with the small day summary below them.
[[nodiscard]] GeometryRecords GeometryWithSummary(const MainWindowSize& main);

}  // namespace kelvora
