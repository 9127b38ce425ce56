// The comparison in the main window, as a user meets it: drops, tabs, the menu of a food row, keys.
// Values by hand: 250 grams of 1000 kilojoules are 400 per 100 grams.
#include "analysis/comparison_window.h"

#include <QApplication>
#include <QMdiSubWindow>

#include "language/built_in_texts.h"
#include "windows/find_in.h"
#include "windows/food_lists_user.h"

namespace kelvora {
namespace {

constexpr FoodLine kBread{.product = "Bread",
                          .unit = "1 slice, for",
                          .gram = "250",
                          .kj = "1000",
                          .kcal = "239",
                          .protein = "8.5",
                          .fat_u = "2.25",
                          .fat_s = "1",
                          .carbs = "40.125",
                          .sodium = "0.5"};

class ComparisonWindows : public FoodListsWindowTest {
 protected:
  ComparisonWindows() {
    program.paths.UserName = "Anna";
    program.windows.geometry = DefaultGeometry(window.Size());
    window.UpdateCommands();
    Button().click();
    QApplication::processEvents();
  }
  // An arrangement closes the comparison.
  void OpenLists() {
    Open();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Button().click();
    QApplication::processEvents();
  }
  QToolButton& Button() { return *FindIn<QToolButton>(window, "menu_toolbar_16"); }
  QWidget* Child() { return window.findChild<QWidget*>(QStringLiteral("KV_tb_weegschaal")); }
  template <class Widget = QLabel>
  Widget& Find(const QString& name) {
    return *FindIn<Widget>(*Child(), name);
  }
  QString Label(const QString& name) { return Find<QLabel>(name).text(); }
  QTabWidget& Tabs() { return Find<QTabWidget>("TabStrip"); }

