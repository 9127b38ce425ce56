#include "days/wizard_dialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
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

// Enter is for the button OK, on desktops too where it presses what has the focus.
class OptionButton : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return event->ignore();
    QRadioButton::keyPressEvent(event);
  }
};

// The picture, the caption and the line of one option, all of which choose it.
class OptionRow : public QWidget {
 public:
  OptionRow(QWidget* parent, QRadioButton* option) : QWidget(parent), option_(option) {
    option->setParent(this);
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
    option_->setChecked(true);
    option_->setFocus(Qt::MouseFocusReason);
  }

 private:
  QRadioButton* option_;
};

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
  ChooseFirstOption();
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
  auto* const rows = new QVBoxLayout(choice_);
  rows->setContentsMargins(8, 8, 8, 8);
  rows->setSpacing(2);
  for (const WizardRow& row : WizardRows()) rows->addWidget(BuildOption(row));
  return choice_;
}

QWidget* WizardDialog::BuildOption(const WizardRow& row) {
  const int i = static_cast<int>(row.option);
  const bool enabled = OptionEnabled(program_, row.option);
  auto* const option = new OptionButton(choice_);
  option->setObjectName(QStringLiteral("Option%1").arg(i + 1));
  QFont bold = option->font();
  bold.setBold(true);
  option->setFont(bold);
  options_->addButton(option, i);
  auto* const place = new OptionRow(choice_, option);
  QLabel* const picture =
      NewPicture(place, QStringLiteral("Pic_%1").arg(i + 1), row.icon, kOptionIconSize, enabled);
  QLabel* const line = NewLabel(place, QStringLiteral("lbl_%1").arg(i + 1));
  lines_[static_cast<std::size_t>(i)] = line;
  auto* const grid = new QGridLayout(place);
  grid->setContentsMargins(6, 4, 6, 4);
  grid->setHorizontalSpacing(14);
  grid->setVerticalSpacing(2);
  grid->setColumnStretch(1, 1);
  grid->addWidget(picture, 0, 0, 2, 1);
  grid->addWidget(option, 0, 1);
  grid->addWidget(line, 1, 1);
  place->setEnabled(enabled);
  return place;
}

// Enter alone then begins where most people want to.
void WizardDialog::ChooseFirstOption() {
  for (QAbstractButton* const option : options_->buttons()) {
    if (!option->isEnabled()) continue;
    option->setChecked(true);
    option->setFocus();
    return;
  }
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

// At the start the main window may not have its size yet; it is going to fill the screen.
void WizardDialog::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    const QWidget* const main = parentWidget();
    const bool fills = main == nullptr || main->isMaximized();
    const QRect around = fills ? screen()->availableGeometry() : main->frameGeometry();
    move(around.center() - rect().center());
  }
  QDialog::showEvent(event);
}

void WizardDialog::done(int result) {
  open_flag_.Clear();
  QDialog::done(result);
}

void ShowWizardDialog(Program& program, QWidget* parent) {
  WizardDialog(program, parent).exec();
}

}  // namespace kelvora
