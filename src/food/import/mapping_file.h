// Mappings that the user made, each in a text file of its own, under its name.
//
//   # Columns of a table of foods, for Kelvora FOOD
//   set: Our kitchen
//   header: yes
//   amounts: 100 gram            or: portion
//   name: 1 Product              field, number of the column, its header
//   sodium: 5 x0.001 Sodium mg   amounts may be scaled
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "food/import/mapping.h"

namespace kelvora {

[[nodiscard]] std::string MappingText(const TableMapping& mapping);
// Nothing for a text that is none: without a set name, or with a line that can't be read.
[[nodiscard]] std::optional<TableMapping> MappingFrom(std::string_view text);

// The folder with them: beside that of the user's databases.
[[nodiscard]] std::string MappingsFolder(const std::string& user_databases);
// By name; files that can't be read are none.
[[nodiscard]] std::vector<TableMapping> SavedMappings(const std::string& user_databases);
// Throws std::system_error.
void SaveMapping(const std::string& user_databases, const TableMapping& mapping);

// What a field is called in such a file.
[[nodiscard]] std::string_view NameOf(TableField field);

}  // namespace kelvora
