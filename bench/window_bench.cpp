// The food lists window with all its models and layouts, apart from painting: opening it, a letter
// in the search box, a switch of views and a click on a heading. The limit is the same routine of
// the lists alone, without a window; of the switch, which asks the lists for nothing, an empty
// event. The window stands in no main window and is drawn on no screen.
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

#include "food/food_lists.h"
#include "food/food_lists_window.h"
#include "food_data.h"
#include "report.h"

namespace kelvora::bench {
namespace {

constexpr std::size_t kMillion = 1'000'000;
constexpr double kAtOnce = 16'000;           // microseconds: one picture of the screen
constexpr double kWithoutWaiting = 150'000;  // what still feels like an answer

// The own list is as long as the standard list, so that two long views are switched between.
Program& ProgramWithOwnList(std::size_t lines) {
  Program& program = ProgramWith(lines);
  program.store.Custom_list = program.store.Default_list;
  return program;
}

void WithoutOwnList(Program& program) {
  program.store.Custom_list.Clear();
}

void Open(benchmark::State& state, std::size_t lines) {
  Program& program = ProgramWith(lines);
  WithoutOwnList(program);
  for (auto _ : state) {
    auto* const window = new FoodListsWindow(program, nullptr);
    window->resize(410, 600);
    window->show();
    QApplication::processEvents();
    state.PauseTiming();
    delete window;
    state.ResumeTiming();
  }
}

void OpenLists(benchmark::State& state, std::size_t lines) {
  Program& program = ProgramWith(lines);
  WithoutOwnList(program);
  for (auto _ : state) {
    FoodLists lists(program);
    benchmark::DoNotOptimize(lists.Toon_Standaardlijst());
  }
}

// "e" stands at the front of some names only; the whole list is found by its category files.
void Type(benchmark::State& state, std::size_t lines, Qt::Key key, const char* text) {
  Program& program = ProgramWith(lines);
  WithoutOwnList(program);
  FoodListsWindow window(program, nullptr);
  window.show();
  auto* const search = window.findChild<QLineEdit*>(QStringLiteral("txt_zoeken"));
  for (auto _ : state) {
    state.PauseTiming();
    search->setText(QLatin1String(text));
    search->deselect();
    search->end(false);
    state.ResumeTiming();
    QTest::keyClick(search, key);
  }
}

void Switch(benchmark::State& state, std::size_t lines) {
  FoodListsWindow window(ProgramWithOwnList(lines), nullptr);
  window.show();
  auto* const own = window.findChild<QToolButton*>(QStringLiteral("Toolbar_2"));
  auto* const standard = window.findChild<QToolButton*>(QStringLiteral("Toolbar_1"));
  bool to_own = true;
  for (auto _ : state) {
    (to_own ? own : standard)->click();
    to_own = !to_own;
  }
}

void SortWindow(benchmark::State& state, std::size_t lines, std::size_t column) {
  FoodListsWindow window(ProgramWithOwnList(lines), nullptr);
  window.show();
  auto* const list = window.findChild<FoodTable*>(QStringLiteral("LV_browse_eigen"));
  for (auto _ : state) {
    emit list->horizontalHeader()->sectionClicked(static_cast<int>(column));
  }
}

void SortLists(benchmark::State& state, std::size_t lines, std::size_t column) {
  FoodLists lists(ProgramWithOwnList(lines));
  for (auto _ : state) lists.SortByColumn(FoodView::own, column);
}

void EmptyEvent(benchmark::State& state) {
  QLineEdit box;
  for (auto _ : state) QTest::keyClick(&box, Qt::Key_Shift);
}

void AddBenchmarks(Report& report, std::size_t lines, double bound) {
  const std::string size = "/" + std::to_string(lines);
  using benchmark::State;
  report.AddPair(
      "open" + size, UnderMicroseconds(bound), Plan::few, [=](State& state) { Open(state, lines); },
      [=](State& state) { OpenLists(state, lines); });
  const auto search = [lines](auto listing) {
    return [lines, listing](State& state) {
      FoodLists lists(ProgramWith(lines));
      for (auto _ : state) listing(lists);
    };
  };
  report.AddPair(
      "typing" + size, UnderMicroseconds(bound), Plan::few,
      [=](State& state) { Type(state, lines, Qt::Key_E, "che"); },
      search([](FoodLists& lists) { lists.SearchPrefix("chee"); }));
  report.AddPair(
      "enter" + size, UnderMicroseconds(bound), Plan::few,
      [=](State& state) { Type(state, lines, Qt::Key_Return, ".dat"); },
      search([](FoodLists& lists) { lists.Zoek_In_Lijsten(".dat"); }));
  report.AddPair(
      "switch" + size, UnderMicroseconds(bound), Plan::few,
      [=](State& state) { Switch(state, lines); }, EmptyEvent);
  for (const auto& [name, column] :
       {std::pair("name", 1u), std::pair("weight", 3u), std::pair("energy", 4u)}) {
    report.AddPair(
        std::string("sort/") + name + size, Reach(), Plan::few,
        [=, column = column](State& state) { SortWindow(state, lines, column); },
        [=, column = column](State& state) { SortLists(state, lines, column); });
  }
}

}  // namespace
}  // namespace kelvora::bench

int main(int argc, char** argv) {
  using namespace kelvora::bench;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  Report report;
  AddBenchmarks(report, Foods().size(), kAtOnce);
  AddBenchmarks(report, kMillion, kWithoutWaiting);
  AddChangeBenchmarks(report);
  AddInternetBenchmarks(report);
  return report.Run(argc, argv);
}
