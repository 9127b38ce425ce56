// The rules of the export dialog that need no window: the order of the days, how a report's file
// is named, and what is asked and told.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/exchange_sort.h"
#include "output/report.h"
#include "platform/boxes.h"

namespace kelvora {

// More days than this make graphs that are wider than the page.
inline constexpr std::size_t kMostDaysWithGraphs = 92;

// The order of the list, newest first by two-digit years: places in `stored_dates`, each dd-mm-yy.
// Equal dates stand as the exchange sort leaves them.
[[nodiscard]] std::vector<std::size_t> NewestFirst(const std::vector<Text>& stored_dates,
                                                   const Pause& pause);

// The name of a report's file, UTF-8. `folder_name` is that of the user's folder, UTF-8 as well;
// the user's name in `span` isn't used, since text can't hold every name of a folder.
[[nodiscard]] std::string ReportFileName(const TextTables& texts, ReportFormat format,
                                         std::string_view folder_name, const ReportSpan& span);

// What is shown when the list has no days at all. Rows of which none is selected are no reason.
[[nodiscard]] Box NoDaysBox(const TextTables& texts);

// The question before graphs of more days than fit; nothing if there is nothing to ask.
[[nodiscard]] std::optional<Box> TooManyDaysBox(const TextTables& texts, std::size_t days,
                                                bool graphs);

// Tells where a DTA file was written. `path` is text.
[[nodiscard]] Box SavedDtaBox(const TextTables& texts, std::string_view path);

}  // namespace kelvora
