#include "food/consumption_window.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QVBoxLayout>

#include "core/program.h"
#include "food/combining.h"
#include "food/consumption_amount.h"
#include "food/other_amount_dialog.h"
#include "language/consumption_texts.h"
#include "language/main_texts.h"
#include "language/own_texts.h"
#include "nutrition/totals.h"
#include "platform/qt/long_label.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

namespace ct = consumption_text;

constexpr int kShownColumn = 1;  // the first one that is not hidden
constexpr int kNameColumn = 2;
constexpr int kToolIconSize = 16;
constexpr int kBarHeight = 24;
constexpr int kLowRowMargin = 2;      // of a row's letters, while both panels take their room
constexpr int kLeastListHeight = 38;  // the headings and one row
constexpr int kPanelMargin = 2;       // above and below the letters of the status bar

QAction* NewToolAction(ToolBar* bar, const char* name, const char* icon) {
  QAction* const action = bar->addAction(IconNamed(icon), QString());
  action->setObjectName(QLatin1String(name) + QLatin1String("_action"));
  bar->widgetForAction(action)->setObjectName(QLatin1String(name));
  return action;
}

}  // namespace

ConsumptionWindow::ConsumptionWindow(Program& program, DayPart part, QWidget* parent)
    : QWidget(parent),
      program_(program),
      part_(part),
      open_flag_(program.windows, program.windows.Consumption(part), this) {
  setObjectName(ToQt(RowOf(part).window_name));
  BuildToolbars();
  BuildList();
  row_menu_ = new RowMenu(
      program_, part_, [this] { return SelectedNames(); },
      [this] { return LV_consumpties_->SelectedRows(); }, LV_consumpties_);
  row_menu_->AddButtons({plus_action_, minus_action_, remove_action_});
  Info_bar_ = new TotalsPanel(this);
  Pic_SP_ = new CombinePanel(EntryContextOf(program_), this);
  BuildStatusBar();
  LayOut();
  drops_ = new WindowDrops(this, LV_consumpties_);
  for (QLineEdit* const box : Pic_SP_->findChildren<QLineEdit*>()) drops_->PassOn(box);
  ConnectAll();
  ShowPanels({.ToonInfo = program_.windows.totals_shown[static_cast<std::size_t>(part_)]});
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
  FollowFrame();
}

// The frame has the title bar, and knows when the window is chosen.
void ConsumptionWindow::FollowFrame() {
  auto* const frame = qobject_cast<QMdiSubWindow*>(parentWidget());
  if (frame == nullptr || frame == frame_) return;
  frame_ = frame;
  drops_->TakeOn(frame);
  connect(frame, &QMdiSubWindow::windowStateChanged, this, [this](auto before, auto now) {
    if (now.testFlag(Qt::WindowActive) && !before.testFlag(Qt::WindowActive)) {
      MakeActive(program_, part_);
    }
  });
}

void ConsumptionWindow::BuildList() {
  LV_consumpties_ = new FoodTable("LV_consumpties", this);
  LV_consumpties_->horizontalHeader()->setStretchLastSection(true);
  LV_consumpties_->setMinimumHeight(kLeastListHeight);
  LV_consumpties_->verticalHeader()->setMinimumSectionSize(0);
  LV_consumpties_->setContextMenuPolicy(Qt::CustomContextMenu);
  LV_consumpties_->drag_payload = [this](const std::vector<std::size_t>& rows) {
    return rows.empty() ? Text() : BeginConsumptionDrag(program_, part_, SelectedNames());
  };
  LV_consumpties_->drop = [this](const Text& payload) {
    if (DropOnDayPart(program_, part_, payload)) MakeActive(program_, part_);
  };
  // The window itself has nothing that takes keys.
  setFocusPolicy(Qt::ClickFocus);
  setFocusProxy(LV_consumpties_);
}

void ConsumptionWindow::BuildToolbars() {
  Toolbar_ = new ToolBar(this, "Toolbar");
  totals_action_ = NewToolAction(Toolbar_, "Toolbar_1", "totals");
  totals_action_->setCheckable(true);
  combine_action_ = NewToolAction(Toolbar_, "Toolbar_2", "combine");
  combine_action_->setCheckable(true);
  Toolbar_control_ = new ToolBar(this, "Toolbar_control");
  plus_action_ = NewToolAction(Toolbar_control_, "Toolbar_control_1", "plus");
  minus_action_ = NewToolAction(Toolbar_control_, "Toolbar_control_2", "minus");
  Toolbar_control_->addSeparator();
  remove_action_ = NewToolAction(Toolbar_control_, "Toolbar_control_4", "remove");
  for (ToolBar* bar : {Toolbar_, Toolbar_control_}) {
    bar->setIconSize({kToolIconSize, kToolIconSize});
    bar->setFixedHeight(kBarHeight);
    bar->layout()->setContentsMargins(4, 0, 4, 0);
  }
}

