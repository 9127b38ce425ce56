#include "core/action_log.h"

#include <gtest/gtest.h>
#include <stdexcept>

#include "nutrition/totals.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

void Fail() {
  throw std::runtime_error("no");
}

TEST(ActionLog, OneActionShowsACodeOnce) {
  TestProgram test;
  {
    const UserAction action(test.program.actions);
    for (int i = 0; i < 3; ++i) EXPECT_FALSE(test.program.Guard("#F3-2", &Fail));
    EXPECT_EQ(test.boxes.shown.size(), 1u);
    test.program.Guard("#F3-1", &Fail);
    EXPECT_EQ(test.boxes.shown.size(), 2u);
  }
  const UserAction next(test.program.actions);
  test.program.Guard("#F3-2", &Fail);
  EXPECT_EQ(test.boxes.shown.size(), 3u);
}

TEST(ActionLog, APartOfAnActionBelongsToIt) {
  TestProgram test;
  const UserAction whole(test.program.actions);
  test.program.Guard("#F3-2", &Fail);
  {
    const UserAction part(test.program.actions);
    test.program.Guard("#F3-2", &Fail);
  }
  test.program.Guard("#F3-2", &Fail);
  EXPECT_EQ(test.boxes.shown.size(), 1u);
}

TEST(ActionLog, OutsideOfAnyActionEverythingIsTold) {
  TestProgram test;
  for (int i = 0; i < 3; ++i) test.program.Guard("#F3-2", &Fail);
  EXPECT_EQ(test.boxes.shown.size(), 3u);
}

// What the user does while a box is up, or in a dialog that the action opened, is an action anew.
TEST(ActionLog, AnActionInTheMiddleOfAnotherBeginsAnew) {
  TestProgram test;
  const UserAction outer(test.program.actions);
  test.program.Guard("#F3-2", &Fail);
  test.program.actions.Begin();
  test.program.Guard("#F3-2", &Fail);
  EXPECT_EQ(test.boxes.shown.size(), 2u);
}

TEST(ActionLog, AnotherSeparatorIsToldOnceHoweverOftenTheDayIsTotalled) {
  TestProgram test;
  test.OpenDay("Anna");
  test.program.StartSeparator = ",";
  {
    const UserAction action(test.program.actions);
    for (int i = 0; i < 4; ++i) Refresh_Totalen(test.program);
    EXPECT_EQ(test.boxes.shown.size(), 1u);
  }
  const UserAction next(test.program.actions);
  Refresh_Totalen(test.program);
  EXPECT_EQ(test.boxes.shown.size(), 2u);
}

}  // namespace
}  // namespace kelvora
