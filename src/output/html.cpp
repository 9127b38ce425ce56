// The routines of the whole page. The head and the rows of the index share a code.
#include "output/html.h"

#include "output/html_days.h"
#include "output/html_index.h"
#include "output/html_layout.h"

namespace kelvora {

Text Export_HTML_Header(const ReportContext& context, const ReportSpan& span) {
  return WritePiece(context, "#FF6-0", [&](Text& page) { AddPageHead(page, context, span); });
}

Text Export_HTML_User(const ReportContext& context, std::size_t days) {
  return WritePiece(context, "#FF6-1", [&](Text& page) { AddUser(page, context, days); });
}

Text Export_HTML_Index_Head(const ReportContext& context) {
  return WritePiece(context, "#FF6-2",
                    [&](Text& page) { AddIndexHead(page, context, kHtmlWidth); });
}

Text Export_HTML_Index_Row(const ReportContext& context, const Rec_DayFile& day) {
  return WritePiece(context, "#FF6-2", [&](Text& page) { AddIndexRow(page, context, day); });
}

Text Export_HTML_Index_End(const ReportContext& context) {
  return WritePiece(context, "#FF6-3", [](Text& page) { AddIndexEnd(page); });
}

Text Export_HTML_Graph_Open(const ReportContext& context) {
  return WritePiece(context, "#FF6-4", [](Text& page) { AddGraphOpen(page, kHtmlWidth); });
}

Text Export_HTML_Graph_Bar(const ReportContext& context, const Rec_DayFile& day,
                           ReportGraph graph) {
  return WritePiece(context, "#FF6-5", [&](Text& page) { AddGraphBar(page, day, graph); });
}

Text Export_HTML_Graph_Close(const ReportContext& context, std::string_view title) {
  return WritePiece(context, "#FF6-6", [&](Text& page) { AddGraphClose(page, title); });
}

Text Export_HTML_Day(const ReportContext& context, const Rec_DayFile& day, DiaryChoice diary) {
  return WritePiece(context, "#FF6-7",
                    [&](Text& page) { AddDay(page, context, kHtmlWidth, day, diary); });
}

Text Export_HTML_Footer(const ReportContext& context, const ReportDay& today) {
  return WritePiece(context, "#FF6-8", [&](Text& page) { AddPageFoot(page, context, today); });
}

}  // namespace kelvora
