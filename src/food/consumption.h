// What was eaten in one part of the day. One design serves morning, afternoon and evening; what
// differs stands in one table row each.
//
// Every operation changes the store's list first, then refreshes the window and re-totals the day.
// Windows hold nothing: ConsumptionRows is what a window shows.
#pragma once

#include <array>
#include <optional>
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
  Text line;  // that the row stands for, as it lies in the store
};
inline constexpr std::size_t kConsumptionColumns = 6;
[[nodiscard]] const Text& CellOf(const ConsumptionRow& row, std::size_t column);

// The rows of a day part, in the order of first appearance. Fills `Dupe_list` on the way. An amount
// that no number can hold has an empty cell.
[[nodiscard]] std::vector<ConsumptionRow> ConsumptionRows(Program& program, DayPart part);

// The energy that lists show beside foods and days: kilocalories for whoever gives them priority,
// else kilojoules.
[[nodiscard]] Priority EnergyOfUser(const Program& program);

// The amount of a nutrient in so many portions of a food, as its column shows it, and the heading
// of that column.
[[nodiscard]] Text NutrientCell(Program& program, std::string_view line, double portions,
                                Priority nutrient);
[[nodiscard]] const Text& NutrientHeading(const Program& program, DayPart part, Priority nutrient);

// The headings of the six columns, and the shares of the list's width they take; 0 is hidden, and
// the last column takes what is left over besides.
[[nodiscard]] std::array<Text, kConsumptionColumns> ConsumptionHeadings(const Program& program,
                                                                        DayPart part);
inline constexpr std::array<double, kConsumptionColumns> kConsumptionWidths = {0,    0.09, 0.40,
                                                                               0.22, 0.12, 0.10};

// The window's title: its text, the weekday and the date of the day.
[[nodiscard]] Text ConsumptionTitle(Program& program, DayPart part);

// The numbers of the rows that are to be selected after a rebuilding: all that bear the name in the
// selected-name variable of the part.
[[nodiscard]] std::vector<std::size_t> RowsToSelect(const Program& program, DayPart part,
                                                    const std::vector<ConsumptionRow>& rows);

// The last step of rebuilding a window: an open day summary follows.
void RefreshDaySummary(Program& program);

// The widths of the three panels of the status bar, in twips, for a window of that width.
[[nodiscard]] std::array<int, 3> ConsumptionPanelWidths(int window_width);

// Which of its two panels a window shows. The one to combine foods never stands without the totals,
// and no window opens with it.
struct ShownPanels {
  bool ToonInfo = false;
  bool ToonCombineer = false;
};
// Each flip is a click on its button.
[[nodiscard]] ShownPanels FlipInfo(ShownPanels panels);
[[nodiscard]] ShownPanels FlipCombineer(ShownPanels panels);

// The place of the cursor after rows were deleted: where the first of them was, and so on the row
// that stands there now, or on the last one. Nothing while there is no row.
[[nodiscard]] std::optional<std::size_t> PlaceAfterDelete(const std::vector<ConsumptionRow>& before,
                                                          const std::vector<ConsumptionRow>& after,
                                                          std::size_t first_deleted);

// Makes a part of the day the one that Enter in the food lists adds to: its window was chosen, or
// food was added to it. An open food lists window shows it.
void MakeActive(Program& program, DayPart part);

// The product of the row last clicked or changed.
void SelectName(Program& program, DayPart part, std::string_view product);

// True for a list that takes nothing more, after the box that says so; `first_line` is the text
// that it begins with. A list of exactly the limit still takes one addition, as is meant.
[[nodiscard]] bool IsAboveLimit(Program& program, DayPart part, std::size_t first_line);

// One more portion: a copy of the first line of that name, unless the list is above the limit.
// A name with lines of different values is incremented by the first of them, as is meant. Without a
// product, when no row is selected, the day is only marked as changed.
void Item_Plus_Een(Program& program, DayPart part, const std::optional<Text>& product);

// One portion less: the last line of that name goes.
void Item_Min_Een(Program& program, DayPart part, const std::optional<Text>& product);

// Shows the details of a row's food. The day keeps its line, whatever is saved there.
void ShowDetailsOf(Program& program, const ConsumptionRow& row);

// Every line of each name goes.
void Item_Verwijder(Program& program, DayPart part, const TextList& products);

// The payload of a drag that begins in this part's list; sets the drag source.
[[nodiscard]] Text BeginConsumptionDrag(Program& program, DayPart part, const TextList& products);

// Refreshes the window in which the running drag began, if it is open.
void RefreshDragSource(Program& program);

// A drop on this part's list; its window then shows the last row selected. False if the list was
// above the limit: nothing changed then. A part of the payload that is no line, having no field, or
// no key adds and moves nothing.
bool DropOnDayPart(Program& program, DayPart part, std::string_view payload);

// True if a part takes so many more lines and then has no more than the limit; if not, the message
// of a drop above it has been shown. For what is added as a whole or not at all.
[[nodiscard]] bool HasRoomFor(Program& program, DayPart part, std::size_t lines);

// Rebuilds the window of the part, if it is open, and re-totals the day: how every change ends.
void RefreshAfterChange(Program& program, DayPart part);

// The same after a change that may reach all parts; marks the day as changed.
void RefreshAllParts(Program& program);

}  // namespace kelvora
