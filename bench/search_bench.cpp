// Searching a million foods. The limit is one copy of the bytes of all lines. Memory is used again
// on both sides: the list of results has held results before, and the copy goes where one lay.
#include <array>
#include <cstring>

#include "food/food_lists.h"
#include "food_data.h"
#include "report.h"

namespace kelvora::bench {
namespace {

constexpr std::size_t kLines = 1'000'000;
constexpr double kMostTimesCopy = 4;

struct Needle {
  const char* kind;
  std::string_view text;
};

constexpr std::array kNeedles = {
    Needle{"rare", "persimmon"},   Needle{"common", "beef"}, Needle{"accented", "EnTRÉe"_w},
    Needle{"missing", "quixotic"}, Needle{"letter", "e"},
};

void Search(benchmark::State& state, std::string_view needle) {
  FoodLists lists(ProgramWith(kLines));
  lists.Zoek_In_Lijsten(needle);
  for (auto _ : state) benchmark::DoNotOptimize(lists.Zoek_In_Lijsten(needle));
  state.counters["found"] = static_cast<double>(lists.Count(FoodView::standard));
}

void SearchPrefix(benchmark::State& state, std::string_view needle) {
  FoodLists lists(ProgramWith(kLines));
  lists.SearchPrefix(needle);
  for (auto _ : state) {
    lists.SearchPrefix(needle);
    benchmark::ClobberMemory();
  }
  state.counters["found"] = static_cast<double>(lists.Count(FoodView::standard));
}

struct CopyRoom {
  std::string from, to;
};

// The bytes of all lines in one piece, and room that they were copied to before.
CopyRoom& BytesOfAllLines() {
  static CopyRoom room = [] {
    std::string bytes;
    for (const std::string_view line : ProgramWith(kLines).store.Default_list) bytes += line;
    return CopyRoom{bytes, bytes};
  }();
  return room;
}

void Copy(benchmark::State& state) {
  CopyRoom& room = BytesOfAllLines();
  for (auto _ : state) {
    std::memcpy(room.to.data(), room.from.data(), room.from.size());
    benchmark::DoNotOptimize(room.to.data());
    benchmark::ClobberMemory();
  }
}

}  // namespace

void AddSearchBenchmarks(Report& report) {
  for (const auto& [kind, text] : kNeedles) {
    const std::string_view needle = text;
    const std::string anywhere = std::string("Zoek_In_Lijsten/") + kind;
    report.AddPair(
        anywhere, AtMostTimesLimit(kMostTimesCopy), Plan::many,
        [needle](benchmark::State& state) { Search(state, needle); }, Copy);
    report.AddPair(
        std::string("SearchPrefix/") + kind, FasterThan(anywhere), Plan::many,
        [needle](benchmark::State& state) { SearchPrefix(state, needle); }, Copy);
  }
}

}  // namespace kelvora::bench
