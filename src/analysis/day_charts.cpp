#include "analysis/day_charts.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "language/day_summary_texts.h"
#include "language/trend_texts.h"
#include "nutrition/numbers.h"

namespace kelvora {
namespace {

constexpr std::size_t kFewestRows = 6;  // five foods and something that is the rest
constexpr std::size_t kLegendName = 30;
constexpr double kWhole = 99.999;  // the percentages together stay below the circle
constexpr float kFirstStart = 0.0001F;
constexpr double kStep = 0.1;  // between two wedges, so that none is without width
constexpr float kCircle = 100;
constexpr float kFullTurn = -6.2831855F;
constexpr int kPieMargin = 140;
constexpr std::string_view kRest = "Overige consumpties";

using WedgeColours = std::array<Colour, kTop5Entries>;

constexpr WedgeColours kBlues = {
    {{0, 56, 140}, {0, 80, 200}, {5, 105, 255}, {65, 141, 255}, {125, 177, 255}, {185, 213, 255}}};

// By `gekozen_stof`, the largest food first. The fifth of the oranges is out of step with its
// neighbours, which is meant.
constexpr std::array<WedgeColours, 7> kColours = {{
    kBlues,
    kBlues,
    {{{140, 56, 0}, {200, 80, 0}, {255, 105, 5}, {255, 141, 65}, {236, 94, 8}, {255, 213, 185}}},
    {{{140, 20, 0}, {200, 28, 0}, {215, 31, 1}, {255, 92, 65}, {255, 143, 125}, {255, 195, 185}}},
    {{{49, 176, 4},
      {65, 234, 6},
      {102, 250, 50},
      {145, 252, 108},
      {189, 254, 166},
      {233, 255, 225}}},
    {{{120, 137, 43},
      {160, 182, 58},
      {186, 205, 95},
      {206, 220, 140},
      {226, 234, 186},
      {245, 248, 232}}},
    {{{178, 147, 2},
      {237, 196, 3},
      {255, 218, 45},
      {237, 239, 39},
      {255, 239, 165},
      {255, 250, 225}}},
}};

constexpr std::array kColumns = {
    SummaryColumn::kj,      SummaryColumn::kcal,   SummaryColumn::fat_u, SummaryColumn::fat_s,
    SummaryColumn::protein, SummaryColumn::sodium, SummaryColumn::carbs,
};

constexpr Top5Words DayWords() {
  using namespace day_summary_text;
  return {.headings = {kPieEnergyKj, kPieEnergyKcal, kPieUnsaturatedFat, kPieSaturatedFat,
                       kPieProtein, kPieSodium, kPieCarbohydrates},
          .units = {kPieUnitKj, kPieUnitKcal, kPieUnitGram, kPieUnitGram, kPieUnitGram,
                    kPieUnitGram, kPieUnitGram},
          .beware = kNoticeBeware,
          .only = kNoticeOnly,
          .present = kNoticePresent,
          .no_top5 = kNoticeNoTop5,
          .add_food = kNoticeAddFood,
          .rest = std::nullopt};
}
constexpr Top5Words MultiDayWords() {
  using namespace trend_text;
  return {.headings = {kPieEnergyKj, kPieEnergyKcal, kPieUnsaturatedFat, kPieSaturatedFat,
                       kPieProtein, kPieSodium, kPieCarbohydrates},
          .units = {kPieUnitKj, kPieUnitKcal, kPieUnitGram, kPieUnitGram, kPieUnitGram,
                    kPieUnitGram, kPieUnitGram},
          .beware = kNoticeBeware,
          .only = kNoticeOnly,
          .present = kNoticePresent,
          .no_top5 = kNoticeNoTop5,
          .add_food = kNoticeAddFood,
          .rest = kPieRemaining};
}
constexpr std::array kWords = {DayWords(), MultiDayWords()};

std::size_t NutrientOf(const Top5Choice& choice) {
  return static_cast<std::size_t>(std::clamp(choice.gekozen_stof, 0, 6));
}

// Reads the values of the nutrient, with their names, and returns their sum.
float Collect(const SummaryRows& rows, const Top5Choice& choice, Top5& top5) {
  float total = 0;
  for (const SummaryRow& row : rows) {
    const Text& cell = row[kColumns[NutrientOf(choice)]];
    top5.lst_waarden.push_back(cell);
    top5.lst_naam.push_back(row[SummaryColumn::food]);
    total = Single(total + ReadStoredNumber(cell));
  }
  return total;
}

// Largest first, by the cells as they stand: a comma ends the number here, though not in the total
// and not in the shares. Equal values never change places. False if a newer run took over.
bool SortByValue(const Pause& pause, Top5& top5) {
  std::vector<double> keys;
  for (const Text& cell : top5.lst_waarden) keys.push_back(-Val(cell));
  const unsigned run = top5.runs;
  bool wanted = true;
  const std::vector<std::size_t> places = ExchangeSorted(keys, [&] {
    wanted = wanted && !pause() && top5.runs == run;
    return !wanted;
  });
  if (!wanted) return false;
  std::vector<Text> values, names;
  for (const std::size_t place : places) {
    values.push_back(top5.lst_waarden[place]);
    names.push_back(top5.lst_naam[place]);
  }
  top5.lst_waarden = std::move(values);
  top5.lst_naam = std::move(names);
  return true;
}

void ShareOut(float total, Top5& top5) {
  for (const Text& cell : top5.lst_waarden) {
    const double value = ReadStoredNumber(cell);
    if (value < 1) top5.lst_percentage.push_back(0);
    if (value > 1) {
      if (total == 0) ThrowSystemError(std::errc::argument_out_of_domain);
      top5.lst_percentage.push_back(value * kWhole / double{total});
    }
  }
}

bool HoldsValuesOf(const Top5Choice& choice, const Top5& top5) {
  const bool filled =
      !top5.lst_waarden.empty() && !top5.lst_naam.empty() && !top5.lst_percentage.empty();
  return filled && top5.gekozen_stof == choice.gekozen_stof;
}

// Values, names and shares of the rows, largest first. False if a newer run took over.
bool FillLists(const SummaryRows& rows, const Top5Choice& choice, const Pause& pause, Top5& top5) {
  top5.gekozen_stof = choice.gekozen_stof;
  const float total = Collect(rows, choice, top5);
  if (!SortByValue(pause, top5)) return false;
  ShareOut(total, top5);
  return true;
}

// Where the wedges of the five foods end.
std::array<float, 5> Cumulate(const std::vector<double>& shares) {
  std::array<float, 5> ends{};
  ends[0] = Single(shares[0]);
  for (std::size_t i = 1; i < ends.size(); ++i) {
    ends[i] = Single(double{ends[i - 1]} + shares[i] + kStep);
  }
  return ends;
}

// An entry as the legend has it: the share is empty there where it rounds to zero.
Text LegendOf(const Top5Entry& entry, std::string_view printed_share) {
  Text legend = entry.name + "\n[";
  legend.append(printed_share);
  return legend + (entry.value.empty() ? "% ]" : "%, " + entry.value + "]");
}

void SetLegend(float rest, const Top5Choice& choice, const TextTables& texts,
               std::string_view separator, Top5& top5) {
  top5.entries.clear();
  const auto add = [&](Top5Entry entry, double share) {
    const Text printed = FormatNumber(share, "##", separator);
    top5.lbl_piename[top5.entries.size()] = LegendOf(entry, printed);
    entry.share = FormatNumber(share, "#0", separator) + "%";
    top5.entries.push_back(std::move(entry));
  };
  const Text& unit = texts[choice.words.units[NutrientOf(choice)]];
  for (std::size_t i = 0; i + 1 < kTop5Entries; ++i) {
    add({.name = top5.lst_naam[i].substr(0, kLegendName),
         .value = top5.lst_waarden[i] + unit,
         .share = {}},
        top5.lst_percentage[i]);
  }
  const Text name = choice.words.rest ? texts[*choice.words.rest] : Text(kRest);
  // The steps between the wedges may leave less than nothing.
  add({.name = name, .value = {}, .share = {}}, std::max(rest, 0.0F));
}

// Cuts each wedge to the circle; one without width has no picture, but its colour in the legend.
void DrawPie(const std::array<float, 5>& ends, const WedgeColours& colours, Top5& top5) {
  top5.Graph_pie.clear();
  for (std::size_t i = 0; i < kTop5Entries; ++i) {
    const float start = i == 0 ? kFirstStart : std::clamp(ends[i - 1], 0.0F, kCircle);
    const float end = i < ends.size() ? std::clamp(ends[i], 0.0F, kCircle) : kCircle;
    if (end > start) top5.Graph_pie.push_back({i, colours[i], start, end});
    top5.lbl_piecolor[i] = colours[i];
  }
}

void ShowNotice(std::size_t foods, const Top5Words& words, const TextTables& texts, Top5& top5) {
  top5.lbl_leeg = texts[words.beware] + "\n" + texts[words.only] + " " + std::to_string(foods) +
                  " " + texts[words.present] + "\n" + texts[words.no_top5] + "\n\n" +
                  texts[words.add_food];
  top5.Graph_pie.clear();
  top5.entries.clear();
  top5.lbl_piename.fill(": -");
}

// To a whole number, halves to even.
int HalfOf(int length) {
  const int half = length / 2;
  return length % 2 != 0 && half % 2 != 0 ? half + 1 : half;
}

}  // namespace

const Top5Words& Top5WordsOf(AnalysisWindow window) {
  return kWords[static_cast<std::size_t>(window)];
}

void BuildTop5(const SummaryRows& rows, const Top5Choice& choice, const TextTables& texts,
               std::string_view separator, const Pause& pause, Top5& top5) {
  if (rows.empty() && top5.had_foods) return;
  ++top5.runs;
  const bool keeps = choice.values == Top5Values::keep && HoldsValuesOf(choice, top5);
  if (!keeps) {
    top5.lst_waarden.clear();
    top5.lst_naam.clear();
    top5.lst_percentage.clear();
  }
  top5.lbl_soort = texts[choice.words.headings[NutrientOf(choice)]];
  top5.had_foods = !rows.empty();
  if (rows.size() < kFewestRows) return ShowNotice(rows.size(), choice.words, texts, top5);
  top5.lbl_leeg.reset();
  if (!keeps && !FillLists(rows, choice, pause, top5)) return;
  if (top5.lst_percentage.size() < kTop5Entries - 1) return;
  const std::array<float, 5> ends = Cumulate(top5.lst_percentage);
  SetLegend(Single(double{kCircle} - ends.back()), choice, texts, separator, top5);
  DrawPie(ends, kColours[NutrientOf(choice)], top5);
}

void Bouw_Top5(Program& program, AnalysisWindow window, const SummaryRows& rows, int gekozen_stof,
               Top5& top5, Top5Values values) {
  program.Guard(CodeOf(window, "#F9-10", "#F12-11"), [&] {
    const Text separator = program.platform.locale.DecimalSeparator();
    // A day of usual length is sorted before anybody waits, and nothing comes between a change and
    // its picture. Several days are worked on in steps, of which this is one.
    constexpr std::size_t kLongDay = 1000;
    const bool lets_events_run = window == AnalysisWindow::day_summary && rows.size() > kLongDay;
    const Pause pause = [&program, lets_events_run] {
      if (lets_events_run) program.platform.events.Yield();
      return program.ending;
    };
    BuildTop5(rows, {Top5WordsOf(window), gekozen_stof, values}, program.texts, separator, pause,
              top5);
  });
}

Sector SectorOf(const Wedge& wedge, const PictureSize& picture) {
  constexpr int kLargest = std::numeric_limits<std::int16_t>::max();
  Sector sector{.centre_x = HalfOf(picture.width), .centre_y = HalfOf(picture.height)};
  if (std::max(sector.centre_x, sector.centre_y) > kLargest) {
    ThrowSystemError(std::errc::result_out_of_range);
  }
  if (sector.centre_x != sector.centre_y) {
    sector.radius = std::max(std::min(sector.centre_x, sector.centre_y) - kPieMargin, 0);
  }
  const float of_percent = kFullTurn / kCircle;
  sector.start_angle = std::abs(of_percent * wedge.start);
  sector.end_angle = std::abs(of_percent * wedge.end);
  return sector;
}

std::optional<Sector> Teken_Taartpunt(Program& program, AnalysisWindow window, const Wedge& wedge,
                                      const PictureSize& picture) {
  std::optional<Sector> sector;
  program.Guard(CodeOf(window, "#F9-11", "#F12-12"), [&] { sector = SectorOf(wedge, picture); });
  return sector;
}

}  // namespace kelvora
