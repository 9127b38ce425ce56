#include "food_data.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <map>
#include <memory>
#include <stdexcept>
#include <unistd.h>

#include "core/records.h"
#include "core/store.h"
#include "storage/food_files.h"
#include "storage/record_file.h"

namespace kelvora::bench {
namespace {

namespace fs = std::filesystem;

struct Column {
  enum : std::size_t {
    kNumber,
    kGroup,
    kName,
    kPortion,
    kPortionGrams,
    kKcal,
    kKj,
    kProtein,
    kFat,
    kSaturated,
    kMonounsaturated,
    kPolyunsaturated,
    kCarbs,
    kSodium,
    kCount,
  };
};

// The rows of a table without its header, each cut at the tabs.
std::vector<std::vector<std::string_view>> RowsOf(std::string_view table) {
  std::vector<std::vector<std::string_view>> rows;
  for (bool is_header = true; !table.empty(); is_header = false) {
    std::string_view row = table.substr(0, table.find('\n'));
    table.remove_prefix(std::min(row.size() + 1, table.size()));
    if (is_header || row.empty()) continue;
    auto& cells = rows.emplace_back();
    for (std::size_t end; (end = row.find('\t')) != std::string_view::npos;) {
      cells.push_back(row.substr(0, end));
      row.remove_prefix(end + 1);
    }
    cells.push_back(row);
  }
  return rows;
}

double NumberOf(std::string_view cell) {
  double value = 0;
  const char* const end = cell.data() + cell.size();
  if (!cell.empty() && std::from_chars(cell.data(), end, value).ptr != end) {
    throw std::runtime_error("Not a number: " + std::string(cell));
  }
  return value;
}

// At most three decimals, none of them a zero at the end.
Text AmountText(double value) {
  std::array<char, 64> buffer;
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                     std::chars_format::fixed, 3);
  Text text(buffer.data(), written.ptr);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

Text FieldText(std::string_view utf8) {
  Text text = TextFromUtf8(utf8);
  if (HoldsTerminator(text)) throw std::runtime_error("A terminator in: " + std::string(utf8));
  return text;
}

// The starter foods: a file for each category, its columns the fields of a food line.
std::vector<Food> StarterFoods() {
  std::vector<fs::path> tables;
  for (const auto& entry : fs::directory_iterator(KELVORA_STARTER_FOODS)) {
    if (entry.path().extension() == ".tsv") tables.push_back(entry.path());
  }
  std::ranges::sort(tables);
  std::vector<Food> foods;
  for (const fs::path& table : tables) {
    const std::string bytes = ReadFile(table.string());
    for (const auto& cells : RowsOf(bytes)) {
      if (cells.size() != FoodField::kRemark + 1) {
        throw std::runtime_error("Not twelve columns: " + table.string());
      }
      Food food{FieldText(table.stem().string()), FieldText(cells[FoodField::kProduct]), {}};
      for (std::size_t i = FoodField::kUnit; i < cells.size(); ++i) {
        food.amounts += FieldText(cells[i]) + kFieldEnd;
      }
      foods.push_back(std::move(food));
    }
  }
  return foods;
}

// So that writing back the new files does not run beside what is measured.
void FlushToDisk(const std::string& path) {
  const int file = open(path.c_str(), O_RDONLY);
  if (file < 0) return;
  fsync(file);
  close(file);
}

std::unique_ptr<FoodSet> MakeFoodSet(std::size_t lines) {
  const std::vector<Food>& foods = Foods();
  auto set = std::make_unique<FoodSet>();
  set->program_path = set->folder.Path("program/");
  set->lines = lines;
  std::map<Text, Text> blocks;
  for (std::size_t i = 0; i < lines; ++i) {
    const Food& food = foods[i % foods.size()];
    Text& block = blocks[food.group];
    block += food.name;
    if (lines != foods.size()) {
      std::array<char, 32> number;
      std::snprintf(number.data(), number.size(), " %06zu", i);
      block += number.data();
    }
    ((block += kFieldEnd) += food.amounts) += kLineEnd;
  }
  const std::string databases = set->program_path + "Databases/";
  fs::create_directories(databases);
  for (auto& [group, block] : blocks) {
    const Rec_ListLine record{{std::move(block)}};
    const std::string bytes = EncodeRecord(record.strings);
    const std::string path = databases + Utf8FromText(group) + ".dat";
    WriteFileAnew(path, bytes);
    FlushToDisk(path);
    set->files.push_back({path, bytes.size()});
    set->bytes += bytes.size();
    set->largest_file = std::max(set->largest_file, bytes.size());
  }
  return set;
}

}  // namespace

std::vector<Food> FoodsOfTable(std::string_view table) {
  std::vector<Food> foods;
  for (const auto& cells : RowsOf(table)) {
    if (cells.size() != Column::kCount) {
      throw std::runtime_error("Not fourteen columns: " + std::string(cells.front()));
    }
    Food food{FieldText(cells[Column::kGroup]), FieldText(cells[Column::kName]), {}};
    std::ranges::replace(food.group, '/', '-');

    const double portion = NumberOf(cells[Column::kPortionGrams]);
    const auto of_portion = [&](double of_100_grams) { return of_100_grams * portion / 100; };
    const auto amount = [&](std::size_t column) { return of_portion(NumberOf(cells[column])); };
    const double unsaturated = of_portion(NumberOf(cells[Column::kMonounsaturated]) +
                                          NumberOf(cells[Column::kPolyunsaturated]));
    food.amounts = FieldText(cells[Column::kPortion]) + kFieldEnd;
    for (const double value : {portion, amount(Column::kKj), amount(Column::kKcal),
                               amount(Column::kProtein), unsaturated, amount(Column::kSaturated),
                               amount(Column::kCarbs), amount(Column::kSodium) / 1000}) {
      food.amounts += AmountText(value) + kFieldEnd;
    }
    ((food.amounts += '0') += kFieldEnd) += kFieldEnd;  // no group, no remark
    foods.push_back(std::move(food));
  }
  return foods;
}

const std::vector<Food>& Foods() {
  static const std::vector<Food> foods = [] {
    const char* const table = std::getenv("KELVORA_FOOD_TABLE");
    return table == nullptr || *table == '\0' ? StarterFoods() : FoodsOfTable(ReadFile(table));
  }();
  if (foods.empty()) throw std::runtime_error("The table of foods is empty");
  return foods;
}

const FoodSet& FoodSetOf(std::size_t lines) {
  static std::map<std::size_t, std::unique_ptr<FoodSet>> sets;
  auto& set = sets[lines];
  if (set == nullptr) set = MakeFoodSet(lines);
  return *set;
}

Program& ProgramWith(std::size_t lines) {
  static std::map<std::size_t, std::unique_ptr<TestProgram>> programs;
  auto& test = programs[lines];
  if (test == nullptr) {
    test = std::make_unique<TestProgram>();
    test->program.paths.ProgramPath = FoodSetOf(lines).program_path;
    Load_Databases(test->program);
    if (test->program.store.Default_list.Count() != lines) {
      throw std::runtime_error("The foods did not load");
    }
  }
  return test->program;
}

std::vector<Text> SomeFoodLines(std::size_t count) {
  const std::size_t all = Foods().size();
  const TextList& list = ProgramWith(all).store.Default_list;
  std::vector<Text> lines;
  for (std::size_t i = 0; i < count; ++i) lines.emplace_back(list[i * all / count]);
  return lines;
}

}  // namespace kelvora::bench
