#include "analysis/requirements.h"

#include "language/day_summary_texts.h"
#include "language/trend_texts.h"
#include "nutrition/numbers.h"

namespace kelvora {
namespace {

// The nutrient of the pie for each priority; sodium can't be one.
constexpr std::array<float, 6> kNutrientOfPriority = {0, 1, 2, 3, 6, 4};

// The user's own amounts.
constexpr std::array<ProfileField, kRequirementRows> kOwnAmounts = {
    ProfileField::txt_kj,  ProfileField::txt_kcal, ProfileField::txt_ovet, ProfileField::txt_vvet,
    ProfileField::txt_nat, ProfileField::txt_ew,   ProfileField::txt_kdr};

// How the amount used is printed: whole numbers, and nothing for zero.
constexpr std::array<std::string_view, kRequirementRows> kUsePatterns = {
    "######", "#####", "####", "####", "####", "####", "####"};

constexpr std::size_t kPercentageCharacters = 5;  // cut there, not rounded
constexpr int kPanelMargins = 120;                // twips, both sides together

struct RowTexts {
  TextId required_name;
  TextId used_name;
  TextId required_unit;
  TextId required_tip_unit;
  TextId used_unit;
};

// What tells the two windows apart.
struct WindowRow {
  TextId recommended;
  TextId used;
  std::array<RowTexts, kRequirementRows> rows;
};

constexpr WindowRow DaySummaryRow() {
  using namespace day_summary_text;
  const auto gram = [](TextId required_name, TextId used_name) {
    return RowTexts{required_name, used_name, kRecommendedUnitGram, kRecommendedUnitGram,
                    kUsedUnitGram};
  };
  return {
      kRecommended,
      kUsed,
      {{{kRecommendedEnergyKj, kUsedEnergyKj, kRecommendedUnitKj, kRecommendedUnitKj, kUsedUnitKj},
        {kRecommendedEnergyKcal, kUsedEnergyKcal, kRecommendedUnitKcal, kRecommendedUnitKcal,
         kUsedUnitKcal},
        gram(kRecommendedUnsaturatedFats, kUsedUnsaturatedFat),
        gram(kRecommendedSaturatedFats, kUsedSaturatedFat),
        gram(kRecommendedSodium, kUsedSodium),
        gram(kRecommendedProtein, kUsedProtein),
        gram(kRecommendedCarbohydrates, kUsedCarbohydrates)}}};
}

constexpr WindowRow MultiDayRow() {
  using namespace trend_text;
  const auto gram = [](TextId required_name, TextId used_name) {
    return RowTexts{required_name, used_name, kRecommendedUnitGram, kTipRecommendedUnitGram,
                    kUsedUnitGram};
  };
  return {kRecommended,
          kUsed,
          {{{kRecommendedEnergyKj, kUsedEnergyKj, kRecommendedUnitKj, kTipRecommendedUnitKj,
             kUsedUnitKj},
            {kRecommendedEnergyKcal, kUsedEnergyKcal, kRecommendedUnitKcal, kTipRecommendedUnitKcal,
             kUsedUnitKcal},
            gram(kRecommendedUnsaturatedFats, kUsedUnsaturatedFat),
            gram(kRecommendedSaturatedFats, kUsedSaturatedFat),
            gram(kRecommendedSodium, kUsedSodium),
            gram(kRecommendedProtein, kUsedProtein),
            gram(kRecommendedCarbohydrates, kUsedCarbohydrates)}}};
}

constexpr std::array kWindows = {DaySummaryRow(), MultiDayRow()};

const WindowRow& RowOf(AnalysisWindow window) {
  return kWindows[static_cast<std::size_t>(window)];
}

// The texts of the two genders: of the language in the window of a day, and whatever the language
// in that of several, as they are meant to be.
std::array<Text, 2> GenderTexts(const TextTables& texts, AnalysisWindow window) {
  if (window == AnalysisWindow::multi_day) return {"Man", "Vrouw"};
  return {texts[day_summary_text::kMan], texts[day_summary_text::kWoman]};
}

void Fill(RequirementState& state, const RequirementTable& table, const Rec_Profile& profile) {
  if (state.leeftijd_index != kOwnRequirements) {
    state.behoefte = table[static_cast<std::size_t>(state.leeftijd_index)];
    return;
  }
  for (std::size_t row = 0; row < kRequirementRows; ++row) {
    state.behoefte[row] = Single(Val(profile[kOwnAmounts[row]]));
  }
}

float Quotient(float dividend, float divisor) {
  if (divisor == 0) ThrowSystemError(std::errc::argument_out_of_domain);
  return Single(dividend / divisor);
}

// Both bars of a row together always take the same room, whatever the nutrient.
void MakeBars(float required, float used, const PanelWidths& widths, RequirementRow& row) {
  const auto room = static_cast<float>(widths.panel - kPanelMargins - widths.text);
  const float both = Single(required + used);
  const float scale = Quotient(room, both);
  row.requirement_width = Single(scale * required);
  row.use_width = Single(scale * used);
}

Text PercentageOf(float used, float required, std::string_view separator) {
  const float share = Quotient(used, required);
  const float percentage = Single(share * 100);
  return Str(percentage, separator).substr(0, kPercentageCharacters);
}

}  // namespace

void Bepaal_Profiel(Program& program, AnalysisWindow window, RequirementState& state) {
  program.Guard(CodeOf(window, "#F9-0", "#F12-1"), [&] {
    const bool of_a_day = window == AnalysisWindow::day_summary;
    if (of_a_day) {
      program.analysis.gekozen_stof =
          kNutrientOfPriority[static_cast<std::size_t>(PriorityOfUser(program))];
    } else {
      state.leeftijd_index = kOwnRequirements;
    }
    const TextList& header = program.store.L_gegevens;
    if (header[HeaderRow::kAge].empty()) return;
    state.leeftijd_index = kOwnRequirements;
    const auto [man, woman] = GenderTexts(program.texts, window);
    if (header[HeaderRow::kGender] == man) {
      state.geslacht_index = kGenderMan;
    } else if (header[HeaderRow::kGender] == woman) {
      state.geslacht_index = kGenderWoman;
    }
  });
}

void Behoefte_Man(RequirementState& state, const Rec_Profile& profile) {
  Fill(state, kRequirementsOfMen, profile);
}

void Behoefte_Vrouw(RequirementState& state, const Rec_Profile& profile) {
  Fill(state, kRequirementsOfWomen, profile);
}

const Text& RequirementName(const TextTables& texts, AnalysisWindow window, std::size_t row) {
  return texts[RowOf(window).rows[row].required_name];
}

void Maak_Voedingsbehoefte(Program& program, AnalysisWindow window, RequirementState& state,
                           const DayTotals& used, const PanelWidths& widths,
                           RequirementRows& rows) {
  program.Guard(CodeOf(window, "#F9-8", "#F12-9"), [&] {
    const auto fill = state.geslacht_index == kGenderMan ? Behoefte_Man : Behoefte_Vrouw;
    fill(state, program.profile);
    const Text separator = program.platform.locale.DecimalSeparator();
    const TextTables& texts = program.texts;
    const auto& [recommended, used_heading, row_texts] = RowOf(window);
    for (std::size_t i = 0; i < kRequirementRows; ++i) {
      const float r = state.behoefte[i];
      const float u = used[i];
      MakeBars(r, u, widths, rows[i]);
      const Text percentage = PercentageOf(u, r, separator) + "%";
      const Text required = Str(r, separator);
      const Text& unit = texts[row_texts[i].used_unit];
      rows[i].requirement_text =
          texts[recommended] + required + " " + texts[row_texts[i].required_unit];
      rows[i].requirement_tip = texts[row_texts[i].required_name] + " " + required + " " +
                                texts[row_texts[i].required_tip_unit];
      rows[i].use_text = texts[used_heading] + FormatNumber(u, kUsePatterns[i], separator) + " " +
                         unit + " " + percentage;
      rows[i].use_tip =
          texts[row_texts[i].used_name] + " " + Str(u, separator) + " " + unit + " " + percentage;
    }
  });
}

}  // namespace kelvora
