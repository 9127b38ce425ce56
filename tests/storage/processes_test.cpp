#include "storage/processes.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelvora {
namespace {

TEST(Processes, ThisOneLivesAndHasTheSystemsNumber) {
  const ProcessMark own = OwnProcess();
  EXPECT_EQ(own.number, std::to_string(getpid()));
  EXPECT_TRUE(IsAlive(own));
}

TEST(Processes, ANumberThatBelongsToAnotherOneNowIsNotAlive) {
  ProcessMark other = OwnProcess();
  other.start.back() = other.start.back() == '1' ? '2' : '1';
  EXPECT_FALSE(IsAlive(other));
}

TEST(Processes, OneThatWasKilledIsDeadBeforeAndAfterItIsWaitedFor) {
  const pid_t child = fork();
  if (child == 0) {
    while (true) pause();
  }
  const ProcessMark mark{std::to_string(child), StartOfProcess(std::to_string(child))};
  EXPECT_TRUE(IsAlive(mark));
  kill(child, SIGKILL);
  siginfo_t info{};
  // Ended, and not waited for yet.
  ASSERT_EQ(waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOWAIT), 0);
  EXPECT_FALSE(IsAlive(mark));
  waitpid(child, nullptr, 0);
  EXPECT_FALSE(IsAlive(mark));
}

TEST(Processes, WhatIsNoNumberIsNoProcess) {
  for (const char* number : {"", "self", "../proc/1", "1 ", "-1"}) {
    EXPECT_FALSE(IsAlive({number, ""})) << number;
    EXPECT_FALSE(IsAlive({number, "x"})) << number;
  }
}

}  // namespace
}  // namespace kelvora
