// The food lists window as a user meets it: buttons, panels, headings, selection and texts.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QToolBar>

#include "days/day_settings.h"
#include "days/settings.h"
#include "language/built_in_texts.h"
#include "nutrition/totals.h"
#include "windows/food_lists_user.h"

namespace kelvora {
namespace {

TEST_F(FoodListsWindowTest, EachButtonShowsItsViewItsPanelsAndItsStatus) {
  Open();
  struct Row {
    int button;
    bool search, internet, add;
    const char* first;
    const char* second;
  };
  for (const Row& row : {Row{2, false, false, true, "My own list", "3 food items available"},
                         Row{3, false, false, false, "Favourites list", "0 food items available"},
                         Row{4, false, true, true, "Internet", "0 Food items found on internet"},
                         Row{1, true, false, false, "Standard list", "4 food items available"}}) {
    Press(row.button);
    for (int other = 1; other <= 4; ++other) {
      EXPECT_EQ(List(other)->isVisible(), other == row.button);
      EXPECT_EQ(In<QToolButton>(qPrintable(QStringLiteral("Toolbar_%1").arg(other)))->isChecked(),
                other == row.button);
    }
    EXPECT_EQ(In<QWidget>("Pic_zoek")->isVisible(), row.search) << row.button;
    EXPECT_EQ(In<QWidget>("Pic_internet")->isVisible(), row.internet) << row.button;
    EXPECT_EQ(In<QPushButton>("Pic_toevoegen")->isVisible(), row.add) << row.button;
    EXPECT_TRUE(In<QPushButton>("Pic_opties")->isVisible());
    EXPECT_EQ(Status(1), row.first);
    EXPECT_EQ(Status(2), row.second);
  }
}

TEST_F(FoodListsWindowTest, WithoutTheInternetItsButtonIsNotShown) {
  program.settings[Setting::chk_internet] = "0";
  Open();
  EXPECT_FALSE(In<QToolButton>("Toolbar_4")->isVisible());
  EXPECT_TRUE(In<QToolButton>("Toolbar_3")->isVisible());
}

TEST_F(FoodListsWindowTest, HeadingsSortTheirViewAndADragTakesTheRowsLine) {
  Open();
  FoodTable* const list = List(1);
  EXPECT_EQ(Names(list), "Rye Brown White");
  ClickHeading(list, 1);
  EXPECT_EQ(Names(list), "Brown Rye White");
  EXPECT_EQ(list->horizontalHeader()->sortIndicatorSection(), 1);
  EXPECT_TRUE(list->horizontalHeader()->isSortIndicatorShown());
  ClickHeading(list, 1);
  EXPECT_EQ(Names(list), "White Rye Brown");
  EXPECT_EQ(list->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
  EXPECT_EQ(list->drag_payload({2}), "add-" + Text(store.Default_list[1]) + kLineEnd);
  EXPECT_EQ(list->drag_payload({}), "");
  // A search shows the lines in the order of their lists again.
  auto* const search = In<QLineEdit>("txt_zoeken");
  search->setText(QStringLiteral("bread.dat"));
  QTest::keyClick(search, Qt::Key_Return);
  EXPECT_EQ(Names(list), "Rye Brown White");
  EXPECT_EQ(list->horizontalHeader()->sortIndicatorSection(), -1);
}

TEST_F(FoodListsWindowTest, ASortKeepsTheSelectedLinesSelected) {
  Open();
  FoodTable* const list = List(1);
  Click(list, 0);                                       // Rye
  Click(list, 2, Qt::LeftButton, Qt::ControlModifier);  // White
  ClickHeading(list, 1);                                // Brown Rye White
  EXPECT_EQ(list->SelectedRows(), (std::vector<std::size_t>{1, 2}));
  EXPECT_EQ(list->RowInFocus(), 2u);
  QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
  ClickHeading(list, 1);
  EXPECT_EQ(list->SelectedRows().size(), 3u);
}

TEST_F(FoodListsWindowTest, TheNameLastClickedIsSelectedAfterARefreshInWhateverView) {
  Open();
  Press(2);
  Click(List(2), 1);
  store.Custom_list.Remove(0);
  program.windows.lists->Populate_Food_List_Custom();
  EXPECT_EQ(List(2)->SelectedRows(), std::vector<std::size_t>{0});
  store.Favorites_list.Add(LineOf({.product = "Tea"}));
  store.Favorites_list.Add(LineOf({.product = "Pie"}));
  program.windows.lists->Populate_Food_List_Favo();
  EXPECT_EQ(List(3)->SelectedRows(), std::vector<std::size_t>{1});
  // Arrow keys choose a row as a click does.
  QTest::keyClick(List(2), Qt::Key_Down);
  program.windows.lists->Populate_Food_List_Custom();
  EXPECT_EQ(Cell(List(2), static_cast<int>(List(2)->SelectedRows().at(0))), "Stew");
}

// 85 grams are 2.998 oz. What the cells show and what the headings say go together.
TEST_F(FoodListsWindowTest, AnotherPriorityAndAnotherUnitChangeHeadingsWithTheCells) {
  store.Custom_list.Replace(0, LineOf({.product = "Oats",
                                       .gram = "85",
                                       .kj = "937",
                                       .kcal = "224",
                                       .protein = "11",
                                       .fat_u = "5",
                                       .fat_s = "2",
                                       .carbs = "56"}));
  store.Favorites_list.Add(Text(store.Custom_list[0]));
  Open();
  program.settings[Setting::chk_apply] = "1";
  const auto shown = [&](int number, int column) {
    const QString heading =
        List(number)->Model().headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    return (heading + ' ' + Cell(List(number), 0, column)).toStdString();
  };
  const std::array expected = {"Kj.: 937",    "Kcal.: 224", "Fat (u).: 5",
                               "Fat (s).: 2", "Carb.: 56",  "Prot.: 11"};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    DayEditing editing = OpenDayEditing(program);
    editing.form.type_prioriteit = std::to_string(i);
    ApplyAtOnce(program, editing);
    for (const int number : {2, 3}) EXPECT_EQ(shown(number, 4), expected[i]);
  }
  for (const auto& [unit, text] : {std::pair{"1", "oz: 3"}, {"0", "Gram: 85"}}) {
    SettingsForm form = FormOfSettings(program);
    form.opt_gramoz = unit;
    ASSERT_TRUE(Save_From_Form(program, form));
    for (const int number : {2, 3}) EXPECT_EQ(shown(number, 3), text);
  }
}

TEST_F(FoodListsWindowTest, ASettingLeavesSelectionOrderAndScrollingAlone) {
  for (int i = 0; i < 500; ++i) store.Custom_list.Add(LineOf({.product = "x"}));
  Open();
  Press(2);
  ClickHeading(List(2), 1);
  Click(List(2), 1);
  Click(List(2), 2, Qt::LeftButton, Qt::ControlModifier);
  List(2)->verticalScrollBar()->setValue(0);
  const QString order = Names(List(2));
  program.settings[Setting::opt_gramoz] = "1";
  FollowSettings(program);
  EXPECT_EQ(Names(List(2)), order);
  EXPECT_EQ(List(2)->SelectedRows(), (std::vector<std::size_t>{1, 2}));
  EXPECT_EQ(List(2)->verticalScrollBar()->value(), 0);
  EXPECT_EQ(List(2)->horizontalHeader()->sortIndicatorSection(), 1);
}

TEST_F(FoodListsWindowTest, WithoutTheInternetItsListGoesAtOnce) {
  Open();
  Press(4);
  SettingsForm form = FormOfSettings(program);
  form.chk_internet = false;
  ASSERT_TRUE(Save_From_Form(program, form));
  QApplication::processEvents();
  EXPECT_FALSE(In<QToolButton>("Toolbar_4")->isVisible());
  EXPECT_TRUE(List(1)->isVisible());
  EXPECT_EQ(Status(1), "Standard list");
  form.chk_internet = true;
  ASSERT_TRUE(Save_From_Form(program, form));
  QApplication::processEvents();
  EXPECT_TRUE(In<QToolButton>("Toolbar_4")->isVisible());
}

// What was found goes with the own list, of which a search finds the foods too.
TEST_F(FoodListsWindowTest, ASearchShowsTheOwnListAsItIs) {
  Open();
  auto* const search = In<QLineEdit>("txt_zoeken");
  search->clear();
  QTest::keyClicks(search, "pie");
  EXPECT_EQ(Names(List(1)), "Pie");
  store.Custom_list.Replace(1, LineOf({.product = "Pie with plums"}));
  store.Custom_list.Add(LineOf({.product = "Pieces"}));
  program.windows.lists->Populate_Food_List_Custom();
  EXPECT_EQ(Names(List(1)), "Pie with plums Pieces");
  EXPECT_EQ(Status(2), "2 results found");
}

TEST_F(FoodListsWindowTest, ARefreshStaysWhereTheListWasScrolledTo) {
  for (int i = 0; i < 500; ++i) store.Custom_list.Add(LineOf({.product = "x"}));
  Open();
  Press(2);
  List(2)->verticalScrollBar()->setValue(300);
  program.windows.lists->Populate_Food_List_Custom();
  EXPECT_EQ(List(2)->verticalScrollBar()->value(), 300);
}

// How many pixels of a picture have just this colour.
int PixelsOf(const QImage& picture, const QColor& colour) {
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y) == colour;
  }
  return count;
}

