// The 26 text tables: every text that a user sees, addressed by table and index.
//
// A named constant of one of the *_texts.h files says which table and index a text has; nothing
// else writes a bare number. Tables are filled from a language file (language_file.h) or from the
// built-in texts (built_in_texts.h). An entry that nobody filled is empty.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "core/text.h"

namespace kelvora {

// In the order of the fields of a language file.
enum class TextTable {
  taal_sections,
  taal_properties,
  taal_main,
  taal_new_food,
  taal_export_form,
  taal_popup,
  taal_day_settings,
  taal_browse,
  taal_day_summary,
  taal_food_details,
  taal_update,
  taal_lists,
  taal_diary,
  taal_trend,
  taal_compare,
  taal_wizard,
  taal_evening,
  taal_afternoon,
  taal_morning,
  taal_common,
  taal_print,
  taal_export,
  taal_reserved,
  taal_messages,
  taal_empty,
  taal_file_info,
};
inline constexpr std::size_t kTextTableCount = 26;

// The indexes a table has: 1 to 25 for taal_sections, 0 to 200 for all others.
struct TextTableRange {
  std::size_t first;
  std::size_t last;
};
[[nodiscard]] constexpr TextTableRange RangeOf(TextTable table) {
  return table == TextTable::taal_sections ? TextTableRange{1, 25} : TextTableRange{0, 200};
}

struct TextId {
  TextTable table;
  std::size_t index;
  bool operator==(const TextId&) const = default;
};

struct TextTables {
  std::array<std::array<Text, 201>, kTextTableCount> entries;
  // The program's own texts, which no numbered table has room for (own_texts.h). Short or empty
  // where a language lacks them.
  std::vector<Text> own;

  [[nodiscard]] Text& operator[](TextId id) {
    return entries[static_cast<std::size_t>(id.table)][id.index];
  }
  [[nodiscard]] const Text& operator[](TextId id) const {
    return entries[static_cast<std::size_t>(id.table)][id.index];
  }
};

}  // namespace kelvora
