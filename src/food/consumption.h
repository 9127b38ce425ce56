// What was eaten in one part of the day. One design serves morning, afternoon and evening; what
// differs stands in one table row each.
//
// Every operation changes the store's list first, then refreshes the window and re-totals the day.
// Windows hold nothing: ConsumptionRows is what a window shows.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "core/program.h"

namespace kelvora {

// What distinguishes the three windows.
struct DayPartRow {
  DayPart part;
  std::string_view window_name;
  TextTable texts;
};
[[nodiscard]] const DayPartRow& RowOf(DayPart part);

// One row of the list: equal lines together, all texts ready to be shown.
struct ConsumptionRow {
  Text number, count, product, unit, weight, nutrient;
};
inline constexpr std::size_t kConsumptionColumns = 6;
[[nodiscard]] const Text& CellOf(const ConsumptionRow& row, std::size_t column);

// The rows of a day part, in the order of first appearance. Fills `Dupe_list` on the way.
[[nodiscard]] std::vector<ConsumptionRow> ConsumptionRows(Program& program, DayPart part);

// The headings of the six columns, and the shares of the list's width they take; 0 is hidden, and
// the last column takes what is left over besides.
[[nodiscard]] std::array<Text, kConsumptionColumns> ConsumptionHeadings(const Program& program,
                                                                        DayPart part);
inline constexpr std::array<double, kConsumptionColumns> kConsumptionWidths = {0,    0.09, 0.40,
                                                                               0.22, 0.12, 0.10};

// The window's title: its text, the weekday and the date of the day.
[[nodiscard]] Text ConsumptionTitle(Program& program, DayPart part);

// The row whose name stands in the selected-name variable of the part was clicked or changed.
void SelectName(Program& program, DayPart part, std::string_view product);

// One more portion: a copy of the first line of that name, unless the list is above the limit.
// A name with lines of different values is incremented by the first of them, as is meant.
void Item_Plus_Een(Program& program, DayPart part, std::string_view product);

// One portion less: the last line of that name goes. No name stands for a list without rows.
void Item_Min_Een(Program& program, DayPart part, std::string_view product);

// Every line of each name goes.
void Item_Verwijder(Program& program, DayPart part, const TextList& products);

// The payload of a drag that begins in this part's list; sets the drag source.
[[nodiscard]] Text BeginConsumptionDrag(Program& program, DayPart part, const TextList& products);

// A drop on this part's list. False if the list was above the limit: nothing changed then.
bool DropOnDayPart(Program& program, DayPart part, std::string_view payload);

}  // namespace kelvora
