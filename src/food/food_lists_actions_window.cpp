// What the food lists window does with the rows that are chosen: it passes them on. And what was
// eaten often.
#include <QElapsedTimer>

#include "food/food_list_commands.h"
#include "food/food_lists_window.h"

namespace kelvora {
namespace {

constexpr int kProductColumn = 1;

ScreenPlace PlaceOf(QPoint point) {
  return {point.x(), point.y()};
}

}  // namespace

void FoodListsWindow::RememberRow(FoodView view, int row) {
  lists_.last_clicked = lists_.Cell(view, static_cast<std::size_t>(row), kProductColumn);
}

void FoodListsWindow::DeleteSelected(FoodView view) {
  DeleteRows(program_, lists_, view, TableOf(view).SelectedRows());
}

void FoodListsWindow::OpenMenu(FoodView view, QPoint place) {
  OpenFoodMenu(program_, view, TableOf(view).SelectedRows().size(), PlaceOf(place));
}

void FoodListsWindow::CORE_show_info_mnu() {
  const auto row = TableOf(View()).RowInFocus();
  if (row) ShowDetails(program_, lists_, View(), *row);
}

void FoodListsWindow::CORE_Add_To_Favo() {
  const auto row = TableOf(View()).RowInFocus();
  if (row) AddRowToFavourites(program_, lists_, View(), *row);
}

void FoodListsWindow::CORE_New_Item() {
  AddNewFood(program_, View());
}

void FoodListsWindow::CORE_Del_Item() {
  const auto row = TableOf(View()).RowInFocus();
  if (row) DeleteRows(program_, lists_, View(), {*row});
}

void FoodListsWindow::AskDayPart(FoodView view) {
  FoodTable& table = TableOf(view);
  if (!MayAddToDay(program_, lists_, view, table.SelectedRows())) return;
  table.scrollTo(table.currentIndex());
  const QRect row = table.visualRect(table.currentIndex());
  day_part_menu_->popup(table.viewport()->mapToGlobal(row.bottomLeft()));
  day_part_menu_->setActiveAction(day_part_actions_[static_cast<std::size_t>(last_day_part_)]);
}

void FoodListsWindow::AddSelectedToDay(DayPart part) {
  last_day_part_ = part;
  AddRowsToDay(program_, lists_, View(), TableOf(View()).SelectedRows(), part);
}

void FoodListsWindow::CompareSelected(CompareBox box) {
  const auto row = TableOf(View()).RowInFocus();
  if (row) CompareRow(program_, lists_, View(), *row, box);
}

void FoodListsWindow::ReadOften() {
  constexpr qint64 kMilliseconds = 4;
  if (!program_.store.DayIsOpen()) return reading_often_.stop();
  if (!often_) often_.emplace(program_);
  QElapsedTimer time;
  time.start();
  while (often_->Read()) {
    if (time.elapsed() >= kMilliseconds) return;
  }
  reading_often_.stop();
}

void FoodListsWindow::ShowOften() {
  // Asked for before there was time to read all days.
  while (reading_often_.isActive()) ReadOften();
  TextBox& search = Pic_zoek_->Search();
  search.ShowText({});
  lists_.ShowOften(often_ ? often_->Foods(PartOfTime(program_.platform.clock.Now())) : TextList());
  SetEmptyTexts();
  ShowResults();
  search.setFocus();
}

}  // namespace kelvora
