// One full day: 150 foods, fifty in each part. Memory is used again on both sides; the plain files
// lie in the same folder as the day.
#include <array>
#include <charconv>
#include <utility>

#include "food_data.h"
#include "nutrition/totals.h"
#include "plain_file.h"
#include "report.h"
#include "storage/day_file.h"
#include "storage/record_file.h"

namespace kelvora::bench {
namespace {

constexpr std::size_t kLinesPerPart = 50;
constexpr double kMostTimesPlainFile = 3;
constexpr double kMostMicroseconds = 100;
constexpr std::string_view kFileName = "05032004140709.kvf";

// An open window that takes its totals and draws nothing.
struct OpenConsumption : ConsumptionView {
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_Consumpties() override {}
  void ShowTotals(const ConsumptionTotals& totals) override { benchmark::DoNotOptimize(&totals); }
};

struct FullDay {
  TestProgram test;
  std::array<OpenConsumption, 3> windows;
  std::string folder;  // of the day's file

  FullDay() {
    test.OpenDay("Zoë"_w, kFileName);
    folder = UserFolder(test.program.paths, "Zoë"_w) + "Files/";
    const std::vector<Text> lines = SomeFoodLines(kDayParts.size() * kLinesPerPart);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      test.program.store.ListOf(kDayParts[i / kLinesPerPart]).Add(lines[i]);
    }
    for (const DayPart part : kDayParts) {
      test.program.windows.Consumption(part) = &windows[static_cast<std::size_t>(part)];
    }
    Refresh_Totalen(test.program);
    SaveDay(test.program);
  }

  [[nodiscard]] std::string Path() const { return folder + std::string(kFileName); }
  // No box was shown, so nothing failed, and the day is whole.
  [[nodiscard]] bool IsGood() const {
    const KV_data& store = test.program.store;
    return test.boxes.shown.empty() && store.L_ochtend.Count() == kLinesPerPart &&
           store.L_middag.Count() == kLinesPerPart && store.L_avond.Count() == kLinesPerPart;
  }
};

void Save(benchmark::State& state) {
  FullDay day;
  for (auto _ : state) SaveDay(day.test.program);
  if (!day.IsGood()) state.SkipWithError("the day was not saved");
}

void Load(benchmark::State& state) {
  FullDay day;
  for (auto _ : state) LoadDay(day.test.program, day.folder, kFileName);
  if (!day.IsGood()) state.SkipWithError("the day was not loaded");
}

void WriteSameBytes(benchmark::State& state) {
  const FullDay day;
  const std::string bytes = ReadFile(day.Path());
  const std::string path = day.folder + "plain";
  for (auto _ : state) WritePlain(path, bytes);
  if (ReadFile(path) != bytes) state.SkipWithError("the bytes were not written");
}

void ReadSameBytes(benchmark::State& state) {
  const FullDay day;
  std::string buffer = ReadFile(day.Path());
  const std::size_t size = buffer.size();
  std::size_t count = 0;
  for (auto _ : state) {
    count = ReadPlain(day.Path(), buffer);
    benchmark::ClobberMemory();
  }
  if (count != size) state.SkipWithError("the bytes were not read");
}

void Refresh(benchmark::State& state) {
  FullDay day;
  for (auto _ : state) {
    Refresh_Totalen(day.test.program);
    benchmark::ClobberMemory();
  }
  if (!day.IsGood()) state.SkipWithError("the totals failed");
}

// One pass over the bytes of the day's lines that reads the eight numbers of each.
void ReadNumbersOnce(benchmark::State& state) {
  FullDay day;
  std::string bytes;
  for (const DayPart part : kDayParts) {
    bytes += PackBlock(std::as_const(day.test.program.store).ListOf(part));
  }
  float sum = 0;
  for (auto _ : state) {
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    std::size_t field = 0;
    while (at != end) {
      if (field >= FoodField::kGram && field <= FoodField::kSodium) {
        float value = 0;
        at = std::from_chars(at, end, value).ptr;
        sum += value;
      }
      while (*at != kFieldEnd) ++at;
      ++at;
      ++field;
      if (*at != kLineEnd) continue;
      ++at;
      field = 0;
    }
    benchmark::DoNotOptimize(sum);
    sum = 0;
  }
}

}  // namespace

void AddDayBenchmarks(Report& report) {
  // Few, since ext4 leaves recently deleted inodes alone for a minute or more: after thousands of
  // deletes each new file waits for a search past them, on both sides alike.
  report.AddPair("SaveDay", AtMostTimesLimit(kMostTimesPlainFile), Plan::few, Save, WriteSameBytes);
  report.AddPair("LoadDay", AtMostTimesLimit(kMostTimesPlainFile), Plan::many, Load, ReadSameBytes);
  report.AddPair("Refresh_Totalen", UnderMicroseconds(kMostMicroseconds), Plan::many, Refresh,
                 ReadNumbersOnce);
}

}  // namespace kelvora::bench
