#include "output/html_index.h"

#include "language/export_texts.h"
#include "output/html_layout.h"

namespace kelvora {
namespace {

using namespace export_text;

// A column of the totals of a day: a field of the trend text.
struct IndexColumn {
  TextId heading;
  std::size_t trend_field;
  std::string_view css_class;
  std::string_view pattern;
};
constexpr std::array kColumns = {
    IndexColumn{kIndexKj, 1, "tdE3", "######0"},
    IndexColumn{kIndexKcal, 2, "tdE2", "#####0"},
    IndexColumn{kIndexFatU, 3, "tdE3", "####0"},
    IndexColumn{kIndexFatS, 4, "tdE2", "####0"},
    IndexColumn{kIndexProtein, 6, "tdE3", "####0"},
    IndexColumn{kIndexSodium, 7, "tdE2", "####0.000"},
    IndexColumn{kIndexCarbs, 5, "tdE3", "####0"},
};
constexpr std::size_t kGramField = 0;

constexpr std::string_view kHeading = "tdKop3";

}  // namespace

void AddIndexHead(Text& page, const ReportContext& context, std::string_view width) {
  const TextTables& texts = context.texts;
  OpenBorderedTable(page, width);
  OpenRow(page);
  for (const TextId heading : {kIndexDate, kIndexDay, kIndexWeight}) {
    AddCell(page, kHeading, {"<p align=left>", texts[heading], "</p>"});
  }
  AddCell(page, kHeading, {texts[context.food_in_ounces ? kIndexOz : kIndexGram]});
  for (const IndexColumn& column : kColumns) AddCell(page, kHeading, {texts[column.heading]});
  CloseRow(page);
}

void AddIndexRow(Text& page, const ReportContext& context, const Rec_DayFile& day) {
  TextList header, trend;
  SplitBlock(day[DayFileField::Header], header);
  SplitLine(day[DayFileField::Trend], trend);
  const std::string_view date = header[HeaderRow::kDate];
  const std::string_view weight = header[HeaderRow::kWeight];

  OpenRow(page);
  AddCell(page, "tdO1",
          {" » <a href=\"#"_w, AnchorOf(date, weight), "\">", ShownDate(context, date), "</a>"});
  AddCell(page, "tdO1", {R"(<a name="#MyIndex"></a>)", header[HeaderRow::kWeekday]});
  AddCell(page, "tdO1", {DayWeight(context, weight), " ", WeightUnit(context)});
  AddCell(page, "tdE2", {PrintFoodWeight(context, trend[kGramField], "######0")});
  for (const IndexColumn& column : kColumns) {
    AddCell(page, column.css_class,
            {PrintNumber(context, trend[column.trend_field], column.pattern)});
  }
  CloseRow(page);
}

void AddIndexEnd(Text& page) {
  CloseTable(page);
  AddLine(page, 0, {"<br>"});
}

}  // namespace kelvora
