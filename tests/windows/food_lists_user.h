// The food lists window in a main window with foods in all lists but the internet's, and the hands
// of a user: clicks, drops and keys on what is found by its name.
#pragma once

#include <gtest/gtest.h>

#include <QDropEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include "core/frame/arrangement.h"
#include "core/frame/main_window.h"
#include "food/food_table_panel.h"
#include "platform/qt/text.h"
#include "support/test_program.h"

namespace kelvora {
inline constexpr std::array kListNames = {"LV_browse_zoeken", "LV_browse_eigen", "LV_browse_favo",
                                          "LV_browse_internet"};

class FoodListsWindowTest : public testing::Test {
 protected:
  FoodListsWindowTest() {
    program.profile[ProfileField::type_prioriteit] = "1";
    for (const char* file : {"Bread.dat", "Fruit.dat"}) store.lst_categorien.Add(file);
    for (const char* name : {"Rye", "Brown", "White"}) {
      store.Default_list.Add(LineOf({.product = name, .gram = "35", .db = "Bread.dat"}));
    }
    store.Default_list.Add(
        LineOf({.product = "Apple", .gram = "150", .kcal = "78", .db = "Fruit.dat"}));
    for (const char* name : {"Soup", "Pie", "Stew"}) {
      store.Custom_list.Add(LineOf({.product = name}));
    }
    window.resize(1024, 748);
    window.Set_Taal();
    window.show();
  }

  void Open() {
    test.OpenDay("Anna");
    ApplyChosenArrangement(program);
    window.UpdateCommands();
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // of closed windows
    lists = window.findChild<QWidget*>(QStringLiteral("KV_tb_lijsten"));
    ASSERT_NE(lists, nullptr);
  }
  template <class Widget>
  Widget* In(const char* name) {
    Widget* const found = lists->findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  FoodTable* List(int number) {
    return In<FoodTable>(kListNames[static_cast<std::size_t>(number - 1)]);
  }
  QAction* Action(const char* name) { return window.findChild<QAction*>(QLatin1String(name)); }
  void Press(int number) {
    QTest::mouseClick(In<QToolButton>(qPrintable(QStringLiteral("Toolbar_%1").arg(number))),
                      Qt::LeftButton);
  }
  QString Status(int panel) {
    return In<QLabel>(qPrintable(QStringLiteral("StatusBar_%1").arg(panel)))->text();
  }
  static QString Cell(FoodTable* list, int row, int column = 1) {
    return list->Model().index(row, column).data().toString();
  }
  static QString Names(FoodTable* list) {
    QStringList names;
    for (int row = 0; row < list->Model().rowCount(); ++row) names << Cell(list, row);
    return names.join(' ');
  }
  static QPoint PlaceOf(FoodTable* list, int row) {
    return list->visualRect(list->Model().index(row, 1)).center();
  }
  static void Click(FoodTable* list, int row, Qt::MouseButton button = Qt::LeftButton,
                    Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(list->viewport(), button, keys, PlaceOf(list, row));
  }
  static void ClickHeading(FoodTable* list, int column) {
    QHeaderView* const header = list->horizontalHeader();
    const QPoint place(header->sectionViewportPosition(column) + 8, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
  }
  static bool Drop(FoodTable* list, QMimeData& data) {
    const QPointF middle = list->viewport()->rect().center();
    QDragEnterEvent enter(middle.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &drop);
    return true;
  }
  static bool Drop(FoodTable* list, const Text& text) {
    QMimeData data;
    data.setText(ToQtWhole(text));
    return Drop(list, data);
  }
  void RightClick(FoodTable* list, int row) {
    Click(list, row, Qt::RightButton);
    QContextMenuEvent event(QContextMenuEvent::Mouse, PlaceOf(list, row),
                            list->viewport()->mapToGlobal(PlaceOf(list, row)));
    QApplication::sendEvent(list->viewport(), &event);
  }
  // Which of the entries of the open food menu may be chosen: delete, add, info, favourite.
  QString Enabled() {
    QString enabled;
    for (const char* name :
         {"mnu_item_del", "mnu_item_voegtoe", "mnu_item_info", "mnu_item_favo"}) {
      enabled += Action(name)->isEnabled() ? '1' : '0';
    }
    return enabled;
  }
  QMenu* FoodMenuWidget() { return window.findChild<QMenu*>(QStringLiteral("mnu_opties")); }

  TestProgram test;
  Program& program = test.program;
  KV_data& store = test.program.store;
  MainWindow window{test.program};
  QWidget* lists = nullptr;
};

}  // namespace kelvora
