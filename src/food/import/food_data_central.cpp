#include "food/import/food_data_central.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <limits>
#include <unordered_map>

#include "core/failure.h"
#include "food/import/table_file.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFoodsFile = "food.csv";
constexpr std::string_view kAmountsFile = "food_nutrient.csv";
constexpr std::string_view kNutrientsFile = "nutrient.csv";
constexpr std::string_view kCategoriesFile = "food_category.csv";

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

// The nutrients of use, by their numbers. Energy stands under one of three.
enum Nutrient : std::size_t {
  kKj,
  kKcal,
  kKcalGeneral,
  kKcalSpecific,
  kProtein,
  kFat,
  kSaturated,
  kMono,
  kPoly,
  kCarbs,
  kSodium,
  kNutrients,
};
constexpr std::array<std::uint32_t, kNutrients> kNumbers = {1062, 1008, 2047, 2048, 1003, 1004,
                                                            1258, 1292, 1293, 1005, 1093};

using Amounts = std::array<double, kNutrients>;

std::optional<std::uint32_t> NumberIn(std::string_view cell) {
  cell = TrimmedCell(cell);
  std::uint32_t number = 0;
  const char* const end = cell.data() + cell.size();
  const auto [stopped, failure] = std::from_chars(cell.data(), end, number);
  if (cell.empty() || failure != std::errc() || stopped != end) return std::nullopt;
  return number;
}

// A file of the folder, read by the names of its columns.
class NamedRows {
 public:
  NamedRows(const std::string& path, std::initializer_list<std::string_view> columns)
      : file_(path), reader_(file_.Reader(FormOf(file_))) {
    if (!reader_.Next(row)) ThrowSystemError(std::errc::invalid_argument);
    for (const std::string_view name : columns) {
      const auto cell = std::ranges::find(row.cells, name, TrimmedCell);
      if (cell == row.cells.end()) ThrowSystemError(std::errc::invalid_argument);
      places_.push_back(static_cast<std::size_t>(cell - row.cells.begin()));
    }
    columns_ = row.cells.size();
  }

  bool Next() { return reader_.Next(row); }
  // Nothing where the row has no such cell.
  [[nodiscard]] std::string_view operator[](std::size_t column) const {
    return places_[column] < row.cells.size() ? row.cells[places_[column]] : std::string_view();
  }
  [[nodiscard]] bool IsCutShort() const { return !row.ended && row.cells.size() < columns_; }
  [[nodiscard]] std::uint64_t BytesTaken() const { return reader_.BytesTaken(); }
  [[nodiscard]] std::uint64_t Size() const { return file_.Size(); }

  TableRow row;

 private:
  static DelimitedForm FormOf(const TableFile& file) {
    const auto form = GuessForm(file.Sample());
    if (!std::holds_alternative<DelimitedForm>(form)) ThrowSystemError(std::errc::invalid_argument);
    return std::get<DelimitedForm>(form);
  }

  TableFile file_;
  DelimitedReader reader_;
  std::vector<std::size_t> places_;
  std::size_t columns_ = 0;
};

// What the nutrients are measured in, by their numbers.
std::array<double, kNutrients> ScalesIn(const std::string& path) {
  std::array<double, kNutrients> scales{};
  scales.fill(1);
  scales[kSodium] = 0.001;
  NamedRows rows(path, {"id", "unit_name"});
  while (rows.Next()) {
    const auto number = NumberIn(rows[0]);
    const auto place = number ? std::ranges::find(kNumbers, *number) : kNumbers.end();
    if (place == kNumbers.end()) continue;
    const Text unit = LowerCase(rows[1]);
    double& scale = scales[static_cast<std::size_t>(place - kNumbers.begin())];
    if (unit == "g" || unit == "kj" || unit == "kcal") scale = 1;
    if (unit == "mg") scale = 0.001;
    if (unit == "ug") scale = 0.000001;
  }
  return scales;
}

using CategoryNames = std::unordered_map<std::string, Text>;

// The names of categories, where the folder has them.
CategoryNames CategoriesIn(const std::string& path) {
  CategoryNames names;
  std::error_code ignored;
  if (!fs::exists(path, ignored)) return names;
  NamedRows rows(path, {"id", "description"});
  while (rows.Next()) {
    names.emplace(TrimmedCell(rows[0]), ReadCellText(rows[1], Encoding::utf8).text);
  }
  return names;
}

// The foods that are joined in one go, and their amounts.
class Batch {
 public:
  explicit Batch(std::size_t size) : size_(size) {}

