// The check for a newer version: each status text in its order, each box, and how it ends.
#include "internet/update.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "core/common.h"
#include "language/built_in_texts.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

struct NotedWindow : UpdateCheckView {
  const UpdateCheck* check = nullptr;
  std::vector<Text> statuses;
  std::vector<int> steps;
  int timer = 0;
  int closed = 0;
  int closed_after = 0;
  void ShowState() override {
    statuses.push_back(check->lbl_status());
    steps.push_back(check->Step());
  }
  void StartTimer(int milliseconds) override { timer = milliseconds; }
  void CloseWindow() override { ++closed; }
  void CloseAfter(int milliseconds) override { closed_after = milliseconds; }
};

class Updating : public testing::Test {
 protected:
  Updating() { KnowServer("update = http://up.example/kv/check.php\n"); }

  void KnowServer(std::string_view line) {
    std::filesystem::create_directories(program.paths.ProgramPath);
    WriteFileAnew(program.paths.ProgramPath + "servers.conf", line);
  }
  void Connect(UpdateMode mode = UpdateMode::shown) {
    check = std::make_unique<UpdateCheck>(program, window, mode);
    window.check = check.get();
    check->Connect();
  }
  std::string Boxes() {
    std::string boxes;
    for (const Box& box : test.boxes.shown) boxes += box.title + "|" + box.text;
    return boxes;
  }

  TestProgram test;
  Program& program = test.program;
  NotedWindow window;
  std::unique_ptr<UpdateCheck> check;
};

constexpr std::string_view kNewer =
    "Kelvora FOOD|There is a newer version of Kelvora FOOD available.\n"
    "You can download this version free of charge.\n\n"
    "Use Novafetch to download and install the new version.";

TEST_F(Updating, AsksWithTheOwnVersionAndThreeSecondsOfTime) {
  Connect();
  EXPECT_EQ(test.transfers.addresses,
            std::vector<std::string>{"http://up.example/kv/check.php?version=2.24"});
  EXPECT_EQ(window.timer, 3000);
  EXPECT_EQ(window.statuses, std::vector<Text>{": Connecting to server ..."});
  EXPECT_EQ(check->lbl_versie(), "2.24");
  EXPECT_EQ(check->StatusBarText(), "Looking for a newer version of Kelvora FOOD ...");
  EXPECT_TRUE(program.update_checked);
  EXPECT_EQ(window.closed, 0);
}

TEST_F(Updating, ANewerVersionIsToldAndTheWindowCloses) {
  Connect();
  test.transfers.Complete({"3.", "00\xBD", "more\xBD rest"});
  EXPECT_EQ(window.statuses,
            (std::vector<Text>{": Connecting to server ...", ": Busy with receiving ...",
                               ": Connected, analysing data ...",
                               ": Connected, version on server: 3.00"}));
  EXPECT_EQ(window.steps, (std::vector<int>{1, 2, 3, 4}));
  EXPECT_EQ(Boxes(), kNewer);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::information);
  EXPECT_EQ(window.closed, 1);
  EXPECT_EQ(check->StatusBarText(), "The update check is finished.");
}

TEST_F(Updating, AnEqualOrOlderVersionOrNoneIsNot) {
  for (const char* reply : {"2.24\xBD", "2.23\xBD", "\xBD", "3.00", "1.9\xBD", "x\xBD"}) {
    Connect();
    test.transfers.Complete({reply});
  }
  EXPECT_EQ(Boxes(), "");
  EXPECT_EQ(window.closed, 6);
  EXPECT_EQ(window.statuses.back(), ": Connected, version on server: x");
}

TEST_F(Updating, AnEmptyReplyOnlyCloses) {
  Connect();
  test.transfers.Complete({});
  EXPECT_EQ(window.statuses, std::vector<Text>{": Connecting to server ..."});
  EXPECT_EQ(window.closed, 1);
  EXPECT_EQ(Boxes(), "");
}

TEST_F(Updating, AFailedConnectionIsToldInTheWordsOfTheComponent) {
  Connect();
  test.transfers.Fail("Connection refused");
  EXPECT_EQ(Boxes(),
            "Kelvora FOOD|Kelvora FOOD can not make a connection with the Brelux server.\n"
            "Windows error:\n\nConnection refused");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::error);
  EXPECT_EQ(window.closed, 1);
}

TEST_F(Updating, AServerThatIsSilentForThreeSecondsIsUnreachable) {
  Connect();
  check->TakeTimeout();
  EXPECT_EQ(test.transfers.cancelled, 1);
  EXPECT_EQ(window.statuses.back(), ": Can't make a connection.");
  EXPECT_EQ(window.closed, 1);
  EXPECT_EQ(Boxes(), "");
  EXPECT_FALSE(test.pointer.waiting);
  check->TakeTimeout();
  EXPECT_EQ(window.closed, 1);
}

