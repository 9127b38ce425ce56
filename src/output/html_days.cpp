#include "output/html_days.h"

#include "language/export_texts.h"
#include "language/print_texts.h"
#include "nutrition/numbers.h"
#include "output/eaten_foods.h"
#include "output/html_layout.h"

namespace kelvora {
namespace {

using namespace export_text;

// The columns behind food, count, unit and gram.
struct AmountColumn {
  TextId heading;
  std::size_t field;
  std::string_view pattern;
  std::string_view total_pattern;
};
constexpr std::array kColumns = {
    AmountColumn{kItemKj, FoodField::kKj, "#####0", "#######0"},
    AmountColumn{kItemKcal, FoodField::kKcal, "####0", "######0"},
    AmountColumn{kItemFatU, FoodField::kFatU, "###0", "#####0"},
    AmountColumn{kItemFatS, FoodField::kFatS, "###0", "#####0"},
    AmountColumn{kItemProtein, FoodField::kProtein, "###0", "#####0"},
    AmountColumn{kItemSodium, FoodField::kSodium, "###0.000", "###0.000"},
    AmountColumn{kItemCarbs, FoodField::kCarbs, "####0", "#####0"},
};
constexpr std::string_view kGramPattern = "#####0";
constexpr std::string_view kTotalGramPattern = "#######0";

// The classes of the cells with text and with numbers.
struct RowClasses {
  std::string_view text;
  std::string_view number;
};
constexpr std::array kDayPartClasses = {RowClasses{"tdOL", "tdOR"}, RowClasses{"tdML", "tdMR"},
                                        RowClasses{"tdAL", "tdAR"}};

void AddDayHead(Text& page, const ReportContext& context, std::string_view width,
                const TextList& header) {
  const TextTables& texts = context.texts;
  const std::string_view date = header[HeaderRow::kDate];
  const std::string_view weight = header[HeaderRow::kWeight];
  constexpr std::string_view kThird = R"(width="33%" class="tdKop1")";
  OpenPlainTable(page, width);
  OpenRow(page);
  AddCellWith(page, kThird,
              {"<p align=left>", texts[kDayDate], " <a name=\"#", AnchorOf(date, weight), "\">",
               ShownDate(context, date), "</a>, ", header[HeaderRow::kWeekday], "</p>"});
  AddCellWith(
      page, kThird,
      {"<p align=center> »<a href=\"#MyIndex\"><b>"_w, texts[kBackToIndex], "</b>«</a></p>"_w});
  AddCell(page, "tdKop2",
          {"<p align=right><b>", DayWeight(context, weight), "</b> ", WeightUnit(context), "</p>"});
  CloseRow(page);
  CloseTable(page);
}

void AddItemHead(Text& page, const ReportContext& context) {
  constexpr std::string_view kHeading = "tdKop3";
  const TextTables& texts = context.texts;
  OpenRow(page);
  AddCell(page, kHeading, {"<p align=left>", texts[kItemFood], "</p>"});
  AddCell(page, kHeading, {});
  AddCell(page, kHeading, {"<p align=left>", texts[kItemUnit], "</p>"});
  AddCell(page, kHeading, {texts[context.food_in_ounces ? kItemOz : kItemGram]});
  for (const AmountColumn& column : kColumns) AddCell(page, kHeading, {texts[column.heading]});
  CloseRow(page);
}

void AddItem(Text& page, const ReportContext& context, const EatenFood& food,
             const RowClasses& classes) {
  OpenRow(page);
  AddCell(page, classes.text, {food.Field(FoodField::kProduct)});
  AddCell(page, classes.text, {food.count, "x"});
  AddCell(page, classes.text, {food.Field(FoodField::kUnit)});
  AddCell(page, classes.number,
          {PrintFoodWeight(context, food.amounts[FoodField::kGram], kGramPattern)});
  for (const AmountColumn& column : kColumns) {
    AddCell(page, classes.number,
            {FormatNumber(food.amounts[column.field], column.pattern, context.separator)});
  }
  CloseRow(page);
}

void AddTotals(Text& page, const ReportContext& context, const FoodAmounts& totals) {
  OpenRow(page);
  AddCell(page, "tdKop4", {context.texts[print_text::kTotals]});
  AddCell(page, "tdKop4", {});
  AddCell(page, "tdKop4", {});
  AddCell(page, "tdKop5", {PrintFoodWeight(context, totals[FoodField::kGram], kTotalGramPattern)});
  for (const AmountColumn& column : kColumns) {
    AddCell(page, "tdKop5",
            {FormatNumber(totals[column.field], column.total_pattern, context.separator)});
  }
  CloseRow(page);
}

void AddItems(Text& page, const ReportContext& context, const EatenFoods& foods) {
  RowClasses classes;
  FoodAmounts totals;
  for (const EatenFood& food : foods.Rows()) {
    totals.Add(food.amounts);
    for (const DayPart part : kDayParts) {
      if (food.Field(FoodField::kPod) == PodCodeOf(part)) {
        classes = kDayPartClasses[static_cast<std::size_t>(part)];
      }
    }
    AddItem(page, context, food, classes);
  }
  AddTotals(page, context, totals);
}

void AddDiary(Text& page, std::string_view width, std::string_view diary) {
  OpenBorderedTable(page, width);
  OpenRow(page);
  AddCell(page, "tdNOT", {ReplaceAll(diary, "\r", "<br>")});
  CloseRow(page);
  CloseTable(page);
}

}  // namespace

void AddDay(Text& page, const ReportContext& context, std::string_view width,
            const Rec_DayFile& day, DiaryChoice diary) {
  TextList header;
  SplitBlock(CommaToPoint(day[DayFileField::Header]), header);
  AddDayHead(page, context, width, header);
  OpenBorderedTable(page, width);
  AddItemHead(page, context);
  AddItems(page, context, EatenFoods(day));
  CloseTable(page);
  if (diary == DiaryChoice::include) AddDiary(page, width, day[DayFileField::Notes]);
  AddLine(page, 0, {"<br>"});
}

}  // namespace kelvora
