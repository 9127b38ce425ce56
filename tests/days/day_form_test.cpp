// What may be typed into a form, and the tests that a form must pass.
#include <filesystem>
#include <gtest/gtest.h>

#include "days/day_settings.h"
#include "days/good_form.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

TEST(KeyFilters, AWholeNumberTakesDigitsOnly) {
  for (int code = 0; code < 256; ++code) {
    const char key = static_cast<char>(code);
    EXPECT_EQ(AcceptsWholeNumberKey(key), code >= 48 && code <= 57) << code;
  }
  EXPECT_EQ(FilterWholeNumber("42"), "42");
  EXPECT_EQ(FilterWholeNumber("4,2.x 7"), "427");
  EXPECT_EQ(FilterWholeNumber("-1/2\xBD"), "12");
  EXPECT_EQ(FilterWholeNumber("abc"), "");
}

TEST(KeyFilters, ADecimalTakesDigitsAndMakesBothMarksTheSeparator) {
  EXPECT_EQ(FilterDecimal("1.80", "."), "1.80");
  EXPECT_EQ(FilterDecimal("1,80", "."), "1.80");
  EXPECT_EQ(FilterDecimal("1.80", ","), "1,80");
  EXPECT_EQ(FilterDecimal("1,8.0", ","), "1,8,0");
  EXPECT_EQ(FilterDecimal(" 70\xBD kg-", "."), "70");
  EXPECT_EQ(FilterDecimal("1.8", "#"), "1#8");
}

TEST(KeyFilters, EachFieldHasItsLimitAndItsFilter) {
  struct Expected {
    std::string_view name;
    std::size_t limit;
    KeyFilter filter;
  };
  constexpr std::array<Expected, 9> kExpected = {{{"pg_0", 30, KeyFilter::none},
                                                  {"pg_8", 2, KeyFilter::whole_number},
                                                  {"txt_lengte_m", 4, KeyFilter::decimal},
                                                  {"txt_streefgewicht", 6, KeyFilter::decimal},
                                                  {"pg_9_a", 2, KeyFilter::whole_number},
                                                  {"pg_9_b", 2, KeyFilter::whole_number},
                                                  {"pg_9_c", 2, KeyFilter::whole_number},
                                                  {"pg_11", 9, KeyFilter::none},
                                                  {"txt_gewicht", 6, KeyFilter::decimal}}};
  for (std::size_t i = 0; i < kExpected.size(); ++i) {
    EXPECT_EQ(DayFields()[i].name, kExpected[i].name);
    EXPECT_EQ(DayFields()[i].limit, kExpected[i].limit) << kExpected[i].name;
    EXPECT_EQ(DayFields()[i].filter, kExpected[i].filter) << kExpected[i].name;
  }
  EXPECT_EQ(ApplyKeyFilter(KeyFilter::none, "A.b,1 ", ","), "A.b,1 ");
  EXPECT_EQ(ApplyKeyFilter(KeyFilter::whole_number, "1.2", ","), "12");
  EXPECT_EQ(ApplyKeyFilter(KeyFilter::decimal, "1.2", ","), "1,2");
}

TEST(Fields, AStoredValueLongerThanItsBoxStaysWholeUntilSomethingElseIsTyped) {
  const DayField& weight = DayFields()[static_cast<std::size_t>(DayFieldId::txt_gewicht)];
  DayForm form;
  form.pg_6 = "102.0582";
  TakeField(form, weight, "102.05");
  EXPECT_EQ(form.pg_6, "102.0582");
  TakeField(form, weight, "102.0");
  EXPECT_EQ(form.pg_6, "102.0");
  TakeField(form, weight, "");
  EXPECT_EQ(form.pg_6, "");
}

// The tests of a form.

using Parts = std::vector<Text DayForm::*>;

struct Case {
  Parts parts;
  std::string_view value;
  std::optional<FormError> error;
};

class FormChecks : public testing::TestWithParam<Case> {};

