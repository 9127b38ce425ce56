#include "core/frame/arrangement.h"

#include "core/small_geometry.h"

namespace kelvora {
namespace {

void CloseAllWindows(Program& program) {
  for (std::size_t i = 0; i < kWindowCount; ++i) {
    WindowView* const window = program.windows.Find(static_cast<WindowId>(i));
    if (window != nullptr) window->CloseWindow();
  }
}

void Open(Program& program, std::initializer_list<WindowId> ids) {
  if (program.windows.core == nullptr) return;
  for (const WindowId id : ids) program.windows.core->OpenWindow(id);
}

// Runs the steps of an arrangement. None of its windows was chosen by anybody, so the active part
// of the day stays what it is; and whoever wants to enter food finds the keys in the search box.
template <class Steps>
void Arrange(Program& program, Steps steps) {
  const DayPart active = program.day.active_part;
  steps();
  program.day.active_part = active;
  FoodListsView* const lists = program.windows.lists;
  if (lists == nullptr) return;
  lists->ShowActivePart();
  lists->FocusSearch();
}

}  // namespace

void ComputeDefaultGeometry(Program& program) {
  if (program.windows.core == nullptr) return;
  const MainWindowSize size = program.windows.core->Size();
  program.windows.geometry = Fitted(DefaultGeometry(size), size);
}

void ShowDefaultScreens(Program& program) {
  Arrange(program, [&program] {
    ResetScreens(program);
    Open(program, {WindowId::morning, WindowId::afternoon, WindowId::evening, WindowId::lists});
  });
}

void ShowScreensWithSummary(Program& program) {
  Arrange(program, [&program] {
    CloseAllWindows(program);
    if (program.windows.core == nullptr) return;
    const MainWindowSize size = program.windows.core->Size();
    program.windows.geometry = Fitted(GeometryWithSummary(size), size);
    Open(program, {WindowId::morning, WindowId::afternoon, WindowId::evening, WindowId::lists,
                   WindowId::day_summary});
  });
}

void ApplyChosenArrangement(Program& program) {
  if (program.settings[Setting::chk_all_screens] == "1") {
    ShowScreensWithSummary(program);
  } else {
    ShowDefaultScreens(program);
  }
}

void ResetScreens(Program& program) {
  CloseAllWindows(program);
  ComputeDefaultGeometry(program);
}

void ToggleWindow(Program& program, WindowId id) {
  if (WindowView* const window = program.windows.Find(id)) {
    window->CloseWindow();
  } else if (program.windows.core != nullptr) {
    program.windows.core->OpenWindow(id);
  }
}

void ShowOrHideDaySummary(Program& program) {
  OpenWindows& windows = program.windows;
  const bool was_small = windows.day_summary != nullptr && windows.geometry.SummarySmall == 1;
  ToggleWindow(program, WindowId::day_summary);
  if (!was_small || windows.core == nullptr) return;
  windows.geometry.day_summary = NormalSummaryRecord(windows.core->Size());
  windows.geometry.SummarySmall = 0;
  windows.core->OpenWindow(WindowId::day_summary);
}

}  // namespace kelvora