TEST_F(FoodListsWindowTest, AnEmptyListSaysWhyInGrey) {
  store.Custom_list.Clear();
  Open();
  In<QLineEdit>("txt_zoeken")->setText(QStringLiteral("nowhere"));
  QTest::keyClick(In<QLineEdit>("txt_zoeken"), Qt::Key_Return);
  struct Case {
    int list;
    const char* english;
    const char* dutch;
  };
  for (const Case& row :
       {Case{1, "No food items were found.", "Er zijn geen voedingsmiddelen gevonden."},
        Case{2, "You have made no food items of your own yet.",
             "Je hebt nog geen eigen voedingsmiddelen gemaakt."},
        Case{3, "You have no favourites yet. Drag a consumption here to add one.",
             "Je hebt nog geen favorieten. Sleep een consumptie hierheen."}}) {
    SCOPED_TRACE(row.list);
    FoodTable* const list = List(row.list);
    Make_Taal_English(program.texts);
    program.windows.lists->Set_Taal();
    Press(row.list);
    const auto* const hint = list->findChild<QLabel*>("empty_hint");
    ASSERT_NE(hint, nullptr);
    EXPECT_TRUE(hint->isVisible());
    EXPECT_EQ(hint->text(), row.english);
    // What is seen: letters of the grey, on a ground without any other letter.
    const QColor grey = hint->palette().color(QPalette::WindowText);
    const QImage seen = list->viewport()->grab().toImage();
    EXPECT_GT(PixelsOf(seen, grey), 0);
    EXPECT_EQ(PixelsOf(seen, list->palette().color(QPalette::Text)), 0);
    Make_Taal_Dutch(program.texts);
    program.windows.lists->Set_Taal();
    EXPECT_EQ(hint->text(), row.dutch);
  }
}

