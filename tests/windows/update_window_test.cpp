// The window of the check for a newer version, in the main window and in the background.
#include "internet/update_window.h"

#include <QAction>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProgressBar>
#include <QTimer>

#include "core/frame/main_window.h"
#include "days/settings.h"
#include "internet/update.h"
#include "language/built_in_texts.h"
#include "storage/record_file.h"
#include "support/test_program.h"
#include "windows/food_server.h"

namespace kelvora {
namespace {

class UpdateWindowTest : public testing::Test {
 protected:
  UpdateWindowTest() {
    KnowServer("http://up.example/check.php");
    window.resize(1024, 748);
    window.Set_Taal();
    window.show();
    window.UpdateCommands();
  }
  void KnowServer(const std::string& address) {
    std::filesystem::create_directories(program.paths.ProgramPath);
    WriteFileAnew(program.paths.ProgramPath + "servers.conf", "update = " + address + "\n");
  }
  void Open() {
    window.findChild<QAction*>(QStringLiteral("mnu_check_updates"))->trigger();
    update = window.findChild<UpdateWindow*>();
    ASSERT_NE(update, nullptr);
  }
  void Begin() {
    Open();
    QApplication::processEvents();
  }
  QString Shown(const char* label) {
    return update->findChild<QLabel*>(QLatin1String(label))->text();
  }
  bool IsGone() {
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return window.findChild<UpdateWindow*>() == nullptr && program.windows.update == nullptr;
  }

  TestProgram test;
  Program& program = test.program;
  MainWindow window{test.program};
  UpdateWindow* update = nullptr;
};

TEST_F(UpdateWindowTest, ShowsVersionStateAndProgress) {
  Open();
  EXPECT_TRUE(update->isVisible());
  EXPECT_EQ(update->windowTitle(), "Internet updates");
  QApplication::processEvents();
  EXPECT_EQ(test.transfers.addresses,
            std::vector<std::string>{"http://up.example/check.php?version=2.24"});
  EXPECT_EQ(Shown("lbl_1"), "Version");
  EXPECT_EQ(Shown("lbl_2"), "Status");
  EXPECT_EQ(Shown("lbl_versie"), "2.24");
  EXPECT_EQ(Shown("lbl_status"), ": Connecting to server ...");
  EXPECT_EQ(Shown("StatusBar_1"), "Looking for a newer version of Kelvora FOOD ...");
  EXPECT_EQ(update->findChild<QProgressBar*>(QStringLiteral("ProgressBar"))->value(), 1);
  auto* const timer = update->findChild<QTimer*>(QStringLiteral("Timeout_timer"));
  ASSERT_NE(timer, nullptr);
  EXPECT_EQ(timer->interval(), 3000);
  EXPECT_TRUE(timer->isSingleShot());
  Make_Taal_Dutch(program.texts);
  update->Set_Taal();
  EXPECT_EQ(Shown("lbl_status"), ": Er wordt verbinding gemaakt met de server ...");
  EXPECT_EQ(update->windowTitle(), "Updates via internet");
}

TEST_F(UpdateWindowTest, ClosesAfterTheReply) {
  Begin();
  test.transfers.Complete({"2.24\xBD"});
  EXPECT_TRUE(IsGone());
  EXPECT_TRUE(test.boxes.shown.empty());
  Begin();
  test.transfers.Complete({"3.00\xBD"});
  EXPECT_TRUE(IsGone());
  EXPECT_EQ(test.boxes.shown.size(), 1u);
}

TEST_F(UpdateWindowTest, ClosesByItselfWhenTheServerIsSilent) {
  Begin();
  EXPECT_TRUE(QTest::qWaitFor([this] { return IsGone(); }, 60'000));
  EXPECT_EQ(test.transfers.cancelled, 1);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(UpdateWindowTest, ClosesByItselfWithoutANetwork) {
  test.transfers.network_is_up = false;
  Begin();
  EXPECT_FALSE(IsGone());
  EXPECT_EQ(Shown("lbl_status"), ": Can't make a connection.");
  EXPECT_TRUE(QTest::qWaitFor([this] { return IsGone(); }, 60'000));
}

TEST_F(UpdateWindowTest, OneThatIsClosedIsNotHeardOfAgain) {
  Begin();
  program.windows.update->CloseWindow();
  EXPECT_TRUE(IsGone());
  EXPECT_EQ(test.transfers.cancelled, 1);
  Open();
  program.windows.update->CloseWindow();
  QApplication::processEvents();
  EXPECT_TRUE(IsGone());
  EXPECT_EQ(test.transfers.addresses.size(), 1u);
}

TEST_F(UpdateWindowTest, TheCommandBringsTheOneThatRunsToTheFront) {
  Begin();
  Begin();
  EXPECT_EQ(window.findChildren<UpdateWindow*>().size(), 1);
  EXPECT_EQ(test.transfers.addresses.size(), 1u);
}

TEST_F(UpdateWindowTest, SavingTheSettingsChecksOnceWithoutAWindow) {
  ASSERT_TRUE(Save_From_Form(program, FormOfSettings(program)));
  QApplication::processEvents();
  EXPECT_EQ(test.transfers.addresses.size(), 1u);
  update = window.findChild<UpdateWindow*>();
  ASSERT_NE(update, nullptr);
  EXPECT_FALSE(update->isVisible());
  test.transfers.Fail();
  EXPECT_TRUE(IsGone());
  EXPECT_TRUE(test.boxes.shown.empty());
  ASSERT_TRUE(Save_From_Form(program, FormOfSettings(program)));
  QApplication::processEvents();
  EXPECT_EQ(test.transfers.addresses.size(), 1u);
}

TEST_F(UpdateWindowTest, TheCommandShowsTheOneOfTheBackground) {
  ASSERT_TRUE(Save_From_Form(program, FormOfSettings(program)));
  Begin();
  EXPECT_TRUE(update->isVisible());
  EXPECT_EQ(test.transfers.addresses.size(), 1u);
  test.transfers.Fail("No route");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("No route"));
}

TEST_F(UpdateWindowTest, SavingTheSettingsAfterACheckChecksNoMore) {
  Begin();
  test.transfers.Complete({"2.24\xBD"});
  EXPECT_TRUE(IsGone());
  ASSERT_TRUE(Save_From_Form(program, FormOfSettings(program)));
  QApplication::processEvents();
  EXPECT_EQ(test.transfers.addresses.size(), 1u);
}

TEST_F(UpdateWindowTest, ARealServerAnswers) {
  FoodServer server;
  CurlTransfers transfers;
  test.transfers.real = &transfers;
  test.transfers.network_is_up = false;
  KnowServer(server.Host("newer"));
  Begin();
  EXPECT_TRUE(QTest::qWaitFor([this] { return IsGone(); }, 60'000));
  EXPECT_TRUE(server.Requests(1)[0].starts_with("GET /newer?version=2.24 HTTP/1.1\r\n"));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.starts_with("There is a newer version"));
}

TEST_F(UpdateWindowTest, AVersionOfAnyLengthLeavesTheWindowAsItIs) {
  Begin();
  const int width = update->parentWidget()->width();
  test.transfers.Complete({std::string(1'000'000, '9') + "\xBD"});
  EXPECT_EQ(update->parentWidget()->width(), width);
  EXPECT_TRUE(IsGone());
}

}  // namespace
}  // namespace kelvora
