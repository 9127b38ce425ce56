#include "nutrition/units.h"

#include <bit>
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
  Text Kg(Text pounds) { return Lbs_To_Kg(pounds, UnitsOf(test.program)); }
  Text Grams(Text ounces) { return Oz_To_Gram(ounces, UnitsOf(test.program)); }
  Text Feet(Text metres) {
    return Meter_To_Feet_Inch(metres, HeightPart::feet, UnitsOf(test.program));
  }
  Text Inches(Text metres) {
    return Meter_To_Feet_Inch(metres, HeightPart::inches, UnitsOf(test.program));
  }
  Text Metres(std::string_view feet, std::string_view inches) {
    return Feet_Inch_To_Meter(feet, inches, UnitsOf(test.program));
  }
  std::optional<int> Days(std::string_view first, std::string_view second) {
    return Dagen_Tussen(first, second, UnitsOf(test.program));
  }
  [[nodiscard]] bool ShowedCode(const char* code) const {
    return test.boxes.shown.size() == 1 &&
           test.boxes.shown[0].text.ends_with(Text("Brelux CODE:") + code);
  }
  TestProgram test;
};

TEST(UnitConstants, AreTheseSinglesBitForBit) {
  EXPECT_EQ(std::bit_cast<std::uint32_t>(2.2046225071f), 0x400D1889u);
  EXPECT_EQ(Factor_Lbs, 2.2046225071f);
  EXPECT_EQ(Factor_Stone, 0.0714285746f);
  EXPECT_EQ(Factor_Feet, 3.2808399200f);
  EXPECT_EQ(Factor_Inch, 12.0f);
  EXPECT_EQ(Factor_Oz, 0.0352739617f);
}

TEST_F(Units, AnEmptyArgumentGivesAnEmptyResultWithoutAReport) {
  EXPECT_EQ(Oz(""), "");
  EXPECT_EQ(Lbs(""), "");
  EXPECT_EQ(Stones(""), "");
  EXPECT_EQ(Bmi("1.80", ""), "");
  EXPECT_EQ(Bmi("", "80"), "");
  EXPECT_EQ(Kg(""), "");
  EXPECT_EQ(Grams(""), "");
  EXPECT_EQ(Feet(""), "");
  EXPECT_EQ(Metres("", "1"), "");
  EXPECT_EQ(Metres("5", ""), "");
  EXPECT_EQ(Days("", "040305"), std::nullopt);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Units, WorkedFigures) {
  EXPECT_EQ(Lbs("70"), "154.32");
  EXPECT_EQ(Stones("70"), "11.0");
  EXPECT_EQ(Oz("100"), "3.5");
  EXPECT_EQ(Oz("0"), "0");
  EXPECT_EQ(Bmi("1.80", "80"), "24.69");
  EXPECT_EQ(Grams("3.5"), "99");
  EXPECT_EQ(Feet("1.80"), "5");
  EXPECT_EQ(Inches("1.80"), "11");
  EXPECT_EQ(Metres("5", "10"), "1.78");
  // 154.32 divided by the single 2.2046225070953369140625, fifteen digits.
  EXPECT_EQ(Kg("154.32"), "69.9983781819055");
}

TEST_F(Units, BlanksAreNotEmptyAndReadAsZero) {
  EXPECT_EQ(Lbs(" "), "0.00");
  EXPECT_EQ(Kg(" "), "0");
  EXPECT_EQ(Grams(" "), "0");
  EXPECT_EQ(Oz(" "), "0");
  EXPECT_EQ(Stones(" "), "0.0");
  EXPECT_EQ(Metres(" ", " "), "0.00");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Units, OnlyFeetAndInchesAreNotNormalised) {
  for (const auto convert : {&Lbs_To_Kg, &Kg_To_Lbs, &Kg_To_Stones, &Gram_To_Oz, &Oz_To_Gram}) {
    Text value = "1,5,2";
    (void)convert(value, UnitsOf(test.program));
    EXPECT_EQ(value, "1.5.2");
  }
  Text height = "1,80", weight = "80,5";
  EXPECT_EQ(Bereken_BMI(height, weight, UnitsOf(test.program)), "24.85");
  EXPECT_EQ(height, "1.80");
  EXPECT_EQ(weight, "80.5");
  // 5 feet: what stands behind the comma does not count.
  EXPECT_EQ(Metres("5,9", "0"), "1.52");
}

