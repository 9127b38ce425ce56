#include "analysis/analysis_views.h"

#include <algorithm>

#include "language/day_summary_texts.h"

namespace kelvora {
namespace {

using namespace day_summary_text;

// Positions 1 and 2 are the genders, 4 to 9 the age groups, 11 the user's own amounts.
constexpr std::array<std::optional<TextId>, 11> kRequirementsMenu = {
    kMan,   kWoman, std::nullopt, kAge13,       kAge16,           kAge19,
    kAge22, kAge50, kAge65,       std::nullopt, kChangedNutrition};
constexpr int kFirstAgePosition = 4;
constexpr int kOwnPosition = 11;

constexpr std::array<std::optional<TextId>, 7> kNutrientMenu = {
    kMenuEnergyKj, kMenuEnergyKcal, kMenuUnsaturatedFats, kMenuSaturatedFats,
    kMenuProtein,  kMenuSodium,     kMenuCarbohydrates};

constexpr std::array kButtons = {
    AnalysisButton{AnalysisView::requirements, "Pic_Behoefte", "totals", kButtonRequirements,
                   kTipRequirements, kStatusRequirements, kRequirementsMenu},
    AnalysisButton{AnalysisView::top5, "Pic_top5", "summary", kButtonTop5, kTipTop5, kStatusTop5,
                   kNutrientMenu},
    AnalysisButton{AnalysisView::consumptions,
                   "Pic_uittreksel",
                   "consumptions",
                   kButtonConsumptions,
                   kTipConsumptions,
                   kStatusConsumptions,
                   {}},
    AnalysisButton{AnalysisView::bmi, "Pic_BMI", "bmi", kButtonBmi, kTipBmi, kBmi, {}},
};

constexpr std::array kAges = {kAge13, kAge16, kAge19, kAge22, kAge50, kAge65};
constexpr std::array kNutrients = {kStatusTop5EnergyKj,        kStatusTop5EnergyKcal,
                                   kStatusTop5UnsaturatedFats, kStatusTop5SaturatedFats,
                                   kStatusTop5Protein,         kStatusTop5Sodium,
                                   kStatusTop5Carbohydrates};

Text RequirementsStatus(const TextTables& texts, const RequirementState& state) {
  Text status = texts[kTipRequirements] + " ";
  if (state.leeftijd_index == kOwnRequirements) return status + " " + texts[kChangedNutrition];
  const TextId gender = state.geslacht_index == kGenderMan ? kStatusMan : kStatusWoman;
  const TextId age = kAges[static_cast<std::size_t>(state.leeftijd_index)];
  return status + texts[kStatusFor] + " " + texts[gender] + " " + texts[age];
}

}  // namespace

std::span<const AnalysisButton> DaySummaryButtons() {
  return kButtons;
}

void ChooseRequirements(RequirementState& state, int position) {
  if (position == 1) state.geslacht_index = kGenderMan;
  if (position == 2) state.geslacht_index = kGenderWoman;
  const int age = position - kFirstAgePosition;
  if (age >= 0 && age < static_cast<int>(kAgeGroups)) state.leeftijd_index = age;
  if (position == kOwnPosition) state.leeftijd_index = kOwnRequirements;
}

void ChooseNutrient(AnalysisState& state, int position) {
  if (position < 1 || position > static_cast<int>(kNutrients.size())) return;
  state.gekozen_stof = static_cast<float>(position - 1);
}

std::array<int, 2> ChosenRequirements(const RequirementState& state) {
  const bool own = state.leeftijd_index == kOwnRequirements;
  return {state.geslacht_index == kGenderMan ? 1 : 2,
          own ? kOwnPosition : kFirstAgePosition + state.leeftijd_index};
}

int ChosenNutrient(const AnalysisState& state) {
  return static_cast<int>(state.gekozen_stof) + 1;
}

std::optional<Text> StatusOf(const Program& program, AnalysisView view,
                             const RequirementState& state, std::size_t row_count) {
  const TextTables& texts = program.texts;
  switch (view) {
    case AnalysisView::requirements:
      return RequirementsStatus(texts, state);
    case AnalysisView::top5: {
      const auto nutrient = static_cast<std::size_t>(program.analysis.gekozen_stof);
      return texts[kStatusTop5For] + " " + texts[kNutrients[nutrient]];
    }
    case AnalysisView::consumptions:
      return texts[kStatusFoodItems] + " " + std::to_string(row_count);
    case AnalysisView::bmi:
      break;
  }
  return std::nullopt;
}

}  // namespace kelvora
