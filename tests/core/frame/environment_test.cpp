#include "core/frame/environment.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace kelvora {
namespace {

TEST(Environment, AScreenOf1024PixelsGetsNoHintWhateverItsHeight) {
  TestProgram test;
  test.screen.size = {1024, 300};
  CheckScreenResolution(test.program);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(Environment, ANarrowerScreenGetsOneHint) {
  TestProgram test;
  test.screen.size = {800, 600};
  CheckScreenResolution(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].title, "Warning #F4-7");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::error);
  EXPECT_EQ(test.boxes.shown[0].text,
            "Your screen resolution is currently set to 800x600\n"
            "We recommend a screen resolution of 1024X768 for Kelvora FOOD.\n\n"
            "We recommend that you change your screen resolution.\n"
            "You can change the screen resolution in the windows configuration screen.");
}

TEST(Environment, OnlyPointAndCommaAreValidSeparators) {
  TestProgram test;
  test.locale.separator = ",";
  CheckSeparatorIsValid(test.program);
  EXPECT_TRUE(test.boxes.shown.empty());
  test.locale.separator = "'";
  CheckSeparatorIsValid(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "The separation character of windows is currently set to '\n"
            "Kelvora FOOD cannot continue working.\n\n"
            "the separation character must be a.  (point) or a ,(comma)\n"
            "YOU cannot use Kelvora!");
}

TEST(Environment, TheTwoTerminatorsSurviveTheStore) {
  TestProgram test;
  CheckHalfCharacter(test.program);
  EXPECT_EQ(test.program.store.txt_testdata, "\xBD\xBE");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(Environment, TerminatorsThatComeBackAsSomethingElseAreTold) {
  TestProgram test;
  WarnUnlessTerminators(test.program, "??");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::error);
  EXPECT_EQ(test.boxes.shown[0].title, "Close Kelvora FOOD and change the county settings.");
  EXPECT_EQ(test.boxes.shown[0].text,
            "The 'half' (1/2) character can't be displayed on your computer correctly.\n"
            "Kelvora FOOD can only work if the character 'half' (1/2) is displayed correctly.\n"
            "If you continue to work with Kelvora FOOD error will occur!\n"
            "\n"
            "Close Kelvora FOOD and change the county settings.");
}

TEST(Environment, TheConstantsOfTheProgram) {
  EXPECT_EQ(AppTitle, "Kelvora FOOD");
  EXPECT_EQ(VersionText, "2.24");
  EXPECT_EQ(MaxDayPartLines, 50u);
  EXPECT_EQ(MaxDiaryLength, 5000u);
}

}  // namespace
}  // namespace kelvora
