#include "days/day_settings.h"

#include <array>

#include "days/day_form_check.h"
#include "days/open_day.h"
#include "days/targets.h"
#include "days/user_list.h"
#include "days/weekday.h"
#include "language/day_settings_texts.h"
#include "nutrition/dates.h"
#include "nutrition/totals.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/profile_file.h"
#include "storage/settings_file.h"

namespace kelvora {
namespace {

using namespace day_settings_text;

// The fields of a profile and where the form holds them; the order of the two differs.
struct ProfilePart {
  ProfileField field;
  Text DayForm::*part;
};
constexpr std::array kProfileParts = {
    ProfilePart{ProfileField::name, &DayForm::pg_0},
    ProfilePart{ProfileField::address_1, &DayForm::pg_1},
    ProfilePart{ProfileField::address_2, &DayForm::pg_2},
    ProfilePart{ProfileField::city, &DayForm::pg_3},
    ProfilePart{ProfileField::postcode, &DayForm::pg_4},
    ProfilePart{ProfileField::height, &DayForm::pg_5},
    ProfilePart{ProfileField::gender, &DayForm::pg_7},
    ProfilePart{ProfileField::age, &DayForm::pg_8},
    ProfilePart{ProfileField::weight, &DayForm::pg_6},
    ProfilePart{ProfileField::goal_weight, &DayForm::pg_10},
    ProfilePart{ProfileField::country, &DayForm::pg_12},
    ProfilePart{ProfileField::reference, &DayForm::pg_13},
    ProfilePart{ProfileField::remark, &DayForm::pg_14},
    ProfilePart{ProfileField::state, &DayForm::pg_15},
    ProfilePart{ProfileField::type_prioriteit, &DayForm::type_prioriteit},
    ProfilePart{ProfileField::txt_kj, &DayForm::txt_kj},
    ProfilePart{ProfileField::txt_kcal, &DayForm::txt_kcal},
    ProfilePart{ProfileField::txt_ovet, &DayForm::txt_ovet},
    ProfilePart{ProfileField::txt_vvet, &DayForm::txt_vvet},
    ProfilePart{ProfileField::txt_nat, &DayForm::txt_nat},
    ProfilePart{ProfileField::txt_ew, &DayForm::txt_ew},
    ProfilePart{ProfileField::txt_kdr, &DayForm::txt_kdr},
};
static_assert(kProfileParts.size() == kProfileFieldsInUse);

// The rows of the day header; the date, which is three parts of the form, has none.
constexpr std::array<Text DayForm::*, HeaderRow::kCount> kHeaderParts = {
    &DayForm::pg_0,  &DayForm::pg_1,  &DayForm::pg_2,  &DayForm::pg_3,  &DayForm::pg_4,
    &DayForm::pg_5,  &DayForm::pg_6,  &DayForm::pg_7,  &DayForm::pg_8,  nullptr,
    &DayForm::pg_10, &DayForm::pg_11, &DayForm::pg_12, &DayForm::pg_13, &DayForm::pg_15,
};
static_assert(kHeaderParts[HeaderRow::kDate] == nullptr);

// The form of a profile, dated today. The boxes of height and weights are not filled yet.
DayForm FormOf(const Rec_Profile& profile, const Program& program) {
  DayForm form;
  for (const auto& [field, part] : kProfileParts) form.*part = profile[field];
  form.type_prioriteit = std::to_string(static_cast<int>(PriorityOf(form.type_prioriteit)));
  SettleSliders(form);
  const LocalTime today = program.platform.clock.Now();
  form.pg_9_a = TwoDigits(today.day);
  form.pg_9_b = TwoDigits(today.month);
  form.pg_9_c = TwoDigits(today.year);
  form.pg_11 = WeekdayOf(program, today);
  return form;
}

// A profile that bears another name says nothing of this user: nobody is given another's data.
bool BelongsTo(const Rec_Profile& profile, std::string_view name) {
  return profile[ProfileField::name] == name;
}

DayForm FormOfUser(const Program& program, std::string_view name) {
  if (BelongsTo(program.profile, name)) return FormOf(program.profile, program);
  DayForm form = NewUserForm(program);
  form.pg_0 = name;
  return form;
}

void KeepWorkingCopy(const Program& program, DayEditing& editing) {
  editing.kept_profile = program.profile;
  editing.kept_trend = program.store.txt_trenddata;
  editing.applied_at_once = false;
}

void RefreshDayWindows(Program& program) {
  const OpenWindows& windows = program.windows;
  if (windows.day_summary != nullptr) windows.day_summary->Refresh_Daguittreksel();
  if (windows.multi_day != nullptr) windows.multi_day->Refresh_Meerdaagsuittreksel();
  for (ConsumptionView* const window : windows.consumption) {
    if (window != nullptr) window->Refresh_Consumpties();
  }
  windows.FollowSettings();
  Refresh_Totalen(program);
}

void RebuildBrowser(Program& program) {
  if (program.windows.browser == nullptr) return;
  program.windows.browser->Refresh_GebruikersLijst();
  program.windows.browser->Refresh_Files();
}

void UpdateCommands(Program& program) {
  if (program.windows.core != nullptr) program.windows.core->UpdateCommands();
}

// What only a new day needs, before the form is taken.
void BeginDay(Program& program, const Text& name) {
  const Platform& platform = program.platform;
  MakeUserFolders(program.paths, name);
  TakeOver(program, name);
  program.store.KV_bestand = NewDayFileName(platform.locale, platform.clock.Now());
  Load_Custom(program, CustomFile(program.paths, name));
  Load_Favorites(program, FavoritesFile(program.paths, name));
}

void TakeIntoDay(Program& program, const DayForm& form) {
  Apply_To_Profile(program, form);
  program.store.L_gegevens = HeaderOf(form);
  // Once more: the trend text takes the body weight out of the header.
  Apply_To_Profile(program, form);
  Save_Profile(program, ProfileFile(program.paths, form.pg_0));
  SetFileChanged(program, true);
  UpdateCommands(program);
}

bool UserWantsRemoval(Program& program, std::string_view name) {
  const TextTables& texts = program.texts;
  const Text user(name);
  const Box box{.title = texts[kDeleteTitle] + " " + user + texts[kDeleteTitleEnd],
                .text = texts[kDeleteGoing] + " " + user + " " + texts[kDeleteSure] + "\n" +
                        texts[kDeleteFiles],
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

void ForgetCurrentUser(Program& program) {
  program.paths.UserName.clear();
  program.paths.FilesPath.clear();
  program.profile = DefaultsOfNewUser();
  ForgetFoodsOfUser(program);
  FollowSettings(program);
  if (program.windows.core != nullptr) program.windows.core->UpdateStatusBar();
}

}  // namespace

DayForm NewUserForm(const Program& program) {
  return FormOf(DefaultsOfNewUser(), program);
}

DayEditing OpenDayEditing(const Program& program) {
  DayEditing editing;
  editing.mode = program.day.DayDialogMode;
  editing.form = NewUserForm(program);
  KeepWorkingCopy(program, editing);
  return editing;
}

TextList UsersForNewDay(Program& program) {
  TextList names;
  program.Guard("#F2-0", [&] { ReadUserNames(program, names); });
  return names;
}

void ChooseUserForDay(Program& program, DayEditing& editing, std::string_view name) {
  const Text user(name);
  // A profile that can't be opened leaves the working copy as it is, and what was applied to it
  // belongs to another user.
  program.profile = editing.kept_profile;
  program.Guard("#F2-1", [&] { ChooseUser(program, user); });
  KeepWorkingCopy(program, editing);
  editing.form = FormOfUser(program, user);
  FillBoxes(program, editing.form);
  UpdateCommands(program);
}

void EditOpenDay(Program& program, DayEditing& editing) {
  program.Guard("#F2-4", [&] {
    const TextList& day = program.store.L_gegevens;
    const Text user(program.paths.UserName.empty() ? day[HeaderRow::kName]
                                                   : std::string_view(program.paths.UserName));
    Load_Profile(program, ProfileFile(program.paths, user));
    FollowSettings(program);
    KeepWorkingCopy(program, editing);
    DayForm& form = editing.form;
    form = FormOfUser(program, user);
    // Without a profile the day itself still tells the person.
    const bool has_profile = BelongsTo(program.profile, user);
    for (std::size_t row = HeaderRow::kAddress1; row < kHeaderParts.size() && !has_profile; ++row) {
      if (kHeaderParts[row] != nullptr) form.*kHeaderParts[row] = day[row];
    }
    form.pg_6 = day[HeaderRow::kWeight];
    form.pg_8 = day[HeaderRow::kAge];
    form.pg_11 = day[HeaderRow::kWeekday];
    SplitDate(form, day[HeaderRow::kDate]);
    TellWhetherTyped(program, form);
    FillBoxes(program, form);
  });
}

TextId TitleOf(DayDialogMode mode) {
  return mode == DayDialogMode::new_day ? kTitleNewDay : kTitleDaySettings;
}

TextId InstructionFor(DayDialogMode mode, std::size_t users) {
  if (mode == DayDialogMode::day_settings) return kInfoDaySettings;
  if (users == 0) return kInfoNoUsers;
  return users == 1 ? kInfoOneUser : kInfoSeveralUsers;
}

void Apply_To_Profile(Program& program, const DayForm& form) {
  for (const auto& [field, part] : kProfileParts) program.profile[field] = form.*part;
  RefreshDayWindows(program);
}

void ApplyAtOnce(Program& program, DayEditing& editing) {
  if (!AppliesAtOnce(program)) return;
  editing.applied_at_once = true;
  program.Guard("#F2-5", [&] { Apply_To_Profile(program, editing.form); });
}

bool AppliesAtOnce(const Program& program) {
  return program.settings[Setting::chk_apply] == "1";
}

void SetAppliesAtOnce(Program& program, bool applies) {
  program.settings[Setting::chk_apply] = applies ? "1" : "0";
  Save_Settings(program);
}

TextList HeaderOf(const DayForm& form) {
  TextList rows;
  for (const auto part : kHeaderParts) {
    rows.Add(part == nullptr ? form.pg_9_a + "-" + form.pg_9_b + "-" + form.pg_9_c : form.*part);
  }
  return rows;
}

bool ConfirmDay(Program& program, DayEditing& editing) {
  const DayForm& form = editing.form;
  if (const auto error = CheckForm(form)) {
    Tell(program, BoxIcon::error, TextOf(program.texts, *error));
    return false;
  }
  const bool new_day = editing.mode == DayDialogMode::new_day;
  editing.confirmed = program.Guard("#F2-3", [&] {
    if (new_day) BeginDay(program, form.pg_0);
    TakeIntoDay(program, form);
    if (!new_day) RebuildBrowser(program);
  });
  editing.start_failed = new_day && !editing.confirmed;
  return editing.confirmed;
}

void ArrangeAfterConfirming(Program& program, const DayEditing& editing) {
  CoreView* const core = program.windows.core;
  if (editing.mode == DayDialogMode::new_day && core != nullptr) core->ArrangeWindows();
}

void CancelDay(Program& program, DayEditing& editing) {
  if (editing.confirmed) return;
  program.Guard("#F2-6", [&] {
    if (editing.start_failed) return CloseDay(program);
    if (!editing.applied_at_once) return;
    editing.applied_at_once = false;
    program.profile = editing.kept_profile;
    RefreshDayWindows(program);
    // With no day open the re-totalling leaves a text of zeros.
    program.store.txt_trenddata = editing.kept_trend;
  });
}

UserRemoval RemoveUser(Program& program, DayEditing& editing, std::string_view name) {
  const Text user(name);
  const bool wanted = UserWantsRemoval(program, user);
  const bool removed = program.Guard("#F2-7", [&] {
    if (!wanted) return;
    DeleteUserFolder(program.paths, program.paths.UsersPath + Utf8FromText(user));
    if (program.paths.UserName == user) ForgetCurrentUser(program);
    const KV_data& store = program.store;
    const bool day_is_theirs = store.DayIsOpen() && store.L_gegevens[HeaderRow::kName] == user;
    if (day_is_theirs) SetFileChanged(program, true);
    KeepWorkingCopy(program, editing);
    editing.form = NewUserForm(program);
    UpdateCommands(program);
  });
  RebuildBrowser(program);
  return wanted && removed ? UserRemoval::removed : UserRemoval::refused;
}

}  // namespace kelvora
