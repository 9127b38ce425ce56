#include "days/browser_dialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "days/day_dialogs.h"
#include "language/browse_texts.h"
#include "language/own_texts.h"
#include "platform/qt/accessibility.h"
#include "platform/qt/long_label.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace browse_text;

constexpr int kUsersWidth = 180;
constexpr int kInitialWidth = 820;
constexpr int kInitialHeight = 520;

constexpr std::array kPaneCaptions = {kReference, kLastWeight, kGoalWeight, kHeight, kGender, kAge};

}  // namespace

BrowserDialog::BrowserDialog(Program& program, QWidget* parent)
    : QDialog(parent),
      program_(program),
      open_flag_(program.windows, program.windows.browser, this),
      shown_by_(ShownNow()) {
  NameWidget(this, "KV_browsefiles");
  if (WindowView* const wizard = program_.windows.Find(WindowId::wizard)) wizard->CloseWindow();

  auto* const lists = new QHBoxLayout;
  lists->setSpacing(12);
  lists->addWidget(BuildUsers());
  lists->addWidget(BuildDays(), 1);

  chk_profiel_ = new QCheckBox(this);
  NameWidget(chk_profiel_, "chk_profiel");
  cmd_take_over_ = new QPushButton(this);
  NameWidget(cmd_take_over_, "cmd_take_over");
  cmd_take_over_->setAutoDefault(false);
  cmd_take_over_->setEnabled(false);
  cmd_openen_ = new QPushButton(this);
  NameWidget(cmd_openen_, "cmd_openen");
  cmd_openen_->setDefault(true);
  cmd_openen_->setEnabled(false);
  cmd_annuleer_ = new QPushButton(this);
  NameWidget(cmd_annuleer_, "cmd_annuleer");
  cmd_annuleer_->setAutoDefault(false);
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(chk_profiel_);
  buttons->addStretch();
  buttons->addWidget(cmd_take_over_);
  buttons->addWidget(cmd_openen_);
  buttons->addWidget(cmd_annuleer_);

  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(lists, 1);
  layout->addLayout(buttons);
  resize(kInitialWidth, kInitialHeight);

  connect(chk_profiel_, &QCheckBox::clicked, this, [this](bool shown) {
    SetProfilePaneShown(program_, shown);
    profile_pane_->setVisible(shown);
  });
  // Enter in the list presses this button too: it is the default one.
  connect(cmd_openen_, &QPushButton::clicked, this, &BrowserDialog::OpenSelectedDay);
  connect(cmd_take_over_, &QPushButton::clicked, this, &BrowserDialog::TakeOverFromSelectedDay);
  connect(cmd_annuleer_, &QPushButton::clicked, this, &BrowserDialog::CloseWindow);
  SetCaptions();
  FollowSettings();
}

QWidget* BrowserDialog::BuildUsers() {
  auto* const side = new QWidget(this);
  lbl_users_ = NewLabel(side, "lbl_users");
  lst_users_ = new UserRows(program_, side);
  lst_users_->setFixedWidth(kUsersWidth);
  lbl_users_->setBuddy(lst_users_);
  connect(lst_users_, &UserRows::Chosen, this, &BrowserDialog::ChooseSelectedUser);
  auto* const layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(lbl_users_);
  layout->addWidget(lst_users_, 1);
  return side;
}

QWidget* BrowserDialog::BuildDays() {
  auto* const side = new QWidget(this);
  lbl_days_ = NewLabel(side, "lbl_days");
  LV_browse_files_ = new DayTable(program_, side);
  lbl_days_->setBuddy(LV_browse_files_);
  connect(LV_browse_files_, &DayTable::OpenAsked, this, &BrowserDialog::OpenSelectedDay);
  connect(LV_browse_files_, &DayTable::DeleteAsked, this, &BrowserDialog::DeleteSelectedDay);
  connect(LV_browse_files_, &DayTable::TakeOverAsked, this,
          &BrowserDialog::TakeOverFromSelectedDay);
  auto* const layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(lbl_days_);
  layout->addWidget(LV_browse_files_, 1);
  layout->addWidget(BuildProfilePane());
  return side;
}

QWidget* BrowserDialog::BuildProfilePane() {
  profile_pane_ = new QWidget(this);
  NameWidget(profile_pane_, "profile_pane");
  auto* const grid = new QGridLayout(profile_pane_);
  grid->setContentsMargins(0, 6, 0, 0);
  // A stored value may be of any length.
  lbl_profile_of_ = new LongLabel(profile_pane_, QStringLiteral("lbl_profile_of"));
  grid->addWidget(lbl_profile_of_, 0, 0, 1, 4);
  for (int i = 0; i < 6; ++i) {
    const auto place = static_cast<std::size_t>(i);
    captions_[place] = NewLabel(profile_pane_, QStringLiteral("lbl_pr_caption_%1").arg(i));
    lbl_pr_[place] = new LongLabel(profile_pane_, QStringLiteral("lbl_pr_%1").arg(i));
    const int row = 1 + i % 3;
    const int column = i / 3 * 2;
    grid->addWidget(captions_[place], row, column);
    grid->addWidget(lbl_pr_[place], row, column + 1);
  }
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  return profile_pane_;
}

