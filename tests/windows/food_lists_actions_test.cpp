// What a user does with rows of the food lists: deletes, menus, keys and drops.
#include <gtest/gtest.h>

#include <QUrl>

#include "core/frame/commands.h"
#include "food/import/import_form.h"
#include "food/import/table_files.h"
#include "windows/food_lists_user.h"

namespace kelvora {
namespace {

TEST_F(FoodListsWindowTest, TheMenuOfTheOwnListGoesWithItsView) {
  Open();
  auto* const menu = In<QMenu>("Toolbar_2_menu");
  ASSERT_EQ(menu->actions().size(), 3);
  const auto all_are = [menu](bool enabled) {
    for (const QAction* entry : menu->actions()) {
      if (entry->isEnabled() != enabled) return false;
    }
    return true;
  };
  EXPECT_TRUE(all_are(false));
  Press(2);
  EXPECT_TRUE(all_are(true));
  EXPECT_EQ(menu->actions()[0]->text(), "Add new food item");
  EXPECT_TRUE(menu->actions()[1]->isSeparator());
  EXPECT_EQ(menu->actions()[2]->text(), "Copy 'my own list' to 'standard list'");
  menu->actions()[2]->trigger();
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::yes_no_cancel);
  Press(3);
  EXPECT_TRUE(all_are(false));
}

TEST_F(FoodListsWindowTest, TheMenuOfTheInternetListChoosesTheServer) {
  Open();
  auto* const menu = In<QMenu>("Toolbar_4_menu");
  ASSERT_EQ(menu->actions().size(), 2);
  QAction* const dutch = menu->actions()[0];
  QAction* const english = menu->actions()[1];
  EXPECT_EQ(dutch->text(), "Use Dutch Database");
  EXPECT_EQ(english->text(), "Use English Database");
  dutch->trigger();
  EXPECT_FALSE(dutch->isEnabled());
  EXPECT_TRUE(english->isEnabled());
  EXPECT_EQ(In<QLabel>("txt_server")->text(), "[Dutch Database]");
  english->trigger();
  EXPECT_EQ(program.settings[Setting::opt_server], "1");
  EXPECT_TRUE(dutch->isEnabled());
  EXPECT_FALSE(english->isEnabled());
  EXPECT_EQ(In<QLabel>("txt_server")->text(), "[English Database]");
}

TEST_F(FoodListsWindowTest, DeleteTakesTheSelectedRowsOfTheOwnListAndCountsAnew) {
  Open();
  Press(2);
  Click(List(2), 1);
  QTest::keyClick(List(2), Qt::Key_Delete);
  EXPECT_EQ(Names(List(2)), "Soup Stew");
  EXPECT_EQ(Status(2), "2 food items available");
  QTest::keyClick(List(2), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(List(2), Qt::Key_Delete);
  EXPECT_EQ(Status(2), "0 food items available");
  Press(1);
  Click(List(1), 0);
  QTest::keyClick(List(1), Qt::Key_Delete);
  EXPECT_EQ(store.Default_list.Count(), 4u);
}

TEST_F(FoodListsWindowTest, TheFoodMenuFollowsTheTableWhileItIsUp) {
  Open();
  EXPECT_EQ(Enabled(), "0100");
  Press(2);
  RightClick(List(2), 0);
  EXPECT_TRUE(FoodMenuWidget()->isVisible());
  EXPECT_EQ(Enabled(), "1111");
  EXPECT_TRUE(Action("mnu_opties_morning")->isVisible());
  FoodMenuWidget()->close();
  QApplication::processEvents();
  EXPECT_FALSE(Action("mnu_opties_morning")->isVisible());
  EXPECT_EQ(program.windows.food_menu, std::nullopt);
  Press(1);
  RightClick(List(1), 0);
  EXPECT_EQ(Enabled(), "0011");
  FoodMenuWidget()->close();
  QApplication::processEvents();
  EXPECT_EQ(Enabled(), "0111");
}

TEST_F(FoodListsWindowTest, TheOptionsButtonActsForThePressedView) {
  Open();
  Press(2);
  List(2)->clearSelection();
  QTest::mouseClick(In<QPushButton>("Pic_opties"), Qt::LeftButton);
  EXPECT_TRUE(FoodMenuWidget()->isVisible());
  EXPECT_EQ(program.windows.food_menu, FoodMenu{.add = true});
  FoodMenuWidget()->close();
  QApplication::processEvents();
  Click(List(2), 0);
  Click(List(2), 1, Qt::LeftButton, Qt::ControlModifier);
  QTest::mouseClick(In<QPushButton>("Pic_opties"), Qt::LeftButton);
  EXPECT_FALSE(FoodMenuWidget()->isVisible());
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "You selected to many food items.\nSelect 1 food item and try again.");
}

TEST_F(FoodListsWindowTest, AnEntryOfTheFoodMenuActsOnTheRow) {
  Open();
  Press(2);
  RightClick(List(2), 1);
  Action("mnu_item_favo")->trigger();
  FoodMenuWidget()->close();
  QApplication::processEvents();
  EXPECT_EQ(Names(List(3)), "Pie");
  RightClick(List(2), 1);
  Action("mnu_opties_evening")->trigger();
  FoodMenuWidget()->close();
  QApplication::processEvents();
  ASSERT_EQ(store.L_avond.Count(), 1u);
  EXPECT_EQ(store.L_avond[0], store.Custom_list[1]);
  RightClick(List(2), 1);
  Action("mnu_item_del")->trigger();
  FoodMenuWidget()->close();
  EXPECT_EQ(Names(List(2)), "Soup Stew");
  EXPECT_EQ(Names(List(3)), "");
}

TEST_F(FoodListsWindowTest, FromTheMenuBarTheCommandsActOnTheRowInFocusOnly) {
  Open();
  Press(2);
  List(2)->clearSelection();
  RunCommand(program, Command::mnu_item_del);
  EXPECT_EQ(store.Custom_list.Count(), 3u);
  Click(List(2), 0);
  Click(List(2), 2, Qt::LeftButton, Qt::ControlModifier);
  RunCommand(program, Command::mnu_item_del);
  EXPECT_EQ(Names(List(2)), "Soup Pie");
  Press(1);
  Click(List(1), 0);
  RunCommand(program, Command::mnu_item_del);
  EXPECT_EQ(store.Default_list.Count(), 4u);
  RunCommand(program, Command::mnu_item_favo);
  EXPECT_EQ(Names(List(3)), "Rye");
}

TEST_F(FoodListsWindowTest, EnterWithElevenRowsWarns) {
  for (int i = 0; i < 8; ++i) store.Custom_list.Add(LineOf({.product = "x"}));
  Open();
  Press(2);
  QTest::keyClick(List(2), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(List(2)->drag_payload(List(2)->SelectedRows()), "");
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  QTest::keyClick(List(2), Qt::Key_Return);
  EXPECT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_TRUE(store.L_ochtend.Empty());
}

TEST_F(FoodListsWindowTest, TheItemsOfTheOptionsMenuFollowTheRowInFocus) {
  Open();
  EXPECT_EQ(Enabled(), "0100");  // delete, add, info, favourite
  Click(List(1), 0);
  EXPECT_EQ(Enabled(), "0111");
  Press(2);
  EXPECT_EQ(Enabled(), "0100");
  QTest::keyClick(List(2), Qt::Key_Down);
  EXPECT_EQ(Enabled(), "1111");
  QTest::keyClick(List(2), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(List(2), Qt::Key_Delete);
  EXPECT_EQ(Enabled(), "0100");
  Press(1);
  Click(List(1), 0);
  lists->parentWidget()->close();
  QApplication::processEvents();
  EXPECT_EQ(Enabled(), "0100");
}

TEST_F(FoodListsWindowTest, AfterADeleteTheCursorStaysInItsPlace) {
  Open();
  Press(2);
  Click(List(2), 1);
  QTest::keyClick(List(2), Qt::Key_Delete);
  EXPECT_EQ(Names(List(2)), "Soup Stew");
  EXPECT_EQ(List(2)->RowInFocus(), 1u);
  EXPECT_EQ(List(2)->SelectedRows(), std::vector<std::size_t>{1});
  QTest::keyClick(List(2), Qt::Key_Delete);
  EXPECT_EQ(Names(List(2)), "Soup");
  EXPECT_EQ(List(2)->RowInFocus(), 0u);
  RunCommand(program, Command::mnu_item_del);
  EXPECT_EQ(Names(List(2)), "");
  EXPECT_EQ(List(2)->RowInFocus(), std::nullopt);
}

TEST_F(FoodListsWindowTest, DropsAreTakenOnlyWhereTheyDoSomething) {
  Open();
  store.L_ochtend.Add(LineOf({.product = "Brown"}));
  program.day.drag_source = "1";
  for (int number = 1; number <= 4; ++number) {
    Press(number);
    EXPECT_FALSE(Drop(List(number), "add-" + LineOf({.product = "Tea"}) + kLineEnd));
    EXPECT_FALSE(Drop(List(number), ""));
    EXPECT_FALSE(Drop(List(number), Text(1 << 20, 'x')));
    QMimeData image;
    image.setData(QStringLiteral("image/png"), "kill-Brown");
    EXPECT_FALSE(Drop(List(number), image));
    QMimeData file;
    file.setUrls({QUrl(QStringLiteral("file:///kill-Brown"))});
    EXPECT_FALSE(Drop(List(number), file));
    EXPECT_TRUE(Drop(List(number), "kill-"));
  }
  EXPECT_EQ(store.L_ochtend.Count(), 1u);
  EXPECT_TRUE(Drop(List(3), Packed("kill-Brown|~")));
  EXPECT_EQ(Names(List(3)), "Brown");
  EXPECT_TRUE(Drop(List(1), Packed("kill-Brown|~")));
  EXPECT_TRUE(store.L_ochtend.Empty());
  EXPECT_TRUE(Drop(List(2), "NVITEM-" + LineOf({.product = "Cake"})));
  EXPECT_EQ(Names(List(2)), "Soup Pie Stew Cake");
}

TEST_F(FoodListsWindowTest, TheMenuOfTheCategoriesRemovesTheSetOfAnImportedOne) {
  const std::string table = test.folders.home.Path("table");
  WriteFileAnew(table, std::string(kSrHeader) + SrRow("Meat", "Ham"));
  test.boxes.answers = {BoxAnswer::yes, BoxAnswer::ok};
  ImportForm form(program);
  ASSERT_TRUE(form.Choose(table) && form.Import());
  Open();
  auto* const categories = In<QComboBox>("combo_cat");
  const auto menu_of = [&](const char* category) {
    categories->setCurrentText(QLatin1String(category));
    categories->setFocus();
    const QPoint place = categories->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, place, categories->mapToGlobal(place));
    QApplication::sendEvent(categories, &event);
    return In<QMenu>("menu_categories");
  };
  QMenu* menu = menu_of("Bread");
  ASSERT_EQ(menu->actions().size(), 1);
  EXPECT_EQ(menu->actions().front()->text(), "Import foods ...");
  delete menu;
  menu = menu_of("USDA SR: Meat");
  ASSERT_EQ(menu->actions().size(), 2);
  EXPECT_EQ(menu->actions().front()->text(), "Remove \"USDA SR\" ...");
  test.boxes.answers = {BoxAnswer::yes};
  menu->actions().front()->trigger();
  EXPECT_EQ(categories->findText("USDA SR: Meat"), -1);
}

}  // namespace
}  // namespace kelvora
