#include "platform/qt/tool_bar.h"

#include <algorithm>

#include <QActionEvent>
#include <QApplication>
#include <QKeyEvent>

#include "platform/qt/look.h"

namespace kelvora {

ToolBar::ToolBar(QWidget* parent, const char* object_name) : QToolBar(parent) {
  NameWidget(this, object_name);
  setContextMenuPolicy(Qt::PreventContextMenu);
  more_ = findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
  Q_ASSERT(more_ != nullptr);
  Adopt(more_);
}

void ToolBar::SetNames(const QString& bar, const QString& more) {
  setAccessibleName(bar);
  more_->setAccessibleName(more);
  more_->setToolTip(more);
}

void ToolBar::actionEvent(QActionEvent* event) {
  if (event->type() == QEvent::ActionRemoved) {
    std::erase(buttons_, widgetForAction(event->action()));
  }
  QToolBar::actionEvent(event);
  if (event->type() != QEvent::ActionAdded) return;
  auto* const button = qobject_cast<QToolButton*>(widgetForAction(event->action()));
  if (button != nullptr) Adopt(button);  // a separator is none
}

void ToolBar::Adopt(QToolButton* button) {
  button->setFocusPolicy(Qt::NoFocus);
  button->installEventFilter(this);
  buttons_.insert(buttons_.end() - (buttons_.empty() ? 0 : 1), button);
  KeepStop();
}

std::vector<QToolButton*> ToolBar::UsableButtons() const {
  std::vector<QToolButton*> usable;
  std::ranges::copy_if(buttons_, std::back_inserter(usable), [this](const QToolButton* button) {
    return button->isEnabled() && button->isVisibleTo(this);
  });
  return usable;
}

void ToolBar::KeepStop() {
  const auto usable = UsableButtons();
  if (used_ && std::ranges::find(usable, stop_.data()) != usable.end()) return;
  used_ = false;
  MakeStop(usable.empty() ? nullptr : usable.front());
}

void ToolBar::MakeStop(QToolButton* stop) {
  stop_ = stop;
  for (QToolButton* const button : buttons_) {
    button->setFocusPolicy(button == stop ? Qt::TabFocus : Qt::NoFocus);
  }
}

bool ToolBar::TakeFocus(Qt::FocusReason reason) {
  KeepStop();
  if (stop_ == nullptr || !isVisible()) return false;
  stop_->setFocus(reason);
  return true;
}

bool ToolBar::eventFilter(QObject* object, QEvent* event) {
  auto* const button = static_cast<QToolButton*>(object);
  switch (event->type()) {
    case QEvent::EnabledChange:
    case QEvent::Show:
    case QEvent::ShowToParent:
    case QEvent::Hide:
    case QEvent::HideToParent:
      KeepStop();
      break;
    case QEvent::FocusIn:
      used_ = true;
      MakeStop(button);
      break;
    case QEvent::FocusOut:
      QMetaObject::invokeMethod(this, &ToolBar::FoldWhenLeft, Qt::QueuedConnection);
      break;
    case QEvent::KeyPress:
      if (TakeKey(*button, *static_cast<QKeyEvent*>(event))) return true;
      break;
    default:
      break;
  }
  return QToolBar::eventFilter(object, event);
}

// What was unfolded to show all buttons lies over what is below; the toolkit takes it back when the
// pointer leaves.
void ToolBar::FoldWhenLeft() {
  if (more_->isChecked() && !isAncestorOf(QApplication::focusWidget()) && !underMouse()) {
    more_->click();
  }
}

bool ToolBar::TakeKey(QToolButton& button, const QKeyEvent& event) {
  if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  const int ahead = layoutDirection() == Qt::RightToLeft ? -1 : 1;
  switch (event.key()) {
    case Qt::Key_Right:
      Step(button, ahead);
      return true;
    case Qt::Key_Left:
      Step(button, -ahead);
      return true;
    case Qt::Key_Home:
      UsableButtons().front()->setFocus(Qt::ShortcutFocusReason);
      return true;
    case Qt::Key_End:
      UsableButtons().back()->setFocus(Qt::ShortcutFocusReason);
      return true;
    case Qt::Key_Down:
      if (button.menu() != nullptr) button.showMenu();
      return true;
    case Qt::Key_Up:
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (button.popupMode() == QToolButton::InstantPopup) {
        button.showMenu();
      } else {
        button.click();
      }
      return true;
    default:
      return false;
  }
}

void ToolBar::Step(QToolButton& button, int steps) {
  const auto usable = UsableButtons();
  const auto count = static_cast<int>(usable.size());
  const auto here = static_cast<int>(std::ranges::find(usable, &button) - usable.begin());
  usable[static_cast<std::size_t>((here + steps + count) % count)]->setFocus(
      Qt::ShortcutFocusReason);
}

// A button that can no longer be used, as the one that saves after saving, hands the focus to its
// neighbour: the hand that pressed it is still at the toolbar.
bool ToolBar::focusNextPrevChild(bool next) {
  const auto here = std::ranges::find(buttons_, QApplication::focusWidget());
  if (here == buttons_.end() || (*here)->isEnabled()) return QToolBar::focusNextPrevChild(next);
  const auto usable = UsableButtons();
  if (usable.empty()) return QToolBar::focusNextPrevChild(next);
  const auto behind = std::ranges::find_if(usable, [&](const QToolButton* button) {
    return std::ranges::find(buttons_, button) > here;
  });
  (behind == usable.end() ? usable.back() : *behind)->setFocus(Qt::ShortcutFocusReason);
  return true;
}

}  // namespace kelvora
