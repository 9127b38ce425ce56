// Browsing the days of one user: 2, 10 and 20 years of them. The files have the names and the
// content of a diary kept every evening, thirty foods a day.
#include <array>

#include <QApplication>
#include <QTableView>

#include "days/browser_dialog.h"
#include "diary.h"
#include "platform/qt/qt_platform.h"
#include "report.h"

namespace kelvora::bench {
namespace {

constexpr std::array kDays = {std::size_t{730}, std::size_t{3650}, std::size_t{7300}};
constexpr double kMostMicroseconds = 1e6;

void Read(benchmark::State& state, std::size_t days) {
  Diary& diary = DiaryOf(days, kFoodsOfADay);
  std::size_t rows = 0;
  for (auto _ : state) rows = ReadDays(diary.test.program).rows.size();
  if (rows != days || !diary.test.boxes.shown.empty()) state.SkipWithError("days are missing");
}

// From before the window is made until it is drawn with all its rows, with the real locale and
// event loop.
void OpenWindow(benchmark::State& state, std::size_t days) {
  TestProgram& test = DiaryOf(days, kFoodsOfADay).test;
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
  for (auto _ : state) {
    BrowserDialog dialog(program, nullptr);
    dialog.Open();
    QApplication::processEvents();
    const auto* const list = dialog.findChild<QTableView*>(QStringLiteral("LV_browse_files"));
    if (list->model()->rowCount() != static_cast<int>(days)) {
      state.SkipWithError("days are missing");
      break;
    }
  }
}

void ReadFiles(benchmark::State& state, std::size_t days) {
  ReadSameFiles(state, DiaryOf(days, kFoodsOfADay));
}

void Sort(benchmark::State& state, std::size_t days) {
  const std::vector<double>& keys = DiaryOf(days, kFoodsOfADay).keys;
  for (auto _ : state) {
    benchmark::DoNotOptimize(ExchangeSorted(keys, [] { return false; }).data());
  }
}

// Each pair of keys compared once, and nothing moved.
void ComparePairs(benchmark::State& state, std::size_t days) {
  const std::vector<double>& keys = DiaryOf(days, kFoodsOfADay).keys;
  for (auto _ : state) {
    std::size_t less = 0;
    for (const double key : keys) {
      for (const double other : keys) less += key < other ? 1u : 0u;
    }
    benchmark::DoNotOptimize(less);
  }
}

}  // namespace

void AddBrowseBenchmarks(Report& report) {
  const auto of = [](void (*body)(benchmark::State&, std::size_t), std::size_t days) {
    return [=](benchmark::State& state) { body(state, days); };
  };
  struct Measured {
    const char* name;
    Reach reach;
    void (*body)(benchmark::State&, std::size_t);
    void (*limit)(benchmark::State&, std::size_t);
  };
  for (const auto& [name, reach, body, limit] :
       {Measured{"ReadDays/", {}, Read, ReadFiles},
        Measured{"ExchangeSorted/", {}, Sort, ComparePairs},
        Measured{"BrowserDialog/", UnderMicroseconds(kMostMicroseconds), OpenWindow, ReadFiles}}) {
    for (const std::size_t days : kDays) {
      report.AddPair(name + std::to_string(days), reach, Plan::many, of(body, days),
                     of(limit, days));
    }
  }
}

}  // namespace kelvora::bench
