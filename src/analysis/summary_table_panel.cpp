#include "analysis/summary_table_panel.h"

#include <algorithm>

#include <QHeaderView>

#include "core/geometry.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr int kFirstShown = static_cast<int>(SummaryColumn::food);
constexpr int kLeastFoodWidth = 90;
constexpr int kHeadingMargin = 10;  // both sides of a heading together
constexpr int kCellMargin = 8;      // the same of a cell
constexpr int kMostNumber = 90;     // a number of forty digits leaves the others their place

}  // namespace

SummaryTable::SummaryTable(QWidget* parent) : QTableView(parent) {
  NameWidget(this, "LV_uittreksel");
  UseSmallLetters(this);
  setModel(&model_);
  MakeRowList(this);
  UseSmallLetters(horizontalHeader());
  horizontalHeader()->setMinimumSectionSize(0);
  horizontalHeader()->setSectionsClickable(true);
  horizontalHeader()->setSortIndicatorShown(true);
  ShowOrder(std::nullopt);
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
          [this](int column) { emit HeadingClicked(static_cast<SummaryColumn>(column)); });
}

void SummaryTable::Show(const std::array<Text, kSummaryColumns>& headings,
                        std::shared_ptr<const SummaryRows> rows,
                        const std::optional<ColumnOrder>& order) {
  const std::set<Text> selected = order ? SelectedKeys() : std::set<Text>();
  rows_ = std::move(rows);
  std::vector<TextTableModel::Column> columns;
  for (std::size_t i = 0; i < headings.size(); ++i) {
    const bool text = IsTextColumn(static_cast<SummaryColumn>(i));
    columns.push_back({headings[i], text ? Qt::AlignLeft : Qt::AlignRight});
  }
  model_.Show(
      std::move(columns), rows_->size(),
      [rows = rows_](std::size_t row, std::size_t column) { return (*rows)[row].cells[column]; });
  setColumnHidden(static_cast<int>(SummaryColumn::key), true);
  ShowOrder(order);
  Zet_Kolombreedtes();
  SelectKeys(selected);
}

std::set<Text> SummaryTable::SelectedKeys() const {
  std::set<Text> keys;
  for (const QModelIndex& index : selectionModel()->selectedRows(kFirstShown)) {
    keys.insert((*rows_)[static_cast<std::size_t>(index.row())][SummaryColumn::key]);
  }
  return keys;
}

void SummaryTable::SelectKeys(const std::set<Text>& keys) {
  for (std::size_t row = 0; row < rows_->size() && !keys.empty(); ++row) {
    if (!keys.contains((*rows_)[row][SummaryColumn::key])) continue;
    selectionModel()->select(model_.index(static_cast<int>(row), kFirstShown),
                             QItemSelectionModel::Select | QItemSelectionModel::Rows);
  }
}

void SummaryTable::ShowOrder(const std::optional<ColumnOrder>& order) {
  const bool down = order && order->order == SortOrder::descending;
  horizontalHeader()->setSortIndicator(order ? static_cast<int>(order->column) : -1,
                                       down ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void SummaryTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  Zet_Kolombreedtes();
}

// What the longest number of a column needs; digits are all as wide as each other.
int SummaryTable::WidthOfNumbers(std::size_t column) const {
  std::string_view longest;
  for (const SummaryRow& row : *rows_) {
    const Text& cell = row.cells[column];
    if (cell.size() > longest.size()) longest = cell;
  }
  return fontMetrics().horizontalAdvance(ToQtCell(longest)) + kCellMargin;
}

// Each column has its given width, or what its heading and its numbers need; the foods have the
// rest.
void SummaryTable::Zet_Kolombreedtes() {
  if (model_.columnCount() == 0) return;
  const auto widths = SummaryColumnWidths(TwipsOfPixels(width()));
  const QFontMetrics letters = horizontalHeader()->fontMetrics();
  int left = viewport()->width();
  for (int i = kFirstShown + 1; i < static_cast<int>(kSummaryColumns); ++i) {
    const QString heading = model_.headerData(i, Qt::Horizontal, Qt::DisplayRole).toString();
    const int words = letters.horizontalAdvance(heading.trimmed()) + kHeadingMargin;
    const auto place = static_cast<std::size_t>(i);
    const bool text = IsTextColumn(static_cast<SummaryColumn>(i));
    const int needed = std::max(words, text ? 0 : std::min(WidthOfNumbers(place), kMostNumber));
    const int column = std::max(PixelsOfTwips(widths[place]), needed);
    setColumnWidth(i, column);
    left -= column;
  }
  const int given = PixelsOfTwips(widths[static_cast<std::size_t>(kFirstShown)]);
  setColumnWidth(kFirstShown, std::max(std::min(given, left), kLeastFoodWidth));
  WidenToHeadings(*this, kFirstShown);
}

}  // namespace kelvora
