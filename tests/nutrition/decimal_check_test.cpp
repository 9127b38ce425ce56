#include "nutrition/decimal_check.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace kelvora {
namespace {

TEST(DecimalCheck, AChangedSeparatorIsToldEachTimeUntilItIsChangedBack) {
  TestProgram test;
  test.locale.separator = ",";
  CheckDecimal(test.program);
  CheckDecimal(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "The separation character of you computer has been changed!\n"
            "When you started Kelvora FOOD the separation character was .\n\n"
            "Kelvora FOOD cannot continue working.\n! DO NOT SAVE THE CURRENT FILE\n"
            "! CLOSE THE PROGRAM AND START AGAIN");
  test.locale.separator = ".";
  CheckDecimal(test.program);
  EXPECT_EQ(test.boxes.shown.size(), 2u);
}

}  // namespace
}  // namespace kelvora
