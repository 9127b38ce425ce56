#include "analysis/summary_list.h"

#include <cmath>
#include <numeric>

#include "language/day_summary_texts.h"
#include "language/trend_texts.h"
#include "nutrition/numbers.h"
#include "nutrition/units.h"

namespace kelvora {
namespace {

// An amount of a food line in its column.
struct AmountColumn {
  SummaryColumn column;
  std::size_t field;
  std::string_view pattern;
};
constexpr std::array kAmounts = {
    AmountColumn{SummaryColumn::kj, FoodField::kKj, "#####0"},
    AmountColumn{SummaryColumn::kcal, FoodField::kKcal, "####0"},
    AmountColumn{SummaryColumn::fat_u, FoodField::kFatU, "###0"},
    AmountColumn{SummaryColumn::fat_s, FoodField::kFatS, "###0"},
    AmountColumn{SummaryColumn::protein, FoodField::kProtein, "###0"},
    AmountColumn{SummaryColumn::sodium, FoodField::kSodium, "##0.000"},
    AmountColumn{SummaryColumn::carbs, FoodField::kCarbs, "###0"},
};
constexpr std::string_view kWeightPattern = "#####";  // nothing for a weight of zero

constexpr int kKeyStep = 2;

using Headings = std::array<TextId, kSummaryColumns>;
constexpr Headings DaySummaryHeadings() {
  using namespace day_summary_text;
  return {kColumnNumber,
          kColumnFood,
          kColumnCount,
          kColumnUnit,
          kWeight,
          kColumnKj,
          kColumnKcal,
          kColumnUnsaturatedFat,
          kColumnSaturatedFat,
          kColumnProtein,
          kColumnSodium,
          kColumnCarbohydrates};
}
constexpr Headings MultiDayHeadings() {
  using namespace trend_text;
  return {kColumnNumber,       kColumnFood,    kColumnCount,  kColumnUnit,
          kColumnWeight,       kColumnKj,      kColumnKcal,   kColumnUnsaturatedFat,
          kColumnSaturatedFat, kColumnProtein, kColumnSodium, kColumnCarbohydrates};
}
constexpr std::array kHeadings = {DaySummaryHeadings(), MultiDayHeadings()};

// Twips; the width of the foods is what is left.
constexpr std::array<int, kSummaryColumns> kWidths = {0,   0,   360, 1080, 600, 700,
                                                      550, 550, 550, 550,  600, 600};
constexpr int kWidthBesides = 80;

// What `print` makes, or nothing for an amount that no number can hold.
template <class Print>
Text PrintedOrNothing(Print print) {
  try {
    return print();
  } catch (const std::system_error&) {
    return {};
  }
}

Text KeyOfPlace(std::size_t place) {
  return std::to_string(kKeyStep * (place + 1));
}

ColumnOrder NextOrder(SummaryColumn column, SummarySort& sort) {
  const auto number = static_cast<std::size_t>(column);
  if (IsTextColumn(column)) {
    const auto& last = sort.last_text;
    const bool again = last && last->column == number;
    sort.last_text = {number, again ? Flipped(last->order) : SortOrder::descending};
    return *sort.last_text;
  }
  const ColumnOrder now{number, sort.next_by_number};
  sort.next_by_number = Flipped(sort.next_by_number);
  return now;
}

std::vector<std::uint32_t> SortedPlaces(const SummaryRows& rows, SummaryColumn column,
                                        SortOrder order) {
  if (IsTextColumn(column)) {
    std::vector<std::string_view> texts;
    texts.reserve(rows.size());
    for (const SummaryRow& row : rows) texts.emplace_back(row[column]);
    return OrderByText(texts, order);
  }
  std::vector<double> values;
  values.reserve(rows.size());
  for (const SummaryRow& row : rows) values.push_back(std::floor(ReadStoredNumber(row[column])));
  return OrderByWholeValue(values, order);
}

}  // namespace

RowPrint RowPrintOf(const Program& program) {
  return {program.platform.locale.DecimalSeparator(), program.settings[Setting::opt_gramoz] == "1"};
}

SummaryRow RowOfLine(std::string_view line, std::string_view count, std::size_t place,
                     const RowPrint& print) {
  const auto fields = FieldsOf(line);
  const auto field = [&fields](std::size_t index) {
    return index < fields.size() ? fields[index] : std::string_view();
  };
  const double times = Val(count);
  SummaryRow row;
  row[SummaryColumn::key] = KeyOfPlace(place);
  row[SummaryColumn::food] = field(FoodField::kProduct);
  row[SummaryColumn::count] = count;
  row[SummaryColumn::unit] = field(FoodField::kUnit);
  const double weight = ReadStoredNumber(field(FoodField::kGram)) * times;
  row[SummaryColumn::weight] = PrintedOrNothing([&] {
    return print.ounces ? OuncesOfGrams(weight, print.separator)
                        : FormatNumber(weight, kWeightPattern, print.separator);
  });
  for (const auto& [column, index, pattern] : kAmounts) {
    const double amount = ReadStoredNumber(field(index)) * times;
    row[column] = PrintedOrNothing(
        [&, &pattern = pattern] { return FormatNumber(amount, pattern, print.separator); });
  }
  return row;
}

SummaryRows SummaryRowMaker::RowsOf(Program& program, const TextList& distinct,
                                    const TextList& counts) {
  RowPrint print = RowPrintOf(program);
  if (print != print_) made_.clear();
  print_ = std::move(print);
  std::unordered_map<Text, SummaryRow> made;
  made.reserve(distinct.Count());
  SummaryRows rows;
  rows.reserve(distinct.Count());
  for (std::size_t i = 0; i < distinct.Count(); ++i) {
    Text name(counts[i]);
    (name += kFieldEnd).append(distinct[i]);
    auto known = made_.extract(name);
    const auto& row =
        known ? made.insert(std::move(known)).position->second
              : made.emplace(std::move(name), RowOfLine(distinct[i], counts[i], i, print_))
                    .first->second;
    rows.push_back(row);
    rows.back()[SummaryColumn::key] = KeyOfPlace(i);
  }
  made_ = std::move(made);
  return rows;
}

std::array<Text, kSummaryColumns> SummaryHeadings(const TextTables& texts, AnalysisWindow window) {
  std::array<Text, kSummaryColumns> headings;
  const Headings& ids = kHeadings[static_cast<std::size_t>(window)];
  for (std::size_t i = 0; i < headings.size(); ++i) headings[i] = texts[ids[i]];
  return headings;
}

std::array<int, kSummaryColumns> SummaryColumnWidths(int list_width) {
  auto widths = kWidths;
  const int others = std::accumulate(kWidths.begin(), kWidths.end(), 0);
  widths[static_cast<std::size_t>(SummaryColumn::food)] = list_width - others - kWidthBesides;
  return widths;
}

std::optional<ColumnOrder> SortSummary(SummaryRows& rows, SummaryColumn column, SummarySort& sort) {
  if (column == SummaryColumn::key) return std::nullopt;
  const ColumnOrder by = NextOrder(column, sort);
  SummaryRows sorted;
  sorted.reserve(rows.size());
  for (const std::uint32_t place : SortedPlaces(rows, column, by.order)) {
    sorted.push_back(std::move(rows[place]));
  }
  rows = std::move(sorted);
  return by;
}

}  // namespace kelvora
