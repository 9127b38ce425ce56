#include "food/scaled_food.h"

#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include "food/food_calculator.h"
#include "nutrition/numbers.h"

namespace kelvora {
namespace {

constexpr std::string_view kBetween = ", ";  // between the name and the amount
constexpr std::string_view kGramWord = " gram";
constexpr std::string_view kWholePattern = "##0";

struct ValueField {
  std::size_t field;
  std::size_t value;
};
constexpr std::array kValueFields = {ValueField{FoodField::kKj, FoodValue::kKj},
                                     ValueField{FoodField::kKcal, FoodValue::kKcal},
                                     ValueField{FoodField::kProtein, FoodValue::kProtein},
                                     ValueField{FoodField::kFatU, FoodValue::kFatU},
                                     ValueField{FoodField::kFatS, FoodValue::kFatS},
                                     ValueField{FoodField::kCarbs, FoodValue::kCarbs},
                                     ValueField{FoodField::kSodium, FoodValue::kSodium}};

// The weight of a line in grams; nothing for a food that has none.
std::optional<double> WeightOf(std::string_view line) {
  const double grams = ReadStoredNumber(FieldOf(line, FoodField::kGram));
  if (!(grams > 0) || grams > std::numeric_limits<float>::max()) return std::nullopt;
  return grams;
}

// The unit of a line of that amount. A share has its weight as its unit, or else what it is a share
// of.
Text UnitText(const Amount& amount, std::string_view number, std::string_view gram,
              std::string_view unit) {
  if (amount.kind == Amount::Kind::grams) return Text(number).append(kGramWord);
  if (ReadStoredNumber(gram) > 0) return Text(gram).append(kGramWord);
  return Text(number).append(" x ").append(unit);
}

// A name that tells an amount, taken apart.
struct ScaledName {
  std::string_view base;
  std::string_view told;    // "150 g"
  std::string_view number;  // "150"
  Amount amount;
};

// Nothing for the name of any other food. The unit must be that of the amount as well, for a food
// may be called "Soup, 300 g" by its maker.
// By the name alone.
std::optional<ScaledName> SplitName(std::string_view name) {
  const std::size_t comma = name.rfind(kBetween);
  if (comma == name.npos || comma == 0) return std::nullopt;
  ScaledName scaled{.base = name.substr(0, comma), .told = name.substr(comma + kBetween.size())};
  const bool told = scaled.told.ends_with(" g") || scaled.told.ends_with(" x");
  if (!told) return std::nullopt;
  scaled.number = scaled.told.substr(0, scaled.told.size() - 2);
  const auto read = ReadAmount(scaled.told);
  if (!std::holds_alternative<Amount>(read)) return std::nullopt;
  scaled.amount = std::get<Amount>(read);
  return scaled;
}

std::optional<ScaledName> ScaledNameOf(std::string_view line) {
  auto scaled = SplitName(FieldOf(line, FoodField::kProduct));
  if (!scaled) return std::nullopt;
  const std::string_view unit = FieldOf(line, FoodField::kUnit);
  const std::string_view gram = FieldOf(line, FoodField::kGram);
  const Text prefix = UnitText(scaled->amount, scaled->number, gram, {});
  if (!unit.starts_with(prefix)) return std::nullopt;
  if (!prefix.ends_with(' ') && unit != prefix) return std::nullopt;
  return scaled;
}

// What an amount is scaled from: a line, and of how much it is.
struct Source {
  Text line;
  std::string_view base;  // its name, without an amount
  std::string_view unit;  // of a portion
  Amount has;             // one portion, but for a line that tells another amount
};

// One line of `amount`, which its source can be scaled to.
Text ScaledLine(const Source& source, const Amount& amount, double factor,
                std::string_view separator) {
  std::vector<Text> fields;
  for (const std::string_view field : FieldsOf(source.line)) fields.emplace_back(field);
  if (fields.size() <= FoodField::kRemark) fields.resize(FoodField::kRemark + 1);
  const Text number = AmountNumber(amount, separator);
  Text& gram = fields[FoodField::kGram];
  if (amount.kind == Amount::Kind::grams) {
    gram = FormatNumber(amount.Number(), kWholePattern, separator);
  } else if (const auto weight = WeightOf(source.line)) {
    gram = FormatNumber(*weight * factor, kWholePattern, separator);
  }
  for (const auto& [field, value] : kValueFields) {
    const double portion = ReadStoredNumber(fields[field]);
    fields[field] = FormatNumber(portion * factor, PatternOfFoodValue(value), separator);
  }
  fields[FoodField::kUnit] = UnitText(amount, number, gram, source.unit);
  fields[FoodField::kProduct] =
      Text(source.base).append(kBetween).append(AmountText(amount, separator));
  Text line;
  for (const Text& field : fields) line.append(field) += kFieldEnd;
  return line;
}

// By how much the values of the source are multiplied; nothing where a weight is asked of a food
// that has none.
std::optional<double> FactorOf(const Source& source, const Amount& amount) {
  if (amount.kind == source.has.kind) {
    return amount.value * source.has.parts / (amount.parts * source.has.value);
  }
  if (amount.kind == Amount::Kind::portions) return amount.Number();
  const auto weight = WeightOf(source.line);
  if (!weight) return std::nullopt;
  return amount.value / (amount.parts * *weight);
}

// The food that a scaled line was made from: the first whose line of that amount is this very one.
std::optional<Text> OriginalOf(const KV_data& store, std::string_view line,
                               const ScaledName& scaled) {
  const Text key = KeyOf(scaled.base);
  for (const TextList* const list :
       {&store.Default_list, &store.Custom_list, &store.Favorites_list}) {
    for (const std::string_view candidate : *list) {
      if (!candidate.starts_with(key)) continue;
      const Source source{.line = Text(candidate),
                          .base = scaled.base,
                          .unit = FieldOf(candidate, FoodField::kUnit)};
      const auto factor = FactorOf(source, scaled.amount);
      if (!factor) continue;
      // It may have been written under either mark.
      for (const std::string_view mark : {".", ","}) {
        if (ScaledLine(source, scaled.amount, *factor, mark) == line) return source.line;
      }
    }
  }
  return std::nullopt;
}

TextList Repeated(std::string_view line, std::size_t times) {
  TextList lines;
  for (std::size_t i = 0; i < times; ++i) lines.Add(line);
  return lines;
}

// `share` of an amount.
Amount ShareOf(const Amount& amount, const Amount& share) {
  return {amount.kind, amount.value * share.value, amount.parts * share.parts};
}

}  // namespace

std::variant<TextList, AmountFault> LinesOfAmount(const KV_data& store, std::string_view line,
                                                  const Amount& amount,
                                                  std::string_view separator) {
  if (const auto portions = WholePortions(amount)) return Repeated(line, *portions);
  Source source{.line = Text(line),
                .base = FieldOf(line, FoodField::kProduct),
                .unit = FieldOf(line, FoodField::kUnit)};
  Amount whole = amount;
  if (const auto scaled = ScaledNameOf(line)) {
    source.base = scaled->base;
    if (amount.kind == Amount::Kind::portions) whole = ShareOf(scaled->amount, amount);
    if (const auto original = OriginalOf(store, line, *scaled)) {
      source.line = *original;
      source.unit = FieldOf(source.line, FoodField::kUnit);
      if (const auto portions = WholePortions(whole)) return Repeated(source.line, *portions);
    } else {
      source.has = scaled->amount;
      const Text prefix = Text(scaled->number) + " x ";
      if (source.unit.starts_with(prefix)) source.unit.remove_prefix(prefix.size());
    }
  }
  if (IsTooMuch(whole)) return AmountFault::too_much;
  const auto factor = FactorOf(source, whole);
  if (!factor) return AmountFault::no_weight;
  return Repeated(ScaledLine(source, whole, *factor, separator), 1);
}

Text AmountInName(std::string_view line) {
  const auto scaled = ScaledNameOf(line);
  return scaled ? Text(scaled->told) : Text();
}

Text NameOfFavourite(std::string_view name,
                     const std::function<bool(std::string_view name)>& listed) {
  if (listed(name)) return Text(name);
  const auto scaled = SplitName(name);
  return scaled && listed(scaled->base) ? Text(scaled->base) : Text();
}

}  // namespace kelvora
