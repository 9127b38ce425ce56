// The XML file of a report: lines of text joined, not a document that a library would write.
//
// Values are cleaned (CleanText) and not escaped: "&" can't occur in the days and the user, but a
// "<" goes through and makes the file malformed, as it is meant to. The head isn't cleaned. Where
// a line has no category, its part of the day stands in its place.
#pragma once

#include "output/report_context.h"

namespace kelvora {

// The first lines to </Details>. Dates as they are shown.
[[nodiscard]] Text Export_XML_Header(const ReportContext& context, std::string_view start_date,
                                     std::string_view end_date, std::size_t days,
                                     std::string_view user_name);

// The user by the profile.
[[nodiscard]] Text Export_XML_User(const ReportContext& context);

// One day. The kilocalories of an item are the running total of the day, this item included: meant.
[[nodiscard]] Text Export_XML_Day(const ReportContext& context, const Rec_DayFile& day,
                                  DiaryChoice diary);

[[nodiscard]] Text Export_XML_Footer(const ReportContext& context);

}  // namespace kelvora
