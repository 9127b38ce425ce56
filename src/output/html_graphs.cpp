#include "output/html_graphs.h"

#include "language/export_form_texts.h"
#include "nutrition/numbers.h"
#include "output/html_layout.h"

namespace kelvora {
namespace {

using namespace export_form_text;

// What a bar shows: a field of the trend text by which divisor, or the weight of the day's header.
struct GraphRow {
  TextId title;
  std::string_view colour;
  std::optional<std::size_t> trend_field;
  float divisor;
};
constexpr std::array kGraphs = {
    GraphRow{kGraphWeight, "#6887B6", std::nullopt, 1},
    GraphRow{kGraphKilocalories, "#ABD9AD", 2, 55},
    GraphRow{kGraphUnsaturatedFats, "#E8A2A2", 3, 2},
    GraphRow{kGraphSaturatedFats, "#C14747", 4, 1},
    GraphRow{kGraphProteins, "#FFD695", 6, 5},
    GraphRow{kGraphCarbohydrates, "#FF7C3B", 5, 8},
};
static_assert(kGraphs.size() == kReportGraphs.size());

const GraphRow& RowOf(ReportGraph graph) {
  return kGraphs[static_cast<std::size_t>(graph)];
}

// The weight in the header of a day.
Text WeightOf(const Rec_DayFile& day) {
  TextList header;
  SplitBlock(day[DayFileField::Header], header);
  return Text(header[HeaderRow::kWeight]);
}

// Pixels. The quotient goes through its text of seven digits before it is rounded.
Text HeightOf(const Rec_DayFile& day, const GraphRow& graph) {
  const Text stored = graph.trend_field
                          ? Text(FieldOf(day[DayFileField::Trend], *graph.trend_field))
                          : WeightOf(day);
  const float value = Single(ReadStoredNumber(stored));
  const float seven_digits = Single(Val(Str(value / graph.divisor, ".")));
  return Str(RoundTo(seven_digits, 0), ".");
}

}  // namespace

const Text& TitleOf(ReportGraph graph, const TextTables& texts) {
  return texts[RowOf(graph).title];
}

void AddGraphOpen(Text& page, std::string_view width) {
  AddLine(page, 0,
          {R"(<table border="0" width=")", width, R"(" cellspacing="0" cellpadding="0">)"});
  AddLine(page, 1, {"<tr align=left>"});
  AddLine(page, 1, {R"(<td class="tdO1">)"});
  AddLine(page, 1, {R"(<table border="0" cellspacing="0" cellpadding="0">)"});
  AddLine(page, 2, {"<tr align=left valign=bottom>"});
}

void AddGraphBar(Text& page, const Rec_DayFile& day, ReportGraph graph) {
  constexpr std::string_view kInnerTable =
      R"(<table border="0" cellspacing="0" cellpadding="0"><tr>)";
  const GraphRow& row = RowOf(graph);
  AddLine(page, 2,
          {"<td>", kInnerTable, R"(<td class="tdG1" bgcolor=")", row.colour, R"(">)", kInnerTable,
           R"(<td width="5" height=")", HeightOf(day, row),
           R"("></td></tr></table></td></tr></table></td>)"});
}

void AddGraphClose(Text& page, std::string_view title) {
  for (const std::string_view closing : {"</tr>", "</table>", "</td>", "</tr>", "<tr>"}) {
    AddLine(page, 1, {closing});
  }
  AddLine(page, 1, {R"(<td width="100%" class="tdKop3"><p align=left>)", title, "</p></td>"});
  AddLine(page, 1, {"</tr>"});
  AddLine(page, 1, {"</table>"});
  AddLine(page, 0, {"<br>"});
}

}  // namespace kelvora
