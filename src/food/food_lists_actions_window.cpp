// What the food lists window does with the rows that are chosen: it passes them on. And what was
// eaten often.
#include <QElapsedTimer>

#include "food/food_list_commands.h"
#include "food/food_lists_window.h"
#include "platform/qt/text.h"

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
  DeleteAndStay(view, TableOf(view).SelectedRows());
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
  if (row) DeleteAndStay(View(), {*row});
}

// The cursor stays where the first of the rows was.
void FoodListsWindow::DeleteAndStay(FoodView view, const std::vector<std::size_t>& rows) {
  const std::size_t before = lists_.Count(view);
  DeleteRows(program_, lists_, view, rows);
  if (lists_.Count(view) == before) return;
  const auto place = PlaceAfterDelete(lists_, view, rows.front());
  if (place) TableOf(view).SelectRow(static_cast<int>(*place));
}

void FoodListsWindow::AddSelectedToDay(DayPart part) {
  const auto amount = txt_amount_->Read();
  if (!amount) return;
  const auto rows = TableOf(View()).SelectedRows();
  const AddedRows result = AddRowsToDay(program_, lists_, View(), rows, part, *amount);
  if (result.fault) return txt_amount_->Refuse(*result.fault);
  if (!result.added) return;
  txt_amount_->clear();
  FocusSearch();
}

void FoodListsWindow::ShowActivePart() {
  panels_[2]->setText(ToQt(ActivePartText(program_)));
}

// The menu of the main window follows the row in focus.
void FoodListsWindow::NoteRow() {
  const FoodMenu menu = FoodMenuOfRow(View(), TableOf(View()).RowInFocus().has_value());
  if (program_.windows.lists_menu == menu) return;
  program_.windows.lists_menu = menu;
  if (program_.windows.core != nullptr) program_.windows.core->UpdateCommands();
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
  ShowResults();
  search.setFocus();
}

}  // namespace kelvora
