#include "days/take_over_dialog.h"

#include <algorithm>

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QVBoxLayout>

#include "days/day_dialogs.h"
#include "food/consumption.h"
#include "language/browse_texts.h"
#include "language/consumption_texts.h"
#include "language/own_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr int kInitialWidth = 760;
constexpr int kInitialHeight = 480;
constexpr int kSpacing = 12;
constexpr int kDaysWidth = 300;
constexpr int kUnitWidth = 110;
constexpr int kEnergyWidth = 56;
constexpr int kLeastFoodWidth = 140;
constexpr int kCellRoom = 18;  // beside the words of a column of numbers
// As long as nobody notices that the days are read before the window stands; then a little at a
// time.
constexpr int kFirstReading = 100;
constexpr int kReading = 10;

enum DayColumn : std::size_t { kDate, kWeekday, kDayEnergy, kDayColumns };
enum FoodColumn { kFood, kUnit, kEnergy, kFoodColumns };

}  // namespace

TakeOverDialog::TakeOverDialog(Program& program, std::optional<DayPart> part, std::string path,
                               QWidget* parent)
    : QDialog(parent),
      program_(program),
      part_(part),
      path_(std::move(path)),
      open_flag_(program.windows, program.windows.take_over, this) {
  NameWidget(this, "KV_take_over");
  Build();
  connect(&reading_, &QTimer::timeout, this, [this] { ReadDays(kReading); });
  FollowSettings();
}

void TakeOverDialog::Build() {
  lbl_days_ = NewLabel(this, "lbl_other_days");
  LV_other_days_ = new QTableView(this);
  NameWidget(LV_other_days_, "LV_other_days");
  LV_other_days_->setModel(&model_);
  MakeRowList(LV_other_days_);
  LV_other_days_->setSelectionMode(QAbstractItemView::SingleSelection);
  LV_other_days_->horizontalHeader()->setSectionsClickable(false);
  LV_other_days_->setTabKeyNavigation(false);
  lbl_days_->setBuddy(LV_other_days_);

  lbl_foods_ = NewLabel(this, "lbl_other_foods");
  tree_foods_ = new QTreeWidget(this);
  NameWidget(tree_foods_, "tree_foods");
  tree_foods_->setColumnCount(kFoodColumns);
  tree_foods_->setUniformRowHeights(true);
  tree_foods_->setSelectionMode(QAbstractItemView::SingleSelection);
  tree_foods_->header()->setStretchLastSection(false);
  tree_foods_->header()->setSectionsMovable(false);
  tree_foods_->header()->setSectionResizeMode(kFood, QHeaderView::Stretch);
  lbl_foods_->setBuddy(tree_foods_);

  const auto new_button = [this](const char* name) {
    auto* const button = new QPushButton(this);
    NameWidget(button, name);
    button->setAutoDefault(false);
    return button;
  };
  cmd_take_over_ = new_button("cmd_take_over");
  cmd_take_over_->setDefault(true);
  cmd_whole_day_ = new_button("cmd_whole_day");
  cmd_annuleer_ = new_button("cmd_annuleer");

  auto* const left = new QVBoxLayout;
  left->addWidget(lbl_days_);
  left->addWidget(LV_other_days_);
  LV_other_days_->setFixedWidth(kDaysWidth);
  auto* const right = new QVBoxLayout;
  right->addWidget(lbl_foods_);
  right->addWidget(tree_foods_);
  auto* const lists = new QHBoxLayout;
  lists->setSpacing(kSpacing);
  lists->addLayout(left);
  lists->addLayout(right, 1);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmd_take_over_);
  buttons->addWidget(cmd_whole_day_);
  buttons->addWidget(cmd_annuleer_);
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(kSpacing);
  layout->addLayout(lists, 1);
  layout->addLayout(buttons);
  resize(kInitialWidth, kInitialHeight);

  connect(LV_other_days_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& current) {
            if (!current.isValid()) return;
            path_ = days_->Days()[static_cast<std::size_t>(current.row())].path;
            ShowFoods();
          });
  connect(tree_foods_, &QTreeWidget::itemChanged, this, &TakeOverDialog::EnableButtons);
  connect(cmd_take_over_, &QPushButton::clicked, this, &TakeOverDialog::TakeTicked);
  connect(cmd_whole_day_, &QPushButton::clicked, this, &TakeOverDialog::TakeWholeDay);
  connect(cmd_annuleer_, &QPushButton::clicked, this, &TakeOverDialog::CloseWindow);
}

void TakeOverDialog::CloseWindow() {
  done(QDialog::Rejected);
}

void TakeOverDialog::done(int result) {
  reading_.stop();
  open_flag_.Clear();
  QDialog::done(result);
}

void TakeOverDialog::Set_Taal() {
  const auto own = [this](OwnText id) { return ToQt(OwnTextOf(program_.texts, id)); };
  setWindowTitle(own(OwnText::take_over_title));
  lbl_days_->setText(own(OwnText::take_over_day));
  LV_other_days_->setAccessibleName(own(OwnText::take_over_day));
  lbl_foods_->setText(own(OwnText::take_over_foods));
  tree_foods_->setAccessibleName(own(OwnText::take_over_foods));
  cmd_take_over_->setText(own(OwnText::take_over));
  cmd_whole_day_->setText(own(OwnText::take_over_whole_day));
  cmd_annuleer_->setText(CaptionFrom(program_.texts[browse_text::kCancel]));
  const auto text = [this](std::size_t index) {
    return ToQt(Trimmed(program_.texts[{TextTable::taal_morning, index}]));
  };
  tree_foods_->setHeaderLabels({text(consumption_text::kColumnFood),
                                text(consumption_text::kColumnUnit),
                                ToQt(Trimmed(EnergyHeading(program_)))});
  tree_foods_->headerItem()->setTextAlignment(kEnergy, Qt::AlignRight);
  SetFoodColumns();
  ShowDays();
}

