// Where the keyboard goes in the main window. It has four parts, in their order on the screen: the
// toolbar with the commands, the child window in front, the toolbar with the arrangements and the
// status bar. Tab goes through a part and on to the next; F6 goes from part to part, Ctrl+Tab from
// child window to child window.
#include <algorithm>

#include <QShortcut>
#include <QStatusBar>

#include "core/frame/child_area_panel.h"
#include "core/frame/main_window.h"
#include "platform/qt/key_sequence.h"

namespace kelvora {
namespace {

enum Part { kCommands, kWindows, kArrangements, kStatus, kPartCount };

int Neighbour(int place, int count, bool next) {
  return (place + (next ? 1 : count - 1)) % count;
}

}  // namespace

void MainWindow::BuildFocusKeys() {
  const auto on = [this](BoundKey use, auto run) {
    auto* const shortcut = new QShortcut(SequenceOf(use), this);
    connect(shortcut, &QShortcut::activated, this, run);
  };
  on(BoundKey::next_part, [this] { GoToPart(true, Qt::ShortcutFocusReason); });
  on(BoundKey::previous_part, [this] { GoToPart(false, Qt::ShortcutFocusReason); });
  on(BoundKey::next_window, [this] { GoToWindow(true); });
  on(BoundKey::previous_window, [this] { GoToWindow(false); });
  // The menu of a child window's frame, by which it is moved and sized without a mouse.
  on(BoundKey::window_menu, [this] {
    if (QMdiSubWindow* const frame = area_->activeSubWindow()) frame->showSystemMenu();
  });
}

bool MainWindow::focusNextPrevChild(bool next) {
  GoToPart(next, next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

// Nothing in focus counts as the status bar, so that the toolbar comes next.
int MainWindow::PartInFocus() const {
  const QWidget* const focus = focusWidget();
  if (focus == nullptr) return kStatus;
  if (menu_toolbar_->isAncestorOf(focus)) return kCommands;
  if (focus == area_ || area_->isAncestorOf(focus)) return kWindows;
  if (Toolbar_quickscreens_->isAncestorOf(focus)) return kArrangements;
  return kStatus;
}

void MainWindow::GoToPart(bool next, Qt::FocusReason reason) {
  int part = PartInFocus();
  for (int tried = 0; tried < kPartCount; ++tried) {
    part = Neighbour(part, kPartCount, next);
    if (EnterPart(part, next, reason)) return;
  }
}

bool MainWindow::EnterPart(int part, bool next, Qt::FocusReason reason) {
  switch (part) {
    case kCommands:
      return menu_toolbar_->TakeFocus(reason);
    case kArrangements:
      return Toolbar_quickscreens_->TakeFocus(reason);
    case kWindows: {
      const auto frames = FramesInOrder();
      if (frames.empty()) return false;
      const auto active = std::ranges::find(frames, area_->activeSubWindow());
      ChildFrame& frame = active == frames.end() ? *frames.front() : **active;
      if (reason == Qt::ShortcutFocusReason) {
        frame.TakeFocus();
      } else {
        frame.TakeFocusByTab(next);
      }
      return true;
    }
    default:
      statusBar()->setFocus(reason);
      return true;
  }
}

std::vector<ChildFrame*> MainWindow::FramesInOrder() const {
  std::vector<ChildFrame*> frames;
  for (QMdiSubWindow* const frame : area_->subWindowList()) {
    if (!frame->isHidden()) frames.push_back(static_cast<ChildFrame*>(frame));
  }
  std::ranges::stable_sort(frames, {}, &ChildFrame::Place);
  return frames;
}

void MainWindow::GoToWindow(bool next) {
  const auto frames = FramesInOrder();
  if (frames.empty()) return;
  const auto active = std::ranges::find(frames, area_->activeSubWindow());
  const auto count = static_cast<int>(frames.size());
  const int here = active == frames.end() ? count - 1 : static_cast<int>(active - frames.begin());
  frames[static_cast<std::size_t>(Neighbour(here, count, next))]->TakeFocus();
}

}  // namespace kelvora
