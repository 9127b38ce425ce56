#include "core/frame/ending.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "core/frame/commands.h"
#include "storage/recovery_copy.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

bool CopyIsThere(const TestProgram& test) {
  std::error_code none;
  for (const auto& entry :
       std::filesystem::directory_iterator(test.program.paths.StatePath, none)) {
    if (ReadRecoveryCopy(entry.path().string())) return true;
  }
  return false;
}

TEST(Ending, BySignalKeepsWhatIsNotSavedAndAsksNothing) {
  TestProgram test;
  test.OpenDay("Anna");
  SetFileChanged(test.program, true);
  EndBySignal(test.program);
  EXPECT_TRUE(CopyIsThere(test));
  EXPECT_TRUE(test.program.ending);
  EXPECT_EQ(test.events.ends, 1);
  EXPECT_TRUE(test.boxes.shown.empty());
  // The windows go behind it.
  EndAsAsked(test.program);
  EXPECT_TRUE(CopyIsThere(test));
}

TEST(Ending, BehindTheQuestionDropsWhatTheUserDrops) {
  TestProgram test;
  test.OpenDay("Anna");
  SetFileChanged(test.program, true);
  BringRecoveryCopyUpToDate(test.program);
  test.boxes.answers = {BoxAnswer::yes};
  ASSERT_TRUE(MayEndProgram(test.program));
  EndAsAsked(test.program);
  EXPECT_FALSE(CopyIsThere(test));
  EXPECT_TRUE(test.program.ending);
}

TEST(Ending, KeepsWhatNobodyWasAskedAbout) {
  TestProgram test;
  test.OpenDay("Anna");
  ASSERT_FALSE(test.program.day.FileChanged);
  ASSERT_TRUE(MayEndProgram(test.program));
  EXPECT_TRUE(test.boxes.shown.empty());
  EndAsAsked(test.program);
  EXPECT_TRUE(CopyIsThere(test));
}

TEST(Ending, WithTheSessionAsksNothingAndKeepsWhatIsNotSaved) {
  TestProgram test;
  test.OpenDay("Anna");
  SetFileChanged(test.program, true);
  PrepareForSessionEnd(test.program);
  EXPECT_TRUE(CopyIsThere(test));
  EXPECT_FALSE(test.program.ending);
  EXPECT_TRUE(MayEndProgram(test.program));
  EXPECT_TRUE(test.boxes.shown.empty());
  EndAsAsked(test.program);
  EXPECT_TRUE(CopyIsThere(test));
}

TEST(Ending, ASessionThatGoesOnAsksAgain) {
  TestProgram test;
  test.OpenDay("Anna");
  SetFileChanged(test.program, true);
  PrepareForSessionEnd(test.program);
  TakeSessionAsGoingOn(test.program);
  EXPECT_FALSE(MayEndProgram(test.program));
  EXPECT_EQ(test.boxes.shown.size(), 1u);
}

}  // namespace
}  // namespace kelvora
