#include "food/food_details_dialog.h"

#include <utility>

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "food/composition_panel.h"
#include "food/number_box_panel.h"
#include "language/food_details_texts.h"
#include "platform/qt/hint_label.h"
#include "platform/qt/long_label.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"
#include "platform/qt/text_box.h"

namespace kelvora {
namespace {

using namespace food_details_text;

constexpr int kWidth = 700;
constexpr int kWeightWidth = 90;
constexpr int kValueWidth = 110;
constexpr int kSpacing = 12;
constexpr int kButtonRoom = 16;  // beside the words of a button, more than the style gives

// The boxes that an edit unlocks besides the values.
constexpr std::array kDescriptionBoxes = {PortionBox::kProduct, PortionBox::kUnit,
                                          PortionBox::kGroup, PortionBox::kRemark};

struct ValueTexts {
  TextId caption, unit, portion_name, per_100_grams_name;
};
constexpr std::array<ValueTexts, kValueCount> kValues = {{
    {kKilojoules, kUnitKj, kPortionKilojoules, kPer100GramsKilojoules},
    {kKilocalories, kUnitKcal, kPortionKilocalories, kPer100GramsKilocalories},
    {kUnsaturatedFat, kUnitGram, kPortionUnsaturatedFat, kPer100GramsUnsaturatedFat},
    {kSaturatedFat, kUnitGram, kPortionSaturatedFat, kPer100GramsSaturatedFat},
    {kSodium, kUnitGram, kPortionSodium, kPer100GramsSodium},
    {kProtein, kUnitGram, kPortionProtein, kPer100GramsProtein},
    {kCarbohydrates, kUnitGram, kPortionCarbohydrates, kPer100GramsCarbohydrates},
}};

// Shows a text from its beginning. A box that shows it already keeps its cursor.
void Show(TextBox* box, const Text& text) {
  const QString before = box->text();
  box->ShowText(text);
  if (box->text() != before) box->setCursorPosition(0);
}

}  // namespace

FoodDetailsDialog::FoodDetailsDialog(Program& program, std::string_view tag, std::string_view line,
                                     QWidget* parent)
    : QDialog(parent),
      program_(program),
      open_flag_(program.windows, program.windows.food_details, this),
      details_(OpenDetails(program, tag, line)) {
  NameWidget(this, "KV_foodpopup");
  // Made in the order of the Tab key.
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(kSpacing);
  layout->addLayout(BuildDescription());
  auto* const middle = new QHBoxLayout;
  middle->setSpacing(kSpacing);
  BuildTabs();
  middle->addWidget(TabStrip_, 3);
  middle->addWidget(BuildComposition(), 2);
  layout->addLayout(middle, 1);
  layout->addLayout(BuildButtons());

  Set_Taal();
  ShowDetails();
  TabStrip_->setFocus();
  resize(kWidth, sizeHint().height());
}

FoodDetailsDialog::~FoodDetailsDialog() {
  // A box that loses the focus in its own destruction still tells of it, and by then only the bare
  // dialog is left to hear.
  for (TextBox* const box : findChildren<TextBox*>()) box->disconnect(this);
}

QGridLayout* FoodDetailsDialog::BuildDescription() {
  auto* const grid = new QGridLayout;
  grid->setColumnStretch(1, 1);
  int row = 0;
  AddDescriptionRow(grid, row++, PortionBox::kProduct, kFoodItem);
  AddDescriptionRow(grid, row++, PortionBox::kUnit, kUnit);
  AddWeightRow(grid, row++);
  AddDescriptionRow(grid, row++, PortionBox::kGroup, kFoodGroup);
  AddDescriptionRow(grid, row++, PortionBox::kRemark, kRemarks);
  return grid;
}

void FoodDetailsDialog::AddDescriptionRow(QGridLayout* grid, int row, std::size_t box,
                                          TextId caption) {
  auto* const edit =
      new TextBox(this, QStringLiteral("bVar_%1").arg(box), EntryContextOf(program_));
  bVar_[box] = edit;
  connect(edit, &QLineEdit::textEdited, this,
          [this, box, edit] { details_.bVar[box] = edit->Entered(); });
  QLabel* const label = AddCaption(QStringLiteral("lbl_bVar_%1").arg(box), caption);
  label->setBuddy(edit);
  grid->addWidget(label, row, 0);
  grid->addWidget(edit, row, 1);
}

void FoodDetailsDialog::AddWeightRow(QGridLayout* grid, int row) {
  const EntryContext entry = EntryContextOf(program_);
  txt_gram_ = new NumberBox(this, QStringLiteral("txt_gram"), KeyFilter::whole_number, entry);
  txt_oz_ = new NumberBox(this, QStringLiteral("txt_oz"), KeyFilter::decimal, entry);
  QLabel* const label = AddCaption(QStringLiteral("lbl_weight"), kWeight);
  label->setBuddy(txt_gram_);
  auto* const boxes = new QHBoxLayout;
  for (NumberBox* const box : {txt_gram_, txt_oz_}) {
    connect(box, &NumberBox::Typed, this, [this, box] { typed_weight_ = box; });
    connect(box, &NumberBox::Left, this, &FoodDetailsDialog::TakeWeight);
    box->setFixedWidth(kWeightWidth);
    boxes->addWidget(box);
    boxes->addWidget(AddCaption(box->objectName() + QStringLiteral("_unit"),
                                box == txt_gram_ ? kUnitGram : kUnitOz));
    boxes->addSpacing(kSpacing);
  }
  boxes->addStretch();
  grid->addWidget(label, row, 0);
  grid->addLayout(boxes, row, 1);
}

void FoodDetailsDialog::BuildTabs() {
  TabStrip_ = new QTabWidget(this);
  NameWidget(TabStrip_, "TabStrip");
  MakeOneStop(TabStrip_);
  // A stored weight may be of any length.
  TabStrip_->setUsesScrollButtons(false);
  TabStrip_->setElideMode(Qt::ElideRight);
  BuildPortion();
  BuildPer100Grams();
  connect(TabStrip_, &QTabWidget::currentChanged, this, &FoodDetailsDialog::ShowButtons);
}

FoodDetailsDialog::Frame FoodDetailsDialog::MakeFrame(const char* name) {
  auto* const page = new QWidget(TabStrip_);
  NameWidget(page, name);
  auto* const layout = new QVBoxLayout(page);
  auto* const heading = new LongLabel(page, QString::fromLatin1(name) + QStringLiteral("_heading"));
  auto* const grid = new QGridLayout;
  grid->setColumnStretch(3, 1);
  layout->addWidget(heading);
  layout->addSpacing(4);
  layout->addLayout(grid);
  layout->addStretch();
  TabStrip_->addTab(page, QString());
  return {page, heading, grid};
}

void FoodDetailsDialog::BuildPortion() {
  Frame_a_ = MakeFrame("Frame_a");
  for (std::size_t value = 0; value < kValueCount; ++value) {
    const std::size_t place = PortionBoxOf(value);
    auto* const box =
        new TextBox(Frame_a_.page, QStringLiteral("bVar_%1").arg(place), EntryContextOf(program_));
    box->setAlignment(Qt::AlignRight);
    SetLocked(box, true);  // the values of a portion always follow from those per 100 grams
    bVar_[place] = box;
    AddValueRow(Frame_a_, value, box);
  }
}

void FoodDetailsDialog::BuildPer100Grams() {
  Frame_b_ = MakeFrame("Frame_b");
  for (std::size_t value = 0; value < kValueCount; ++value) {
    auto* const box = new NumberBox(Frame_b_.page, QStringLiteral("oVar_%1").arg(value),
                                    KeyFilter::decimal, EntryContextOf(program_));
    connect(box, &QLineEdit::textChanged, this,
            [this, value, box] { details_.oVar[value] = box->Entered(); });
    oVar_[value] = box;
    AddValueRow(Frame_b_, value, box);
  }
  edit_hint_ = new HintLabel(Frame_b_.page, QStringLiteral("lbl_edit_hint"));
  captions_.push_back({edit_hint_, kEditHint});
  Frame_b_.page->layout()->addWidget(edit_hint_);
}

void FoodDetailsDialog::AddValueRow(const Frame& frame, std::size_t value, TextBox* box) {
  const int row = static_cast<int>(value);
  QLabel* const caption =
      AddCaption(QStringLiteral("lbl_") + box->objectName(), kValues[value].caption);
  caption->setBuddy(box);
  box->setFixedWidth(kValueWidth);
  frame.grid->addWidget(caption, row, 0);
  frame.grid->addWidget(box, row, 1);
  frame.grid->addWidget(
      AddCaption(box->objectName() + QStringLiteral("_unit"), kValues[value].unit), row, 2);
}

QWidget* FoodDetailsDialog::BuildComposition() {
  auto* const group = new QWidget(this);
  auto* const layout = new QVBoxLayout(group);
  layout->setContentsMargins(0, 8, 0, 0);
  layout->addWidget(AddCaption(QStringLiteral("lbl_composition"), kCompositionHeading));
  layout->addSpacing(4);
  pBar_ = new CompositionPanel(group);
  layout->addWidget(pBar_, 1);
  return group;
}

QHBoxLayout* FoodDetailsDialog::BuildButtons() {
  chk_favo_ = new QCheckBox(this);
  NameWidget(chk_favo_, "chk_favo");
  connect(chk_favo_, &QCheckBox::toggled, this, [this](bool on) { details_.chk_favo = on; });
  const auto make = [this](const char* name, void (FoodDetailsDialog::*press)()) {
    auto* const button = new QPushButton(this);
    NameWidget(button, name);
    connect(button, &QPushButton::clicked, this, press);
    return button;
  };
  cmd_bewerk_ = make("cmd_bewerk", &FoodDetailsDialog::Edit);
  cmd_opslaan_ = make("cmd_opslaan", &FoodDetailsDialog::Save);
  cmd_annuleer_ = make("cmd_annuleer", &FoodDetailsDialog::CloseWindow);
  auto* const row = new QHBoxLayout;
  row->addWidget(chk_favo_);
  row->addStretch();
  for (QPushButton* const button : {cmd_bewerk_, cmd_opslaan_, cmd_annuleer_}) {
    row->addWidget(button);
  }
  return row;
}

QLabel* FoodDetailsDialog::AddCaption(const QString& name, TextId text) {
  QLabel* const label = NewLabel(this, name);
  captions_.push_back({label, text});
  return label;
}

void FoodDetailsDialog::CloseWindow() {
  done(QDialog::Rejected);
}

void FoodDetailsDialog::done(int result) {
  open_flag_.Clear();
  QDialog::done(result);
}

void FoodDetailsDialog::Set_Taal() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(texts[kTitle]));
  for (const auto& [label, text] : captions_) label->setText(ToQt(texts[text]));
  bVar_[PortionBox::kProduct]->setAccessibleName(ToQt(texts[kFoodItem]));
  bVar_[PortionBox::kUnit]->setAccessibleName(ToQt(texts[kUnit]));
  bVar_[PortionBox::kGroup]->setAccessibleName(ToQt(texts[kFoodGroup]));
  bVar_[PortionBox::kRemark]->setAccessibleName(ToQt(texts[kRemarks]));
  for (std::size_t value = 0; value < kValueCount; ++value) {
    bVar_[PortionBoxOf(value)]->setAccessibleName(ToQt(texts[kValues[value].portion_name]));
    oVar_[value]->setAccessibleName(ToQt(texts[kValues[value].per_100_grams_name]));
  }
  txt_gram_->setAccessibleName(ToQt(texts[kWeight] + " " + texts[kUnitGram]));
  txt_gram_->setToolTip(ToQt(texts[kTipGram]));
  txt_oz_->setAccessibleName(ToQt(texts[kWeight] + " " + texts[kUnitOz]));
  txt_oz_->setToolTip(ToQt(texts[kTipOz]));
  oVar_[kSodiumValue]->setToolTip(ToQt(texts[kTipSodium]));
  TabStrip_->setTabText(1, ToQt(texts[kTabPer100Grams]));
  TabStrip_->setToolTip(ToQt(texts[kTipTabs]));
  TabStrip_->setAccessibleName(ToQt(texts[kTipTabs]));
  Frame_b_.heading->setText(ToQt(texts[kPer100GramsHeading]));
  Frame_b_.page->setAccessibleName(ToQt(texts[kPer100GramsHeading]));
  pBar_->setAccessibleName(ToQt(texts[kCompositionDescription]));
  pBar_->setToolTip(ToQt(texts[kCompositionDescription]));
  chk_favo_->setText(ToQt(texts[kAddToFavourites]));
  chk_favo_->setToolTip(ToQt(texts[kTipAddToFavourites]));
  cmd_opslaan_->setText(ToQt(texts[kSave]));
  cmd_opslaan_->setToolTip(ToQt(texts[kTipSave]));
  cmd_annuleer_->setText(ToQt(texts[kCancel]));
  cmd_annuleer_->setToolTip(ToQt(texts[kTipCancel]));
  ShowPortion();
  ShowButtons();
}

