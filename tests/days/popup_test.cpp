#include "days/popup.h"

#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

TEST(Popup, OnlyTheModeOkIsAbout) {
  EXPECT_TRUE(IsAbout("ok"));
  for (const char* mode : {"", "OK", "ok ", "no"}) EXPECT_FALSE(IsAbout(mode)) << mode;
}

TEST(Popup, TheSplashTellsItsFiveTextsAtTheirCounters) {
  TestProgram test;
  struct Moment {
    int counter;
    Text text;
    int picture;
  };
  const std::vector<Moment> expected = {
      {10, "Loading: Settings...", 1}, {40, "Loading: Databases...", 2},
      {50, "Loading: Modules...", 3},  {70, "Loading: Files...", 4},
      {80, "Starting interface", 5},
  };
  auto next = expected.begin();
  for (int counter = 0; counter <= 200; ++counter) {
    const SplashStep step = StepOf(counter);
    const bool due = next != expected.end() && counter == next->counter;
    ASSERT_EQ(step.text.has_value(), due) << counter;
    ASSERT_EQ(step.picture.has_value(), due) << counter;
    if (!due) continue;
    EXPECT_EQ(test.program.texts[*step.text], next->text);
    EXPECT_EQ(step.picture, next->picture);
    ++next;
  }
  EXPECT_EQ(next, expected.end());
}

TEST(Popup, TheBarFollowsTheCounterBelowAHundred) {
  EXPECT_EQ(StepOf(10).progress, 10);
  EXPECT_EQ(StepOf(20).progress, 20);
  EXPECT_EQ(StepOf(90).progress, 90);
  EXPECT_EQ(StepOf(99).progress, 99);
  EXPECT_FALSE(StepOf(100).progress);
  EXPECT_FALSE(StepOf(110).progress);
}

TEST(Popup, TheShowGoesOnEvery150MillisecondsByTenAndEndsAfter1700) {
  EXPECT_EQ(kSplashTickMilliseconds, 150);
  EXPECT_EQ(kSplashTickStep, 10);
  EXPECT_EQ(kSplashEndMilliseconds, 1700);
}

TEST(Popup, AboutTellsVersionStartsAndUseOfTheServer) {
  TestProgram test;
  test.program.settings[Setting::StartCount] = "17";
  test.program.settings[Setting::SearchCount] = "5";
  test.program.settings[Setting::SubmitCount] = "2";
  AboutLines lines = AboutLinesOf(test.program);
  EXPECT_EQ(lines.lbl_nfo_1, "2.24 (Started 17 times)");
  EXPECT_EQ(lines.lbl_nfo_4, "Searched: 5 Submitted: 2");
  EXPECT_EQ(lines.lbl_type, "2.24 FOOD");
  Make_Taal_Dutch(test.program.texts);
  lines = AboutLinesOf(test.program);
  EXPECT_EQ(lines.lbl_nfo_1, "2.24 (Gestart: 17 keer)");
  EXPECT_EQ(lines.lbl_nfo_4, "Gezocht: 5 Ingezonden: 2");
  EXPECT_EQ(lines.lbl_type, "2.24 FOOD");
}

}  // namespace
}  // namespace kelvora
