#include "food/import/importing.h"

#include <algorithm>
#include <filesystem>
#include <unordered_map>

#include "storage/folders.h"

namespace kelvora {
namespace {

constexpr std::size_t kMostGroups = 1000;
constexpr std::size_t kFirstFoods = 20;

class Counter : public FoodSink {
 public:
  void Take(const TableFood& food) override {
    ++counts.foods;
    counts.unknown += static_cast<std::uint64_t>(food.unknown);
    if (counts.first_foods.size() < kFirstFoods) counts.first_foods.push_back(food);
    const Text key = LowerCase(food.group);
    auto place = places_.find(key);
    if (place == places_.end()) {
      if (counts.groups.size() >= kMostGroups) return;
      place = places_.emplace(key, counts.groups.size()).first;
      counts.groups.push_back({food.group, 0});
    }
    ++counts.groups[place->second].foods;
  }
  void Skip(std::uint64_t, SkipReason reason, std::string_view) override {
    ++counts.skipped;
    ++counts.by_reason[static_cast<std::size_t>(reason)];
  }
  void LeaveOut() override { ++counts.left_out; }

  TableCounts counts;

 private:
  std::unordered_map<Text, std::size_t> places_;
};

class SetSink : public FoodSink {
 public:
  explicit SetSink(FoodSetWriter& writer) : writer_(writer) {}
  void Take(const TableFood& food) override {
    writer_.Add(food);
    ++foods;
  }
  void Skip(std::uint64_t line, SkipReason reason, std::string_view name) override {
    writer_.NoteSkipped(line, reason, name);
  }
  void LeaveOut() override {}

  std::uint64_t foods = 0;

 private:
  FoodSetWriter& writer_;
};

std::vector<std::string> CategoriesIn(const std::string& folder) {
  std::vector<std::string> names;
  for (const FolderFile& file : FilesWithPathsIn(folder, ".dat")) {
    names.push_back(file.path.substr(folder.size()));
  }
  return names;
}

}  // namespace

std::optional<TableCounts> CountFoods(const SourceTable& table, const RowChoice& choice,
                                      const ImportProgress& progress) {
  Counter counter;
  if (!ReadFoods(table, choice, counter, progress)) return std::nullopt;
  return std::move(counter.counts);
}

std::optional<FoodSet> ImportFoods(const SourceTable& table, const RowChoice& choice,
                                   const DatabaseFolders& folders, const std::string& date,
                                   const ImportProgress& progress) {
  auto taken = CategoriesIn(folders.of_user);
  if (!folders.of_program.empty())
    std::ranges::copy(CategoriesIn(folders.of_program), std::back_inserter(taken));
  FoodSetWriter writer(folders.of_user, table.mapping.name, taken);
  SetSink sink(writer);
  if (!ReadFoods(table, choice, sink, progress) || sink.foods == 0) return std::nullopt;
  FoodSet facts;
  facts.date = date;
  facts.table = std::filesystem::path(table.path).filename().string();
  if (table.known) {
    facts.source = FactsOf(*table.known).source;
    facts.licence = FactsOf(*table.known).licence;
  }
  return writer.Commit(facts);
}

}  // namespace kelvora
