#include "core/key_filter.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace kelvora
