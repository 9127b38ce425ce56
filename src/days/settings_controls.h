// The settings dialog as a table: its groups, and in each the controls of what can be set, in their
// order on the page. The dialog draws it, and the table of settings in the help is made of it.
#pragma once

#include <optional>
#include <span>

#include "core/records.h"
#include "days/settings.h"
#include "language/tables.h"

namespace kelvora {

enum class SettingsGroup {
  startup,
  language_and_printer,
  folder,
  display,
  system,
  food_weight,
  internet,
  server,
};

struct SettingsGroupRow {
  SettingsGroup group;
  TextId page;  // the caption of the page it stands on
  TextId title;
};
[[nodiscard]] std::span<const SettingsGroupRow> SettingsGroups();

// A tick, one choice of an option, or a list or box that holds text.
struct SettingControl {
  SettingsGroup group;
  Setting setting;
  const char* name;
  TextId text;
  TextId tip;
  bool SettingsForm::*tick = nullptr;
  Text SettingsForm::*value = nullptr;
  std::optional<int> option = std::nullopt;  // the number that the choice is stored as
};
[[nodiscard]] std::span<const SettingControl> SettingControls();

}  // namespace kelvora
