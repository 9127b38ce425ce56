#include "nutrition/totals.h"

#include "core/common.h"
#include "language/common_texts.h"
#include "nutrition/decimal_check.h"
#include "nutrition/numbers.h"

namespace kelvora {
namespace {

// Field and member of one amount.
struct AmountColumn {
  std::size_t field;
  float Amounts::*amount;
};

constexpr std::array kAmounts = {
    AmountColumn{FoodField::kGram, &Amounts::gram},
    AmountColumn{FoodField::kKj, &Amounts::kj},
    AmountColumn{FoodField::kKcal, &Amounts::kcal},
    AmountColumn{FoodField::kProtein, &Amounts::protein},
    AmountColumn{FoodField::kFatU, &Amounts::fat_u},
    AmountColumn{FoodField::kFatS, &Amounts::fat_s},
    AmountColumn{FoodField::kCarbs, &Amounts::carbs},
    AmountColumn{FoodField::kSodium, &Amounts::sodium},
};

// The order of the series in the trend text; the body weight follows.
constexpr std::array kTrendOrder = {&Amounts::gram,    &Amounts::kj,    &Amounts::kcal,
                                    &Amounts::fat_u,   &Amounts::fat_s, &Amounts::carbs,
                                    &Amounts::protein, &Amounts::sodium};

// How the priority nutrient shows in the status bar of a consumption window.
struct PriorityRow {
  float Amounts::*amount;
  TextId unit;
};

constexpr std::array kPriorityRows = {
    PriorityRow{&Amounts::kj, common_text::kUnitKj},
    PriorityRow{&Amounts::kcal, common_text::kUnitKcal},
    PriorityRow{&Amounts::fat_u, common_text::kUnitFatU},
    PriorityRow{&Amounts::fat_s, common_text::kUnitFatS},
    PriorityRow{&Amounts::carbs, common_text::kUnitCarbohydrates},
    PriorityRow{&Amounts::protein, common_text::kUnitProteins},
};

constexpr std::array kHeadings = {common_text::kMorningContains, common_text::kAfternoonContains,
                                  common_text::kEveningContains};

const PriorityRow& RowOf(Priority priority) {
  return kPriorityRows[static_cast<std::size_t>(priority)];
}

void ShowPeriods(Program& program, const std::array<Amounts, 3>& periods, const Text& separator) {
  const Priority priority = PriorityOfUser(program);
  const Text& unit = program.texts[RowOf(priority).unit];
  for (std::size_t i = 0; i < periods.size(); ++i) {
    ConsumptionView* const window = program.windows.consumption[i];
    if (window == nullptr) continue;
    const Text& heading = program.texts[kHeadings[i]];
    window->ShowTotals(PeriodTotals(periods[i], priority, heading, unit, separator));
  }
}

}  // namespace

Amounts SumOf(const TextList& lines, TextList& fields) {
  Amounts sum;
  for (const std::string_view line : lines) {
    SplitLine(CommaToPoint(line), fields);
    for (const auto& [field, amount] : kAmounts) {
      sum.*amount = Single(sum.*amount + Val(fields[field]));
    }
  }
  return sum;
}

Amounts DayTotalOf(const std::array<Amounts, 3>& periods) {
  Amounts day;
  for (const auto& [field, amount] : kAmounts) {
    for (const Amounts& period : periods) day.*amount = Single(day.*amount + period.*amount);
  }
  return day;
}

DayTotals RequirementOrder(const Amounts& day) {
  return {day.kj, day.kcal, day.fat_u, day.fat_s, day.sodium, day.protein, day.carbs};
}

Text TrendText(const Amounts& day, std::string_view body_weight, std::string_view separator) {
  Text trend;
  for (const auto amount : kTrendOrder) (trend += Str(day.*amount, separator)) += kFieldEnd;
  trend.append(body_weight) += kFieldEnd;
  return trend;
}

ConsumptionTotals PeriodTotals(const Amounts& period, Priority priority, std::string_view heading,
                               std::string_view unit, std::string_view separator) {
  const auto print = [separator](float value, std::string_view pattern) {
    return FormatNumber(value, pattern, separator);
  };
  ConsumptionTotals totals;
  auto& var = totals.var;
  var = {print(period.kj, "#####0"),      print(period.kcal, "#####0"),
         print(period.fat_u, "####0"),    print(period.fat_s, "###0"),
         print(period.protein, "###0"),   print(period.carbs, "###0"),
         print(period.sodium, "##0.000"), print(period.gram, "#####0")};
  totals.lbl_nfo = {": " + var[0] + " Kj/" + var[1] + " Kcal",
                    ": " + var[2] + " g",
                    ": " + var[3] + " g",
                    ": " + var[4] + " g",
                    ": " + var[5] + " g",
                    ": " + var[6] + " g",
                    ": " + var[7] + "g"};
  const PriorityRow& row = RowOf(priority);
  totals.status.append(heading)
      .append(" ")
      .append(print(period.*row.amount, PatternOf(priority)))
      .append(" ")
      .append(unit);
  return totals;
}

void Refresh_Totalen(Program& program) {
  program.Guard("#FF11-0", [&] {
    program.platform.pointer.ShowWait();
    CheckDecimal(program);
    KV_data& store = program.store;
    const Text separator = program.platform.locale.DecimalSeparator();
    const std::array periods = {SumOf(store.L_ochtend, store.temp_filter),
                                SumOf(store.L_middag, store.temp_filter),
                                SumOf(store.L_avond, store.temp_filter)};
    const Amounts day = DayTotalOf(periods);
    ShowPeriods(program, periods, separator);
    if (DaySummaryView* const summary = program.windows.day_summary) {
      summary->Maak_Voedingsbehoefte(RequirementOrder(day));
    }
    store.txt_trenddata = TrendText(day, store.L_gegevens[HeaderRow::kWeight], separator);
    program.platform.pointer.Restore();
  });
  if (program.store.DayIsOpen()) program.day.undo.Note(program.store);
}

void FollowSettings(Program& program) {
  if (program.store.DayIsOpen()) Refresh_Totalen(program);
  const OpenWindows& windows = program.windows;
  if (windows.multi_day != nullptr) windows.multi_day->Refresh_Meerdaagsuittreksel();
  for (ConsumptionView* const window : windows.consumption) {
    if (window != nullptr) window->Refresh_Consumpties();
  }
  windows.FollowSettings();
}

UnitContext UnitsOf(Program& program) {
  return {program.platform.locale, program.FailurePath()};
}

}  // namespace kelvora