void FoodDetailsDialog::ShowDetails() {
  for (const auto box : kDescriptionBoxes) Show(bVar_[box], details_.bVar[box]);
  for (std::size_t value = 0; value < kValueCount; ++value) {
    Show(oVar_[value], details_.oVar[value]);
  }
  chk_favo_->setChecked(details_.chk_favo);
  ShowPortion();
  ShowButtons();
}

void FoodDetailsDialog::ShowPortion() {
  Show(txt_gram_, details_.txt_gram);
  Show(txt_oz_, details_.txt_oz);
  for (std::size_t value = 0; value < kValueCount; ++value) {
    Show(bVar_[PortionBoxOf(value)], details_.bVar[PortionBoxOf(value)]);
  }
  TabStrip_->setTabText(0, ToQt(PortionTabText(program_.texts, details_)));
  const QString heading = ToQt(PortionHeading(program_, details_));
  Frame_a_.heading->setText(heading);
  Frame_a_.page->setAccessibleName(heading);
  ShowComposition();
}

void FoodDetailsDialog::ShowComposition() {
  for (std::size_t bar = 0; bar < kCompositionBars; ++bar) {
    pBar_->ShowBar(bar, ToQt(BarCaption(program_.texts, details_, bar)), details_.pBar[bar].length);
  }
}

