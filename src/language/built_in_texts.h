// The texts that are part of the program: one row a text, English and Dutch side by side.
//
// The program shows none of them directly. They fill the tables only so that the standard language
// files can be written (language_file.h); what a user sees always comes from a file.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "language/tables.h"

namespace kelvora {

struct TextRow {
  TextId id;
  std::string_view english;
  std::string_view dutch;
  // Where the English text goes; one text of the set goes astray, as it is meant to.
  TextId english_id = id;
};

// An entry that nothing shows, kept so that the indexes behind it do not move.
[[nodiscard]] constexpr TextRow Filler(TextTable table, std::size_t index,
                                       std::string_view english = "-EMPTY-") {
  return {{table, index}, english, "-LEEG-"};
}

// True if all rows belong to one table, stand in the order of their indexes and none lies outside.
template <std::size_t N>
[[nodiscard]] consteval bool RowsAreInOrder(const std::array<TextRow, N>& rows) {
  for (std::size_t i = 0; i < N; ++i) {
    const TextTableRange range = RangeOf(rows[i].id.table);
    if (rows[i].id.index < range.first || rows[i].id.index > range.last) return false;
    if (i > 0 && rows[i].id.table != rows[i - 1].id.table) return false;
    if (i > 0 && rows[i].id.index <= rows[i - 1].id.index) return false;
  }
  return true;
}

// True if the rows are those of the indexes 0 to `count` - 1 of one table, none left out, and
// `fillers` of them are fillers.
template <std::size_t N>
[[nodiscard]] consteval bool RowsFill(const std::array<TextRow, N>& rows, std::size_t count,
                                      std::size_t fillers) {
  std::size_t found = 0;
  for (const TextRow& row : rows) found += row.dutch == "-LEEG-" ? 1 : 0;
  return N == count && RowsAreInOrder(rows) && rows.back().id.index == count - 1 &&
         found == fillers;
}

// Overwrite the entries that the built-in set names and leave all others as they are.
void Make_Taal_English(TextTables& texts);
void Make_Taal_Dutch(TextTables& texts);

// All built-in rows, one span a table.
[[nodiscard]] std::span<const std::span<const TextRow>> BuiltInTexts();

// The rows of each table, in that table's own file.
[[nodiscard]] std::span<const TextRow> SectionTextRows();
[[nodiscard]] std::span<const TextRow> PropertiesTextRows();
[[nodiscard]] std::span<const TextRow> MainTextRows();
[[nodiscard]] std::span<const TextRow> NewFoodTextRows();
[[nodiscard]] std::span<const TextRow> ExportFormTextRows();
[[nodiscard]] std::span<const TextRow> PopupTextRows();
[[nodiscard]] std::span<const TextRow> DaySettingsTextRows();
[[nodiscard]] std::span<const TextRow> BrowseTextRows();
[[nodiscard]] std::span<const TextRow> DaySummaryTextRows();
[[nodiscard]] std::span<const TextRow> FoodDetailsTextRows();
[[nodiscard]] std::span<const TextRow> UpdateTextRows();
[[nodiscard]] std::span<const TextRow> ListsTextRows();
[[nodiscard]] std::span<const TextRow> DiaryTextRows();
[[nodiscard]] std::span<const TextRow> TrendTextRows();
[[nodiscard]] std::span<const TextRow> CompareTextRows();
[[nodiscard]] std::span<const TextRow> WizardTextRows();
[[nodiscard]] std::span<const TextRow> EveningTextRows();
[[nodiscard]] std::span<const TextRow> AfternoonTextRows();
[[nodiscard]] std::span<const TextRow> MorningTextRows();
[[nodiscard]] std::span<const TextRow> CommonTextRows();
[[nodiscard]] std::span<const TextRow> PrintTextRows();
[[nodiscard]] std::span<const TextRow> ExportTextRows();
[[nodiscard]] std::span<const TextRow> MessageTextRows();
[[nodiscard]] std::span<const TextRow> FileInfoTextRows();

}  // namespace kelvora
