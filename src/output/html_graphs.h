// The bar graphs of a report, drawn with nothing but nested tables: a bar is a cell whose height in
// pixels is the value. The scale is fixed, and weights are always kilograms.
#pragma once

#include "output/report_context.h"

namespace kelvora {

// In their order on the page.
enum class ReportGraph {
  weight,
  kilocalories,
  unsaturated_fats,
  saturated_fats,
  proteins,
  carbohydrates
};
inline constexpr std::array kReportGraphs = {
    ReportGraph::weight,         ReportGraph::kilocalories, ReportGraph::unsaturated_fats,
    ReportGraph::saturated_fats, ReportGraph::proteins,     ReportGraph::carbohydrates};

[[nodiscard]] const Text& TitleOf(ReportGraph graph, const TextTables& texts);

void AddGraphOpen(Text& page, std::string_view width);

// The bar of one day. Throws std::system_error for a number that a single can't hold.
void AddGraphBar(Text& page, const Rec_DayFile& day, ReportGraph graph);

void AddGraphClose(Text& page, std::string_view title);

}  // namespace kelvora