void FoodDetailsDialog::ShowButtons() {
  const bool editing = details_.Bewerkmodus;
  for (const auto box : kDescriptionBoxes) {
    SetLocked(bVar_[box], !editing || !bVar_[box]->ShowsAll());
  }
  for (NumberBox* const box : oVar_) SetLocked(box, !editing);
  const TextTables& texts = program_.texts;
  cmd_bewerk_->setText(ToQt(texts[details_.cmd_bewerk]));
  cmd_bewerk_->setToolTip(ToQt(texts[editing ? kTipFinishEditing : kTipEdit]));
  cmd_bewerk_->setEnabled(TabStrip_->currentWidget() == Frame_b_.page);
  cmd_opslaan_->setEnabled(!editing);
  cmd_bewerk_->setMinimumWidth(cmd_bewerk_->sizeHint().width() + kButtonRoom);
  // What Enter presses. A button with the focus is the default one for just as long, and would
  // take no notice of becoming it for good.
  QPushButton* const on_enter = editing ? cmd_bewerk_ : cmd_opslaan_;
  on_enter->setDefault(false);
  on_enter->setDefault(true);
}

void FoodDetailsDialog::TakeWeight() {
  NumberBox* const box = std::exchange(typed_weight_, nullptr);
  if (box == nullptr) return;
  const auto take = box == txt_gram_ ? &TakeGrams : &TakeOunces;
  take(program_, details_, box->Entered());
  ShowPortion();
}

void FoodDetailsDialog::Edit() {
  TakeWeight();
  const bool was_editing = details_.Bewerkmodus;
  if (BeginOrFinishEditing(program_, details_)) return done(QDialog::Accepted);
  ShowDetails();
  if (was_editing) return LookAtWrongBox();
  oVar_.front()->setFocus();
  oVar_.front()->selectAll();
}

void FoodDetailsDialog::Save() {
  TakeWeight();
  if (SaveDetails(program_, details_)) return done(QDialog::Accepted);
  LookAtWrongBox();
}

void FoodDetailsDialog::LookAtWrongBox() {
  const auto& wrong = details_.look_at;
  if (!wrong) return;
  if (wrong->per_100_grams) return GoToBox(oVar_[wrong->place]);
  GoToBox(wrong->place == PortionBox::kGram ? txt_gram_ : bVar_[wrong->place]);
}

void ShowFoodDetailsDialog(Program& program, std::string_view tag, std::string_view line,
                           QWidget* parent) {
  FoodDetailsDialog(program, tag, line, parent).exec();
}

}  // namespace kelvora
