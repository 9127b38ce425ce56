// The person and the day as they are typed: what each field takes, what a form must hold, and how
// a form becomes the open day, the profile and the folders of its user.
//
// The form is a copy: nothing of it reaches the store before StartDay. Its values are metric; the
// texts that it ends in are those of the day header and of the profile.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "core/program.h"

namespace kelvora {

struct DayForm {
  Text pg_0;                        // user name, which is also the name of the folder
  Text pg_1, pg_2, pg_3, pg_4;      // address, city, postcode
  Text pg_5;                        // height, metres
  Text pg_6;                        // weight, kilograms
  Text pg_7;                        // gender, as the list of the moment words it
  Text pg_8;                        // age, years
  Text pg_9_a, pg_9_b, pg_9_c;      // day, month, year; two digits each
  Text pg_10;                       // goal weight, kilograms
  Text pg_11;                       // name of the weekday
  Text pg_12, pg_13, pg_14, pg_15;  // country, reference ID, remark, state
  Text type_prioriteit;
  Text txt_kj, txt_kcal, txt_ovet, txt_vvet, txt_nat, txt_ew, txt_kdr;

  bool operator==(const DayForm&) const = default;
};

// What the keyboard may put into a text box.
enum class KeyFilter { none, whole_number, decimal };

// One text box of the first tab: the part of the form that it shows and how much it takes.
struct DayField {
  std::string_view name;
  Text DayForm::*part;
  std::size_t limit;  // characters
  KeyFilter filter;
  TextId caption;
};

enum class DayFieldId {
  pg_0,
  pg_8,
  txt_lengte_m,
  txt_streefgewicht,
  pg_9_a,
  pg_9_b,
  pg_9_c,
  pg_11,
  txt_gewicht,
};
inline constexpr std::size_t kDayFieldCount = 9;

// The text boxes, in the order of DayFieldId, which is also that of the Tab key.
[[nodiscard]] std::span<const DayField, kDayFieldCount> DayFields();

// Whole numbers take digits and nothing else.
[[nodiscard]] bool AcceptsWholeNumberKey(char key);
[[nodiscard]] Text FilterWholeNumber(std::string_view typed);

// Decimals take digits and the decimal separator, which "." and "," both become.
[[nodiscard]] Text FilterDecimal(std::string_view typed, std::string_view separator);

// What a box makes of a text that was typed or pasted into it.
[[nodiscard]] Text ApplyKeyFilter(KeyFilter filter, std::string_view typed,
                                  std::string_view separator);

// Takes what the box shows into the form. A stored value longer than the box shows only its start
// there, and stays whole until something else is typed.
void TakeField(DayForm& form, const DayField& field, std::string_view shown);

// The form of someone who has not filled in anything yet, dated today.
[[nodiscard]] DayForm NewUserForm(const Program& program);

// The names that the user list shows. A user without a readable profile ends the list with
// "#F2-0".
[[nodiscard]] TextList UsersForNewDay(Program& program);

// Makes `name` the current user and gives the form of the profile, dated today. A failure shows
// "#F2-1".
[[nodiscard]] DayForm ChooseUserForDay(Program& program, std::string_view name);

// The line above the tabs, by the number of users there are.
[[nodiscard]] TextId InstructionFor(std::size_t users);

// The date of the form as users of the unit system read it; empty while it is incomplete.
[[nodiscard]] Text DateHint(Program& program, const DayForm& form);

// The grey words beside the fields: the same value in other units, and the date. Each is empty
// while its field is empty.
struct DayHints {
  Text lbl_lengteinfo, lbl_gewichtinfo, lbl_streefgewichtinfo, lbl_datuminfo;
};

// A failure shows "#F2-2" and leaves the hints as far as they came.
[[nodiscard]] DayHints DrawCoversionsText(Program& program, const DayForm& form);

// What a form can lack, in the order of the tests.
enum class FormError { illegal_characters, name, height, weight, gender, age, date };

// The first test that the form fails. No test knows the calendar: day 31 passes in any month.
[[nodiscard]] std::optional<FormError> CheckForm(const DayForm& form);

// The lines of the box for an error.
[[nodiscard]] Text TextOf(const TextTables& texts, FormError error);

// Copies the form into the working copy of the profile, refreshes the consumption windows and
// re-totals the day.
void Apply_To_Profile(Program& program, const DayForm& form);

// The day header of the form: fifteen rows.
[[nodiscard]] TextList HeaderOf(const DayForm& form);

// Begins the day: makes the folders of the user and makes that user current, names the day file,
// and brings the form into the store and the profile file. A user of that name keeps all days; the
// profile is written anew. False with nothing changed after the box of a failed test, and false
// after a failure, which shows "#F2-3".
[[nodiscard]] bool StartDay(Program& program, const DayForm& form);

}  // namespace kelvora
