// Day files of 100 megabytes, far beyond what a person writes: one huge text, and very many small
// lines. Memory is fresh on both sides.
#include <malloc.h>
#include <memory>

#include "plain_file.h"
#include "report.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora::bench {
namespace {

constexpr std::size_t kSize = 100'000'000;
constexpr double kMostMicroseconds = 1'000'000;
constexpr std::string_view kFileName = "05032004140709.kvf";

Text HeaderWithAHugeWeekday() {
  return Text(HeaderRow::kWeekday, kLineEnd) + Text(kSize, 'x') + kLineEnd;
}

Text PartOfSmallLines() {
  constexpr std::string_view kLine = "water\xBD\xBE";
  Text part;
  part.reserve(kSize);
  while (part.size() + kLine.size() <= kSize) part += kLine;
  return part;
}

struct LargeDay {
  TestProgram test;
  std::string folder, path;

  LargeDay(DayFileField field, const Text& content) {
    test.OpenDay("Anna", kFileName);
    CloseDay(test.program);
    folder = UserFolder(test.program.paths, "Anna") + "Files/";
    path = folder + std::string(kFileName);
    Rec_DayFile record;
    record[field] = content;
    WriteRecord(path, record);
  }
};

void Load(benchmark::State& state, DayFileField field, Text (*content)()) {
  LargeDay day(field, content());
  malloc_trim(0);
  for (auto _ : state) LoadDay(day.test.program, day.folder, kFileName);
  if (!day.test.boxes.shown.empty() || !day.test.program.store.DayIsOpen()) {
    state.SkipWithError("the day did not load");
  }
}

void ReadTheFile(benchmark::State& state, DayFileField field, Text (*content)()) {
  const LargeDay day(field, content());
  constexpr std::size_t kBuffer = kSize + 1'000;
  std::unique_ptr<char[]> buffer;
  std::size_t bytes = 0;
  malloc_trim(0);
  for (auto _ : state) {
    buffer = std::make_unique_for_overwrite<char[]>(kBuffer);
    bytes = ReadPlain(day.path, {buffer.get(), kBuffer});
    benchmark::DoNotOptimize(buffer.get());
  }
  if (bytes < kSize - 100) state.SkipWithError("the file was not read whole");
}

}  // namespace

void AddLargeBenchmarks(Report& report) {
  const auto add = [&report](const std::string& name, DayFileField field, Text (*content)()) {
    const auto of = [=](void (*body)(benchmark::State&, DayFileField, Text(*)())) {
      return [=](benchmark::State& state) { body(state, field, content); };
    };
    report.AddPair("LoadDay/100 MB " + name, UnderMicroseconds(kMostMicroseconds), Plan::one,
                   of(Load), of(ReadTheFile));
  };
  add("weekday", DayFileField::Header, HeaderWithAHugeWeekday);
  add("of small lines", DayFileField::Morning, PartOfSmallLines);
}

}  // namespace kelvora::bench
