// The dialog for a new food beside the windows of the program.
#include "windows/new_food_window.h"

namespace kelvora {
namespace {

TEST_F(NewFoodWindow, FromTheMenuItAddsToTheOpenFoodLists) {
  MainWindow window(test.program);
  window.Set_Taal();
  window.show();
  window.OpenWindow(WindowId::lists);
  bool was_modal = false;
  QTimer::singleShot(0, [&] {
    QWidget* const shown = QApplication::activeModalWidget();
    was_modal = shown != nullptr && shown->objectName() == "KV_add_voedingsmiddel";
    if (was_modal && QTest::qWaitForWindowActive(shown)) {
      shown->findChild<QLineEdit*>("txt_dNaam")->setText("Soup");
      shown->findChild<QComboBox*>("combo_dEenheid")->setEditText("1 dish");
      shown->findChild<QLineEdit*>("txt_s_0")->setFocus();
      QTest::keyClicks(shown->findChild<QLineEdit*>("txt_s_0"), "500");
      QTest::mouseClick(shown->findChild<QPushButton*>("cmd_opslaan"), Qt::LeftButton);
    }
    // Never leave the test waiting for a window that did not go.
    if (test.program.windows.new_food != nullptr) test.program.windows.new_food->CloseWindow();
  });
  RunCommand(test.program, Command::mnu_item_voegtoe);
  EXPECT_TRUE(was_modal);
  EXPECT_EQ(test.program.windows.new_food, nullptr);
  ASSERT_EQ(OwnList().Count(), 1u);
  const auto* const own = window.findChild<QTableView*>("LV_browse_eigen");
  ASSERT_NE(own, nullptr);
  ASSERT_EQ(own->model()->rowCount(), 1);
  EXPECT_TRUE(own->selectionModel()->isRowSelected(0));
}

}  // namespace
}  // namespace kelvora
