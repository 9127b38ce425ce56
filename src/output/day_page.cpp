// The printed summary of a day: whose it is, what was eaten, what that comes to.
#include <array>

#include "language/print_texts.h"
#include "nutrition/numbers.h"
#include "output/eaten_foods.h"
#include "output/page_writer.h"
#include "output/print_pages.h"

namespace kelvora {
namespace {

using namespace print_text;

constexpr PrintFont kSmall{.family = kPageFamily, .points = 8};
constexpr PrintFont kColumnHead{.family = kPageFamily, .points = 8, .underline = true};

constexpr std::array kWeightUnits = {kKilogram, kPounds, kStones};  // as UnitSystem

// The columns in which more than one thing stands, as fractions.
constexpr double kDetails = 0.4;
constexpr double kGrams = 0.58;

// The second block of details has a place of its own, whatever the width.
constexpr double kSecondDetails = 8000;

constexpr double kFoodRowHeight = 300;

void WriteDetails(PageWriter& page, const ReportContext& context, const Text& date) {
  constexpr double kTop = 900;
  constexpr double kLineHeight = 200;
  const TextTables& texts = context.texts;
  page.Write(kPageHeading, kPageLeft, kTop, texts[kPersonalDetails]);
  double y = kTop;
  for (const ProfileField field :
       {ProfileField::name, ProfileField::address_1, ProfileField::address_2, ProfileField::city,
        ProfileField::state, ProfileField::postcode, ProfileField::country}) {
    page.Write(kPageText, page.Column(kDetails), y, context.profile[field]);
    y += kLineHeight;
  }

  const auto weight = [&](ProfileField field) {
    const TextId unit = kWeightUnits[static_cast<std::size_t>(context.system)];
    return DayWeight(context, context.profile[field]) + " " + texts[unit];
  };
  y = kTop;
  for (const auto& [label, value] :
       {std::pair{kReference, context.profile[ProfileField::reference]}, std::pair{kDayDate, date},
        std::pair{kHeight, HeightText(context, {kMeter, kFeetInch})},
        std::pair{kWeight, weight(ProfileField::weight)},
        std::pair{kGoalWeight, weight(ProfileField::goal_weight)}}) {
    page.Write(kPageText, kSecondDetails, y, texts[label] + " " + value);
    y += kLineHeight;
  }
}

void WriteTop(PageWriter& page, const ReportContext& context, std::string_view stored_date) {
  const Text date = ShownDate(context, stored_date);
  page.Write(kPageBold, kPageLeft, 600, context.texts[kDayTitle]);
  page.Write(kPageBold, page.Right() - 900, 600, date);
  page.Rule(850);
  WriteDetails(page, context, date);
  page.Rule(2400);
}

// The amounts behind the weight of the food.
struct AmountColumn {
  double place;
  TextId heading;
  std::size_t field;
  std::string_view pattern;
};
constexpr std::array kColumns = {
    AmountColumn{0.65, kColumnKj, FoodField::kKj, "#####0"},
    AmountColumn{0.70, kColumnKcal, FoodField::kKcal, "#####0"},
    AmountColumn{0.75, kColumnFatU, FoodField::kFatU, "###0"},
    AmountColumn{0.80, kColumnFatS, FoodField::kFatS, "###0"},
    AmountColumn{0.86, kColumnProtein, FoodField::kProtein, "###0"},
    AmountColumn{0.91, kColumnSodium, FoodField::kSodium, "###0.000"},
    AmountColumn{0.99, kColumnCarbs, FoodField::kCarbs, "###0"},
};
constexpr double kName = 400;
constexpr double kUnit = 0.4;
constexpr double kTimes = 0.55;

void WriteColumnHeads(PageWriter& page, const ReportContext& context) {
  constexpr double kY = 2900;
  const TextTables& texts = context.texts;
  page.Write(kColumnHead, kName, kY, texts[kColumnFood]);
  page.Write(kColumnHead, page.Column(kUnit), kY, texts[kColumnUnit]);
  page.Write(kColumnHead, page.Column(kTimes), kY, texts[kColumnCount]);
  page.Write(kColumnHead, page.Column(kGrams), kY,
             texts[context.food_in_ounces ? kUnitOz : kColumnGram]);
  for (const AmountColumn& column : kColumns) {
    page.Write(kColumnHead, page.Column(column.place), kY, texts[column.heading]);
  }
}

void WriteFood(PageWriter& page, const ReportContext& context, const EatenFood& food, double y) {
  page.Write(kSmall, kName, y, Text(food.Field(FoodField::kProduct)));
  page.Write(kSmall, page.Column(kUnit), y, Text(food.Field(FoodField::kUnit)));
  page.Write(kSmall, page.Column(kTimes), y, Text(food.count));
  page.Write(kSmall, page.Column(kGrams), y,
             PrintFoodWeight(context, food.amounts[FoodField::kGram]));
  for (const AmountColumn& column : kColumns) {
    page.Write(kSmall, page.Column(column.place), y,
               FormatNumber(food.amounts[column.field], column.pattern, context.separator));
  }
}

// The totals behind that of the weight. Their grams stay grams, whatever the settings say.
struct TotalRow {
  TextId label;
  std::size_t field;
  std::string_view pattern;
  TextId unit;
};
constexpr std::array kTotalRows = {
    TotalRow{kTotalKj, FoodField::kKj, "######0", kUnitKj},
    TotalRow{kTotalKcal, FoodField::kKcal, "######0", kUnitKcal},
    TotalRow{kTotalUnsaturatedFat, FoodField::kFatU, "####0", kUnitGram},
    TotalRow{kTotalSaturatedFat, FoodField::kFatS, "####0", kUnitGram},
    TotalRow{kTotalProtein, FoodField::kProtein, "####0", kUnitGram},
    TotalRow{kTotalSodium, FoodField::kSodium, "##0.000", kUnitGram},
    TotalRow{kTotalCarbohydrates, FoodField::kCarbs, "#####0", kUnitGram},
};

// `rows` is the height of the foods above.
void WriteTotals(PageWriter& page, const ReportContext& context, const FoodAmounts& totals,
                 double rows, const PrintMoment& now) {
  const TextTables& texts = context.texts;
  page.Rule(3300 + rows);
  double y = 3500 + rows;
  const auto write = [&](TextId label, const Text& amount, TextId unit) {
    page.Write(kSmall, page.Column(kDetails), y, texts[label]);
    page.Write(kSmall, page.Column(kGrams), y, amount + " " + texts[unit]);
    y += 300;
  };
  page.Write(kPageHeading, kPageLeft, y, texts[kTotals]);
  write(kTotalGram, PrintFoodWeight(context, totals[FoodField::kGram]),
        context.food_in_ounces ? kUnitOz : kUnitGram);
  for (const TotalRow& row : kTotalRows) {
    write(row.label, FormatNumber(totals[row.field], row.pattern, context.separator), row.unit);
  }
  page.Rule(5900 + rows);
  page.Write(kPageFoot, kPageLeft, 5950 + rows, texts[kPrintedOn] + " " + now.date);
  page.Write(kPageFoot, page.Right() - 500, 5950 + rows, now.time);
}

}  // namespace

PrintedPage DayPage(const ReportContext& context, const KV_data& store, double width,
                    const PrintMoment& now) {
  PageWriter page(width);
  WriteTop(page, context, store.L_gegevens[HeaderRow::kDate]);
  page.Write(kPageHeading, kPageLeft, 2500, context.texts[kFoodItems]);
  WriteColumnHeads(page, context);
  const EatenFoods foods(store);
  FoodAmounts totals;
  double y = 3200;
  for (const EatenFood& food : foods.Rows()) {
    WriteFood(page, context, food, y);
    totals.Add(food.amounts);
    y += kFoodRowHeight;
  }
  WriteTotals(page, context, totals, y - 3200, now);
  return page.Take();
}

}  // namespace kelvora
