// Arrangements of the child windows: which are closed, where they go, which are opened.
#pragma once

#include "core/program.h"

namespace kelvora {

// Arrangement A, "Show all default screens": closes every open window, takes the default geometry
// and opens the three consumption windows and the food lists.
void ShowDefaultScreens(Program& program);

// Arrangement B, "Show default screens and small summary".
void ShowScreensWithSummary(Program& program);

// The arrangement that setting `chk_all_screens` asks for.
void ApplyChosenArrangement(Program& program);

// "Default screen values": closes every open window; all of them open at their defaults again.
void ResetScreens(Program& program);

// Opens a closed window and closes an open one.
void ToggleWindow(Program& program, WindowId id);

// The command of the day summary: opens it, closes it in its normal layout, and takes it from the
// small layout to the normal one.
void ShowOrHideDaySummary(Program& program);

// Computes the default geometry from the main window's size of the moment.
void ComputeDefaultGeometry(Program& program);

}  // namespace kelvora
