#include "days/day_targets_panel.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include "language/day_settings_texts.h"
#include "platform/qt/choice_list.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"
#include "platform/qt/text_box.h"

namespace kelvora {
namespace {

using namespace day_settings_text;

constexpr int kSliderWidth = 130;  // the dialog fits a screen of 800 pixels in both languages
constexpr int kBoxDigits = 7;

}  // namespace

DayTargetsPanel::DayTargetsPanel(Program& program, DayEditing& editing, QWidget* parent)
    : QWidget(parent), program_(program), editing_(editing) {
  priority_ = BuildPriority();
  targets_ = BuildTargets();
  chk_apply_ = new QCheckBox(this);
  NameWidget(chk_apply_, "chk_apply");
  chk_apply_->setChecked(AppliesAtOnce(program_));
  connect(chk_apply_, &QCheckBox::toggled, this,
          [this](bool on) { SetAppliesAtOnce(program_, on); });
  auto* const groups = new QHBoxLayout;
  groups->setSpacing(16);
  groups->addWidget(priority_);
  groups->addWidget(targets_, 1);
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(groups);
  layout->addWidget(chk_apply_);
  layout->addStretch();
}

QGroupBox* DayTargetsPanel::BuildPriority() {
  auto* const group = new QGroupBox(this);
  NameWidget(group, "type_prioriteit");
  auto* const layout = new QVBoxLayout(group);
  type_prioriteit_ = new QButtonGroup(this);
  for (int i = 0; i < static_cast<int>(PriorityOptions().size()); ++i) {
    auto* const option = new QRadioButton(group);
    option->setObjectName(QStringLiteral("type_prioriteit_%1").arg(i));
    type_prioriteit_->addButton(option, i);
    layout->addWidget(option);
  }
  layout->addStretch();
  connect(type_prioriteit_, &QButtonGroup::idToggled, this, [this](int index, bool on) {
    if (on) TakePriority(index);
  });
  return group;
}

QGroupBox* DayTargetsPanel::BuildTargets() {
  auto* const group = new QGroupBox(this);
  NameWidget(group, "frame_targets");
  auto* const grid = new QGridLayout(group);
  grid->setColumnStretch(1, 1);
  grid->setVerticalSpacing(10);
  for (const Target target : kAllTargets) AddSliderRow(group, target);
  txt_kcal_ = MakeBox(group, "txt_kcal");
  kcal_unit_ = NewLabel(group, QStringLiteral("txt_kcal_unit"));
  grid->addWidget(txt_kcal_, 0, 4);
  grid->addWidget(kcal_unit_, 0, 5);

  lbl_default_ = NewLabel(group, QStringLiteral("lbl_Combo_default"));
  Combo_default_ = new ChoiceList(group, "Combo_default");
  lbl_default_->setBuddy(Combo_default_);
  connect(Combo_default_, &QComboBox::activated, this, &DayTargetsPanel::TakeAgeGroup);
  const int row = static_cast<int>(kTargetCount);
  grid->addWidget(lbl_default_, row, 0);
  grid->addWidget(Combo_default_, row, 1);
  return group;
}

TextBox* DayTargetsPanel::MakeBox(QGroupBox* group, std::string_view name) {
  auto* const box = new TextBox(group, ToQt(name), EntryContextOf(program_));
  box->setReadOnly(true);
  box->setFocusPolicy(Qt::NoFocus);
  box->setAlignment(Qt::AlignRight);
  box->setFixedWidth(kBoxDigits * fontMetrics().horizontalAdvance(QLatin1Char('0')) + 12);
  return box;
}

void DayTargetsPanel::AddSliderRow(QGroupBox* group, Target target) {
  const auto index = static_cast<std::size_t>(target);
  const TargetSlider& range = TargetSliders()[index];
  auto* const slider = new QSlider(Qt::Horizontal, group);
  slider->setObjectName(ToQt(range.name));
  slider->setRange(range.minimum, range.maximum);
  slider->setPageStep(range.large_step);
  slider->setSingleStep(range.small_step);
  slider->setMinimumWidth(kSliderWidth);
  connect(slider, &QSlider::valueChanged, this,
          [this, target](int position) { TakeSlider(target, position); });
  QLabel* const caption = NewLabel(group, QStringLiteral("lbl_") + slider->objectName());
  caption->setBuddy(slider);
  TextBox* const box = MakeBox(group, range.box_name);
  QLabel* const unit = NewLabel(group, box->objectName() + QStringLiteral("_unit"));
  auto* const grid = static_cast<QGridLayout*>(group->layout());
  int column = 0;
  for (QWidget* const widget : std::initializer_list<QWidget*>{caption, slider, box, unit}) {
    grid->addWidget(widget, static_cast<int>(index), column++);
  }
  rows_[index] = {caption, slider, box, unit};
}

void DayTargetsPanel::Set_Taal() {
  const TextTables& texts = program_.texts;
  priority_->setTitle(CaptionFrom(texts[kPriority]));
  priority_->setToolTip(ToQt(texts[kTipPriority]));
  for (QAbstractButton* const option : type_prioriteit_->buttons()) {
    const auto index = static_cast<std::size_t>(type_prioriteit_->id(option));
    option->setText(CaptionFrom(texts[PriorityOptions()[index]]));
    option->setAccessibleName(ToQt(texts[PriorityOptions()[index]]));
  }
  targets_->setTitle(CaptionFrom(texts[kTargets]));
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const TargetSlider& row = TargetSliders()[i];
    const QString caption = ToQt(texts[row.caption]);
    const QString unit = ToQt(texts[row.unit]);
    rows_[i].caption->setText(caption);
    rows_[i].unit->setText(unit);
    rows_[i].slider->setToolTip(ToQt(texts[kTipTargets]));
    rows_[i].box->setAccessibleName(caption + QLatin1Char(' ') + unit);
  }
  NameSliders();
  const QString kcal = ToQt(texts[kTargetUnitKcal]);
  kcal_unit_->setText(kcal);
  txt_kcal_->setAccessibleName(rows_[0].caption->text() + QLatin1Char(' ') + kcal);
  lbl_default_->setText(ToQt(texts[kResetValues]));
  Combo_default_->setAccessibleName(ToQt(texts[kResetValues]));
  Combo_default_->setToolTip(ToQt(texts[kTipReset]));
  const QSignalBlocker quiet(Combo_default_);
  const int chosen = Combo_default_->currentIndex();
  Combo_default_->clear();
  for (const AgeGroup& group : AgeGroups()) Combo_default_->addItem(ToQt(texts[group.caption]));
  Combo_default_->setCurrentIndex(chosen);
  chk_apply_->setText(CaptionFrom(texts[kApplyAutomatically]));
  chk_apply_->setAccessibleName(ToQt(texts[kApplyAutomatically]));
  chk_apply_->setToolTip(ToQt(texts[kTipApply]));
}

