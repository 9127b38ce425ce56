#include "food/consumption_moves.h"

#include <algorithm>

#include "core/common.h"
#include "core/drawn_text.h"
#include "food/consumption.h"
#include "food/drag_text.h"
#include "food/scaled_food.h"
#include "language/own_texts.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"
#include "storage/food_files.h"

namespace kelvora {
namespace {

Text OriginOf(const Program& program, std::string_view routing_code) {
  return Text(routing_code) + program.store.KV_bestand;
}

// The routing code of where cut foods come from; nothing if that is no part of the open day.
std::optional<std::string_view> SourceOf(const Program& program, std::string_view origin) {
  for (const DayPart part : kDayParts) {
    const std::string_view code = RoutingCodeOf(part);
    if (OriginOf(program, code) == origin) return code;
  }
  return std::nullopt;
}

// How many lines a paste moves or adds.
std::size_t LinesOf(const Program& program, const ClipboardFoods& foods) {
  Text rest = foods.payload;
  if (TakeMarker(rest, kAddMarker)) {
    const TextList lines = PartsOf(rest);
    return static_cast<std::size_t>(std::ranges::count_if(
        lines, [](std::string_view line) { return line.find(kFieldEnd) != line.npos; }));
  }
  const bool cut = TakeMarker(rest, kKillMarker) && SourceOf(program, foods.origin).has_value();
  return cut ? PartsOf(rest).Count() : 0;
}

Text TableOf(Program& program, DayPart part, const std::vector<std::size_t>& rows) {
  const auto shown = ConsumptionRows(program, part);
  const auto headings = ConsumptionHeadings(program, part);
  const Priority energy = EnergyOfUser(program);
  Text table;
  const auto add_row = [&](const auto& cell, std::string_view last) {
    for (std::size_t column = 1; column < kConsumptionColumns - 1; ++column) {
      (table += DrawnCell(cell(column))) += '\t';
    }
    (table += DrawnCell(last)) += '\n';
  };
  add_row([&](std::size_t column) { return Trimmed(headings[column]); },
          Trimmed(NutrientHeading(program, part, energy)));
  for (const std::size_t row : rows) {
    add_row([&](std::size_t column) { return CellOf(shown[row], column); },
            NutrientCell(program, program.store.Dupe_list[row],
                         Val(program.store.Dupe_list_teller[row]), energy));
  }
  return table;
}

}  // namespace

bool MoveToDayPart(Program& program, DayPart from, DayPart to, const TextList& products) {
  if (products.Empty()) return false;
  const Text payload = BeginConsumptionDrag(program, from, products);
  return DropOnDayPart(program, to, payload);
}

void TakeOutOfDay(Program& program, DayPart from, const TextList& products) {
  if (products.Empty()) return;
  const bool morning = from == DayPart::morning;
  program.Guard(morning ? "#F15-5" : "#F14-5", [&] {
    SetFileChanged(program, true);
    for (const std::string_view product : products) {
      MoveConsumption(program.store, RoutingCodeOf(from), KeyOf(product), kDeleteTarget);
    }
    RefreshAfterChange(program, from);
  });
}

void AddToFavourites(Program& program, const TextList& products) {
  const auto listed = [&program](std::string_view name) {
    return CanBeFavourite(program.store, KeyOf(name));
  };
  Text unknown;
  for (const std::string_view product : products) {
    if (product.empty()) continue;
    if (const Text name = NameOfFavourite(product, listed); !name.empty()) {
      Add_To_Favorites(program, KeyOf(name));
    } else {
      unknown.append(unknown.empty() ? "" : ", ").append(product);
    }
  }
  if (unknown.empty()) return;
  Tell(program, BoxIcon::information,
       OwnTextWith(program.texts, OwnText::favourite_unknown, unknown));
}

FoodsToClipboard CopyFromDayPart(Program& program, DayPart part,
                                 const std::vector<std::size_t>& rows) {
  FoodsToClipboard copy{{}, TableOf(program, part, rows)};
  if (rows.empty()) return copy;
  copy.foods.payload = kAddMarker;
  const KV_data& store = program.store;
  for (const std::size_t row : rows) {
    for (double left = Val(store.Dupe_list_teller[row]); left > 0; --left) {
      copy.foods.payload.append(store.Dupe_list[row]).push_back(kLineEnd);
    }
  }
  return copy;
}

FoodsToClipboard CutFromDayPart(Program& program, DayPart part,
                                const std::vector<std::size_t>& rows) {
  FoodsToClipboard cut{{}, TableOf(program, part, rows)};
  if (rows.empty()) return cut;
  TextList products;
  for (const std::size_t row : rows) {
    products.Add(FieldOf(program.store.Dupe_list[row], FoodField::kProduct));
  }
  cut.foods = {BeginConsumptionDrag(program, part, products),
               OriginOf(program, RoutingCodeOf(part))};
  return cut;
}

ClipboardFoods FoodsInPlainText(std::string_view text) {
  return {Text(text.starts_with(kAddMarker) ? text : std::string_view()), {}};
}

bool CanPaste(const Program& program, const ClipboardFoods& foods) {
  if (foods.payload.starts_with(kKillMarker)) return SourceOf(program, foods.origin).has_value();
  return LinesOf(program, foods) > 0;
}

bool PasteOnDayPart(Program& program, DayPart part, const ClipboardFoods& foods) {
  if (!program.store.DayIsOpen() || !CanPaste(program, foods)) return false;
  const auto source = SourceOf(program, foods.origin);
  // Within its own list a food only changes its place.
  const bool stays = source && *source == RoutingCodeOf(part);
  if (!HasRoomFor(program, part, stays ? 0 : LinesOf(program, foods))) return false;
  // A drag may have begun elsewhere since the foods were cut.
  if (source) program.day.drag_source = *source;
  return DropOnDayPart(program, part, foods.payload);
}

void UndoFoods(Program& program) {
  if (program.day.undo.Undo(program.store)) RefreshAllParts(program);
}

void RedoFoods(Program& program) {
  if (program.day.undo.Redo(program.store)) RefreshAllParts(program);
}

}  // namespace kelvora