  struct Food {
    std::uint64_t line = 0;
    std::uint32_t name_size = 0, group_size = 0;
  };

  [[nodiscard]] bool IsFull() const { return foods.size() >= size_; }
  void Clear() {
    foods.clear();
    texts_.clear();
    amounts.clear();
    places_.clear();
  }
  void Add(std::uint32_t number, std::uint64_t line, std::string_view name,
           std::string_view group) {
    numbers_.resize(foods.size());
    numbers_.push_back(number);
    foods.push_back(
        {line, static_cast<std::uint32_t>(name.size()), static_cast<std::uint32_t>(group.size())});
    (texts_ += name) += group;
    amounts.emplace_back().fill(kUnknown);
  }
  // Makes the foods found by their numbers: a table of places, the number's own or the next free.
  void Index() {
    places_.assign(std::bit_ceil(foods.size() * 2 + 1), 0);
    for (std::size_t i = 0; i < foods.size(); ++i) {
      std::size_t place = FirstPlaceOf(numbers_[i]);
      while (places_[place] != 0) place = (place + 1) & (places_.size() - 1);
      places_[place] = static_cast<std::uint32_t>(i + 1);
    }
  }
  [[nodiscard]] Amounts* Find(std::uint32_t number) {
    for (std::size_t place = FirstPlaceOf(number); places_[place] != 0;
         place = (place + 1) & (places_.size() - 1)) {
      const std::size_t food = places_[place] - 1;
      if (numbers_[food] == number) return &amounts[food];
    }
    return nullptr;
  }
  [[nodiscard]] std::string_view Texts() const { return texts_; }

  std::vector<Food> foods;
  std::vector<Amounts> amounts;

 private:
  [[nodiscard]] std::size_t FirstPlaceOf(std::uint32_t number) const {
    return (number * std::uint64_t{0x9E3779B97F4A7C15} >> 32) & (places_.size() - 1);
  }
  std::size_t size_;
  std::vector<std::uint32_t> numbers_, places_;
  std::string texts_;  // name and group of each food, behind each other
};

// Keeps to what RowMapper does with a row of one table.
class CentralReader {
 public:
  CentralReader(const SourceTable& table, const RowChoice& choice, FoodSink& sink,
                const ImportProgress& progress, std::size_t at_a_time)
      : folder_(fs::path(table.path).parent_path().string() + "/"),
        choice_(choice),
        sink_(sink),
        progress_(progress),
        foods_(table.path, {"fdc_id", "data_type", "description", "food_category_id"}),
        scales_(ScalesIn(folder_ + std::string(kNutrientsFile))),
        categories_(CategoriesIn(folder_ + std::string(kCategoriesFile))),
        batch_(at_a_time) {}

  bool Read() {
    while (true) {
      batch_.Clear();
      while (!batch_.IsFull() && foods_.Next()) TakeRow();
      if (batch_.foods.empty()) return progress_(foods_.Size(), foods_.Size());
      batch_.Index();
      if (!ReadAmounts()) return false;
      GiveFoods();
    }
  }

 private:
  void TakeRow() {
    const std::uint64_t line = foods_.row.line;
    if (foods_.row.problem == RowProblem::too_long) {
      return sink_.Skip(line, SkipReason::too_long, {});
    }
    if (foods_.row.problem == RowProblem::unbalanced_quote) {
      return sink_.Skip(line, SkipReason::unbalanced_quote, {});
    }
    if (foods_.IsCutShort()) return sink_.Skip(line, SkipReason::cut_short, {});
    const auto number = NumberIn(foods_[0]);
    if (!number) {
      const bool again = TrimmedCell(foods_[0]) == "fdc_id";
      return sink_.Skip(line, again ? SkipReason::header_again : SkipReason::no_energy, {});
    }
    const Text group = GroupOf(foods_[3], foods_[1]);
    if (!choice_.groups.empty() &&
        std::ranges::find(choice_.groups, LowerCase(group)) == choice_.groups.end()) {
      return sink_.LeaveOut();
    }
    CellText name = ReadCellText(TrimmedCell(foods_[2]), Encoding::utf8);
    name.text = CutTo(std::move(name.text), kLongestName);
    if (name.text.empty()) return sink_.Skip(line, SkipReason::no_name, {});
    if (name.unheld * 2 > name.characters) {
      return sink_.Skip(line, SkipReason::unreadable_name, name.text);
    }
    batch_.Add(*number, line, name.text, group);
  }

