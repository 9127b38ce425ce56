#include "food/consumption_moves.h"

#include "core/common.h"
#include "food/consumption.h"
#include "food/drag_text.h"
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
  for (const std::string_view product : products) {
    if (!product.empty()) Add_To_Favorites(program, KeyOf(product));
  }
}

CutFoods CutFromDayPart(Program& program, DayPart part, const TextList& products) {
  return {BeginConsumptionDrag(program, part, products), OriginOf(program, RoutingCodeOf(part))};
}

bool CanPaste(const Program& program, const CutFoods& clipboard) {
  if (!IsDragText(clipboard.payload)) return false;
  return !clipboard.payload.starts_with(kKillMarker) ||
         SourceOf(program, clipboard.origin).has_value();
}

bool PasteOnDayPart(Program& program, DayPart part, const CutFoods& clipboard) {
  if (!CanPaste(program, clipboard)) return false;
  // A drag may have begun elsewhere since the foods were cut.
  if (const auto source = SourceOf(program, clipboard.origin)) program.day.drag_source = *source;
  return DropOnDayPart(program, part, clipboard.payload);
}

}  // namespace kelvora
