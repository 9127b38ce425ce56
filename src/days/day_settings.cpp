#include "days/day_settings.h"

#include <algorithm>

#include "days/open_day.h"
#include "days/user_list.h"
#include "language/day_settings_texts.h"
#include "nutrition/dates.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/profile_file.h"

namespace kelvora {
namespace {

using namespace day_settings_text;

constexpr std::size_t kWeekdayLimit = 9;

constexpr std::array<DayField, kDayFieldCount> kFields = {{
    {"pg_0", &DayForm::pg_0, 30, KeyFilter::none, kName},
    {"pg_8", &DayForm::pg_8, 2, KeyFilter::whole_number, kAge},
    {"txt_lengte_m", &DayForm::pg_5, 4, KeyFilter::decimal, kHeight},
    {"txt_streefgewicht", &DayForm::pg_10, 6, KeyFilter::decimal, kGoalWeight},
    {"pg_9_a", &DayForm::pg_9_a, 2, KeyFilter::whole_number, kDateDay},
    {"pg_9_b", &DayForm::pg_9_b, 2, KeyFilter::whole_number, kDateMonth},
    {"pg_9_c", &DayForm::pg_9_c, 2, KeyFilter::whole_number, kDateYear},
    {"pg_11", &DayForm::pg_11, kWeekdayLimit, KeyFilter::none, kWeekday},
    {"txt_gewicht", &DayForm::pg_6, 6, KeyFilter::decimal, kWeight},
}};

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

// Everything that is typed freely somewhere and ends in a packed line.
constexpr std::array kFreeParts = {
    &DayForm::pg_0,  &DayForm::pg_1,  &DayForm::pg_2,  &DayForm::pg_3,  &DayForm::pg_4,
    &DayForm::pg_5,  &DayForm::pg_6,  &DayForm::pg_7,  &DayForm::pg_8,  &DayForm::pg_10,
    &DayForm::pg_11, &DayForm::pg_12, &DayForm::pg_13, &DayForm::pg_14, &DayForm::pg_15,
};

bool IsMark(char c) {
  return c == ',' || c == '.';
}

// What no number may look like: a mark or a zero in front, a mark at the end, two marks in a row.
bool IsMisshapen(std::string_view number) {
  return IsMark(number.front()) || number.front() == '0' || IsMark(number.back()) ||
         number.find(",,") != std::string_view::npos || number.find("..") != std::string_view::npos;
}

bool HeightIsWrong(std::string_view height) {
  return height.size() < 4 || IsMisshapen(height) || std::ranges::none_of(height, &IsMark);
}

// A mark in the second place means a weight below 10, which nobody has.
bool WeightIsWrong(std::string_view weight) {
  return weight.size() < 2 || weight.find_first_of(",.") == 1 || IsMisshapen(weight);
}

bool DatePartIsWrong(std::string_view part, int highest) {
  return part.size() < 2 || Val(part) > highest;
}

struct Check {
  FormError error;
  bool (*fails)(const DayForm& form);
  TextId complaint;
  TextId advice;
};
constexpr std::array kChecks = {
    Check{FormError::illegal_characters,
          [](const DayForm& form) {
            return std::ranges::any_of(kFreeParts,
                                       [&](auto part) { return HoldsTerminator(form.*part); });
          },
          kIllegalCharacters, kHalfNotAllowed},
    Check{FormError::name, [](const DayForm& form) { return form.pg_0.empty(); }, kNoName,
          kEnterName},
    Check{FormError::height, [](const DayForm& form) { return HeightIsWrong(form.pg_5); },
          kWrongHeight, kEnterHeight},
    Check{FormError::weight,
          [](const DayForm& form) { return WeightIsWrong(form.pg_6) || WeightIsWrong(form.pg_10); },
          kWrongWeight, kEnterWeight},
    Check{FormError::gender, [](const DayForm& form) { return form.pg_7.empty(); }, kNoGender,
          kSelectGender},
    Check{FormError::age,
          [](const DayForm& form) { return form.pg_8.empty() || Val(form.pg_8) < 13; }, kNoAge,
          kEnterAge},
    Check{FormError::date,
          [](const DayForm& form) {
            return DatePartIsWrong(form.pg_9_a, 31) || DatePartIsWrong(form.pg_9_b, 12) ||
                   DatePartIsWrong(form.pg_9_c, 99);
          },
          kWrongDate, kCheckDate},
};
static_assert([] {
  for (std::size_t i = 0; i < kChecks.size(); ++i) {
    if (kChecks[i].error != static_cast<FormError>(i)) return false;
  }
  return true;
}());

Text DateOf(const DayForm& form) {
  return form.pg_9_a + "-" + form.pg_9_b + "-" + form.pg_9_c;
}

// The form of a profile; the date of a new day is always today.
DayForm FormOf(const Rec_Profile& profile, const Platform& platform) {
  DayForm form;
  for (const auto& [field, part] : kProfileParts) form.*part = profile[field];
  const LocalTime today = platform.clock.Now();
  form.pg_9_a = TwoDigits(today.day);
  form.pg_9_b = TwoDigits(today.month);
  form.pg_9_c = TwoDigits(today.year);
  form.pg_11 = platform.locale.WeekdayName(today).substr(0, kWeekdayLimit);
  return form;
}

Text HeightHint(Program& program, Text metres) {
  if (metres.empty()) return {};
  const UnitContext units = UnitsOf(program);
  const Text feet = Meter_To_Feet_Inch(metres, HeightPart::feet, units);
  const Text inches = Meter_To_Feet_Inch(metres, HeightPart::inches, units);
  const Text shown =
      FormatNumber(ReadStoredNumber(metres), "0.00", units.locale.DecimalSeparator());
  return "(" + shown + " " + program.texts[kMeter] + " = " + feet + "'" + inches + "'')";
}

Text WeightHint(Program& program, Text kilograms) {
  if (kilograms.empty()) return {};
  const UnitContext units = UnitsOf(program);
  const Text pounds = Kg_To_Lbs(kilograms, units);
  const Text shown =
      FormatNumber(ReadStoredNumber(kilograms), "##0.00", units.locale.DecimalSeparator());
  return "(" + shown + " " + program.texts[kKilogram] + " = " + pounds + " " +
         program.texts[kPounds] + ")";
}

}  // namespace

std::span<const DayField, kDayFieldCount> DayFields() {
  return kFields;
}

bool AcceptsWholeNumberKey(char key) {
  return key >= '0' && key <= '9';
}

Text FilterWholeNumber(std::string_view typed) {
  Text kept;
  std::ranges::copy_if(typed, std::back_inserter(kept), &AcceptsWholeNumberKey);
  return kept;
}

Text FilterDecimal(std::string_view typed, std::string_view separator) {
  Text kept;
  for (const char key : typed) {
    if (AcceptsWholeNumberKey(key)) kept += key;
    if (IsMark(key)) kept += separator;
  }
  return kept;
}

Text ApplyKeyFilter(KeyFilter filter, std::string_view typed, std::string_view separator) {
  switch (filter) {
    case KeyFilter::none:
      break;
    case KeyFilter::whole_number:
      return FilterWholeNumber(typed);
    case KeyFilter::decimal:
      return FilterDecimal(typed, separator);
  }
  return Text(typed);
}

void TakeField(DayForm& form, const DayField& field, std::string_view shown) {
  Text& stored = form.*field.part;
  if (std::string_view(stored).substr(0, field.limit) != shown) stored = shown;
}

DayForm NewUserForm(const Program& program) {
  return FormOf(DefaultsOfNewUser(), program.platform);
}

TextList UsersForNewDay(Program& program) {
  TextList names;
  program.Guard("#F2-0", [&] { ReadUserNames(program, names); });
  return names;
}

DayForm ChooseUserForDay(Program& program, std::string_view name) {
  program.Guard("#F2-1", [&] { ChooseUser(program, name); });
  return FormOf(program.profile, program.platform);
}

TextId InstructionFor(std::size_t users) {
  if (users == 0) return kInfoNoUsers;
  return users == 1 ? kInfoOneUser : kInfoSeveralUsers;
}

Text DateHint(Program& program, const DayForm& form) {
  for (const Text* part : {&form.pg_9_a, &form.pg_9_b, &form.pg_9_c}) {
    if (part->size() < 2) return {};
  }
  return Format_Datum(DateOf(form), program.settings[Setting::opt_system], UnitsOf(program));
}

DayHints DrawCoversionsText(Program& program, const DayForm& form) {
  DayHints hints;
  program.Guard("#F2-2", [&] {
    hints.lbl_lengteinfo = HeightHint(program, form.pg_5);
    hints.lbl_gewichtinfo = WeightHint(program, form.pg_6);
    hints.lbl_streefgewichtinfo = WeightHint(program, form.pg_10);
    hints.lbl_datuminfo = DateHint(program, form);
  });
  return hints;
}

std::optional<FormError> CheckForm(const DayForm& form) {
  const auto failed = std::ranges::find_if(kChecks, [&](const Check& c) { return c.fails(form); });
  if (failed == kChecks.end()) return std::nullopt;
  return failed->error;
}

Text TextOf(const TextTables& texts, FormError error) {
  const Check& check = kChecks[static_cast<std::size_t>(error)];
  if (error == FormError::illegal_characters) {
    return JoinLines(texts, {check.complaint, check.advice, std::nullopt, kRemoveCharacters});
  }
  return JoinLines(texts, {check.complaint, check.advice});
}

void Apply_To_Profile(Program& program, const DayForm& form) {
  for (const auto& [field, part] : kProfileParts) program.profile[field] = form.*part;
  for (ConsumptionView* const window : program.windows.consumption) {
    if (window != nullptr) window->Refresh_Consumpties();
  }
  Refresh_Totalen(program);
}

TextList HeaderOf(const DayForm& form) {
  TextList rows;
  for (const auto part : kHeaderParts) rows.Add(part == nullptr ? DateOf(form) : form.*part);
  return rows;
}

bool StartDay(Program& program, const DayForm& form) {
  if (const auto error = CheckForm(form)) {
    Tell(program, BoxIcon::error, TextOf(program.texts, *error));
    return false;
  }
  return program.Guard("#F2-3", [&] {
    const Platform& platform = program.platform;
    MakeUserFolders(program.paths, form.pg_0);
    SetCurrentUser(program, form.pg_0);
    program.store.KV_bestand = NewDayFileName(platform.locale, platform.clock.Now());
    Load_Custom(program, CustomFile(program.paths, form.pg_0));
    Load_Favorites(program, FavoritesFile(program.paths, form.pg_0));
    Apply_To_Profile(program, form);
    program.store.L_gegevens = HeaderOf(form);
    // Once more: the trend text takes the body weight out of the header.
    Apply_To_Profile(program, form);
    Save_Profile(program, ProfileFile(program.paths, form.pg_0));
    SetFileChanged(program, true);
    if (program.windows.core != nullptr) program.windows.core->UpdateCommands();
  });
}

}  // namespace kelvora
