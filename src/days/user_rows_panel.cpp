#include "days/user_rows_panel.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QSignalBlocker>

#include "platform/qt/cell_tips.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {

UserRows::UserRows(Program& program, QWidget* parent) : QListWidget(parent), program_(program) {
  NameWidget(this, "lst_users");
  setItemDelegate(new CellTips(this));  // the list owns it
  const auto tell_chosen = [this] {
    if (Selected()) emit Chosen();
  };
  connect(this, &QListWidget::itemSelectionChanged, this, tell_chosen, Qt::QueuedConnection);
  connect(this, &QListWidget::itemClicked, this, &UserRows::Confirmed, Qt::QueuedConnection);
}

void UserRows::ShowUsers(std::vector<User> users) {
  const QSignalBlocker quiet(this);
  users_ = std::move(users);
  clear();
  for (const User& user : users_) {
    auto* const row = new QListWidgetItem(ToQtCell(user.name), this);  // the list owns it
    row->setSizeHint({0, RowHeight(*this)});
  }
  SelectCurrentUser();
}

void UserRows::SelectCurrentUser() {
  const auto current =
      std::ranges::find_if(users_, [this](const User& user) { return IsCurrent(program_, user); });
  if (current == users_.end()) return SelectNone();
  Select(*current);
}

void UserRows::Select(const User& user) {
  const QSignalBlocker quiet(this);
  const auto place = std::ranges::find(users_, user);
  if (place != users_.end()) setCurrentRow(static_cast<int>(place - users_.begin()));
}

void UserRows::SelectNone() {
  const QSignalBlocker quiet(this);
  clearSelection();
  setCurrentItem(nullptr);
}

std::optional<User> UserRows::Selected() const {
  const QList<QListWidgetItem*> selected = selectedItems();
  if (selected.isEmpty()) return std::nullopt;
  return users_[static_cast<std::size_t>(row(selected.front()))];
}

void UserRows::TellNow() {
  QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

void UserRows::TellNothing() {
  QCoreApplication::removePostedEvents(this, QEvent::MetaCall);
}

void UserRows::keyPressEvent(QKeyEvent* event) {
  // The space bar selects and confirms an entry, as a click on it does.
  if (event->key() == Qt::Key_Space && currentRow() >= 0) {
    setCurrentRow(currentRow());
    emit itemClicked(currentItem());
    return;
  }
  QListWidget::keyPressEvent(event);
}

}  // namespace kelvora
