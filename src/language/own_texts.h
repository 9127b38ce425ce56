// Texts that have no place in the numbered tables and stand in no language file. They follow the
// language of the tables: Dutch beside the Dutch texts, English beside all others.
#pragma once

#include "language/tables.h"

namespace kelvora {

enum class Language { english, dutch };

// The language of the loaded texts, told by the caption of the first menu. A translation that users
// made themselves counts as English.
[[nodiscard]] Language LanguageOf(const TextTables& texts);

enum class OwnText {
  not_here_yet,     // why a command is disabled that this version can't carry out
  move_to_morning,  // entries of a menu on the foods of one part of the day
  move_to_afternoon,
  move_to_evening,
  cut_foods,
  paste_foods,
  take_portion_out,
  add_to_favourites,
};

[[nodiscard]] Text OwnTextOf(const TextTables& texts, OwnText id);

// The text in one language, whatever is loaded.
[[nodiscard]] Text OwnTextIn(Language language, OwnText id);

inline constexpr int kOwnTextCount = 8;

}  // namespace kelvora
