#include "food/import/table_source.h"

#include <algorithm>
#include <filesystem>

#include "food/import/food_data_central.h"
#include "food/import/table_file.h"
#include "storage/disk.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kFirstRows = 20;

NoSourceTable InsteadOf(NoTable reason) {
  return static_cast<NoSourceTable>(reason);
}
static_assert(static_cast<int>(NoSourceTable::one_column) == static_cast<int>(NoTable::one_column));

std::vector<Text> TextsOf(const TableRow& row, Encoding encoding) {
  std::vector<Text> texts;
  for (const std::string_view cell : row.cells) texts.push_back(ReadCellText(cell, encoding).text);
  return texts;
}

}  // namespace

std::variant<SourceTable, NoSourceTable> LookAtTable(const std::string& path) {
  std::error_code ignored;
  SourceTable table;
  table.path = path;
  if (fs::is_directory(path, ignored)) {
    const auto foods = FoodsFileIn(path);
    if (!foods) return NoSourceTable::folder;
    table.path = *foods;
  }
  TableFile file(table.path);
  const auto form = GuessForm(file.Sample());
  if (const auto* const reason = std::get_if<NoTable>(&form)) return InsteadOf(*reason);
  table.form = std::get<DelimitedForm>(form);
  table.size = file.Size();

  DelimitedReader reader = file.Reader(table.form);
  TableRow row;
  if (!reader.Next(row)) return NoSourceTable::empty;
  table.header = TextsOf(row, table.form.encoding);
  table.known = Recognise(row.cells, table.form.encoding);
  if (table.known == KnownTable::food_data_central && !HasAllFilesOfFoodDataCentral(table.path)) {
    return NoSourceTable::folder;
  }
  if (table.known) table.mapping = MappingOf(*table.known);
  while (table.first_rows.size() < kFirstRows && reader.Next(row)) {
    table.first_rows.push_back(TextsOf(row, table.form.encoding));
  }
  return table;
}

bool Fits(const TableMapping& mapping, const SourceTable& table) {
  return std::ranges::all_of(mapping.columns, [&](const TableColumn& column) {
    if (!mapping.has_header) return column.place && *column.place < table.header.size();
    return std::ranges::find(table.header, HeaderKey(column.header), HeaderKey) !=
           table.header.end();
  });
}

bool ReadFoods(const SourceTable& table, const RowChoice& choice, FoodSink& sink,
               const ImportProgress& progress) {
  if (table.known == KnownTable::food_data_central) {
    return ReadFoodDataCentral(table, choice, sink, progress);
  }
  TableFile file(table.path);
  DelimitedReader reader = file.Reader(table.form);
  TableRow row;
  if (!reader.Next(row)) return true;
  const RowMapper mapper(table.mapping, row.cells, table.form.encoding, choice);
  TableFood food;
  SkipReason reason{};
  bool is_food = !table.mapping.has_header;  // the first row
  ImportSteps steps(progress, file.Size());
  do {
    if (!steps.GoOn(reader.BytesTaken())) return false;
    if (!is_food) {
      is_food = true;
      continue;
    }
    switch (mapper.Map(row, food, reason)) {
      case RowKind::food:
        sink.Take(food);
        break;
      case RowKind::skipped:
        sink.Skip(row.line, reason, food.name);
        break;
      case RowKind::not_wanted:
        sink.LeaveOut();
        break;
    }
  } while (reader.Next(row));
  return progress(file.Size(), file.Size());
}

}  // namespace kelvora
