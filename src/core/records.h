// The records that lie in files, each a row of named strings. The order of the names is the order
// in the file. How they are read and written stands in storage/.
#pragma once

#include <array>
#include <cstddef>

#include "core/text.h"

namespace kelvora {

// A fixed row of strings, addressed by name.
template <class Field, std::size_t Size>
struct Record {
  static constexpr std::size_t kSize = Size;
  std::array<Text, Size> strings;

  [[nodiscard]] Text& operator[](Field field) { return strings[static_cast<std::size_t>(field)]; }
  [[nodiscard]] const Text& operator[](Field field) const {
    return strings[static_cast<std::size_t>(field)];
  }
  bool operator==(const Record&) const = default;
};

enum class DayFileField { Trend, Notes, Header, Morning, Afternoon, Evening };
using Rec_DayFile = Record<DayFileField, 6>;

enum class Setting {
  Combo_taal = 0,   // file name of the language file
  chk_wiz = 1,      // "1": the wizard comes up at start
  chk_profiel = 2,  // "1": the browser shows the profile pane
  reserved_3 = 3,
  reserved_11 = 11,
  reserved_12 = 12,
  StartCount = 13,
  opt_system = 14,  // "0" metric, "1" imperial US, "2" imperial UK
  combo_printer = 15,
  chk_map = 16,     // "1": the users folder is txt_map
  opt_gramoz = 17,  // food weights in "0" grams, "1" ounces
  txt_map = 18,
  opt_server = 19,
  chk_apply = 20,
  chk_export = 21,
  chk_all_screens = 22,  // arrangement after a new or opened day: "0" A, "1" B
  chk_internet = 23,
  chk_addinternet = 24,
  SearchCount = 25,
  SubmitCount = 26,
  SearchBytes = 27,
  chk_help = 28,  // "1": help buttons and texts under the icons
};
using Rec_Settings = Record<Setting, 51>;

enum class ProfileField {
  name = 0,
  address_1,
  address_2,
  city,
  postcode,
  height,  // metres
  gender,
  age,          // years
  weight,       // kilograms
  goal_weight,  // kilograms
  country,
  reference,
  remark,
  state,
  type_prioriteit,  // the nutrient shown in lists, see Priority
  txt_kj,           // daily targets from here on
  txt_kcal,
  txt_ovet,  // unsaturated fat, grams
  txt_vvet,  // saturated fat, grams
  txt_nat,   // sodium, grams
  txt_ew,    // protein, grams
  txt_kdr,   // carbohydrates, grams
};
inline constexpr std::size_t kProfileFieldsInUse = 22;
using Rec_Profile = Record<ProfileField, 26>;

using Rec_ListLine = Record<std::size_t, 1>;

}  // namespace kelvora
