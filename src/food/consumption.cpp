#include "food/consumption.h"

#include <algorithm>
#include <unordered_set>

#include "core/common.h"
#include "food/drag_text.h"
#include "language/consumption_texts.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"

namespace kelvora {
namespace {

namespace ct = consumption_text;

constexpr std::array kRows = {
    DayPartRow{DayPart::morning, "KV_tb_vochtend", TextTable::taal_morning},
    DayPartRow{DayPart::afternoon, "KV_tb_vmiddag", TextTable::taal_afternoon},
    DayPartRow{DayPart::evening, "KV_tb_vavond", TextTable::taal_evening},
};

// Headings of the nutrient column, in the order of Priority.
constexpr std::array kNutrientHeadings = {ct::kColumnKj,   ct::kColumnKcal,  ct::kColumnFatU,
                                          ct::kColumnFatS, ct::kColumnCarbs, ct::kColumnProtein};

// Afternoon and evening share their failure codes, and are meant to.
std::string_view CodeOf(DayPart part, std::string_view morning, std::string_view later) {
  return part == DayPart::morning ? morning : later;
}

const Text& TextOf(const Program& program, DayPart part, std::size_t index) {
  return program.texts[{RowOf(part).texts, index}];
}

// The weight is converted per portion and rounded before the count multiplies it.
Text WeightOfPortion(Program& program, std::string_view gram) {
  Text weight(gram);
  if (program.settings[Setting::opt_gramoz] != "1") return weight;
  return Gram_To_Oz(weight, UnitsOf(program));
}

void TellOfLimit(Program& program, DayPart part, std::size_t first_line) {
  const auto text = [&](std::size_t index) { return TextOf(program, part, index); };
  program.platform.boxes.Show(
      {.title = {},
       .text = text(first_line) + "\n" + text(ct::kLimitReached) + "\n\n" + text(ct::kLimitRemove),
       .icon = BoxIcon::error});
}

void RefreshWindow(Program& program, DayPart part) {
  ConsumptionView* const window = program.windows.Consumption(part);
  if (window != nullptr) window->Refresh_Consumpties();
}

// What `print` makes, or nothing: filling a list passes over an amount that no number can hold, so
// that its row can still be seen and removed.
template <class Print>
Text PrintedOrNothing(Print print) {
  try {
    return print();
  } catch (const std::system_error&) {
    return {};
  }
}

}  // namespace

void RefreshAfterChange(Program& program, DayPart part) {
  RefreshWindow(program, part);
  Refresh_Totalen(program);
}

bool HasRoomFor(Program& program, DayPart part, std::size_t lines) {
  if (program.store.ListOf(part).Count() + lines <= MaxDayPartLines) return true;
  TellOfLimit(program, part, ct::kLimitDrop);
  return false;
}

void RefreshAllParts(Program& program) {
  SetFileChanged(program, true);
  for (const DayPart part : kDayParts) RefreshWindow(program, part);
  Refresh_Totalen(program);
}

const DayPartRow& RowOf(DayPart part) {
  return kRows[static_cast<std::size_t>(part)];
}

const Text& CellOf(const ConsumptionRow& row, std::size_t column) {
  constexpr std::array kCells = {&ConsumptionRow::number,  &ConsumptionRow::count,
                                 &ConsumptionRow::product, &ConsumptionRow::unit,
                                 &ConsumptionRow::weight,  &ConsumptionRow::nutrient};
  return row.*kCells[column];
}

Priority EnergyOfUser(const Program& program) {
  return PriorityOfUser(program) == Priority::kcal ? Priority::kcal : Priority::kj;
}

Text NutrientCell(Program& program, std::string_view line, double portions, Priority nutrient) {
  return PrintedOrNothing([&] {
    return FormatNumber(ReadStoredNumber(FieldOf(line, FoodFieldOf(nutrient))) * portions,
                        PatternOf(nutrient), program.platform.locale.DecimalSeparator());
  });
}

const Text& NutrientHeading(const Program& program, DayPart part, Priority nutrient) {
  return TextOf(program, part, kNutrientHeadings[static_cast<std::size_t>(nutrient)]);
}

std::vector<ConsumptionRow> ConsumptionRows(Program& program, DayPart part) {
  std::vector<ConsumptionRow> rows;
  program.Guard(CodeOf(part, "#F15-0", "#F14-0"), [&] {
    KV_data& store = program.store;
    const Text separator = program.platform.locale.DecimalSeparator();
    const Priority priority = PriorityOfUser(program);
    CountEqualLines(store.ListOf(part), store.Dupe_list, store.Dupe_list_teller);
    for (std::size_t i = 0; i < store.Dupe_list.Count(); ++i) {
      const Text line(store.Dupe_list[i]);
      const Text count(store.Dupe_list_teller[i]);
      const double times = Val(count);
      const Text portion = WeightOfPortion(program, FieldOf(line, FoodField::kGram));
      rows.push_back({std::to_string(i + 1), count, Text(FieldOf(line, FoodField::kProduct)),
                      Text(FieldOf(line, FoodField::kUnit)), PrintedOrNothing([&] {
                        return Str(ReadStoredNumber(portion) * times, separator);
                      }),
                      NutrientCell(program, line, times, priority), line});
    }
  });
  return rows;
}

std::array<Text, kConsumptionColumns> ConsumptionHeadings(const Program& program, DayPart part) {
  const auto text = [&](std::size_t index) { return TextOf(program, part, index); };
  const bool ounces = program.settings[Setting::opt_gramoz] == "1";
  return {text(ct::kColumnNumber),
          text(ct::kColumnCount),
          text(ct::kColumnFood),
          text(ct::kColumnUnit),
          text(ounces ? ct::kColumnOz : ct::kColumnGram),
          NutrientHeading(program, part, PriorityOfUser(program))};
}

Text ConsumptionTitle(Program& program, DayPart part) {
  const TextList& header = program.store.L_gegevens;
  Text title = TextOf(program, part, ct::kTitle) + " ";
  title.append(header[HeaderRow::kWeekday]).append(" ");
  return title + Format_Datum(header[HeaderRow::kDate], program.settings[Setting::opt_system],
                              UnitsOf(program));
}

std::vector<std::size_t> RowsToSelect(const Program& program, DayPart part,
                                      const std::vector<ConsumptionRow>& rows) {
  const Text& name = program.day.selected_names[static_cast<std::size_t>(part)];
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].product == name) found.push_back(i);
  }
  return found;
}

