#include "core/frame/startup.h"

#include <cmath>

#include "core/frame/arrangement.h"
#include "core/frame/environment.h"
#include "core/frame/load_settings.h"
#include "days/wizard.h"
#include "internet/servers.h"
#include "language/language_file.h"
#include "nutrition/decimal_check.h"
#include "nutrition/numbers.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/settings_file.h"

namespace kelvora {
namespace {

void CaptureSeparator(Program& program) {
  program.StartSeparator = program.platform.locale.DecimalSeparator();
}

void ShowSplash(Program& program) {
  program.windows.core->ShowSplash();
}

void ShowMainWindow(Program& program) {
  program.windows.core->ShowMainWindow();
}

// Menu icons come with the menu's own rows.
void PutMenuIcons(Program&) {}

void LoadSettings(Program& program) {
  Load_Settings(program);
  Apply_Default_Settings(program);
}

void SetCaptions(Program& program) {
  program.windows.core->Set_Taal();
}

void BringCommandsInStep(Program& program) {
  program.windows.core->UpdateCommands();
}

void SetUpStatusBar(Program& program) {
  program.windows.core->UpdateStatusBar();
}

void BringMainWindowForward(Program& program) {
  program.windows.core->Set_Taal();
  program.windows.core->BringToFront();
}

void ShowWizard(Program& program) {
  if (WizardShownAtStart(program)) program.windows.core->OpenWindow(WindowId::wizard);
}

void CountStart(Program& program) {
  Text& count = program.settings[Setting::StartCount];
  count = Str(std::floor(Val(count)) + 1, ".");
  Save_Settings(program);
}

constexpr std::array kSteps = {
    &DetermineFolders,
    &CaptureSeparator,
    &ShowSplash,
    &ShowMainWindow,
    &PutMenuIcons,
    &LoadSettings,
    &Load_Databases,
    &ComputeDefaultGeometry,
    &Check_Language_Files,
    &ApplyAlternativeUsersFolder,
    &Zet_Server_Adressen,
    &LoadChosenLanguage,
    &SetCaptions,
    &CheckScreenResolution,
    &CheckDecimal,
    &CheckHalfCharacter,
    &BringCommandsInStep,
    &SetUpStatusBar,
    &CheckSeparatorIsValid,
    &BringMainWindowForward,
    &ShowWizard,
    &CountStart,
};

}  // namespace

void StartUp(Program& program) {
  for (const auto step : kSteps) step(program);
}

}  // namespace kelvora
