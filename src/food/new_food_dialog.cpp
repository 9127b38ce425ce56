#include "food/new_food_dialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "food/number_box_panel.h"
#include "language/new_food_texts.h"
#include "platform/qt/choice_list.h"
#include "platform/qt/hint_label.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"
#include "platform/qt/text_box.h"

namespace kelvora {
namespace {

using namespace new_food_text;

// The rows that both frames share, so that each value stands beside its own portion.
constexpr int kFirstRow = 0;
constexpr int kUnitRow = 1;
constexpr int kWeightRow = 2;
constexpr int kValueRow = 3;
constexpr int kNoteRow = kValueRow + static_cast<int>(FoodValue::kCount);

constexpr int kColumns = 5;
constexpr int kColumnSpacing = 8;
constexpr int kFrameSpacing = 12;
constexpr int kBoxDigits = 7;  // the dialog fits a screen of 800 pixels in both languages
// Room beside the words of a button, more than the style gives.
constexpr int kButtonRoom = 16;

struct ValueRow {
  TextId caption;
  TextId unit;
};
constexpr std::array<ValueRow, FoodValue::kCount> kValueRows = {{
    {kKilojoules, kUnitKj},
    {kKilocalories, kUnitKcal},
    {kSaturatedFat, kGram},
    {kUnsaturatedFat, kGram},
    {kProtein, kGram},
    {kCarbohydrates, kGram},
    {kSodium, kGram},
}};

QString Numbered(const char* stem, std::size_t index) {
  return QStringLiteral("%1_%2").arg(QLatin1String(stem)).arg(index);
}

void SetBoxWidth(QLineEdit* box) {
  box->setFixedWidth(kBoxDigits * box->fontMetrics().horizontalAdvance(QLatin1Char('0')) + 12);
}

}  // namespace

NewFoodDialog::NewFoodDialog(Program& program, QWidget* parent)
    : QDialog(parent),
      program_(program),
      open_flag_(program.windows, program.windows.new_food, this),
      form_(EmptyNewFood(program)),
      submission_(program) {
  NameWidget(this, "KV_add_voedingsmiddel");
  auto* const frames = new QHBoxLayout;
  frames->setSpacing(kFrameSpacing);
  // Made in the order of the Tab key.
  frames_ = {BuildPrintedFrame(), BuildPortionFrame()};
  for (QGroupBox* const frame : frames_) frames->addWidget(frame);
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(kFrameSpacing);
  layout->addLayout(frames, 1);
  layout->addLayout(BuildButtons());
  Set_Taal();
  ShowForm();
  GoTo({NewFoodBox::Kind::printed_gram});
}

NewFoodDialog::~NewFoodDialog() {
  // A box that loses the focus in its own destruction still tells of it, and by then only the bare
  // dialog is left to hear.
  for (NumberBox* const box : number_boxes_) box->disconnect(this);
}

QGroupBox* NewFoodDialog::BuildPrintedFrame() {
  auto* const frame = new QGroupBox(this);
  QGridLayout* const grid = MakeGrid(frame, kOriginalFrame);
  AddIntroduction(grid);
  printed_weight_ =
      AddWeight(grid, "txt_s", kOriginalWeight, kTipOriginalWeight, &NewFoodForm::printed_weight);
  AddValueCaptions(grid, "txt_s");
  for (std::size_t i = 0; i < txt_s_.size(); ++i) {
    txt_s_[i] = AddPrintedValue(frame, i);
    grid->addWidget(txt_s_[i], kValueRow + static_cast<int>(i), 1);
    if (i != FoodValue::kKcal) continue;
    // Beside the two boxes that it links.
    chk_kj_ = new QCheckBox(frame);
    NameWidget(chk_kj_, "chk_kj");
    captions_.push_back({chk_kj_, kLinkEnergy, std::nullopt, kTipLinkEnergy});
    grid->addWidget(chk_kj_, kValueRow, 3, 2, 2);
    connect(chk_kj_, &QCheckBox::toggled, this, [this](bool on) {
      TickEnergyLink(program_, form_, on);
      ShowForm();
    });
  }
  auto* const warning = new HintLabel(frame, QStringLiteral("lbl_sodium_warning"));
  warning->setWordWrap(false);
  captions_.push_back({warning, kSodiumWarning});
  grid->addWidget(warning, kNoteRow, 1, 1, kColumns - 1);
  return frame;
}

QGroupBox* NewFoodDialog::BuildPortionFrame() {
  auto* const frame = new QGroupBox(this);
  QGridLayout* const grid = MakeGrid(frame, kNewFoodFrame);
  AddNameAndUnit(grid);
  portion_weight_ =
      AddWeight(grid, "txt_d", kPortionWeight, kTipPortionWeight, &NewFoodForm::portion_weight);
  AddValueCaptions(grid, "txt_d");
  for (std::size_t i = 0; i < txt_d_.size(); ++i) {
    txt_d_[i] = AddPortionValue(frame, i);
    grid->addWidget(txt_d_[i], kValueRow + static_cast<int>(i), 1);
  }
  return frame;
}

QHBoxLayout* NewFoodDialog::BuildButtons() {
  chk_inet_ = new QCheckBox(this);
  NameWidget(chk_inet_, "chk_inet");
  captions_.push_back({chk_inet_, kAddToInternet});
  connect(chk_inet_, &QCheckBox::clicked, this,
          [this](bool on) { StoreAddsToInternet(program_, on); });

  cmd_opslaan_ = new QPushButton(this);
  NameWidget(cmd_opslaan_, "cmd_opslaan");
  cmd_opslaan_->setDefault(true);
  captions_.push_back({cmd_opslaan_, kAdd, std::nullopt, kTipAdd});
  connect(cmd_opslaan_, &QPushButton::clicked, this, &NewFoodDialog::Add);
  cmd_annuleer_ = new QPushButton(this);
  NameWidget(cmd_annuleer_, "cmd_annuleer");
  cmd_annuleer_->setAutoDefault(false);
  captions_.push_back({cmd_annuleer_, kCancel, std::nullopt, kTipCancel});
  connect(cmd_annuleer_, &QPushButton::clicked, this, &NewFoodDialog::reject);

  auto* const row = new QHBoxLayout;
  row->addWidget(chk_inet_);
  row->addStretch();
  row->addWidget(cmd_opslaan_);
  row->addWidget(cmd_annuleer_);
  return row;
}

QGridLayout* NewFoodDialog::MakeGrid(QGroupBox* frame, TextId heading) {
  captions_.push_back({frame, heading});
  auto* const grid = new QGridLayout(frame);
  grid->setHorizontalSpacing(kColumnSpacing);
  grid->setColumnStretch(kColumns - 1, 1);
  const int row_height = QLineEdit().sizeHint().height();
  for (int row = kFirstRow; row <= kNoteRow; ++row) grid->setRowMinimumHeight(row, row_height);
  grid->setRowStretch(kNoteRow + 1, 1);
  return grid;
}

// Stands beside the name and the unit, so that the rows below keep level.
void NewFoodDialog::AddIntroduction(QGridLayout* grid) {
  lbl_info_ = NewLabel(grid->parentWidget(), QStringLiteral("lbl_info"));
  lbl_info_->setWordWrap(true);
  // A row in which nothing begins has no space above it; here that space is part of the row.
  grid->setRowMinimumHeight(kUnitRow, grid->rowMinimumHeight(kUnitRow) + grid->verticalSpacing());
  grid->addWidget(lbl_info_, kFirstRow, 0, kWeightRow - kFirstRow, kColumns, Qt::AlignTop);
}

void NewFoodDialog::AddNameAndUnit(QGridLayout* grid) {
  QWidget* const frame = grid->parentWidget();
  const EntryContext entry = EntryContextOf(program_);
  txt_dNaam_ = new TextBox(frame, QStringLiteral("txt_dNaam"), entry);
  combo_dEenheid_ = new DropDownList(frame, "combo_dEenheid");
  unit_ = new TextBox(combo_dEenheid_, QStringLiteral("combo_dEenheid_box"), entry);
  combo_dEenheid_->setLineEdit(unit_);
  combo_dEenheid_->setInsertPolicy(QComboBox::NoInsert);
  combo_dEenheid_->setCompleter(nullptr);  // what is typed stays as it is typed
  combo_dEenheid_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  captions_.push_back({txt_dNaam_, kName, kNewFoodFrame});
  captions_.push_back({combo_dEenheid_, kUnit, kNewFoodFrame, kTipUnit});
  QLabel* const name = AddLabel(frame, QStringLiteral("lbl_txt_dNaam"), kName);
  name->setBuddy(txt_dNaam_);
  QLabel* const unit = AddLabel(frame, QStringLiteral("lbl_combo_dEenheid"), kUnit);
  unit->setBuddy(combo_dEenheid_);
  grid->addWidget(name, kFirstRow, 0);
  grid->addWidget(txt_dNaam_, kFirstRow, 1, 1, kColumns - 1);
  grid->addWidget(unit, kUnitRow, 0);
  grid->addWidget(combo_dEenheid_, kUnitRow, 1, 1, kColumns - 1);
}

NewFoodDialog::WeightEdits NewFoodDialog::AddWeight(QGridLayout* grid, const char* stem,
                                                    TextId caption, TextId tip,
                                                    WeightBoxes NewFoodForm::*boxes) {
  QWidget* const frame = grid->parentWidget();
  const QString name = QLatin1String(stem);
  const WeightEdits edits{
      AddWeightBox(frame, name + QStringLiteral("Gram"), WeightUnit::gram, boxes),
      AddWeightBox(frame, name + QStringLiteral("Oz"), WeightUnit::oz, boxes)};
  captions_.push_back({edits.gram, kGram, caption, tip});
  captions_.push_back({edits.oz, kOz, caption, tip});
  QLabel* const label = AddLabel(frame, "lbl_" + name + "Gewicht", caption);
  label->setBuddy(edits.gram);
  grid->addWidget(label, kWeightRow, 0);
  grid->addWidget(edits.gram, kWeightRow, 1);
  grid->addWidget(AddLabel(frame, "lbl_" + name + "Gram", kGram), kWeightRow, 2);
  grid->addWidget(edits.oz, kWeightRow, 3);
  grid->addWidget(AddLabel(frame, "lbl_" + name + "Oz", kOz), kWeightRow, 4);
  return edits;
}

NumberBox* NewFoodDialog::AddWeightBox(QWidget* frame, const QString& name, WeightUnit unit,
                                       WeightBoxes NewFoodForm::*boxes) {
  const KeyFilter filter = unit == WeightUnit::gram ? KeyFilter::whole_number : KeyFilter::decimal;
  auto* const box = new NumberBox(frame, name, filter, EntryContextOf(program_));
  SetBoxWidth(box);
  number_boxes_.push_back(box);
  connect(box, &NumberBox::Typed, this,
          [this, box, unit, boxes] { TypeWeight(form_.*boxes, unit, box->Entered()); });
  connect(box, &NumberBox::Left, this, [this, unit, boxes] {
    AfterLeaving([&] { LeaveWeight(program_, form_, boxes, unit); });
  });
  return box;
}

void NewFoodDialog::AddValueCaptions(QGridLayout* grid, const char* stem) {
  QWidget* const frame = grid->parentWidget();
  for (std::size_t i = 0; i < kValueRows.size(); ++i) {
    const QString name = "lbl_" + Numbered(stem, i);
    const int row = kValueRow + static_cast<int>(i);
    grid->addWidget(AddLabel(frame, name, kValueRows[i].caption), row, 0);
    grid->addWidget(AddLabel(frame, name + "_unit", kValueRows[i].unit), row, 2);
  }
}

NumberBox* NewFoodDialog::AddPrintedValue(QWidget* frame, std::size_t index) {
  auto* const box =
      new NumberBox(frame, Numbered("txt_s", index), KeyFilter::decimal, EntryContextOf(program_));
  SetBoxWidth(box);
  number_boxes_.push_back(box);
  captions_.push_back({box, kValueRows[index].caption, kOriginalFrame});
  connect(box, &NumberBox::Typed, this,
          [this, box, index] { TypeValue(form_, index, box->Entered()); });
  connect(box, &NumberBox::Left, this,
          [this, index] { AfterLeaving([&] { LeaveValue(program_, form_, index); }); });
  return box;
}

TextBox* NewFoodDialog::AddPortionValue(QWidget* frame, std::size_t index) {
  auto* const box = new TextBox(frame, Numbered("txt_d", index), EntryContextOf(program_));
  box->setAlignment(Qt::AlignRight);
  SetBoxWidth(box);
  SetLocked(box, true);
  captions_.push_back({box, kValueRows[index].caption, kNewFoodFrame});
  return box;
}

QLabel* NewFoodDialog::AddLabel(QWidget* frame, const QString& name, TextId text) {
  QLabel* const label = NewLabel(frame, name);
  captions_.push_back({label, text});
  return label;
}

void NewFoodDialog::CloseWindow() {
  submission_.GiveUp();
  done(QDialog::Rejected);
}

// The words at the top take more lines in a narrow window.
void NewFoodDialog::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  setMinimumHeight(layout()->minimumHeightForWidth(width()));
}

