// The pie of the five largest consumptions in one nutrient, with its legend: worked out from the
// rows of a consumption list and kept as lists of texts and wedges, to be drawn by whoever shows
// them. The day summary has it of one day, the multi-day window of all days.
//
// Sums and cumulated shares are single precision, step by step. Lengths are twips.
#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "analysis/analysis_kind.h"
#include "analysis/colour.h"
#include "analysis/summary_row.h"
#include "core/exchange_sort.h"
#include "core/program.h"

namespace kelvora {

// The five largest foods, and the rest.
inline constexpr std::size_t kTop5Entries = 6;

// In this colour each wedge has its outline, one pixel wide.
inline constexpr Colour kWedgeOutline{8, 0, 0};

// One wedge of the pie: from `start` to `end` percent of the circle.
struct Wedge {
  std::size_t index = 0;
  Colour colour;
  float start = 0;
  float end = 0;
  bool operator==(const Wedge&) const = default;
};

// What one entry of the legend says, in pieces: for those who hear the chart. The rest has no
// value.
struct Top5Entry {
  Text name, value, share;
  bool operator==(const Top5Entry&) const = default;
};

// What the panel of a window shows. It lasts: what a step below leaves alone stays as it was.
struct Top5 {
  Text lbl_soort;                // the heading
  std::optional<Text> lbl_leeg;  // the notice in the place of the pie, while it shows
  std::array<Text, kTop5Entries> lbl_piename;
  std::array<std::optional<Colour>, kTop5Entries> lbl_piecolor;  // none before the first pie
  std::vector<Wedge> Graph_pie;
  std::vector<Top5Entry> entries;  // of the pie that shows; empty without one

  // The values of the nutrient as they stand in the list, the names, and the shares in percent.
  // Sorted, largest first; a value of exactly 1 has no share, so that those behind it move up.
  std::vector<Text> lst_waarden;
  std::vector<Text> lst_naam;
  std::vector<double> lst_percentage;

  int gekozen_stof = 0;    // whose values these are
  bool had_foods = false;  // once it had, a list without rows changes nothing
  unsigned runs = 0;       // how often it was built: a longer run ends where a newer one began
};

// The words in which the windows differ.
struct Top5Words {
  std::array<TextId, 7> headings;  // by `gekozen_stof`, and so are the units
  std::array<TextId, 7> units;
  TextId beware, only, present, no_top5, add_food;
  // Without one the rest has its Dutch name in every language, which is meant.
  std::optional<TextId> rest;
};
[[nodiscard]] const Top5Words& Top5WordsOf(AnalysisWindow window);

// Whether the values are taken from the rows anew, or those kept that were taken before, if they
// are of the same nutrient.
enum class Top5Values { collect, keep };

struct Top5Choice {
  const Top5Words& words;
  int gekozen_stof = 0;  // 0 to 6
  Top5Values values = Top5Values::collect;
};

// Builds the chart from the rows, in their order. Fewer than six give the notice; none change
// nothing, but for a chart that never had any, which says so in the words of the moment. Lets other
// events run through `pause`, which may build the same chart anew: that one counts then.
// Throws std::system_error where a share can't be divided or a sum is no single.
void BuildTop5(const SummaryRows& rows, const Top5Choice& choice, const TextTables& texts,
               std::string_view separator, const Pause& pause, Top5& top5);

// The same for a window. A failure shows its code and leaves what was done up to there.
void Bouw_Top5(Program& program, AnalysisWindow window, const SummaryRows& rows, int gekozen_stof,
               Top5& top5, Top5Values values = Top5Values::collect);

struct PictureSize {
  int width = 0;
  int height = 0;
};

// A filled sector with its outline, both radii included. Angles in radians, counter-clockwise from
// three o'clock. Nothing is to be drawn without a radius.
struct Sector {
  int centre_x = 0;
  int centre_y = 0;
  int radius = 0;
  float start_angle = 0;
  float end_angle = 0;
};

// Where a wedge stands in a picture of that size. A square picture gives no radius, which is meant.
// Throws std::system_error where the middle of the picture is beyond 32,767.
[[nodiscard]] Sector SectorOf(const Wedge& wedge, const PictureSize& picture);

// The same for a window; none after a failure, which shows its code.
[[nodiscard]] std::optional<Sector> Teken_Taartpunt(Program& program, AnalysisWindow window,
                                                    const Wedge& wedge, const PictureSize& picture);

}  // namespace kelvora
