// The order of the rows of a food list. Rows are numbers of lines; the lines themselves stay where
// they are.
#include <cmath>
#include <numeric>

#include "food/food_lists.h"
#include "nutrition/numbers.h"

namespace kelvora {
namespace {

// From this column on values are sorted, before it texts.
constexpr std::size_t kFirstValueColumn = 3;

}  // namespace

const FoodLists::Order& FoodLists::OrderOf(FoodView view) const {
  return orders_[static_cast<std::size_t>(view)];
}

FoodLists::Order& FoodLists::OrderOf(FoodView view) {
  return orders_[static_cast<std::size_t>(view)];
}

std::size_t FoodLists::NumberOf(FoodView view, std::size_t row) const {
  const auto& numbers = OrderOf(view).numbers;
  return row < numbers.size() ? numbers[row] : row;
}

std::optional<std::size_t> FoodLists::Populate(FoodView view) {
  OrderOf(view).numbers.clear();
  if (last_clicked.empty()) return std::nullopt;
  return SourceOf(view).FindFirst(KeyOf(last_clicked));
}

std::optional<ColumnOrder> FoodLists::ShownOrder(FoodView view) const {
  return OrderOf(view).numbers.empty() ? std::nullopt : OrderOf(view).last_click;
}

// Values share one flag, whichever column is clicked; texts begin anew at each change of column.
SortOrder FoodLists::NextOrder(Order& view_order, std::size_t column) {
  if (column >= kFirstValueColumn) {
    const SortOrder now = view_order.next_by_value;
    view_order.next_by_value = Flipped(now);
    return now;
  }
  const auto& last = view_order.last_click;
  return last && last->column == column ? Flipped(last->order) : SortOrder::ascending;
}

void FoodLists::SortByColumn(FoodView view, std::size_t column) {
  program_.Guard("#F11-3", [&] { Sort(view, {column, NextOrder(OrderOf(view), column)}); });
}

void FoodLists::SortAgain(FoodView view) {
  const auto shown = ShownOrder(view);
  if (!shown || shown->column < kFirstValueColumn) return;
  program_.Guard("#F11-4", [&] { Sort(view, *shown); });
}

void FoodLists::Sort(FoodView view, const ColumnOrder& by) {
  program_.platform.pointer.ShowWait();
  std::vector<std::uint32_t> sorted = SortedRows(view, by);
  for (std::uint32_t& row : sorted) row = static_cast<std::uint32_t>(NumberOf(view, row));
  OrderOf(view).numbers = std::move(sorted);
  OrderOf(view).last_click = by;
  program_.platform.pointer.Restore();
}

std::vector<std::uint32_t> FoodLists::SortedRows(FoodView view, const ColumnOrder& by) const {
  const std::size_t count = Count(view);
  if (by.column >= kFirstValueColumn) {
    std::vector<double> values(count);
    for (std::size_t row = 0; row < count; ++row) {
      values[row] = std::floor(ReadStoredNumber(Cell(view, row, by.column)));
    }
    return OrderByWholeValue(values, by.order);
  }
  std::vector<std::string_view> texts(count);
  std::vector<Text> numbers(by.column == 0 ? count : 0);
  for (std::size_t row = 0; row < count; ++row) {
    if (by.column == 0) {
      texts[row] = numbers[row] = Cell(view, row, 0);
    } else {
      texts[row] = FieldOf(LineAt(view, row), by.column - 1);
    }
  }
  return OrderByText(texts, by.order);
}

std::vector<std::size_t> FoodLists::NumbersOf(FoodView view,
                                              const std::vector<std::size_t>& rows) const {
  std::vector<std::size_t> numbers(rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) numbers[i] = NumberOf(view, rows[i]);
  return numbers;
}

std::vector<std::size_t> FoodLists::RowsOf(FoodView view, std::vector<std::size_t> numbers) const {
  const std::size_t count = Count(view);
  std::vector<bool> wanted(count);
  for (const std::size_t number : numbers) {
    if (number < count) wanted[number] = true;
  }
  numbers.clear();
  for (std::size_t row = 0; row < count; ++row) {
    if (wanted[NumberOf(view, row)]) numbers.push_back(row);
  }
  return numbers;
}

}  // namespace kelvora
