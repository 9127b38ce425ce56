// Entering a day by the keyboard alone: from the search box to a row and back, with an amount.
#include <QComboBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "core/frame/commands.h"
#include "language/built_in_texts.h"
#include "storage/day_file.h"
#include "windows/food_lists_user.h"

namespace kelvora {
namespace {

class EnteringFoods : public FoodListsWindowTest {
 protected:
  void Open() {
    FoodListsWindowTest::Open();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  QLineEdit* Search() { return In<QLineEdit>("txt_zoeken"); }
  QLineEdit* AmountBox() { return In<QLineEdit>("txt_amount"); }
  static void Key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, held);
  }
  static void Type(const char* text) {
    for (const char letter : std::string_view(text)) {
      QTest::keyClick(QApplication::focusWidget(), letter);
    }
  }
  Text NamesIn(const TextList& list) {
    Text names;
    for (const std::string_view line : list) {
      names.append(FieldOf(line, FoodField::kProduct)) += ';';
    }
    return names;
  }
  QString Hint() {
    const auto* const hint = window.findChild<QLabel*>(QStringLiteral("entry_hint"));
    return hint == nullptr ? QString() : hint->text();
  }
};

TEST_F(EnteringFoods, ADayOpensWithTheSearchBoxInFocusAndItsTextSelected) {
  for (const char* all_screens : {"0", "1"}) {
    program.settings[Setting::chk_all_screens] = all_screens;
    Open();
    EXPECT_TRUE(Search()->hasFocus());
    EXPECT_EQ(Search()->selectedText(), "Bread.dat");
    EXPECT_EQ(Status(3), "Enter adds to: morning");
  }
}

TEST_F(EnteringFoods, AWordDownAndEnterAddOnePortion) {
  Open();
  Type("app");
  EXPECT_EQ(Names(List(1)), "Apple");
  Key(Qt::Key_Down);
  EXPECT_TRUE(List(1)->hasFocus());
  EXPECT_EQ(List(1)->SelectedRows(), std::vector<std::size_t>{0});
  Key(Qt::Key_Return);
  ASSERT_EQ(store.L_ochtend.Count(), 1u);
  EXPECT_EQ(store.L_ochtend[0], store.Default_list[3]);
  EXPECT_TRUE(Search()->hasFocus());
  EXPECT_EQ(Search()->selectedText(), "app");
  Type("r");  // in the place of the last word
  EXPECT_EQ(Search()->text(), "r");
  Key(Qt::Key_Tab);
  EXPECT_TRUE(List(1)->hasFocus());
  Key(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(NamesIn(store.L_ochtend), "Apple;Rye;");
}

TEST_F(EnteringFoods, TheFirstHitIsTakenWhateverWasClickedBefore) {
  Open();
  Click(List(1), 2);
  Search()->setFocus();
  Key(Qt::Key_Down);
  EXPECT_EQ(List(1)->SelectedRows(), std::vector<std::size_t>{0});
  Key(Qt::Key_Down);
  EXPECT_EQ(List(1)->SelectedRows(), std::vector<std::size_t>{1});
}

TEST_F(EnteringFoods, WithoutAHitTheFocusStays) {
  Open();
  Type("zzz");
  Key(Qt::Key_Down);
  EXPECT_TRUE(Search()->hasFocus());
  const auto* const hint = List(1)->findChild<QLabel*>(QStringLiteral("empty_hint"));
  EXPECT_EQ(hint->text(), "No name begins with this; Enter searches everywhere.");
  Key(Qt::Key_Return);
  EXPECT_EQ(hint->text(), "No food items were found.");
  EXPECT_EQ(Search()->selectedText(), "zzz");
  Make_Taal_Dutch(program.texts);
  Type("zz");
  program.windows.lists->Set_Taal();
  EXPECT_EQ(hint->text(), "Geen naam begint hiermee; Enter zoekt overal.");
}

TEST_F(EnteringFoods, EnterInTheBoxSearchesWholeLinesAndSelectsTheWord) {
  Open();
  Type("fruit");
  EXPECT_EQ(Names(List(1)), "");
  Key(Qt::Key_Return);
  EXPECT_EQ(Names(List(1)), "Apple");
  EXPECT_TRUE(Search()->hasFocus());
  EXPECT_EQ(Search()->selectedText(), "fruit");
  EXPECT_TRUE(store.L_ochtend.Empty());
}

TEST_F(EnteringFoods, EscapeEmptiesTheBoxAndComesBackFromTheList) {
  Open();
  Type("app");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Search()->text(), "");
  EXPECT_EQ(Names(List(1)), "Rye Brown White");
  EXPECT_EQ(Status(2), "4 food items available");
  Type("br");
  Key(Qt::Key_Down);
  Key(Qt::Key_Escape);
  EXPECT_TRUE(Search()->hasFocus());
  EXPECT_EQ(Search()->selectedText(), "br");
}

TEST_F(EnteringFoods, CtrlAndANumberAddToThatPartWhichIsThenTheActiveOne) {
  Open();
  for (const auto& [key, part] :
       {std::pair{Qt::Key_2, DayPart::afternoon}, std::pair{Qt::Key_3, DayPart::evening},
        std::pair{Qt::Key_1, DayPart::morning}}) {
    Type("app");
    Key(Qt::Key_Down);
    Key(key, Qt::ControlModifier);
    EXPECT_EQ(NamesIn(store.ListOf(part)), "Apple;");
    EXPECT_EQ(program.day.active_part, part);
    EXPECT_TRUE(Search()->hasFocus());
    EXPECT_EQ(Search()->selectedText(), "app");
  }
  EXPECT_EQ(Status(3), "Enter adds to: morning");
}

TEST_F(EnteringFoods, AnAmountIsTypedBehindTheRow) {
  Open();
  Type("app");
  Key(Qt::Key_Down);
  Key(Qt::Key_Tab);
  EXPECT_TRUE(AmountBox()->hasFocus());
  Type("75 g");
  Key(Qt::Key_Return);
  EXPECT_EQ(NamesIn(store.L_ochtend), "Apple, 75 g;");
  EXPECT_EQ(FieldOf(store.L_ochtend[0], FoodField::kKcal), "39");
  EXPECT_EQ(AmountBox()->text(), "");
  EXPECT_TRUE(Search()->hasFocus());
  // A digit on the row begins the amount.
  Key(Qt::Key_Down);
  Type("2");
  EXPECT_TRUE(AmountBox()->hasFocus());
  Type("x");
  EXPECT_EQ(AmountBox()->text(), "2x");
  Key(Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(NamesIn(store.L_middag), "Apple;Apple;");
}

TEST_F(EnteringFoods, AnAmountCanComeBeforeTheFood) {
  Open();
  QTest::mouseClick(AmountBox(), Qt::LeftButton);
  Type("1/2");
  Key(Qt::Key_Return);
  EXPECT_TRUE(List(1)->hasFocus());
  EXPECT_TRUE(store.L_ochtend.Empty());
  Key(Qt::Key_Return);
  EXPECT_EQ(NamesIn(store.L_ochtend), "Rye, 0.5 x;");
  EXPECT_EQ(AmountBox()->text(), "");
}

TEST_F(EnteringFoods, AnAmountThatCantBeIsToldBesideItsBoxAndAddsNothing) {
  Open();
  Press(2);
  Click(List(2), 0);
  for (const auto& [typed, words] :
       {std::pair{"0", "Enter an amount such as 2, 1/2, 150 g or 5 oz."},
        std::pair{"some", "Enter an amount such as 2, 1/2, 150 g or 5 oz."},
        std::pair{"21", "No more than 20 portions or 10,000 g at a time."},
        std::pair{"10001 g", "No more than 20 portions or 10,000 g at a time."},
        std::pair{"50 g", "This food has no weight; say how many portions."}}) {
    AmountBox()->clear();
    AmountBox()->setFocus();
    Type(typed);
    Key(Qt::Key_Return);
    EXPECT_EQ(Hint(), words) << typed;
    EXPECT_TRUE(AmountBox()->hasFocus());
    EXPECT_EQ(AmountBox()->selectedText(), typed);
  }
  EXPECT_TRUE(store.L_ochtend.Empty());
  EXPECT_FALSE(program.day.FileChanged);
  Key(Qt::Key_Escape);
  EXPECT_EQ(AmountBox()->text(), "");
  Key(Qt::Key_Escape);
  EXPECT_TRUE(List(2)->hasFocus());
}

TEST_F(EnteringFoods, EveryViewTakesAnAmount) {
  store.Favorites_list.Add(LineOf({.product = "Egg", .gram = "50"}));
  Open();
  for (int view = 1; view <= 3; ++view) {
    Press(view);
    List(view)->GoToFirstRow();
    Type("2");
    Key(Qt::Key_Return);
  }
  EXPECT_EQ(NamesIn(store.L_ochtend), "Rye;Rye;Soup;Soup;Egg;Egg;");
  EXPECT_TRUE(List(3)->hasFocus());  // which has no search box
}

TEST_F(EnteringFoods, TheMenuOfARowAsksForTheAmount) {
  Open();
  Press(2);
  RightClick(List(2), 1);
  QAction* const amount = Action("mnu_opties_amount");
  EXPECT_EQ(amount->text(), "Other amount ...");
  EXPECT_TRUE(amount->isVisible());
  FoodMenuWidget()->setActiveAction(amount);
  QTest::keyClick(FoodMenuWidget(), Qt::Key_Return);
  // The focus of the window; without a window manager it comes back to the window at any time.
  EXPECT_EQ(window.focusWidget(), AmountBox());
  QApplication::processEvents();
  EXPECT_FALSE(amount->isVisible());
  QTest::keyClick(AmountBox(), Qt::Key_3);
  QTest::keyClick(AmountBox(), Qt::Key_Return);
  EXPECT_EQ(NamesIn(store.L_ochtend), "Pie;Pie;Pie;");
}

TEST_F(EnteringFoods, TheMenuOfARowShowsTheKeysOfTheDayParts) {
  Open();
  EXPECT_EQ(Action("mnu_opties_morning")->shortcut(), QKeySequence(QStringLiteral("Ctrl+1")));
  EXPECT_EQ(Action("mnu_opties_evening")->shortcut(), QKeySequence(QStringLiteral("Ctrl+3")));
}

TEST_F(EnteringFoods, TheWindowThatIsChosenIsTheActivePart) {
  Open();
  const auto frame_of = [&](const char* name) {
    return qobject_cast<QMdiSubWindow*>(
        window.findChild<QWidget*>(QLatin1String(name))->parentWidget());
  };
  QMdiArea* const area = frame_of("KV_tb_vavond")->mdiArea();
  area->setActiveSubWindow(frame_of("KV_tb_vavond"));
  EXPECT_EQ(Status(3), "Enter adds to: evening");
  // By the keyboard the food lists come back with their search box in focus.
  area->setActiveSubWindow(frame_of("KV_tb_lijsten"));
  EXPECT_TRUE(Search()->hasFocus());
  EXPECT_FALSE(Search()->selectedText().isEmpty());
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  EXPECT_EQ(NamesIn(store.L_avond), "Rye;");
  // The arrangements choose no part of the day, whatever they close and open.
  area->setActiveSubWindow(frame_of("KV_tb_vmiddag"));
  for (const auto arrange : {&ShowScreensWithSummary, &ShowDefaultScreens}) {
    arrange(program);
    EXPECT_EQ(program.day.active_part, DayPart::afternoon);
  }
  // Another day begins with the morning.
  CloseDay(program);
  EXPECT_EQ(program.day.active_part, DayPart::morning);
}

TEST_F(EnteringFoods, AnotherWindowOverTheProgramLeavesTheFocusInTheList) {
  Open();
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  ASSERT_TRUE(List(1)->hasFocus());
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  other.close();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  EXPECT_TRUE(List(1)->hasFocus());
  EXPECT_EQ(List(1)->SelectedRows(), std::vector<std::size_t>{1});
}

TEST_F(EnteringFoods, WithoutADayNothingIsAdded) {
  SetCurrentUser(program, "Anna");
  window.OpenWindow(WindowId::lists);
  lists = window.findChild<QWidget*>(QStringLiteral("KV_tb_lijsten"));
  ASSERT_NE(lists, nullptr);
  EXPECT_EQ(Status(3), "");
  List(1)->GoToFirstRow();
  QTest::keyClick(List(1), Qt::Key_Return);
  EXPECT_TRUE(store.L_ochtend.Empty());
}

}  // namespace
}  // namespace kelvora
