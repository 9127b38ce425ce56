#include "food/consumption_window.h"

#include <algorithm>
#include <memory>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMdiSubWindow>
#include <QVBoxLayout>

#include "core/program.h"
#include "food/consumption.h"
#include "language/consumption_texts.h"
#include "nutrition/totals.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

namespace ct = consumption_text;

constexpr int kProductColumn = 2;
constexpr int kToolIconSize = 16;
constexpr int kLeastListHeight = 38;  // the headings and one row

// Captions of the totals panel, each beside the label of the same place.
struct CaptionRow {
  const char* name;
  std::size_t text;
};
constexpr std::array kCaptions = {
    CaptionRow{"txt_1", ct::kEnergy},        CaptionRow{"txt_2", ct::kFatU},
    CaptionRow{"txt_3", ct::kFatS},          CaptionRow{"txt_4", ct::kProtein},
    CaptionRow{"txt_5", ct::kCarbohydrates}, CaptionRow{"txt_6", ct::kSodium},
    CaptionRow{"txt_9", ct::kWeight},
};

}  // namespace

ConsumptionWindow::ConsumptionWindow(Program& program, DayPart part, QWidget* parent)
    : QWidget(parent),
      program_(program),
      part_(part),
      open_flag_(program.windows, program.windows.Consumption(part), this) {
  setObjectName(ToQt(RowOf(part).window_name));

  LV_consumpties_ = new FoodTable("LV_consumpties", this);
  LV_consumpties_->horizontalHeader()->setStretchLastSection(true);
  LV_consumpties_->setMinimumHeight(kLeastListHeight);
  BuildToolbars();
  BuildTotalsPanel();
  BuildStatusBar();

  auto* const bars = new QHBoxLayout;
  bars->addWidget(Toolbar_);
  bars->addStretch();
  bars->addWidget(Toolbar_control_);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(bars);
  auto* const list = new QHBoxLayout;
  list->setContentsMargins(4, 0, 4, 2);
  list->addWidget(LV_consumpties_);
  layout->addLayout(list, 1);
  layout->addWidget(Info_bar_);
  layout->addWidget(StatusBar_);

  LV_consumpties_->drag_payload = [this](const std::vector<std::size_t>& rows) {
    return rows.empty() ? Text() : BeginConsumptionDrag(program_, part_, SelectedNames());
  };
  LV_consumpties_->drop = [this](const Text& payload) {
    if (DropOnDayPart(program_, part_, payload) && LV_consumpties_->Model().rowCount() > 0) {
      LV_consumpties_->SelectRow(LV_consumpties_->Model().rowCount() - 1);
    }
  };
  connect(LV_consumpties_, &FoodTable::RowClicked, this, [this](int row) {
    SelectName(program_, part_, NameInRow(static_cast<std::size_t>(row)));
  });
  connect(LV_consumpties_, &FoodTable::PlusPressed, plus_action_, &QAction::trigger);
  connect(LV_consumpties_, &FoodTable::MinusPressed, minus_action_, &QAction::trigger);
  connect(LV_consumpties_, &FoodTable::DeletePressed, remove_action_, &QAction::trigger);

  ApplyTotalsPanel();
  Set_Taal();
  Refresh_Totalen(program_);
}

void ConsumptionWindow::closeEvent(QCloseEvent* event) {
  open_flag_.Clear();
  QWidget::closeEvent(event);
}

void ConsumptionWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  SetColumnWidths();
}

void ConsumptionWindow::BuildToolbars() {
  const auto add = [](QToolBar* bar, const char* name, const char* icon) {
    QAction* const action = bar->addAction(IconNamed(icon), QString());
    action->setObjectName(QLatin1String(name) + QLatin1String("_action"));
    bar->widgetForAction(action)->setObjectName(QLatin1String(name));
    return action;
  };
  Toolbar_ = new QToolBar(this);
  NameWidget(Toolbar_, "Toolbar");
  totals_action_ = add(Toolbar_, "Toolbar_1", "totals");
  totals_action_->setCheckable(true);
  combine_action_ = add(Toolbar_, "Toolbar_2", "combine");
  combine_action_->setCheckable(true);
  combine_action_->setEnabled(false);  // the panel to combine foods does not exist yet
  Toolbar_control_ = new QToolBar(this);
  NameWidget(Toolbar_control_, "Toolbar_control");
  plus_action_ = add(Toolbar_control_, "Toolbar_control_1", "plus");
  minus_action_ = add(Toolbar_control_, "Toolbar_control_2", "minus");
  Toolbar_control_->addSeparator();
  remove_action_ = add(Toolbar_control_, "Toolbar_control_4", "remove");
  for (QToolBar* bar : {Toolbar_, Toolbar_control_}) {
    bar->setIconSize({kToolIconSize, kToolIconSize});
  }

  connect(totals_action_, &QAction::triggered, this, [this](bool shown) {
    program_.windows.totals_shown[static_cast<std::size_t>(part_)] = shown;
    ApplyTotalsPanel();
  });
  connect(plus_action_, &QAction::triggered, this,
          [this] { Item_Plus_Een(program_, part_, CurrentName()); });
  connect(minus_action_, &QAction::triggered, this,
          [this] { Item_Min_Een(program_, part_, CurrentName()); });
  connect(remove_action_, &QAction::triggered, this,
          [this] { Item_Verwijder(program_, part_, SelectedNames()); });
}

