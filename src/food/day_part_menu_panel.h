// Three entries of a menu that add food to the morning, the afternoon or the evening: what a drag
// to a consumption window does, for whoever uses no mouse.
#pragma once

#include <array>
#include <functional>

#include <QAction>
#include <QMenu>

#include "core/store.h"
#include "language/tables.h"

namespace kelvora {

using DayPartActions = std::array<QAction*, kDayParts.size()>;

// Appends the entries to a menu, under its name and that of the day part: "mnu_opties_morning".
[[nodiscard]] DayPartActions AddDayPartActions(QMenu* menu, std::function<void(DayPart)> chosen);

void SetDayPartTexts(const DayPartActions& actions, const TextTables& texts);

}  // namespace kelvora
