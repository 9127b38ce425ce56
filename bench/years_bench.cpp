// All days of one user at a glance: 2, 10 and 20 years of them, of 600 different foods.
#include <array>

#include <QApplication>

#include "analysis/multi_day_window.h"
#include "diary.h"
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
  Platform platform{test.boxes,  pointer, locale,      test.folders,  test.clock,
                    test.screen, events,  test.opener, test.printers, test.folder_chooser};
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
}

}  // namespace kelvora::bench