void ConsumptionWindow::BuildStatusBar() {
  StatusBar_ = new QStatusBar(this);
  NameWidget(StatusBar_, "StatusBar");
  StatusBar_->setSizeGripEnabled(false);
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    panels_[i] = new LongLabel(StatusBar_, QStringLiteral("StatusBar_%1").arg(i + 1));
    panels_[i]->setIndent(5);
  }
  StatusBar_->setFixedHeight(StatusBar_->fontMetrics().height() + 2 * kPanelMargin);
}

void ConsumptionWindow::LayOut() {
  auto* const bars = new QHBoxLayout;
  bars->addWidget(Toolbar_);
  bars->addStretch();
  bars->addWidget(Toolbar_control_);
  auto* const list = new QHBoxLayout;
  list->setContentsMargins(4, 0, 4, 2);
  list->addWidget(LV_consumpties_);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(bars);
  layout->addLayout(list, 1);
  layout->addWidget(Info_bar_);
  layout->addWidget(Pic_SP_);
  layout->addWidget(StatusBar_);
}

void ConsumptionWindow::ConnectAll() {
  const auto on = [this](QAction* action, auto run) {
    connect(action, &QAction::triggered, this, run);
  };
  on(totals_action_, [this] { ShowPanels(FlipInfo(panels_shown_)); });
  on(combine_action_, [this] {
    ShowPanels(FlipCombineer(panels_shown_));
    (panels_shown_.ToonCombineer ? static_cast<QWidget*>(Pic_SP_) : LV_consumpties_)->setFocus();
  });
  on(plus_action_, [this] { Item_Plus_Een(program_, part_, CurrentName()); });
  on(minus_action_, [this] { Item_Min_Een(program_, part_, CurrentName()); });
  on(remove_action_, [this] { RemoveSelected(); });
  connect(LV_consumpties_, &QWidget::customContextMenuRequested, this, [this](const QPoint& place) {
    row_menu_->ShowAt(LV_consumpties_->viewport()->mapToGlobal(place));
  });
  connect(LV_consumpties_, &FoodTable::PlusPressed, plus_action_, &QAction::trigger);
  connect(LV_consumpties_, &FoodTable::MinusPressed, minus_action_, &QAction::trigger);
  connect(LV_consumpties_, &FoodTable::DeletePressed, remove_action_, &QAction::trigger);
  connect(LV_consumpties_, &FoodTable::EnterPressed, this, &ConsumptionWindow::ShowDetails);
  connect(row_menu_, &RowMenu::DetailsAsked, this, &ConsumptionWindow::ShowDetails);
  connect(row_menu_, &RowMenu::AmountAsked, this, &ConsumptionWindow::AskAmount);
  connect(LV_consumpties_, &QAbstractItemView::doubleClicked, this,
          &ConsumptionWindow::ShowDetails);
  const auto remember = [this](int row) {
    if (row >= 0 && !rebuilding_) {
      SelectName(program_, part_, (*rows_)[static_cast<std::size_t>(row)].product);
    }
  };
  connect(LV_consumpties_, &FoodTable::RowClicked, this, remember);
  // A row chosen with the arrow keys counts as clicked; one that only took the focus does not.
  QItemSelectionModel* const selection = LV_consumpties_->selectionModel();
  connect(selection, &QItemSelectionModel::currentRowChanged, this,
          [remember, selection](const QModelIndex& current) {
            if (selection->isRowSelected(current.row())) remember(current.row());
          });
  connect(Pic_SP_, &CombinePanel::SavePressed, this, &ConsumptionWindow::Combine);
  connect(Pic_SP_, &CombinePanel::CloseAsked, combine_action_, &QAction::trigger);
}

void ConsumptionWindow::CloseWindow() {
  if (QWidget* const frame = parentWidget()) frame->close();
}

