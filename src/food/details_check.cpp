#include "food/details_check.h"

#include <algorithm>
#include <span>

#include "core/program.h"
#include "food/food_values.h"
#include "language/food_details_texts.h"

namespace kelvora {
namespace {

using namespace food_details_text;

// The boxes joined by "-": what the tests of the whole food look at.
Text TestTextOf(const PortionBoxes& bVar) {
  Text joined = bVar.front();
  for (const Text& box : std::span(bVar).subspan(1)) (joined += '-') += box;
  return joined;
}

}  // namespace

std::optional<DetailsError> CheckDetails(const PortionBoxes& bVar, const ValueBoxes& oVar) {
  const auto required = std::span(bVar).first(PortionBox::kGram + 1);
  if (std::ranges::any_of(required, &IsIncompleteNumber)) return DetailsError::fields_missing;
  if (HoldsDecimalMark(bVar[PortionBox::kGram])) return DetailsError::weight_not_whole;
  if (std::ranges::any_of(oVar, &IsIncompleteNumber)) return DetailsError::values_missing;
  const Text test_text = TestTextOf(bVar);
  if (HoldsTerminator(test_text)) return DetailsError::illegal_characters;
  if (test_text.size() > kMaxFoodLength) return DetailsError::too_much_data;
  return std::nullopt;
}

DetailsBox WrongBox(const PortionBoxes& bVar, const ValueBoxes& oVar, DetailsError error) {
  const auto place_of = [](const auto& boxes, const auto& found) {
    return static_cast<std::size_t>(found - boxes.begin());
  };
  switch (error) {
    case DetailsError::fields_missing:
      return {.place = place_of(bVar, std::ranges::find_if(bVar, &IsIncompleteNumber))};
    case DetailsError::weight_not_whole:
      return {.place = PortionBox::kGram};
    case DetailsError::values_missing:
      return {true, place_of(oVar, std::ranges::find_if(oVar, &IsIncompleteNumber))};
    case DetailsError::illegal_characters:
      return {.place = place_of(bVar, std::ranges::find_if(bVar, &HoldsTerminator))};
    case DetailsError::too_much_data:
      break;
  }
  return {.place = place_of(bVar, std::ranges::max_element(bVar, {}, &Text::size))};
}

Text TextOf(const TextTables& texts, DetailsError error) {
  switch (error) {
    case DetailsError::fields_missing:
      return JoinLines(texts, {kFieldsMissing, kFillInFields});
    case DetailsError::weight_not_whole:
      return JoinLines(texts, {kWeightNotWhole, kChangeWeight});
    case DetailsError::values_missing:
      return JoinLines(texts, {kValuesMissing, kFillInValues, std::nullopt, kFillInZero});
    case DetailsError::illegal_characters:
      return JoinLines(texts, {kIllegalCharacters, kHalfNotAllowed, kRemoveCharacters});
    case DetailsError::too_much_data:
      return JoinLines(texts, {kTooMuchData, kShortenDescription, kTooMuchDataRemove});
  }
  return {};
}

}  // namespace kelvora
