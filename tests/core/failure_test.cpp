#include "core/failure.h"

#include <gtest/gtest.h>
#include <system_error>

#include "support/test_program.h"

namespace kelvora {
namespace {

TEST(FailurePath, ShowsTheSystemsWordsAndTheCode) {
  TestProgram test;
  const bool done = test.program.Guard(
      "#FF1-9", [] { throw std::system_error(ENOSPC, std::generic_category(), "writing"); });
  EXPECT_FALSE(done);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  const Box& box = test.boxes.shown[0];
  EXPECT_EQ(box.title, "Kelvora FOOD");
  EXPECT_EQ(box.text, "An error occured.\n\nNo space left on device\nBrelux CODE:#FF1-9");
  EXPECT_EQ(box.icon, BoxIcon::none);
  EXPECT_EQ(box.buttons, BoxButtons::ok);
}

TEST(FailurePath, EveryFailureOfTheProgramItselfHasTheSystemsWordsToo) {
  TestProgram test;
  test.program.Guard("#FF1-9", [] { ThrowSystemError(std::errc::result_out_of_range); });
  test.program.Guard("#FF1-9", [] { throw std::bad_alloc(); });
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured.\n\nNumerical result out of range\nBrelux CODE:#FF1-9");
  EXPECT_EQ(test.boxes.shown[1].text,
            "An error occured.\n\nCannot allocate memory\nBrelux CODE:#FF1-9");
}

// Not everything that is thrown is an exception of the standard library.
TEST(FailurePath, TakesWhateverIsThrown) {
  TestProgram test;
  EXPECT_FALSE(test.program.Guard("#FF1-9", [] { throw 7; }));
  EXPECT_FALSE(test.program.Guard("#FF1-9", [] { throw "words"; }));
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured.\n\nState not recoverable\nBrelux CODE:#FF1-9");
  EXPECT_EQ(test.boxes.shown[1].text, test.boxes.shown[0].text);
}

TEST(FailurePath, SaysNothingWhenNothingFails) {
  TestProgram test;
  EXPECT_TRUE(test.program.Guard("#FF1-9", [] {}));
  EXPECT_TRUE(test.boxes.shown.empty());
}

}  // namespace
}  // namespace kelvora
