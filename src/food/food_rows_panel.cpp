#include "food/food_rows_panel.h"

#include <QHeaderView>

#include "core/geometry.h"
#include "platform/qt/look.h"

namespace kelvora {
namespace {

constexpr int kNameColumn = 1;
constexpr std::size_t kFirstNumberColumn = 3;
constexpr std::size_t kNutrientColumn = 4;
constexpr int kUnitWidth = PixelsOfTwips(1500);
constexpr int kAmountWidth = PixelsOfTwips(1000);
constexpr int kScrollBarWidth = PixelsOfTwips(360);
constexpr int kRestWidth = PixelsOfTwips(1500 + 1000 + 1000 + 360);

}  // namespace

void ShowFoodRows(FoodTable& table, const FoodLists& lists, FoodView view) {
  const auto headings = lists.Headings();
  std::vector<TextTableModel::Column> columns;
  for (std::size_t i = 0; i < headings.size(); ++i) {
    columns.push_back({headings[i], i >= kFirstNumberColumn ? Qt::AlignRight : Qt::AlignLeft});
  }
  columns[kNutrientColumn].tip = lists.NutrientTip();
  table.Model().Show(std::move(columns), lists.Count(view),
                     [&lists, view](std::size_t row, std::size_t column) {
                       return lists.Cell(view, row, column);
                     });
  const bool two_lines = lists.HasSecondLines();
  if (two_lines) {
    table.Model().ShowSecondLine(
        kNameColumn, [&lists, view](std::size_t row) { return lists.SecondLine(view, row); });
  }
  table.verticalHeader()->setDefaultSectionSize(RowHeight(table) +
                                                (two_lines ? table.fontMetrics().height() : 0));
  table.doItemsLayout();
  const auto shown = lists.ShownOrder(view);
  const bool down = shown && shown->order == SortOrder::descending;
  table.horizontalHeader()->setSortIndicator(shown ? static_cast<int>(shown->column) : -1,
                                             down ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void LayFoodColumns(FoodTable& table, int width) {
  table.setColumnHidden(0, true);
  table.setColumnWidth(1, width - kRestWidth);
  table.setColumnWidth(2, kUnitWidth);
  table.setColumnWidth(3, kAmountWidth);
  table.setColumnWidth(4, kAmountWidth);
  FitHeadings(table, width);
}

void FitHeadings(FoodTable& table, int width) {
  WidenToHeadings(table, kNameColumn, width - kScrollBarWidth);
  table.setMinimumWidth(WidthOfHeadings(table) + kScrollBarWidth);
}

}  // namespace kelvora