void TakeOverDialog::FollowSettings() {
  days_.emplace(program_);
  // The headings tell which energy it is.
  Set_Taal();
  ReadDays(kFirstReading);
}

void TakeOverDialog::ReadDays(int milliseconds) {
  reading_.stop();
  QElapsedTimer time;
  time.start();
  while (days_->Read()) {
    if (time.elapsed() >= milliseconds) return reading_.start(0);
  }
  ShowDays();
}

void TakeOverDialog::ShowDays() {
  using namespace browse_text;
  const std::vector<OtherDay>& days = days_->Days();
  std::vector<TextTableModel::Column> columns = {{program_.texts[kColumnDate]},
                                                 {program_.texts[kColumnDay]},
                                                 {EnergyHeading(program_), Qt::AlignRight}};
  model_.Show(std::move(columns), days.size(), [this](std::size_t row, std::size_t column) {
    const OtherDay& day = days_->Days()[row];
    return column == kDate ? day.date : column == kWeekday ? day.weekday : day.energy;
  });
  SetDayColumns();
  auto chosen = days_->First();
  for (std::size_t i = 0; i < days.size(); ++i) {
    if (days[i].path == path_) chosen = i;
  }
  if (!chosen) return ShowFoods();
  LV_other_days_->selectRow(static_cast<int>(*chosen));
  LV_other_days_->setFocus();
}

void TakeOverDialog::SetDayColumns() {
  QHeaderView* const header = LV_other_days_->horizontalHeader();
  LV_other_days_->resizeColumnToContents(kDate);
  header->setSectionResizeMode(kWeekday, QHeaderView::Stretch);
  header->resizeSection(kDayEnergy, std::max(header->sectionSizeHint(kDayEnergy),
                                             fontMetrics().horizontalAdvance("00000") + kCellRoom));
}

void TakeOverDialog::SetFoodColumns() {
  QHeaderView* const header = tree_foods_->header();
  const auto least = [header](int column, int given) {
    return std::max(header->sectionSizeHint(column), given);
  };
  const int unit = least(kUnit, kUnitWidth);
  const int energy = least(kEnergy, kEnergyWidth);
  header->resizeSection(kUnit, unit);
  header->resizeSection(kEnergy, energy);
  const int scroll_bar = tree_foods_->verticalScrollBar()->sizeHint().width();
  tree_foods_->setMinimumWidth(least(kFood, kLeastFoodWidth) + unit + energy + scroll_bar +
                               2 * tree_foods_->frameWidth());
}

void TakeOverDialog::ShowFoods() {
  foods_ = path_.empty() ? DayFoods() : FoodsOfDay(program_, path_);
  const QSignalBlocker blocker(tree_foods_);
  tree_foods_->clear();
  for (const DayPart part : kDayParts) {
    const auto& foods = foods_[static_cast<std::size_t>(part)];
    auto* const group = new QTreeWidgetItem(tree_foods_);
    group->setSizeHint(kFood, {0, RowHeight(*tree_foods_)});
    group->setText(kFood, ToQt(program_.texts[{RowOf(part).texts, consumption_text::kStatus}]));
    // Its empty cells are read as the part that they stand in.
    for (const int column : {kUnit, kEnergy}) {
      group->setData(column, Qt::AccessibleTextRole, group->text(kFood));
    }
    if (foods.empty()) {
      group->setDisabled(true);
      continue;
    }
    group->setFlags(group->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    const Qt::CheckState ticked = !part_ || *part_ == part ? Qt::Checked : Qt::Unchecked;
    for (const DayFood& food : foods) {
      auto* const item = new QTreeWidgetItem(group);
      item->setSizeHint(kFood, {0, RowHeight(*tree_foods_)});
      const Text count = food.count > 1 ? std::to_string(food.count) + " x " : Text();
      item->setText(kFood, ToQtCell(count + food.product));
      item->setText(kUnit, ToQtCell(food.unit));
      item->setText(kEnergy, ToQtCell(food.energy));
      item->setTextAlignment(kEnergy, Qt::AlignRight | Qt::AlignVCenter);
      item->setToolTip(kFood, item->text(kFood));
      item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
      item->setCheckState(kFood, ticked);
    }
    group->setExpanded(true);
  }
  EnableButtons();
}

void TakeOverDialog::EnableButtons() {
  const auto any = [](const DayFoods& foods) {
    return std::ranges::any_of(foods, [](const auto& part) { return !part.empty(); });
  };
  cmd_take_over_->setEnabled(any(TickedFoods()));
  cmd_whole_day_->setEnabled(any(foods_));
}

DayFoods TakeOverDialog::TickedFoods() const {
  DayFoods ticked;
  for (std::size_t part = 0; part < foods_.size(); ++part) {
    const QTreeWidgetItem* const group = tree_foods_->topLevelItem(static_cast<int>(part));
    for (std::size_t i = 0; i < foods_[part].size(); ++i) {
      if (group->child(static_cast<int>(i))->checkState(kFood) == Qt::Checked) {
        ticked[part].push_back(foods_[part][i]);
      }
    }
  }
  return ticked;
}

void TakeOverDialog::TakeTicked() {
  Take(TickedFoods());
}

void TakeOverDialog::TakeWholeDay() {
  Take(foods_);
}

void TakeOverDialog::Take(const DayFoods& foods) {
  if (TakeOver(program_, foods)) CloseWindow();
}

void ShowTakeOverDialog(Program& program, std::optional<DayPart> part, const std::string& path,
                        QWidget* parent) {
  TakeOverDialog(program, part, path, parent).exec();
}

}  // namespace kelvora