TEST_P(FormChecks, TellTheFirstThatFails) {
  for (const auto part : GetParam().parts) {
    DayForm form = GoodForm();
    form.*part = GetParam().value;
    EXPECT_EQ(CheckForm(form), GetParam().error) << GetParam().value;
  }
}

const Parts kName = {&DayForm::pg_0};
const Parts kHeight = {&DayForm::pg_5};
const Parts kWeights = {&DayForm::pg_6, &DayForm::pg_10};
const Parts kGender = {&DayForm::pg_7};
const Parts kAge = {&DayForm::pg_8};
const Parts kDay = {&DayForm::pg_9_a};
const Parts kMonth = {&DayForm::pg_9_b};
const Parts kYear = {&DayForm::pg_9_c};
const Parts kFreeText = {&DayForm::pg_0,  &DayForm::pg_1,  &DayForm::pg_2,  &DayForm::pg_3,
                         &DayForm::pg_4,  &DayForm::pg_5,  &DayForm::pg_6,  &DayForm::pg_7,
                         &DayForm::pg_8,  &DayForm::pg_10, &DayForm::pg_11, &DayForm::pg_12,
                         &DayForm::pg_13, &DayForm::pg_14, &DayForm::pg_15};

INSTANTIATE_TEST_SUITE_P(
    IllegalCharacters, FormChecks,
    testing::Values(
        Case{kFreeText, "80.5\xBD", FormError::illegal_characters},
        Case{kFreeText,
             "\xBE"
             "80.5",
             FormError::illegal_characters},
        // Their neighbours in the code page are letters like any other.
        Case{{&DayForm::pg_0, &DayForm::pg_1, &DayForm::pg_14}, "\xBC\xBF", std::nullopt}));

INSTANTIATE_TEST_SUITE_P(Name, FormChecks,
                         testing::Values(Case{kName, "", FormError::name},
                                         Case{kName, "A", std::nullopt},
                                         Case{kName, " ", std::nullopt}));

INSTANTIATE_TEST_SUITE_P(
    Height, FormChecks,
    testing::Values(
        Case{kHeight, "1.80", std::nullopt}, Case{kHeight, "1,80", std::nullopt},
        Case{kHeight, "10.5", std::nullopt}, Case{kHeight, "1.,8", std::nullopt},
        Case{kHeight, "", FormError::height}, Case{kHeight, "1.8", FormError::height},
        Case{kHeight, ",180", FormError::height}, Case{kHeight, ".180", FormError::height},
        Case{kHeight, "0.80", FormError::height}, Case{kHeight, "180,", FormError::height},
        Case{kHeight, "180.", FormError::height}, Case{kHeight, "1800", FormError::height},
        Case{kHeight, "1,,8", FormError::height}, Case{kHeight, "1..8", FormError::height}));

INSTANTIATE_TEST_SUITE_P(
    Weights, FormChecks,
    testing::Values(
        Case{kWeights, "10", std::nullopt}, Case{kWeights, "999.99", std::nullopt},
        Case{kWeights, "70,5", std::nullopt}, Case{kWeights, "70.,5", std::nullopt},
        Case{kWeights, "", FormError::weight}, Case{kWeights, "9", FormError::weight},
        Case{kWeights, "9.9", FormError::weight}, Case{kWeights, "9,9", FormError::weight},
        Case{kWeights, ",80", FormError::weight}, Case{kWeights, ".80", FormError::weight},
        Case{kWeights, "080", FormError::weight}, Case{kWeights, "80,", FormError::weight},
        Case{kWeights, "80.", FormError::weight}, Case{kWeights, "80,,5", FormError::weight},
        Case{kWeights, "80..5", FormError::weight}));

