// The rules for numbers that the dialogs for foods share.
#include "food/food_values.h"

#include <gtest/gtest.h>
#include <string>

namespace kelvora {
namespace {

TEST(FoodValues, ANumberNotFilledInIsIncomplete) {
  for (const char* text :
       {"", ",", ".", ".5", ",5", "5.", "5,", "1..5", "1,,5", ".,5", "5.,", "1...2", "0,,"}) {
    EXPECT_TRUE(IsIncompleteNumber(text)) << text;
  }
}

TEST(FoodValues, ANumberWithDigitsAroundItsMarksIsComplete) {
  // Two marks of different kinds, and two that are not in a row, are let through.
  for (const char* text : {"0", "5", "0.5", "0,5", "12.50", "1.2.3", "1.,2", "1,.2", " ", "-1"}) {
    EXPECT_FALSE(IsIncompleteNumber(text)) << text;
  }
}

TEST(FoodValues, ANumberWithSeveralMarksIsWrong) {
  for (const char* text : {"", ".5", "5,", "1..5", "1.2.3", "1,2.3", "1.,2"}) {
    EXPECT_TRUE(IsWrongNumber(text)) << text;
  }
  for (const char* text : {"0", "5", "0.5", "0,5", "12.50"}) {
    EXPECT_FALSE(IsWrongNumber(text)) << text;
  }
}

TEST(FoodValues, EitherMarkCounts) {
  for (const char* text : {"12.5", "12,5", ".", ","}) EXPECT_TRUE(HoldsDecimalMark(text)) << text;
  for (const char* text : {"12", "", "1-2"}) EXPECT_FALSE(HoldsDecimalMark(text)) << text;
}

TEST(FoodValues, MoreThanHalfAGramOfSodiumIsHigh) {
  for (const char* text : {"0.501", "0,501", "0.5000001", "250", "250.000"}) {
    EXPECT_TRUE(IsHighSodium(text)) << text;
  }
  for (const char* text : {"0.5", "0,500", "0.499", "0", "", "sodium", "-1"}) {
    EXPECT_FALSE(IsHighSodium(text)) << text;
  }
}

}  // namespace
}  // namespace kelvora