void NewFoodDialog::done(int result) {
  open_flag_.Clear();
  QDialog::done(result);
}

void NewFoodDialog::Set_Taal() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(texts[kTitle]));
  lbl_info_->setText(ToQt(JoinLines(texts, {kIntroduction, kIntroductionPortion})));
  for (const auto& [widget, text_id, frame, tip] : captions_) {
    const QString text = ToQt(texts[text_id]);
    if (auto* const label = qobject_cast<QLabel*>(widget)) {
      label->setText(text);
    } else if (auto* const group = qobject_cast<QGroupBox*>(widget)) {
      group->setTitle(CaptionFrom(texts[text_id]));
    } else if (auto* const button = qobject_cast<QAbstractButton*>(widget)) {
      button->setText(CaptionFrom(texts[text_id]));
    }
    if (qobject_cast<QLabel*>(widget) == nullptr) {
      widget->setAccessibleName(frame ? ToQt(texts[*frame]) + " " + text : text);
    }
    if (tip) widget->setToolTip(ToQt(texts[*tip]));
  }
  unit_->setAccessibleName(combo_dEenheid_->accessibleName());
  FollowSettings();
  for (QPushButton* const button : {cmd_opslaan_, cmd_annuleer_}) {
    button->setMinimumWidth(button->sizeHint().width() + kButtonRoom);
  }
  TakeTexts();
  combo_dEenheid_->clear();
  for (const Text& unit : UnitChoices(texts)) combo_dEenheid_->addItem(ToQt(unit));
  combo_dEenheid_->setCurrentIndex(-1);
  unit_->ShowText(form_.combo_dEenheid);
}