TEST_F(FoodListsWindowTest, AListWithFoodsSaysNothingElse) {
  Open();
  Press(2);
  const auto* const hint = List(2)->findChild<QLabel*>("empty_hint");
  EXPECT_FALSE(hint->isVisible());
  store.Custom_list.Clear();
  program.windows.lists->Populate_Food_List_Custom();
  EXPECT_TRUE(hint->isVisible());
  store.Custom_list.Add(LineOf({.product = "Soup"}));
  program.windows.lists->Populate_Food_List_Custom();
  EXPECT_FALSE(hint->isVisible());
}

TEST_F(FoodListsWindowTest, TipsNamesAndHeadingsComeInBothLanguages) {
  Open();
  const auto heading = [&](int role) {
    return List(1)->Model().headerData(4, Qt::Horizontal, role).toString();
  };
  EXPECT_EQ(In<QToolButton>("Toolbar_1")->toolTip(),
            "Search the food items of all categories (Alt+1)");
  EXPECT_EQ(In<QLineEdit>("txt_zoeken")->toolTip(), "Press ENTER to search in the remarks as well");
  EXPECT_EQ(List(1)->toolTip(), "Drop a consumption here to remove it from the day");
  EXPECT_EQ(List(3)->toolTip(), "Drop a consumption here to add it to the favourites list");
  EXPECT_EQ(heading(Qt::DisplayRole), "Kcal.:");
  EXPECT_EQ(heading(Qt::ToolTipRole), "Kilocalories of the portion");
  EXPECT_EQ(In<QProgressBar>("ProgressBar")->accessibleName(), "Filling the list");
  EXPECT_FALSE(In<QProgressBar>("ProgressBar")->isVisible());
  Make_Taal_Dutch(program.texts);
  program.windows.lists->Set_Taal();
  EXPECT_EQ(In<QToolButton>("Toolbar_3")->text(), "Favorietenlijst");
  EXPECT_EQ(In<QPushButton>("Pic_toevoegen")->text(), "Voeg een nieuw voedingsmiddel toe");
  EXPECT_EQ(In<QPushButton>("Pic_opties")->text(), "Opties voor het voedingsmiddel");
  EXPECT_EQ(In<QLabel>("txt_server")->text(), "[Nederlandse database]");
  EXPECT_EQ(heading(Qt::ToolTipRole), QStringLiteral("Kilocalorieën van de portie"));
  EXPECT_EQ(Status(2), "4 voedingsmiddelen beschikbaar");
  EXPECT_EQ(Status(3), "Enter voegt toe aan: ochtend");
  EXPECT_EQ(In<QLabel>("lbl_amount")->text(), "Hoeveelheid:");
}