void ConsumptionWindow::Set_Taal() {
  const TextTable table = RowOf(part_).texts;
  const auto text = [&](std::size_t index) -> const Text& {
    return program_.texts[{table, index}];
  };
  for (const auto& [action, tip] :
       {std::pair{totals_action_, ct::kTipTotals}, std::pair{combine_action_, ct::kTipCombine},
        std::pair{plus_action_, ct::kTipPlus}, std::pair{minus_action_, ct::kTipMinus},
        std::pair{remove_action_, ct::kTipRemove}}) {
    SetActionTexts(action, text(tip), {});
  }
  const auto own = [this](OwnText id) { return ToQt(OwnTextOf(program_.texts, id)); };
  Toolbar_->SetNames(own(OwnText::toolbar_of_panels), own(OwnText::more_buttons));
  Toolbar_control_->SetNames(own(OwnText::toolbar_of_row), own(OwnText::more_buttons));
  StatusBar_->setAccessibleName(ToQt(program_.texts[main_text::kStatusBarName]));
  row_menu_->SetTexts(text(ct::kTitle));
  Info_bar_->SetCaptions(program_.texts, table);
  Pic_SP_->SetCaptions(program_.texts, table);
  panels_[0]->setText(ToQt(text(ct::kStatus)));
  LV_consumpties_->SetEmptyText(
      ToQt(program_.texts[{TextTable::taal_morning, ct::kSharedDropHint}]), Qt::AlignCenter);
  LV_consumpties_->setAccessibleName(ToQt(text(ct::kTitle)));
  // Title and headings are texts of the tables too.
  Refresh_Consumpties();
}

void ConsumptionWindow::Refresh_Consumpties() {
  ShowRows();
  // Comes last: over a long day it lets events run, which may close this window.
  RefreshDaySummary(program_);
}

void ConsumptionWindow::ShowRows() {
  const QScopedValueRollback rebuilding(rebuilding_, true);
  setWindowTitle(ToQt(ConsumptionTitle(program_, part_)));
  const auto headings = ConsumptionHeadings(program_, part_);
  std::vector<TextTableModel::Column> columns;
  for (std::size_t i = 0; i < headings.size(); ++i) {
    const bool number = i == 1 || i >= 4;
    columns.push_back({headings[i], number ? Qt::AlignRight : Qt::AlignLeft});
  }
  rows_ = std::make_shared<const std::vector<ConsumptionRow>>(ConsumptionRows(program_, part_));
  const int current = LV_consumpties_->currentIndex().row();
  LV_consumpties_->Model().Show(
      std::move(columns), rows_->size(),
      [rows = rows_](std::size_t row, std::size_t column) { return CellOf((*rows)[row], column); });
  const auto to_select = RowsToSelect(program_, part_, *rows_);
  if (to_select.empty() && current >= 0 && !rows_->empty()) {
    // Nothing is selected, but the arrow keys go on from where they were.
    const int last = LV_consumpties_->Model().rowCount() - 1;
    LV_consumpties_->selectionModel()->setCurrentIndex(
        LV_consumpties_->Model().index(std::min(current, last), kShownColumn),
        QItemSelectionModel::NoUpdate);
  }
  SelectRows(to_select);
  FollowListWidth();
}

void ConsumptionWindow::SelectRows(const std::vector<std::size_t>& rows) {
  if (rows.empty()) return LV_consumpties_->clearSelection();
  LV_consumpties_->SelectRows(rows, rows.front());
}

void ConsumptionWindow::SelectLastRow() {
  if (rows_->empty()) return;
  // No click: what was last clicked stays so.
  const QScopedValueRollback rebuilding(rebuilding_, true);
  LV_consumpties_->SelectRow(static_cast<int>(rows_->size()) - 1);
}

void ConsumptionWindow::ShowTotals(const ConsumptionTotals& totals) {
  Info_bar_->Show(totals);
  // A screen reader hears of it: a label without a name of its own tells of other words.
  panels_[1]->setText(ToQt(totals.status));
  LayStatusBar();
}

void ConsumptionWindow::ShowPanels(ShownPanels panels) {
  panels_shown_ = panels;
  program_.windows.totals_shown[static_cast<std::size_t>(part_)] = panels.ToonInfo;
  totals_action_->setChecked(panels.ToonInfo);
  combine_action_->setChecked(panels.ToonCombineer);
  Info_bar_->setVisible(panels.ToonInfo);
  Pic_SP_->setVisible(panels.ToonCombineer);
  LV_consumpties_->verticalHeader()->setDefaultSectionSize(
      panels.ToonCombineer ? LV_consumpties_->fontMetrics().height() + kLowRowMargin
                           : RowHeight(*LV_consumpties_));
  layout()->activate();
  KeepSelectedRowInView();
}

