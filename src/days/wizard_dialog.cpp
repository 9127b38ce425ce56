#include "days/wizard_dialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>

#include "days/day_dialogs.h"
#include "language/wizard_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace wizard_text;

constexpr int kHeadingIconSize = 48;
constexpr int kOptionIconSize = 32;
constexpr int kWelcomeWidth = 380;

QLabel* NewPicture(QWidget* parent, const QString& name, std::string_view icon, int size,
                   bool enabled) {
  QLabel* const picture = NewLabel(parent, name);
  picture->setPixmap(IconNamed(icon).pixmap(QSize(size, size), parent->devicePixelRatioF(),
                                            enabled ? QIcon::Normal : QIcon::Disabled));
  return picture;
}

}  // namespace

WizardDialog::WizardDialog(Program& program, QWidget* parent)
    : QDialog(parent),
      program_(program),
      open_flag_(program.windows, program.windows.wizard, this) {
  NameWidget(this, "KV_wizzard");
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 16, 16, 14);
  layout->setSpacing(14);
  layout->addLayout(BuildHeading());
  layout->addWidget(BuildChoice(), 1);
  layout->addLayout(BuildButtons());
  // The wizard stands in front of the menu that has this key.
  auto* const end = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Q")), this);
  connect(end, &QShortcut::activated, this, [this] {
    if (program_.windows.core == nullptr) return;
    program_.windows.core->GiveCommand(Command::mnu_bestand_sluiten);
  });
  SetShowAtStart(WizardShownAtStart(program_));
  Set_Taal();
}

QHBoxLayout* WizardDialog::BuildHeading() {
  auto* const heading = new QHBoxLayout;
  heading->setSpacing(14);
  heading->addWidget(
      NewPicture(this, QStringLiteral("Pic_welcome"), "kelvora-food", kHeadingIconSize, true));
  lbl_welcome_ = NewLabel(this, QStringLiteral("lbl_welcome"));
  lbl_welcome_->setWordWrap(true);
  lbl_welcome_->setMinimumWidth(kWelcomeWidth);
  heading->addWidget(lbl_welcome_, 1);
  return heading;
}

QGroupBox* WizardDialog::BuildChoice() {
  choice_ = new QGroupBox(this);
  NameWidget(choice_, "frame_choice");
  options_ = new QButtonGroup(this);
  auto* const grid = new QGridLayout(choice_);
  grid->setContentsMargins(14, 12, 14, 12);
  grid->setHorizontalSpacing(14);
  grid->setVerticalSpacing(2);
  grid->setColumnStretch(1, 1);
  for (const WizardRow& row : WizardRows()) {
    const int i = static_cast<int>(row.option);
    const bool enabled = OptionEnabled(program_, row.option);
    // A free row between two options keeps them apart.
    if (i > 0) grid->setRowMinimumHeight(3 * i - 1, 10);
    auto* const picture = NewPicture(choice_, QStringLiteral("Pic_%1").arg(i + 1), row.icon,
                                     kOptionIconSize, enabled);
    auto* const option = new QRadioButton(choice_);
    option->setObjectName(QStringLiteral("Option%1").arg(i + 1));
    QFont bold = option->font();
    bold.setBold(true);
    option->setFont(bold);
    QLabel* const line = NewLabel(choice_, QStringLiteral("lbl_%1").arg(i + 1));
    option->setEnabled(enabled);
    line->setEnabled(enabled);
    grid->addWidget(picture, 3 * i, 0, 2, 1);
    grid->addWidget(option, 3 * i, 1);
    grid->addWidget(line, 3 * i + 1, 1);
    options_->addButton(option, i);
    lines_[static_cast<std::size_t>(i)] = line;
  }
  return choice_;
}

QHBoxLayout* WizardDialog::BuildButtons() {
  chk_wiz_ = new QCheckBox(this);
  NameWidget(chk_wiz_, "chk_wiz");
  cmd_opslaan_ = new QPushButton(this);
  NameWidget(cmd_opslaan_, "cmd_opslaan");
  cmd_opslaan_->setDefault(true);
  cmd_annuleer_ = new QPushButton(this);
  NameWidget(cmd_annuleer_, "cmd_annuleer");
  cmd_annuleer_->setAutoDefault(false);
  connect(cmd_opslaan_, &QPushButton::clicked, this, &WizardDialog::ConfirmChoice);
  connect(cmd_annuleer_, &QPushButton::clicked, this, &WizardDialog::CloseWindow);
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(chk_wiz_);
  buttons->addSpacing(24);
  buttons->addStretch();
  buttons->addWidget(cmd_opslaan_);
  buttons->addWidget(cmd_annuleer_);
  return buttons;
}

void WizardDialog::Set_Taal() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(texts[kTitle]));
  lbl_welcome_->setText(ToQt(texts[kWelcome]));
  choice_->setTitle(CaptionFrom(texts[kMakeChoice]));
  for (const WizardRow& row : WizardRows()) {
    QAbstractButton* const option = options_->button(static_cast<int>(row.option));
    option->setText(CaptionFrom(texts[row.caption]));
    option->setToolTip(ToQt(texts[row.tip]));
    option->setAccessibleName(ToQt(texts[row.caption]));
    option->setAccessibleDescription(ToQt(texts[row.explanation]));
    lines_[static_cast<std::size_t>(row.option)]->setText(ToQt(texts[row.explanation]));
  }
  chk_wiz_->setText(CaptionFrom(texts[kShowWizard]));
  cmd_opslaan_->setText(CaptionFrom(texts[kOk]));
  cmd_opslaan_->setToolTip(ToQt(texts[kTipOk]));
  cmd_annuleer_->setText(CaptionFrom(texts[kClose]));
  cmd_annuleer_->setToolTip(ToQt(texts[kTipClose]));
  for (QAbstractButton* const button :
       std::initializer_list<QAbstractButton*>{chk_wiz_, cmd_opslaan_, cmd_annuleer_}) {
    button->setAccessibleName(button->text().trimmed());
  }
}

void WizardDialog::SetShowAtStart(bool shown) {
  chk_wiz_->setChecked(shown);
}

void WizardDialog::ConfirmChoice() {
  const int chosen = options_->checkedId();
  Confirm(program_, chosen < 0 ? std::nullopt : std::optional(static_cast<WizardOption>(chosen)),
          chk_wiz_->isChecked());
}

void WizardDialog::CloseWindow() {
  done(QDialog::Rejected);
}

void WizardDialog::done(int result) {
  open_flag_.Clear();
  QDialog::done(result);
}

void ShowWizardDialog(Program& program, QWidget* parent) {
  WizardDialog(program, parent).exec();
}

}  // namespace kelvora
