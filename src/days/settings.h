// The settings as the settings dialog edits them: the form of its controls, which control depends
// on which, what takes effect on sight, and what saving does.
//
// The form is a copy of the settings. Only Save_From_Form brings it back; two things do not wait
// for it: the language and the help texts.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "core/program.h"

namespace kelvora {

// The controls by their names. A group of option buttons holds the number of the chosen one as
// text.
struct SettingsForm {
  bool chk_wiz = false;
  bool chk_profiel = false;
  Text Combo_taal;  // file name of the language file
  Text combo_printer;
  bool chk_map = false;
  Text txt_map;  // the other users folder, with its closing "/"
  bool chk_apply = false;
  bool chk_export = false;
  bool chk_all_screens = false;
  bool chk_help = false;
  Text opt_system;
  Text opt_gramoz;
  bool chk_internet = false;
  bool chk_addinternet = false;
  Text opt_server;

  bool operator==(const SettingsForm&) const = default;
};

// The controls that another control can disable.
struct EnabledControls {
  bool cmd_browse;
  bool chk_addinternet;
  bool opt_server;

  bool operator==(const EnabledControls&) const = default;
};

// The settings of the moment, what depends on the internet already in step.
[[nodiscard]] SettingsForm FormOfSettings(const Program& program);

// Whoever does not use the internet adds nothing to it.
void FollowInternet(SettingsForm& form);

// What a form lacks that can't be saved.
enum class MissingSetting { language, folder };
[[nodiscard]] std::optional<MissingSetting> MissingIn(const SettingsForm& form);

[[nodiscard]] EnabledControls EnabledIn(const SettingsForm& form);

// `names` with the chosen one, which stays a choice while the system lacks it.
[[nodiscard]] std::vector<Text> WithChosen(std::vector<Text> names, const Text& chosen);

// The printers of the system; none after a failure, which shows "#F8-3".
[[nodiscard]] std::vector<Text> PrinterNames(Program& program);

// Shows or hides help buttons and button texts at once.
void ShowHelp(Program& program, bool shown);

// Lets an open wizard tell the same as the form.
void FollowInWizard(const Program& program, const SettingsForm& form);

// Changes the language of the program at once, if `name` is another one than the form's. The
// settings know it from then on, their file does not. A failure shows "#F8-0".
void TakeLanguage(Program& program, SettingsForm& form, std::string_view name);

// Lets the user choose the folder for user data. A folder whose name this program can't keep, and
// any other failure, shows "#F8-1" and changes nothing.
void BrowseForFolder(Program& program, SettingsForm& form);

// Saves the form: settings, users folder (users_folder.h), server addresses, file, and every window
// that shows amounts. False with nothing changed after the box of something that is missing or of a
// users folder that takes no data, and false after a failure, which shows "#F8-2". Data that is
// already on disk does not move.
[[nodiscard]] bool Save_From_Form(Program& program, const SettingsForm& form);

}  // namespace kelvora