void BrowserDialog::Open() {
  show();
  if (!ChooseOnlyUser(ShowUsers())) Refresh_Files();
  // Who opens this window most often wants a day of the current user.
  if (!LV_browse_files_->Rows().empty()) LV_browse_files_->setFocus();
}

void BrowserDialog::CloseWindow() {
  done(QDialog::Rejected);
}

void BrowserDialog::done(int result) {
  lst_users_->TellNothing();
  open_flag_.Clear();
  ++readings_;
  QDialog::done(result);
}

void BrowserDialog::Set_Taal() {
  SetCaptions();
  ShowProfile();
}

void BrowserDialog::FollowSettings() {
  chk_profiel_->setChecked(ProfilePaneShown(program_));
  profile_pane_->setVisible(chk_profiel_->isChecked());
  ShowProfile();
  // Who chooses another user has the days read by itself.
  const ShownBy now = ShownNow();
  if (now.folder == shown_by_.folder && now != shown_by_) Refresh_Files();
}

BrowserDialog::ShownBy BrowserDialog::ShownNow() const {
  return {UnitSystemOf(program_), PriorityOfUser(program_), program_.paths.FilesPath};
}

void BrowserDialog::SetCaptions() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(texts[kTitle]));
  lbl_users_->setText(ToQt(texts[kUsers]));
  lst_users_->setAccessibleName(ToQt(texts[kUsers]));
  lbl_days_->setText(ToQt(texts[kDays]));
  LV_browse_files_->Set_Taal();
  chk_profiel_->setText(ToQt(texts[kShowProfile]));
  cmd_take_over_->setText(ToQt(OwnTextOf(texts, OwnText::take_over_from)));
  cmd_openen_->setText(ToQt(texts[kOpen]));
  cmd_annuleer_->setText(ToQt(texts[kCancel]));
  for (std::size_t i = 0; i < captions_.size(); ++i) {
    captions_[i]->setText(ToQt(texts[kPaneCaptions[i]]));
  }
}

void BrowserDialog::Refresh_GebruikersLijst() {
  ShowUsers();
}

UserList BrowserDialog::ShowUsers() {
  UserList list = ReadUsers(program_);
  lst_users_->ShowUsers(list.users);
  ShowProfile();
  TellOfUnreadUsers(program_, list);
  return list;
}

// True if the days of another user are in the list now.
bool BrowserDialog::ChooseOnlyUser(const UserList& list) {
  const auto only = OnlyUser(program_, list);
  if (!only) return false;
  lst_users_->Select(*only);
  return SwitchUser(program_, *only) == UserSwitch::switched;
}

void BrowserDialog::Refresh_Files() {
  if (program_.paths.FilesPath.empty()) return;
  ShowDays({});
  shown_by_ = ShownNow();
  const int reading = ++readings_;
  DayList days = ReadDays(program_, [this, reading] { return reading != readings_; });
  if (reading != readings_) return;
  ShowDays(std::move(days.rows));
  ShowProfile();
  TellOfUnreadDays(program_, days);
}

void BrowserDialog::ShowDays(std::vector<DayRow> rows) {
  cmd_openen_->setEnabled(!rows.empty());
  cmd_take_over_->setEnabled(!rows.empty() && program_.store.DayIsOpen());
  LV_browse_files_->ShowDays(std::move(rows));
}

void BrowserDialog::ShowProfile() {
  const ProfilePane pane = ProfilePaneOf(program_);
  lbl_profile_of_->setText(ToQt(pane.heading));
  for (std::size_t i = 0; i < lbl_pr_.size(); ++i) {
    lbl_pr_[i]->setText(ToQt(pane.lbl_pr[i]));
    NameValue(*lbl_pr_[i], *captions_[i]);
  }
}

void BrowserDialog::ChooseSelectedUser() {
  const auto user = lst_users_->Selected();
  if (!user) return;
  if (SwitchUser(program_, *user) == UserSwitch::refused) lst_users_->SelectCurrentUser();
}

void BrowserDialog::OpenSelectedDay() {
  lst_users_->TellNow();
  const DayTable& list = *LV_browse_files_;
  const auto row = RowToOpen(list.SelectedRows(), list.FocusedRow(), list.hasFocus());
  if (row) OpenDayOf(program_, list.Rows()[*row]);
}

void BrowserDialog::DeleteSelectedDay() {
  lst_users_->TellNow();
  DayTable& list = *LV_browse_files_;
  const std::vector<std::size_t> selected = list.SelectedRows();
  if (selected.empty()) return;
  // What comes next is in its place now.
  if (DeleteDayOf(program_, list.Rows()[selected.front()])) list.FocusRow(selected.front());
}

void BrowserDialog::TakeOverFromSelectedDay() {
  lst_users_->TellNow();
  const DayTable& list = *LV_browse_files_;
  const auto row = RowToOpen(list.SelectedRows(), list.FocusedRow(), true);
  if (!row || program_.windows.core == nullptr) return;
  // The list may change while the other dialog stands over it.
  const std::string path = list.Rows()[*row].path;
  program_.windows.core->OpenTakeOver(std::nullopt, path);
}

void ShowBrowserDialog(Program& program, QWidget* parent) {
  BrowserDialog dialog(program, parent);
  dialog.setModal(true);
  dialog.Open();
  // It may have been closed while the days were read.
  if (dialog.isVisible()) dialog.exec();
}

}  // namespace kelvora
