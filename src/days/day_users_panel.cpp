#include "days/day_users_panel.h"

#include <utility>

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "days/user_rows_panel.h"
#include "language/day_settings_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace day_settings_text;

constexpr int kUsersWidth = 200;

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
  lst_users_ = new UserRows(program, this);
  lst_users_->setFixedWidth(kUsersWidth);
  lbl_users_->setBuddy(lst_users_);
  connect(lst_users_, &UserRows::Chosen, this, &DayUsersPanel::Chosen);
  connect(lst_users_, &UserRows::Confirmed, this, &DayUsersPanel::Confirmed);

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
  Toolbar_control_->setAccessibleName(ToQt(texts[kUsers]));
  SetTip(new_user_, texts[kTipNewUser]);
  SetTip(delete_user_, texts[kTipDeleteUser]);
}

void DayUsersPanel::ShowUsers(std::vector<User> users) {
  lst_users_->ShowUsers(std::move(users));
}

bool DayUsersPanel::AnySelected() const {
  return Selected().has_value();
}

std::optional<User> DayUsersPanel::Selected() const {
  return lst_users_->Selected();
}

void DayUsersPanel::TellNow() {
  lst_users_->TellNow();
}

void DayUsersPanel::TellNothing() {
  lst_users_->TellNothing();
}

void DayUsersPanel::SelectNone() {
  lst_users_->SelectNone();
}

void DayUsersPanel::SelectCurrentUser() {
  lst_users_->SelectCurrentUser();
}

void DayUsersPanel::Select(const User& user) {
  lst_users_->Select(user);
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
