// A page to the spooler: everything from the command to the moment at which the printing system has
// taken it over, with a real one of its own. The limit is an empty page on the same way. What is on
// the page costs the difference.
#include <stdexcept>
#include <thread>

#include <QProcess>

#include "food_data.h"
#include "output/printing.h"
#include "platform/qt/cups_printers.h"
#include "report.h"

namespace kelvora::bench {
namespace {

using namespace std::chrono_literals;

constexpr std::size_t kFoods = 40;
constexpr double kMostOfAPage = 300'000;  // microseconds

// Keeps what it prints in a folder of its own.
class PrintServer {
 public:
  PrintServer() {
    qputenv("CUPS_SERVER", folder_.Path("socket").c_str());
    process_.start(QStringLiteral("python3"),
                   {QStringLiteral(KELVORA_PRINT_SERVER), QString::fromStdString(folder_.Path())});
    constexpr int kLooks = 1000;
    for (int look = 0; look < kLooks; ++look) {
      if (!printers.Names().empty()) return;
      std::this_thread::sleep_for(10ms);
    }
    throw std::runtime_error("no printing system came up");
  }
  ~PrintServer() {
    process_.terminate();
    process_.waitForFinished();
  }
  PrintServer(const PrintServer&) = delete;
  PrintServer& operator=(const PrintServer&) = delete;

  CupsPrinters printers;

 private:
  TemporaryFolder folder_;
  QProcess process_;
};

void PrintDay(benchmark::State& state) {
  PrintServer server;
  TestProgram test;
  Platform platform{test.boxes,      test.pointer,    test.locale,         test.folders,
                    test.clock,      test.screen,     test.events,         test.opener,
                    server.printers, server.printers, test.folder_chooser, test.transfers};
  Program program(platform);
  program.settings[Setting::combo_printer] = "A3";
  program.settings[Setting::opt_system] = "0";
  test.OpenDay("Anna");
  program.store.L_gegevens = test.program.store.L_gegevens;
  for (const Text& line : SomeFoodLines(kFoods)) program.store.L_ochtend.Add(line);
  for (auto _ : state) Print_Day(program);
  if (!test.boxes.shown.empty()) state.SkipWithError("the day was not printed");
}

void PrintEmptyPage(benchmark::State& state) {
  PrintServer server;
  for (auto _ : state) {
    benchmark::DoNotOptimize(server.printers.Names());
    const Sheet sheet = server.printers.SheetOf("A3");
    server.printers.Print({.printer = "A3", .title = "Empty", .sheet = sheet, .page = {}});
  }
}

}  // namespace

void AddPrintBenchmarks(Report& report) {
  report.AddPair("Print_Day/" + std::to_string(kFoods), UnderMicroseconds(kMostOfAPage), Plan::few,
                 PrintDay, PrintEmptyPage);
}

}  // namespace kelvora::bench
