// The main window with its child windows, as a user meets them: through names, clicks and drops.
#include <gtest/gtest.h>
#include <map>

#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QToolButton>

#include "core/frame/arrangement.h"
#include "core/frame/main_window.h"
#include "food/food_table_panel.h"
#include "language/built_in_texts.h"
#include "language/own_texts.h"
#include "platform/qt/look.h"
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
constexpr FoodLine kApple{.product = "Apple",
                          .unit = "1 piece",
                          .gram = "150",
                          .kj = "330",
                          .kcal = "78",
                          .remark = "appel",
                          .db = "Fruit.dat"};

class ProgramWindows : public testing::Test {
 protected:
  ProgramWindows() {
    test.program.profile[ProfileField::type_prioriteit] = "1";
    for (const char* file : {"Bread.dat", "Fruit.dat"}) {
      test.program.store.lst_categorien.Add(file);
    }
    test.program.store.Default_list.Add(LineOf(kBread));
    test.program.store.Default_list.Add(LineOf(kApple));
    window.resize(1024, 748);
    window.Set_Taal();
    window.UpdateCommands();
    window.show();
    QApplication::processEvents();
  }

  void OpenDay() {
    test.OpenDay("Anna");
    ApplyChosenArrangement(test.program);
    window.UpdateCommands();
    QApplication::processEvents();
  }

  template <class Widget>
  Widget* Find(const char* name) {
    return window.findChild<Widget*>(QLatin1String(name));
  }
  QWidget* Child(const char* name) { return Find<QWidget>(name); }
  FoodTable* List(const char* child, const char* name) {
    return Child(child)->findChild<FoodTable*>(QLatin1String(name));
  }
  QString Label(const char* child, const char* name) {
    return Child(child)->findChild<QLabel*>(QLatin1String(name))->text();
  }
  // Drops text on a list the way the desktop does.
  void Drop(FoodTable* list, const Text& text) {
    QMimeData data;
    data.setText(ToQtWhole(text));
    const QPointF middle = list->viewport()->rect().center();
    QDragEnterEvent enter(middle.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &enter);
    if (!enter.isAccepted()) return;
    QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &drop);
  }
  static QString Cell(FoodTable* list, int row, int column) {
    return list->Model().index(row, column).data().toString();
  }

  TestProgram test;
  MainWindow window{test.program};
};

TEST_F(ProgramWindows, EveryMenuItemAndButtonIsThereUnderItsName) {
  for (const MenuRow& row : MainMenu()) {
    if (row.kind == MenuKind::end_of_menu) continue;
    const QString name = QLatin1String(row.name.data(), static_cast<qsizetype>(row.name.size()));
    QObject* const found = window.findChild<QObject*>(name);
    ASSERT_NE(found, nullptr) << row.name;
    if (auto* const menu = qobject_cast<QMenu*>(found)) {
      EXPECT_EQ(FromQt(QString(menu->title()).remove('&')), test.program.texts[row.caption]);
    } else if (row.kind == MenuKind::item) {
      auto* const action = qobject_cast<QAction*>(found);
      // The lists bear the captions of their buttons, which end in blanks.
      const Text caption = row.own_caption ? OwnTextIn(Language::english, *row.own_caption)
                                           : test.program.texts[row.caption];
      const bool of_list = row.name.starts_with("mnu_lijst_");
      EXPECT_EQ(FromQt(action->text()), of_list ? Text(Trimmed(caption)) : caption);
      EXPECT_FALSE(action->icon().isNull()) << row.name;
    }
  }
  const std::map<int, Text> kKeys = {
      {2, " (Ctrl+N)"}, {3, " (Ctrl+O)"}, {4, " (Ctrl+S)"}, {22, " (F1)"}};
  for (const ButtonRow& row : MenuToolbar()) {
    auto* const button =
        window.findChild<QToolButton*>(QStringLiteral("menu_toolbar_%1").arg(row.index));
    ASSERT_NE(button, nullptr) << row.index;
    const Text keys = kKeys.contains(row.index) ? kKeys.at(row.index) : Text();
    EXPECT_EQ(FromQt(button->toolTip()), test.program.texts[*row.tip] + keys);
    EXPECT_EQ(FromQt(button->text()), test.program.texts[row.caption]);
  }
}

