// The wheel over closed lists: whoever scrolls past one changes nothing.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QTest>
#include <QWheelEvent>

#include "core/frame/main_window.h"
#include "days/day_settings_dialog.h"
#include "days/settings_dialog.h"
#include "food/food_lists_window.h"
#include "food/new_food_dialog.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

// A notch towards the user.
void Turn(QWidget* widget) {
  const QPointF place = widget->rect().center();
  QWheelEvent wheel(place, widget->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(widget, &wheel);
}

// Each closed list of a window under the wheel, without the focus and with it.
int TryAllIn(QWidget& window) {
  window.show();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  int tried = 0;
  for (auto* const list : window.findChildren<QComboBox*>()) {
    const std::string name = list->objectName().toStdString();
    while (list->count() < 3) list->addItem(QStringLiteral("more"));
    list->setCurrentIndex(0);
    EXPECT_EQ(list->focusPolicy() & Qt::WheelFocus & ~Qt::StrongFocus, 0) << name;
    list->clearFocus();
    Turn(list);
    EXPECT_EQ(list->currentIndex(), 0) << name;
    EXPECT_FALSE(list->hasFocus()) << name;
    ++tried;
  }
  return tried;
}

TEST(ClosedLists, AreNotChangedByTheWheelUnlessTheyHaveTheFocus) {
  TestProgram test;
  Program& program = test.program;
  for (const char* file : {"Bread.dat", "Fruit.dat", "Meat.dat"}) {
    program.store.lst_categorien.Add(file);
    program.store.Default_list.Add(LineOf({.product = file, .db = file}));
  }
  NewFoodDialog new_food(program, nullptr);
  EXPECT_EQ(TryAllIn(new_food), 1);
  SettingsDialog settings(program, nullptr);
  EXPECT_EQ(TryAllIn(settings), 2);
  DaySettingsDialog day(program, nullptr);
  EXPECT_EQ(TryAllIn(day), 2);
  FoodListsWindow lists(program, nullptr);
  EXPECT_EQ(TryAllIn(lists), 1);
  auto* const categories = lists.findChild<QComboBox*>(QStringLiteral("combo_cat"));
  categories->setFocus();
  ASSERT_TRUE(categories->hasFocus());
  Turn(categories);
  EXPECT_EQ(categories->currentIndex(), 1);
}

}  // namespace
}  // namespace kelvora
