// The internet view of the food lists: what a search shows, how it is given up, and what becomes of
// the foods found.
#include <QClipboard>
#include <QLineEdit>
#include <QScrollBar>

#include "days/settings.h"
#include "language/built_in_texts.h"
#include "storage/day_file.h"
#include "storage/settings_file.h"
#include "windows/food_lists_user.h"

namespace kelvora {
namespace {

class InternetList : public FoodListsWindowTest {
 protected:
  InternetList() { program.servers.search = "http://nl.example/modules/kvzoek.php"; }

  void OpenInternet() {
    Open();
    Press(4);
  }
  QLineEdit* Box() { return In<QLineEdit>("txt_internet"); }
  void Search(const QString& term) {
    Box()->setFocus();
    QTest::keyClicks(Box(), term);
    QTest::keyClick(Box(), Qt::Key_Return);
  }
  void Find(const QString& term, const std::string& reply) {
    Search(term);
    test.transfers.Complete({reply});
    QApplication::processEvents();
  }
  static std::string Reply(std::initializer_list<const char*> names) {
    std::string reply;
    for (const char* name : names) reply += LineOf({.product = name, .kcal = "52"}) + "\xBC";
    return reply;
  }
  QString Hint() { return List(4)->findChild<QLabel*>(QStringLiteral("empty_hint"))->text(); }
  Text& Stored(Setting setting) { return program.settings[setting]; }
};

TEST_F(InternetList, SaysWhatToDoWhileItIsEmpty) {
  OpenInternet();
  EXPECT_EQ(Hint(), "Enter a food item above and press ENTER to search on internet.");
  EXPECT_EQ(Box()->toolTip(), "Search for food items on the food server");
  EXPECT_TRUE(Box()->isEnabled());
}

TEST_F(InternetList, SearchesAtEnterWithTheBoxGreyMeanwhile) {
  OpenInternet();
  Search(QStringLiteral("appel taart"));
  EXPECT_EQ(test.transfers.addresses,
            std::vector<std::string>{"http://nl.example/modules/kvzoek.php?item=appel taart"});
  EXPECT_FALSE(Box()->isEnabled());
  EXPECT_EQ(Box()->palette().color(QPalette::Disabled, QPalette::Base).rgb(), 0xFFE0E0E0u);
  EXPECT_EQ(Status(1), "Internet");
  EXPECT_EQ(Status(2), "Searching on internet ...");
  EXPECT_EQ(Hint(), "Searching. Press ESC to stop.");
  EXPECT_EQ(Box()->text(), "appel taart");
  EXPECT_TRUE(test.pointer.waiting);
  test.transfers.Complete({Reply({"Apple", "Pear", "Plum"})});
  EXPECT_EQ(Names(List(4)), "Apple Pear Plum");
  EXPECT_EQ(Cell(List(4), 1, 4), "52");
  EXPECT_EQ(Status(2), "3 Food items found on internet");
  EXPECT_TRUE(Box()->isEnabled());
  EXPECT_EQ(Box()->text(), "");
  EXPECT_TRUE(Box()->hasFocus());
  EXPECT_EQ(Box()->palette().color(QPalette::Disabled, QPalette::Base),
            QApplication::palette().color(QPalette::Disabled, QPalette::Base));
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(InternetList, WhatTextCanNotHoldIsNotSent) {
  OpenInternet();
  QApplication::clipboard()->setText(QString::fromUtf8("crème \u0142 brûlée\nmore"));
  Box()->setFocus();
  Box()->paste();
  QTest::keyClick(Box(), Qt::Key_Return);
  EXPECT_EQ(test.transfers.addresses.back(),
            "http://nl.example/modules/kvzoek.php?item=cr\xE8me  br\xFBl\xE9"
            "e more");
}

TEST_F(InternetList, WithoutResultsTheFoodsOfBeforeStay) {
  OpenInternet();
  Find("a", Reply({"Apple"}));
  Search("zz");
  EXPECT_EQ(Names(List(4)), "");
  test.transfers.Complete({"nothing"});
  EXPECT_EQ(Names(List(4)), "Apple");
  EXPECT_EQ(Status(2), "1 food items available");
  EXPECT_EQ(Box()->text(), "");
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  Press(1);
  Press(4);
  EXPECT_EQ(Status(2), "1 Food items found on internet");
}

TEST_F(InternetList, EscapeGivesUpAndKeepsTheTerm) {
  OpenInternet();
  Find("a", Reply({"Apple"}));
  Search("slow");
  EXPECT_TRUE(lists->isAncestorOf(QApplication::focusWidget()));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_EQ(test.transfers.cancelled, 1);
  EXPECT_EQ(Box()->text(), "slow");
  EXPECT_TRUE(Box()->isEnabled());
  EXPECT_TRUE(Box()->hasFocus());
  EXPECT_EQ(Names(List(4)), "Apple");
  EXPECT_EQ(Status(2), "1 Food items found on internet");
  EXPECT_EQ(Stored(Setting::SearchCount), "2");
  EXPECT_TRUE(test.boxes.shown.empty());
  // Without a search the key is not taken.
  QTest::keyClick(Box(), Qt::Key_Escape);
  EXPECT_EQ(Stored(Setting::SearchCount), "2");
}

TEST_F(InternetList, ClosingTheWindowGivesUp) {
  OpenInternet();
  Search("slow");
  program.windows.lists->CloseWindow();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(program.windows.lists, nullptr);
  EXPECT_EQ(test.transfers.cancelled, 1);
  EXPECT_FALSE(test.pointer.waiting);
  Stored(Setting::SearchCount) = "?";
  ASSERT_TRUE(ReadSettingsFile(program));
  EXPECT_EQ(Stored(Setting::SearchCount), "1");
}

TEST_F(InternetList, AnotherViewMeanwhileKeepsItsOwnStatus) {
  OpenInternet();
  Search("apple");
  Press(2);
  EXPECT_EQ(Status(2), "3 food items available");
  Press(4);
  EXPECT_EQ(Status(2), "Searching on internet ...");
  Press(2);
  test.transfers.Complete({"nothing"});
  EXPECT_EQ(Status(2), "3 food items available");
  Press(4);
  EXPECT_EQ(Status(2), "0 Food items found on internet");
}

TEST_F(InternetList, FocusThatWentElsewhereStaysThere) {
  OpenInternet();
  Search("apple");
  Press(2);
  auto* const other = new QLineEdit(&window);
  other->show();
  other->setFocus();
  test.transfers.Complete({Reply({"Apple"})});
  EXPECT_TRUE(other->hasFocus());
}

TEST_F(InternetList, SettingsWithoutTheInternetGiveUp) {
  OpenInternet();
  Search("slow");
  SettingsForm form = FormOfSettings(program);
  form.chk_internet = false;
  ASSERT_TRUE(Save_From_Form(program, form));
  EXPECT_EQ(test.transfers.cancelled, 1);
  EXPECT_EQ(Status(1), "Standard list");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(InternetList, AnotherLanguageMeanwhileShowsTheSearchInIt) {
  OpenInternet();
  Search("slow");
  Make_Taal_Dutch(program.texts);
  program.windows.lists->Set_Taal();
  EXPECT_EQ(Status(2), "Er wordt op internet gezocht ...");
  EXPECT_EQ(Hint(), "Er wordt gezocht. Druk op ESC om te stoppen.");
  EXPECT_FALSE(Box()->isEnabled());
}

TEST_F(InternetList, TheOnlyHitIsAddedToTheDayByTheKeyboardAlone) {
  OpenInternet();
  Find("a", Reply({"Apple"}));
  for (int tabs = 0; tabs < 20 && !List(4)->hasFocus(); ++tabs) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  ASSERT_TRUE(List(4)->hasFocus());
  QTest::keyClick(List(4), Qt::Key_Down);
  QTest::keyClick(List(4), Qt::Key_Return);
  ASSERT_EQ(store.L_ochtend.Count(), 1u);
  EXPECT_EQ(store.L_ochtend[0], LineOf({.product = "Apple", .kcal = "52"}));
}

TEST_F(InternetList, OddFoodsAreOrdinaryRows) {
  OpenInternet();
  const std::string huge(1'000'000, 'x');
  std::string forty;
  for (int i = 0; i < 40; ++i) forty += std::to_string(i) + "\xBD";
  Find("a",
       "Soup\xBD"
       "1 plate\xBD"
       "250\xBD\xBC" +
           forty +
           "\xBC"
           "no half\xBC" +
           huge + "\xBD\xBC<b>bold</b>\xBD\xBC" + std::string("\0x\xBD\xBC", 4) +
           "\xBC\xFF\xFE\xBD\xBC");
  ASSERT_EQ(List(4)->Model().rowCount(), 8);
  for (int row = 0; row < 8; ++row) {
    List(4)->SelectRow(row);
    QApplication::processEvents();
  }
  List(4)->grab();
  EXPECT_EQ(Cell(List(4), 0), "Soup");
  EXPECT_EQ(Cell(List(4), 0, 3), "250");
  EXPECT_EQ(Cell(List(4), 1), "0");
  EXPECT_EQ(Cell(List(4), 2), "");
  EXPECT_EQ(Cell(List(4), 4), "<b>bold</b>");
  for (int column = 1; column < 5; ++column) ClickHeading(List(4), column);
  EXPECT_EQ(Status(2), "8 Food items found on internet");
  EXPECT_TRUE(store.Default_list.Count() == 4 && store.Custom_list.Count() == 3 &&
              store.L_ochtend.Empty());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(InternetList, AnEarlierListIsScrolledAndSortedAnew) {
  OpenInternet();
  std::string many;
  for (int i = 0; i < 500; ++i) many += "Food " + std::to_string(i) + "\xBD\xBC";
  Find("a", many);
  ClickHeading(List(4), 1);
  List(4)->scrollToBottom();
  Find("b", Reply({"Pear", "Apple"}));
  EXPECT_EQ(Names(List(4)), "Pear Apple");
  EXPECT_EQ(List(4)->verticalScrollBar()->value(), 0);
}

}  // namespace
}  // namespace kelvora
