#include "days/settings.h"

#include <algorithm>

#include "days/settings_controls.h"
#include "days/users_folder.h"
#include "internet/servers.h"
#include "internet/update.h"
#include "language/choose_language.h"
#include "language/properties_texts.h"
#include "nutrition/totals.h"
#include "storage/folders.h"
#include "storage/settings_file.h"

namespace kelvora {
namespace {

using namespace properties_text;

Text FlagOf(bool tick) {
  return tick ? "1" : "0";
}

// The folder as a setting: with its closing "/". A character that the settings can't hold would
// point to another folder.
Text SettingOfFolder(std::string_view path) {
  Text folder = TextFromUtf8(path);
  if (Utf8FromText(folder) != path) ThrowSystemError(std::errc::illegal_byte_sequence);
  if (!folder.ends_with('/')) folder += '/';
  return folder;
}

// Tells what the form lacks; false if it lacks something.
bool IsComplete(Program& program, const SettingsForm& form) {
  const auto missing = MissingIn(form);
  if (missing == MissingSetting::language) {
    Tell(program, BoxIcon::warning, program.texts[kNoLanguage]);
  } else if (missing == MissingSetting::folder) {
    Tell(program, BoxIcon::warning, JoinLines(program.texts, {kNoFolder, kNoFolderAdvice}));
  }
  return !missing;
}

std::string UsersPathOf(const Program& program, const SettingsForm& form) {
  return form.chk_map ? Utf8FromText(form.txt_map) : DefaultUsersPath(program.platform.folders);
}

void CopyToSettings(const SettingsForm& form, Rec_Settings& settings) {
  for (const SettingControl& control : SettingControls()) {
    settings[control.setting] =
        control.tick != nullptr ? FlagOf(form.*control.tick) : form.*control.value;
  }
}

}  // namespace

SettingsForm FormOfSettings(const Program& program) {
  SettingsForm form;
  for (const SettingControl& control : SettingControls()) {
    const Text& stored = program.settings[control.setting];
    if (control.tick != nullptr) form.*control.tick = stored == "1";
    if (control.value != nullptr) form.*control.value = stored;
  }
  FollowInternet(form);
  return form;
}

void FollowInternet(SettingsForm& form) {
  if (!form.chk_internet) form.chk_addinternet = false;
}

std::optional<MissingSetting> MissingIn(const SettingsForm& form) {
  if (form.Combo_taal.empty()) return MissingSetting::language;
  if (form.chk_map && form.txt_map.empty()) return MissingSetting::folder;
  return std::nullopt;
}

EnabledControls EnabledIn(const SettingsForm& form) {
  return {.cmd_browse = form.chk_map,
          .chk_addinternet = form.chk_internet,
          .opt_server = form.chk_internet};
}

std::vector<Text> WithChosen(std::vector<Text> names, const Text& chosen) {
  if (!chosen.empty() && std::ranges::find(names, chosen) == names.end()) names.push_back(chosen);
  return names;
}

std::vector<Text> PrinterNames(Program& program) {
  std::vector<Text> names;
  program.Guard("#F8-3", [&] { names = program.platform.printers.Names(); });
  return names;
}

void ShowHelp(Program& program, bool shown) {
  program.settings[Setting::chk_help] = FlagOf(shown);
  if (program.windows.core != nullptr) program.windows.core->Set_toolbar_teksten();
}

void FollowInWizard(const Program& program, const SettingsForm& form) {
  if (program.windows.wizard != nullptr) program.windows.wizard->SetShowAtStart(form.chk_wiz);
}

void TakeLanguage(Program& program, SettingsForm& form, std::string_view name) {
  if (form.Combo_taal == name) return;
  form.Combo_taal = name;
  program.Guard("#F8-0", [&] {
    ChooseLanguage(program, form.Combo_taal);
    const OpenWindows& open = program.windows;
    for (WindowView* const window : {open.day_settings, open.new_food, open.export_html}) {
      if (window != nullptr) window->Set_Taal();
    }
    program.settings[Setting::Combo_taal] = form.Combo_taal;
  });
}

void BrowseForFolder(Program& program, SettingsForm& form) {
  program.Guard("#F8-1", [&] {
    const std::string start =
        form.txt_map.empty() ? program.paths.UsersPath : Utf8FromText(form.txt_map);
    const auto chosen = program.platform.folder_chooser.Choose(program.texts[kBrowsePrompt], start);
    if (chosen) form.txt_map = SettingOfFolder(*chosen);
  });
}

bool Save_From_Form(Program& program, const SettingsForm& form) {
  if (!IsComplete(program, form)) return false;
  const UserAction action(program.actions);
  bool followed = false;
  const bool done = program.Guard("#F8-2", [&] {
    followed = ChangeUsersFolder(program, UsersPathOf(program, form));
    if (!followed) return;
    CopyToSettings(form, program.settings);
    Zet_Server_Adressen(program);
    Save_Settings(program);
    FollowSettings(program);
    CheckForUpdateOnce(program);
    if (program.windows.core != nullptr) program.windows.core->UpdateCommands();
  });
  return done && followed;
}

}  // namespace kelvora
