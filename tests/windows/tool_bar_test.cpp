#include "platform/qt/tool_bar.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "windows/find_in.h"

namespace kelvora {
namespace {

// A box, a bar of four buttons, of which the third stands behind a separator, and another box.
class ToolBars : public testing::Test {
 protected:
  ToolBars() {
    auto* const layout = new QVBoxLayout(&window);
    // Made in the order of the Tab key.
    before = new QLineEdit(&window);
    bar = new ToolBar(&window, "bar");
    for (int i = 1; i <= 4; ++i) {
      if (i == 3) bar->addSeparator();
      QAction* const action = bar->addAction(QString::number(i));
      bar->widgetForAction(action)->setObjectName("b" + QString::number(i));
      QObject::connect(action, &QAction::triggered, &window, [this, i] { pressed << i; });
      actions.push_back(action);
    }
    after = new QLineEdit(&window);
    for (QWidget* const widget : std::initializer_list<QWidget*>{before, bar, after}) {
      layout->addWidget(widget);
    }
    window.resize(600, 200);
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window, 30000));
  }

  void Keys(std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys) {
      QTest::keyClick(QApplication::focusWidget(), key,
                      key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    }
  }
  QString Focus() { return QApplication::focusWidget()->objectName(); }

  QWidget window;
  QLineEdit *before, *after;
  ToolBar* bar;
  std::vector<QAction*> actions;
  QList<int> pressed;
};

TEST_F(ToolBars, AreOneStopOfTheTabKey) {
  before->setFocus();
  Keys({Qt::Key_Tab});
  EXPECT_EQ(Focus(), "b1");
  Keys({Qt::Key_Tab});
  EXPECT_EQ(QApplication::focusWidget(), after);
  Keys({Qt::Key_Backtab});
  EXPECT_EQ(Focus(), "b1");
  Keys({Qt::Key_Backtab});
  EXPECT_EQ(QApplication::focusWidget(), before);
}

TEST_F(ToolBars, AreWalkedByTheArrowsRoundTheEnds) {
  bar->TakeFocus(Qt::TabFocusReason);
  Keys({Qt::Key_Right});
  EXPECT_EQ(Focus(), "b2");
  Keys({Qt::Key_Right});
  EXPECT_EQ(Focus(), "b3");
  Keys({Qt::Key_Right, Qt::Key_Right});
  EXPECT_EQ(Focus(), "b1");
  Keys({Qt::Key_Left});
  EXPECT_EQ(Focus(), "b4");
  Keys({Qt::Key_Home});
  EXPECT_EQ(Focus(), "b1");
  Keys({Qt::Key_End});
  EXPECT_EQ(Focus(), "b4");
  // Up and down lead nowhere, and not out of the bar.
  Keys({Qt::Key_Down, Qt::Key_Up});
  EXPECT_EQ(Focus(), "b4");
}

TEST_F(ToolBars, RememberTheButtonThatWasUsedLast) {
  bar->TakeFocus(Qt::TabFocusReason);
  Keys({Qt::Key_Right, Qt::Key_Tab});
  EXPECT_EQ(QApplication::focusWidget(), after);
  Keys({Qt::Key_Backtab});
  EXPECT_EQ(Focus(), "b2");
}

TEST_F(ToolBars, PassOverButtonsThatCantBeUsed) {
  actions[0]->setEnabled(false);
  actions[2]->setVisible(false);
  before->setFocus();
  Keys({Qt::Key_Tab});
  EXPECT_EQ(Focus(), "b2");
  Keys({Qt::Key_Right});
  EXPECT_EQ(Focus(), "b4");
  Keys({Qt::Key_Right});
  EXPECT_EQ(Focus(), "b2");
  // The one that Tab came to goes: it comes to another.
  Keys({Qt::Key_Tab});
  actions[1]->setVisible(false);
  Keys({Qt::Key_Backtab});
  EXPECT_EQ(Focus(), "b4");
}

TEST_F(ToolBars, WithoutAButtonToUseAreNoStop) {
  for (QAction* const action : actions) action->setEnabled(false);
  EXPECT_FALSE(bar->TakeFocus(Qt::TabFocusReason));
  before->setFocus();
  Keys({Qt::Key_Tab});
  EXPECT_EQ(QApplication::focusWidget(), after);
}

TEST_F(ToolBars, PressTheirButtonsBySpaceAndEnter) {
  bar->TakeFocus(Qt::TabFocusReason);
  Keys({Qt::Key_Space, Qt::Key_Right, Qt::Key_Return, Qt::Key_Right, Qt::Key_Enter});
  EXPECT_EQ(pressed, (QList<int>{1, 2, 3}));
}

TEST_F(ToolBars, OpenTheMenuOfAButtonByDown) {
  QMenu menu;
  menu.addAction(QStringLiteral("entry"));
  auto* const button = FindIn<QToolButton>(window, "b2");
  button->setMenu(&menu);
  button->setPopupMode(QToolButton::MenuButtonPopup);
  bar->TakeFocus(Qt::TabFocusReason);
  bool open = false;
  QTimer::singleShot(0, &menu, [&] {
    open = menu.isVisible();
    menu.close();
  });
  Keys({Qt::Key_Right, Qt::Key_Down});
  EXPECT_TRUE(open);
  EXPECT_EQ(pressed, QList<int>());
  // Enter presses the button itself, but where the button is all menu. A popup of this platform
  // keeps the focus that it took.
  QTest::keyClick(button, Qt::Key_Return);
  EXPECT_EQ(pressed, QList<int>{2});
  button->setPopupMode(QToolButton::InstantPopup);
  open = false;
  QTimer::singleShot(0, &menu, [&] {
    open = menu.isVisible();
    menu.close();
  });
  QTest::keyClick(button, Qt::Key_Return);
  EXPECT_TRUE(open);
  EXPECT_EQ(pressed, QList<int>{2});
  button->setMenu(nullptr);
}

// As the button does that saves, after saving.
TEST_F(ToolBars, KeepTheFocusWhenTheButtonInFocusGoesOut) {
  bar->TakeFocus(Qt::TabFocusReason);
  Keys({Qt::Key_Right});
  actions[1]->setEnabled(false);
  EXPECT_EQ(Focus(), "b3");
  Keys({Qt::Key_End});
  actions[3]->setEnabled(false);
  EXPECT_EQ(Focus(), "b3");
  actions[0]->setEnabled(false);
  actions[2]->setEnabled(false);
  EXPECT_EQ(QApplication::focusWidget(), after);
}

TEST_F(ToolBars, LeaveTheFocusWhereItIsWhenTheyAreClicked) {
  after->setFocus();
  QTest::mouseClick(FindIn<QToolButton>(window, "b3"), Qt::LeftButton);
  EXPECT_EQ(pressed, QList<int>{3});
  EXPECT_EQ(QApplication::focusWidget(), after);
}

// What finds no room waits behind a button at the end.
TEST_F(ToolBars, ReachTheButtonForWhatFindsNoRoom) {
  bar->SetNames(QStringLiteral("Bar"), QStringLiteral("More"));
  bar->setMaximumWidth(60);
  QApplication::processEvents();
  bar->TakeFocus(Qt::TabFocusReason);
  Keys({Qt::Key_End});
  EXPECT_EQ(Focus(), "qt_toolbar_ext_button");
  EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "More");
  EXPECT_FALSE(FindIn<QToolButton>(window, "b4")->isVisible());
}

}  // namespace
}  // namespace kelvora