TEST_F(ProgramWindows, WithoutLargeTextsTheButtonsAreIconsOnly) {
  EXPECT_EQ(Find<QToolBar>("menu_toolbar")->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
  test.program.settings[Setting::chk_help] = "0";
  window.Set_toolbar_teksten();
  EXPECT_EQ(Find<QToolBar>("menu_toolbar")->toolButtonStyle(), Qt::ToolButtonIconOnly);
  EXPECT_EQ(Find<QToolButton>("menu_toolbar_2")->toolTip(), "Start new file or user (Ctrl+N)");
  EXPECT_EQ(Find<QToolButton>("menu_toolbar_2")->text(), "");
  EXPECT_EQ(Find<QToolButton>("menu_toolbar_2")->accessibleName(), "New");
  EXPECT_EQ(Find<QToolButton>("Toolbar_quickscreens_2")->text(), "Default input screens");
}

TEST_F(ProgramWindows, TheArrangementPutsTheWindowsAtTheirRecords) {
  OpenDay();
  for (const auto& [name, record] :
       {std::pair{"KV_tb_lijsten_frame", test.program.windows.geometry.lists},
        std::pair{"KV_tb_vochtend_frame", test.program.windows.geometry.morning},
        std::pair{"KV_tb_vmiddag_frame", test.program.windows.geometry.afternoon},
        std::pair{"KV_tb_vavond_frame", test.program.windows.geometry.evening}}) {
    auto* const frame = Find<QMdiSubWindow>(name);
    ASSERT_NE(frame, nullptr) << name;
    EXPECT_EQ(frame->geometry(),
              QRect(record.left / 15, record.top / 15, record.width / 15, record.height / 15))
        << name;
  }
  EXPECT_TRUE(Find<QToolButton>("menu_toolbar_8")->isChecked());
  EXPECT_TRUE(Find<QToolButton>("menu_toolbar_10")->isChecked());
}

TEST_F(ProgramWindows, EachChildWindowHasItsIcon) {
  OpenDay();
  for (const auto& [frame, icon] :
       {std::pair{"KV_tb_lijsten_frame", "foods"}, std::pair{"KV_tb_vochtend_frame", "morning"},
        std::pair{"KV_tb_vmiddag_frame", "afternoon"},
        std::pair{"KV_tb_vavond_frame", "evening"}}) {
    EXPECT_EQ(Find<QMdiSubWindow>(frame)->windowIcon().pixmap(16).toImage(),
              IconNamed(icon).pixmap(16).toImage())
        << frame;
  }
}

TEST_F(ProgramWindows, AWindowKeepsItsPlaceOverClosingWithinARun) {
  OpenDay();
  Find<QMdiSubWindow>("KV_tb_vavond_frame")->setGeometry(100, 80, 420, 260);
  Find<QMdiSubWindow>("KV_tb_vavond_frame")->close();
  EXPECT_EQ(test.program.windows.geometry.evening, (WindowRecord{6300, 3900, 1500, 1200}));
  QTest::qWait(1);
  EXPECT_EQ(Child("KV_tb_vavond"), nullptr);
  ToggleWindow(test.program, WindowId::evening);
  EXPECT_EQ(Find<QMdiSubWindow>("KV_tb_vavond_frame")->geometry(), QRect(100, 80, 420, 260));
}

TEST_F(ProgramWindows, ClosingTheFoodListsByTheirFrameClearsTheirButton) {
  OpenDay();
  Find<QMdiSubWindow>("KV_tb_lijsten_frame")->close();
  EXPECT_EQ(test.program.windows.lists, nullptr);
  EXPECT_FALSE(Find<QToolButton>("menu_toolbar_8")->isChecked());
}

TEST_F(ProgramWindows, ADropFillsTheListTheTotalsAndTheSaveButton) {
  OpenDay();
  EXPECT_FALSE(Find<QToolButton>("menu_toolbar_4")->isEnabled());
  FoodTable* const list = List("KV_tb_vochtend", "LV_consumpties");
  Drop(list, "add-" + LineOf(kBread) + kLineEnd + LineOf(kBread) + kLineEnd);
  ASSERT_EQ(list->Model().rowCount(), 1);
  EXPECT_EQ(Cell(list, 0, 1), "2");
  EXPECT_EQ(Cell(list, 0, 2), "Bread");
  EXPECT_EQ(Cell(list, 0, 4), "70");
  EXPECT_EQ(Cell(list, 0, 5), "164");
  EXPECT_EQ(list->SelectedRows(), std::vector<std::size_t>{0});
  EXPECT_EQ(Label("KV_tb_vochtend", "lbl_nfo_1"), ": 686 Kj/164 Kcal");
  EXPECT_EQ(Label("KV_tb_vochtend", "lbl_nfo_7"), ": 70g");
  EXPECT_EQ(Label("KV_tb_vochtend", "StatusBar_1"), "Morning");
  EXPECT_EQ(Label("KV_tb_vochtend", "StatusBar_2"), "Morning contains: 164 Kcal");
  EXPECT_TRUE(Find<QToolButton>("menu_toolbar_4")->isEnabled());
}

TEST_F(ProgramWindows, ForeignTextIsNotTaken) {
  OpenDay();
  Drop(List("KV_tb_vochtend", "LV_consumpties"), "some text of another program");
  EXPECT_TRUE(test.program.store.L_ochtend.Empty());
  EXPECT_FALSE(test.program.day.FileChanged);
}

TEST_F(ProgramWindows, PlusMinusAndRemoveWorkOnTheSelectedRow) {
  OpenDay();
  FoodTable* const list = List("KV_tb_vavond", "LV_consumpties");
  Drop(list, "add-" + LineOf(kBread) + kLineEnd + LineOf(kApple) + kLineEnd);
  list->SelectRow(0);
  QTest::mouseClick(Child("KV_tb_vavond")->findChild<QToolButton*>("Toolbar_control_1"),
                    Qt::LeftButton);
  EXPECT_EQ(Cell(list, 0, 1), "2");
  EXPECT_EQ(list->SelectedRows(), std::vector<std::size_t>{0});
  QTest::keyClick(list, Qt::Key_Plus, Qt::KeypadModifier);
  EXPECT_EQ(Cell(list, 0, 1), "3");
  QTest::keyClick(list, Qt::Key_Minus, Qt::KeypadModifier);
  QTest::mouseClick(Child("KV_tb_vavond")->findChild<QToolButton*>("Toolbar_control_2"),
                    Qt::LeftButton);
  EXPECT_EQ(Cell(list, 0, 1), "1");
  QTest::keyClick(list, Qt::Key_Delete);
  ASSERT_EQ(list->Model().rowCount(), 1);
  EXPECT_EQ(Cell(list, 0, 2), "Apple");
}

TEST_F(ProgramWindows, TheTotalsPanelIsToggledAndRemembered) {
  OpenDay();
  EXPECT_FALSE(Child("KV_tb_vmiddag")->findChild<QWidget*>("Info_bar")->isVisible());
  QTest::mouseClick(Child("KV_tb_vmiddag")->findChild<QToolButton*>("Toolbar_1"), Qt::LeftButton);
  EXPECT_TRUE(Child("KV_tb_vmiddag")->findChild<QWidget*>("Info_bar")->isVisible());
  Find<QMdiSubWindow>("KV_tb_vmiddag_frame")->close();
  QTest::qWait(1);
  ToggleWindow(test.program, WindowId::afternoon);
  EXPECT_TRUE(Child("KV_tb_vmiddag")->findChild<QWidget*>("Info_bar")->isVisible());
}

TEST_F(ProgramWindows, TheListsStartWithTheFirstCategoryAndSearchAsYouType) {
  OpenDay();
  FoodTable* const list = List("KV_tb_lijsten", "LV_browse_zoeken");
  auto* const search = Child("KV_tb_lijsten")->findChild<QLineEdit*>("txt_zoeken");
  EXPECT_EQ(search->text(), "Bread.dat");
  EXPECT_EQ(list->Model().rowCount(), 1);
  EXPECT_EQ(Label("KV_tb_lijsten", "StatusBar_2"), "2 food items available");
  search->clear();
  QTest::keyClicks(search, "app");
  ASSERT_EQ(list->Model().rowCount(), 1);
  EXPECT_EQ(Cell(list, 0, 1), "Apple");
  EXPECT_EQ(Cell(list, 0, 4), "78");
  EXPECT_EQ(Label("KV_tb_lijsten", "StatusBar_2"), "1 results found");
  QTest::keyClicks(search, "el");
  EXPECT_EQ(list->Model().rowCount(), 0);
  QTest::keyClick(search, Qt::Key_Return);
  EXPECT_EQ(list->Model().rowCount(), 1);
  for (int i = 0; i < 5; ++i) QTest::keyClick(search, Qt::Key_Backspace);
  EXPECT_EQ(search->text(), "Bread.dat");
  EXPECT_EQ(Cell(list, 0, 1), "Bread");
  // What is typed next takes the place of the category's name.
  QTest::keyClicks(search, "ap");
  EXPECT_EQ(search->text(), "ap");
}

TEST_F(ProgramWindows, AClickSelectsWhatStandsInTheSearchBoxAndComingBackDoesNot) {
  OpenDay();
  auto* const search = Child("KV_tb_lijsten")->findChild<QLineEdit*>("txt_zoeken");
  search->deselect();
  QFocusEvent clicked(QEvent::FocusIn, Qt::MouseFocusReason);
  QApplication::sendEvent(search, &clicked);
  QTest::qWait(1);
  EXPECT_EQ(search->selectedText(), "Bread.dat");
  search->deselect();
  QFocusEvent came_back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
  QApplication::sendEvent(search, &came_back);
  QTest::qWait(1);
  EXPECT_EQ(search->selectedText(), "");
}

TEST_F(ProgramWindows, ChoosingACategoryListsIt) {
  OpenDay();
  auto* const categories = Child("KV_tb_lijsten")->findChild<QComboBox*>("combo_cat");
  ASSERT_EQ(categories->count(), 2);
  categories->setFocus();
  QTest::keyClick(categories, Qt::Key_Down);
  EXPECT_EQ(Cell(List("KV_tb_lijsten", "LV_browse_zoeken"), 0, 1), "Apple");
  EXPECT_EQ(Child("KV_tb_lijsten")->findChild<QLineEdit*>("txt_zoeken")->text(), "Fruit.dat");
}

TEST_F(ProgramWindows, EveryCaptionChangesWithTheLanguage) {
  OpenDay();
  Make_Taal_Dutch(test.program.texts);
  window.Set_Taal();
  for (const WindowId id : {WindowId::lists, WindowId::morning}) {
    test.program.windows.Find(id)->Set_Taal();
  }
  EXPECT_EQ(Find<QMenu>("mnu_bestand")->title(), "&Bestand");
  EXPECT_EQ(Find<QToolButton>("menu_toolbar_4")->text(), "Opslaan");
  EXPECT_EQ(Child("KV_tb_lijsten")->windowTitle(), "Voedingsmiddelen");
  EXPECT_EQ(Label("KV_tb_vochtend", "txt_4"), "Eiwit");
}

TEST_F(ProgramWindows, TheMainWindowIsNeverSmallerThanItsMinimum) {
  window.resize(100, 100);
  EXPECT_EQ(window.size(), QSize(800, 574));
}

}  // namespace
}  // namespace kelvora
