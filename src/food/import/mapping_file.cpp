#include "food/import/mapping_file.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "food/import/food_set.h"
#include "storage/folders.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

constexpr std::string_view kEnding = ".columns";
constexpr std::string_view kTitle = "# Columns of a table of foods, for Kelvora FOOD\n";

constexpr std::array<std::string_view, kTableFieldCount> kNames = {"name",
                                                                   "brand",
                                                                   "group",
                                                                   "remark",
                                                                   "portion",
                                                                   "portion grams",
                                                                   "quantity",
                                                                   "kilojoules",
                                                                   "kilocalories",
                                                                   "protein",
                                                                   "fat",
                                                                   "unsaturated fat",
                                                                   "saturated fat",
                                                                   "monounsaturated fat",
                                                                   "polyunsaturated fat",
                                                                   "carbohydrates",
                                                                   "sodium",
                                                                   "salt",
                                                                   "country",
                                                                   "completeness"};

std::optional<TableField> FieldNamed(std::string_view name) {
  const auto found = std::ranges::find(kNames, name);
  if (found == kNames.end()) return std::nullopt;
  return static_cast<TableField>(found - kNames.begin());
}

// "5 x0.001 Sodium mg"
std::optional<TableColumn> ColumnFrom(TableField field, std::string_view text) {
  TableColumn column{field, {}};
  std::size_t number = 0;
  const auto [stopped, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (failure != std::errc() || number == 0) return std::nullopt;
  column.place = number - 1;
  text.remove_prefix(static_cast<std::size_t>(stopped - text.data()));
  if (text.starts_with(" x")) {
    text.remove_prefix(2);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), column.scale);
    if (error != std::errc() || !(column.scale > 0)) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  }
  if (!text.empty() && text[0] != ' ') return std::nullopt;
  column.header = TextFromUtf8(text.substr(std::min<std::size_t>(1, text.size())));
  return column;
}

bool ReadLine(std::string_view key, std::string_view value, TableMapping& mapping) {
  if (key == "set") {
    mapping.name = TextFromUtf8(value);
  } else if (key == "header") {
    mapping.has_header = value != "no";
  } else if (key == "amounts") {
    mapping.of_portion = value == "portion";
  } else {
    const auto field = FieldNamed(key);
    const auto column = field ? ColumnFrom(*field, value) : std::nullopt;
    if (!column) return false;
    mapping.columns.push_back(*column);
  }
  return true;
}

}  // namespace

std::string_view NameOf(TableField field) {
  return kNames[static_cast<std::size_t>(field)];
}

std::string MappingText(const TableMapping& mapping) {
  std::string text(kTitle);
  const auto line = [&text](std::string_view key, std::string_view value) {
    ((text += key) += ": ") += value;
    text += '\n';
  };
  line("set", Utf8FromText(mapping.name));
  line("header", mapping.has_header ? "yes" : "no");
  line("amounts", mapping.of_portion ? "portion" : "100 gram");
  for (const TableColumn& column : mapping.columns) {
    std::string value = std::to_string(column.place.value_or(0) + 1);
    if (column.scale != 1) {
      std::array<char, 32> scale;
      const auto end = std::to_chars(scale.data(), scale.data() + scale.size(), column.scale).ptr;
      value.append(" x").append(scale.data(), end);
    }
    if (!column.header.empty()) value += " " + Utf8FromText(column.header);
    line(NameOf(column.field), value);
  }
  return text;
}

std::optional<TableMapping> MappingFrom(std::string_view text) {
  TableMapping mapping;
  while (!text.empty()) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty() || line[0] == '#') continue;
    const std::size_t colon = line.find(": ");
    if (colon == line.npos) return std::nullopt;
    if (!ReadLine(line.substr(0, colon), line.substr(colon + 2), mapping)) return std::nullopt;
  }
  if (!CanNameASet(mapping.name)) return std::nullopt;
  return mapping;
}

std::string MappingsFolder(const std::string& user_databases) {
  return user_databases.empty() ? std::string() : user_databases + "../Tables/";
}

std::vector<TableMapping> SavedMappings(const std::string& user_databases) {
  std::vector<TableMapping> mappings;
  const std::string folder = MappingsFolder(user_databases);
  if (folder.empty()) return mappings;
  for (const FolderFile& file : FilesWithPathsIn(folder, kEnding)) {
    try {
      if (auto mapping = MappingFrom(ReadFile(file.path))) mappings.push_back(std::move(*mapping));
    } catch (const std::system_error&) {
      continue;
    }
  }
  return mappings;
}

void SaveMapping(const std::string& user_databases, const TableMapping& mapping) {
  const std::string folder = MappingsFolder(user_databases);
  // The folder above has to be there to be left again.
  MakeFolder(user_databases);
  MakeFolder(folder);
  WriteFileAnew(folder + Utf8FromText(mapping.name).append(kEnding), MappingText(mapping));
}

}  // namespace kelvora
