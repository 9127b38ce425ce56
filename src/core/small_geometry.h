// Where child windows stand in a main window that is smaller than the arrangements were made for:
// all of them within its area, and those of an arrangement beside each other, so that no title bar
// is ever covered.
#pragma once

#include "core/geometry.h"

namespace kelvora {

// True below what a screen of 1024 x 768 pixels leaves a main window, with the panels and frames
// of any desktop. There and above it the geometry of geometry.h stands.
[[nodiscard]] bool IsSmall(const MainWindowSize& main);

// The records of the arrangement that `laid_down` is of, in a small main window; in any other one
// they stay as they are.
[[nodiscard]] GeometryRecords Fitted(const GeometryRecords& laid_down, const MainWindowSize& main);

// The record, moved and if need be shrunk into the area of a small main window.
[[nodiscard]] WindowRecord Fitted(WindowRecord record, const MainWindowSize& main);

// A consumption window with its frame is never smaller in a small main window.
inline constexpr int kSmallConsumptionWidth = 4600;
inline constexpr int kSmallConsumptionHeight = 1900;

}  // namespace kelvora
