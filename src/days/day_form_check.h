// The tests that a form must pass before anything of it is kept.
#pragma once

#include <optional>

#include "days/day_form.h"

namespace kelvora {

// What a form can lack, in the order of the tests.
enum class FormError { illegal_characters, name, height, weight, gender, age, date };

// The first test that the form fails. No test knows the calendar: day 31 passes in any month.
[[nodiscard]] std::optional<FormError> CheckForm(const DayForm& form);

// The name of the box that an error is about.
[[nodiscard]] std::string_view WrongBox(const DayForm& form, FormError error, UnitSystem system);

// The lines of the box for an error.
[[nodiscard]] Text TextOf(const TextTables& texts, FormError error);

}  // namespace kelvora