void ConsumptionWindow::KeepSelectedRowInView() {
  const auto rows = LV_consumpties_->SelectedRows();
  if (rows.empty()) return;
  LV_consumpties_->scrollTo(
      LV_consumpties_->Model().index(static_cast<int>(rows.front()), kShownColumn));
}

void ConsumptionWindow::Combine() {
  const CombineForm form{
      .name = Pic_SP_->Name(), .unit = Pic_SP_->Unit(), .var = Info_bar_->ShownValues()};
  if (!CombineFoods(program_, part_, form)) {
    if (const auto wrong = WrongBox(program_, form)) Pic_SP_->GoTo(*wrong);
    return;
  }
  Pic_SP_->Clear();
  ShowPanels({});
  LV_consumpties_->setFocus();
}

void ConsumptionWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LayStatusBar();
  FollowListWidth();
  layout()->activate();
  KeepSelectedRowInView();
}

void ConsumptionWindow::LayStatusBar() {
  const auto widths = ConsumptionPanelWidths(TwipsOfPixels(width()));
  // The first two panels are as wide as their words, if need be; the third is empty.
  int left = 0;
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    const int needed = panels_[i]->sizeHint().width();
    const int panel_width =
        std::min(std::max(PixelsOfTwips(widths[i]), i < 2 ? needed : 0), width() - left);
    panels_[i]->setGeometry(left, 0, panel_width, StatusBar_->height());
    left += panel_width;
  }
}

void ConsumptionWindow::FollowListWidth() {
  if (LV_consumpties_->Model().rowCount() > 0) return SetColumnWidths();
  FitHeadings();
}

// With the room of a vertical scroll bar, whether there is one now or not.
void ConsumptionWindow::FitHeadings() {
  const int beside =
      2 * LV_consumpties_->frameWidth() + LV_consumpties_->verticalScrollBar()->sizeHint().width();
  WidenToHeadings(*LV_consumpties_, kNameColumn, LV_consumpties_->width() - beside);
}

void ConsumptionWindow::SetColumnWidths() {
  // The shares leave room for a vertical scroll bar.
  const int width = LV_consumpties_->width();
  for (std::size_t i = 0; i < kConsumptionWidths.size(); ++i) {
    const auto share = static_cast<int>(kConsumptionWidths[i] * width);
    LV_consumpties_->setColumnHidden(static_cast<int>(i), share == 0);
    LV_consumpties_->setColumnWidth(static_cast<int>(i), share);
  }
  FitHeadings();
}

// The cursor stays where the first of the rows was.
void ConsumptionWindow::RemoveSelected() {
  const auto selected = LV_consumpties_->SelectedRows();
  const auto before = rows_;
  Item_Verwijder(program_, part_, SelectedNames());
  if (selected.empty() || rows_ == before) return;
  const auto place = PlaceAfterDelete(*before, *rows_, selected.front());
  if (place) LV_consumpties_->SelectRow(static_cast<int>(*place));
}

void ConsumptionWindow::ShowDetails() {
  if (const ConsumptionRow* const row = CurrentRow()) ShowDetailsOf(program_, *row);
}

void ConsumptionWindow::AskAmount() {
  const ConsumptionRow* const current = CurrentRow();
  if (current == nullptr) return;
  const ConsumptionRow row = *current;  // the rows are made anew by the change
  const auto change = [this, &row](const Amount& amount) {
    return ChangeAmount(program_, part_, row.line, amount).fault;
  };
  OtherAmountDialog(program_, row.product, AmountOfRow(row), change, this).exec();
}

TextList ConsumptionWindow::SelectedNames() const {
  TextList names;
  for (const std::size_t row : LV_consumpties_->SelectedRows()) names.Add((*rows_)[row].product);
  return names;
}

const ConsumptionRow* ConsumptionWindow::CurrentRow() const {
  const auto row = LV_consumpties_->RowInFocus();
  return row ? &(*rows_)[*row] : nullptr;
}

std::optional<Text> ConsumptionWindow::CurrentName() const {
  const ConsumptionRow* const row = CurrentRow();
  return row != nullptr ? std::optional(row->product) : std::nullopt;
}

}  // namespace kelvora
