#include "days/day_table_panel.h"

#include <algorithm>

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>

#include "language/browse_texts.h"
#include "language/own_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace browse_text;

// The shares of the columns in the width of the list; the path and the file name are never seen.
constexpr std::array<double, BrowseColumn::kCount> kShares = {0.1, 0,    0,    0.19,
                                                              0.2, 0.17, 0.16, 0.18};

bool HoldsNumbers(std::size_t column) {
  return column == BrowseColumn::kNumber || column >= BrowseColumn::kWeight;
}

}  // namespace

DayTable::DayTable(Program& program, QWidget* parent) : QTableView(parent), program_(program) {
  NameWidget(this, "LV_browse_files");
  model_.SetRowIcon(static_cast<int>(BrowseColumn::kDate), IconNamed("day-row"));
  setModel(&model_);
  MakeRowList(this);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  horizontalHeader()->setMinimumSectionSize(0);
  horizontalHeader()->setStretchLastSection(true);
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &DayTable::SortByHeading);
  connect(this, &QTableView::doubleClicked, this, &DayTable::OpenAsked);
  BuildMenu();
}

void DayTable::BuildMenu() {
  mnu_opties_ = new QMenu(this);
  mnu_opties_->setObjectName(QStringLiteral("mnu_opties"));
  mnu_open_ = mnu_opties_->addAction(IconNamed("open"), QString());
  mnu_open_->setObjectName(QStringLiteral("mnu_open"));
  mnu_opties_->addSeparator();
  mnu_del_dag_ = mnu_opties_->addAction(IconNamed("remove"), QString());
  mnu_del_dag_->setObjectName(QStringLiteral("mnu_del_dag"));
  // The Delete key of the list, and of nothing else in the window.
  mnu_del_dag_->setShortcut(QKeySequence(Qt::Key_Delete));
  mnu_del_dag_->setShortcutContext(Qt::WidgetShortcut);
  addAction(mnu_del_dag_);
  mnu_opties_->addSeparator();
  mnu_take_over_ = mnu_opties_->addAction(QString());
  mnu_take_over_->setObjectName(QStringLiteral("mnu_take_over"));
  connect(mnu_take_over_, &QAction::triggered, this, &DayTable::TakeOverAsked);
  connect(mnu_open_, &QAction::triggered, this, &DayTable::OpenAsked);
  connect(mnu_del_dag_, &QAction::triggered, this, &DayTable::DeleteAsked);
}

void DayTable::Set_Taal() {
  const TextTables& texts = program_.texts;
  setAccessibleName(ToQt(texts[kDays]));
  setToolTip(ToQt(texts[kTipDays]));
  mnu_opties_->setTitle(ToQt(texts[kMenuOptions]));
  SetActionTexts(mnu_open_, texts[kMenuOpenDay], {});
  SetActionTexts(mnu_del_dag_, texts[kMenuDeleteDay], {});
  SetActionTexts(mnu_take_over_, OwnTextOf(texts, OwnText::take_over_from), {});
  ShowModel();
}

void DayTable::ShowDays(std::vector<DayRow> rows) {
  rows_ = std::move(rows);
  sort_ = {};
  ShowModel();
  if (!rows_.empty()) FocusRow(rows_.size() - 1);
}

void DayTable::FocusRow(std::size_t row) {
  if (rows_.empty()) return;
  const int place = static_cast<int>(std::min(row, rows_.size() - 1));
  const QModelIndex index = model_.index(place, static_cast<int>(BrowseColumn::kDate));
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
  scrollTo(index);
}

std::vector<std::size_t> DayTable::SelectedRows() const {
  std::vector<std::size_t> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) {
    rows.push_back(static_cast<std::size_t>(index.row()));
  }
  std::ranges::sort(rows);
  return rows;
}

std::optional<std::size_t> DayTable::FocusedRow() const {
  if (!currentIndex().isValid()) return std::nullopt;
  return static_cast<std::size_t>(currentIndex().row());
}

