// Whatever ends in the middle of a transfer: a real server that keeps silent or never stops, the
// real transfers, and a window, a day, a user or the program that goes meanwhile.
#include <QLineEdit>
#include <QMdiSubWindow>

#include "core/frame/arrangement.h"
#include "core/program.h"
#include "days/open_day.h"
#include "food/new_food_dialog.h"
#include "internet/update_window.h"
#include "storage/day_file.h"
#include "storage/record_file.h"
#include "windows/food_lists_user.h"
#include "windows/food_server.h"

namespace kelvora {
namespace {

class InternetEndings : public FoodListsWindowTest {
 protected:
  InternetEndings() { test.transfers.real = &transfers; }

  // Begins a search on a server of that kind, and waits until the server has it.
  void BeginSearch(const char* path) {
    Open();
    Press(4);
    program.servers.search = server.Host(path) + "/modules/kvzoek.php";
    auto* const box = In<QLineEdit>("txt_internet");
    box->setFocus();
    QTest::keyClicks(box, QStringLiteral("appel taart"));
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(server.Requests(1).size(), 1u);
  }
  // Lets what is still on its way come in: another transfer, from its begin to its end.
  void LetEventsCome() {
    bool ended = false;
    const auto other =
        transfers.Get(server.Host("hits") + "/", [&](TransferState) { ended = true; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return ended; }, 60'000));
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
  }
  void ExpectGivenUp() {
    LetEventsCome();
    EXPECT_FALSE(test.pointer.waiting);
    EXPECT_TRUE(test.boxes.shown.empty());
    EXPECT_EQ(program.settings[Setting::SearchCount], "1");
    EXPECT_EQ(program.settings[Setting::SearchBytes], "0");
  }

  FoodServer server;
  CurlTransfers transfers;
};

constexpr std::array kSlowServers = {"silent", "hang_in_headers", "hang_in_body", "endless"};

TEST_F(InternetEndings, FoodsOfARealServerComeIn) {
  BeginSearch("hits");
  ASSERT_TRUE(QTest::qWaitFor([this] { return List(4)->Model().rowCount() == 3; }, 60'000));
  EXPECT_EQ(Names(List(4)), QString::fromUtf8("Appeltaart Appelmoes Crème brûlée"));
  EXPECT_TRUE(server.Requests(1)[0].starts_with(
      "GET /hits/modules/kvzoek.php?item=appel taart HTTP/1.1\r\n"));
}

// What each kind of server leaves in the list, or the two boxes of a failed search; nothing else of
// the user's changes.
TEST_F(InternetEndings, EveryKindOfServerEndsInRowsOrInTheBoxes) {
  struct Case {
    const char* path;
    int rows;  // -1: the boxes of a failed connection; 0: the box that nothing was found
  };
  Open();
  Press(4);
  auto* const box = In<QLineEdit>("txt_internet");
  // Short for those that hang, and long enough for the others on a busy machine.
  CurlTransfers impatient(
      {.connect = std::chrono::seconds(60), .silence = std::chrono::milliseconds(400)});
  for (const Case& row : {
           Case{"hits", 3},
           Case{"status_404", 3},
           Case{"status_500", 0},
           Case{"compressed", 0},
           Case{"chunked", 3},
           Case{"until_the_end", 3},
           Case{"nuls", 1},
           Case{"three_fields", 1},
           Case{"forty_fields", 1},
           Case{"no_half", 1},
           Case{"megabyte", 1},
           Case{"markup", 1},
           Case{"utf_8", 1},
           Case{"broken_utf_8", 1},
           Case{"line_ends", 1},
           Case{"behind_the_last", 3},
           Case{"slow", 1},
           Case{"redirect_5", 3},
           Case{"empty", 0},
           Case{"nothing", 0},
           Case{"longer_than_it_says", 1},
           Case{"shorter_than_it_says", -1},
           Case{"negative_length", -1},
           Case{"no_http", -1},
           Case{"closes", -1},
           Case{"reset", -1},
           Case{"reset_in_body", -1},
           Case{"redirect_6", -1},
           Case{"to_ftp", -1},
           Case{"to_a_file", -1},
           Case{"silent", -1},
           Case{"hang_in_headers", -1},
           Case{"hang_in_body", -1},
           Case{"endless", -1},
       }) {
    const bool hangs = row.path == Text("silent") || Text(row.path).starts_with("hang");
    test.transfers.real = hangs ? &impatient : &transfers;
    test.boxes.shown.clear();
    program.servers.search = server.Host(row.path) + "/modules/kvzoek.php";
    const int before = List(4)->Model().rowCount();
    box->setText(QStringLiteral("x"));
    QTest::keyClick(box, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return box->isEnabled(); }, 120'000)) << row.path;
    EXPECT_EQ(test.boxes.shown.size(), row.rows > 0 ? 0u : row.rows == 0 ? 1u : 2u) << row.path;
    EXPECT_EQ(List(4)->Model().rowCount(), row.rows > 0 ? row.rows : before) << row.path;
    EXPECT_EQ(box->text(), "") << row.path;
    List(4)->grab();
  }
  EXPECT_FALSE(test.pointer.waiting);
  EXPECT_EQ(program.settings[Setting::SearchCount], "34");
  EXPECT_TRUE(store.Default_list.Count() == 4 && store.Custom_list.Count() == 3 &&
              store.Favorites_list.Empty() && store.L_ochtend.Empty());
}

TEST_F(InternetEndings, TheWindowIsClosed) {
  BeginSearch("endless");
  program.windows.lists->CloseWindow();
  ExpectGivenUp();
  EXPECT_EQ(program.windows.lists, nullptr);
}

TEST_F(InternetEndings, TheDayIsClosed) {
  BeginSearch("silent");
  CloseDay(program);
  LetEventsCome();
  if (program.windows.lists != nullptr) program.windows.lists->CloseWindow();
  ExpectGivenUp();
}

TEST_F(InternetEndings, AnotherDayArrangesTheWindowsAnew) {
  BeginSearch("hang_in_body");
  ApplyChosenArrangement(program);
  EXPECT_NE(program.windows.lists, nullptr);
  ExpectGivenUp();
}

TEST_F(InternetEndings, AnotherUserIsChosen) {
  BeginSearch("hang_in_headers");
  SetCurrentUser(program, "Bert");
  store.Custom_list.Clear();
  program.windows.lists->Populate_Food_List_Custom();
  program.windows.lists->CloseWindow();
  ExpectGivenUp();
}

TEST_F(InternetEndings, EscapeGivesUpOnEveryKindOfServer) {
  Open();
  Press(4);
  auto* const box = In<QLineEdit>("txt_internet");
  int searches = 0;
  for (const char* path : kSlowServers) {
    program.servers.search = server.Host(path) + "/modules/kvzoek.php";
    box->setText(QStringLiteral("x"));
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_FALSE(box->isEnabled());
    server.Requests(static_cast<std::size_t>(++searches));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(box->isEnabled()) << path;
  }
  LetEventsCome();
  EXPECT_EQ(program.settings[Setting::SearchCount], "4");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(InternetEndings, ANewSearchFollowsOneThatWasGivenUp) {
  BeginSearch("endless");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  program.servers.search = server.Host("found") + "/modules/kvzoek.php";
  QTest::keyClick(In<QLineEdit>("txt_internet"), Qt::Key_Return);
  ASSERT_TRUE(QTest::qWaitFor([this] { return List(4)->Model().rowCount() == 1; }, 60'000));
  EXPECT_EQ(Names(List(4)), "Appeltaart");
}

// A program of its own, which ends while its windows have transfers under way.
TEST(InternetEnding, TheProgramEnds) {
  FoodServer server;
  CurlTransfers transfers;
  for (const char* path : kSlowServers) {
    TestProgram test;
    test.transfers.real = &transfers;
    Program& program = test.program;
    const std::string conf = "update = " + server.Host(path) + "\n";
    std::filesystem::create_directories(program.paths.ProgramPath);
    WriteFileAnew(program.paths.ProgramPath + "servers.conf", conf);
    program.servers = {server.Host(path) + "/search", server.Host(path) + "/submission"};
    {
      MainWindow window(program);
      window.show();
      test.OpenDay("Anna");
      ApplyChosenArrangement(program);
      window.OpenUpdate(UpdateMode::shown);
      NewFoodDialog dialog(program, &window);
      dialog.show();
      auto* const box = window.findChild<QLineEdit*>(QStringLiteral("txt_internet"));
      box->setText(QStringLiteral("x"));
      emit box->returnPressed();
      QTest::qWait(50);
      EXPECT_TRUE(test.pointer.waiting);
      EndProgram(program);
    }
    EXPECT_FALSE(test.pointer.waiting);
    EXPECT_TRUE(test.boxes.shown.empty());
  }
}

}  // namespace
}  // namespace kelvora
