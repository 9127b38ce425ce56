// The three consumption windows in the main window, as a user meets them: clicks, keys, drops and
// the panels, in both languages.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include "core/frame/arrangement.h"
#include "core/frame/main_window.h"
#include "food/consumption.h"
#include "food/food_table_panel.h"
#include "language/built_in_texts.h"
#include "nutrition/totals.h"
#include "platform/qt/text.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr FoodLine kBread{.product = "Bread",
                          .unit = "1 slice",
                          .gram = "35",
                          .kj = "343",
                          .kcal = "82",
                          .db = "Bread.dat"};
constexpr FoodLine kApple{.product = "Apple", .unit = "1 piece", .gram = "150", .kcal = "78"};
constexpr std::array kWindows = {"KV_tb_vochtend", "KV_tb_vmiddag", "KV_tb_vavond"};

class ConsumptionWindows : public testing::Test {
 protected:
  ConsumptionWindows() {
    test.program.profile[ProfileField::type_prioriteit] = "1";
    window.resize(1024, 748);
    window.Set_Taal();
    window.show();
    test.OpenDay("Anna");
    ApplyChosenArrangement(test.program);
    window.UpdateCommands();
    QApplication::processEvents();
  }

  QWidget* Child(DayPart part) {
    return window.findChild<QWidget*>(QLatin1String(kWindows[static_cast<std::size_t>(part)]));
  }
  template <class Widget>
  Widget* Find(DayPart part, const char* name) {
    return Child(part)->findChild<Widget*>(QLatin1String(name));
  }
  FoodTable* List(DayPart part) { return Find<FoodTable>(part, "LV_consumpties"); }
  void Click(DayPart part, const char* button) {
    QTest::mouseClick(Find<QAbstractButton>(part, button), Qt::LeftButton);
  }
  bool Shown(DayPart part, const char* name) { return Find<QWidget>(part, name)->isVisible(); }
  QString Cell(DayPart part, int row, int column) {
    return List(part)->Model().index(row, column).data().toString();
  }
  std::vector<QString> Products(DayPart part) {
    std::vector<QString> names;
    for (int row = 0; row < List(part)->Model().rowCount(); ++row) {
      names.push_back(Cell(part, row, 2));
    }
    return names;
  }
  void Fill(DayPart part, std::initializer_list<FoodLine> foods) {
    for (const FoodLine& food : foods) test.program.store.ListOf(part).Add(LineOf(food));
    RefreshAfterChange(test.program, part);
  }
  void SpeakDutch() {
    Make_Taal_Dutch(test.program.texts);
    for (const DayPart part : kDayParts) test.program.windows.Consumption(part)->Set_Taal();
    Refresh_Totalen(test.program);
  }
  // Drops data on a list the way the desktop does; false if the list does not take it.
  bool Drop(DayPart part, const QMimeData& data) {
    QWidget* const target = List(part)->viewport();
    const QPointF middle = target->rect().center();
    QDragEnterEvent enter(middle.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    return true;
  }
  bool DropText(DayPart part, const Text& text) {
    QMimeData data;
    data.setText(ToQtWhole(text));
    return Drop(part, data);
  }

  TestProgram test;
  MainWindow window{test.program};
};

TEST_F(ConsumptionWindows, EachHasItsTitleAndItsTextsInBothLanguages) {
  const std::array<std::pair<const char*, const char*>, 3> words = {
      {{"Morning", "Ochtend"}, {"Afternoon", "Middag"}, {"Evening", "Avond"}}};
  for (const bool dutch : {false, true}) {
    if (dutch) SpeakDutch();
    for (const DayPart part : kDayParts) {
      const auto& [english_word, dutch_word] = words[static_cast<std::size_t>(part)];
      const QString word = QLatin1String(dutch ? dutch_word : english_word);
      EXPECT_TRUE(Child(part)->windowTitle().startsWith(word));
      EXPECT_TRUE(Child(part)->windowTitle().endsWith(QStringLiteral("Friday 05-03-04")));
      EXPECT_EQ(Find<QLabel>(part, "StatusBar_1")->text(), word);
      EXPECT_EQ(Find<QToolButton>(part, "Toolbar_1")->toolTip(),
                dutch ? "Voedingswaarden tellen" : "Nutrition count");
      EXPECT_EQ(Find<QLabel>(part, "txt_8")->text(), dutch ? "Naam" : "Name");
      EXPECT_EQ(Find<QLabel>(part, "txt_7")->text(), dutch ? "Eenheid" : "Unit");
      EXPECT_EQ(Find<QPushButton>(part, "cmd_opslaan")->text(), dutch ? "Opslaan" : "Save");
      EXPECT_TRUE(Find<QLabel>(part, "empty_hint")
                      ->text()
                      .startsWith(dutch ? QStringLiteral("Sleep voedingsmiddelen")
                                        : QStringLiteral("Drag food items")));
    }
    EXPECT_EQ(Find<QAction>(DayPart::morning, "mnu_move_3")->text(),
              dutch ? "Verplaats naar de avond" : "Move to the evening");
  }
}

TEST_F(ConsumptionWindows, NothingIsClippedWithBothPanelsOpenInEitherLanguage) {
  test.program.profile[ProfileField::type_prioriteit] = "4";  // the longest words
  Fill(DayPart::afternoon, {kBread, {.product = "Much", .gram = "1234", .carbs = "1234"}});
  Click(DayPart::afternoon, "Toolbar_2");
  for (const bool dutch : {false, true}) {
    if (dutch) SpeakDutch();
    QApplication::processEvents();
    for (const QWidget* label : Child(DayPart::afternoon)->findChildren<QWidget*>()) {
      if (qobject_cast<const QLabel*>(label) == nullptr || !label->isVisible()) continue;
      EXPECT_GE(label->width(), label->sizeHint().width()) << label->objectName().toStdString();
      EXPECT_GE(label->height(), label->fontMetrics().height())
          << label->objectName().toStdString();
    }
    const auto* const save = Find<QPushButton>(DayPart::afternoon, "cmd_opslaan");
    EXPECT_GE(save->width(), save->fontMetrics().horizontalAdvance(save->text()) + 16);
    // The headings and two rows at least.
    const FoodTable& list = *List(DayPart::afternoon);
    EXPECT_GE(list.viewport()->height(), 2 * list.rowHeight(0));
  }
}

TEST_F(ConsumptionWindows, TheTogglesAreCoupledAsTheyMust) {
  const DayPart part = DayPart::evening;
  Click(part, "Toolbar_2");
  EXPECT_TRUE(Shown(part, "Info_bar"));
  EXPECT_TRUE(Shown(part, "Pic_SP"));
  EXPECT_TRUE(Find<QToolButton>(part, "Toolbar_1")->isChecked());
  Click(part, "Toolbar_1");
  EXPECT_FALSE(Shown(part, "Info_bar"));
  EXPECT_FALSE(Shown(part, "Pic_SP"));
  EXPECT_FALSE(Find<QToolButton>(part, "Toolbar_2")->isChecked());
  Click(part, "Toolbar_1");
  EXPECT_TRUE(Shown(part, "Info_bar"));
  EXPECT_FALSE(Shown(part, "Pic_SP"));
  Click(part, "Toolbar_2");
  window.findChild<QMdiSubWindow*>(QStringLiteral("KV_tb_vavond_frame"))->close();
  QTest::qWait(1);
  ToggleWindow(test.program, WindowId::evening);
  EXPECT_TRUE(Shown(part, "Info_bar"));  // survives the window
  EXPECT_FALSE(Shown(part, "Pic_SP"));   // always starts closed
}

TEST_F(ConsumptionWindows, CombiningWorksFromTheKeyboardAndClosesBothPanels) {
  const DayPart part = DayPart::afternoon;
  Fill(part, {kBread, kApple, kBread});
  Click(part, "Toolbar_2");
  auto* const name = Find<QLineEdit>(part, "txt_nfo_8");
  QTest::keyClicks(name, "Lunch");
  QTest::keyClicks(Find<QLineEdit>(part, "txt_nfo_7"), "1 plate");
  QTest::keyClick(name, Qt::Key_Return);
  ASSERT_EQ(Products(part), std::vector<QString>{QStringLiteral("Lunch")});
  // 2 x 35 + 150 g, 2 x 82 + 78 kcal
  EXPECT_EQ(Cell(part, 0, 3), "1 plate");
  EXPECT_EQ(Cell(part, 0, 4), "220");
  EXPECT_EQ(Cell(part, 0, 5), "242");
  EXPECT_EQ(test.program.store.Custom_list.Count(), 1u);
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_FALSE(Shown(part, "Info_bar"));
  EXPECT_FALSE(Shown(part, "Pic_SP"));
  EXPECT_EQ(name->text(), "");
  EXPECT_EQ(Find<QLineEdit>(part, "txt_nfo_7")->text(), "");
  EXPECT_FALSE(window.findChild<QToolButton*>(QStringLiteral("menu_toolbar_4"))->isEnabled());
}

TEST_F(ConsumptionWindows, ARefusalKeepsWhatWasTypedAndEscapeClosesThePanel) {
  const DayPart part = DayPart::morning;
  Fill(part, {kBread, kApple});
  Click(part, "Toolbar_2");
  auto* const name = Find<QLineEdit>(part, "txt_nfo_8");
  QTest::keyClicks(name, QStringLiteral("1\u00BD"));
  Click(part, "cmd_opslaan");
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(name->text(), QStringLiteral("1\u00BD"));
  EXPECT_TRUE(Shown(part, "Pic_SP"));
  EXPECT_EQ(name->selectedText(), QStringLiteral("1\u00BD"));  // the box that is wrong
  auto* const unit = Find<QLineEdit>(part, "txt_nfo_7");
  QTest::keyClicks(name, QStringLiteral("Lunch"));
  QTest::keyClicks(unit, QStringLiteral("\u00BE"));
  Click(part, "cmd_opslaan");
  EXPECT_EQ(unit->selectedText(), QStringLiteral("\u00BE"));
  QTest::keyClick(name, Qt::Key_Escape);
  EXPECT_FALSE(Shown(part, "Pic_SP"));
  EXPECT_EQ(Products(part).size(), 2u);
}

TEST_F(ConsumptionWindows, TheMinimumSizeAndTheStatusPanelsFollowTheirTwips) {
  auto* const frame = window.findChild<QMdiSubWindow*>(QStringLiteral("KV_tb_vochtend_frame"));
  frame->resize(10, 10);
  EXPECT_EQ(frame->size(), QSize(334, 187));  // 5000 and 2800 twips, whole pixels above
  EXPECT_EQ(Find<QLabel>(DayPart::morning, "StatusBar_1")->width(), 66);
  EXPECT_EQ(Find<QLabel>(DayPart::morning, "StatusBar_2")->width(), 200);
  EXPECT_EQ(Find<QLabel>(DayPart::morning, "StatusBar_3")->x(), 266);
}

TEST_F(ConsumptionWindows, AWidthThatNobodyTouchedKeepsItsTwips) {
  const WindowRecord before = test.program.windows.geometry.morning;
  EXPECT_EQ(before.width, 5600);
  window.findChild<QMdiSubWindow*>(QStringLiteral("KV_tb_vochtend_frame"))->close();
  EXPECT_EQ(test.program.windows.geometry.morning, before);
}

TEST_F(ConsumptionWindows, TheButtonStaysDownWhileAnyOfTheThreeIsOpen) {
  auto* const button = window.findChild<QToolButton*>(QStringLiteral("menu_toolbar_10"));
  for (const char* name : kWindows) {
    EXPECT_TRUE(button->isChecked());
    window.findChild<QMdiSubWindow*>(QLatin1String(name) + QStringLiteral("_frame"))->close();
  }
  EXPECT_FALSE(button->isChecked());
}

TEST_F(ConsumptionWindows, AnEmptyListSaysWhatToDoAndKeepsItsColumns) {
  const DayPart part = DayPart::morning;
  EXPECT_TRUE(Shown(part, "empty_hint"));
  EXPECT_EQ(List(part)->Model().columnCount(), 6);
  const int width = List(part)->columnWidth(2);
  EXPECT_GT(width, 100);
  Fill(part, {kBread});
  EXPECT_FALSE(Shown(part, "empty_hint"));
  QTest::keyClick(List(part), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(List(part), Qt::Key_Delete);
  EXPECT_TRUE(Shown(part, "empty_hint"));
  EXPECT_EQ(List(part)->columnWidth(2), width);
}

TEST_F(ConsumptionWindows, AClickBesideTheListGivesItTheKeys) {
  List(DayPart::evening)->setFocus();
  QTest::mouseClick(Find<QLabel>(DayPart::morning, "StatusBar_1"), Qt::LeftButton);
  EXPECT_TRUE(List(DayPart::morning)->hasFocus());
}

TEST_F(ConsumptionWindows, CtrlAAndDeleteEmptyTheList) {
  Fill(DayPart::evening, {kBread, kApple, kBread});
  QTest::keyClick(List(DayPart::evening), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(List(DayPart::evening)->SelectedRows().size(), 2u);
  QTest::keyClick(List(DayPart::evening), Qt::Key_Delete);
  EXPECT_TRUE(test.program.store.L_avond.Empty());
}

TEST_F(ConsumptionWindows, RowsOfOneNameAreSelectedTogether) {
  const DayPart part = DayPart::morning;
  FoodLine other = kBread;
  other.gram = "36";
  Fill(part, {kBread, kApple, other});
  List(part)->SelectRow(0);
  QTest::keyClick(List(part), Qt::Key_Plus, Qt::KeypadModifier);
  EXPECT_EQ(List(part)->SelectedRows(), (std::vector<std::size_t>{0, 2}));
  EXPECT_EQ(Cell(part, 0, 1), "2");
  QTest::keyClick(List(part), Qt::Key_Minus, Qt::KeypadModifier);
  QTest::keyClick(List(part), Qt::Key_Minus, Qt::KeypadModifier);
  // The last lines of the name went: the copy, then the other one.
  EXPECT_EQ(Products(part), (std::vector<QString>{"Bread", "Apple"}));
}

TEST_F(ConsumptionWindows, ARowReachedWithTheArrowsCountsAsClicked) {
  Fill(DayPart::morning, {kBread, kApple});
  window.activateWindow();
  List(DayPart::morning)->setFocus();
  EXPECT_EQ(test.program.day.selected_names[0], "");
  List(DayPart::morning)->SelectRow(0);
  QTest::keyClick(List(DayPart::morning), Qt::Key_Down);
  EXPECT_EQ(test.program.day.selected_names[0], "Apple");
}

TEST_F(ConsumptionWindows, TheSelectedRowStaysInView) {
  const DayPart part = DayPart::afternoon;
  std::vector<Text> names;
  for (int i = 0; i < 30; ++i) names.push_back("Food " + std::to_string(i));
  for (const Text& name : names) Fill(part, {{.product = name}});
  List(part)->SelectRow(20);
  for (const char* button : {"Toolbar_1", "Toolbar_2", "Toolbar_control_1", "Toolbar_1"}) {
    Click(part, button);
    const QModelIndex row = List(part)->Model().index(20, 2);
    EXPECT_TRUE(List(part)->viewport()->rect().contains(List(part)->visualRect(row))) << button;
  }
}

TEST_F(ConsumptionWindows, ShortcutsMoveTakeOutAndMakeFavourites) {
  test.program.store.Default_list.Add(LineOf(kBread));
  Fill(DayPart::morning, {kBread, kApple, kBread});
  FoodTable* const list = List(DayPart::morning);
  window.activateWindow();
  list->setFocus();
  QApplication::processEvents();
  list->SelectRow(0);
  QTest::keyClick(list, Qt::Key_3, Qt::ControlModifier);
  EXPECT_EQ(Products(DayPart::evening), std::vector<QString>{QStringLiteral("Bread")});
  EXPECT_EQ(List(DayPart::evening)->SelectedRows(), std::vector<std::size_t>{0});
  EXPECT_EQ(Cell(DayPart::morning, 0, 1), "1");
  list->SelectRow(1);
  QTest::keyClick(list, Qt::Key_Delete, Qt::ShiftModifier);
  EXPECT_EQ(Products(DayPart::morning), std::vector<QString>{QStringLiteral("Bread")});
  list->SelectRow(0);
  QTest::keyClick(list, Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(test.program.store.Favorites_list.Count(), 1u);
  QTest::keyClick(list, Qt::Key_X, Qt::ControlModifier);
  const QMimeData* const cut = QApplication::clipboard()->mimeData();
  EXPECT_EQ(cut->data(QStringLiteral("application/x-kelvora-food")).toStdString(),
            "kill-" + Packed("Bread|~"));
  EXPECT_EQ(cut->text(),
            QStringLiteral("X\tFood item\tUnit\tGram\tKcal\n1\tBread\t1 slice\t35\t82\n"));
  FoodTable* const target = List(DayPart::afternoon);
  target->setFocus();
  QTest::keyClick(target, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Products(DayPart::afternoon), std::vector<QString>{QStringLiteral("Bread")});
  EXPECT_TRUE(Products(DayPart::morning).empty());
  EXPECT_EQ(QApplication::clipboard()->text(), "");
}

TEST_F(ConsumptionWindows, TheMenuOfARowOffersWhatCanBeDone) {
  Fill(DayPart::evening, {kBread});
  QApplication::clipboard()->setText(QStringLiteral("text of another program"));
  FoodTable* const list = List(DayPart::evening);
  auto* const menu = Find<QMenu>(DayPart::evening, "row_menu");
  EXPECT_EQ(Find<QAction>(DayPart::evening, "mnu_move_3"), nullptr);
  for (const bool selected : {false, true}) {
    if (selected) list->SelectRow(0);
    emit list->customContextMenuRequested({5, 5});
    EXPECT_TRUE(menu->isVisible());
    for (const char* name : {"mnu_move_1", "mnu_move_2", "mnu_cut", "mnu_take_out", "mnu_details",
                             "mnu_amount", "Toolbar_control_1_action"}) {
      EXPECT_EQ(Find<QAction>(DayPart::evening, name)->isEnabled(), selected) << name;
    }
    EXPECT_FALSE(Find<QAction>(DayPart::evening, "mnu_paste")->isEnabled());
    menu->close();
    EXPECT_TRUE(Find<QAction>(DayPart::evening, "mnu_move_1")->isEnabled());
  }
  Find<QAction>(DayPart::evening, "mnu_move_1")->trigger();
  EXPECT_EQ(Products(DayPart::morning), std::vector<QString>{QStringLiteral("Bread")});
}

TEST_F(ConsumptionWindows, OnlyFoodLightsTheListUpAndIsTaken) {
  QMimeData picture, link;
  picture.setData(QStringLiteral("image/png"), QByteArray(5000, '\0'));
  link.setUrls({QUrl(QStringLiteral("file:///add-nothing"))});
  QMimeData html;
  html.setHtml(QStringLiteral("<b>add-Tea</b>"));
  for (const QMimeData* data : {&picture, &link, &html}) {
    EXPECT_FALSE(Drop(DayPart::morning, *data));
  }
  for (const Text& text : {Text(), Text("Add-x"), Text(1 << 20, 'x'), Text("some words")}) {
    EXPECT_FALSE(DropText(DayPart::morning, text));
  }
  EXPECT_FALSE(test.program.day.FileChanged);
  EXPECT_TRUE(DropText(DayPart::morning, "add-" + Text(1 << 20, 'x')));
  EXPECT_TRUE(Products(DayPart::morning).empty());
}

TEST_F(ConsumptionWindows, AMegabyteOfANameAndLineBreaksAreDrawnAndLeaveAgain) {
  const Text name(1 << 20, 'n');
  EXPECT_TRUE(DropText(DayPart::morning, "add-" + LineOf({.product = name}) + kLineEnd +
                                             LineOf({.product = "a\nb", .remark = "x\r\ny"}) +
                                             kLineEnd));
  EXPECT_EQ(Cell(DayPart::morning, 0, 2).size(), 500);
  EXPECT_EQ(Cell(DayPart::morning, 1, 2), "a b");
  Child(DayPart::morning)->grab();
  QTest::keyClick(List(DayPart::morning), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(List(DayPart::morning), Qt::Key_Delete);
  EXPECT_TRUE(test.program.store.L_ochtend.Empty());
}

struct CountingSummary : DaySummaryView {
  int refreshed = 0;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_Daguittreksel() override { ++refreshed; }
  void Maak_Voedingsbehoefte(const DayTotals&) override {}
};
TEST_F(ConsumptionWindows, AnOpenDaySummaryFollowsEveryRebuilding) {
  CountingSummary summary;
  test.program.windows.day_summary = &summary;
  Fill(DayPart::morning, {kBread});
  EXPECT_EQ(summary.refreshed, 1);
  List(DayPart::morning)->SelectRow(0);
  QTest::keyClick(List(DayPart::morning), Qt::Key_Plus, Qt::KeypadModifier);
  EXPECT_EQ(summary.refreshed, 2);
  test.program.windows.day_summary = nullptr;
}

// A drop of what was dragged from a part of the day on a food list, as the desktop makes it.
TEST_F(ConsumptionWindows, AFoodThatIsTakenOutLeavesTheWindowThatItWasDraggedFrom) {
  auto* const foods = window.findChild<FoodTable*>(QStringLiteral("LV_browse_zoeken"));
  ASSERT_NE(foods, nullptr);
  for (const DayPart part : kDayParts) {
    Fill(part, {kBread, kApple, kBread});
    List(part)->SelectRow(0);
    QMimeData data;
    data.setText(ToQt(List(part)->drag_payload({0})));
    const QPointF middle = foods->viewport()->rect().center();
    QDragEnterEvent enter(middle.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(foods->viewport(), &enter);
    QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(foods->viewport(), &drop);
    // One portion of the two is gone, in the list, in its totals and in the status bar.
    EXPECT_EQ(Products(part), (std::vector<QString>{"Bread", "Apple"}));
    EXPECT_EQ(Cell(part, 0, 1), "1");
    EXPECT_EQ(Cell(part, 0, 5), "82");
    EXPECT_EQ(Find<QLabel>(part, "lbl_nfo_7")->text(), ": 185g");
    EXPECT_TRUE(Find<QLabel>(part, "StatusBar_2")->text().endsWith(" 160 Kcal"));
  }
  for (const DayPart part : kDayParts) EXPECT_EQ(Products(part).size(), 2u);
}

TEST_F(ConsumptionWindows, ADropSelectsTheLastRowAndLeavesTheClickedNameAlone) {
  Fill(DayPart::morning, {kBread});
  test.program.day.selected_names[0] = "Bread";
  EXPECT_TRUE(DropText(DayPart::morning, "add-" + LineOf(kApple) + kLineEnd));
  EXPECT_EQ(List(DayPart::morning)->SelectedRows(), std::vector<std::size_t>{1});
  EXPECT_EQ(test.program.day.selected_names[0], "Bread");
}

}  // namespace
}  // namespace kelvora
