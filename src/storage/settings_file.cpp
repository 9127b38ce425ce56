#include "storage/settings_file.h"

#include <algorithm>

#include "core/common.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

struct SettingDefault {
  Setting setting;
  std::string_view value;
};

constexpr std::string_view kDefaultLanguage = "default.lsf";

// Only the settings whose default is not the empty text.
constexpr std::array kDefaults = {
    SettingDefault{Setting::Combo_taal, kDefaultLanguage},
    SettingDefault{Setting::chk_wiz, "1"},
    SettingDefault{Setting::chk_profiel, "1"},
    SettingDefault{Setting::reserved_11, "1"},
    SettingDefault{Setting::reserved_12, "0"},
    SettingDefault{Setting::StartCount, "0"},
    SettingDefault{Setting::opt_system, "0"},
    SettingDefault{Setting::chk_map, "0"},
    SettingDefault{Setting::opt_gramoz, "0"},
    SettingDefault{Setting::opt_server, "0"},
    SettingDefault{Setting::chk_apply, "1"},
    SettingDefault{Setting::chk_export, "1"},
    SettingDefault{Setting::chk_all_screens, "0"},
    SettingDefault{Setting::chk_internet, "1"},
    SettingDefault{Setting::chk_addinternet, "1"},
    SettingDefault{Setting::SearchCount, "0"},
    SettingDefault{Setting::SubmitCount, "0"},
    SettingDefault{Setting::SearchBytes, "0"},
    SettingDefault{Setting::chk_help, "1"},
};

}  // namespace

bool ReadSettingsFile(Program& program) {
  program.settings = {};
  try {
    const std::string bytes = ReadFile(program.paths.SettingsFile);
    // A file with less than a count holds no setting at all: as good as none.
    constexpr std::size_t kShortest = 4;
    auto record = DecodeRecord<Rec_Settings>(bytes);
    if (!record || bytes.size() < kShortest) return false;
    program.settings = *std::move(record);
    return true;
  } catch (const std::exception&) {
    // No failure of the program: the caller makes new settings.
    return false;
  }
}

void Apply_Default_Settings(Program& program) {
  Rec_Settings& settings = program.settings;
  for (const auto& [setting, value] : kDefaults) {
    if (settings[setting].empty()) settings[setting] = value;
  }
  FallBackOnDefaultLanguage(program);
}

Text DefaultOf(Setting setting) {
  const auto row = std::ranges::find(kDefaults, setting, &SettingDefault::setting);
  return row == kDefaults.end() ? Text() : Text(row->value);
}

void FallBackOnDefaultLanguage(Program& program) {
  Text& language = program.settings[Setting::Combo_taal];
  if (!FileExists(program.paths.LanguagePath + Utf8FromText(language))) language = kDefaultLanguage;
}

bool Save_Settings(Program& program) {
  return program.Guard("#FF1-0",
                       [&] { WriteRecord(program.paths.SettingsFile, program.settings); });
}

}  // namespace kelvora
