#include "report.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace kelvora::bench {
namespace {

constexpr const char* kLimitEnding = "/limit";

std::string Print(const char* format, double value) {
  std::string text(64, '\0');
  text.resize(static_cast<std::size_t>(std::snprintf(text.data(), text.size(), format, value)));
  return text;
}

struct Unit {
  double size;
  const char* name;
};

// The value in the largest of the units that leaves at least one before the point.
std::string InUnits(double amount, std::initializer_list<Unit> largest_first) {
  for (const auto& [size, name] : largest_first) {
    if (amount < size && size != std::prev(largest_first.end())->size) continue;
    const double value = amount / size;
    return Print(value < 10 ? "%.2f" : value < 100 ? "%.1f" : "%.0f", value) + " " + name;
  }
  return {};
}

std::string TimeText(double seconds) {
  return InUnits(seconds, {{1, "s"}, {1e-3, "ms"}, {1e-6, "µs"}, {1e-9, "ns"}});
}

std::string BytesText(double bytes) {
  return InUnits(bytes, {{1e6, "MB"}, {1e3, "kB"}, {1, "B"}});
}

}  // namespace

Reach AtMostTimesLimit(double times) {
  return {.kind = Reach::Kind::times_limit, .bound = times, .other = {}};
}

Reach UnderMicroseconds(double microseconds) {
  return {.kind = Reach::Kind::microseconds, .bound = microseconds, .other = {}};
}

Reach FasterThan(std::string other) {
  return {.kind = Reach::Kind::faster_than, .bound = 0, .other = std::move(other)};
}

// Keeps the value that counts of each benchmark and prints it as it comes.
class Report::Collector : public benchmark::BenchmarkReporter {
 public:
  explicit Collector(Report& report) : report_(report) {}

  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.error_occurred) {
        std::printf("%s FAILED: %s\n", run.run_name.function_name.c_str(),
                    run.error_message.c_str());
        report_.failed_.insert(run.run_name.function_name);
        return;
      }
    }
    const Run* first = nullptr;
    Value counts;
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      const auto bytes = run.counters.find(kBytesCounter);
      const bool is_bytes = bytes != run.counters.end();
      const double amount = is_bytes
                                ? bytes->second.value
                                : run.real_accumulated_time / static_cast<double>(run.iterations);
      const bool better = is_bytes ? amount > counts.amount : amount < counts.amount;
      if (first == nullptr || better) counts = {amount, is_bytes};
      if (first == nullptr) first = &run;
    }
    if (first == nullptr) return;
    const std::string& name = first->run_name.function_name;
    report_.values_[name] = counts;
    std::printf("%-45s %10s  %s of %ld", name.c_str(),
                (counts.is_bytes ? BytesText(counts.amount) : TimeText(counts.amount)).c_str(),
                counts.is_bytes ? "most" : "least", static_cast<long>(first->repetitions));
    for (const auto& [counter, value] : first->counters) {
      if (counter != kBytesCounter) std::printf(", %s %.0f", counter.c_str(), value.value);
    }
    std::puts("");
    std::fflush(stdout);
  }

 private:
  Report& report_;
};

void Report::AddPair(const std::string& name, Reach reach, Plan plan, Body measured, Body limit) {
  for (auto& [full_name, body] :
       {std::pair(name, std::move(measured)), std::pair(name + kLimitEnding, std::move(limit))}) {
    auto* const entry =
        benchmark::RegisterBenchmark(full_name.c_str(), body)->UseRealTime()->Repetitions(12);
    switch (plan) {
      case Plan::many:
        entry->MinTime(0.05);
        break;
      case Plan::few:
        entry->Iterations(5);
        break;
      case Plan::one:
        entry->Iterations(1);
        break;
    }
  }
  pairs_.push_back({name, std::move(reach)});
}

int Report::Run(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  Collector collector(*this);
  benchmark::RunSpecifiedBenchmarks(&collector);
  PrintTable();
  return failed_.empty() ? 0 : 1;
}

const Report::Value* Report::Find(const std::string& name) const {
  const auto found = values_.find(name);
  return found == values_.end() ? nullptr : &found->second;
}

std::string Report::ReachText(const Pair& pair) const {
  switch (pair.reach.kind) {
    case Reach::Kind::times_limit:
      return "at most " + Print("%g", pair.reach.bound) + " times";
    case Reach::Kind::microseconds:
      return "under " + TimeText(pair.reach.bound * 1e-6);
    case Reach::Kind::faster_than:
      return "faster than `" + pair.reach.other + "`";
    case Reach::Kind::none:
      break;
  }
  return "none set";
}

std::string Report::MetText(const Pair& pair, const Value& measured, const Value& limit) const {
  const auto yes_or_no = [](bool met) { return met ? "met" : "**not met**"; };
  switch (pair.reach.kind) {
    case Reach::Kind::times_limit:
      return yes_or_no(measured.amount <= pair.reach.bound * limit.amount);
    case Reach::Kind::microseconds:
      return yes_or_no(measured.amount * 1e6 < pair.reach.bound);
    case Reach::Kind::faster_than: {
      const Value* const other = Find(pair.reach.other);
      return other == nullptr ? "not measured" : yes_or_no(measured.amount < other->amount);
    }
    case Reach::Kind::none:
      break;
  }
  return "";
}

void Report::PrintTable() const {
  std::puts("\n| what | measured | limit | ratio | reach | met |\n|---|---:|---:|---:|---|---|");
  for (const Pair& pair : pairs_) {
    if (failed_.contains(pair.name) || failed_.contains(pair.name + kLimitEnding)) {
      std::printf("| `%s` | **failed** | | | %s | |\n", pair.name.c_str(), ReachText(pair).c_str());
      continue;
    }
    const Value* const measured = Find(pair.name);
    const Value* const limit = Find(pair.name + kLimitEnding);
    if (measured == nullptr || limit == nullptr) continue;
    const auto print = measured->is_bytes ? BytesText : TimeText;
    std::printf("| `%s` | %s | %s | %.2f | %s | %s |\n", pair.name.c_str(),
                print(measured->amount).c_str(), print(limit->amount).c_str(),
                measured->amount / limit->amount, ReachText(pair).c_str(),
                MetText(pair, *measured, *limit).c_str());
  }
}

}  // namespace kelvora::bench
