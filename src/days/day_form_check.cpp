#include "days/day_form_check.h"

#include <algorithm>
#include <array>

#include "language/day_settings_texts.h"
#include "nutrition/numbers.h"

namespace kelvora {
namespace {

using namespace day_settings_text;

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

}  // namespace

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

}  // namespace kelvora
