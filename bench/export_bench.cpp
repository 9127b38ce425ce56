// Exporting the days of one user as a page with graphs: from the button to the file closed, a year
// of days and up to twenty of them; and the dialog that lists them.
#include <array>
#include <map>
#include <numeric>

#include <QApplication>
#include <QTableView>

#include "diary.h"
#include "output/export_dialog.h"
#include "output/exporting.h"
#include "plain_file.h"
#include "platform/qt/qt_platform.h"
#include "report.h"
#include "storage/record_file.h"

namespace kelvora::bench {
namespace {

constexpr double kMostTimesReadingAndWriting = 5;
constexpr double kMostMicroseconds = 1e6;

// The list of a diary with all its days selected.
struct Selected {
  std::vector<ExportRow> list;
  ExportChoice choice;
};

const Selected& AllOf(Diary& diary) {
  static std::map<const Diary*, Selected> selected;
  Selected& all = selected[&diary];
  if (all.list.empty()) {
    all.list = ReadExportList(diary.test.program, [] { return false; }).rows;
    all.choice.rows.resize(all.list.size());
    std::iota(all.choice.rows.begin(), all.choice.rows.end(), std::size_t{0});
  }
  return all;
}

// Returns the path of the page; empty if something was told.
std::string ExportAll(Diary& diary) {
  TestProgram& test = diary.test;
  const Selected& all = AllOf(diary);
  test.boxes.shown.clear();
  test.opener.opened.clear();
  test.boxes.answers = {BoxAnswer::yes};  // graphs of so many days
  ExportDays(test.program, all.list, all.choice);
  const bool done = test.boxes.shown.size() == 1 && test.opener.opened.size() == 1;
  return done ? test.opener.opened.front() : std::string();
}

void Export(benchmark::State& state, std::size_t days) {
  Diary& diary = DiaryOf(days, kFoodsOfADay);
  std::string page;
  (void)AllOf(diary);
  for (auto _ : state) page = ExportAll(diary);
  if (page.empty()) state.SkipWithError("no page was written");
}

// Each day file opened, read and closed, and the bytes of the page written and synced.
void ReadAndWrite(benchmark::State& state, std::size_t days) {
  Diary& diary = DiaryOf(days, kFoodsOfADay);
  const std::string page = ExportAll(diary);
  const std::string bytes = ReadFile(page);
  std::string buffer(std::size_t{1} << 16, '\0');
  for (auto _ : state) {
    for (const std::string& path : diary.paths) ReadPlain(path, buffer);
    benchmark::ClobberMemory();
    WritePlain(page, bytes);
  }
  state.counters["bytes_of_the_page"] = static_cast<double>(bytes.size());
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
    ExportDaysDialog dialog(program, nullptr);
    dialog.Open();
    QApplication::processEvents();
    const auto* const list = dialog.findChild<QTableView*>(QStringLiteral("LV_user_files"));
    if (list->model()->rowCount() != static_cast<int>(days)) {
      state.SkipWithError("days are missing");
      break;
    }
  }
}

void ReadFiles(benchmark::State& state, std::size_t days) {
  ReadSameFiles(state, DiaryOf(days, kFoodsOfADay));
}

}  // namespace

void AddExportBenchmarks(Report& report) {
  const auto of = [](void (*body)(benchmark::State&, std::size_t), std::size_t days) {
    return [=](benchmark::State& state) { body(state, days); };
  };
  report.AddPair("ExportDays/365", AtMostTimesLimit(kMostTimesReadingAndWriting), Plan::few,
                 of(Export, 365), of(ReadAndWrite, 365));
  for (const std::size_t days : {std::size_t{3650}, std::size_t{7300}}) {
    report.AddPair("ExportDays/" + std::to_string(days), {}, Plan::few, of(Export, days),
                   of(ReadAndWrite, days));
  }
  report.AddPair("ExportDialog/7300", UnderMicroseconds(kMostMicroseconds), Plan::many,
                 of(OpenWindow, 7300), of(ReadFiles, 7300));
}

}  // namespace kelvora::bench
