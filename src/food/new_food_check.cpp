#include "food/new_food_check.h"

#include <array>

#include "food/food_values.h"
#include "language/new_food_texts.h"
#include "language/own_texts.h"
#include "nutrition/numbers.h"

namespace kelvora {
namespace {

using namespace new_food_text;
using Kind = NewFoodBox::Kind;

// The values in the order of a food line.
constexpr std::array<std::size_t, FoodValue::kCount> kLineOrder = {
    FoodValue::kKj,   FoodValue::kKcal,  FoodValue::kProtein, FoodValue::kFatU,
    FoodValue::kFatS, FoodValue::kCarbs, FoodValue::kSodium};

constexpr std::string_view kGroupOfOwnFoods = "0";

constexpr std::array<TextId, FoodValue::kCount> kValueCaptions = {
    kKilojoules, kKilocalories, kSaturatedFat, kUnsaturatedFat, kProtein, kCarbohydrates, kSodium};

bool IsNoWeight(std::string_view grams) {
  return grams.empty() || HoldsDecimalMark(grams) || ReadStoredNumber(grams) == 0;
}

bool IsWrongIfTyped(const Text& number) {
  return !number.empty() && IsWrongNumber(number);
}

// The box of a weight that is wrong. Ounces that were typed stand in their box, whatever the grams
// that they became.
std::optional<NewFoodBox> WrongBoxOf(const WeightBoxes& boxes, Kind gram, Kind oz) {
  if (IsWrongIfTyped(boxes.oz)) return NewFoodBox{oz};
  if (IsNoWeight(boxes.weight)) return NewFoodBox{gram};
  return std::nullopt;
}

std::optional<NewFoodBox> WrongBox(const NewFoodForm& form) {
  if (Trimmed(form.txt_dNaam).empty()) return NewFoodBox{Kind::name};
  if (form.combo_dEenheid.empty()) return NewFoodBox{Kind::unit};
  if (const auto box = WrongBoxOf(form.portion_weight, Kind::portion_gram, Kind::portion_oz)) {
    return box;
  }
  if (const auto box = WrongBoxOf(form.printed_weight, Kind::printed_gram, Kind::printed_oz)) {
    return box;
  }
  for (std::size_t i = 0; i < form.txt_s.size(); ++i) {
    if (IsWrongIfTyped(form.txt_s[i])) return NewFoodBox{Kind::value, i};
  }
  return std::nullopt;
}

Text ErrorText(const TextTables& texts, NewFoodError error) {
  switch (error) {
    case NewFoodError::incomplete:
      return JoinLines(texts, {kValuesMissing, kEnterValues});
    case NewFoodError::illegal_characters:
      return JoinLines(texts, {kIllegalCharacters, kHalfNotAllowed, kRemoveCharacters});
    case NewFoodError::too_long:
      return JoinLines(texts, {kTooMuchData, kShortenDescription});
  }
  return {};
}

// A caption without its colon.
Text Name(const Text& caption) {
  const std::string_view trimmed = Trimmed(caption);
  return Text(trimmed.substr(0, trimmed.find_last_not_of(':') + 1));
}

Text NameOf(const TextTables& texts, NewFoodBox box) {
  const auto weight = [&](TextId caption, TextId unit) {
    return Name(texts[caption]) + " (" + texts[unit] + ")";
  };
  switch (box.kind) {
    case Kind::name:
      return Name(texts[kName]);
    case Kind::unit:
      return Name(texts[kUnit]);
    case Kind::printed_gram:
      return weight(kOriginalWeight, kGram);
    case Kind::printed_oz:
      return weight(kOriginalWeight, kOz);
    case Kind::portion_gram:
      return weight(kPortionWeight, kGram);
    case Kind::portion_oz:
      return weight(kPortionWeight, kOz);
    case Kind::value:
      return Name(texts[kValueCaptions[box.value]]);
  }
  return {};
}

}  // namespace

std::optional<NewFoodFault> CheckTyped(const NewFoodForm& form) {
  const auto box = WrongBox(form);
  if (!box) return std::nullopt;
  return NewFoodFault{NewFoodError::incomplete, *box};
}

std::optional<NewFoodFault> CheckLine(const NewFoodForm& form) {
  const Text tested = JoinFields(form, '-');
  if (HoldsTerminator(tested)) {
    const bool in_name = HoldsTerminator(form.txt_dNaam);
    return NewFoodFault{NewFoodError::illegal_characters, {in_name ? Kind::name : Kind::unit}};
  }
  if (tested.size() > kMaxFoodLength) {
    const bool long_name = form.txt_dNaam.size() >= form.combo_dEenheid.size();
    return NewFoodFault{NewFoodError::too_long, {long_name ? Kind::name : Kind::unit}};
  }
  return std::nullopt;
}

Text TextOf(const TextTables& texts, const NewFoodFault& fault) {
  return ErrorText(texts, fault.error) + "\n\n" +
         OwnTextWith(texts, OwnText::look_at_box, NameOf(texts, fault.box));
}

Text JoinFields(const NewFoodForm& form, char closing) {
  Text joined;
  const auto add = [&](std::string_view field) { joined.append(field) += closing; };
  add(Trimmed(form.txt_dNaam));
  add(Trimmed(form.combo_dEenheid));
  add(form.portion_weight.weight);
  for (const std::size_t index : kLineOrder) add(form.txt_d[index]);
  add(kGroupOfOwnFoods);
  add({});  // no remark
  return joined;
}

}  // namespace kelvora
