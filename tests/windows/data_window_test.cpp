// The programmers' look into the store, and the ground on which the child windows lie.
#include "core/frame/data_window.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QListWidget>
#include <QPointer>
#include <QTableView>
#include <QTest>

#include "core/frame/child_area_panel.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

class StoreWindow : public testing::Test {
 protected:
  StoreWindow() {
    parent.resize(800, 600);
    parent.show();
    ShowDataWindow(test.program, &parent);
    window = parent.findChild<DataWindow*>();
  }
  QListWidget* Members() { return window->findChild<QListWidget*>("lst_members"); }
  QTableView* Lines() { return window->findChild<QTableView*>("lst_lines"); }

  TestProgram test;
  QWidget parent;
  QPointer<DataWindow> window;
};

TEST_F(StoreWindow, OpensOnTheFirstMemberWithListsSideBySide) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(Members()->count(), 21);
  EXPECT_EQ(Members()->currentRow(), 0);
  EXPECT_EQ(Lines()->accessibleName(), "L_gegevens");
  EXPECT_EQ(Lines()->model()->rowCount(), 0);
  EXPECT_LT(Members()->geometry().right(), Lines()->geometry().left());
  EXPECT_GT(Lines()->width(), Members()->width());
}

TEST_F(StoreWindow, ShowsTheLinesOfTheChosenMember) {
  test.program.store.L_avond.Add("bread");
  test.program.store.L_avond.Add("cheese");
  Members()->setCurrentRow(3);
  EXPECT_EQ(Lines()->accessibleName(), "L_avond");
  ASSERT_EQ(Lines()->model()->rowCount(), 2);
  EXPECT_EQ(Lines()->model()->index(1, 0).data().toString(), "cheese");
  EXPECT_EQ(Lines()->model()->headerData(0, Qt::Horizontal).toString(), "L_avond");
}

TEST_F(StoreWindow, ShowsWhatChangedMeanwhileWhenItIsActivatedAgain) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  Members()->setCurrentRow(1);
  parent.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&parent));
  test.program.store.L_ochtend.Add("bread");
  EXPECT_EQ(Members()->item(1)->text(), "L_ochtend (0)");
  window->activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Members()->item(1)->text() == "L_ochtend (1)"; }));
  EXPECT_EQ(Lines()->model()->rowCount(), 1);
}

TEST_F(StoreWindow, IsGoneOnceClosedAndComesToTheFrontWhenAskedForAgain) {
  window->hide();
  ShowDataWindow(test.program, &parent);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(parent.findChildren<DataWindow*>().size(), 1);
  window->close();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(window.isNull());
}

// The ground grows darker downwards, and the mark lies in its middle, lightly.
TEST(ChildAreaGround, ShowsTheMarkInItsMiddle) {
  ChildArea area(nullptr);
  area.resize(600, 500);
  area.show();
  QApplication::processEvents();
  const QImage picture = area.viewport()->grab().toImage();
  const int middle = picture.width() / 2;
  const int lowest = picture.height() - 2;
  EXPECT_LT(qGray(picture.pixel(2, lowest)), qGray(picture.pixel(2, 2)));
  const int row = picture.height() / 2;
  int darkest = 255;
  int lightest = 0;
  for (int x = 0; x < picture.width(); ++x) {
    const int grey = qGray(picture.pixel(x, row));
    darkest = std::min(darkest, grey);
    lightest = std::max(lightest, grey);
    if (std::abs(x - middle) > 200) {
      EXPECT_EQ(picture.pixel(x, row), picture.pixel(2, row)) << x;
    }
  }
  EXPECT_GT(lightest - darkest, 2);   // the mark is there
  EXPECT_LT(lightest - darkest, 60);  // and does not outshine what lies on it
}

}  // namespace
}  // namespace kelvora
