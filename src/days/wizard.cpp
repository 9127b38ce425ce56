#include "days/wizard.h"

#include "language/wizard_texts.h"
#include "storage/settings_file.h"

namespace kelvora {
namespace {

using namespace wizard_text;

constexpr std::array<WizardRow, kWizardOptionCount> kOptions = {{
    {WizardOption::new_day, kNewDay, kNewDayLine, kTipNewDay, "new", Command::mnu_new},
    {WizardOption::open_day, kOpenDay, kOpenDayLine, kTipOpenDay, "open", Command::mnu_browse},
    {WizardOption::settings, kSettings, kSettingsLine, kTipSettings, "settings",
     Command::mnu_properties},
    {WizardOption::manual, kManual, kManualLine, kTipManual, "help", Command::mnu_help_index},
}};
static_assert([] {
  for (std::size_t i = 0; i < kOptions.size(); ++i) {
    if (kOptions[i].option != static_cast<WizardOption>(i)) return false;
  }
  return true;
}());

Command CommandOf(WizardOption option) {
  return kOptions[static_cast<std::size_t>(option)].command;
}

}  // namespace

std::span<const WizardRow, kWizardOptionCount> WizardRows() {
  return kOptions;
}

bool OptionEnabled(const Program& program, WizardOption option) {
  const CoreView* const core = program.windows.core;
  return core != nullptr && core->CommandEnabled(CommandOf(option));
}

bool WizardShownAtStart(const Program& program) {
  return program.settings[Setting::chk_wiz] == "1";
}

void Confirm(Program& program, std::optional<WizardOption> option, bool show_at_start) {
  program.settings[Setting::chk_wiz] = show_at_start ? "1" : "0";
  Save_Settings(program);
  if (option) {
    if (program.windows.core != nullptr) program.windows.core->GiveCommand(CommandOf(*option));
  } else if (program.windows.wizard != nullptr) {
    program.windows.wizard->CloseWindow();
  }
}

}  // namespace kelvora
