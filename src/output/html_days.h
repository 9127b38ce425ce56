// The section of one day in a report: its head, the table of what was eaten, the diary.
#pragma once

#include "output/report_context.h"

namespace kelvora {

// A row takes its colours from the code of its part of the day, or, where it has no category and
// so no code in its place, from the row before it; the first of a day has none then. Meant. Throws
// std::system_error for a number that a single can't hold.
void AddDay(Text& page, const ReportContext& context, std::string_view width,
            const Rec_DayFile& day, DiaryChoice diary);

}  // namespace kelvora
