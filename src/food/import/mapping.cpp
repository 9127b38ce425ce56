#include "food/import/mapping.h"

#include <algorithm>
#include <cmath>

namespace kelvora {
namespace {

constexpr double kSodiumOfSalt = 0.4;
constexpr double kGrams = 100;  // what the amounts are those of
constexpr double kHeaviestPortion = 10'000;
constexpr double kNoLimit = 1e9;

// So that a line with its category stays within what the program takes.
constexpr std::size_t kLongestUnit = 100;
constexpr std::size_t kLongestRemark = 180;
constexpr std::size_t kLongestGroup = 100;

std::size_t IndexOf(TableField field) {
  return static_cast<std::size_t>(field);
}

// A cell that says that there is nothing.
bool IsEmptyWord(std::string_view cell) {
  return cell.empty() || cell == "-";
}

// The first of names that commas keep apart.
std::string_view FirstName(std::string_view names) {
  return Trimmed(names.substr(0, names.find(',')));
}

bool HoldsCaseless(std::string_view text, std::string_view part) {
  return LowerCase(text).find(LowerCase(part)) != Text::npos;
}

}  // namespace

Text CutTo(Text text, std::size_t size) {
  if (text.size() > size) text.resize(size);
  while (text.ends_with(' ')) text.pop_back();
  return text;
}

std::string_view NameOf(SkipReason reason) {
  constexpr std::array<std::string_view, kSkipReasonCount> kNames = {
      "no name",          "unreadable name", "no energy",           "header again",
      "unbalanced quote", "line too long",   "cut short at the end"};
  return kNames[static_cast<std::size_t>(reason)];
}

Text HeaderKey(std::string_view header) {
  Text key = LowerCase(header);
  std::erase_if(key, [](char c) { return c == ' ' || c == '\xA0'; });
  return key;
}

bool CompleteAmounts(const KnownAmounts& known, double factor, TableFood& food) {
  if (!known.kj && !known.kcal) return false;
  const auto set = [&](TableAmount amount, std::optional<double> value) {
    food.amounts[static_cast<std::size_t>(amount)] = value.value_or(0) * factor;
    if (!value) ++food.unknown;
  };
  auto fat_u = known.fat_u;
  if (!fat_u && known.fat_mono && known.fat_poly) fat_u = *known.fat_mono + *known.fat_poly;
  if (!fat_u && known.fat && known.fat_s) fat_u = std::max(0.0, *known.fat - *known.fat_s);
  auto sodium = known.sodium;
  if (!sodium && known.salt) sodium = *known.salt * kSodiumOfSalt;
  food.unknown = 0;
  set(TableAmount::kj, known.kj ? *known.kj : *known.kcal * kKjOfKcal);
  set(TableAmount::kcal, known.kcal ? *known.kcal : *known.kj / kKjOfKcal);
  set(TableAmount::protein, known.protein);
  set(TableAmount::fat_u, fat_u);
  set(TableAmount::fat_s, known.fat_s);
  set(TableAmount::carbs, known.carbs);
  set(TableAmount::sodium, sodium);
  return true;
}

RowMapper::RowMapper(const TableMapping& mapping, std::span<const std::string_view> header,
                     Encoding encoding, RowChoice choice)
    : encoding_(encoding), choice_(std::move(choice)), of_portion_(mapping.of_portion) {
  std::vector<Text> keys;
  for (const std::string_view cell : header) {
    keys.push_back(HeaderKey(ReadCellText(cell, encoding).text));
    if (mapping.has_header) header_.emplace_back(cell);
  }
  for (const TableColumn& column : mapping.columns) {
    const auto key = std::ranges::find(keys, HeaderKey(column.header));
    const auto named = static_cast<std::size_t>(key - keys.begin());
    // A place counts where the header says the same, or nothing.
    const bool by_place = column.place && *column.place < keys.size() &&
                          (!mapping.has_header || keys[*column.place] == HeaderKey(column.header));
    if (by_place) {
      places_[IndexOf(column.field)].push_back({*column.place, column.scale});
    } else if (mapping.has_header && key != keys.end() && !column.header.empty()) {
      places_[IndexOf(column.field)].push_back({named, column.scale});
    }
  }
}

bool RowMapper::IsComplete() const {
  return !places_[IndexOf(TableField::name)].empty() &&
         (!places_[IndexOf(TableField::kj)].empty() || !places_[IndexOf(TableField::kcal)].empty());
}

std::string_view RowMapper::CellOf(const TableRow& row, TableField field) const {
  for (const Place& place : places_[IndexOf(field)]) {
    if (place.column >= row.cells.size()) continue;
    const std::string_view cell = TrimmedCell(row.cells[place.column]);
    if (!IsEmptyWord(cell)) return cell;
  }
  return {};
}

Text RowMapper::TextOf(const TableRow& row, TableField field) const {
  return ReadCellText(CellOf(row, field), encoding_).text;
}

// An amount above `most` can't be true, and is as unknown as none.
std::optional<double> RowMapper::AmountOf(const TableRow& row, TableField field,
                                          double most) const {
  for (const Place& place : places_[IndexOf(field)]) {
    if (place.column >= row.cells.size()) continue;
    auto value = ReadCellAmount(row.cells[place.column]);
    if (!value) continue;
    *value *= place.scale;
    if (*value <= (of_portion_ ? kNoLimit : most)) return value;
  }
  return std::nullopt;
}

bool RowMapper::IsHeader(const TableRow& row) const {
  return !header_.empty() && std::ranges::equal(row.cells, header_);
}

bool RowMapper::IsWanted(const TableRow& row, TableFood& food) const {
  food.group = CutTo(TextOf(row, TableField::group), kLongestGroup);
  if (choice_.completeness > 0) {
    const auto completeness = ReadCellAmount(CellOf(row, TableField::completeness));
    if (completeness.value_or(0) < choice_.completeness) return false;
  }
  if (!choice_.country.empty() &&
      !HoldsCaseless(TextOf(row, TableField::country), choice_.country)) {
    return false;
  }
  return choice_.groups.empty() ||
         std::ranges::find(choice_.groups, LowerCase(food.group)) != choice_.groups.end();
}

bool RowMapper::ReadName(const TableRow& row, TableFood& food, SkipReason& reason) const {
  CellText name = ReadCellText(CellOf(row, TableField::name), encoding_);
  food.name = CutTo(std::move(name.text), kLongestName);
  if (food.name.empty()) {
    reason = SkipReason::no_name;
    return false;
  }
  if (name.unheld * 2 > name.characters) {
    reason = SkipReason::unreadable_name;
    return false;
  }
  const Text brands = TextOf(row, TableField::brand);
  const std::string_view brand = FirstName(brands);
  if (!brand.empty() && !HoldsCaseless(food.name, brand)) {
    food.name = CutTo(food.name.append(", ").append(brand), kLongestName);
  }
  return true;
}

// The portion is one of whole grams; the amounts of 100 grams times the result are those of it.
double RowMapper::ReadPortion(const TableRow& row, TableFood& food) const {
  const bool wanted = of_portion_ || choice_.portion == PortionChoice::serving;
  const auto grams =
      wanted ? AmountOf(row, TableField::portion_grams, kHeaviestPortion) : std::nullopt;
  if (!grams || *grams <= 0 || *grams > kHeaviestPortion) {
    const bool is_liquid = HoldsCaseless(CellOf(row, TableField::quantity), "ml");
    food.grams = static_cast<int>(kGrams);
    food.unit = is_liquid ? "100 ml" : "100 gram";
    return 1;
  }
  food.grams = std::max(1, static_cast<int>(std::lround(*grams)));
  food.unit = CutTo(TextOf(row, TableField::portion), kLongestUnit);
  if (food.unit.empty()) food.unit = std::to_string(food.grams) + " gram";
  return food.grams / (of_portion_ ? *grams : kGrams);
}

bool RowMapper::ReadAmounts(const TableRow& row, double factor, TableFood& food) const {
  const auto amount = [&](TableField field) { return AmountOf(row, field, kMostPortionGrams); };
  KnownAmounts known;
  known.kj = AmountOf(row, TableField::kj, kMostKj);
  known.kcal = AmountOf(row, TableField::kcal, kMostKcal);
  if (!known.kj && !known.kcal) return false;
  known.protein = amount(TableField::protein);
  known.fat = amount(TableField::fat);
  known.fat_u = amount(TableField::fat_u);
  known.fat_s = amount(TableField::fat_s);
  known.fat_mono = amount(TableField::fat_mono);
  known.fat_poly = amount(TableField::fat_poly);
  known.carbs = amount(TableField::carbs);
  known.sodium = amount(TableField::sodium);
  if (!known.sodium) known.salt = amount(TableField::salt);
  return CompleteAmounts(known, factor, food);
}

void RowMapper::ReadRemark(const TableRow& row, TableFood& food) const {
  food.remark.clear();
  for (const Place& place : places_[IndexOf(TableField::remark)]) {
    if (place.column >= row.cells.size()) continue;
    const Text remark = ReadCellText(row.cells[place.column], encoding_).text;
    if (IsEmptyWord(remark)) continue;
    if (!food.remark.empty()) food.remark += ", ";
    food.remark += remark;
  }
  food.remark = CutTo(std::move(food.remark), kLongestRemark);
}

RowKind RowMapper::Map(const TableRow& row, TableFood& food, SkipReason& reason) const {
  food.name.clear();
  const auto skip = [&](SkipReason why) {
    reason = why;
    return RowKind::skipped;
  };
  if (row.problem == RowProblem::too_long) return skip(SkipReason::too_long);
  if (row.problem == RowProblem::unbalanced_quote) return skip(SkipReason::unbalanced_quote);
  if (!row.ended && !header_.empty() && row.cells.size() < header_.size()) {
    return skip(SkipReason::cut_short);
  }
  if (!IsWanted(row, food)) return RowKind::not_wanted;
  if (IsHeader(row)) return skip(SkipReason::header_again);
  if (!ReadName(row, food, reason)) return RowKind::skipped;
  const double factor = ReadPortion(row, food);
  if (!ReadAmounts(row, factor, food)) return skip(SkipReason::no_energy);
  ReadRemark(row, food);
  return RowKind::food;
}

}  // namespace kelvora