void RefreshDaySummary(Program& program) {
  if (program.windows.day_summary != nullptr) program.windows.day_summary->Refresh_Daguittreksel();
}

std::array<int, 3> ConsumptionPanelWidths(int window_width) {
  constexpr int kPart = 1000, kContains = 3000;
  return {kPart, kContains, window_width - kPart - kContains};
}

ShownPanels FlipInfo(ShownPanels panels) {
  const bool shown = !panels.ToonInfo;
  return {shown, panels.ToonCombineer && shown};
}

ShownPanels FlipCombineer(ShownPanels panels) {
  const bool shown = !panels.ToonCombineer;
  return {shown, shown};
}

bool IsAboveLimit(Program& program, DayPart part, std::size_t first_line) {
  if (program.store.ListOf(part).Count() <= MaxDayPartLines) return false;
  TellOfLimit(program, part, first_line);
  return true;
}

std::optional<std::size_t> PlaceAfterDelete(const std::vector<ConsumptionRow>& before,
                                            const std::vector<ConsumptionRow>& after,
                                            std::size_t first_deleted) {
  if (after.empty()) return std::nullopt;
  std::unordered_set<std::string_view> left;
  for (const ConsumptionRow& row : after) left.insert(row.line);
  // Rows above it may have gone too: those of its name.
  std::size_t place = 0;
  for (std::size_t i = 0; i < first_deleted; ++i) place += left.contains(before[i].line);
  return std::min(place, after.size() - 1);
}

void MakeActive(Program& program, DayPart part) {
  program.day.active_part = part;
  if (program.windows.lists != nullptr) program.windows.lists->ShowActivePart();
}