TEST_F(Updating, TheTimeCountsNoLongerOnceThereIsAnAnswer) {
  Connect();
  test.transfers.Complete({"3.00\xBD"});
  check->TakeTimeout();
  Connect();
  test.transfers.Fail();
  check->TakeTimeout();
  EXPECT_EQ(window.closed, 2);
  EXPECT_NE(window.statuses.back(), ": Can't make a connection.");
}

TEST_F(Updating, WithoutANetworkTheTextStandsForASecond) {
  test.transfers.network_is_up = false;
  Connect();
  EXPECT_TRUE(test.transfers.addresses.empty());
  EXPECT_EQ(window.statuses,
            (std::vector<Text>{": Connecting to server ...", ": Can't make a connection."}));
  EXPECT_EQ(window.closed_after, 1000);
  EXPECT_EQ(window.closed, 0);
  EXPECT_EQ(Boxes(), "");
}

TEST_F(Updating, AServerOfThisMachineNeedsNoNetwork) {
  test.transfers.network_is_up = false;
  KnowServer("update = http://localhost:8080\n");
  Connect();
  EXPECT_EQ(test.transfers.addresses,
            std::vector<std::string>{"http://localhost:8080?version=2.24"});
}

TEST_F(Updating, WithoutAServerItFailsAtOnceAndSendsNothing) {
  KnowServer("");
  test.transfers.network_is_up = false;
  Connect();
  EXPECT_TRUE(test.transfers.addresses.empty());
  EXPECT_EQ(Boxes(),
            "Kelvora FOOD|Kelvora FOOD can not make a connection with the Brelux server.\n"
            "Windows error:\n\nNo server for updates is known to this program.");
  EXPECT_EQ(window.closed, 1);
}

TEST_F(Updating, InTheBackgroundOnlyANewerVersionIsTold) {
  Connect(UpdateMode::background);
  test.transfers.Fail();
  Connect(UpdateMode::background);
  test.transfers.Complete({"2.24\xBD"});
  Connect(UpdateMode::background);
  check->TakeTimeout();
  EXPECT_EQ(window.closed, 3);
  EXPECT_EQ(Boxes(), "");
  Connect(UpdateMode::background);
  test.transfers.Complete({"3.00\xBD"});
  EXPECT_EQ(Boxes(), kNewer);
}

TEST_F(Updating, OneOfTheBackgroundThatIsShownTellsAll) {
  Connect(UpdateMode::background);
  check->Show();
  test.transfers.Fail();
  EXPECT_TRUE(Boxes().starts_with("Kelvora FOOD|Kelvora FOOD can not make a connection"));
}

TEST_F(Updating, OneThatIsStoppedIsNotHeardOfAgain) {
  Connect();
  check->Stop();
  check->TakeTimeout();
  EXPECT_EQ(test.transfers.cancelled, 1);
  EXPECT_EQ(window.statuses.size(), 1u);
  check = std::make_unique<UpdateCheck>(program, window, UpdateMode::shown);
  check->Stop();
  check->Connect();
  EXPECT_EQ(test.transfers.addresses.size(), 1u);
}

TEST_F(Updating, SpeaksDutch) {
  Make_Taal_Dutch(program.texts);
  Connect();
  EXPECT_EQ(window.statuses.back(), ": Er wordt verbinding gemaakt met de server ...");
  test.transfers.Complete({"3.00\xBD"});
  EXPECT_EQ(window.statuses.back(), ": Verbonden, de versie op de server is: 3.00");
  EXPECT_EQ(Boxes(),
            "Kelvora FOOD|Er is een nieuwere versie van Kelvora FOOD beschikbaar.\n"
            "Je kunt deze versie gratis downloaden.\n\n"
            "Gebruik Novafetch om de nieuwe versie te downloaden en te installeren.");
}

// The own version is 224: a version counts by its digits.
TEST(IsNewerVersion, ComparesTheDigitsAsOneNumber) {
  for (const char* newer : {"2.25", "3.00", "22.5", "2.2.5", "1.100", "225", "2.240"}) {
    EXPECT_TRUE(IsNewerVersion(newer)) << newer;
  }
  for (const char* not_newer : {"", "2.24", "2.23", "3.0", "9.9", "x", "2,25", "-3.00"}) {
    EXPECT_FALSE(IsNewerVersion(not_newer)) << not_newer;
  }
}

class CheckingOnce : public Updating {};

TEST_F(CheckingOnce, RunsInTheBackgroundIfNoneHasBegunAndAServerIsKnown) {
  CheckForUpdateOnce(program);
  EXPECT_EQ(test.core.updates_opened, std::vector<UpdateMode>{UpdateMode::background});
  program.update_checked = true;
  CheckForUpdateOnce(program);
  program.update_checked = false;
  KnowServer("dutch = http://nl.example\n");
  CheckForUpdateOnce(program);
  EXPECT_EQ(test.core.updates_opened.size(), 1u);
}

}  // namespace
}  // namespace kelvora