  // False where the field doesn't take what is over it.
  bool DropOn(const QString& field, QMimeData& data) {
    QWidget& target = Find<QWidget>(field);
    const QPointF middle = target.rect().center();
    QDragEnterEvent enter(middle.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &drop);
    return true;
  }
  bool DropOn(const QString& field, const Text& text) {
    QMimeData data;
    data.setText(ToQtWhole(text));
    return DropOn(field, data);
  }
  static Text Dragged(const FoodLine& food) { return "add-" + LineOf(food) + kLineEnd; }
  QStringList Values(const QString& boxes) {
    QStringList values;
    for (int row = 0; row < 9; ++row) {
      values << Label(QStringLiteral("var_%1_%2").arg(boxes).arg(row));
    }
    return values;
  }
};

TEST_F(ComparisonWindows, OpenAndCloseByTheirButton) {
  EXPECT_NE(program.windows.comparison, nullptr);
  EXPECT_TRUE(Button().isChecked());
  EXPECT_EQ(Child()->windowTitle(), "Food comparison");
  Button().click();
  EXPECT_EQ(program.windows.comparison, nullptr);
  EXPECT_FALSE(Button().isChecked());
}

TEST_F(ComparisonWindows, OpenByTheMenuWithoutAUser) {
  Button().click();
  program.paths.UserName.clear();
  window.UpdateCommands();
  EXPECT_FALSE(Button().isEnabled());
  EXPECT_TRUE(Action("mnu_weegschaal")->isEnabled());
  Action("mnu_weegschaal")->trigger();
  EXPECT_NE(program.windows.comparison, nullptr);
}

TEST_F(ComparisonWindows, StandWhereTheyStoodBefore) {
  auto* const frame = FindIn<QMdiSubWindow>(window, "KV_tb_weegschaal_frame");
  frame->setGeometry(30, 40, 420, 430);
  Button().click();
  EXPECT_EQ(program.windows.geometry.comparison, (WindowRecord{6300, 6450, 450, 600}));
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Button().click();
  EXPECT_EQ(FindIn<QMdiSubWindow>(window, "KV_tb_weegschaal_frame")->geometry(),
            QRect(30, 40, 420, 430));
}

TEST_F(ComparisonWindows, ShowADroppedFoodOnBothTabs) {
  EXPECT_TRUE(DropOn("Pic_drop_1", Dragged(kBread)));
  EXPECT_EQ(Label("txt_Voedingsmiddel_1"), "Bread");
  EXPECT_EQ(Label("txt_Voedingsmiddel_1_b"), "Bread");
  EXPECT_EQ(Values("1a"), QStringList({"250", "1 slice, for", "1000", "239", "2.25", "1", "0.5",
                                       "8.5", "40.125"}));
  EXPECT_EQ(Values("1b"),
            QStringList({"100", "", "400", "96", "0.90", "0.40", "0.200", "3.40", "16.05"}));
  EXPECT_EQ(Label("lbl_oz1a"), "(8.8 oz )");
  EXPECT_EQ(Label("lbl_oz1b"), "(3.5 oz )");
  EXPECT_EQ(Values("2a").join(""), "");
  EXPECT_EQ(Label("lbl_oz2a"), "");
}

TEST_F(ComparisonWindows, TakeTheSecondBoxFirstAndADropOnEitherTab) {
  EXPECT_TRUE(DropOn("Pic_drop_2_b", Dragged(kBread)));
  EXPECT_EQ(Label("txt_Voedingsmiddel_2"), "Bread");
  EXPECT_EQ(Label("var_2b_2"), "400");
  EXPECT_EQ(Label("txt_Voedingsmiddel_1"), "");
}

TEST_F(ComparisonWindows, KeepABoxThatRefusesADrop) {
  DropOn("Pic_drop_1", Dragged(kBread));
  DropOn("Pic_drop_1", Dragged({.product = "Tea"}) + LineOf({.product = "Milk"}) + kLineEnd);
  DropOn("Pic_drop_1", Packed("kill-Tea|~"));
  EXPECT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(Label("txt_Voedingsmiddel_1"), "Bread");
}

TEST_F(ComparisonWindows, AreEmptiedByOtherText) {
  for (const Text& text :
       {Text(), Text("add-"), Text("a text of another program"), Text(1 << 20, 'x')}) {
    DropOn("Pic_drop_1", Dragged(kBread));
    EXPECT_TRUE(DropOn("Pic_drop_1", text));
    EXPECT_EQ(Label("txt_Voedingsmiddel_1"), "");
    EXPECT_EQ(Values("1a").join("") + Values("1b").join(""), "");
    EXPECT_EQ(Label("lbl_oz1a") + Label("lbl_oz1b"), "");
  }
}

TEST_F(ComparisonWindows, TakeNoPictureAndNothingThatTextCantHold) {
  QMimeData picture;
  picture.setImageData(QImage(2, 2, QImage::Format_RGB32));
  EXPECT_FALSE(DropOn("Pic_drop_1", picture));
  QMimeData foreign;
  foreign.setText(
      QString::fromUtf8("add-\xC5\x81"
                        "osos"));
  EXPECT_FALSE(DropOn("Pic_drop_1", foreign));
}

TEST_F(ComparisonWindows, HoldANameOfAMegabyte) {
  const QSize before = Child()->size();
  const Text name(1 << 20, 'w');
  EXPECT_TRUE(DropOn("Pic_drop_1", Dragged({.product = name, .unit = name, .gram = "50"})));
  QApplication::processEvents();
  EXPECT_EQ(Child()->size(), before);
  EXPECT_LE(Label("txt_Voedingsmiddel_1").size(), 500);
}

TEST_F(ComparisonWindows, ShowTheirThreeTabs) {
  const char* const captions[] = {"Per Unit", "Per 100 grams", "Help"};
  const char* const tips[] = {"Compare nutrition's per unit", "Compare nutrition's per 100 grams",
                              "Help"};
  ASSERT_EQ(Tabs().count(), 3);
  const char* const frames[3][4] = {{"Frame_1_1_a", "Frame_2_1_a", "Frame_1_2_a", "Frame_2_2_a"},
                                    {"Frame_1_1_b", "Frame_2_1_b", "Frame_1_2_b", "Frame_2_2_b"},
                                    {"Frame_hulp", "Frame_hulp", "Frame_hulp", "Frame_hulp"}};
  for (int shown = 0; shown < 3; ++shown) {
    EXPECT_EQ(Tabs().tabText(shown), captions[shown]);
    EXPECT_EQ(Tabs().tabToolTip(shown), tips[shown]);
    Tabs().setCurrentIndex(shown);
    for (int tab = 0; tab < 3; ++tab) {
      for (const char* const frame : frames[tab]) {
        EXPECT_EQ(Find<QGroupBox>(frame).isVisible(), tab == shown) << frame;
      }
    }
  }
}

TEST_F(ComparisonWindows, HeadTheirFramesInBothLanguages) {
  const auto heads = [this] {
    QStringList titles;
    for (const char* const frame :
         {"Frame_1_1_a", "Frame_2_1_a", "Frame_1_2_a", "Frame_2_2_a", "Frame_1_1_b", "Frame_2_1_b",
          "Frame_1_2_b", "Frame_2_2_b", "Frame_hulp"}) {
      titles << Find<QGroupBox>(frame).title();
    }
    return titles;
  };
  EXPECT_EQ(heads(), QStringList({"Food item 1:", "Food item 2:", "Details 1:", "Details 2:",
                                  "Food item 1:", "Food item 2:", "Details 1 (per 100 grams)",
                                  "Details 2 (per 100 grams)", "Help"}));
  EXPECT_EQ(Label("lbl_hulp_0"),
            "With the food comparison function you can compare nutritional values of different "
            "food items. Food items can be compare per unit or per 100 gram.");
  EXPECT_EQ(Label("lbl_hulp_4"), "Compare the food items per unit or per 100 gram.");
  DropOn("Pic_drop_1", Dragged(kBread));
  Make_Taal_Dutch(program.texts);
  program.windows.comparison->Set_Taal();
  EXPECT_EQ(heads()[6], "Details 1 (per 100 gram)");
  EXPECT_EQ(Label("lbl_var_1a_8"), "Koolhydraten");
  EXPECT_EQ(Label("var_1b_2"), "400");
  EXPECT_EQ(Find<QWidget>("Pic_drop_2").toolTip(), "Sleep voedingsmiddel 2 naar dit vak");
}

TEST_F(ComparisonWindows, TakeAFoodFromTheMenuOfItsRow) {
  OpenLists();
  RightClick(List(1), 2);
  EXPECT_TRUE(Action("mnu_opties_compare_1")->isVisible());
  EXPECT_EQ(Action("mnu_opties_compare_2")->text(), "Compare as food item 2");
  Action("mnu_opties_compare_2")->trigger();
  EXPECT_EQ(Label("txt_Voedingsmiddel_2"), "White");
  EXPECT_EQ(Label("txt_Voedingsmiddel_1"), "");
}

TEST_F(ComparisonWindows, HaveNoEntryInTheMenuOfARowWhileTheyAreClosed) {
  OpenLists();
  program.windows.comparison->CloseWindow();
  RightClick(List(1), 0);
  EXPECT_FALSE(Action("mnu_opties_compare_1")->isVisible());
}

TEST_F(ComparisonWindows, AreReachedByTabAndOpenTheDetailsByEnter) {
  DropOn("Pic_drop_1", Dragged(kBread));
  window.activateWindow();
  Tabs().setFocus();
  QTest::keyClick(&Tabs(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "Pic_drop_1");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "Pic_drop_2");
  EXPECT_EQ(Find<QWidget>("Pic_drop_1").accessibleDescription(), "Bread");
  EXPECT_EQ(Find<QLabel>("var_1a_2").accessibleName(), "Energy: 1000 Kj ");
  RecordingCore core;
  CoreView* const own = std::exchange(program.windows.core, &core);
  QTest::keyClick(&Find<QWidget>("Pic_drop_1"), Qt::Key_Return);
  QTest::mouseDClick(&Find<QWidget>("Pic_drop_1"), Qt::LeftButton);
  QTest::keyClick(&Find<QWidget>("Pic_drop_2"), Qt::Key_Return);  // empty
  program.windows.core = own;
  EXPECT_EQ(core.items_shown.size(), 2u);
}

TEST_F(ComparisonWindows, HaveRoomForTheirWordsAsTheyOpen) {
  auto* const frame = FindIn<QMdiSubWindow>(window, "KV_tb_weegschaal_frame");
  EXPECT_EQ(frame->size(), QSize(375, 388));  // 5625 by 5820 twips
  for (const bool dutch : {false, true}) {
    if (dutch) Make_Taal_Dutch(program.texts);
    program.windows.comparison->Set_Taal();
    QApplication::processEvents();
    EXPECT_LE(Child()->minimumSizeHint().width(), Child()->width());
    EXPECT_LE(Child()->minimumSizeHint().height(), Child()->height());
  }
}

}  // namespace
}  // namespace kelvora
