// Rows of a consumption window under the keys and the mouse: details, another amount, the cursor
// after a delete; and drops anywhere on the window.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "core/frame/arrangement.h"
#include "core/frame/main_window.h"
#include "core/geometry.h"
#include "food/consumption.h"
#include "food/food_table_panel.h"
#include "food/other_amount_dialog.h"
#include "language/built_in_texts.h"
#include "platform/qt/text.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

class ConsumptionKeys : public testing::Test {
 protected:
  ConsumptionKeys() {
    window.resize(1024, 748);
    window.Set_Taal();
    window.show();
    test.OpenDay("Anna");
    for (const char* name : {"Tea", "Rye", "Pie", "Egg"}) {
      test.program.store.L_middag.Add(LineOf({.product = name, .gram = "50", .kcal = "80"}));
    }
    ApplyChosenArrangement(test.program);
    window.UpdateCommands();
    child = window.findChild<QWidget*>(QStringLiteral("KV_tb_vmiddag"));
    list = child->findChild<FoodTable*>(QStringLiteral("LV_consumpties"));
    QApplication::processEvents();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  Text Names() {
    Text names;
    for (const std::string_view line : test.program.store.L_middag) {
      names.append(FieldOf(line, FoodField::kProduct)) += ';';
    }
    return names;
  }
  // Does something in the dialog that opens now.
  void InDialog(std::function<void(QDialog&)> act) {
    QTimer::singleShot(0, &window, [act] {
      auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      act(*dialog);
      dialog->done(0);
    });
  }
  // Drags a food over a widget, as the desktop does; true if it is taken there. A widget that does
  // not take it leaves it to the one that it stands on.
  bool DropOn(QWidget* widget, QPoint place) {
    QMimeData data;
    data.setText(ToQtWhole("add-" + LineOf({.product = "Milk"}) + kLineEnd));
    QWidget* target = widget;
    bool taken = false;
    while (target != nullptr && !taken) {
      if (target->acceptDrops()) {
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(target, &enter);
        taken = enter.isAccepted();
      }
      if (!taken) {
        place = target->mapToParent(place);
        target = target->parentWidget();
      }
    }
    if (!taken) return false;
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &move);
    EXPECT_TRUE(move.isAccepted());
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    return true;
  }

  TestProgram test;
  MainWindow window{test.program};
  QWidget* child = nullptr;
  FoodTable* list = nullptr;
};

TEST_F(ConsumptionKeys, PlusAndMinusOfTheMainKeysCountAsThoseOfTheNumberPad) {
  list->SelectRow(1);
  QTest::keyClick(list, Qt::Key_Plus, Qt::ShiftModifier);
  EXPECT_EQ(Names(), "Tea;Rye;Pie;Egg;Rye;");
  QTest::keyClick(list, Qt::Key_Plus, Qt::KeypadModifier);
  QTest::keyClick(list, Qt::Key_Minus);
  EXPECT_EQ(Names(), "Tea;Rye;Pie;Egg;Rye;");
  QTest::keyClick(list, Qt::Key_Minus, Qt::KeypadModifier);
  EXPECT_EQ(Names(), "Tea;Rye;Pie;Egg;");
  QTest::keyClick(list, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(Names(), "Tea;Rye;Pie;Egg;");
}

TEST_F(ConsumptionKeys, AfterADeleteTheCursorStaysInItsPlace) {
  list->SelectRow(1);
  QTest::keyClick(list, Qt::Key_Delete);
  EXPECT_EQ(Names(), "Tea;Pie;Egg;");
  EXPECT_EQ(list->RowInFocus(), 1u);
  QTest::keyClick(list, Qt::Key_Delete);
  EXPECT_EQ(list->RowInFocus(), 1u);
  QTest::keyClick(list, Qt::Key_Delete);
  EXPECT_EQ(Names(), "Tea;");
  EXPECT_EQ(list->RowInFocus(), 0u);
  QTest::keyClick(list, Qt::Key_Delete);
  EXPECT_EQ(list->RowInFocus(), std::nullopt);
}

TEST_F(ConsumptionKeys, EnterAndADoubleClickOpenTheDetailsOfTheRow) {
  int opened = 0;
  const auto look = [&opened](QDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), "KV_foodpopup");
    EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("bVar_0"))->text(), "Rye");
    ++opened;
  };
  list->SelectRow(1);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    InDialog(look);
    QTest::keyClick(list, key);
  }
  InDialog(look);
  const QPoint place = list->visualRect(list->Model().index(1, 2)).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
  InDialog(look);
  child->findChild<QAction*>(QStringLiteral("mnu_details"))->trigger();
  EXPECT_EQ(opened, 4);
  list->clearSelection();
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(opened, 4);
}

