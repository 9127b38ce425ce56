#include "core/frame/startup.h"

#include <cmath>

#include "core/frame/arrangement.h"
#include "core/frame/environment.h"
#include "core/frame/load_settings.h"
#include "core/frame/net.h"
#include "days/wizard.h"
#include "internet/servers.h"
#include "keeping/backup_reminder.h"
#include "keeping/recovery_offer.h"
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

void MakeLanguageFiles(Program& program) {
  Check_Language_Files(program);
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

// A count that no number of starts can be begins anew.
void CountStart(Program& program) {
  constexpr double kMostStarts = 999'999'998;
  Text& count = program.settings[Setting::StartCount];
  const double starts = std::floor(Val(count));
  count = Str(starts >= 0 && starts <= kMostStarts ? starts + 1 : 1, ".");
  Save_Settings(program);
}

constexpr std::array kSteps = {
    &DetermineFolders,
    &CaptureSeparator,
    &FillWithDefaultTexts,
    &ShowSplash,
    &ShowMainWindow,
    &PutMenuIcons,
    &LoadSettings,
    &Load_Databases,
    &ComputeDefaultGeometry,
    &MakeLanguageFiles,
    &ApplyAlternativeUsersFolder,
    &Zet_Server_Adressen,
    &LoadChosenLanguage,
    &SetCaptions,
    &CheckScreenResolution,
    &CheckDecimal,
    &CheckHalfCharacter,
    &BringCommandsInStep,
    &LoadBackupReminder,
    &SetUpStatusBar,
    &CheckSeparatorIsValid,
    &BringMainWindowForward,
    &ShowWizard,
    &CountStart,
    &OfferRecoveryCopies,
};

}  // namespace

void StartUp(Program& program) {
  const UserAction action(program.actions);
  for (const auto step : kSteps) {
    if (program.ending) return;
    RunStep(program, step);
  }
}

}  // namespace kelvora