INSTANTIATE_TEST_SUITE_P(
    GenderAndAge, FormChecks,
    testing::Values(Case{kGender, "", FormError::gender}, Case{kGender, "Man", std::nullopt},
                    Case{kAge, "", FormError::age}, Case{kAge, "1", FormError::age},
                    Case{kAge, "12", FormError::age}, Case{kAge, "13", std::nullopt},
                    Case{kAge, "99", std::nullopt}));

INSTANTIATE_TEST_SUITE_P(
    Date, FormChecks,
    testing::Values(Case{kDay, "", FormError::date}, Case{kDay, "5", FormError::date},
                    Case{kDay, "32", FormError::date}, Case{kDay, "31", std::nullopt},
                    Case{kDay, "01", std::nullopt}, Case{kMonth, "", FormError::date},
                    Case{kMonth, "3", FormError::date}, Case{kMonth, "13", FormError::date},
                    Case{kMonth, "12", std::nullopt}, Case{kYear, "", FormError::date},
                    Case{kYear, "4", FormError::date}, Case{kYear, "00", std::nullopt},
                    Case{kYear, "99", std::nullopt}));

TEST(FormCheckOrder, ThirtyFirstOfFebruaryPasses) {
  DayForm form = GoodForm();
  form.pg_9_a = "31";
  form.pg_9_b = "02";
  EXPECT_EQ(CheckForm(form), std::nullopt);
}

TEST(FormCheckOrder, TheSevenTestsComeInTheirOrderEachWithItsText) {
  TestProgram test;
  DayForm form;
  form.pg_14 = "\xBD";
  const auto complaint_after = [&](auto repair) {
    test.boxes.shown.clear();
    EXPECT_FALSE(StartDay(test.program, form));
    repair();
    if (test.boxes.shown.size() != 1) return Text("not one box");
    EXPECT_EQ(test.boxes.shown[0].title, "Kelvora FOOD");
    EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::error);
    EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::ok);
    return test.boxes.shown[0].text;
  };
  EXPECT_EQ(complaint_after([&] { form.pg_14.clear(); }),
            "Some fields contain illegal characters.\nThe characters half and three-quarters can "
            "not be used.\n\nRemove these characters and try again.");
  EXPECT_EQ(complaint_after([&] { form.pg_0 = "Anna"; }),
            "You did not enter a name.\nPlease enter a name and try again.");
  EXPECT_EQ(complaint_after([&] { form.pg_5 = "1.80"; }),
            "You did not enter your height correctly.\nUse 1.80 meter or 5'10'' feet, inch.");
  EXPECT_EQ(complaint_after([&] { form.pg_6 = form.pg_10 = "80"; }),
            "You did not enter your weight or goal weight correctly.\nPlease enter your weight and "
            "try again.");
  EXPECT_EQ(complaint_after([&] { form.pg_7 = "Male"; }),
            "You did not select a gender.\nSelect MALE or FEMALE");
  EXPECT_EQ(complaint_after([&] { form.pg_8 = "42"; }),
            "You did not enter your age.\nPlease enter an age between 13 and 99 years.");
  EXPECT_EQ(complaint_after([&] { form.pg_9_a = form.pg_9_b = form.pg_9_c = "05"; }),
            "You did not enter the date correctly.\nCheck the date and try again.");
  test.boxes.shown.clear();
  EXPECT_TRUE(StartDay(test.program, form));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(FormCheckOrder, AFailedTestChangesNothing) {
  TestProgram test;
  DayForm form = GoodForm();
  form.pg_8 = "12";
  EXPECT_FALSE(StartDay(test.program, form));
  EXPECT_FALSE(std::filesystem::exists(test.program.paths.UsersPath + "Anna"));
  EXPECT_EQ(test.program.paths.UserName, "");
  EXPECT_FALSE(test.program.store.DayIsOpen());
  EXPECT_TRUE(test.program.store.L_gegevens.Empty());
  EXPECT_EQ(test.program.profile, Rec_Profile{});
  EXPECT_FALSE(test.program.day.FileChanged);
}

}  // namespace
}  // namespace kelvora
