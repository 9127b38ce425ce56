// The routines of the two kinds of report in HTML, each under its own failure code: a whole page to
// read, and a DTA file, which holds index, graphs and days of the same page for a website to show.
//
// A page is self-contained: no pictures, no script. Its text is Windows-1252, lines end in carriage
// return and line feed, and nothing of what the user wrote is escaped.
#pragma once

#include "output/html_graphs.h"
#include "output/html_page.h"

namespace kelvora {

[[nodiscard]] Text Export_HTML_Header(const ReportContext& context, const ReportSpan& span);
[[nodiscard]] Text Export_HTML_User(const ReportContext& context, std::size_t days);
[[nodiscard]] Text Export_HTML_Index_Head(const ReportContext& context);
[[nodiscard]] Text Export_HTML_Index_Row(const ReportContext& context, const Rec_DayFile& day);
[[nodiscard]] Text Export_HTML_Index_End(const ReportContext& context);
[[nodiscard]] Text Export_HTML_Graph_Open(const ReportContext& context);
[[nodiscard]] Text Export_HTML_Graph_Bar(const ReportContext& context, const Rec_DayFile& day,
                                         ReportGraph graph);
[[nodiscard]] Text Export_HTML_Graph_Close(const ReportContext& context, std::string_view title);
[[nodiscard]] Text Export_HTML_Day(const ReportContext& context, const Rec_DayFile& day,
                                   DiaryChoice diary);
[[nodiscard]] Text Export_HTML_Footer(const ReportContext& context, const ReportDay& today);

[[nodiscard]] Text Export_DTA_Index_Head(const ReportContext& context);
[[nodiscard]] Text Export_DTA_Index_Row(const ReportContext& context, const Rec_DayFile& day);
[[nodiscard]] Text Export_DTA_Index_End(const ReportContext& context);
[[nodiscard]] Text Export_DTA_Graph_Open(const ReportContext& context);
[[nodiscard]] Text Export_DTA_Graph_Bar(const ReportContext& context, const Rec_DayFile& day,
                                        ReportGraph graph);
[[nodiscard]] Text Export_DTA_Graph_Close(const ReportContext& context, std::string_view title);
[[nodiscard]] Text Export_DTA_Day(const ReportContext& context, const Rec_DayFile& day,
                                  DiaryChoice diary);
[[nodiscard]] Text Export_DTA_Footer(const ReportContext& context, const ReportDay& today);

}  // namespace kelvora