// A slider counts in steps of its own: what is read of it is what the box beside it shows.
void DayTargetsPanel::NameSliders() {
  for (const Row& row : rows_) {
    row.slider->setAccessibleName(
        QStringLiteral("%1 %2 %3").arg(row.caption->text(), row.box->text(), row.unit->text()));
  }
}

void DayTargetsPanel::ShowForm() {
  const DayForm& form = editing_.form;
  const QSignalBlocker quiet(type_prioriteit_);
  const int priority = static_cast<int>(PriorityOf(form.type_prioriteit));
  type_prioriteit_->button(priority)->setChecked(true);
  Combo_default_->setCurrentIndex(-1);
  ShowBoxes();
}

void DayTargetsPanel::TakeSlider(Target target, int position) {
  MoveSlider(editing_.form, target, position);
  ShowBoxes();
  ApplyAtOnce(program_, editing_);
}

void DayTargetsPanel::TakeAgeGroup(int index) {
  SetTargetsOf(editing_.form, AgeGroups()[static_cast<std::size_t>(index)]);
  ShowBoxes();
  ApplyAtOnce(program_, editing_);
}

void DayTargetsPanel::TakePriority(int index) {
  editing_.form.type_prioriteit = std::to_string(index);
  ApplyAtOnce(program_, editing_);
}

// The form is right already: the sliders follow it without a word.
void DayTargetsPanel::ShowBoxes() {
  const DayForm& form = editing_.form;
  for (const Target target : kAllTargets) {
    const auto index = static_cast<std::size_t>(target);
    const QSignalBlocker quiet(rows_[index].slider);
    rows_[index].slider->setValue(PositionOf(form, target));
    rows_[index].box->ShowText(form.*TargetSliders()[index].box);
  }
  NameSliders();
  txt_kcal_->ShowText(form.txt_kcal);
}

}  // namespace kelvora
