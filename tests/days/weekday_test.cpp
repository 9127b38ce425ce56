// The weekday of the day dialog: it follows the date until somebody types another one, and it is
// always a word that text can hold.
#include "days/weekday.h"

#include <gtest/gtest.h>

#include "days/day_settings.h"
#include "days/good_form.h"
#include "language/built_in_texts.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

class Weekday : public testing::Test {
 protected:
  Text WeekdayFor(std::string_view day, std::string_view month, std::string_view year) {
    TakeField(program, form, DayFieldId::pg_9_a, day);
    TakeField(program, form, DayFieldId::pg_9_b, month);
    TakeField(program, form, DayFieldId::pg_9_c, year);
    return form.pg_11;
  }

  TestProgram test;
  Program& program = test.program;
  DayForm form = NewUserForm(program);
};

// The weekdays are those of a printed calendar.
TEST_F(Weekday, FollowsTheDateBoxes) {
  EXPECT_EQ(form.pg_11, "Friday");
  EXPECT_EQ(WeekdayFor("06", "03", "04"), "Saturday");
  EXPECT_EQ(WeekdayFor("29", "02", "04"), "Sunday");
  EXPECT_EQ(WeekdayFor("31", "12", "99"), "Friday");
  EXPECT_EQ(WeekdayFor("22", "11", "26"), "Sunday");
}

TEST_F(Weekday, StaysWhereTheBoxesHoldNoDate) {
  EXPECT_EQ(WeekdayFor("06", "03", "04"), "Saturday");
  for (const auto& [day, month, year] :
       {std::array{"31", "02", "04"}, std::array{"29", "02", "03"}, std::array{"00", "03", "04"},
        std::array{"01", "13", "04"}, std::array{"7", "03", "04"}, std::array{"", "", ""}}) {
    form.pg_9_a = day;
    form.pg_9_b = month;
    form.pg_9_c = year;
    FollowDate(program, form);
    EXPECT_EQ(form.pg_11, "Saturday") << day << month << year;
  }
  EXPECT_EQ(WeekdayFor("07", "03", "04"), "Sunday");
}

// No more than fifty years away.
TEST_F(Weekday, TakesTheYearThatIsNearest) {
  const auto year_of = [&](const char* two_digits) {
    form.pg_9_c = two_digits;
    return DateOf(program, form)->year;
  };
  EXPECT_EQ(year_of("00"), 2000);
  EXPECT_EQ(year_of("54"), 2054);
  EXPECT_EQ(year_of("55"), 1955);
  EXPECT_EQ(year_of("99"), 1999);
  test.clock.now.year = 2070;
  EXPECT_EQ(year_of("10"), 2110);
  EXPECT_EQ(year_of("19"), 2119);
  EXPECT_EQ(year_of("20"), 2020);
}

TEST_F(Weekday, ThatSomebodyTypedStays) {
  TakeField(program, form, DayFieldId::pg_11, "Rest day");
  EXPECT_EQ(WeekdayFor("06", "03", "04"), "Rest day");
  TakeField(program, form, DayFieldId::pg_11, "");
  EXPECT_EQ(WeekdayFor("07", "03", "04"), "");
  // The date's own name puts it back to following.
  TakeField(program, form, DayFieldId::pg_11, "sunday");
  EXPECT_EQ(WeekdayFor("08", "03", "04"), "Monday");
}

TEST_F(Weekday, IsTheSystemsWordWhereTextHoldsIt) {
  test.locale.weekday = "mercoled\xEC";
  EXPECT_EQ(NewUserForm(program).pg_11, "mercoled\xEC");
}

TEST_F(Weekday, IsTheProgramsWordWhereTextCannotHoldTheSystems) {
  const std::array english = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                              "Thursday", "Friday", "Saturday"};
  const std::array dutch = {"zondag",    "maandag", "dinsdag", "woensdag",
                            "donderdag", "vrijdag", "zaterdag"};
  // Nothing that text holds, and ten characters, one more than the box takes.
  for (const char* system : {"", "Donnerstag"}) {
    test.locale.weekday = system;
    for (int day = 0; day < 7; ++day) {
      const auto place = static_cast<std::size_t>(day);
      const LocalTime date{.year = 2004, .month = 3, .day = 7 + day};  // from a Sunday on
      Make_Taal_English(program.texts);
      EXPECT_EQ(WeekdayOf(program, date), english[place]);
      Make_Taal_Dutch(program.texts);
      EXPECT_EQ(WeekdayOf(program, date), dutch[place]);
    }
  }
}

// The open day.

class WeekdayOfADay : public testing::Test {
 protected:
  WeekdayOfADay() {
    DayEditing begun = OpenDayEditing(program);
    begun.form = GoodForm();
    EXPECT_TRUE(ConfirmDay(program, begun));
    program.day.DayDialogMode = DayDialogMode::day_settings;
  }
  // The weekday after the date was put to Saturday the 6th.
  Text AfterAnotherDate(std::string_view stored) {
    program.store.L_gegevens.Replace(HeaderRow::kWeekday, stored);
    DayEditing editing = OpenDayEditing(program);
    EditOpenDay(program, editing);
    EXPECT_EQ(editing.form.pg_11, stored);
    TakeField(program, editing.form, DayFieldId::pg_9_a, "06");
    return editing.form.pg_11;
  }
  TestProgram test;
  Program& program = test.program;
};

TEST_F(WeekdayOfADay, FollowsIfItIsThatOfTheStoredDate) {
  EXPECT_EQ(AfterAnotherDate("Friday"), "Saturday");
}

TEST_F(WeekdayOfADay, FollowsInWhicheverLanguageItWasStored) {
  EXPECT_EQ(AfterAnotherDate("vrijdag"), "Saturday");
  test.locale.weekday = "Venerd\xEC";
  EXPECT_EQ(AfterAnotherDate("venerd\xEC"), "Venerd\xEC");
}

TEST_F(WeekdayOfADay, StaysIfItIsTheUsersOwn) {
  for (const char* own : {"Saturday", "Rest day", ""}) EXPECT_EQ(AfterAnotherDate(own), own);
}

}  // namespace
}  // namespace kelvora
