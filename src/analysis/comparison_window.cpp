#include "analysis/comparison_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "language/compare_texts.h"
#include "platform/qt/accessibility.h"
#include "platform/qt/long_label.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace compare_text;

// Captions of the frames of a tab and tips of the fields, by box.
constexpr std::array kDropTips = {kTipDropFood1, kTipDropFood2};
constexpr std::array kUnitFoodFrames = {kFrameUnitFood1, kFrameUnitFood2};
constexpr std::array kUnitDetailFrames = {kFrameUnitDetails1, kFrameUnitDetails2};
constexpr std::array k100FoodFrames = {kFrame100Food1, kFrame100Food2};
constexpr std::array k100DetailFrames = {kFrame100Details1, kFrame100Details2};

struct TabRow {
  TextId caption, tip;
};
constexpr std::array kTabs = {TabRow{kTabPerUnit, kTipPerUnit}, TabRow{kTabPer100, kTipPer100},
                              TabRow{kTabHelp, kTipHelp}};
constexpr std::array kHelp = {kHelpAbout, kHelpSteps, kHelpDropFood1, kHelpDropFood2, kHelpCompare};

constexpr int kEdge = 3;
constexpr int kMargin = 6;
constexpr int kGap = 4;
constexpr int kRowGap = 3;

constexpr QChar kPerUnitTab = 'a';
constexpr QChar kPer100Tab = 'b';

}  // namespace

ComparisonWindow::ComparisonWindow(Program& program, QWidget* parent)
    : QWidget(parent),
      program_(program),
      open_flag_(program.windows, program.windows.comparison, this) {
  static_assert(kHelp.size() == kHelpTexts && kDropTips.size() == kBoxes);
  NameWidget(this, "KV_tb_weegschaal");
  UseSmallLetters(this);
  TabStrip_ = new QTabWidget(this);
  NameWidget(TabStrip_, "TabStrip");
  MakeOneStop(TabStrip_);
  per_unit_ = BuildPage(kPerUnitTab);
  per_100_ = BuildPage(kPer100Tab);
  BuildHelp();
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
  layout->addWidget(TabStrip_);
  setFocusPolicy(Qt::ClickFocus);
  setFocusProxy(TabStrip_);
  Set_Taal();
}

ComparisonWindow::Page ComparisonWindow::BuildPage(QChar tab) {
  auto* const page = new QWidget(TabStrip_);
  page->setObjectName(QStringLiteral("page_") + tab);
  auto* const columns = new QHBoxLayout(page);
  columns->setContentsMargins(kEdge, kMargin, kEdge, kEdge);
  columns->setSpacing(kMargin);
  Page boxes{};
  for (std::size_t box = 0; box < kBoxes; ++box) {
    Column& column = boxes[box];
    const auto frame = [&](int part) {
      auto* const group = new QGroupBox(page);
      group->setObjectName(QStringLiteral("Frame_%1_%2_%3").arg(box + 1).arg(part).arg(tab));
      return group;
    };
    column.food_frame = frame(1);
    column.details_frame = frame(2);
    BuildFoodFrame(column, box, tab);
    BuildDetails(column, box, tab);
    auto* const frames = new QVBoxLayout;
    frames->setSpacing(kGap);
    frames->addWidget(column.food_frame);
    frames->addWidget(column.details_frame, 1);
    columns->addLayout(frames, 1);
  }
  TabStrip_->addTab(page, QString());
  return boxes;
}

void ComparisonWindow::BuildFoodFrame(Column& column, std::size_t box, QChar tab) {
  // The names without an ending are those of the first tab.
  const QString ending = tab == kPerUnitTab ? QString() : '_' + QString(tab);
  const QString number = QString::number(box + 1);
  column.Pic_drop = new FoodDropPanel(column.food_frame, "Pic_drop_" + number + ending,
                                      IconNamed(box == 0 ? "compare-food-1" : "compare-food-2"));
  column.Pic_drop->drop = [this, box](const Text& payload) {
    TakeFood(static_cast<CompareBox>(box), payload);
  };
  connect(column.Pic_drop, &FoodDropPanel::DetailsAsked, this,
          [this, box] { ShowComparedFood(program_, foods_[box]); });
  column.txt_Voedingsmiddel =
      new LongLabel(column.food_frame, "txt_Voedingsmiddel_" + number + ending);
  column.txt_Voedingsmiddel->setAlignment(Qt::AlignCenter);
  auto* const layout = new QVBoxLayout(column.food_frame);
  layout->setContentsMargins(kMargin, kGap, kMargin, kGap);
  layout->setSpacing(kGap);
  layout->addWidget(column.Pic_drop);
  layout->addWidget(column.txt_Voedingsmiddel);
}

