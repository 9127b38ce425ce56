// What somebody needs in a day, and how what was eaten is set against it: two bars and two texts
// for each of seven nutrients. The day summary and the multi-day window share it; what differs
// between them stands in one table row each.
//
// Amounts and widths are singles, and every named step of the arithmetic is one. Nothing here
// draws.
#pragma once

#include <array>

#include "analysis/analysis_kind.h"
#include "core/program.h"

namespace kelvora {

// Seven amounts in the order of the requirements: kilojoules and kilocalories, then unsaturated
// fat, saturated fat, sodium, protein and carbohydrates in grams. The menus have another order,
// protein before sodium, as is meant.
inline constexpr std::size_t kRequirementRows = std::tuple_size_v<DayTotals>;
using Requirements = DayTotals;

// The recommended amounts of six age groups.
inline constexpr std::size_t kAgeGroups = 6;
using RequirementTable = std::array<Requirements, kAgeGroups>;
inline constexpr RequirementTable kRequirementsOfMen = {{
    {11100, 2700, 95, 30, 2, 70, 370},   // 13 - 16
    {12500, 3000, 100, 35, 2, 81, 410},  // 16 - 19
    {12200, 2900, 105, 35, 2, 79, 400},  // 19 - 22
    {11100, 2700, 95, 30, 2, 71, 370},   // 22 - 50
    {10100, 2400, 90, 30, 1, 64, 330},   // 50 - 65
    {8800, 2100, 75, 25, 1, 56, 290},    // 65 - 99
}};
inline constexpr RequirementTable kRequirementsOfWomen = {{
    {10000, 2400, 90, 30, 2, 65, 330},
    {10300, 2500, 90, 30, 2, 65, 340},
    {9300, 2200, 80, 25, 2, 60, 310},
    {8700, 2100, 75, 25, 2, 55, 290},
    {8200, 2000, 70, 25, 1, 52, 280},
    {7800, 1900, 65, 20, 1, 52, 260},
}};

// The age group that stands for the user's own amounts, those of the profile.
inline constexpr int kOwnRequirements = kAgeGroups;
inline constexpr int kGenderMan = 0;
inline constexpr int kGenderWoman = 1;

// Whose requirements a window shows; lives as long as the window.
struct RequirementState {
  int leeftijd_index = 0;
  int geslacht_index = kGenderMan;
  Requirements behoefte{};
};

// Sets the state from the day header. The window of a day also takes the nutrient that the user
// gives priority for the pie; that of several days leaves it alone.
void Bepaal_Profiel(Program& program, AnalysisWindow window, RequirementState& state);

// Fill `behoefte` for the age group. The user's own amounts are read with a point as the only
// decimal mark. Throw std::system_error for one that a single can't hold.
void Behoefte_Man(RequirementState& state, const Rec_Profile& profile);
void Behoefte_Vrouw(RequirementState& state, const Rec_Profile& profile);

// In twips: the panel `Pic_Behoefte`, and the text boxes behind its bars.
struct PanelWidths {
  int panel = 0;
  int text = 0;
  bool operator==(const PanelWidths&) const = default;
};

// One row of the panel: how long its two bars are, in twips, and what stands behind them and in
// their tips.
struct RequirementRow {
  float requirement_width = 0;
  float use_width = 0;
  Text requirement_text, use_text;
  Text requirement_tip, use_tip;
};
using RequirementRows = std::array<RequirementRow, kRequirementRows>;

// The name of a row's nutrient, with a colon.
[[nodiscard]] const Text& RequirementName(const TextTables& texts, AnalysisWindow window,
                                          std::size_t row);

// Makes the rows anew, one after the other, first the bars and then the texts of each. A division
// by zero, in a row without amounts or without a requirement, ends it under the window's failure
// code: what comes behind stays as it was.
void Maak_Voedingsbehoefte(Program& program, AnalysisWindow window, RequirementState& state,
                           const DayTotals& used, const PanelWidths& widths, RequirementRows& rows);

}  // namespace kelvora
