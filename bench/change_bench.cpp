// A day of 150 foods with all its windows open, and what a key does to it: a food more, fifty
// pasted, a whole day taken over, that taken back, the button of what was eaten often. Everything
// but painting, against the re-totalling alone.
#include <QApplication>
#include <QPushButton>
#include <QTest>

#include "analysis/requirements.h"
#include "core/frame/arrangement.h"
#include "core/frame/main_window.h"
#include "days/take_over.h"
#include "food/consumption.h"
#include "food/consumption_moves.h"
#include "food_data.h"
#include "nutrition/totals.h"
#include "report.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/record_file.h"

namespace kelvora::bench {
namespace {

constexpr double kMostOfAChange = 1'000;  // microseconds, of one food
constexpr double kAtOnce = 16'000;        // one picture of the screen
constexpr int kDaysBefore = 60;

// Fifty foods in each part of the day. The targets are such that every bar can be drawn.
struct FullDay {
  TestProgram test;

  FullDay() {
    constexpr std::size_t kLinesPerPart = 50;
    test.OpenDay("Anna");
    const std::vector<Text> lines = SomeFoodLines(kDayParts.size() * kLinesPerPart);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      test.program.store.ListOf(kDayParts[i / kLinesPerPart]).Add(lines[i]);
    }
    for (std::size_t i = 0; i < kRequirementRows; ++i) {
      test.program.profile.strings[static_cast<std::size_t>(ProfileField::txt_kj) + i] = "1000";
    }
  }
};

void Show(MainWindow& window, Program& program) {
  window.resize(1024, 748);
  window.Set_Taal();
  window.show();
  ShowScreensWithSummary(program);
  QApplication::processEvents();
}

void Clear(KV_data& store) {
  for (const DayPart part : kDayParts) store.ListOf(part).Clear();
}

void ChangeOfTheDay(benchmark::State& state) {
  FullDay day;
  Program& program = day.test.program;
  MainWindow window(program);
  Show(window, program);
  const Text line(program.store.L_ochtend[0]);
  bool more = true;
  for (auto _ : state) {
    TextList& morning = program.store.L_ochtend;
    if (more) {
      morning.Add(line);
    } else {
      morning.Remove(morning.Count() - 1);
    }
    more = !more;
    RefreshAfterChange(program, DayPart::morning);
  }
  if (!day.test.boxes.shown.empty()) state.SkipWithError("the day was not added up");
}

void RetotalAlone(benchmark::State& state) {
  FullDay day;
  for (auto _ : state) Refresh_Totalen(day.test.program);
}

void Paste(benchmark::State& state) {
  FullDay day;
  Program& program = day.test.program;
  MainWindow window(program);
  Show(window, program);
  std::vector<std::size_t> rows(ConsumptionRows(program, DayPart::morning).size());
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = i;
  const ClipboardFoods foods = CopyFromDayPart(program, DayPart::morning, rows).foods;
  for (auto _ : state) {
    state.PauseTiming();
    program.store.L_avond.Clear();
    RefreshAfterChange(program, DayPart::evening);
    state.ResumeTiming();
    if (!PasteOnDayPart(program, DayPart::evening, foods)) state.SkipWithError("nothing pasted");
  }
}

void TakeOverDay(benchmark::State& state) {
  FullDay day;
  Program& program = day.test.program;
  MainWindow window(program);
  Show(window, program);
  DayFoods foods;
  for (const DayPart part : kDayParts) {
    for (const std::string_view line : program.store.ListOf(part)) {
      foods[static_cast<std::size_t>(part)].push_back({Text(line), 1, {}, {}, {}});
    }
  }
  for (auto _ : state) {
    state.PauseTiming();
    Clear(program.store);
    RefreshAllParts(program);
    state.ResumeTiming();
    if (!TakeOver(program, foods)) state.SkipWithError("nothing taken over");
  }
}

void UndoAndRedo(benchmark::State& state) {
  FullDay day;
  Program& program = day.test.program;
  MainWindow window(program);
  Show(window, program);
  Clear(program.store);
  RefreshAllParts(program);
  bool back = true;
  for (auto _ : state) {
    back ? UndoFoods(program) : RedoFoods(program);
    back = !back;
  }
  if (!program.day.undo.CanUndo() && !program.day.undo.CanRedo()) {
    state.SkipWithError("there was nothing to undo");
  }
}

void Often(benchmark::State& state) {
  FullDay day;
  Program& program = day.test.program;
  MakeUserFolders(program.paths, "Anna");
  SetCurrentUser(program, "Anna");
  // The sixty days before the open one, of 05-03-04, hold all that it holds.
  for (int i = 0; i < kDaysBefore; ++i) {
    const std::string date = std::to_string(10 + i % 19) + (i % 2 == 0 ? "-01-04" : "-02-04");
    program.store.L_gegevens.Replace(HeaderRow::kDate, date);
    WriteRecord(program.paths.FilesPath + std::to_string(i) + ".kvf", PackDay(program.store));
  }
  program.store.L_gegevens.Replace(HeaderRow::kDate, "05-03-04");
  MainWindow window(program);
  Show(window, program);
  QTest::qWait(500);  // the days are read
  auto* const button = window.findChild<QPushButton*>(QStringLiteral("cmd_often"));
  for (auto _ : state) button->click();
}

}  // namespace

void AddChangeBenchmarks(Report& report) {
  report.AddPair("change/150", UnderMicroseconds(kMostOfAChange), Plan::many, ChangeOfTheDay,
                 RetotalAlone);
  report.AddPair("paste/50", UnderMicroseconds(kAtOnce), Plan::few, Paste, RetotalAlone);
  report.AddPair("take_over/150", UnderMicroseconds(kAtOnce), Plan::few, TakeOverDay, RetotalAlone);
  report.AddPair("undo/150", UnderMicroseconds(kAtOnce), Plan::many, UndoAndRedo, RetotalAlone);
  report.AddPair("often/60", UnderMicroseconds(kAtOnce), Plan::few, Often, RetotalAlone);
}

}  // namespace kelvora::bench
