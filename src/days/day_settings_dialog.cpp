#include "days/day_settings_dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "days/day_address_panel.h"
#include "days/day_dialogs.h"
#include "days/day_person_panel.h"
#include "days/day_targets_panel.h"
#include "days/day_users_panel.h"
#include "language/day_settings_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace day_settings_text;

constexpr int kInfoWidth = 680;
constexpr std::array kTabs = {kTabUserAndDay, kTabAdditional, kTabNutritions};

}  // namespace

DaySettingsDialog::DaySettingsDialog(Program& program, QWidget* parent)
    : QDialog(parent),
      program_(program),
      open_flag_(program.windows, program.windows.day_settings, this),
      editing_(OpenDayEditing(program)) {
  NameWidget(this, "KV_bestand");
  if (WindowView* const wizard = program_.windows.Find(WindowId::wizard)) wizard->CloseWindow();

  lbl_info_ = NewLabel(this, "lbl_info");
  lbl_info_->setWordWrap(true);
  lbl_info_->setMinimumWidth(kInfoWidth);
  BuildTabs();
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(lbl_info_);
  layout->addWidget(TabStrip1_, 1);
  layout->addLayout(BuildButtons());

  Set_Taal();
  FillIn();
  PutFocus();
}

DaySettingsDialog::~DaySettingsDialog() {
  // The panels draw the form of this dialog, and a box that loses the focus still takes its text.
  delete TabStrip1_;
}

void DaySettingsDialog::BuildTabs() {
  TabStrip1_ = new QTabWidget(this);
  NameWidget(TabStrip1_, "TabStrip1");
  MakeOneStop(TabStrip1_);
  auto* const first = new QWidget(TabStrip1_);
  users_ = new DayUsersPanel(program_, first);
  person_ = new DayPersonPanel(program_, editing_.form, first);
  auto* const layout = new QHBoxLayout(first);
  layout->setSpacing(16);
  layout->addWidget(users_);
  layout->addWidget(person_, 1);
  address_ = new DayAddressPanel(program_, editing_.form, TabStrip1_);
  targets_ = new DayTargetsPanel(program_, editing_, TabStrip1_);
  int number = 1;
  for (QWidget* const frame : std::initializer_list<QWidget*>{first, address_, targets_}) {
    frame->setObjectName(QStringLiteral("ChoiceFrame_%1").arg(number++));
    TabStrip1_->addTab(frame, QString());
  }
  ConnectUsers();
}

void DaySettingsDialog::ConnectUsers() {
  connect(users_, &DayUsersPanel::Chosen, this, &DaySettingsDialog::ChooseSelectedUser);
  connect(users_, &DayUsersPanel::Confirmed, this, [this] {
    users_->SetRemovable(true);
    person_->FocusWeight();
  });
  connect(users_, &DayUsersPanel::NewUserWanted, this, &DaySettingsDialog::BeginNewUser);
  connect(users_, &DayUsersPanel::RemovalWanted, this, &DaySettingsDialog::RemoveSelectedUser);
}

QHBoxLayout* DaySettingsDialog::BuildButtons() {
  cmd_opslaan_ = new QPushButton(this);
  NameWidget(cmd_opslaan_, "cmd_opslaan");
  cmd_opslaan_->setDefault(true);
  cmd_annuleer_ = new QPushButton(this);
  NameWidget(cmd_annuleer_, "cmd_annuleer");
  connect(cmd_opslaan_, &QPushButton::clicked, this, &DaySettingsDialog::Confirm);
  connect(cmd_annuleer_, &QPushButton::clicked, this, &DaySettingsDialog::CloseWindow);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmd_opslaan_);
  buttons->addWidget(cmd_annuleer_);
  return buttons;
}

void DaySettingsDialog::CloseWindow() {
  done(QDialog::Rejected);
}

void DaySettingsDialog::done(int result) {
  users_->TellNothing();
  CancelDay(program_, editing_);
  open_flag_.Clear();
  QDialog::done(result);
}

void DaySettingsDialog::Set_Taal() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(texts[TitleOf(editing_.mode)]));
  TabStrip1_->setAccessibleName(windowTitle());
  lbl_info_->setText(ToQt(texts[InstructionFor(editing_.mode, user_count_)]));
  for (std::size_t i = 0; i < kTabs.size(); ++i) {
    TabStrip1_->setTabText(static_cast<int>(i), ToQt(texts[kTabs[i]]));
  }
  users_->Set_Taal();
  person_->Set_Taal();
  address_->Set_Taal();
  targets_->Set_Taal();
  cmd_opslaan_->setText(ToQt(texts[IsNewDay() ? kStart : kSave]));
  cmd_annuleer_->setText(ToQt(texts[kCancel]));
}

void DaySettingsDialog::FillIn() {
  ShowUsers();
  if (!IsNewDay()) {
    EditOpenDay(program_, editing_);
    person_->SetNameEnabled(false);
    users_->Lock();
  } else if (users_->AnySelected()) {
    ChooseSelectedUser();
  }
  // A user that was not pointed at is not removed.
  users_->SetRemovable(false);
  ShowForm();
}

void DaySettingsDialog::PutFocus() {
  if (!IsNewDay() || users_->AnySelected()) return person_->FocusWeight();
  if (user_count_ == 0) return person_->FocusName();
  users_->FocusList();
}

void DaySettingsDialog::ShowUsers() {
  const UserList list = ReadUsers(program_);
  user_count_ = list.users.size();
  lbl_info_->setText(ToQt(program_.texts[InstructionFor(editing_.mode, user_count_)]));
  users_->ShowUsers(list.users);
  const auto only = OnlyUser(program_, list);
  if (only && IsNewDay()) users_->Select(*only);
  // Behind the list, which can be seen by then.
  QMetaObject::invokeMethod(
      this, [this, list] { TellOfUnreadUsersForDay(program_, list); }, Qt::QueuedConnection);
}

void DaySettingsDialog::ShowForm() {
  person_->ShowForm();
  address_->ShowForm();
  targets_->ShowForm();
}

void DaySettingsDialog::TakeForm() {
  person_->TakeForm();
  address_->TakeForm();
}

void DaySettingsDialog::ChooseSelectedUser() {
  const auto user = users_->Selected();
  if (!user) return;
  if (!ChooseUserForDay(program_, editing_, *user)) return users_->SelectCurrentUser();
  person_->SetNameEnabled(false);
  users_->SetRemovable(true);
  ShowForm();
}

void DaySettingsDialog::BeginNewUser() {
  users_->SelectNone();
  users_->SetRemovable(false);
  kelvora::BeginNewUser(program_, editing_);
  person_->SetNameEnabled(true);
  ShowForm();
  person_->FocusName();
}

void DaySettingsDialog::RemoveSelectedUser() {
  users_->TellNow();
  const auto user = users_->Selected();
  if (!user || RemoveUser(program_, editing_, *user) == UserRemoval::refused) return;
  ShowUsers();
  BeginNewUser();
}

void DaySettingsDialog::Confirm() {
  users_->TellNow();
  TakeForm();
  if (!ConfirmDay(program_, editing_)) {
    const QLatin1String name(editing_.look_at.data(), static_cast<int>(editing_.look_at.size()));
    if (!name.isEmpty()) GoToBox(findChild<QWidget*>(name));
    return;
  }
  // Out of sight first: the arrangement opens the windows of the day, and closes this one.
  hide();
  ArrangeAfterConfirming(program_, editing_);
  CloseWindow();
}

void ShowDaySettingsDialog(Program& program, QWidget* parent) {
  DaySettingsDialog(program, parent).exec();
}

}  // namespace kelvora
