// The tests that a form must pass.
#include "days/day_form_check.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "days/day_settings.h"
#include "days/good_form.h"
#include "language/built_in_texts.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

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
        Case{kHeight, "1,,8", FormError::height}, Case{kHeight, "1..8", FormError::height},
        // What comes of feet and inches: three feet and three inches are 0.99 metres.
        Case{kHeight, "0.99", FormError::height}, Case{kHeight, "1.02", std::nullopt},
        Case{kHeight, "abcd", FormError::height}, Case{kHeight, "9.99", std::nullopt}));

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
        Case{kWeights, "80..5", FormError::weight}, Case{kWeights, "9.997176", FormError::weight},
        Case{kWeights, "10.00171", std::nullopt}, Case{kWeights, "0", FormError::weight},
        Case{kWeights, "00", FormError::weight}, Case{kWeights, "99", std::nullopt}));

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
                    Case{kDay, "01", std::nullopt}, Case{kDay, "00", std::nullopt},
                    Case{kMonth, "00", std::nullopt}, Case{kMonth, "01", std::nullopt},
                    Case{kMonth, "", FormError::date}, Case{kMonth, "3", FormError::date},
                    Case{kMonth, "13", FormError::date}, Case{kMonth, "12", std::nullopt},
                    Case{kYear, "", FormError::date}, Case{kYear, "4", FormError::date},
                    Case{kYear, "00", std::nullopt}, Case{kYear, "99", std::nullopt}));

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
    DayEditing editing = OpenDayEditing(test.program);
    editing.form = form;
    EXPECT_FALSE(ConfirmDay(test.program, editing));
    EXPECT_FALSE(editing.confirmed);
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
  DayEditing editing = OpenDayEditing(test.program);
  editing.form = form;
  EXPECT_TRUE(ConfirmDay(test.program, editing));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(FormCheckOrder, TheTextsInDutch) {
  TestProgram test;
  Make_Taal_Dutch(test.program.texts);
  const std::array<Text, 7> kTexts = {
      "Sommige velden bevatten ongeldige tekens.\nDe tekens half en driekwart kun je niet "
      "gebruiken.\n\nVerwijder deze tekens en probeer het opnieuw.",
      "De naam is niet ingevoerd.\nVoer een naam in en probeer het opnieuw.",
      "De lengte is niet correct ingevoerd.\nGebruik 1.80 meter of 5'10'' feet, inch.",
      "Het gewicht of het streefgewicht is niet correct ingevoerd.\nVoer je gewicht in en probeer "
      "het opnieuw.",
      "Het geslacht is niet gekozen.\nKies MAN of VROUW",
      "De leeftijd is niet ingevoerd.\nVoer een leeftijd in tussen de 13 en 99 jaar.",
      "De datum is niet correct ingevoerd.\nControleer de datum en probeer het opnieuw."};
  for (std::size_t i = 0; i < kTexts.size(); ++i) {
    EXPECT_EQ(TextOf(test.program.texts, static_cast<FormError>(i)), kTexts[i]);
  }
}

TEST(FormCheckOrder, AFailedTestChangesNothing) {
  TestProgram test;
  DayEditing editing = OpenDayEditing(test.program);
  editing.form = GoodForm();
  editing.form.pg_8 = "12";
  EXPECT_FALSE(ConfirmDay(test.program, editing));
  EXPECT_FALSE(std::filesystem::exists(test.program.paths.UsersPath + "Anna"));
  EXPECT_EQ(test.program.paths.UserName, "");
  EXPECT_FALSE(test.program.store.DayIsOpen());
  EXPECT_TRUE(test.program.store.L_gegevens.Empty());
  EXPECT_EQ(test.program.profile, Rec_Profile{});
  EXPECT_FALSE(test.program.day.FileChanged);
}

// Each error with a form that has it, and the box that a person then looks at.
TEST(WrongBox, IsTheOneThatTheErrorIsAbout) {
  struct Wrong {
    Text DayForm::*part;
    std::string_view value;
    std::string_view box;
  };
  for (const Wrong& row : {
           Wrong{&DayForm::pg_12, "\xBD", "pg_12"},
           Wrong{&DayForm::pg_14, "a\xBE", "pg_14"},
           Wrong{&DayForm::pg_7, "\xBD", "pg_7"},
           Wrong{&DayForm::pg_0, "", "pg_0"},
           Wrong{&DayForm::pg_5, "180", "txt_lengte_m"},
           Wrong{&DayForm::pg_6, "8", "txt_gewicht"},
           Wrong{&DayForm::pg_10, "7", "txt_streefgewicht"},
           Wrong{&DayForm::pg_7, "", "pg_7"},
           Wrong{&DayForm::pg_8, "12", "pg_8"},
           Wrong{&DayForm::pg_9_a, "32", "pg_9_a"},
           Wrong{&DayForm::pg_9_b, "13", "pg_9_b"},
           Wrong{&DayForm::pg_9_c, "4", "pg_9_c"},
       }) {
    DayForm form = GoodForm();
    form.*row.part = row.value;
    const auto error = CheckForm(form);
    ASSERT_TRUE(error.has_value()) << row.box;
    EXPECT_EQ(WrongBox(form, *error, UnitSystem::metric), row.box);
  }
  DayForm low = GoodForm();
  low.pg_5 = "180";
  EXPECT_EQ(WrongBox(low, FormError::height, UnitSystem::imperial_uk), "txt_lengte_i1");
}

}  // namespace
}  // namespace kelvora
