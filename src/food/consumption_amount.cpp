#include "food/consumption_amount.h"

#include <algorithm>

#include "food/scaled_food.h"
#include "language/consumption_texts.h"

namespace kelvora {
namespace {

// `lines` with all that equal `line` gone, and `instead` in the place of the first.
TextList Exchanged(const TextList& lines, std::string_view line, const TextList& instead) {
  TextList changed;
  bool exchanged = false;
  for (const std::string_view other : lines) {
    if (other != line) {
      changed.Add(other);
    } else if (!exchanged) {
      for (const std::string_view put : instead) changed.Add(put);
      exchanged = true;
    }
  }
  return changed;
}

}  // namespace

AmountChange ChangeAmount(Program& program, DayPart part, std::string_view line,
                          const Amount& amount) {
  AmountChange change;
  program.Guard(part == DayPart::morning ? "#F15-6" : "#F14-6", [&] {
    TextList& lines = program.store.ListOf(part);
    const auto made =
        LinesOfAmount(program.store, line, amount, program.platform.locale.DecimalSeparator());
    if (const auto* const fault = std::get_if<AmountFault>(&made)) {
      change.fault = *fault;
      return;
    }
    const TextList& instead = std::get<TextList>(made);
    const auto there = static_cast<std::size_t>(std::ranges::count(lines, line));
    if (there == 0) return;
    if (instead.Count() > there && IsAboveLimit(program, part, consumption_text::kLimitAdd)) return;
    lines = Exchanged(lines, line, instead);
    SetFileChanged(program, true);
    SelectName(program, part, FieldOf(instead[0], FoodField::kProduct));
    RefreshAfterChange(program, part);
    change.done = true;
  });
  return change;
}

Text AmountOfRow(const ConsumptionRow& row) {
  const Text told = AmountInName(row.line);
  return row.count == "1" && !told.empty() ? told : row.count;
}

}  // namespace kelvora
