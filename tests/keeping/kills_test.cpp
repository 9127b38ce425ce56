// A process that edits and saves a day is killed at any moment, five hundred times, by the real
// signal. It runs the program's own logic on real files; what a new start finds is held against
// what the process had told to be kept. Nothing here is timed but the moment of the kill.
#include <chrono>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "keeping/numbered_edits.h"
#include "storage/folders.h"
#include "support/file_faults.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr int kKills = 500;

enum Step : int { editing, keeping, saving };

// What the editing process tells; survives it.
struct Told {
  volatile int step = editing;
  volatile int kept = 0;  // the last edit after which the copy or the save was done
};

[[noreturn]] void EditAndSaveForever(Program& program, Told& told, int first) {
  for (int number = first;; ++number) {
    told.step = editing;
    MakeEdit(program, number);
    if (number % 4 == 0) {
      told.step = keeping;
      BringRecoveryCopyUpToDate(program);
    } else {
      told.step = saving;
      if (!SaveDay(program)) _exit(1);
    }
    told.kept = number;
  }
}

// The number of the last edit that a new start finds.
int StartAnew(TestProgram& test) {
  CloseDay(test.program);
  test.boxes.shown.clear();
  const std::optional<int> last = LastEditAfterNewStart(test);
  EXPECT_LE(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(last.has_value()) << "the day is lost";
  EXPECT_TRUE(SaveDay(test.program));
  EXPECT_TRUE(std::filesystem::is_empty(test.program.paths.StatePath));
  return last.value_or(-1);
}

// Before each single call that changes the disk, from the first one of the copy to the last one of
// the save.
TEST(Kills, AtEachStepOfASaveNothingIsLost) {
  TestProgram test;
  test.OpenDay("Anna");
  MakeEdit(test.program, 1);
  ASSERT_TRUE(SaveDay(test.program));
  int first = 2;
  for (std::size_t step = 0; !HasFailure(); ++step) {
    const pid_t child = fork();
    if (child == 0) {
      MakeEdit(test.program, first);
      BringRecoveryCopyUpToDate(test.program);
      MakeEdit(test.program, first + 1);
      const InjectedFault fault({.killed_before_change = step});
      _exit(SaveDay(test.program) ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    const int last = StartAnew(test);
    EXPECT_GE(last, first) << "killed before change " << step;
    if (WIFEXITED(status)) {
      EXPECT_EQ(WEXITSTATUS(status), 0);
      EXPECT_EQ(last, first + 1);
      EXPECT_GT(step, 12u);
      break;
    }
    first = last + 1;
  }
}

TEST(Kills, NoneLosesADayOrWhatWasKept) {
  TestProgram test;
  test.OpenDay("Anna");
  ASSERT_TRUE(SaveDay(test.program));
  const std::string path = PathOfDay(test.program);
  void* const shared =
      mmap(nullptr, sizeof(Told), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(shared, MAP_FAILED);
  auto& told = *new (shared) Told;
  std::mt19937 random(20041105);
  std::uniform_int_distribution<int> delay(0, 3000);
  std::array<int, 3> killed_while{};
  int without_file = 0;
  int first = 1;
  for (int round = 0; round < kKills && !HasFailure(); ++round) {
    const pid_t child = fork();
    if (child == 0) EditAndSaveForever(test.program, told, first);
    // Not before the round has kept something of its own.
    while (told.kept < first + 3 && waitpid(child, nullptr, WNOHANG) == 0) {
      std::this_thread::yield();
    }
    std::this_thread::sleep_for(std::chrono::microseconds(delay(random)));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const int kept = told.kept;
    ++killed_while[static_cast<std::size_t>(told.step)];
    ASSERT_GE(kept, first + 3) << "the editing process ended by itself";

    without_file += !std::filesystem::exists(path);
    const int last = StartAnew(test);
    EXPECT_GE(last, kept) << "round " << round;
    first = last + 1;
  }
  RecordProperty("killed_while_editing", killed_while[editing]);
  RecordProperty("killed_while_keeping", killed_while[keeping]);
  RecordProperty("killed_while_saving", killed_while[saving]);
  RecordProperty("killed_without_a_file", without_file);
  std::cout << "killed while editing " << killed_while[editing] << ", keeping "
            << killed_while[keeping] << ", saving " << killed_while[saving]
            << "; found without a day file " << without_file << "\n";
  EXPECT_GT(killed_while[saving], kKills / 2);
  munmap(shared, sizeof(Told));
}

}  // namespace
}  // namespace kelvora
