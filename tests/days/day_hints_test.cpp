// The words beside the boxes.
#include "days/day_hints.h"

#include <gtest/gtest.h>

#include "days/good_form.h"
#include "nutrition/totals.h"
#include "nutrition/units.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

TEST(Hints, ShowTheOtherUnits) {
  TestProgram test;
  DayForm form = GoodForm();
  form.pg_6 = "70";
  form.pg_10 = "75,5";  // 166.44900 pounds
  const DayHints hints = DrawCoversionsText(test.program, form);
  EXPECT_EQ(hints.lbl_lengteinfo, "(1.80 Meter = 5'11'')");
  EXPECT_EQ(hints.lbl_gewichtinfo, "(70.00 KG  = 154.32 Lbs)");
  EXPECT_EQ(hints.lbl_streefgewichtinfo, "(75.50 KG  = 166.45 Lbs)");
  EXPECT_EQ(hints.lbl_datuminfo, "05-03-04");
  EXPECT_EQ(form.pg_10, "75,5");
}

TEST(Hints, InchesRoundUpWithoutACarryAndNumbersTakeTheSeparator) {
  TestProgram test;
  test.locale.separator = ",";
  DayForm form = GoodForm();
  form.pg_5 = "1,82";  // 5.97113 feet: 11.65 inches
  form.pg_6 = "70.25";
  const DayHints hints = DrawCoversionsText(test.program, form);
  EXPECT_EQ(hints.lbl_lengteinfo, "(1,82 Meter = 5'12'')");
  EXPECT_EQ(hints.lbl_gewichtinfo, "(70,25 KG  = 154,87 Lbs)");
}

TEST(Hints, AreEmptyWhileTheirFieldsAre) {
  TestProgram test;
  const DayHints hints = DrawCoversionsText(test.program, DayForm{});
  EXPECT_EQ(hints.lbl_lengteinfo, "");
  EXPECT_EQ(hints.lbl_gewichtinfo, "");
  EXPECT_EQ(hints.lbl_streefgewichtinfo, "");
  EXPECT_EQ(hints.lbl_datuminfo, "");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(Hints, TheDateWaitsForAllSixDigitsAndFollowsTheUnitSystem) {
  TestProgram test;
  DayForm form = GoodForm();
  for (const auto part : {&DayForm::pg_9_a, &DayForm::pg_9_b, &DayForm::pg_9_c}) {
    DayForm incomplete = form;
    incomplete.*part = "1";
    EXPECT_EQ(DateHint(test.program, incomplete), "");
  }
  test.program.settings[Setting::opt_system] = "1";
  EXPECT_EQ(DateHint(test.program, form), "03-05-04");
  test.program.settings[Setting::opt_system] = "2";
  EXPECT_EQ(DateHint(test.program, form), "05-03-04");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(Hints, AWeightBeyondAllMeasureIsAFailureOfTheConversion) {
  TestProgram test;
  DayForm form;
  form.pg_6 = "1" + Text(39, '0');  // larger than any single
  EXPECT_EQ(DrawCoversionsText(test.program, form).lbl_streefgewichtinfo, "");
  ASSERT_FALSE(test.boxes.shown.empty());
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF11-1"));
}

TEST(FeetAndInches, WorkedFigures) {
  TestProgram test;
  const auto convert = [&](Text metres, HeightPart part) {
    return Meter_To_Feet_Inch(metres, part, UnitsOf(test.program));
  };
  EXPECT_EQ(convert("1.80", HeightPart::feet), "5");
  EXPECT_EQ(convert("1.80", HeightPart::inches), "11");
  EXPECT_EQ(convert("", HeightPart::feet), "");
  EXPECT_EQ(convert("0.3", HeightPart::feet), "0");
  EXPECT_EQ(convert("1.85", HeightPart::inches), "1");  // 6.06955 feet: 0.83 inches
  EXPECT_EQ(convert("0.31", HeightPart::inches), "");   // 1.01706 feet: 0.2 inches
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(FeetAndInches, AHeightOfZeroIsAFailureOfItsOwn) {
  TestProgram test;
  Text metres = "0,0";
  EXPECT_EQ(Meter_To_Feet_Inch(metres, HeightPart::feet, UnitsOf(test.program)), "");
  EXPECT_EQ(metres, "0.0");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF11-5"));
}

TEST(Hints, ImperialUsShowsPoundsAndFeetFirst) {
  TestProgram test;
  test.program.settings[Setting::opt_system] = "1";
  DayForm form = GoodForm();
  form.pg_6 = "70";
  form.pg_10 = "75,5";
  const DayHints hints = DrawCoversionsText(test.program, form);
  EXPECT_EQ(hints.lbl_lengteinfo, "(5'11'' = 1.80 Meter)");
  EXPECT_EQ(hints.lbl_gewichtinfo, "(154.32 Lbs = 70.00 KG )");
  EXPECT_EQ(hints.lbl_streefgewichtinfo, "(166.45 Lbs = 75.50 KG )");
  EXPECT_EQ(hints.lbl_datuminfo, "03-05-04");
}

TEST(Hints, ImperialUkAddsStonesToTheWeights) {
  TestProgram test;
  test.program.settings[Setting::opt_system] = "2";
  test.locale.separator = ",";
  DayForm form = GoodForm();
  form.pg_6 = "70";
  form.pg_10 = "72.57478";  // 160 pounds, 11.43 stones
  const DayHints hints = DrawCoversionsText(test.program, form);
  EXPECT_EQ(hints.lbl_lengteinfo, "(5'11'' = 1,80 Meter)");
  EXPECT_EQ(hints.lbl_gewichtinfo, "(154,32 Lbs = 70,00 KG  = 11,0 Stones)");
  EXPECT_EQ(hints.lbl_streefgewichtinfo, "(160,00 Lbs = 72,57 KG  = 11,4 Stones)");
  EXPECT_EQ(hints.lbl_datuminfo, "05-03-04");
}

TEST(Hints, AHeightOfZeroHasNone) {
  TestProgram test;
  for (const char* system : {"0", "1"}) {
    test.program.settings[Setting::opt_system] = system;
    for (const char* height : {"0", "0,00"}) {
      DayForm form;
      form.pg_5 = height;
      EXPECT_EQ(DrawCoversionsText(test.program, form).lbl_lengteinfo, "");
    }
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

}  // namespace
}  // namespace kelvora
