#include "days/day_users_panel.h"

#include <functional>
#include <utility>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "language/day_settings_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace day_settings_text;

constexpr int kUsersWidth = 200;

// The space bar selects and confirms an entry, as a click on it does.
class UserList : public QListWidget {
 public:
  UserList(QWidget* parent, std::function<void()> confirm)
      : QListWidget(parent), confirm_(std::move(confirm)) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Space) setCurrentRow(currentRow());
    if (event->key() == Qt::Key_Space && !selectedItems().isEmpty()) return confirm_();
    QListWidget::keyPressEvent(event);
  }

 private:
  std::function<void()> confirm_;
};

QToolButton* NewToolButton(QWidget* bar, const char* name, std::string_view icon) {
  auto* const button = new QToolButton(bar);
  NameWidget(button, name);
  button->setIcon(IconNamed(icon));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  bar->layout()->addWidget(button);
  return button;
}

// The same words for the eye, the pointer and assistive tools.
void SetTip(QWidget* widget, std::string_view text) {
  widget->setToolTip(ToQt(text));
  widget->setAccessibleName(ToQt(text));
}

}  // namespace

DayUsersPanel::DayUsersPanel(Program& program, QWidget* parent)
    : QWidget(parent), program_(program) {
  lbl_users_ = NewLabel(this, "lbl_users");
  lst_users_ = new UserList(this, [this] { emit Confirmed(); });
  NameWidget(lst_users_, "lst_users");
  lst_users_->setFixedWidth(kUsersWidth);
  lbl_users_->setBuddy(lst_users_);
  connect(lst_users_, &QListWidget::itemSelectionChanged, this, [this] {
    if (AnySelected()) emit Chosen();
  });
  connect(lst_users_, &QListWidget::itemClicked, this, &DayUsersPanel::Confirmed);

  Toolbar_control_ = new QWidget(this);
  NameWidget(Toolbar_control_, "Toolbar_control");
  auto* const buttons = new QHBoxLayout(Toolbar_control_);
  buttons->setContentsMargins(0, 0, 0, 0);
  new_user_ = NewToolButton(Toolbar_control_, "Toolbar_control_2", "user-new");
  delete_user_ = NewToolButton(Toolbar_control_, "Toolbar_control_3", "user-delete");
  buttons->addStretch();
  SetRemovable(false);
  connect(new_user_, &QToolButton::clicked, this, &DayUsersPanel::NewUserWanted);
  connect(delete_user_, &QToolButton::clicked, this, &DayUsersPanel::RemovalWanted);

  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(lbl_users_);
  layout->addWidget(lst_users_, 1);
  layout->addWidget(Toolbar_control_);
}

void DayUsersPanel::Set_Taal() {
  const TextTables& texts = program_.texts;
  lbl_users_->setText(ToQt(texts[kUsers]));
  lst_users_->setAccessibleName(ToQt(texts[kUsers]));
  lst_users_->setToolTip(ToQt(texts[kTipUsers]));
  SetTip(new_user_, texts[kTipNewUser]);
  SetTip(delete_user_, texts[kTipDeleteUser]);
}

void DayUsersPanel::ShowNames(const TextList& names) {
  const QSignalBlocker quiet(lst_users_);
  lst_users_->clear();
  for (const std::string_view name : names) {
    auto* const user = new QListWidgetItem(ToQt(name), lst_users_);  // the list owns it
    user->setSizeHint({0, RowHeight(*lst_users_)});
  }
  const auto current = lst_users_->findItems(ToQt(program_.paths.UserName),
                                             Qt::MatchFixedString | Qt::MatchCaseSensitive);
  if (!current.isEmpty()) lst_users_->setCurrentItem(current.front());
}

bool DayUsersPanel::AnySelected() const {
  return !lst_users_->selectedItems().isEmpty();
}

Text DayUsersPanel::Selected() const {
  return AnySelected() ? FromQt(lst_users_->selectedItems().front()->text()) : Text();
}

void DayUsersPanel::SelectNone() {
  const QSignalBlocker quiet(lst_users_);
  lst_users_->clearSelection();
  lst_users_->setCurrentItem(nullptr);
}

void DayUsersPanel::FocusList() {
  lst_users_->setFocus();
}

void DayUsersPanel::SetRemovable(bool removable) {
  delete_user_->setEnabled(removable);
}

void DayUsersPanel::Lock() {
  lst_users_->setEnabled(false);
  Toolbar_control_->setEnabled(false);
}

}  // namespace kelvora
