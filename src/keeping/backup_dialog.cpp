#include "keeping/backup_dialog.h"

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "keeping/backup_reminder.h"
#include "language/own_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr int kWidth = 460;
constexpr int kSpacing = 12;
constexpr int kMillisecondsOfSteps = 12;  // then the window has its turn

void SetCaption(QAbstractButton* button, const Text& text) {
  button->setText(CaptionFrom(text));
  button->setAccessibleName(ToQt(text));
}

}  // namespace

BackupDialog::BackupDialog(Program& program, QWidget* parent)
    : QDialog(parent),
      program_(program),
      open_flag_(program.windows, program.windows.backup, this),
      users_(UsersForBackup(program)),
      lbl_info_(NewLabel(this, QStringLiteral("lbl_info"))),
      lbl_users_(NewLabel(this, QStringLiteral("lbl_users"))),
      cmb_users_(new ChoiceList(this, "cmb_users")),
      lbl_unsaved_(new HintLabel(this, QStringLiteral("lbl_unsaved"))),
      chk_reminder_(new QCheckBox(this)),
      ProgressBar_(new QProgressBar(this)),
      cmd_backup_(new QPushButton(this)),
      cmd_annuleer_(new QPushButton(this)) {
  NameWidget(this, "KV_backup");
  NameWidget(chk_reminder_, "chk_reminder");
  NameWidget(ProgressBar_, "ProgressBar");
  NameWidget(cmd_backup_, "cmd_backup");
  NameWidget(cmd_annuleer_, "cmd_annuleer");
  LayOut();
  Set_Taal();
  connect(cmd_backup_, &QPushButton::clicked, this, &BackupDialog::Begin);
  connect(cmd_annuleer_, &QPushButton::clicked, this, &BackupDialog::reject);
  connect(chk_reminder_, &QCheckBox::clicked, this, [this](bool on) {
    if (!SetRemindsOfBackup(program_, on)) chk_reminder_->setChecked(!on);
  });
  connect(&steps_, &QTimer::timeout, this, &BackupDialog::DoSteps);
}

void BackupDialog::LayOut() {
  lbl_info_->setWordWrap(true);
  lbl_unsaved_->setWordWrap(true);
  lbl_users_->setBuddy(cmb_users_);
  ProgressBar_->setTextVisible(false);
  cmd_backup_->setDefault(true);
  cmd_annuleer_->setAutoDefault(false);
  auto* const whom = new QHBoxLayout;
  whom->addWidget(lbl_users_);
  whom->addWidget(cmb_users_, 1);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmd_backup_);
  buttons->addWidget(cmd_annuleer_);
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(kSpacing);
  layout->addWidget(lbl_info_);
  layout->addLayout(whom);
  layout->addWidget(lbl_unsaved_);
  layout->addWidget(chk_reminder_);
  layout->addWidget(ProgressBar_);
  layout->addStretch();
  layout->addLayout(buttons);
  setMinimumWidth(kWidth);
}

void BackupDialog::CloseWindow() {
  done(QDialog::Rejected);
}

void BackupDialog::Set_Taal() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(OwnTextOf(texts, OwnText::backup_title)));
  lbl_info_->setText(ToQt(OwnTextOf(texts, OwnText::backup_info)));
  lbl_users_->setText(ToQt(OwnTextOf(texts, OwnText::backup_whom)));
  cmb_users_->setAccessibleName(lbl_users_->text());
  const int chosen = std::max(0, cmb_users_->currentIndex());
  cmb_users_->clear();
  cmb_users_->addItem(ToQt(OwnTextOf(texts, OwnText::backup_all_users)));
  for (const User& user : users_) cmb_users_->addItem(ToQt(user.name));
  cmb_users_->setCurrentIndex(chosen);
  SetCaption(chk_reminder_,
             OwnTextWith(texts, OwnText::backup_remind, std::to_string(kDaysWithoutBackup)));
  ProgressBar_->setAccessibleName(ToQt(OwnTextOf(texts, OwnText::backup_progress)));
  SetCaption(cmd_backup_, OwnTextOf(texts, OwnText::backup_start));
  chk_reminder_->setChecked(RemindsOfBackup(program_));
  ShowState();
  // As high as the lines of its words at its least width.
  setMinimumHeight(layout()->minimumHeightForWidth(kWidth));
}

void BackupDialog::FollowSettings() {
  Set_Taal();
}

void BackupDialog::ShowState() {
  const bool runs = backup_ != nullptr;
  const TextTables& texts = program_.texts;
  const OwnText hint = users_.empty() ? OwnText::backup_no_users : OwnText::backup_unsaved;
  lbl_unsaved_->setText(ToQt(OwnTextOf(texts, hint)));
  lbl_unsaved_->setVisible(users_.empty() || program_.day.FileChanged);
  cmb_users_->setEnabled(!runs && !users_.empty());
  chk_reminder_->setEnabled(!runs);
  cmd_backup_->setEnabled(!runs && !users_.empty());
  SetCaption(cmd_annuleer_,
             OwnTextOf(texts, runs ? OwnText::carrying_cancel : OwnText::carrying_close));
  ProgressBar_->setRange(0, runs ? static_cast<int>(backup_->Whole()) : 1);
  ProgressBar_->setValue(runs ? static_cast<int>(backup_->Done()) : 0);
}

void BackupDialog::Begin() {
  if (backup_ != nullptr) return;
  const auto path = ChooseBackupTarget(program_);
  if (!path) return;
  const int chosen = cmb_users_->currentIndex();
  std::vector<User> users = users_;
  if (chosen > 0) users = {users_[static_cast<std::size_t>(chosen - 1)]};
  backup_ = std::make_unique<Backup>(program_.paths.UsersPath, std::move(users), *path);
  steps_.start();
  ShowState();
  cmd_annuleer_->setFocus();
}

void BackupDialog::DoSteps() {
  QElapsedTimer time;
  time.start();
  while (time.elapsed() < kMillisecondsOfSteps) {
    steps_.stop();  // a box in the middle of a step lets events run
    if (backup_ == nullptr || !WorkOn(program_, *backup_)) return End();
    steps_.start();
  }
  ShowState();
}

void BackupDialog::End() {
  if (backup_ == nullptr) return;
  const std::unique_ptr<Backup> ended = std::move(backup_);
  ShowState();
  TellOfBackup(program_, *ended);
  if (ended->Finished() && ended->Missing().Empty()) done(QDialog::Accepted);
}

void BackupDialog::reject() {
  if (backup_ == nullptr) return done(QDialog::Rejected);
  steps_.stop();
  backup_.reset();
  ShowState();
}

void BackupDialog::done(int result) {
  open_flag_.Clear();
  steps_.stop();
  backup_.reset();
  QDialog::done(result);
}

void ShowBackupDialog(Program& program, QWidget* parent) {
  BackupDialog dialog(program, parent);
  dialog.exec();
  // It has gone at once behind a box, and a window manager may have lost sight of what lies below.
  if (parent != nullptr) parent->activateWindow();
}

}  // namespace kelvora
