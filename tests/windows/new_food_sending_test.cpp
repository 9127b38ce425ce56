// The dialog for a new food while a food is on its way to the server.
#include "windows/food_server.h"
#include "windows/new_food_window.h"

namespace kelvora {
namespace {

class NewFoodSending : public NewFoodWindow {
 protected:
  NewFoodSending() {
    Stored(Setting::chk_addinternet) = "1";
    KnowAServer();
    setenv("USERNAME", "Anna", 1);
  }

  void Send() {
    Open();
    FillIn();
    Click("cmd_opslaan");
  }
  // Which of the controls can be used: name, value, tick, add, cancel.
  QString Enabled() {
    QString enabled;
    for (const char* name : {"txt_dNaam", "txt_s_0", "chk_inet", "cmd_opslaan", "cmd_annuleer"}) {
      enabled += Find(name)->isEnabled() ? '1' : '0';
    }
    return enabled;
  }
};

TEST_F(NewFoodSending, NothingCanBeChangedMeanwhileAndThenTheNextFoodStarts) {
  Send();
  EXPECT_EQ(test.transfers.addresses,
            std::vector<std::string>{
                "http://localhost:1/?naam=Soup&kj=1000&kcal=240&vvet=0.00&ovet=0.00&kdr=0.00"
                "&ew=0.00&nat=0.000&opmerking=Kelvora FOOD&gepost=Anna"});
  EXPECT_EQ(Enabled(), "00001");
  EXPECT_EQ(Shown("txt_dNaam"), "Soup");
  EXPECT_TRUE(Find("cmd_annuleer")->hasFocus());
  EXPECT_EQ(OwnList().Count(), 1u);
  test.transfers.Complete({"OK"});
  EXPECT_EQ(Enabled(), "11111");
  EXPECT_EQ(Shown("txt_dNaam"), "");
  EXPECT_EQ(Unit(), "");
  EXPECT_TRUE(Find("txt_sGram")->hasFocus());
  EXPECT_TRUE(dialog->isVisible());
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Thanks for your submission!"));
  EXPECT_EQ(Stored(Setting::SubmitCount), "1");
}

TEST_F(NewFoodSending, EscapeAndCancelGiveUpAndTheDialogStays) {
  for (const char* name : {"Soup", "Stew"}) {
    Open();
    FillIn(name);
    Click("cmd_opslaan");
    if (name == Text("Soup")) {
      QTest::keyClick(dialog.get(), Qt::Key_Escape);
    } else {
      Click("cmd_annuleer");
    }
    ASSERT_EQ(test.boxes.shown.size(), 1u);
    EXPECT_EQ(test.boxes.shown[0].title, "Error #504");
    test.boxes.shown.clear();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(Enabled(), "11111");
    EXPECT_EQ(Shown("txt_dNaam"), "");
  }
  EXPECT_EQ(test.transfers.cancelled, 2);
  EXPECT_EQ(OwnList().Count(), 2u);
  QTest::keyClick(dialog.get(), Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(NewFoodSending, ClosingTheDialogGivesUpAndClosesIt) {
  Send();
  dialog->close();
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].title, "Error #504");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(NewFoodSending, ADialogThatGoesIsNotHeardOfAgain) {
  Send();
  dialog.reset();
  EXPECT_EQ(test.transfers.cancelled, 1);
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(NewFoodSending, ARealServerGetsItByteForByte) {
  FoodServer server;
  CurlTransfers transfers;
  test.transfers.real = &transfers;
  test.program.servers.submission = server.Host("accepted") + "/modules/swadd.php";
  Open();
  FillIn("Soup & bread");
  Click("cmd_opslaan");
  ASSERT_TRUE(QTest::qWaitFor([this] { return !test.boxes.shown.empty(); }, 60'000));
  EXPECT_EQ(server.Requests(1)[0],
            "GET /accepted/modules/swadd.php?naam=Soup & bread&kj=1000&kcal=240&vvet=0.00"
            "&ovet=0.00&kdr=0.00&ew=0.00&nat=0.000&opmerking=Kelvora FOOD&gepost=Anna HTTP/1.1\r\n"
            "Host: 127.0.0.1:" +
                server.Port() + "\r\nUser-Agent: Kelvora FOOD/2.24\r\nAccept: */*\r\n\r\n");
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Thanks for your submission!"));
}

TEST_F(NewFoodSending, ARealServerThatKeepsSilentIsGivenUp) {
  FoodServer server;
  CurlTransfers transfers;
  test.transfers.real = &transfers;
  for (const char* path : {"silent", "hang_in_body", "endless"}) {
    test.boxes.shown.clear();
    test.program.store.Custom_list.Clear();
    test.program.servers.submission = server.Host(path) + "/modules/swadd.php";
    Send();
    EXPECT_EQ(Enabled(), "00001");
    dialog->close();
    ASSERT_EQ(test.boxes.shown.size(), 1u) << path;
    EXPECT_EQ(test.boxes.shown[0].title, "Error #504");
  }
}

}  // namespace
}  // namespace kelvora