  // The category by its name, or its number where nothing names it; the kind of food without one.
  [[nodiscard]] Text GroupOf(std::string_view category, std::string_view kind) const {
    category = TrimmedCell(category);
    const auto named = categories_.find(std::string(category));
    if (named != categories_.end()) return named->second;
    return ReadCellText(TrimmedCell(category.empty() ? kind : category), Encoding::utf8).text;
  }

  bool ReadAmounts() {
    NamedRows rows(folder_ + std::string(kAmountsFile), {"fdc_id", "nutrient_id", "amount"});
    const std::uint64_t of_foods = foods_.BytesTaken();
    // Each batch takes its share of the whole, whose size the first file tells.
    while (rows.Next()) {
      const std::uint64_t share =
          done_ + (of_foods - done_) * (rows.BytesTaken() >> 10) / (1 + (rows.Size() >> 10));
      if (++rows_ % kRowsBetween == 0 && !progress_(share, foods_.Size())) return false;
      const auto nutrient = NumberIn(rows[1]);
      const auto place = nutrient ? std::ranges::find(kNumbers, *nutrient) : kNumbers.end();
      if (place == kNumbers.end()) continue;
      const auto number = NumberIn(rows[0]);
      Amounts* const amounts = number ? batch_.Find(*number) : nullptr;
      if (amounts == nullptr) continue;
      const auto index = static_cast<std::size_t>(place - kNumbers.begin());
      double& amount = (*amounts)[index];
      const auto value = ReadCellAmount(rows[2]);
      if (value && std::isnan(amount)) amount = *value * scales_[index];
    }
    done_ = of_foods;
    return true;
  }

  void GiveFoods() {
    std::string_view texts = batch_.Texts();
    TableFood food;
    food.unit = "100 gram";
    for (std::size_t i = 0; i < batch_.foods.size(); ++i) {
      const Batch::Food& row = batch_.foods[i];
      food.name = texts.substr(0, row.name_size);
      food.group = texts.substr(row.name_size, row.group_size);
      texts.remove_prefix(row.name_size + row.group_size);
      if (CompleteAmounts(KnownOf(batch_.amounts[i]), 1, food)) {
        sink_.Take(food);
      } else {
        sink_.Skip(row.line, SkipReason::no_energy, food.name);
      }
    }
  }

  static KnownAmounts KnownOf(const Amounts& amounts) {
    const auto within = [&](Nutrient nutrient, double most) -> std::optional<double> {
      const double value = amounts[nutrient];
      if (std::isnan(value) || value > most) return std::nullopt;
      return value;
    };
    const auto grams = [&](Nutrient nutrient) { return within(nutrient, kMostPortionGrams); };
    KnownAmounts known;
    known.kj = within(kKj, kMostKj);
    for (const Nutrient kcal : {kKcal, kKcalGeneral, kKcalSpecific}) {
      if (!known.kcal) known.kcal = within(kcal, kMostKcal);
    }
    known.protein = grams(kProtein);
    known.fat = grams(kFat);
    known.fat_s = grams(kSaturated);
    known.fat_mono = grams(kMono);
    known.fat_poly = grams(kPoly);
    known.carbs = grams(kCarbs);
    known.sodium = grams(kSodium);
    return known;
  }

  static constexpr std::uint64_t kRowsBetween = 4096;
  std::string folder_;
  const RowChoice& choice_;
  FoodSink& sink_;
  const ImportProgress& progress_;
  NamedRows foods_;
  std::array<double, kNutrients> scales_;
  CategoryNames categories_;
  Batch batch_;
  std::uint64_t done_ = 0, rows_ = 0;
};

}  // namespace

std::optional<std::string> FoodsFileIn(const std::string& folder) {
  const std::string file = (fs::path(folder) / kFoodsFile).string();
  if (!HasAllFilesOfFoodDataCentral(file)) return std::nullopt;
  return file;
}

bool HasAllFilesOfFoodDataCentral(const std::string& foods_file) {
  const fs::path folder = fs::path(foods_file).parent_path();
  std::error_code ignored;
  return fs::is_regular_file(foods_file, ignored) &&
         fs::is_regular_file(folder / kAmountsFile, ignored) &&
         fs::is_regular_file(folder / kNutrientsFile, ignored);
}

bool ReadFoodDataCentral(const SourceTable& table, const RowChoice& choice, FoodSink& sink,
                         const ImportProgress& progress, std::size_t at_a_time) {
  return CentralReader(table, choice, sink, progress, at_a_time).Read();
}

}  // namespace kelvora