void ComparisonWindow::BuildDetails(Column& column, std::size_t box, QChar tab) {
  QGroupBox* const frame = column.details_frame;
  auto* const grid = new QGridLayout(frame);
  grid->setContentsMargins(kMargin, kGap, kMargin, kGap);
  grid->setHorizontalSpacing(kGap);
  grid->setVerticalSpacing(kRowGap);
  grid->setColumnStretch(1, 1);
  const QString name = QStringLiteral("var_%1%2_%3").arg(box + 1).arg(tab);
  int line = 0;
  for (std::size_t row = 0; row < kComparedRows; ++row, ++line) {
    const QString row_name = name.arg(row);
    column.captions[row] = NewLabel(frame, "lbl_" + row_name);
    column.values[row] = new LongLabel(frame, row_name);
    column.values[row]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    column.units[row] = NewLabel(frame, row_name + "_unit");
    grid->addWidget(column.captions[row], line, 0);
    // The unit is a text, and takes the room of the word behind a value.
    grid->addWidget(column.values[row], line, 1, 1, row == kUnitRow ? 2 : 1);
    if (row != kUnitRow) grid->addWidget(column.units[row], line, 2);
    if (row != kWeightRow) continue;
    column.lbl_oz = NewLabel(frame, QStringLiteral("lbl_oz%1%2").arg(box + 1).arg(tab));
    column.lbl_oz->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(column.lbl_oz, ++line, 1, 1, 2);
  }
  column.units[kUnitRow]->hide();
  if (tab == kPer100Tab) {  // where nothing ever stands
    column.captions[kUnitRow]->hide();
    column.values[kUnitRow]->hide();
  }
  grid->setRowStretch(line, 1);
}

void ComparisonWindow::BuildHelp() {
  auto* const page = new QWidget(TabStrip_);
  page->setObjectName(QStringLiteral("page_help"));
  Frame_hulp_ = new QGroupBox(page);
  NameWidget(Frame_hulp_, "Frame_hulp");
  auto* const lines = new QVBoxLayout(Frame_hulp_);
  lines->setSpacing(2 * kMargin);
  for (std::size_t i = 0; i < kHelpTexts; ++i) {
    help_[i] = NewLabel(Frame_hulp_, QStringLiteral("lbl_hulp_%1").arg(i));
    help_[i]->setWordWrap(true);
    lines->addWidget(help_[i]);
  }
  lines->addStretch();
  auto* const layout = new QVBoxLayout(page);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(Frame_hulp_);
  TabStrip_->addTab(page, QString());
}

void ComparisonWindow::CloseWindow() {
  if (QWidget* const frame = parentWidget()) frame->close();
}

void ComparisonWindow::closeEvent(QCloseEvent* event) {
  open_flag_.Clear();
  QWidget::closeEvent(event);
}

void ComparisonWindow::Set_Taal() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(texts[kTitle]));
  for (std::size_t tab = 0; tab < kTabs.size(); ++tab) {
    const int index = static_cast<int>(tab);
    TabStrip_->setTabText(index, CaptionFrom(texts[kTabs[tab].caption]));
    TabStrip_->setTabToolTip(index, ToQt(texts[kTabs[tab].tip]));
  }
  TabStrip_->setAccessibleName(ToQt(texts[kTitle]));
  for (std::size_t box = 0; box < kBoxes; ++box) {
    per_unit_[box].food_frame->setTitle(CaptionFrom(texts[kUnitFoodFrames[box]]));
    per_unit_[box].details_frame->setTitle(CaptionFrom(texts[kUnitDetailFrames[box]]));
    per_100_[box].food_frame->setTitle(CaptionFrom(texts[k100FoodFrames[box]]));
    per_100_[box].details_frame->setTitle(CaptionFrom(texts[k100DetailFrames[box]]));
    for (const Page* const page : {&per_unit_, &per_100_}) {
      const Column& column = (*page)[box];
      column.Pic_drop->setToolTip(ToQt(texts[kDropTips[box]]));
      column.Pic_drop->setAccessibleName(ToQt(texts[kDropTips[box]]));
      for (std::size_t row = 0; row < kComparedRows; ++row) {
        const auto& [caption, unit, field, pattern] = ComparedRows()[row];
        column.captions[row]->setText(ToQt(texts[caption]));
        column.units[row]->setText(unit ? ToQt(texts[*unit]) : QString());
      }
    }
    ShowBox(box);
  }
  Frame_hulp_->setTitle(CaptionFrom(texts[kFrameHelp]));
  for (std::size_t i = 0; i < kHelpTexts; ++i) help_[i]->setText(ToQt(texts[kHelp[i]]));
}

void ComparisonWindow::TakeFood(CompareBox box, std::string_view payload) {
  const auto place = static_cast<std::size_t>(box);
  DropOnBox(program_, box, payload, foods_[place]);
  ShowBox(place);
}

void ComparisonWindow::ShowBox(std::size_t box) {
  ShowColumn(per_unit_[box], box, false);
  ShowColumn(per_100_[box], box, true);
}

void ComparisonWindow::ShowColumn(const Column& column, std::size_t box, bool per_100) {
  const ComparedFood& food = foods_[box];
  column.txt_Voedingsmiddel->setText(ToQt(food.txt_Voedingsmiddel));
  column.txt_Voedingsmiddel->setAccessibleName(ToQt(food.txt_Voedingsmiddel));
  HideWhileEmpty(*column.txt_Voedingsmiddel);
  column.Pic_drop->setAccessibleDescription(ToQt(food.txt_Voedingsmiddel));
  const TextTables& texts = program_.texts;
  for (std::size_t row = 0; row < kComparedRows; ++row) {
    const auto& [caption, unit, field, pattern] = ComparedRows()[row];
    const Text& value = (per_100 ? food.var_nb : food.var_na)[row];
    const Text behind = unit ? " " + texts[*unit] : Text();
    column.values[row]->setText(ToQt(value));
    column.values[row]->setAccessibleName(ToQt(texts[caption] + " " + value + behind));
  }
  column.lbl_oz->setText(ToQt(OuncesLabel(texts, per_100 ? food.ounces_b : food.ounces_a)));
  HideWhileEmpty(*column.lbl_oz);
}

}  // namespace kelvora