void NewFoodDialog::FollowSettings() {
  chk_inet_->setChecked(AddsToInternet(program_));
  chk_inet_->setEnabled(MayAddToInternet(program_));
  chk_inet_->setToolTip(ToQt(AddToInternetTip(program_)));
}

void NewFoodDialog::ShowForm() {
  txt_dNaam_->ShowText(form_.txt_dNaam);
  unit_->ShowText(form_.combo_dEenheid);
  for (const auto& [edits, boxes] : {std::pair{printed_weight_, &form_.printed_weight},
                                     std::pair{portion_weight_, &form_.portion_weight}}) {
    edits.gram->ShowText(boxes->gram);
    edits.oz->ShowText(boxes->oz);
  }
  for (std::size_t i = 0; i < FoodValue::kCount; ++i) {
    txt_s_[i]->ShowText(form_.txt_s[i]);
    txt_d_[i]->ShowText(form_.txt_d[i]);
  }
}

void NewFoodDialog::TakeTexts() {
  form_.txt_dNaam = txt_dNaam_->Entered();
  form_.combo_dEenheid = unit_->Entered();
}

template <class Leave>
void NewFoodDialog::AfterLeaving(Leave leave) {
  if (program_.windows.new_food != this) return;
  TakeTexts();
  leave();
  ShowForm();
}

void NewFoodDialog::LeaveFocusedBox() {
  if (auto* const box = qobject_cast<NumberBox*>(focusWidget())) emit box->Left();
}

void NewFoodDialog::GoTo(NewFoodBox box) {
  QLineEdit* const edit = BoxOf(box);
  edit->setFocus();
  edit->selectAll();
}

QLineEdit* NewFoodDialog::BoxOf(NewFoodBox box) const {
  using Kind = NewFoodBox::Kind;
  switch (box.kind) {
    case Kind::name:
      return txt_dNaam_;
    case Kind::unit:
      return combo_dEenheid_->lineEdit();
    case Kind::printed_gram:
      return printed_weight_.gram;
    case Kind::printed_oz:
      return printed_weight_.oz;
    case Kind::portion_gram:
      return portion_weight_.gram;
    case Kind::portion_oz:
      return portion_weight_.oz;
    case Kind::value:
      break;
  }
  return txt_s_[box.value];
}

void ShowNewFoodDialog(Program& program, QWidget* parent) {
  NewFoodDialog(program, parent).exec();
}

}  // namespace kelvora
