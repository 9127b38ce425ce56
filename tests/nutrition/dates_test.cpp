#include "nutrition/dates.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr LocalTime kNight{
    .year = 2026, .month = 11, .day = 2, .hour = 0, .minute = 5, .second = 59};

TEST(ShortForms, AreTheSystemsOwn) {
  const FixedLocale locale;
  EXPECT_EQ(ShortDateOf(kNight, locale), "11/2/26");
  EXPECT_EQ(ShortTimeOf(kNight, locale), "12:05 AM");
}

TEST(ShortForms, ThatTextCantHoldAreWrittenInDigits) {
  FixedLocale locale;
  locale.has_short_form = false;
  EXPECT_EQ(ShortDateOf(kNight, locale), "02-11-2026");
  EXPECT_EQ(ShortTimeOf(kNight, locale), "00:05");
}

}  // namespace
}  // namespace kelvora
