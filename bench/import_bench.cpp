// Bringing tables of foods in: whole imports, from the file to the synced categories. The large
// table has the form of that of Open Food Facts, with made-up content: two hundred columns, most of
// them empty, two kilobytes a row.
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "food/import/importing.h"
#include "plain_file.h"
#include "report.h"
#include "storage/disk.h"
#include "support/test_program.h"

namespace kelvora::bench {
namespace {

constexpr double kMostTimesPlainLoop = 4;
constexpr std::size_t kLargeRows = 150'000;

const ImportProgress kGoOn = [](std::uint64_t, std::uint64_t) { return true; };

// The columns that count, among as many others as such a table has.
const std::vector<std::string>& LargeHeader() {
  static const std::vector<std::string> header = [] {
    std::vector<std::string> names = {"code", "url", "creator"};
    const auto add_others = [&names](int count) {
      for (int i = 0; i < count; ++i) names.push_back("other_" + std::to_string(names.size()));
    };
    for (const char* name :
         {"product_name", "generic_name", "brands", "countries_en", "serving_size",
          "serving_quantity", "pnns_groups_1", "completeness", "energy-kj_100g", "energy-kcal_100g",
          "energy_100g", "fat_100g", "saturated-fat_100g", "monounsaturated-fat_100g",
          "polyunsaturated-fat_100g", "carbohydrates_100g", "proteins_100g", "salt_100g",
          "sodium_100g"}) {
      names.emplace_back(name);
      add_others(9);
    }
    return names;
  }();
  return header;
}

std::string LargeCell(const std::string& column, std::size_t row) {
  const std::string number = std::to_string(row);
  const auto amount = [&](std::size_t most) {
    return std::to_string(row * 7 % most) + "." + std::to_string(row % 10);
  };
  if (column == "code") return "30" + std::to_string(10'000'000'000 + row);
  if (column == "product_name") return "Something with chocolate and nuts " + number;
  if (column == "brands") return "Maker " + std::to_string(row % 5000);
  if (column == "countries_en") return row % 3 == 0 ? "France" : "Netherlands,Belgium";
  if (column == "serving_size") return "30 g";
  if (column == "serving_quantity") return "30";
  if (column == "pnns_groups_1") return "Group " + std::to_string(row % 12);
  if (column == "completeness") return "0.6875";
  if (column == "energy-kcal_100g") return amount(600);
  if (column == "energy_100g") return amount(2500);
  if (column == "url") return "https://example.org/product/" + number + "/something-with-chocolate";
  if (column.ends_with("_100g") && column != "energy-kj_100g") return amount(60);
  // Every other of the rest is empty.
  if (column.ends_with('1') || column.ends_with('5')) return {};
  return row % 2 == 0 ? "en:some-words,en:others" : "x";
}

struct LargeTable {
  TemporaryFolder folder;
  std::string path;
  std::size_t size = 0;
};

const LargeTable& Large() {
  static const std::unique_ptr<LargeTable> large = [] {
    auto table = std::make_unique<LargeTable>();
    table->path = table->folder.Path("products.csv");
    std::string bytes;
    for (const std::string& name : LargeHeader()) bytes += name + "\t";
    bytes.back() = '\n';
    for (std::size_t row = 0; row < kLargeRows; ++row) {
      for (const std::string& name : LargeHeader()) bytes += LargeCell(name, row) + "\t";
      bytes.back() = '\n';
      if (bytes.size() < (8 << 20) && row + 1 < kLargeRows) continue;
      AppendToFile(table->path, bytes);
      table->size += bytes.size();
      bytes.clear();
    }
    return table;
  }();
  return *large;
}

void Import(benchmark::State& state, const std::string& path) {
  const TemporaryFolder folder;
  std::uint64_t foods = 0;
  for (auto _ : state) {
    const SourceTable table = std::get<SourceTable>(LookAtTable(path));
    const auto set = ImportFoods(table, {}, {folder.Path("user/"), {}}, "2026-11-22", kGoOn);
    foods = set ? set->foods : 0;
  }
  if (foods == 0) return state.SkipWithError("no foods were imported");
  state.counters["foods"] = static_cast<double>(foods);
}

// Reads the file and finds its tabs and line ends, one byte after the other.
void FindTabsAndLineEnds(benchmark::State& state, const std::string& path) {
  std::vector<char> buffer(1 << 20);
  for (auto _ : state) {
    const FileHandle file = OpenForReading(path);
    std::size_t cells = 0;
    std::size_t rows = 0;
    while (const std::size_t size = ReadSome(file, buffer.data(), buffer.size())) {
      for (std::size_t i = 0; i < size; ++i) {
        if (buffer[i] == '\t') {
          ++cells;
        } else if (buffer[i] == '\n') {
          ++rows;
        }
      }
    }
    benchmark::DoNotOptimize(cells);
    benchmark::DoNotOptimize(rows);
  }
}

void AddTable(Report& report, const std::string& name, const std::string& path, Reach reach) {
  report.AddPair(
      "ImportFoods/" + name, reach, Plan::one,
      [path](benchmark::State& state) { Import(state, path); },
      [path](benchmark::State& state) { FindTabsAndLineEnds(state, path); });
}

}  // namespace

void AddImportBenchmarks(Report& report) {
  // The published tables, where somebody has them.
  if (const char* const folder = std::getenv("KELVORA_FOOD_TABLES")) {
    const std::filesystem::path tables(folder);
    AddTable(report, "USDA SR", (tables / "usda_sr.tsv").string(), UnderMicroseconds(1e6));
    AddTable(report, "Ciqual", (tables / "ciqual_2020.csv").string(), UnderMicroseconds(0.5e6));
  }
  const auto large = [](void (*body)(benchmark::State&, const std::string&)) {
    return [body](benchmark::State& state) { body(state, Large().path); };
  };
  report.AddPair("ImportFoods/large", AtMostTimesLimit(kMostTimesPlainLoop), Plan::one,
                 large(Import), large(FindTabsAndLineEnds));
}

}  // namespace kelvora::bench
