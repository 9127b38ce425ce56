#include "days/settings_controls.h"

#include <array>

#include "language/properties_texts.h"

namespace kelvora {
namespace {

using namespace properties_text;
using Form = SettingsForm;
using Group = SettingsGroup;

// In the order of SettingsGroup.
constexpr std::array kGroups = {
    SettingsGroupRow{Group::startup, kTabGeneral, kGroupStartup},
    SettingsGroupRow{Group::language_and_printer, kTabGeneral, kGroupLanguageAndPrinter},
    SettingsGroupRow{Group::folder, kTabGeneral, kGroupFolder},
    SettingsGroupRow{Group::display, kTabDisplay, kGroupDisplay},
    SettingsGroupRow{Group::system, kTabDisplay, kGroupSystem},
    SettingsGroupRow{Group::food_weight, kTabDisplay, kGroupFoodWeight},
    SettingsGroupRow{Group::internet, kTabInternet, kGroupInternet},
    SettingsGroupRow{Group::server, kTabInternet, kGroupServer},
};

constexpr SettingControl Tick(Group group, Setting setting, const char* name, bool Form::*tick,
                              TextId text, TextId tip) {
  return {group, setting, name, text, tip, tick};
}

constexpr SettingControl TextOf(Group group, Setting setting, const char* name, Text Form::*value,
                                TextId text, TextId tip) {
  return {group, setting, name, text, tip, nullptr, value};
}

constexpr SettingControl Option(Group group, Setting setting, const char* name, int number,
                                Text Form::*value, TextId text, TextId tip) {
  return {group, setting, name, text, tip, nullptr, value, number};
}

constexpr std::array kControls = {
    Tick(Group::startup, Setting::chk_wiz, "chk_wiz", &Form::chk_wiz, kShowWizard, kTipShowWizard),
    Tick(Group::startup, Setting::chk_profiel, "chk_profiel", &Form::chk_profiel, kShowProfile,
         kTipShowProfile),
    TextOf(Group::language_and_printer, Setting::Combo_taal, "Combo_taal", &Form::Combo_taal,
           kSelectLanguage, kTipSelectLanguage),
    TextOf(Group::language_and_printer, Setting::combo_printer, "combo_printer",
           &Form::combo_printer, kSelectPrinter, kTipSelectPrinter),
    Tick(Group::folder, Setting::chk_map, "chk_map", &Form::chk_map, kOtherFolder, kTipOtherFolder),
    TextOf(Group::folder, Setting::txt_map, "txt_map", &Form::txt_map, kFolderLabel, kFolder),
    Tick(Group::display, Setting::chk_apply, "chk_apply", &Form::chk_apply, kApplyProfile,
         kTipApplyProfile),
    Tick(Group::display, Setting::chk_export, "chk_export", &Form::chk_export, kCloseExport,
         kTipCloseExport),
    Tick(Group::display, Setting::chk_all_screens, "chk_all_screens", &Form::chk_all_screens,
         kSummaryBelowList, kTipSummaryBelowList),
    Tick(Group::display, Setting::chk_help, "chk_help", &Form::chk_help, kHelpButtons,
         kTipHelpButtons),
    Option(Group::system, Setting::opt_system, "opt_system", 0, &Form::opt_system, kMetric,
           kTipMetric),
    Option(Group::system, Setting::opt_system, "opt_system", 1, &Form::opt_system, kImperialUs,
           kTipImperialUs),
    Option(Group::system, Setting::opt_system, "opt_system", 2, &Form::opt_system, kImperialUk,
           kTipImperialUk),
    Option(Group::food_weight, Setting::opt_gramoz, "opt_gramoz", 0, &Form::opt_gramoz, kGrams,
           kTipGrams),
    Option(Group::food_weight, Setting::opt_gramoz, "opt_gramoz", 1, &Form::opt_gramoz, kOunces,
           kTipOunces),
    Tick(Group::internet, Setting::chk_internet, "chk_internet", &Form::chk_internet, kUseInternet,
         kTipUseInternet),
    Tick(Group::internet, Setting::chk_addinternet, "chk_addinternet", &Form::chk_addinternet,
         kAddToInternet, kTipAddToInternet),
    Option(Group::server, Setting::opt_server, "opt_server", 0, &Form::opt_server, kServerEtenlijn,
           kTipServerEtenlijn),
    Option(Group::server, Setting::opt_server, "opt_server", 1, &Form::opt_server, kServerBitewell,
           kTipServerBitewell),
};

}  // namespace

std::span<const SettingsGroupRow> SettingsGroups() {
  return kGroups;
}

std::span<const SettingControl> SettingControls() {
  return kControls;
}

}  // namespace kelvora
