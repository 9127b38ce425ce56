#include "analysis/trend.h"

#include "nutrition/numbers.h"

namespace kelvora {
namespace {

constexpr std::size_t kFewestForDayLines = 3;  // entries of the first series, per file
constexpr int kGridLines = 10;                 // the last one lies on the bottom edge
constexpr float kLabelIndent = 100;
constexpr float kLabelRise = 100;

// The number of days between two dates; 0 where there is none.
int DaysBetween(const Text& first, const Text& second, const UnitContext& context) {
  return Dagen_Tussen(first, second, context).value_or(0);
}

void DrawGrid(TrendSize size, TrendChart& chart) {
  for (int i = 1; i <= kGridLines; ++i) {
    const float y = Single(static_cast<double>(i) / kGridLines * size.height);
    chart.Pic_Grafiek.push_back({SegmentKind::grid, kChartGrey, 0, y, size.width, y});
    if (i == kGridLines) break;
    chart.Pic_txt.push_back(
        {kLabelIndent, y - kLabelRise, std::to_string(100 - 100 / kGridLines * i) + "%"});
  }
}

// One line, with the day lines that come with it, into the lists of the chart.
class LineMaker {
 public:
  LineMaker(const std::vector<double>& heights, Colour colour, TrendSize size, TrendChart& chart)
      : heights_(heights), colour_(colour), size_(size), chart_(chart) {
    chart_.Pic_Grafiek.reserve(chart_.Pic_Grafiek.size() + 2 * heights_.size());
  }

  // Every file one equal step. Behind the last day a flat piece lies beyond the right edge, as is
  // meant.
  void DrawPerFile(bool day_lines) {
    const std::size_t count = heights_.size();
    const auto place = [&](std::size_t i) {
      return Single(static_cast<double>(i) / static_cast<double>(count - 1) * size_.width);
    };
    if (day_lines) {
      for (std::size_t i = 1; i < count; ++i) AddDayLine(place(i));
    }
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t next = i + 1 < count ? i + 1 : i;
      AddPiece(place(i), HeightOf(i), place(i + 1), HeightOf(next));
    }
  }

  // By the true distance of the dates. The last day has no day line, as is meant.
  void DrawPerDate(const std::vector<int>& since, float twips_per_day, bool day_lines) {
    const auto place = [&](std::size_t i) { return Single(double{twips_per_day} * since[i]); };
    for (std::size_t i = 0; i + 1 < heights_.size(); ++i) {
      AddPiece(place(i), HeightOf(i), place(i + 1), HeightOf(i + 1));
      if (day_lines) AddDayLine(place(i));
    }
  }

 private:
  [[nodiscard]] float HeightOf(std::size_t i) const {
    return Single(heights_[i] / 100 * size_.height);
  }
  void AddPiece(float x1, float y1, float x2, float y2) {
    chart_.Pic_Grafiek.push_back({SegmentKind::series, colour_, x1, y1, x2, y2});
  }
  void AddDayLine(float x) {
    for (auto* const list : {&chart_.Pic_Grafiek, &chart_.Pic_Grafiek_top}) {
      list->push_back({SegmentKind::day, kChartGrey, x, 0, x, size_.height});
    }
  }

  const std::vector<double>& heights_;
  const Colour colour_;
  const TrendSize size_;
  TrendChart& chart_;
};

void Teken_Trendlijn(Program& program, const DaySeries& days, const TimeLine& time_line,
                     const TrendLine& line, bool Teken_dag, TrendSize size, TrendChart& chart) {
  program.Guard("#F12-17", [&] {
    const std::vector<double>& heights = days.L_data_2[line.series];
    // Days of one date draw nothing, whatever the time line; a single entry has no line.
    if (time_line.span <= 0 || heights.size() < 2) return;
    LineMaker maker(heights, line.colour, size, chart);
    if (time_line.tijdlijn_stand == kPerFile) {
      maker.DrawPerFile(Teken_dag && days.L_data_1[0].size() >= kFewestForDayLines);
    } else if (time_line.tijdlijn_stand == kPerDate) {
      maker.DrawPerDate(time_line.since, TwipsPerDay(time_line, size.width), Teken_dag);
    }
  });
}

}  // namespace

TimeLine TimeLineOf(const DaySeries& days, float tijdlijn_stand, const UnitContext& context) {
  TimeLine time_line{.tijdlijn_stand = tijdlijn_stand};
  if (days.keys.empty()) return time_line;
  time_line.span = DaysBetween(days.keys.front(), days.keys.back(), context);
  if (tijdlijn_stand != kPerDate) return time_line;
  time_line.since.push_back(0);
  for (std::size_t i = 1; i < days.keys.size(); ++i) {
    time_line.since.push_back(DaysBetween(days.keys.front(), days.keys[i], context));
  }
  return time_line;
}

float TwipsPerDay(const TimeLine& time_line, float width) {
  return Single(Val(Str(width, ".")) / time_line.span);
}

void Teken_Grafiek(Program& program, const DaySeries& days, const TimeLine& time_line,
                   const TrendTicks& ticks, TrendSize size, TrendChart& chart) {
  program.Guard("#F12-16", [&] {
    if (days.keys.empty()) return;
    chart.Pic_Grafiek.clear();
    chart.Pic_Grafiek_top.clear();
    chart.Pic_txt.clear();
    program.platform.pointer.ShowWait();
    DrawGrid(size, chart);
    for (std::size_t i = 0; i < kTrendLines.size(); ++i) {
      if (!ticks.Teken_lijn[i]) continue;
      Teken_Trendlijn(program, days, time_line, kTrendLines[i], ticks.Teken_dag, size, chart);
    }
    program.platform.pointer.Restore();
  });
}

}  // namespace kelvora
