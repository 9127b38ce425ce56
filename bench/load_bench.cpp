// Loading the category files. Memory is fresh on both sides: what an earlier repetition used went
// back to the system before.
#include <array>
#include <cstring>
#include <malloc.h>
#include <memory>

#include "food_data.h"
#include "peak_memory.h"
#include "plain_file.h"
#include "report.h"
#include "storage/food_files.h"

namespace kelvora::bench {
namespace {

constexpr double kMostTimesReading = 4;
constexpr double kMostTimesBytes = 2.5;

void Load(benchmark::State& state, std::size_t lines) {
  TestProgram test;
  test.program.paths.ProgramPath = FoodSetOf(lines).program_path;
  malloc_trim(0);
  for (auto _ : state) Load_Databases(test.program);
  if (!test.boxes.shown.empty() || test.program.store.Default_list.Count() != lines) {
    state.SkipWithError("the foods did not load");
  }
}

// Reads each file into a buffer and copies it to where it stays.
void ReadAndCopy(benchmark::State& state, std::size_t lines) {
  const FoodSet& set = FoodSetOf(lines);
  std::unique_ptr<char[]> buffer, memory;
  std::size_t copied = 0;
  malloc_trim(0);
  for (auto _ : state) {
    buffer = std::make_unique_for_overwrite<char[]>(set.largest_file);
    memory = std::make_unique_for_overwrite<char[]>(set.bytes);
    for (const FoodFile& file : set.files) {
      const std::size_t size = ReadThroughLibrary(file.path, {buffer.get(), set.largest_file});
      std::memcpy(memory.get() + copied, buffer.get(), size);
      copied += size;
    }
    benchmark::DoNotOptimize(memory.get());
    benchmark::ClobberMemory();
  }
  if (copied != set.bytes) state.SkipWithError("the files were not read whole");
}

void Peak(benchmark::State& state, std::size_t lines) {
  const FoodSet& set = FoodSetOf(lines);
  for (auto _ : state) {
    state.counters[kBytesCounter] = static_cast<double>(PeakOfLoading(set.program_path));
  }
}

void BytesOfFiles(benchmark::State& state, std::size_t lines) {
  const FoodSet& set = FoodSetOf(lines);
  for (auto _ : state) state.counters[kBytesCounter] = static_cast<double>(set.bytes);
}

}  // namespace

void AddLoadBenchmarks(Report& report) {
  const auto of = [](void (*body)(benchmark::State&, std::size_t), std::size_t lines) {
    return [=](benchmark::State& state) { body(state, lines); };
  };
  const std::array sizes = {Foods().size(), std::size_t{100'000}, std::size_t{1'000'000}};
  for (const std::size_t lines : sizes) {
    report.AddPair("Load_Databases/" + std::to_string(lines), AtMostTimesLimit(kMostTimesReading),
                   Plan::one, of(Load, lines), of(ReadAndCopy, lines));
  }
  for (const std::size_t lines : sizes) {
    report.AddPair("Load_Databases/" + std::to_string(lines) + "/memory",
                   AtMostTimesLimit(kMostTimesBytes), Plan::one, of(Peak, lines),
                   of(BytesOfFiles, lines));
  }
}

}  // namespace kelvora::bench
