#include "days/day_person_panel.h"

#include <algorithm>
#include <utility>

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "days/day_hints.h"
#include "language/day_settings_texts.h"
#include "platform/qt/accessibility.h"
#include "platform/qt/choice_list.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace day_settings_text;

constexpr int kCaptionColumn = 0;
constexpr int kFieldColumn = 1;
constexpr int kHintColumn = 2;
// The columns of both groups stand below each other.
constexpr int kFieldWidth = 172;
constexpr int kColumnSpacing = 12;
constexpr int kGenderLetters = 12;

QGroupBox* NewGroup(QWidget* parent, const char* name) {
  auto* const group = new QGroupBox(parent);
  NameWidget(group, name);
  auto* const grid = new QGridLayout(group);
  grid->setColumnStretch(kHintColumn, 1);
  grid->setHorizontalSpacing(kColumnSpacing);
  grid->setColumnMinimumWidth(kFieldColumn, kFieldWidth);
  return group;
}

QGridLayout* GridOf(QGroupBox* group) {
  return static_cast<QGridLayout*>(group->layout());
}

}  // namespace

DayPersonPanel::DayPersonPanel(Program& program, DayForm& form, QWidget* parent)
    : QWidget(parent),
      program_(program),
      form_(form),
      metric_(UnitSystemOf(program) == UnitSystem::metric) {
  // Made in the order of the Tab key.
  person_ = BuildPerson();
  day_ = BuildDay();
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(person_);
  layout->addWidget(day_);
  layout->addStretch();
}

QGroupBox* DayPersonPanel::BuildPerson() {
  QGroupBox* const group = NewGroup(this, "frame_person");
  int row = 0;
  AddFieldRow(group, row++, DayFieldId::pg_0);
  pg_7_ = new ChoiceList(group, "pg_7");
  // A stored word may be of any length.
  pg_7_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  pg_7_->setMinimumContentsLength(kGenderLetters);
  AddCaption(GridOf(group), row, QStringLiteral("lbl_pg_7"), kGender)->setBuddy(pg_7_);
  GridOf(group)->addWidget(pg_7_, row++, kFieldColumn);
  connect(pg_7_, &QComboBox::currentIndexChanged, this,
          [this] { form_.pg_7 = FromQt(pg_7_->currentData().toString()); });
  AddFieldRow(group, row++, DayFieldId::pg_8);
  lbl_lengteinfo_ = AddHint(GridOf(group), row, "lbl_lengteinfo");
  if (metric_) {
    AddMeasureRow(group, row++, {DayFieldId::txt_lengte_m}, kHeight, kMeter);
  } else {
    AddMeasureRow(group, row++, {DayFieldId::txt_lengte_i1, DayFieldId::txt_lengte_i2}, kHeight,
                  kFeetInch);
  }
  lbl_streefgewichtinfo_ = AddHint(GridOf(group), row, "lbl_streefgewichtinfo");
  AddMeasureRow(group, row, {DayFieldId::txt_streefgewicht}, kGoalWeight,
                metric_ ? kKilogram : kPounds);
  return group;
}

QGroupBox* DayPersonPanel::BuildDay() {
  QGroupBox* const group = NewGroup(this, "frame_day");
  int row = 0;
  AddDateRow(group, row++);
  AddFieldRow(group, row++, DayFieldId::pg_11);
  lbl_gewichtinfo_ = AddHint(GridOf(group), row, "lbl_gewichtinfo");
  AddMeasureRow(group, row, {DayFieldId::txt_gewicht}, kWeight, metric_ ? kKilogram : kPounds);
  return group;
}

DayFieldBox* DayPersonPanel::MakeBox(QGroupBox* group, DayFieldId id) {
  DayFieldBox* const box = boxes_.emplace_back(new DayFieldBox(program_, form_, id, group));
  connect(box, &DayFieldBox::Taken, this, [this, id] {
    if (IsPartOfDate(id)) BoxOf(DayFieldId::pg_11)->ShowForm();  // it may have followed
    ShowHints();
  });
  return box;
}

QLabel* DayPersonPanel::AddCaption(QGridLayout* grid, int row, const QString& name, TextId text) {
  QLabel* const label = NewLabel(grid->parentWidget(), name);
  captions_.push_back({label, text});
  grid->addWidget(label, row, kCaptionColumn);
  return label;
}

QLabel* DayPersonPanel::AddHint(QGridLayout* grid, int row, const char* name) {
  QLabel* const label = NewLabel(grid->parentWidget(), QLatin1String(name));
  label->setForegroundRole(QPalette::PlaceholderText);
  grid->addWidget(label, row, kHintColumn);
  return label;
}

void DayPersonPanel::AddFieldRow(QGroupBox* group, int row, DayFieldId id) {
  DayFieldBox* const box = MakeBox(group, id);
  AddCaption(GridOf(group), row, QStringLiteral("lbl_") + box->objectName(), FieldOfId(id).caption)
      ->setBuddy(box);
  const bool wide = id == DayFieldId::pg_0;
  GridOf(group)->addWidget(box, row, kFieldColumn, 1, wide ? 2 : 1);
}

