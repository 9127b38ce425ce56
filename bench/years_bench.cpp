// All days of one user at a glance: 2, 10 and 20 years of them, of 600 different foods; and their
// chart drawn anew.
#include <array>
#include <chrono>
#include <random>

#include <QApplication>
#include <QCheckBox>
#include <QImage>

#include "analysis/multi_day_window.h"
#include "analysis/trend_panel.h"
#include "diary.h"
#include "nutrition/dates.h"
#include "platform/qt/qt_platform.h"
#include "report.h"

namespace kelvora::bench {
namespace {

constexpr std::size_t kFoods = 600;

struct Years {
  std::size_t days;
  Reach reach;
};
const std::array kYears = {Years{730, {}}, Years{3650, UnderMicroseconds(1e6)},
                           Years{7300, UnderMicroseconds(2e6)}};

// Reading and working out, without a window.
void WorkOut(benchmark::State& state, std::size_t days) {
  Diary& diary = DiaryOf(days, kFoods);
  std::size_t rows = 0;
  for (auto _ : state) {
    MultiDay several(diary.test.program);
    while (several.Work()) {
    }
    rows = several.Sheet().Rows()->size();
  }
  if (rows != diary.names || !diary.test.boxes.shown.empty())
    state.SkipWithError("foods are missing");
}

// From before the window is made until its chart is drawn, with the real locale and event loop.
void OpenWindow(benchmark::State& state, std::size_t days) {
  TestProgram& test = DiaryOf(days, kFoods).test;
  QtPointer pointer;
  QtLocale locale;
  QtEvents events;
  Platform platform{test.boxes,          pointer,       locale,      test.folders,  test.clock,
                    test.screen,         events,        test.opener, test.printers, test.printing,
                    test.folder_chooser, test.transfers};
  Program program(platform);
  program.texts = test.program.texts;
  program.settings = test.program.settings;
  program.profile = test.program.profile;
  program.paths = test.program.paths;
  const QString done = QString::fromLatin1("Trend");
  for (auto _ : state) {
    MultiDayWindow window(program, nullptr);
    window.resize(760, 560);
    window.show();
    while (window.windowTitle() != done) QApplication::processEvents();
    QApplication::processEvents();
  }
  if (!test.boxes.shown.empty()) state.SkipWithError("days are missing");
}

void ReadFiles(benchmark::State& state, std::size_t days) {
  ReadSameFiles(state, DiaryOf(days, kFoods));
}

// Days one after the other, whose values go up and down without an end.
DaySeries NoisyDays(std::size_t days) {
  using namespace std::chrono;
  DaySeries series;
  std::minstd_rand random(1);
  for (std::size_t i = 0; i < days; ++i) {
    const year_month_day date{sys_days(year(2004) / 1 / 1) + std::chrono::days(i)};
    series.keys.push_back(TwoDigits(static_cast<int>(date.year()) % 100) +
                          TwoDigits(static_cast<int>(static_cast<unsigned>(date.month()))) +
                          TwoDigits(static_cast<int>(static_cast<unsigned>(date.day()))));
    for (std::size_t k = 0; k < kSeriesCount; ++k) {
      series.L_data_1[k].push_back("1");
      series.L_data_2[k].push_back(static_cast<double>(random() % 101));
    }
  }
  return series;
}

// The chart with all its lines, as large as the window lets it be.
struct Chart {
  TestProgram test;
  TrendPanel panel{test.program, nullptr};

  Chart(std::size_t days, float tijdlijn_stand) {
    for (QCheckBox* const tick : panel.findChildren<QCheckBox*>()) tick->setChecked(true);
    panel.resize(748, 640);
    panel.Show(NoisyDays(days), tijdlijn_stand);
    panel.show();
    QApplication::processEvents();
  }
};

// A tick is taken away and set again, each time until the chart is on the screen.
void DrawAnew(benchmark::State& state, std::size_t days) {
  Chart chart(days, kPerDate);
  auto* const tick = chart.panel.findChild<QCheckBox*>(QStringLiteral("Teken_lijn_7"));
  for (auto _ : state) {
    tick->click();
    QApplication::processEvents();
  }
}

void FillPicture(benchmark::State& state, std::size_t) {
  QImage picture(748, 640, QImage::Format_RGB32);
  for (auto _ : state) {
    picture.fill(Qt::gray);
    benchmark::ClobberMemory();
  }
}

}  // namespace

void AddYearsBenchmarks(Report& report) {
  const auto of = [](void (*body)(benchmark::State&, std::size_t), std::size_t days) {
    return [=](benchmark::State& state) { body(state, days); };
  };
  for (const auto& [days, reach] : kYears) {
    report.AddPair("MultiDay/" + std::to_string(days), {}, Plan::many, of(WorkOut, days),
                   of(ReadFiles, days));
  }
  for (const auto& [days, reach] : kYears) {
    report.AddPair("MultiDayWindow/" + std::to_string(days), reach, Plan::many,
                   of(OpenWindow, days), of(ReadFiles, days));
  }
  report.AddPair("TrendChart/7300", UnderMicroseconds(16e3), Plan::many, of(DrawAnew, 7300),
                 of(FillPicture, 7300));
}

}  // namespace kelvora::bench
