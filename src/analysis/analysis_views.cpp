#include "analysis/analysis_views.h"

#include "language/day_summary_texts.h"
#include "language/trend_texts.h"

namespace kelvora {
namespace {

using Entry = std::optional<TextId>;

// Positions 1 and 2 are the genders, 4 to 9 the age groups, 11 the user's own amounts.
using RequirementsMenu = std::array<Entry, 11>;
constexpr int kFirstAgePosition = 4;
constexpr int kOwnPosition = 11;

using NutrientMenu = std::array<Entry, 7>;

// The words of the second panel of the status bar.
struct StatusWords {
  TextId recommended, of, man, woman;
  std::array<TextId, kAgeGroups> ages;
  TextId own, top5_for;
  std::array<TextId, std::tuple_size_v<NutrientMenu>> nutrients;
  TextId food_items;
};

namespace day {

using namespace day_summary_text;

constexpr RequirementsMenu kRequirementsMenu = {kMan,   kWoman,       std::nullopt,     kAge13,
                                                kAge16, kAge19,       kAge22,           kAge50,
                                                kAge65, std::nullopt, kChangedNutrition};
constexpr NutrientMenu kNutrientMenu = {kMenuEnergyKj,      kMenuEnergyKcal, kMenuUnsaturatedFats,
                                        kMenuSaturatedFats, kMenuProtein,    kMenuSodium,
                                        kMenuCarbohydrates};

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

constexpr StatusWords kStatus = {
    .recommended = kTipRequirements,
    .of = kStatusFor,
    .man = kStatusMan,
    .woman = kStatusWoman,
    .ages = {kAge13, kAge16, kAge19, kAge22, kAge50, kAge65},
    .own = kChangedNutrition,
    .top5_for = kStatusTop5For,
    .nutrients = {kStatusTop5EnergyKj, kStatusTop5EnergyKcal, kStatusTop5UnsaturatedFats,
                  kStatusTop5SaturatedFats, kStatusTop5Protein, kStatusTop5Sodium,
                  kStatusTop5Carbohydrates},
    .food_items = kStatusFoodItems,
};

}  // namespace day

namespace several {

using namespace trend_text;

constexpr std::array<Entry, 2> kTimeLineMenu = {kMenuTimeLinePerFile, kMenuTimeLinePerDate};
constexpr RequirementsMenu kRequirementsMenu = {
    kMenuMan,   kMenuWoman, std::nullopt, kMenuAge13,   kMenuAge16,           kMenuAge19,
    kMenuAge22, kMenuAge50, kMenuAge65,   std::nullopt, kMenuChangedNutrition};
constexpr NutrientMenu kNutrientMenu = {kMenuEnergyKj,      kMenuEnergyKcal, kMenuUnsaturatedFats,
                                        kMenuSaturatedFats, kMenuProtein,    kMenuSodium,
                                        kMenuCarbohydrates};

constexpr std::array kButtons = {
    AnalysisButton{AnalysisView::trend, "Pic_grafiekbox", "trend", kButtonTrend, kTipTrend,
                   kStatusTrend, kTimeLineMenu},
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
};

constexpr StatusWords kStatus = {
    .recommended = kStatusRecommended,
    .of = kStatusFor,
    .man = kStatusMan,
    .woman = kStatusWoman,
    .ages = {kStatusAge13, kStatusAge16, kStatusAge19, kStatusAge22, kStatusAge50, kStatusAge65},
    .own = kStatusChangedNutrition,
    .top5_for = kStatusTop5For,
    .nutrients = {kStatusTop5EnergyKj, kStatusTop5EnergyKcal, kStatusTop5UnsaturatedFats,
                  kStatusTop5SaturatedFats, kStatusTop5Protein, kStatusTop5Sodium,
                  kStatusTop5Carbohydrates},
    .food_items = kStatusFoodItems,
};

}  // namespace several

Text RequirementsStatus(const TextTables& texts, const StatusWords& words,
                        const RequirementState& state) {
  Text status = texts[words.recommended] + " ";
  if (state.leeftijd_index == kOwnRequirements) return status + " " + texts[words.own];
  const TextId gender = state.geslacht_index == kGenderMan ? words.man : words.woman;
  const TextId age = words.ages[static_cast<std::size_t>(state.leeftijd_index)];
  return status + texts[words.of] + " " + texts[gender] + " " + texts[age];
}

}  // namespace

std::span<const AnalysisButton> DaySummaryButtons() {
  return day::kButtons;
}

std::span<const AnalysisButton> MultiDayButtons() {
  return several::kButtons;
}

std::span<const AnalysisButton> ButtonsOf(AnalysisWindow window) {
  return window == AnalysisWindow::day_summary ? DaySummaryButtons() : MultiDayButtons();
}

void ChooseRequirements(RequirementState& state, int position) {
  if (position == 1) state.geslacht_index = kGenderMan;
  if (position == 2) state.geslacht_index = kGenderWoman;
  const int age = position - kFirstAgePosition;
  if (age >= 0 && age < static_cast<int>(kAgeGroups)) state.leeftijd_index = age;
  if (position == kOwnPosition) state.leeftijd_index = kOwnRequirements;
}

void ChooseNutrient(AnalysisState& state, int position) {
  if (position < 1 || position > static_cast<int>(std::tuple_size_v<NutrientMenu>)) return;
  state.gekozen_stof = static_cast<float>(position - 1);
}

void ChooseTimeLine(float& tijdlijn_stand, int position) {
  if (position == 1) tijdlijn_stand = 0;
  if (position == 2) tijdlijn_stand = 1;
}

std::array<int, 2> ChosenRequirements(const RequirementState& state) {
  const bool own = state.leeftijd_index == kOwnRequirements;
  return {state.geslacht_index == kGenderMan ? 1 : 2,
          own ? kOwnPosition : kFirstAgePosition + state.leeftijd_index};
}

int ChosenNutrient(const AnalysisState& state) {
  return static_cast<int>(state.gekozen_stof) + 1;
}

int ChosenTimeLine(float tijdlijn_stand) {
  return static_cast<int>(tijdlijn_stand) + 1;
}

std::optional<Text> StatusOf(const Program& program, AnalysisWindow window, AnalysisView view,
                             const RequirementState& state, std::size_t row_count) {
  const TextTables& texts = program.texts;
  const StatusWords& words =
      window == AnalysisWindow::day_summary ? day::kStatus : several::kStatus;
  switch (view) {
    case AnalysisView::trend:
      return texts[trend_text::kStatusTrendOf] + " " + program.paths.UserName;
    case AnalysisView::requirements:
      return RequirementsStatus(texts, words, state);
    case AnalysisView::top5: {
      const auto nutrient = static_cast<std::size_t>(program.analysis.gekozen_stof);
      return texts[words.top5_for] + " " + texts[words.nutrients[nutrient]];
    }
    case AnalysisView::consumptions:
      return texts[words.food_items] + " " + std::to_string(row_count);
    case AnalysisView::bmi:
      break;
  }
  return std::nullopt;
}

}  // namespace kelvora