TEST_F(FoodListsWindowTest, NumbersStandOnTheRightAndTheNumberOfTheLineIsHidden) {
  Open();
  EXPECT_TRUE(List(1)->isColumnHidden(0));
  for (int column = 1; column <= 4; ++column) {
    const auto alignment = List(1)->Model().index(0, column).data(Qt::TextAlignmentRole).toInt();
    EXPECT_EQ((alignment & Qt::AlignRight) != 0, column >= 3) << column;
  }
  // 1500 and 1000 twips.
  EXPECT_EQ(List(1)->columnWidth(2), 100);
  EXPECT_EQ(List(1)->columnWidth(3), 66);
}

TEST_F(FoodListsWindowTest, ManySelectedRowsAreCountedAtOnce) {
  for (int i = 0; i < 200'000; ++i) store.Custom_list.Add("x\xBD");
  Open();
  Press(2);
  QTest::keyClick(List(2), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(List(2)->SelectedRows().size(), 200'003u);
  ClickHeading(List(2), 1);
  EXPECT_EQ(List(2)->SelectedRows().size(), 200'003u);
}

TEST_F(FoodListsWindowTest, ItsButtonsHaveWordsUnderTheirPicturesAndTwoHaveMenus) {
  Open();
  const auto* const toolbar = In<QToolBar>("Toolbar");
  ASSERT_NE(toolbar, nullptr);
  EXPECT_EQ(toolbar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
  for (int number = 1; number <= 4; ++number) {
    const QString name = QStringLiteral("Toolbar_%1").arg(number);
    const auto* const button = In<QToolButton>(qPrintable(name));
    EXPECT_FALSE(button->icon().isNull()) << number;
    const QString menu = button->menu() == nullptr ? QString() : button->menu()->objectName();
    EXPECT_EQ(menu, number % 2 == 0 ? name + "_menu" : QString()) << number;
  }
}

TEST_F(FoodListsWindowTest, BothSearchBoxesHaveTheirPicture) {
  Open();
  for (const char* name : {"txt_zoeken", "txt_internet"}) {
    const auto actions = In<QLineEdit>(name)->actions();
    ASSERT_EQ(actions.size(), 1) << name;
    EXPECT_FALSE(actions.front()->icon().isNull()) << name;
  }
}

// 1800 twips are 120 pixels.
TEST_F(FoodListsWindowTest, TheNumberOfFoodsStandsAtOnePlaceInEveryView) {
  Open();
  for (int number = 1; number <= 4; ++number) {
    Press(number);
    QApplication::processEvents();
    const int place = In<QLabel>("StatusBar_2")->x() - In<QLabel>("StatusBar_1")->x();
    EXPECT_GE(place, 120) << number;
    EXPECT_LE(place, 130) << number;
  }
}

TEST_F(FoodListsWindowTest, WhatIsFoundOnTheInternetIsCountedWhereItIsShown) {
  Open();
  auto* const search = In<QLineEdit>("txt_zoeken");
  search->setText(QStringLiteral("bread.dat"));
  QTest::keyClick(search, Qt::Key_Return);
  program.windows.lists->Populate_Food_List_Internet();
  EXPECT_EQ(Status(2), "3 results found");
  Press(4);
  Make_Taal_Dutch(program.texts);
  program.windows.lists->Populate_Food_List_Internet();
  EXPECT_EQ(Status(2), "0 voedingsmiddelen gevonden op internet");
}

}  // namespace
}  // namespace kelvora
