// Counting equal lines. The limit hashes the bytes of each line once. Memory is used again on both
// sides.
#include <functional>

#include "core/store.h"
#include "food_data.h"
#include "report.h"

namespace kelvora::bench {
namespace {

constexpr std::size_t kManyLines = 100'000;

// The lines that are counted, made when they are first asked for.
using Lines = const TextList& (*)();

const TextList& LinesOfDay() {
  static const TextList list = [] {
    TextList lines;
    for (const Text& line : SomeFoodLines(150)) lines.Add(line);
    return lines;
  }();
  return list;
}

const TextList& RepeatedLines() {
  static const TextList list = [] {
    const TextList& foods = ProgramWith(Foods().size()).store.Default_list;
    TextList lines;
    for (std::size_t i = 0; i < kManyLines; ++i) lines.Add(foods[i % foods.Count()]);
    return lines;
  }();
  return list;
}

const TextList& DifferentLines() {
  return ProgramWith(kManyLines).store.Default_list;
}

void Count(benchmark::State& state, Lines lines) {
  const TextList& list = lines();
  TextList distinct, counts;
  CountEqualLines(list, distinct, counts);
  for (auto _ : state) {
    CountEqualLines(list, distinct, counts);
    benchmark::ClobberMemory();
  }
  if (distinct.Empty()) state.SkipWithError("nothing was counted");
}

void Hash(benchmark::State& state, Lines lines) {
  const TextList& list = lines();
  for (auto _ : state) {
    std::size_t all = 0;
    for (const std::string_view line : list) all ^= std::hash<std::string_view>()(line);
    benchmark::DoNotOptimize(all);
  }
}

}  // namespace

void AddCountBenchmarks(Report& report) {
  const auto add = [&report](const std::string& name, Lines lines) {
    report.AddPair(
        "CountEqualLines/" + name, {}, Plan::many,
        [lines](benchmark::State& state) { Count(state, lines); },
        [lines](benchmark::State& state) { Hash(state, lines); });
  };
  add("150", LinesOfDay);
  add(std::to_string(kManyLines) + "/repeated", RepeatedLines);
  add(std::to_string(kManyLines) + "/different", DifferentLines);
}

}  // namespace kelvora::bench
