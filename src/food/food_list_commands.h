// What the food lists window does to the day and to the user's lists: drops, deletes, favourites,
// details, adding rows to a day part without a mouse, and the choice of the food server. Each takes
// the view it acts on and rows of it.
//
// Enter on a list and the food menu add rows to the day by the same routine as a drop, Enter to the
// part of the day that was active last.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "food/amount.h"
#include "food/food_lists.h"

namespace kelvora {

// True if a drop of this text on the view does something.
[[nodiscard]] bool TakesDrop(FoodView view, std::string_view payload);

// A drop on a view. Consumptions leave the day, or become favourites on the favourites list; a food
// of the separate calorie program becomes one of the own list. A line of another form than one
// food line is not taken.
void DropOnFoodView(Program& program, FoodView view, std::string_view payload);

// Deletes the lines of rows from the own list and the favourites, or from the favourites alone; the
// two other views have nothing to delete. The numbers of the rows are those from before the first
// delete, as is meant: of several rows, later ones take the line that has moved up to their number.
// Beyond the end that is an empty text, with which every line begins: the last line goes. Of the
// favourites then goes the food that left the own list, not one that happens to stand last.
void DeleteRows(Program& program, const FoodLists& lists, FoodView view,
                const std::vector<std::size_t>& rows);

// Opens the details of a row, if there is such a row.
void ShowDetails(Program& program, const FoodLists& lists, FoodView view, std::size_t row);

// Marks the food of a row as favourite; only foods of the standard and the own list can become one.
void AddRowToFavourites(Program& program, const FoodLists& lists, FoodView view, std::size_t row);

// Opens the dialog for a new food, for the own and the internet list.
void AddNewFood(Program& program, FoodView view);

// The entries of the food menu for a view with so many rows selected; none may be chosen with
// several.
[[nodiscard]] FoodMenu FoodMenuFor(const Program& program, FoodView view, std::size_t selected);

// Opens the food menu, or warns that several rows are selected.
void OpenFoodMenu(Program& program, FoodView view, std::size_t selected, ScreenPlace place);

struct AddedRows {
  bool added = false;
  std::optional<AmountFault> fault;  // why nothing was, if it is the amount that is to blame
};

// Adds an amount of the food of each row to a day part, as a drop on its window does, and makes the
// part the active one. Too many rows lead to the warning of a drag; of an amount that one of the
// rows can't have, nothing is added. A failure shows "#F11-7".
AddedRows AddRowsToDay(Program& program, FoodLists& lists, FoodView view,
                       const std::vector<std::size_t>& rows, DayPart part,
                       const Amount& amount = {});

// The place of the cursor after rows were deleted: where the first of them was. Nothing while the
// view has none.
[[nodiscard]] std::optional<std::size_t> PlaceAfterDelete(const FoodLists& lists, FoodView view,
                                                          std::size_t first_deleted);

// What may be done with a row; what an entry of the menu would do nothing with, it may not.
[[nodiscard]] FoodMenu FoodMenuOfRow(FoodView view, bool any_row);

// What Enter adds to, for the third panel of the window; empty while no day is open.
[[nodiscard]] Text ActivePartText(const Program& program);

// Puts the food of a row into a box of the comparison, if that window is open.
void CompareRow(Program& program, FoodLists& lists, FoodView view, std::size_t row, CompareBox box);

// Lets `opt_server` be "0", the Dutch food server, or "1", the English one, and saves the settings.
void ChooseServer(Program& program, std::string_view choice);
[[nodiscard]] bool UsesEnglishServer(const Program& program);
// The name of the database in use, between brackets.
[[nodiscard]] const Text& ServerText(const Program& program);
// The tip of the box of a search: what it searches, or that no server is known.
[[nodiscard]] Text InternetSearchTip(const Program& program);

}  // namespace kelvora
