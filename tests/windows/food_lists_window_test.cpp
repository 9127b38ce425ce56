// The food lists window as a user meets it: buttons, panels, headings, selection and texts.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QProgressBar>
#include <QScrollBar>

#include "language/built_in_texts.h"
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

TEST_F(FoodListsWindowTest, ARefreshStaysWhereTheListWasScrolledTo) {
  for (int i = 0; i < 500; ++i) store.Custom_list.Add(LineOf({.product = "x"}));
  Open();
  Press(2);
  List(2)->verticalScrollBar()->setValue(300);
  program.windows.lists->Populate_Food_List_Custom();
  EXPECT_EQ(List(2)->verticalScrollBar()->value(), 300);
}

TEST_F(FoodListsWindowTest, AnEmptyListSaysWhyInGrey) {
  store.Custom_list.Clear();
  Open();
  Press(2);
  const QImage empty = List(2)->viewport()->grab().toImage();
  store.Custom_list.Add(LineOf({.product = ""}));
  program.windows.lists->Populate_Food_List_Custom();
  store.Custom_list.Clear();
  List(2)->SetEmptyText({});
  program.windows.lists->Populate_Food_List_Custom();
  EXPECT_NE(List(2)->viewport()->grab().toImage(), empty);
}

TEST_F(FoodListsWindowTest, TipsNamesAndHeadingsComeInBothLanguages) {
  Open();
  const auto heading = [&](int role) {
    return List(1)->Model().headerData(4, Qt::Horizontal, role).toString();
  };
  EXPECT_EQ(In<QToolButton>("Toolbar_1")->toolTip(), "Search the food items of all categories");
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
  EXPECT_EQ(In<QMenu>("mnu_day_parts")->actions()[0]->text(), "Toevoegen aan de ochtend");
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

}  // namespace
}  // namespace kelvora
