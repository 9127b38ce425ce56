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

constexpr int kMostDays = 31, kMostMonths = 12, kMostYears = 99;
constexpr std::string_view kGenderBox = "pg_7";

std::string_view NameOf(DayFieldId id) {
  return FieldOfId(id).name;
}

std::string_view BoxWithATerminator(const DayForm& form) {
  const auto fields = DayFields();
  const auto field = std::ranges::find_if(
      fields, [&](const DayField& one) { return HoldsTerminator(form.*one.part); });
  return field == fields.end() ? kGenderBox : field->name;
}

bool DatePartIsWrong(std::string_view part, int highest) {
  return part.size() < 2 || Val(part) > highest;
}

std::string_view WrongDateBox(const DayForm& form) {
  if (DatePartIsWrong(form.pg_9_a, kMostDays)) return NameOf(DayFieldId::pg_9_a);
  if (DatePartIsWrong(form.pg_9_b, kMostMonths)) return NameOf(DayFieldId::pg_9_b);
  return NameOf(DayFieldId::pg_9_c);
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
            return DatePartIsWrong(form.pg_9_a, kMostDays) ||
                   DatePartIsWrong(form.pg_9_b, kMostMonths) ||
                   DatePartIsWrong(form.pg_9_c, kMostYears);
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

std::string_view WrongBox(const DayForm& form, FormError error, UnitSystem system) {
  switch (error) {
    case FormError::illegal_characters:
      return BoxWithATerminator(form);
    case FormError::name:
      return NameOf(DayFieldId::pg_0);
    case FormError::height:
      return NameOf(system == UnitSystem::metric ? DayFieldId::txt_lengte_m
                                                 : DayFieldId::txt_lengte_i1);
    case FormError::weight:
      return NameOf(WeightIsWrong(form.pg_6) ? DayFieldId::txt_gewicht
                                             : DayFieldId::txt_streefgewicht);
    case FormError::gender:
      return kGenderBox;
    case FormError::age:
      return NameOf(DayFieldId::pg_8);
    case FormError::date:
      break;
  }
  return WrongDateBox(form);
}

Text TextOf(const TextTables& texts, FormError error) {
  const Check& check = kChecks[static_cast<std::size_t>(error)];
  if (error == FormError::illegal_characters) {
    return JoinLines(texts, {check.complaint, check.advice, std::nullopt, kRemoveCharacters});
  }
  return JoinLines(texts, {check.complaint, check.advice});
}

}  // namespace kelvora