TEST_F(ConsumptionKeys, DetailsThatAreSavedLeaveTheDayAlone) {
  const Text before(test.program.store.L_middag[1]);
  list->SelectRow(1);
  InDialog([](QDialog& dialog) {
    auto* const gram = dialog.findChild<QLineEdit*>(QStringLiteral("txt_gram"));
    gram->setFocus();
    gram->selectAll();
    QTest::keyClicks(gram, QStringLiteral("100"));
    dialog.findChild<QPushButton*>(QStringLiteral("cmd_opslaan"))->click();
  });
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(test.program.store.L_middag[1], before);
  ASSERT_EQ(test.program.store.Custom_list.Count(), 1u);
  EXPECT_EQ(FieldOf(test.program.store.Custom_list[0], FoodField::kGram), "100");
}

TEST_F(ConsumptionKeys, F2AsksForAnotherAmountOfTheRow) {
  list->SelectRow(1);
  list->setFocus();
  InDialog([](QDialog& dialog) {
    auto* const box = dialog.findChild<QLineEdit*>(QStringLiteral("txt_amount"));
    EXPECT_EQ(dialog.windowTitle(), "Other amount ...");
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("lbl_food"))->text(), "Rye");
    EXPECT_EQ(box->selectedText(), "1");
    QTest::keyClicks(box, QStringLiteral("none"));
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("entry_hint"))->text(),
              "Enter an amount such as 2, 1/2, 150 g or 5 oz.");
    QTest::keyClicks(box, QStringLiteral("75 g"));
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  QTest::keyClick(list, Qt::Key_F2);
  EXPECT_EQ(Names(), "Tea;Rye, 75 g;Pie;Egg;");
  EXPECT_EQ(FieldOf(test.program.store.L_middag[1], FoodField::kKcal), "120");
  EXPECT_EQ(list->RowInFocus(), 1u);
  EXPECT_TRUE(test.program.day.FileChanged);
  InDialog([](QDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("txt_amount"))->text(), "75 g");
  });
  child->findChild<QAction*>(QStringLiteral("mnu_amount"))->trigger();
  EXPECT_EQ(Names(), "Tea;Rye, 75 g;Pie;Egg;");
}

TEST_F(ConsumptionKeys, TheMenuOfARowSpeaksDutch) {
  Make_Taal_Dutch(test.program.texts);
  test.program.windows.Consumption(DayPart::afternoon)->Set_Taal();
  EXPECT_EQ(child->findChild<QAction*>(QStringLiteral("mnu_amount"))->text(),
            "Andere hoeveelheid ...");
  OtherAmountDialog dialog(
      test.program, "Rogge", "1", [](const Amount&) { return std::nullopt; }, nullptr);
  EXPECT_EQ(dialog.windowTitle(), "Andere hoeveelheid ...");
  EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("lbl_amount"))->text(), "Hoeveelheid:");
}

TEST_F(ConsumptionKeys, DropsAreTakenAnywhereOnTheWindowAtItsMinimumSize) {
  auto* const frame = qobject_cast<QMdiSubWindow*>(child->parentWidget());
  child->findChild<QAction*>(QStringLiteral("Toolbar_2_action"))->trigger();
  frame->resize(PixelsCovering(kConsumptionMinimumWidth),
                PixelsCovering(kConsumptionMinimumHeight));
  QApplication::processEvents();
  std::size_t drops = 0;
  for (const char* name : {"LV_consumpties", "Toolbar", "Toolbar_control", "Toolbar_control_1",
                           "StatusBar", "StatusBar_1", "Info_bar", "lbl_nfo_1", "Pic_SP",
                           "txt_nfo_8", "txt_nfo_7", "cmd_opslaan"}) {
    auto* const part = child->findChild<QWidget*>(QLatin1String(name));
    ASSERT_NE(part, nullptr) << name;
    EXPECT_TRUE(DropOn(part, part->rect().center())) << name;
    ++drops;
  }
  EXPECT_TRUE(DropOn(list->horizontalHeader()->viewport(), {5, 5}));
  EXPECT_TRUE(DropOn(list->viewport(), {5, 5}));
  EXPECT_TRUE(DropOn(child, {1, 1}));
  EXPECT_TRUE(DropOn(frame, {frame->width() / 2, 8}));  // the title bar
  EXPECT_EQ(test.program.store.L_middag.Count(), 4 + drops + 4);
  EXPECT_EQ(child->findChild<QLineEdit*>(QStringLiteral("txt_nfo_8"))->text(), "");
  EXPECT_EQ(test.program.day.active_part, DayPart::afternoon);
}

TEST_F(ConsumptionKeys, ABoxStillTakesOtherTexts) {
  child->findChild<QAction*>(QStringLiteral("Toolbar_2_action"))->trigger();
  auto* const box = child->findChild<QLineEdit*>(QStringLiteral("txt_nfo_8"));
  QMimeData data;
  data.setText(QStringLiteral("Lunch"));
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(box, &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(box, &drop);
  EXPECT_EQ(box->text(), "Lunch");
  EXPECT_EQ(Names(), "Tea;Rye;Pie;Egg;");
}

}  // namespace
}  // namespace kelvora
