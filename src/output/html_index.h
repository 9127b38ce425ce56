// The index of a report: a table with one row a day, from which links lead to the days.
#pragma once

#include "output/report_context.h"

namespace kelvora {

void AddIndexHead(Text& page, const ReportContext& context, std::string_view width);

// Throws std::system_error for a number that can't be printed.
void AddIndexRow(Text& page, const ReportContext& context, const Rec_DayFile& day);

void AddIndexEnd(Text& page);

}  // namespace kelvora
