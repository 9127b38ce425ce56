#include <cstdio>
#include <exception>
#include <string_view>

#include "peak_memory.h"
#include "report.h"

int main(int argc, char** argv) {
  using namespace kelvora::bench;
  try {
    if (argc == 3 && argv[1] == std::string_view(kMeasurePeak)) return MeasurePeak(argv[2]);
    Report report;
    // What is small comes first: what a million foods leave behind in memory and on the disk's
    // journal would be added to both sides of it.
    AddDayBenchmarks(report);
    AddCountBenchmarks(report);
    AddNumberBenchmarks(report);
    AddLoadBenchmarks(report);
    AddSearchBenchmarks(report);
    return report.Run(argc, argv);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "kelvora_bench: %s\n", failure.what());
    return 1;
  }
}
