#include "keeping/restore_dialog.h"

#include <algorithm>

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "language/browse_texts.h"
#include "language/own_texts.h"
#include "nutrition/dates.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr int kWidth = 700;
constexpr int kHeight = 520;
constexpr int kSpacing = 12;
constexpr int kDateWidth = 170;
constexpr int kWeekdayWidth = 120;
constexpr int kMillisecondsOfSteps = 12;  // then the window has its turn

constexpr std::array kChoices = {OwnText::restore_keep_both, OwnText::restore_take_backup,
                                 OwnText::restore_keep_mine};  // as Differing
constexpr std::array kFrames = {OwnText::restore_users, OwnText::restore_files,
                                OwnText::restore_when_different};
enum : std::size_t { kUsersFrame, kFilesFrame, kChoiceFrame };

void SetCaption(QAbstractButton* button, const Text& text) {
  button->setText(CaptionFrom(text));
  button->setAccessibleName(ToQt(text));
}

Text NameOfPart(const TextTables& texts, BackupPart part) {
  switch (part) {
    case BackupPart::profile:
      return OwnTextOf(texts, OwnText::restore_profile);
    case BackupPart::own_list:
      return OwnTextOf(texts, OwnText::restore_own_list);
    case BackupPart::favourites:
      return OwnTextOf(texts, OwnText::restore_favourites);
    case BackupPart::day:
      return {};
  }
  return {};
}

OwnText NameOfState(Here here) {
  switch (here) {
    case Here::absent:
      return OwnText::restore_absent;
    case Here::same:
      return OwnText::restore_same;
    case Here::differs:
      return OwnText::restore_differs;
  }
  return OwnText::restore_absent;
}

Qt::CheckState TickOf(const BackupUser& user) {
  const auto wanted = std::ranges::count(user.files, true, &BackupFile::wanted);
  if (wanted == 0) return Qt::Unchecked;
  return wanted == std::ssize(user.files) ? Qt::Checked : Qt::PartiallyChecked;
}

std::size_t DaysOf(const BackupUser& user) {
  return static_cast<std::size_t>(std::ranges::count_if(
      user.files, [](const BackupFile& file) { return file.place.part == BackupPart::day; }));
}

}  // namespace

RestoreDialog::RestoreDialog(Program& program, std::string path, QWidget* parent)
    : QDialog(parent),
      program_(program),
      open_flag_(program.windows, program.windows.restore, this),
      contents_(program.paths.UsersPath, std::move(path)),
      lbl_file_(new LongLabel(this, QStringLiteral("lbl_file"))),
      lbl_state_(new HintLabel(this, QStringLiteral("lbl_state"))),
      ProgressBar_(new QProgressBar(this)),
      cmd_restore_(new QPushButton(this)),
      cmd_annuleer_(new QPushButton(this)) {
  NameWidget(this, "KV_restore");
  NameWidget(ProgressBar_, "ProgressBar");
  NameWidget(cmd_restore_, "cmd_restore");
  NameWidget(cmd_annuleer_, "cmd_annuleer");
  for (std::size_t i = 0; i < frames_.size(); ++i) {
    frames_[i] = new QGroupBox(this);
    frames_[i]->setObjectName(QStringLiteral("Frame_%1").arg(i + 1));
    new QVBoxLayout(frames_[i]);
  }
  LayOut();
  Set_Taal();
  connect(cmd_restore_, &QPushButton::clicked, this, &RestoreDialog::Begin);
  connect(cmd_annuleer_, &QPushButton::clicked, this, &RestoreDialog::reject);
  connect(&steps_, &QTimer::timeout, this, [this] { reading_ ? ReadOn() : BringBackOn(); });
  steps_.start();
}

QGroupBox* RestoreDialog::BuildUsers() {
  LV_users_ = new TickTable(frames_[kUsersFrame], "LV_users");
  frames_[kUsersFrame]->layout()->addWidget(LV_users_);
  TickTableModel& model = LV_users_->Model();
  model.tick_of = [this](std::size_t row) { return TickOf(contents_.Users()[row]); };
  model.tick = [this](std::size_t row, bool ticked) {
    for (BackupFile& file : contents_.Users()[row].files) file.wanted = ticked;
  };
  model.on_ticked = [this] {
    LV_files_->Model().RefreshTicks();
    ShowState();
  };
  connect(LV_users_, &TickTable::CurrentRowChanged, this, &RestoreDialog::ShowFiles);
  return frames_[kUsersFrame];
}

