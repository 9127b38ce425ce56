#include "nutrition/units.h"

#include <gtest/gtest.h>

#include "nutrition/dates.h"
#include "nutrition/totals.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

class Units : public testing::Test {
 protected:
  Text Oz(Text grams) { return Gram_To_Oz(grams, UnitsOf(test.program)); }
  Text Lbs(Text kilograms) { return Kg_To_Lbs(kilograms, UnitsOf(test.program)); }
  Text Stones(Text kilograms) { return Kg_To_Stones(kilograms, UnitsOf(test.program)); }
  Text Bmi(Text height, Text weight) { return Bereken_BMI(height, weight, UnitsOf(test.program)); }
  TestProgram test;
};

TEST_F(Units, AnEmptyArgumentGivesAnEmptyResultWithoutAReport) {
  EXPECT_EQ(Oz(""), "");
  EXPECT_EQ(Lbs(""), "");
  EXPECT_EQ(Stones(""), "");
  EXPECT_EQ(Bmi("1.80", ""), "");
  EXPECT_EQ(Bmi("", "80"), "");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Units, WorkedFigures) {
  EXPECT_EQ(Lbs("70"), "154.32");
  EXPECT_EQ(Stones("70"), "11.0");
  EXPECT_EQ(Oz("100"), "3.5");
  EXPECT_EQ(Oz("0"), "0");
  EXPECT_EQ(Bmi("1.80", "80"), "24.69");
}

TEST_F(Units, AnArgumentIsNormalisedInPlace) {
  Text kilograms = "70,5";
  EXPECT_EQ(Kg_To_Lbs(kilograms, UnitsOf(test.program)), "155.43");
  EXPECT_EQ(kilograms, "70.5");
}

TEST_F(Units, OuncesHaveOneDecimalAtMost) {
  // 283.5 g are 10.00017 oz.
  EXPECT_EQ(Oz("283.5"), "10");
  test.locale.separator = ",";
  EXPECT_EQ(Oz("100"), "3,5");
}

TEST_F(Units, AHeightOfZeroIsAFailureOfItsOwn) {
  EXPECT_EQ(Bmi("0", "80"), "");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF11-7"));
}

TEST(Dates, AreShownByTheUnitSystem) {
  EXPECT_EQ(FormatStoredDate("05-03-04", "0"), "05-03-04");
  EXPECT_EQ(FormatStoredDate("05-03-04", "1"), "03-05-04");
  EXPECT_EQ(FormatStoredDate("05/03\\04 ", "2"), "05-03-04");
  EXPECT_EQ(FormatStoredDate("", "0"), "");
}

TEST(Dates, WhatIsNoDateIsAFailureOfItsOwn) {
  TestProgram test;
  EXPECT_EQ(Format_Datum("today", "0", UnitsOf(test.program)), "");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF11-8"));
}

}  // namespace
}  // namespace kelvora