void ConsumptionWindow::BuildTotalsPanel() {
  Info_bar_ = new QWidget(this);
  NameWidget(Info_bar_, "Info_bar");
  UseSmallLetters(Info_bar_);
  Info_bar_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  auto* const grid = new QGridLayout(Info_bar_);
  grid->setContentsMargins(8, 1, 8, 1);
  grid->setHorizontalSpacing(4);
  grid->setVerticalSpacing(0);
  for (std::size_t i = 0; i < kCaptions.size(); ++i) {
    captions_[i] = NewLabel(Info_bar_, QLatin1String(kCaptions[i].name));
    lbl_nfo_[i] = NewLabel(Info_bar_, QStringLiteral("lbl_nfo_%1").arg(i + 1));
    const int row = static_cast<int>(i % 4);
    const int column = static_cast<int>(i / 4) * 2;
    grid->addWidget(captions_[i], row, column);
    grid->addWidget(lbl_nfo_[i], row, column + 1);
  }
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  for (std::size_t i = 0; i < var_.size(); ++i) {
    var_[i] = NewLabel(Info_bar_, QStringLiteral("var_%1").arg(i));
    var_[i]->hide();
  }
}

void ConsumptionWindow::BuildStatusBar() {
  StatusBar_ = new QStatusBar(this);
  NameWidget(StatusBar_, "StatusBar");
  StatusBar_->setSizeGripEnabled(false);
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    panels_[i] = NewLabel(StatusBar_, QStringLiteral("StatusBar_%1").arg(i + 1));
    StatusBar_->addWidget(panels_[i], i == 2 ? 1 : 0);
  }
  panels_[0]->setMinimumWidth(PixelsOfTwips(1000));
  panels_[1]->setMinimumWidth(PixelsOfTwips(3000));
}

void ConsumptionWindow::CloseWindow() {
  if (QWidget* const frame = parentWidget()) frame->close();
}

void ConsumptionWindow::Set_Taal() {
  const auto text = [this](std::size_t index) -> const Text& {
    return program_.texts[{RowOf(part_).texts, index}];
  };
  SetActionTexts(totals_action_, text(ct::kTipTotals), {});
  SetActionTexts(combine_action_, text(ct::kTipCombine), {});
  SetActionTexts(plus_action_, text(ct::kTipPlus), {});
  SetActionTexts(minus_action_, text(ct::kTipMinus), {});
  SetActionTexts(remove_action_, text(ct::kTipRemove), {});
  for (std::size_t i = 0; i < kCaptions.size(); ++i) {
    captions_[i]->setText(ToQt(text(kCaptions[i].text)));
  }
  panels_[0]->setText(ToQt(text(ct::kStatus)));
  LV_consumpties_->setAccessibleName(ToQt(text(ct::kTitle)));
  Info_bar_->setAccessibleName(ToQt(text(ct::kTipTotals)));
  // Title and headings are texts of the tables too.
  Refresh_Consumpties();
}

void ConsumptionWindow::Refresh_Consumpties() {
  setWindowTitle(ToQt(ConsumptionTitle(program_, part_)));
  const auto headings = ConsumptionHeadings(program_, part_);
  std::vector<TextTableModel::Column> columns;
  for (std::size_t i = 0; i < headings.size(); ++i) {
    const bool number = i == 1 || i >= 4;
    columns.push_back({headings[i], number ? Qt::AlignRight : Qt::AlignLeft});
  }
  auto rows = std::make_shared<std::vector<ConsumptionRow>>(ConsumptionRows(program_, part_));
  const std::size_t count = rows->size();
  LV_consumpties_->Model().Show(
      std::move(columns), count,
      [rows](std::size_t row, std::size_t column) { return CellOf((*rows)[row], column); });
  LV_consumpties_->SelectRowsReading(
      kProductColumn, ToQt(program_.day.selected_names[static_cast<std::size_t>(part_)]));
  FollowListWidth();
}

void ConsumptionWindow::ShowTotals(const ConsumptionTotals& totals) {
  for (std::size_t i = 0; i < lbl_nfo_.size(); ++i) lbl_nfo_[i]->setText(ToQt(totals.lbl_nfo[i]));
  for (std::size_t i = 0; i < var_.size(); ++i) var_[i]->setText(ToQt(totals.var[i]));
  panels_[1]->setText(ToQt(totals.status));
}

void ConsumptionWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FollowListWidth();
}

void ConsumptionWindow::FollowListWidth() {
  if (LV_consumpties_->Model().rowCount() > 0) SetColumnWidths();
}

void ConsumptionWindow::SetColumnWidths() {
  // The shares leave room for a vertical scroll bar.
  const int width = LV_consumpties_->width();
  for (std::size_t i = 0; i < kConsumptionWidths.size(); ++i) {
    const auto share = static_cast<int>(kConsumptionWidths[i] * width);
    LV_consumpties_->setColumnHidden(static_cast<int>(i), share == 0);
    LV_consumpties_->setColumnWidth(static_cast<int>(i), share);
  }
}

void ConsumptionWindow::ApplyTotalsPanel() {
  const bool shown = program_.windows.totals_shown[static_cast<std::size_t>(part_)];
  totals_action_->setChecked(shown);
  Info_bar_->setVisible(shown);
}

Text ConsumptionWindow::NameInRow(std::size_t row) const {
  const QModelIndex index = LV_consumpties_->Model().index(static_cast<int>(row), kProductColumn);
  return FromQt(index.data().toString());
}

TextList ConsumptionWindow::SelectedNames() const {
  TextList names;
  for (const std::size_t row : LV_consumpties_->SelectedRows()) names.Add(NameInRow(row));
  return names;
}

Text ConsumptionWindow::CurrentName() const {
  const auto rows = LV_consumpties_->SelectedRows();
  if (rows.empty()) return {};
  const auto current = static_cast<std::size_t>(LV_consumpties_->currentIndex().row());
  const bool current_is_selected = std::ranges::find(rows, current) != rows.end();
  return NameInRow(current_is_selected ? current : rows.front());
}

}  // namespace kelvora
