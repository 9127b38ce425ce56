// Benchmarks in pairs: a routine of the program and its limit, the least that this machine needs
// for the same bytes, measured in the same process. The least time of several repetitions counts on
// both sides, since everything else that runs on a machine only ever adds to it; of memory the
// most.
//
// A benchmark measures seconds an iteration or, if it sets kBytesCounter, bytes of memory.
#pragma once

#include <benchmark/benchmark.h>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace kelvora::bench {

inline constexpr const char* kBytesCounter = "bytes";

// What a measurement should reach.
struct Reach {
  enum class Kind { none, times_limit, microseconds, faster_than };
  Kind kind = Kind::none;
  double bound = 0;   // of times_limit and microseconds
  std::string other;  // of faster_than: the name of another pair
};

[[nodiscard]] Reach AtMostTimesLimit(double times);
[[nodiscard]] Reach UnderMicroseconds(double microseconds);
[[nodiscard]] Reach FasterThan(std::string other);

// How a benchmark is repeated.
enum class Plan {
  many,  // repetitions of as many iterations as fill 50 ms
  few,   // repetitions of a few iterations, for what leaves traces that slow down the next ones
  one,   // repetitions of one iteration, for what needs fresh memory each time or takes seconds
};

class Report {
 public:
  using Body = std::function<void(benchmark::State&)>;

  void AddPair(const std::string& name, Reach reach, Plan plan, Body measured, Body limit);

  // Runs what the command line selects and prints the table of pairs, as Markdown, to the standard
  // output. Returns the exit status: 1 if a benchmark failed. A reach that is not met is no
  // failure.
  int Run(int argc, char** argv);

 private:
  class Collector;
  struct Pair {
    std::string name;
    Reach reach;
  };
  struct Value {
    double amount = 0;  // seconds or bytes
    bool is_bytes = false;
  };

  void PrintTable() const;
  [[nodiscard]] const Value* Find(const std::string& name) const;
  [[nodiscard]] std::string ReachText(const Pair& pair) const;
  [[nodiscard]] std::string MetText(const Pair& pair, const Value& measured,
                                    const Value& limit) const;

  std::vector<Pair> pairs_;
  std::map<std::string, Value> values_;
  std::set<std::string> failed_;
};

// One function for each file of benchmarks.
void AddLoadBenchmarks(Report& report);
void AddSearchBenchmarks(Report& report);
void AddDayBenchmarks(Report& report);
void AddBrowseBenchmarks(Report& report);
void AddYearsBenchmarks(Report& report);
void AddExportBenchmarks(Report& report);
void AddCountBenchmarks(Report& report);
void AddNumberBenchmarks(Report& report);
void AddPrintBenchmarks(Report& report);
void AddLargeBenchmarks(Report& report);
void AddBackupBenchmarks(Report& report);
void AddImportBenchmarks(Report& report);
// Of the windows.
void AddInternetBenchmarks(Report& report);
void AddChangeBenchmarks(Report& report);

}  // namespace kelvora::bench
