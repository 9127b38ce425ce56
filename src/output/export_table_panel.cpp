#include "output/export_table_panel.h"

#include <algorithm>

#include <QHeaderView>
#include <QKeyEvent>

#include "language/export_form_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

// Least widths of the date and the weight; the weekday has the rest.
constexpr int kDateWidth = 850;
constexpr int kWeightWidth = 1200;
// Room beside the words of a cell.
constexpr int kCellRoom = 16;

int ColumnOf(std::size_t column) {
  return static_cast<int>(column);
}

}  // namespace

ExportTable::ExportTable(Program& program, QWidget* parent)
    : QTableView(parent), program_(program) {
  NameWidget(this, "LV_user_files");
  setModel(&model_);
  MakeRowList(this);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  horizontalHeader()->setMinimumSectionSize(0);
  horizontalHeader()->setSectionsClickable(false);
}

void ExportTable::Set_Taal() {
  setAccessibleName(ToQt(program_.texts[export_form_text::kFrameDays]));
  ShowModel();
}

void ExportTable::ShowDays(std::vector<ExportRow> rows) {
  rows_ = std::move(rows);
  ShowModel();
  if (rows_.empty()) return;
  selectionModel()->setCurrentIndex(model_.index(0, ColumnOf(ExportColumn::kDate)),
                                    QItemSelectionModel::NoUpdate);
}

std::vector<std::size_t> ExportTable::SelectedRows() const {
  std::vector<std::size_t> rows;
  // By ranges, of which there are few where there are thousands of rows.
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      rows.push_back(static_cast<std::size_t>(row));
    }
  }
  std::ranges::sort(rows);
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

void ExportTable::mousePressEvent(QMouseEvent* event) {
  emit OwnSelectionMade();
  QTableView::mousePressEvent(event);
}

void ExportTable::keyPressEvent(QKeyEvent* event) {
  program_.Guard("#F5-2", [&] {
    if (event->matches(QKeySequence::SelectAll)) return selectAll();
    const std::vector<std::size_t> before = SelectedRows();
    if (!SelectRowInFocus(*event)) QTableView::keyPressEvent(event);
    if (SelectedRows() != before) emit OwnSelectionMade();
  });
}

// With all or none of the rows selected the one in focus is the nearest to every arrow.
bool ExportTable::SelectRowInFocus(const QKeyEvent& event) {
  const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const bool moves = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
  const std::size_t selected = SelectedRows().size();
  if (!plain || !moves || !currentIndex().isValid()) return false;
  if (selected != 0 && (selected == 1 || selected != rows_.size())) return false;
  selectRow(currentIndex().row());
  return true;
}

// Home and End lead to the first and the last row, since only whole rows are selected here.
QModelIndex ExportTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  if (rows_.empty() || (action != MoveHome && action != MoveEnd)) {
    return QTableView::moveCursor(action, modifiers);
  }
  const int row = action == MoveHome ? 0 : model_.rowCount() - 1;
  return model_.index(row, ColumnOf(ExportColumn::kDate));
}

void ExportTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  SetColumnWidths();
}

void ExportTable::ShowModel() {
  const auto headings = ExportHeadings(program_.texts);
  std::vector<TextTableModel::Column> columns;
  for (std::size_t i = 0; i < headings.size(); ++i) {
    columns.push_back({headings[i], i == ExportColumn::kWeight ? Qt::AlignRight : Qt::AlignLeft});
  }
  model_.Show(std::move(columns), rows_.size(),
              [this](std::size_t row, std::size_t column) { return rows_[row].cells[column]; });
  SetColumnWidths();
}

void ExportTable::SetColumnWidths() {
  for (const std::size_t working :
       {ExportColumn::kNumber, ExportColumn::kPath, ExportColumn::kFile}) {
    setColumnHidden(ColumnOf(working), true);
  }
  const int date = WidthFor(ExportColumn::kDate, kDateWidth);
  const int weight = WidthFor(ExportColumn::kWeight, kWeightWidth);
  setColumnWidth(ColumnOf(ExportColumn::kDate), date);
  setColumnWidth(ColumnOf(ExportColumn::kDay), std::max(0, viewport()->width() - date - weight));
  setColumnWidth(ColumnOf(ExportColumn::kWeight), weight);
  WidenToHeadings(*this, ColumnOf(ExportColumn::kDay));
  setMinimumWidth(WidthOfHeadings(*this) + width() - viewport()->width());
}

// What is given, or as much as the heading and the longest cell need, within reason.
int ExportTable::WidthFor(std::size_t column, int given_twips) const {
  const int given = PixelsCovering(given_twips);
  const auto longest = std::ranges::max_element(
      rows_, {}, [column](const ExportRow& row) { return row.cells[column].size(); });
  int words = 0;
  for (const Text& text : {ExportHeadings(program_.texts)[column],
                           longest == rows_.end() ? Text() : longest->cells[column]}) {
    words = std::max(words, fontMetrics().horizontalAdvance(ToQtCell(text)));
  }
  return std::clamp(words + kCellRoom, given, 2 * given);
}

}  // namespace kelvora
