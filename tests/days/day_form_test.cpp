// What may be typed into the boxes, and what becomes of it in the form.
#include "days/day_form.h"

#include <gtest/gtest.h>

#include "days/good_form.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

struct Box {
  std::string_view name;
  std::size_t limit;
  KeyFilter filter;
};
constexpr std::array<Box, kDayFieldCount> kBoxes = {{{"pg_0", 30, KeyFilter::none},
                                                     {"pg_8", 2, KeyFilter::whole_number},
                                                     {"txt_lengte_m", 4, KeyFilter::decimal},
                                                     {"txt_lengte_i1", 1, KeyFilter::whole_number},
                                                     {"txt_lengte_i2", 2, KeyFilter::whole_number},
                                                     {"txt_streefgewicht", 6, KeyFilter::decimal},
                                                     {"pg_9_a", 2, KeyFilter::whole_number},
                                                     {"pg_9_b", 2, KeyFilter::whole_number},
                                                     {"pg_9_c", 2, KeyFilter::whole_number},
                                                     {"pg_11", 9, KeyFilter::none},
                                                     {"txt_gewicht", 6, KeyFilter::decimal},
                                                     {"pg_1", 30, KeyFilter::none},
                                                     {"pg_2", 30, KeyFilter::none},
                                                     {"pg_3", 30, KeyFilter::none},
                                                     {"pg_4", 10, KeyFilter::none},
                                                     {"pg_15", 30, KeyFilter::none},
                                                     {"pg_12", 30, KeyFilter::none},
                                                     {"pg_13", 10, KeyFilter::none},
                                                     {"pg_14", 500, KeyFilter::none}}};

TEST(Boxes, EachHasItsLimitAndItsFilter) {
  for (std::size_t i = 0; i < kBoxes.size(); ++i) {
    EXPECT_EQ(DayFields()[i].name, kBoxes[i].name);
    EXPECT_EQ(DayFields()[i].limit, kBoxes[i].limit) << kBoxes[i].name;
    EXPECT_EQ(DayFields()[i].filter, kBoxes[i].filter) << kBoxes[i].name;
    EXPECT_EQ(&FieldOfId(static_cast<DayFieldId>(i)), &DayFields()[i]);
  }
}

TEST(Boxes, TakeWhatTheirFieldTellsAndRemarksTakeLines) {
  for (std::size_t i = 0; i < kBoxes.size(); ++i) {
    const EntryRule rule = EntryRuleOf(static_cast<DayFieldId>(i));
    EXPECT_EQ(rule.limit, kBoxes[i].limit) << kBoxes[i].name;
    EXPECT_EQ(rule.filter, kBoxes[i].filter) << kBoxes[i].name;
    EXPECT_EQ(rule.many_lines, kBoxes[i].name == "pg_14") << kBoxes[i].name;
  }
}

// Taking fields.

class Fields : public testing::Test {
 protected:
  void UseSystem(const char* number) { program.settings[Setting::opt_system] = number; }
  void Take(DayFieldId id, std::string_view shown) { TakeField(program, form, id, shown); }

  TestProgram test;
  Program& program = test.program;
  DayForm form;
};

TEST_F(Fields, MetricMeasuresGoIntoTheFormAsTyped) {
  Take(DayFieldId::txt_lengte_m, "1,80");
  Take(DayFieldId::txt_gewicht, "70.5");
  Take(DayFieldId::txt_streefgewicht, "65,");
  EXPECT_EQ(form.pg_5, "1,80");
  EXPECT_EQ(form.pg_6, "70.5");
  EXPECT_EQ(form.pg_10, "65,");
}

// Divided by 2.2046225071 with an independent tool; the hidden field holds eight characters.
TEST_F(Fields, PoundsBecomeKilogramsOfEightCharacters) {
  for (const char* system : {"1", "2"}) {
    UseSystem(system);
    Take(DayFieldId::txt_gewicht, "154.32");
    EXPECT_EQ(form.pg_6, "69.99837");
    EXPECT_EQ(form.txt_gewicht, "154.32");
    Take(DayFieldId::txt_streefgewicht, "176");
    EXPECT_EQ(form.pg_10, "79.83226");
    Take(DayFieldId::txt_gewicht, "22.04");
    EXPECT_EQ(form.pg_6, "9.997176");
    Take(DayFieldId::txt_gewicht, "22.05");
    EXPECT_EQ(form.pg_6, "10.00171");
    Take(DayFieldId::txt_gewicht, "999999");
    EXPECT_EQ(form.pg_6, "453591.9");
    Take(DayFieldId::txt_gewicht, "");
    EXPECT_EQ(form.pg_6, "");
  }
}

