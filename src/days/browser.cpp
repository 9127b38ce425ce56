#include "days/browser.h"

#include "days/day_form.h"
#include "days/open_day.h"
#include "days/user_list.h"
#include "language/browse_texts.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/kept_files.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"
#include "storage/untaken_diary.h"

namespace kelvora {
namespace {

using namespace browse_text;

// A weight of the profile with its unit; empty if there is none.
Text WeightWithUnit(Program& program, const Text& kilograms) {
  if (kilograms.empty()) return {};
  constexpr std::array kUnits = {kUnitKilogram, kUnitPounds, kUnitStones};  // as UnitSystem
  const TextId unit = kUnits[static_cast<std::size_t>(UnitSystemOf(program))];
  return BrowsedWeight(program, kilograms) + " " + program.texts[unit];
}

Text HeightWithUnit(Program& program, Text metres) {
  if (metres.empty()) return {};
  const UnitContext units = UnitsOf(program);
  if (UnitSystemOf(program) != UnitSystem::metric) {
    const Text feet = Meter_To_Feet_Inch(metres, HeightPart::feet, units);
    return feet + "'" + Meter_To_Feet_Inch(metres, HeightPart::inches, units) + "''";
  }
  return FormatNumber(ReadStoredNumber(metres), "0.00", units.locale.DecimalSeparator()) + " " +
         program.texts[kUnitMeter];
}

bool AskYesNo(Program& program, TextId title, Text text) {
  const Box box{.title = program.texts[title],
                .text = std::move(text),
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

bool MayCloseDayForUser(Program& program) {
  if (program.store.L_gegevens.Empty() && !program.store.DayIsOpen()) return true;
  if (!MayCloseDiaryWithDay(program)) return false;
  return AskYesNo(program, kSwitchTitle,
                  JoinLines(program.texts, {kSwitchGoing, kSwitchLost, std::nullopt, kSwitchSure}));
}

bool MayDelete(Program& program, const DayRow& row) {
  const TextTables& texts = program.texts;
  const Text sure = texts[kDeleteSure] + " " + row.cells[BrowseColumn::kDate] + " " +
                    texts[kDeleteSureEnd] + "\n";
  return AskYesNo(program, kDeleteTitle,
                  sure + JoinLines(texts, {std::nullopt, kDeletePressYes, kDeletePressNo}));
}

}  // namespace

void TellOfUnreadUsers(Program& program, const UserList& list) {
  list.unread.Report(program.FailurePath(), "#F3-2");
}

UserSwitch SwitchUser(Program& program, const User& user) {
  if (IsCurrent(program, user)) return UserSwitch::same;
  const User chosen = user;  // the list that it stands in may be rebuilt
  UserSwitch result = UserSwitch::refused;
  program.Guard("#F3-3", [&] {
    if (!HasFolder(program, chosen)) {
      if (program.windows.browser != nullptr) program.windows.browser->Refresh_GebruikersLijst();
      ThrowSystemError(std::errc::no_such_file_or_directory);
    }
    if (!MayCloseDayForUser(program) || !MayLeaveUser(program)) return;
    result = UserSwitch::switched;
    CloseDay(program);
    ChooseUser(program, chosen);
    if (program.windows.browser != nullptr) program.windows.browser->Refresh_Files();
    if (program.windows.core != nullptr) program.windows.core->UpdateCommands();
  });
  return result;
}

void OpenDayOf(Program& program, const DayRow& row) {
  // The row belongs to a list that may be rebuilt while the day is opened.
  const DayRow chosen = row;
  const bool can_be_opened = program.Guard("#F3-5", [&] {
    try {
      const InputFile file(chosen.path);
    } catch (const std::exception&) {
      if (program.windows.browser != nullptr) program.windows.browser->Refresh_Files();
      throw;
    }
  });
  if (!can_be_opened) return;
  const std::string name = chosen.path.substr(chosen.folder.size());
  LoadDay(program, chosen.folder, name);
  const bool loaded =
      program.store.DayIsOpen() && NameOfDayFile(program) == name && !program.day.FileChanged;
  // Unsaved work that the user wanted to keep stays marked as unsaved.
  if (loaded) AfterOpenDay(program);
}

bool DeleteDayOf(Program& program, const DayRow& row) {
  const std::string path = row.path;
  if (!MayDelete(program, row)) return false;
  return program.Guard("#F3-6", [&] {
    DeleteFileIfThere(path);
    if (program.windows.browser != nullptr) program.windows.browser->Refresh_Files();
  });
}

ProfilePane ProfilePaneOf(Program& program) {
  ProfilePane pane;
  if (program.paths.UserName.empty()) return pane;
  program.Guard("#F3-4", [&] {
    const Rec_Profile& profile = program.profile;
    pane.heading = program.texts[kProfileOf] + " " + program.paths.UserName + ":";
    if (!BelongsTo(profile, program.paths.UserName)) return;
    pane.lbl_pr = {profile[ProfileField::reference],
                   WeightWithUnit(program, profile[ProfileField::weight]),
                   WeightWithUnit(program, profile[ProfileField::goal_weight]),
                   HeightWithUnit(program, profile[ProfileField::height]),
                   profile[ProfileField::gender],
                   profile[ProfileField::age]};
  });
  return pane;
}

bool ProfilePaneShown(const Program& program) {
  return program.settings[Setting::chk_profiel] == "1";
}

void SetProfilePaneShown(Program& program, bool shown) {
  program.settings[Setting::chk_profiel] = shown ? "1" : "0";
  Save_Settings(program);
}

}  // namespace kelvora
