// The daily targets of a form: their sliders, the boxes that follow them, and the presets of the
// age groups. Positions are whole numbers; energy counts in hundreds of kilojoules.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "days/day_form.h"

namespace kelvora {

enum class Target { kj, ovet, vvet, nat, ew, kdr };
inline constexpr std::size_t kTargetCount = 6;
inline constexpr std::array kAllTargets = {Target::kj,  Target::ovet, Target::vvet,
                                           Target::nat, Target::ew,   Target::kdr};

struct TargetSlider {
  std::string_view name;
  std::string_view box_name;
  Text DayForm::*box;
  int minimum;
  int maximum;
  int large_step;
  int small_step;
  TextId caption;
  TextId unit;
};

// The sliders, in the order of Target.
[[nodiscard]] std::span<const TargetSlider, kTargetCount> TargetSliders();

// Where the slider stands for what its box holds; the nearest end for what lies beyond.
[[nodiscard]] int PositionOf(const DayForm& form, Target target);

// Refreshes the box of a slider that stands at `position`; that of the kilocalories follows the
// kilojoules.
void MoveSlider(DayForm& form, Target target, int position);

// Brings every box in step with its slider: what is between two positions goes to the nearest one.
void SettleSliders(DayForm& form);

struct AgeGroup {
  TextId caption;
  std::array<int, kTargetCount> positions;  // in the order of Target
};

// The entries of Combo_default. They ask neither age nor gender.
[[nodiscard]] std::span<const AgeGroup> AgeGroups();

void SetTargetsOf(DayForm& form, const AgeGroup& group);

// The options of type_prioriteit, in the order of Priority.
[[nodiscard]] std::span<const TextId> PriorityOptions();

}  // namespace kelvora
