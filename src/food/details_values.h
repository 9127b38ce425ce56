// The values of one food, for its portion and per 100 grams, as the texts of their boxes: how the
// ones follow from the others, and what share each has in the food.
//
// Each routine writes the boxes in order and throws std::system_error at a value that has no place
// in a number; what stands before it is then written. Separators are those of the locale.
#pragma once

#include <array>
#include <string_view>

#include "core/store.h"

namespace kelvora {

// The boxes of the portion. The values stand in another order than in a food line.
struct PortionBox {
  enum : std::size_t {
    kProduct,
    kUnit,
    kGram,
    kKj,
    kKcal,
    kFatU,
    kFatS,
    kSodium,
    kProtein,
    kCarbs,
    kGroup,
    kRemark,
    kCount,
  };
};
using PortionBoxes = std::array<Text, PortionBox::kCount>;

// The seven values of the portion, kKj to kCarbs, once more per 100 grams.
inline constexpr std::size_t kValueCount = PortionBox::kGroup - PortionBox::kKj;
using ValueBoxes = std::array<Text, kValueCount>;
inline constexpr std::size_t kSodiumValue = PortionBox::kSodium - PortionBox::kKj;

[[nodiscard]] constexpr std::size_t PortionBoxOf(std::size_t value) {
  return PortionBox::kKj + value;
}

// Fills the boxes of the portion from the fields of a line. A box left empty gets "0", but for the
// remark.
void FillPortion(const TextList& fields, std::string_view separator, PortionBoxes& bVar);

// The line that the boxes make: twelve fields, in the order of a food line.
[[nodiscard]] Text FoodLineOf(const PortionBoxes& bVar);

// Portion value / weight x 100. With a weight of 0 the boxes stay as they are.
void FillPer100Grams(const PortionBoxes& bVar, std::string_view separator, ValueBoxes& oVar);

// Value per 100 grams x weight / 100.
void FillPortionFromPer100Grams(const ValueBoxes& oVar, std::string_view separator,
                                PortionBoxes& bVar);

// One bar of the composition: unsaturated fat, saturated fat, sodium, protein, carbohydrates.
struct CompositionBar {
  float length = 0;  // of kCompositionLength
  Text value;        // of the portion
  Text share;        // percent
};
inline constexpr float kCompositionLength = 700;
inline constexpr std::size_t kCompositionBars = 5;
using Composition = std::array<CompositionBar, kCompositionBars>;

[[nodiscard]] Composition CompositionOf(const PortionBoxes& bVar, std::string_view separator);

}  // namespace kelvora
