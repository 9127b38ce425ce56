#include "days/day_settings.h"

#include <array>

#include "days/day_form_check.h"
#include "days/kept_state.h"
#include "days/open_day.h"
#include "days/targets.h"
#include "days/weekday.h"
#include "language/day_settings_texts.h"
#include "language/own_texts.h"
#include "nutrition/dates.h"
#include "nutrition/totals.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/kept_files.h"
#include "storage/profile_file.h"
#include "storage/recovery_copy.h"
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
void BeginDay(Program& program, const User& user) {
  const Platform& platform = program.platform;
  TakeOver(program, user);
  MakeUserFolders(program.paths, user.name);
  program.store.KV_bestand = NewDayFileName(platform.locale, platform.clock.Now());
  LoadFoodsOfUser(program);
}

// False if the profile can't be written.
bool TakeIntoDay(Program& program, const DayForm& form) {
  Apply_To_Profile(program, form);
  program.store.L_gegevens = HeaderOf(form);
  // Once more: the trend text takes the body weight out of the header.
  Apply_To_Profile(program, form);
  if (!Save_Profile(program, ProfileFile(program.paths, form.pg_0))) return false;
  SetFileChanged(program, true);
  UpdateCommands(program);
  return true;
}

// Undoes what was done before the profile could not be written.
void PutBack(Program& program, const KeptState& before) {
  before.PutBack(program);
  RefreshDayWindows(program);
  ShowFoodsOfUser(program);
  if (program.windows.core != nullptr) program.windows.core->UpdateStatusBar();
  UpdateCommands(program);
  // The re-totalling has made the trend text anew.
  before.PutBack(program);
}

// The user of a confirmed form: the chosen one, or the one whose name was typed.
User UserOf(const DayEditing& editing) {
  return editing.user.value_or(UserNamed(editing.form.pg_0));
}

// Whether the form may be taken; says why not.
bool Passes(Program& program, DayEditing& editing) {
  editing.look_at = {};
  if (const auto error = CheckForm(editing.form)) {
    editing.look_at = WrongBox(editing.form, *error, UnitSystemOf(program));
    Tell(program, BoxIcon::error, TextOf(program.texts, *error));
    return false;
  }
  // The folder of a chosen user is there already, whatever the user is called.
  const bool new_user = editing.mode == DayDialogMode::new_day && !editing.user;
  if (new_user && !CanNameAFolder(editing.form.pg_0)) {
    editing.look_at = FieldOfId(DayFieldId::pg_0).name;
    Tell(program, BoxIcon::error,
         OwnTextOf(program.texts, OwnText::name_not_possible) + "\n" +
             OwnTextOf(program.texts, OwnText::name_advice));
    return false;
  }
  return true;
}

bool UserWantsRemoval(Program& program, const Text& user) {
  const TextTables& texts = program.texts;
  const Box box{.title = texts[kDeleteTitle] + " " + user + texts[kDeleteTitleEnd],
                .text = texts[kDeleteGoing] + " " + user + " " + texts[kDeleteSure] + "\n" +
                        texts[kDeleteFiles],
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

void ForgetCurrentUser(Program& program) {
  program.paths.UserName.clear();
  program.paths.UserFolderName.clear();
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

void TellOfUnreadUsersForDay(Program& program, const UserList& list) {
  list.unread.Report(program.FailurePath(), "#F2-0");
}

bool ChooseUserForDay(Program& program, DayEditing& editing, const User& user) {
  if (!IsCurrent(program, user) && !MayLeaveUser(program)) return false;
  editing.user = user;
  // A profile that can't be opened leaves the working copy as it is, and what was applied to it
  // belongs to another user.
  program.profile = editing.kept_profile;
  program.Guard("#F2-1", [&] { ChooseUser(program, user); });
  KeepWorkingCopy(program, editing);
  editing.form = FormOfUser(program, user.name);
  FillBoxes(program, editing.form);
  UpdateCommands(program);
  return true;
}

void BeginNewUser(Program& program, DayEditing& editing) {
  editing.user.reset();
  editing.form = NewUserForm(program);
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
  if (!Passes(program, editing)) return false;
  const bool new_day = editing.mode == DayDialogMode::new_day;
  const User user = UserOf(editing);
  if (new_day && !IsCurrent(program, user) && !MayLeaveUser(program)) return false;
  const KeptState before(program, program.paths.UsersPath + user.folder_name + "/");
  bool taken = false;
  const bool completed = program.Guard("#F2-3", [&] {
    if (new_day) BeginDay(program, user);
    taken = TakeIntoDay(program, editing.form);
    if (!taken) return PutBack(program, before);
    if (!new_day) RebuildBrowser(program);
  });
  editing.confirmed = completed && taken;
  editing.start_failed = new_day && !completed;
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

UserRemoval RemoveUser(Program& program, DayEditing& editing, const User& chosen) {
  const User user = chosen;  // the list that it stands in is rebuilt
  const bool wanted = UserWantsRemoval(program, user.name);
  const bool removed = program.Guard("#F2-7", [&] {
    if (!wanted) return;
    const std::string folder = program.paths.UsersPath + user.folder_name;
    const KV_data& store = program.store;
    const bool day_is_theirs =
        store.DayIsOpen() &&
        UserFolder(program.paths, store.L_gegevens[HeaderRow::kName]) == folder + "/";
    DeleteUserFolder(program.paths, folder);
    RemoveRecoveryCopiesBelow(program.paths, folder + "/");
    if (IsCurrent(program, user)) ForgetCurrentUser(program);
    if (day_is_theirs) SetFileChanged(program, true);
    KeepWorkingCopy(program, editing);
    BeginNewUser(program, editing);
    UpdateCommands(program);
  });
  RebuildBrowser(program);
  return wanted && removed ? UserRemoval::removed : UserRemoval::refused;
}

}  // namespace kelvora
