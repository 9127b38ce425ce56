// The routines of a DTA file: those of the page, wider, without what stands around the days.
#include "output/html.h"
#include "output/html_days.h"
#include "output/html_index.h"
#include "output/html_layout.h"

namespace kelvora {

Text Export_DTA_Index_Head(const ReportContext& context) {
  return WritePiece(context, "#FF5-0", [&](Text& page) { AddIndexHead(page, context, kDtaWidth); });
}

Text Export_DTA_Index_Row(const ReportContext& context, const Rec_DayFile& day) {
  return WritePiece(context, "#FF5-1", [&](Text& page) { AddIndexRow(page, context, day); });
}

Text Export_DTA_Index_End(const ReportContext& context) {
  return WritePiece(context, "#FF5-2", [](Text& page) { AddIndexEnd(page); });
}

Text Export_DTA_Graph_Open(const ReportContext& context) {
  return WritePiece(context, "#FF5-3", [](Text& page) { AddGraphOpen(page, kDtaWidth); });
}

Text Export_DTA_Graph_Bar(const ReportContext& context, const Rec_DayFile& day, ReportGraph graph) {
  return WritePiece(context, "#FF5-4", [&](Text& page) { AddGraphBar(page, day, graph); });
}

Text Export_DTA_Graph_Close(const ReportContext& context, std::string_view title) {
  return WritePiece(context, "#FF5-5", [&](Text& page) { AddGraphClose(page, title); });
}

Text Export_DTA_Day(const ReportContext& context, const Rec_DayFile& day, DiaryChoice diary) {
  return WritePiece(context, "#FF5-6",
                    [&](Text& page) { AddDay(page, context, kDtaWidth, day, diary); });
}

Text Export_DTA_Footer(const ReportContext&, const ReportDay&) {
  return {};
}

}  // namespace kelvora
