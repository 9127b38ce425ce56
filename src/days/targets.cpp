#include "days/targets.h"

#include <algorithm>
#include <cmath>

#include "language/day_settings_texts.h"
#include "nutrition/numbers.h"

namespace kelvora {
namespace {

using namespace day_settings_text;

constexpr int kKilojoulesAStep = 100;
constexpr double kKilojoulesAKilocalorie = 4.2;

constexpr std::array<TargetSlider, kTargetCount> kSliders = {{
    {"Slider_kj", "txt_kj", &DayForm::txt_kj, 20, 300, 10, 1, kTargetEnergy, kTargetUnitKj},
    {"Slider_ovet", "txt_ovet", &DayForm::txt_ovet, 1, 600, 5, 1, kTargetFatU, kTargetUnitGram},
    {"Slider_vvet", "txt_vvet", &DayForm::txt_vvet, 1, 600, 5, 1, kTargetFatS, kTargetUnitGram},
    {"Slider_nat", "txt_nat", &DayForm::txt_nat, 1, 20, 5, 1, kTargetSodium, kTargetUnitGram},
    {"Slider_ew", "txt_ew", &DayForm::txt_ew, 1, 1500, 10, 1, kTargetProteins, kTargetUnitGram},
    {"Slider_kdr", "txt_kdr", &DayForm::txt_kdr, 10, 3000, 5, 1, kTargetCarbohydrates,
     kTargetUnitGram},
}};

constexpr std::array kAgeGroups = {
    AgeGroup{kAgeGroup13, {105, 60, 30, 1, 70, 350}},
    AgeGroup{kAgeGroup16, {115, 62, 30, 1, 75, 400}},
    AgeGroup{kAgeGroup19, {100, 70, 32, 1, 70, 350}},
    AgeGroup{kAgeGroup22, {90, 80, 27, 1, 60, 300}},
    AgeGroup{kAgeGroup50, {85, 79, 26, 1, 55, 290}},
    AgeGroup{kAgeGroup65, {80, 47, 22, 1, 54, 270}},
};

constexpr std::array kPriorityOptions = {
    kPriorityKj,   kPriorityKcal,          kPriorityFatU,
    kPriorityFatS, kPriorityCarbohydrates, kPriorityProteins,
};

const TargetSlider& RowOf(Target target) {
  return kSliders[static_cast<std::size_t>(target)];
}

int UnitOf(Target target) {
  return target == Target::kj ? kKilojoulesAStep : 1;
}

}  // namespace

std::span<const TargetSlider, kTargetCount> TargetSliders() {
  return kSliders;
}

int PositionOf(const DayForm& form, Target target) {
  const TargetSlider& row = RowOf(target);
  // To the nearest position, halves to even: the default rounding mode of the machine.
  const double position = std::nearbyint(ReadStoredNumber(form.*row.box) / UnitOf(target));
  return static_cast<int>(std::clamp<double>(position, row.minimum, row.maximum));
}

void MoveSlider(DayForm& form, Target target, int position) {
  const int value = position * UnitOf(target);
  form.*RowOf(target).box = std::to_string(value);
  if (target != Target::kj) return;
  form.txt_kcal = FormatNumber(value / kKilojoulesAKilocalorie, "####", ".");
}

void SettleSliders(DayForm& form) {
  for (const Target target : kAllTargets) MoveSlider(form, target, PositionOf(form, target));
}

std::span<const AgeGroup> AgeGroups() {
  return kAgeGroups;
}

void SetTargetsOf(DayForm& form, const AgeGroup& group) {
  for (const Target target : kAllTargets) {
    MoveSlider(form, target, group.positions[static_cast<std::size_t>(target)]);
  }
}

std::span<const TextId> PriorityOptions() {
  return kPriorityOptions;
}

}  // namespace kelvora
