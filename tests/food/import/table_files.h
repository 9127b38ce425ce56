// Tables and databases in a temporary folder, for the tests of importing.
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "core/store.h"
#include "food/import/importing.h"
#include "storage/food_files.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {

// The header of the one-file form of USDA SR, which the tests use for what holds of all tables.
inline constexpr std::string_view kSrHeader =
    "ndb_no\tgroup\tname\tportion_description\tportion_grams\tkcal_100g\tkj_100g\tprotein_100g\t"
    "fat_total_100g\tfat_saturated_100g\tfat_mono_100g\tfat_poly_100g\tcarbs_100g\t"
    "sodium_mg_100g\n";

// A row of it with a name and a group, and the same amounts in each.
inline std::string SrRow(const std::string& group, const std::string& name) {
  return "1\t" + group + "\t" + name + "\t1 cup\t200\t100\t420\t1\t4\t1\t2\t1\t5\t300\n";
}

class TableFiles {
 public:
  TableFiles() { std::filesystem::create_directories(folders.of_program); }

  std::string Write(const std::string& name, std::string_view bytes) {
    const std::string path = folder.Path(name);
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    WriteFileAnew(path, bytes);
    return path;
  }

  // The table at the path, which has to be one.
  [[nodiscard]] static SourceTable Look(const std::string& path) {
    return std::get<SourceTable>(LookAtTable(path));
  }

  std::optional<FoodSet> Import(const SourceTable& table, const RowChoice& choice = {}) const {
    return ImportFoods(table, choice, folders, "2026-11-22",
                       [](std::uint64_t, std::uint64_t) { return true; });
  }
  // Imports a table of these bytes.
  std::optional<FoodSet> ImportText(std::string_view bytes, const RowChoice& choice = {}) {
    return Import(Look(Write("table.csv", bytes)), choice);
  }

  // All names in the folder of the user, sorted; hidden ones too.
  [[nodiscard]] std::vector<std::string> Names() const {
    std::vector<std::string> names;
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(folders.of_user, ignored)) {
      names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }

  // The lines of a category of the user.
  [[nodiscard]] std::vector<Text> Lines(const std::string& file) const {
    TextList lines;
    AppendFoodLines(ReadFile(folders.of_user + file), {}, lines);
    return {lines.begin(), lines.end()};
  }

  // The fields of the only line of a category.
  [[nodiscard]] std::vector<Text> OnlyLine(const std::string& file) const {
    const auto lines = Lines(file);
    if (lines.size() != 1) return {};
    const auto fields = FieldsOf(lines[0]);
    return {fields.begin(), fields.end()};
  }

  TemporaryFolder folder;
  DatabaseFolders folders{folder.Path("user/Databases/"), folder.Path("program/Databases/")};
};

}  // namespace kelvora
