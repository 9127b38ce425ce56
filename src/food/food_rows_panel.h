// How one of the four food lists is drawn: its columns, their widths and the mark of the sort.
#pragma once

#include "food/food_lists.h"
#include "food/food_table_panel.h"

namespace kelvora {

// Draws what a view holds now. `lists` must outlive what is drawn.
void ShowFoodRows(FoodTable& table, const FoodLists& lists, FoodView view);

// Gives the columns their widths in a list of that width; the number's column is hidden.
void LayFoodColumns(FoodTable& table, int width);

// Keeps the columns as they are, as far as the words of their headings have room in that width.
void FitHeadings(FoodTable& table, int width);

}  // namespace kelvora
