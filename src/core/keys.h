// The keys that windows bind beside those of the menu, in portable form. Windows take theirs from
// here, and the table of keys in the help is made of it.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace kelvora {

enum class BoundKey {
  // The main window.
  menu,
  next_part,
  previous_part,
  next_window,
  previous_window,
  window_menu,
  // The food lists.
  often,
  add_to_morning,
  add_to_afternoon,
  add_to_evening,
  // A consumption list.
  other_amount,
  take_portion_out,
  move_to_morning,
  move_to_afternoon,
  move_to_evening,
  cut,
  copy,
  paste,
  add_to_favourites,
  take_over,
  undo,
  redo,
};

struct BoundKeyRow {
  BoundKey use;
  std::string_view keys;
};

// In the order of BoundKey.
inline constexpr std::array kBoundKeys = {
    BoundKeyRow{BoundKey::menu, "F10"},
    BoundKeyRow{BoundKey::next_part, "F6"},
    BoundKeyRow{BoundKey::previous_part, "Shift+F6"},
    BoundKeyRow{BoundKey::next_window, "Ctrl+Tab"},
    BoundKeyRow{BoundKey::previous_window, "Ctrl+Shift+Tab"},
    BoundKeyRow{BoundKey::window_menu, "Alt+-"},
    BoundKeyRow{BoundKey::often, "Alt+5"},
    BoundKeyRow{BoundKey::add_to_morning, "Ctrl+1"},
    BoundKeyRow{BoundKey::add_to_afternoon, "Ctrl+2"},
    BoundKeyRow{BoundKey::add_to_evening, "Ctrl+3"},
    BoundKeyRow{BoundKey::other_amount, "F2"},
    BoundKeyRow{BoundKey::take_portion_out, "Shift+Del"},
    BoundKeyRow{BoundKey::move_to_morning, "Ctrl+1"},
    BoundKeyRow{BoundKey::move_to_afternoon, "Ctrl+2"},
    BoundKeyRow{BoundKey::move_to_evening, "Ctrl+3"},
    BoundKeyRow{BoundKey::cut, "Ctrl+X"},
    BoundKeyRow{BoundKey::copy, "Ctrl+C"},
    BoundKeyRow{BoundKey::paste, "Ctrl+V"},
    BoundKeyRow{BoundKey::add_to_favourites, "Ctrl+D"},
    BoundKeyRow{BoundKey::take_over, "Ctrl+T"},
    BoundKeyRow{BoundKey::undo, "Ctrl+Z"},
    BoundKeyRow{BoundKey::redo, "Ctrl+Shift+Z"},
};
static_assert(std::ranges::all_of(kBoundKeys, [](const BoundKeyRow& row) {
  return &row == &kBoundKeys[static_cast<std::size_t>(row.use)];
}));

[[nodiscard]] constexpr std::string_view KeysOf(BoundKey use) {
  return kBoundKeys[static_cast<std::size_t>(use)].keys;
}

}  // namespace kelvora
