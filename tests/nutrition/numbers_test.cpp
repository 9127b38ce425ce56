#include "nutrition/numbers.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <stdexcept>

namespace kelvora {
namespace {

TEST(Val, ReadsTheLongestPrefixThatIsANumber) {
  EXPECT_EQ(Val("12.5"), 12.5);
  EXPECT_EQ(Val("  -7 g"), -7);
  EXPECT_EQ(Val("+3"), 3);
  EXPECT_EQ(Val(".5"), 0.5);
  EXPECT_EQ(Val("5."), 5);
  EXPECT_EQ(Val("1.2.3"), 1.2);
  EXPECT_EQ(Val("1e5"), 1);
  EXPECT_EQ(Val("12abc34"), 12);
}

TEST(Val, NoDigitsGiveZero) {
  for (const char* text : {"", " ", "-", ".", "abc", "g 12", "-.", "+-3"}) EXPECT_EQ(Val(text), 0);
}

TEST(Val, NeverFailsOnNumbersOfAnyLength) {
  EXPECT_EQ(Val("0." + Text(400, '0') + "1"), 0);
  EXPECT_EQ(Val(Text(400, '9')), std::numeric_limits<double>::infinity());
  EXPECT_EQ(Val("-" + Text(400, '9')), -std::numeric_limits<double>::infinity());
}

TEST(ReadStoredNumber, CommaAndPointAreTheSame) {
  EXPECT_EQ(ReadStoredNumber("70,5"), 70.5);
  EXPECT_EQ(ReadStoredNumber("70.5 kg"), 70.5);
  EXPECT_EQ(CommaToPoint("1,2,3"), "1.2.3");
}

struct StrCase {
  double value;
  const char* text;
};

TEST(Str, ADoubleHasUpToFifteenDigitsAndNeverAnExponent) {
  for (const auto& [value, text] : {
           StrCase{0, "0"},
           StrCase{-0.0, "0"},
           StrCase{0.5, "0.5"},
           StrCase{-0.25, "-0.25"},
           StrCase{10, "10"},
           StrCase{0.1 + 0.2, "0.3"},
           StrCase{1.0 / 3, "0.333333333333333"},
           StrCase{2.0 / 3, "0.666666666666667"},
           StrCase{1e20, "100000000000000000000"},
           StrCase{1.5e-7, "0.00000015"},
           StrCase{123456789012345678.0, "123456789012346000"},
       }) {
    EXPECT_EQ(Str(value, "."), text);
  }
}

TEST(Str, ASingleHasUpToSevenDigits) {
  EXPECT_EQ(Str(0.1f, "."), "0.1");
  EXPECT_EQ(Str(1.0f / 3, "."), "0.3333333");
  EXPECT_EQ(Str(123456789.0f, "."), "123456800");
  EXPECT_EQ(Str(16777216.0f, "."), "16777220");
  EXPECT_EQ(Str(80.5f, ","), "80,5");
}

TEST(Str, InfinityAndNotANumberAreFailures) {
  EXPECT_THROW((void)Str(std::numeric_limits<float>::infinity(), "."), std::system_error);
  EXPECT_THROW((void)Str(std::nan(""), "."), std::system_error);
}

struct FormatCase {
  double value;
  const char* pattern;
  const char* text;
};

TEST(RoundTo, RoundsHalfToEvenAndOnlyThatWay) {
  EXPECT_EQ(RoundTo(2.5f, 0), 2.0f);
  EXPECT_EQ(RoundTo(3.5f, 0), 4.0f);
  EXPECT_EQ(RoundTo(0.125f, 2), 0.12f);
  EXPECT_EQ(RoundTo(0.375f, 2), 0.38f);
  EXPECT_EQ(RoundTo(-2.5f, 0), -2.0f);
  EXPECT_EQ(RoundTo(0.5f, 0), 0.0f);
  EXPECT_EQ(RoundTo(1.5f, 0), 2.0f);
  EXPECT_EQ(RoundTo(9.5f, 0), 10.0f);
  EXPECT_EQ(RoundTo(25.0f, -1), 20.0f);
  EXPECT_EQ(RoundTo(35.0f, -1), 40.0f);
}

TEST(RoundTo, TakesTheExactValueOfTheSingle) {
  // 2.675 as a single is 2.67499995...: no tie, and down.
  EXPECT_EQ(RoundTo(2.675f, 2), 2.67f);
  // 0.145 as a single is 0.144999995...; 0.155 is 0.155000001...
  EXPECT_EQ(RoundTo(0.145f, 2), 0.14f);
  EXPECT_EQ(RoundTo(0.155f, 2), 0.16f);
  EXPECT_EQ(RoundTo(1.0e-45f, 2), 0.0f);
  EXPECT_EQ(RoundTo(3.4e38f, 2), 3.4e38f);
}

TEST(RoundTo, WhatHasNoPlaceInASingleIsAFailure) {
  EXPECT_THROW((void)RoundTo(std::numeric_limits<float>::infinity(), 0), std::system_error);
  // 3402.8e35 goes up to 3.403e38, which no single holds.
  EXPECT_THROW((void)RoundTo(std::numeric_limits<float>::max(), -35), std::system_error);
}

TEST(Single, HoldsWhatHasAPlaceThere) {
  EXPECT_EQ(Single(0.1), 0.1f);
  EXPECT_EQ(Single(-3.4e38), -3.4e38f);
  EXPECT_THROW((void)Single(3.5e38), std::system_error);
  EXPECT_THROW((void)Single(std::numeric_limits<double>::quiet_NaN()), std::system_error);
}

TEST(FormatNumber, PrintsByItsPattern) {
  for (const auto& [value, pattern, text] : {
           FormatCase{1.5, "##0.00", "1.50"},
           FormatCase{0, "##0.00", "0.00"},
           FormatCase{0.5, "##.00", ".50"},
           FormatCase{0, "####0", "0"},
           FormatCase{0, "####", ""},
           FormatCase{0, "##", ""},
           FormatCase{0.4, "###0", "0"},
           FormatCase{12345, "##0", "12345"},
           FormatCase{1.78, "0.#0", "1.78"},
           FormatCase{2, "0.#0", "2.00"},
           FormatCase{154.3236, "##0.00", "154.32"},
           FormatCase{0.344, "##0.000", "0.344"},
       }) {
    EXPECT_EQ(FormatNumber(value, pattern, "."), text) << value << " " << pattern;
  }
}

TEST(FormatNumber, RoundsHalvesAwayFromZero) {
  EXPECT_EQ(FormatNumber(0.5, "0", "."), "1");
  EXPECT_EQ(FormatNumber(1.5, "0", "."), "2");
  EXPECT_EQ(FormatNumber(2.5, "0", "."), "3");
  EXPECT_EQ(FormatNumber(-2.5, "0", "."), "-3");
  // 2.675 is a little less in binary; its fifteen-digit form is exactly 2.675.
  EXPECT_EQ(FormatNumber(2.675, "0.00", "."), "2.68");
  EXPECT_EQ(FormatNumber(9.995, "0.00", "."), "10.00");
  EXPECT_EQ(FormatNumber(999.5, "##0", "."), "1000");
}

// A million units and more, many places, and what lies beside the middle.
TEST(FormatNumber, LargeNumbersAndManyPlacesGoByTheSameRule) {
  EXPECT_EQ(FormatNumber(999999999.4, "0", "."), "999999999");
  EXPECT_EQ(FormatNumber(999999999.5, "0", "."), "1000000000");
  EXPECT_EQ(FormatNumber(1000000000.5, "0", "."), "1000000001");
  EXPECT_EQ(FormatNumber(999999.9995, "0.000", "."), "1000000.000");
  EXPECT_EQ(FormatNumber(999999.9994, "0.000", "."), "999999.999");
  EXPECT_EQ(FormatNumber(0.1234567, "0.0000000", "."), "0.1234567");
  EXPECT_EQ(FormatNumber(12.0305, "#.000#", "."), "12.0305");
  EXPECT_EQ(FormatNumber(12.03, "#.0###", "."), "12.03");
  EXPECT_EQ(FormatNumber(0.07, "#.00", "."), ".07");
}

TEST(FormatNumber, AResultOfZeroHasNoSign) {
  EXPECT_EQ(FormatNumber(-0.004, "0.00", "."), "0.00");
  EXPECT_EQ(FormatNumber(-0.4, "##", "."), "");
}

TEST(FormatNumber, TakesTheSeparatorItIsGiven) {
  EXPECT_EQ(FormatNumber(1234.5, "##0.00", ","), "1234,50");
}

}  // namespace
}  // namespace kelvora