void DayTable::contextMenuEvent(QContextMenuEvent* event) {
  const bool by_key = event->reason() == QContextMenuEvent::Keyboard;
  const QModelIndex row = by_key ? currentIndex() : indexAt(event->pos());
  if (!row.isValid()) return;
  mnu_opties_->popup(by_key ? viewport()->mapToGlobal(visualRect(row).center())
                            : event->globalPos());
}

// With nothing selected the row in focus, which is the newest day at first, is the nearest to every
// arrow. Home and End lead to the first and the last row, since only whole rows are selected here.
void DayTable::keyPressEvent(QKeyEvent* event) {
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const int key = event->key();
  if (plain && !rows_.empty()) {
    if (key == Qt::Key_Home) return selectRow(0);
    if (key == Qt::Key_End) return selectRow(static_cast<int>(rows_.size()) - 1);
    const bool moves = key == Qt::Key_Up || key == Qt::Key_Down;
    if (moves && currentIndex().isValid() && !selectionModel()->hasSelection()) {
      return selectRow(currentIndex().row());
    }
  }
  QTableView::keyPressEvent(event);
}

void DayTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  SetColumnWidths();
}

void DayTable::ShowModel() {
  const auto headings = BrowseHeadings(program_);
  std::vector<TextTableModel::Column> columns;
  for (std::size_t i = 0; i < headings.size(); ++i) {
    columns.push_back({headings[i], HoldsNumbers(i) ? Qt::AlignRight : Qt::AlignLeft});
  }
  model_.Show(std::move(columns), rows_.size(),
              [this](std::size_t row, std::size_t column) { return rows_[row].cells[column]; });
  for (QAction* const action : {mnu_open_, mnu_del_dag_}) action->setEnabled(!rows_.empty());
  mnu_take_over_->setEnabled(!rows_.empty() && program_.store.DayIsOpen());
  ShowSortMark();
  SetColumnWidths();
}

void DayTable::SortByHeading(int column) {
  const bool sorts = ClickHeading(sort_, static_cast<std::size_t>(column));
  // The header has moved its mark to whatever was clicked.
  if (!sorts) return ShowSortMark();
  const std::vector<std::size_t> selected = SelectedRows();
  const std::optional<std::size_t> in_focus = FocusedRow();
  std::vector<std::size_t> places_now(rows_.size());
  const std::vector<std::uint32_t> places_before = SortRows(rows_, sort_);
  for (std::size_t i = 0; i < places_before.size(); ++i) places_now[places_before[i]] = i;
  ShowModel();
  std::vector<std::size_t> selected_now;
  for (const std::size_t row : selected) selected_now.push_back(places_now[row]);
  SelectOnly(std::move(selected_now));
  if (in_focus) FocusRow(places_now[*in_focus]);
}

void DayTable::ShowSortMark() {
  QHeaderView& header = *horizontalHeader();
  header.setSortIndicatorShown(sort_.column.has_value());
  if (!sort_.column) return;
  const bool up = sort_.order == SortOrder::ascending;
  header.setSortIndicator(static_cast<int>(*sort_.column),
                          up ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void DayTable::SelectOnly(std::vector<std::size_t> rows) {
  std::ranges::sort(rows);
  QItemSelection selection;
  // One range for rows that stand together: a range for each of thousands would be slow.
  for (std::size_t first = 0, next = 0; first < rows.size(); first = next) {
    for (next = first + 1; next < rows.size() && rows[next] == rows[next - 1] + 1;) ++next;
    selection.append(QItemSelectionRange(
        model_.index(static_cast<int>(rows[first]), 0),
        model_.index(static_cast<int>(rows[next - 1]), model_.columnCount() - 1)));
  }
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void DayTable::SetColumnWidths() {
  const int width = viewport()->width();
  for (std::size_t i = 0; i < kShares.size(); ++i) {
    setColumnHidden(static_cast<int>(i), kShares[i] == 0);
    setColumnWidth(static_cast<int>(i), static_cast<int>(kShares[i] * width));
  }
  WidenToHeadings(*this, static_cast<int>(BrowseColumn::kDay));
  setMinimumWidth(WidthOfHeadings(*this) + this->width() - width);
}

}  // namespace kelvora