TEST_F(Fields, ConvertedNumbersTakeTheSeparatorOfTheLocale) {
  UseSystem("1");
  test.locale.separator = ",";
  Take(DayFieldId::txt_gewicht, "154,32");
  EXPECT_EQ(form.pg_6, "69,99837");
  Take(DayFieldId::txt_lengte_i1, "5");
  Take(DayFieldId::txt_lengte_i2, "10");
  EXPECT_EQ(form.pg_5, "1,78");
}

TEST_F(Fields, FeetAndInchesBecomeMetresOnceBothAreThere) {
  UseSystem("2");
  Take(DayFieldId::txt_lengte_i1, "5");
  EXPECT_EQ(form.pg_5, "");
  Take(DayFieldId::txt_lengte_i2, "10");
  EXPECT_EQ(form.pg_5, "1.78");  // 5.83333 / 3.28084 = 1.778
  Take(DayFieldId::txt_lengte_i2, "12");
  EXPECT_EQ(form.pg_5, "1.83");
  Take(DayFieldId::txt_lengte_i1, "9");
  EXPECT_EQ(form.pg_5, "3.05");
  Take(DayFieldId::txt_lengte_i2, "");
  EXPECT_EQ(form.pg_5, "");
  Take(DayFieldId::txt_lengte_i2, "0");
  EXPECT_EQ(form.pg_5, "2.74");  // 9 / 3.28084 = 2.7432
}

TEST_F(Fields, InchesAboveTwelveAreCleared) {
  UseSystem("1");
  Take(DayFieldId::txt_lengte_i1, "5");
  for (const char* inches : {"13", "99"}) {
    Take(DayFieldId::txt_lengte_i2, "11");
    EXPECT_EQ(form.pg_5, "1.80");
    Take(DayFieldId::txt_lengte_i2, inches);
    EXPECT_EQ(form.txt_lengte_i2, "");
    EXPECT_EQ(form.pg_5, "");
  }
}

TEST_F(Fields, BoxesShowTheUnitsOfTheSettings) {
  form.pg_5 = "1.80";
  form.pg_6 = "70";
  form.pg_10 = "79.83226";
  FillBoxes(program, form);
  EXPECT_EQ(form.txt_lengte_m, "1.80");
  EXPECT_EQ(form.txt_gewicht, "70");
  EXPECT_EQ(form.txt_streefgewicht, "79.832");
  EXPECT_EQ(form.txt_lengte_i1 + form.txt_lengte_i2, "");
  for (const char* system : {"1", "2"}) {
    UseSystem(system);
    FillBoxes(program, form);
    EXPECT_EQ(form.txt_lengte_i1, "5");
    EXPECT_EQ(form.txt_lengte_i2, "11");
    EXPECT_EQ(form.txt_gewicht, "154.32");
    EXPECT_EQ(form.txt_streefgewicht, "176.00");
  }
}

TEST_F(Fields, ABoxThatIsLeftAsItWasFilledChangesNothing) {
  form.pg_5 = "1.83";  // 6 feet and 0.05 inches, which show as an empty text
  form.pg_6 = "102.0582";
  form.pg_10 = "70";
  form.pg_14 = "one\r\ntwo\rthree";
  for (const char* system : {"0", "1", "2"}) {
    UseSystem(system);
    FillBoxes(program, form);
    const DayForm before = form;
    for (std::size_t i = 0; i < kDayFieldCount; ++i) {
      const auto id = static_cast<DayFieldId>(i);
      const DayField& field = FieldOfId(id);
      const bool remark = id == DayFieldId::pg_14;
      Take(id, remark ? "one\ntwo\nthree" : (form.*field.part).substr(0, field.limit));
    }
    EXPECT_EQ(form, before) << system;
  }
  UseSystem("0");
  FillBoxes(program, form);
  Take(DayFieldId::txt_gewicht, "102.0");
  EXPECT_EQ(form.pg_6, "102.0");
}

TEST_F(Fields, AHeightOfZeroLeavesFeetAndInchesEmptyWithoutAWord) {
  UseSystem("1");
  for (const char* height : {"0", "0,00", "", "abc"}) {
    form.pg_5 = height;
    FillBoxes(program, form);
    EXPECT_EQ(form.txt_lengte_i1 + form.txt_lengte_i2, "");
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Fields, AStoredDateGoesIntoThreeBoxes) {
  for (const char* date : {"05-03-04", "05/03/04", "05\\03\\04", "05 03 04", "050304"}) {
    form = {};
    SplitDate(form, date);
    EXPECT_EQ(form.pg_9_a + "|" + form.pg_9_b + "|" + form.pg_9_c, "05|03|04") << date;
  }
  for (const char* nonsense : {"", "05-03", "5-3-04", "05-03-2004", "yesterday"}) {
    form.pg_9_a = "11";
    SplitDate(form, nonsense);
    EXPECT_EQ(form.pg_9_a + form.pg_9_b + form.pg_9_c, "") << nonsense;
  }
}

}  // namespace
}  // namespace kelvora