QGroupBox* RestoreDialog::BuildFiles() {
  LV_files_ = new TickTable(frames_[kFilesFrame], "LV_files");
  frames_[kFilesFrame]->layout()->addWidget(LV_files_);
  TickTableModel& model = LV_files_->Model();
  model.tick_of = [this](std::size_t row) {
    const BackupUser* const user = CurrentUser();
    return user != nullptr && user->files[row].wanted ? Qt::Checked : Qt::Unchecked;
  };
  model.tick = [this](std::size_t row, bool ticked) {
    if (BackupUser* const user = CurrentUser()) user->files[row].wanted = ticked;
  };
  model.on_ticked = [this] {
    LV_users_->Model().RefreshTicks();
    ShowState();
  };
  return frames_[kFilesFrame];
}

QGroupBox* RestoreDialog::BuildChoice() {
  for (std::size_t i = 0; i < opt_differs_.size(); ++i) {
    opt_differs_[i] = new QRadioButton(frames_[kChoiceFrame]);
    opt_differs_[i]->setObjectName(QStringLiteral("opt_differs_%1").arg(i));
    frames_[kChoiceFrame]->layout()->addWidget(opt_differs_[i]);
  }
  opt_differs_.front()->setChecked(true);
  return frames_[kChoiceFrame];
}

void RestoreDialog::LayOut() {
  lbl_state_->setWordWrap(true);
  ProgressBar_->setTextVisible(false);
  cmd_restore_->setDefault(true);
  cmd_annuleer_->setAutoDefault(false);
  auto* const lists = new QHBoxLayout;
  lists->setSpacing(kSpacing);
  lists->addWidget(BuildUsers(), 2);
  lists->addWidget(BuildFiles(), 3);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmd_restore_);
  buttons->addWidget(cmd_annuleer_);
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(kSpacing);
  layout->addWidget(lbl_file_);
  layout->addLayout(lists, 1);
  layout->addWidget(BuildChoice());
  layout->addWidget(lbl_state_);
  layout->addWidget(ProgressBar_);
  layout->addLayout(buttons);
  resize(kWidth, kHeight);
}

void RestoreDialog::CloseWindow() {
  done(QDialog::Rejected);
}

void RestoreDialog::Set_Taal() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(OwnTextOf(texts, OwnText::restore_title)));
  lbl_file_->setText(ToQt(TextFromUtf8(contents_.Path())));
  for (std::size_t i = 0; i < frames_.size(); ++i) {
    const Text caption = OwnTextOf(texts, kFrames[i]);
    frames_[i]->setTitle(CaptionFrom(caption));
    frames_[i]->setAccessibleName(ToQt(caption));
  }
  LV_users_->setAccessibleName(frames_[kUsersFrame]->accessibleName());
  LV_files_->setAccessibleName(frames_[kFilesFrame]->accessibleName());
  for (std::size_t i = 0; i < opt_differs_.size(); ++i) {
    SetCaption(opt_differs_[i], OwnTextOf(texts, kChoices[i]));
  }
  ProgressBar_->setAccessibleName(ToQt(OwnTextOf(texts, OwnText::backup_progress)));
  SetCaption(cmd_restore_, OwnTextOf(texts, OwnText::restore_start));
  if (!reading_) ShowUsers();
  ShowState();
}

void RestoreDialog::FollowSettings() {
  Set_Taal();
}

void RestoreDialog::ShowState() {
  const bool works = reading_ || restore_ != nullptr;
  const TextTables& texts = program_.texts;
  lbl_state_->setText(ToQtMessage(reading_ ? OwnTextOf(texts, OwnText::restore_reading)
                                           : FlawsInWords(texts, contents_)));
  lbl_state_->setVisible(!lbl_state_->text().isEmpty());
  for (QGroupBox* const frame : frames_) frame->setEnabled(!works);
  cmd_restore_->setEnabled(!works && AnythingIsTicked());
  SetCaption(cmd_annuleer_,
             OwnTextOf(texts, works ? OwnText::carrying_cancel : OwnText::carrying_close));
  // How many entries a backup has is known only when all are read.
  const bool restores = restore_ != nullptr;
  ProgressBar_->setRange(0, restores ? static_cast<int>(restore_->Whole()) : reading_ ? 0 : 1);
  ProgressBar_->setValue(restores ? static_cast<int>(restore_->Done()) : 0);
}

