// A table of foods on the disk, and reading its foods one after the other.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "food/import/mapping.h"
#include "food/import/presets.h"

namespace kelvora {

// A table that was looked at: what it is taken for and what its first rows say.
struct SourceTable {
  std::string path;  // of the file with the foods
  std::optional<KnownTable> known;
  TableMapping mapping;  // of a known table of one file
  DelimitedForm form;
  std::vector<Text> header;
  std::vector<std::vector<Text>> first_rows;  // up to twenty
  std::uint64_t size = 0;                     // bytes of the file
};

// Why a path leads to no table: what it holds instead, or a folder without the files that belong
// together.
enum class NoSourceTable { empty, compressed, utf16, binary, one_column, folder };

// Looks at a file, or at a folder with the files of FoodData Central; one of those files stands for
// their folder. Throws std::system_error where it can't be read; a pipe or a device can't.
[[nodiscard]] std::variant<SourceTable, NoSourceTable> LookAtTable(const std::string& path);

// How a mapping of the user's own stands to a table that no preset fits: it has all its columns.
[[nodiscard]] bool Fits(const TableMapping& mapping, const SourceTable& table);

// Takes what a table holds.
struct FoodSink {
  virtual ~FoodSink() = default;
  virtual void Take(const TableFood& food) = 0;
  virtual void Skip(std::uint64_t line, SkipReason reason, std::string_view name) = 0;
  virtual void LeaveOut() = 0;  // a row that the choice doesn't want
};

// Told how much is done of how much, in bytes; false gives up.
using ImportProgress = std::function<bool(std::uint64_t done, std::uint64_t all)>;

// Reads the whole table into the sink; false if that was given up. Throws std::system_error where
// it can't be read.
bool ReadFoods(const SourceTable& table, const RowChoice& choice, FoodSink& sink,
               const ImportProgress& progress);

}  // namespace kelvora
