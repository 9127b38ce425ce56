#include <cstdio>
#include <exception>
#include <string_view>

#include <QApplication>

#include "peak_memory.h"
#include "report.h"

int main(int argc, char** argv) {
  using namespace kelvora::bench;
  try {
    if (argc == 3 && argv[1] == std::string_view(kMeasurePeak)) return MeasurePeak(argv[2]);
    // Windows are drawn, but on no screen; what such a screen can't do is not worth a line each.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "default.warning=false");
    const QApplication application(argc, argv);
    Report report;
    // What is small comes first: what a million foods leave behind in memory and on the disk's
    // journal would be added to both sides of it.
    AddDayBenchmarks(report);
    AddCountBenchmarks(report);
    AddBrowseBenchmarks(report);
    AddYearsBenchmarks(report);
    AddExportBenchmarks(report);
    AddBackupBenchmarks(report);
    AddNumberBenchmarks(report);
    AddPrintBenchmarks(report);
    AddLoadBenchmarks(report);
    AddSearchBenchmarks(report);
    AddLargeBenchmarks(report);
    AddImportBenchmarks(report);
    return report.Run(argc, argv);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "kelvora_bench: %s\n", failure.what());
    return 1;
  }
}