void ShowDetailsOf(Program& program, const ConsumptionRow& row) {
  program.windows.core->ShowItem("zoeken", row.line);
}

void SelectName(Program& program, DayPart part, std::string_view product) {
  program.day.selected_names[static_cast<std::size_t>(part)] = product;
}

void Item_Plus_Een(Program& program, DayPart part, const std::optional<Text>& product) {
  program.Guard(CodeOf(part, "#F15-1", "#F14-1"), [&] {
    if (IsAboveLimit(program, part, ct::kLimitAdd)) return;
    SetFileChanged(program, true);
    TextList& lines = program.store.ListOf(part);
    if (lines.Empty() || !product) return;
    SelectName(program, part, *product);
    if (const auto found = lines.FindFirst(KeyOf(*product))) lines.Add(lines[*found]);
    RefreshAfterChange(program, part);
  });
}

void Item_Min_Een(Program& program, DayPart part, const std::optional<Text>& product) {
  program.Guard(CodeOf(part, "#F15-2", "#F14-2"), [&] {
    SetFileChanged(program, true);
    TextList& lines = program.store.ListOf(part);
    if (!lines.Empty() && product) {
      SelectName(program, part, *product);
      if (const auto found = lines.FindLast(KeyOf(*product))) lines.Remove(*found);
    }
    RefreshAfterChange(program, part);
  });
}

void Item_Verwijder(Program& program, DayPart part, const TextList& products) {
  program.Guard(CodeOf(part, "#F15-3", "#F14-3"), [&] {
    SetFileChanged(program, true);
    TextList& lines = program.store.ListOf(part);
    if (lines.Empty()) return;
    const std::unordered_set<std::string_view> names(products.begin(), products.end());
    TextList left;
    left.AddSharedLines(lines, [&names](std::string_view line) {
      const std::size_t end = line.find(kFieldEnd);
      return end == line.npos || !names.contains(line.substr(0, end));
    });
    lines = std::move(left);
    RefreshAfterChange(program, part);
  });
}

Text BeginConsumptionDrag(Program& program, DayPart part, const TextList& products) {
  program.day.drag_source = RoutingCodeOf(part);
  Text payload(kKillMarker);
  for (const std::string_view product : products) (payload += KeyOf(product)) += kLineEnd;
  return payload;
}

void RefreshDragSource(Program& program) {
  for (const DayPart part : kDayParts) {
    if (RoutingCodeOf(part) == program.day.drag_source) RefreshWindow(program, part);
  }
}

bool DropOnDayPart(Program& program, DayPart part, std::string_view payload) {
  bool accepted = false;
  program.Guard(CodeOf(part, "#F15-7", "#F14-7"), [&] {
    // The limit does not count what is being dropped, as is meant.
    if (IsAboveLimit(program, part, ct::kLimitDrop)) return;
    accepted = true;
    SetFileChanged(program, true);
    TextList& lines = program.store.ListOf(part);
    // One after the other, not one of the three: what a marker leaves is looked at again.
    Text rest(payload);
    if (TakeMarker(rest, kAddMarker)) {
      for (const std::string_view line : PartsOf(rest)) {
        if (line.find(kFieldEnd) != line.npos) lines.Add(line);
      }
    }
    if (TakeMarker(rest, kForeignMarker)) {
      // One line, whatever follows it.
      const std::string_view line = std::string_view(rest).substr(0, rest.find(kLineEnd));
      lines.Add({line, kForeignOrigin, std::string_view(&kFieldEnd, 1)});
    }
    if (TakeMarker(rest, kKillMarker)) {
      for (const std::string_view key : PartsOf(rest)) {
        // The beginning of a name is no key, and would match too much.
        if (!key.ends_with(kFieldEnd)) continue;
        MoveConsumption(program.store, program.day.drag_source, key, RoutingCodeOf(part));
      }
      RefreshDragSource(program);
    }
    RefreshAfterChange(program, part);
    ConsumptionView* const window = program.windows.Consumption(part);
    if (window != nullptr) window->SelectLastRow();
  });
  return accepted;
}

}  // namespace kelvora