void RestoreDialog::ReadOn() {
  QElapsedTimer time;
  time.start();
  bool readable = true;
  while (time.elapsed() < kMillisecondsOfSteps) {
    steps_.stop();  // a box in the middle of a step lets events run
    const bool more = WorkOn(program_, contents_, readable);
    if (!readable) return done(QDialog::Rejected);
    if (!more) {
      reading_ = false;
      ShowUsers();
      ShowState();
      LV_users_->setFocus();
      return;
    }
    steps_.start();
  }
}

void RestoreDialog::Begin() {
  if (restore_ != nullptr || !AnythingIsTicked()) return;
  restore_ = std::make_unique<Restore>(program_.paths.UsersPath, contents_, Choice());
  steps_.start();
  ShowState();
  cmd_annuleer_->setFocus();
}

void RestoreDialog::BringBackOn() {
  QElapsedTimer time;
  time.start();
  while (time.elapsed() < kMillisecondsOfSteps) {
    steps_.stop();
    if (restore_ == nullptr || !WorkOn(program_, *restore_)) return End();
    steps_.start();
  }
  ShowState();
}

void RestoreDialog::End() {
  steps_.stop();
  if (restore_ == nullptr) return;
  const std::unique_ptr<Restore> ended = std::move(restore_);
  ShowState();
  TellOfRestore(program_, *ended);
  if (ended->Finished()) done(QDialog::Accepted);
}

void RestoreDialog::reject() {
  if (restore_ == nullptr) return done(QDialog::Rejected);
  End();
}

void RestoreDialog::done(int result) {
  open_flag_.Clear();
  steps_.stop();
  restore_.reset();
  QDialog::done(result);
}

void RestoreDialog::ShowUsers() {
  const TextTables& texts = program_.texts;
  const auto& users = contents_.Users();
  LV_users_->Model().Show({{OwnTextOf(texts, OwnText::restore_users)},
                           {OwnTextOf(texts, OwnText::restore_days), Qt::AlignRight}},
                          users.size(), [&users](std::size_t row, std::size_t column) {
                            return column == 0 ? users[row].name
                                               : std::to_string(DaysOf(users[row]));
                          });
  QHeaderView* const header = LV_users_->horizontalHeader();
  header->setStretchLastSection(false);
  header->setSectionResizeMode(0, QHeaderView::Stretch);
  header->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  if (!users.empty()) LV_users_->selectRow(0);
  ShowFiles();
}

void RestoreDialog::ShowFiles() {
  const TextTables& texts = program_.texts;
  const BackupUser* const user = CurrentUser();
  LV_files_->Model().Show(
      {{OwnTextOf(texts, OwnText::restore_what)},
       {texts[browse_text::kColumnDay]},
       {OwnTextOf(texts, OwnText::restore_here)}},
      user == nullptr ? 0 : user->files.size(),
      [this](std::size_t row, std::size_t column) { return CellOfFile(row, column); });
  LV_files_->setColumnWidth(0, kDateWidth);
  LV_files_->setColumnWidth(1, kWeekdayWidth);
  if (user != nullptr && !user->files.empty()) LV_files_->selectRow(0);
}

BackupUser* RestoreDialog::CurrentUser() {
  const auto row = LV_users_->CurrentRow();
  auto& users = contents_.Users();
  return row && *row < users.size() ? &users[*row] : nullptr;
}

Text RestoreDialog::CellOfFile(std::size_t row, std::size_t column) {
  const BackupUser* const user = CurrentUser();
  if (user == nullptr || row >= user->files.size()) return {};
  const BackupFile& file = user->files[row];
  if (column == 2) return OwnTextOf(program_.texts, NameOfState(file.here));
  if (file.place.part != BackupPart::day) {
    return column == 0 ? NameOfPart(program_.texts, file.place.part) : Text();
  }
  if (column == 1) return file.weekday;
  return NameOfDay(file, program_.settings[Setting::opt_system]);
}

bool RestoreDialog::AnythingIsTicked() const {
  return std::ranges::any_of(contents_.Users(),
                             [](const BackupUser& user) { return TickOf(user) != Qt::Unchecked; });
}

Differing RestoreDialog::Choice() const {
  for (std::size_t i = 0; i < opt_differs_.size(); ++i) {
    if (opt_differs_[i]->isChecked()) return static_cast<Differing>(i);
  }
  return Differing::keep_both;
}

void ShowRestoreDialog(Program& program, QWidget* parent) {
  auto path = ChooseBackup(program);
  if (!path) return;
  RestoreDialog dialog(program, std::move(*path), parent);
  dialog.exec();
  // It has gone at once behind a box, and a window manager may have lost sight of what lies below.
  if (parent != nullptr) parent->activateWindow();
}

}  // namespace kelvora
