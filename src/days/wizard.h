// The start-up wizard: its four options and what pressing OK does. Each option is a command of the
// main window under a friendlier caption; one that can't be given now can't be chosen either.
#pragma once

#include <array>
#include <optional>
#include <span>

#include "core/program.h"

namespace kelvora {

enum class WizardOption { new_day, open_day, settings, manual };
inline constexpr std::size_t kWizardOptionCount = 4;

struct WizardRow {
  WizardOption option;
  TextId caption;
  TextId explanation;
  TextId tip;
  std::string_view icon;
  Command command;
};

// One row an option, in the order of WizardOption.
[[nodiscard]] std::span<const WizardRow, kWizardOptionCount> WizardRows();

// True if the command of the option can be given now.
[[nodiscard]] bool OptionEnabled(const Program& program, WizardOption option);

// Whether the wizard comes up at each start, as the settings have it.
[[nodiscard]] bool WizardShownAtStart(const Program& program);

// The button OK: keeps the tick, then runs the option. Without one it closes the wizard; with one
// the wizard stays unless the window that takes over closes it.
void Confirm(Program& program, std::optional<WizardOption> option, bool show_at_start);

}  // namespace kelvora