TEST_F(Units, InchesRoundWithoutACarryAndZeroInchesPrintAsNothing) {
  // 5.9667 feet: 11.6 inches.
  EXPECT_EQ(Feet("1.81864"), "5");
  EXPECT_EQ(Inches("1.81864"), "12");
  // 6.00001 feet.
  EXPECT_EQ(Feet("1.828803"), "6");
  EXPECT_EQ(Inches("1.828803"), "");
}

TEST_F(Units, AHeightWithoutADecimalPartInFeetIsAFailure) {
  EXPECT_EQ(Feet("0"), "");
  EXPECT_TRUE(ShowedCode("#FF11-5"));
}

TEST_F(Units, EveryConversionReportsAnOverflowByItsOwnCode) {
  const Text huge(60, '9');
  const Text beyond(400, '9');
  const auto failed = [&](const Text& result, const char* code) {
    EXPECT_EQ(result, "") << code;
    EXPECT_TRUE(ShowedCode(code)) << code;
    test.boxes.shown.clear();
  };
  failed(Lbs(huge), "#FF11-1");
  failed(Kg(beyond), "#FF11-1");
  failed(Stones(huge), "#FF11-2");
  failed(Oz(huge), "#FF11-3");
  failed(Grams(huge), "#FF11-4");
  failed(Inches(beyond), "#FF11-5");
  failed(Metres(beyond, "0"), "#FF11-6");
  failed(Bmi("1.80", huge), "#FF11-7");
}

TEST_F(Units, DaysBetweenTwoDatesAreNegativeBackwards) {
  EXPECT_EQ(Days("040228", "040301"), 2);
  EXPECT_EQ(Days("050228", "050301"), 1);
  EXPECT_EQ(Days("040305", "040305"), 0);
  EXPECT_EQ(Days("040305", "030305"), -366);
  // 89 years of 365 days and the 23 leap days from 2000 to 2088.
  EXPECT_EQ(Days("000101", "890101"), 89 * 365 + 23);
}

TEST_F(Units, MoreDaysThanSixteenBitsHoldAreAFailure) {
  EXPECT_EQ(Days("000101", "991231"), std::nullopt);
  EXPECT_TRUE(ShowedCode("#FF11-9"));
}

TEST_F(Units, DaysNeedSixCharactersEach) {
  EXPECT_EQ(Days("40305", "040305"), std::nullopt);
  EXPECT_EQ(Days("040305", "0403055"), std::nullopt);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Units, WhatIsNoDateHasNoDaysAndReports) {
  for (const char* text : {"041301", "040230", "040300", "abcdef", "04-3-5"}) {
    test.boxes.shown.clear();
    EXPECT_EQ(Days(text, "040305"), std::nullopt);
    EXPECT_TRUE(ShowedCode("#FF11-9")) << text;
  }
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

TEST(Dates, TheOrderIsThatOfTheSystemsLongDate) {
  FixedLocale locale;
  const auto order = [&locale](const char* pattern) {
    locale.long_date = pattern;
    return DateOrder(locale);
  };
  EXPECT_EQ(order("dddd, MMMM d, yyyy"), LongDateOrder::month_day_year);
  EXPECT_EQ(order("dddd d MMMM yyyy"), LongDateOrder::day_month_year);
  EXPECT_EQ(order("ddd, d. MMM yy"), LongDateOrder::day_month_year);
  EXPECT_EQ(order("yyyy MMMM d, dddd"), LongDateOrder::year_month_day);
  EXPECT_EQ(static_cast<int>(LongDateOrder::month_day_year), 0);
  EXPECT_EQ(static_cast<int>(LongDateOrder::year_month_day), 2);
}

TEST(Dates, WhatIsNoDateIsAFailureOfItsOwn) {
  TestProgram test;
  EXPECT_EQ(Format_Datum("today", "0", UnitsOf(test.program)), "");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF11-8"));
}

}  // namespace
}  // namespace kelvora