void DayPersonPanel::AddMeasureRow(QGroupBox* group, int row, const std::vector<DayFieldId>& ids,
                                   TextId caption, TextId unit) {
  auto* const line = new QHBoxLayout;
  line->setSpacing(6);
  for (const DayFieldId id : ids) line->addWidget(MakeBox(group, id));
  DayFieldBox* const last = boxes_.back();
  QLabel* const label = NewLabel(group, last->objectName() + QStringLiteral("_unit"));
  captions_.push_back({label, unit});
  line->addWidget(label);
  line->addStretch();
  GridOf(group)->addLayout(line, row, kFieldColumn);
  AddCaption(GridOf(group), row, QStringLiteral("lbl_") + last->objectName(), caption)
      ->setBuddy(BoxOf(ids.front()));
}

void DayPersonPanel::AddDateRow(QGroupBox* group, int row) {
  std::vector<DayFieldId> order = {DayFieldId::pg_9_a, DayFieldId::pg_9_b, DayFieldId::pg_9_c};
  if (UnitSystemOf(program_) == UnitSystem::imperial_us) std::swap(order[0], order[1]);
  AddCaption(GridOf(group), row, QStringLiteral("lbl_pg_9"), kDate);
  auto* const boxes = new QGridLayout;
  boxes->setHorizontalSpacing(6);
  boxes->setVerticalSpacing(1);
  int column = 0;
  for (const DayFieldId id : order) {
    DayFieldBox* const box = MakeBox(group, id);
    QLabel* const label = NewLabel(group, QStringLiteral("lbl_") + box->objectName());
    label->setBuddy(box);
    captions_.push_back({label, FieldOfId(id).caption});
    boxes->addWidget(label, 0, column);
    boxes->addWidget(box, 1, column++, Qt::AlignLeft);  // its word may be wider
  }
  GridOf(group)->addLayout(boxes, row, kFieldColumn, Qt::AlignLeft);
  lbl_datuminfo_ = AddHint(GridOf(group), row, "lbl_datuminfo");
}

DayFieldBox* DayPersonPanel::BoxOf(DayFieldId id) const {
  return *std::ranges::find(boxes_, id, &DayFieldBox::Id);
}

void DayPersonPanel::Set_Taal() {
  const TextTables& texts = program_.texts;
  person_->setTitle(ToQt(texts[kFramePerson]));
  day_->setTitle(ToQt(texts[kFrameDay]));
  for (const auto& [label, text] : captions_) label->setText(ToQt(texts[text]));
  for (DayFieldBox* const box : boxes_) box->Set_Taal();
  pg_7_->setAccessibleName(ToQt(texts[kGender]));
  int widest = 0;
  for (QGroupBox* const group : {person_, day_}) {
    for (int row = 0; row < GridOf(group)->rowCount(); ++row) {
      const QLayoutItem* const caption = GridOf(group)->itemAtPosition(row, kCaptionColumn);
      if (caption != nullptr) widest = std::max(widest, caption->widget()->sizeHint().width());
    }
  }
  for (QGroupBox* const group : {person_, day_}) {
    GridOf(group)->setColumnMinimumWidth(kCaptionColumn, widest);
  }
  ShowGender();
  ShowHints();
}

void DayPersonPanel::ShowForm() {
  for (DayFieldBox* const box : boxes_) box->ShowForm();
  ShowGender();
  ShowHints();
}

void DayPersonPanel::TakeForm() {
  for (DayFieldBox* const box : boxes_) box->TakeForm();
}

void DayPersonPanel::SetNameEnabled(bool enabled) {
  BoxOf(DayFieldId::pg_0)->setEnabled(enabled);
}

void DayPersonPanel::FocusName() {
  BoxOf(DayFieldId::pg_0)->setFocus();
}

void DayPersonPanel::FocusWeight() {
  DayFieldBox* const weight = BoxOf(DayFieldId::txt_gewicht);
  weight->setFocus();
  weight->selectAll();
}

// The list of the language, and the stored word too if it is of another language.
void DayPersonPanel::ShowGender() {
  const QSignalBlocker quiet(pg_7_);
  pg_7_->clear();
  std::vector<Text> genders = {program_.texts[kMale], program_.texts[kFemale]};
  const bool listed = std::ranges::find(genders, form_.pg_7) != genders.end();
  if (!form_.pg_7.empty() && !listed) genders.push_back(form_.pg_7);
  for (const Text& gender : genders) pg_7_->addItem(ToQt(gender), ToQtWhole(gender));
  pg_7_->setCurrentIndex(pg_7_->findData(ToQtWhole(form_.pg_7)));
}

void DayPersonPanel::ShowHints() {
  const DayHints hints = DrawCoversionsText(program_, form_);
  const auto show = [](QLabel* label, const Text& hint) {
    label->setText(ToQt(hint));
    HideWhileEmpty(*label);
  };
  show(lbl_lengteinfo_, hints.lbl_lengteinfo);
  show(lbl_gewichtinfo_, hints.lbl_gewichtinfo);
  show(lbl_streefgewichtinfo_, hints.lbl_streefgewichtinfo);
  show(lbl_datuminfo_, hints.lbl_datuminfo);
}

}  // namespace kelvora
