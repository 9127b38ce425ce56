// The keys that lead through the frame: F6, Ctrl+Tab, Alt with a digit, and what menus and tips say
// of them.
#include <gtest/gtest.h>
#include <map>

#include <QAction>
#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>

#include "food/food_table_panel.h"
#include "language/built_in_texts.h"
#include "windows/all_windows.h"

namespace kelvora {
namespace {

class MainFocus : public testing::Test {
 protected:
  MainFocus() {
    every.program.settings[Setting::chk_internet] = "1";
    every.Activate(every.window);
  }

  void OpenDay() {
    every.OpenDay();
    ApplyChosenArrangement(every.program);
    every.OpenChild(WindowId::lists);
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* const focus = QApplication::focusWidget();
    QTest::keyClick(focus == nullptr ? &every.window : focus, key, modifiers);
    QApplication::processEvents();
  }
  std::string Focus() {
    const QWidget* const focus = QApplication::focusWidget();
    return focus == nullptr ? "nothing" : focus->objectName().toStdString();
  }
  std::string Active() {
    return FindIn<QMdiArea>(every.window, "child_area")
        ->activeSubWindow()
        ->objectName()
        .toStdString();
  }

  AllWindows every;
};

TEST_F(MainFocus, F6GoesFromPartToPart) {
  OpenDay();
  FindIn<QWidget>(every.window, "Pic_opties")->setFocus();
  for (const char* part : {"Toolbar_quickscreens_2", "StatusBar", "menu_toolbar_2", "txt_zoeken",
                           "Toolbar_quickscreens_2"}) {
    Key(Qt::Key_F6);
    EXPECT_EQ(Focus(), part);
  }
  for (const char* part : {"txt_zoeken", "menu_toolbar_2", "StatusBar", "Toolbar_quickscreens_2"}) {
    Key(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(Focus(), part);
  }
}

TEST_F(MainFocus, F6ComesBackToWhereTheFocusWasInAWindow) {
  OpenDay();
  QMdiSubWindow& trend = every.OpenChild(WindowId::multi_day);
  FindIn<QWidget>(trend, "Teken_lijn_3")->setFocus();
  Key(Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_EQ(Focus(), "menu_toolbar_2");
  Key(Qt::Key_F6);
  EXPECT_EQ(Focus(), "Teken_lijn_3");
}

// The keyboard begins at the first button.
TEST_F(MainFocus, F6PassesOverTheWindowsWhenThereIsNone) {
  EXPECT_EQ(Focus(), "menu_toolbar_2");
  Key(Qt::Key_F6);
  EXPECT_EQ(Focus(), "Toolbar_quickscreens_5");
}

TEST_F(MainFocus, CtrlTabGoesRoundTheWindows) {
  OpenDay();
  every.OpenChild(WindowId::comparison);
  every.OpenChild(WindowId::lists);
  const std::vector<std::string> round = {"KV_tb_vochtend_frame", "KV_tb_vmiddag_frame",
                                          "KV_tb_vavond_frame", "KV_tb_weegschaal_frame",
                                          "KV_tb_lijsten_frame"};
  for (const std::string& frame : round) {
    Key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(Active(), frame);
  }
  EXPECT_EQ(Focus(), "txt_zoeken");
  for (auto frame = round.rbegin() + 1; frame != round.rend(); ++frame) {
    Key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Active(), *frame);
  }
  EXPECT_EQ(Focus(), "LV_consumpties");
}

// In a text area and a strip of tabs too, and from the frame back to a window.
TEST_F(MainFocus, CtrlTabLeadsOutOfEveryWindow) {
  OpenDay();
  for (const WindowId id : kEveryChild) {
    const std::string before = every.OpenChild(id).objectName().toStdString();
    Key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_NE(Active(), before);
    EXPECT_NE(Focus(), "nothing") << before;
  }
  every.OpenChild(WindowId::lists);
  FindIn<QWidget>(every.window, "menu_toolbar_3")->setFocus();
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(Active(), "KV_tb_vochtend_frame");
  EXPECT_EQ(Focus(), "LV_consumpties");
}

TEST_F(MainFocus, CtrlTabWithoutAWindowDoesNothing) {
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(every.window.findChildren<QMdiSubWindow*>().size(), 0);
}

TEST_F(MainFocus, AltMinusOpensTheMenuOfTheFrame) {
  OpenDay();
  QMdiSubWindow& frame = every.OpenChild(WindowId::morning);
  Key(Qt::Key_Minus, Qt::AltModifier);
  EXPECT_TRUE(frame.systemMenu()->isVisible());
  frame.systemMenu()->close();
}

TEST_F(MainFocus, AltAndADigitChooseTheListFromEverywhere) {
  OpenDay();
  struct Choice {
    Qt::Key key;
    const char* button;
    const char* focus;
  };
  for (const auto& [key, button, focus] : {Choice{Qt::Key_2, "Toolbar_2", "LV_browse_eigen"},
                                           Choice{Qt::Key_3, "Toolbar_3", "LV_browse_favo"},
                                           Choice{Qt::Key_4, "Toolbar_4", "txt_internet"},
                                           Choice{Qt::Key_1, "Toolbar_1", "txt_zoeken"}}) {
    every.OpenChild(WindowId::evening);
    Key(key, Qt::AltModifier);
    EXPECT_EQ(Active(), "KV_tb_lijsten_frame");
    EXPECT_EQ(Focus(), focus);
    auto& lists = *FindIn<QWidget>(every.window, "KV_tb_lijsten");
    EXPECT_TRUE(FindIn<QAbstractButton>(lists, button)->isChecked());
  }
}

TEST_F(MainFocus, AltAndADigitOpenTheListsWhereTheyAreClosed) {
  OpenDay();
  every.program.windows.lists->CloseWindow();
  Key(Qt::Key_3, Qt::AltModifier);
  EXPECT_EQ(Focus(), "LV_browse_favo");
}

TEST_F(MainFocus, TheInternetListIsThereWithTheInternetOnly) {
  OpenDay();
  every.program.settings[Setting::chk_internet] = "0";
  every.program.windows.FollowSettings();
  every.window.UpdateCommands();
  EXPECT_FALSE(FindIn<QAction>(every.window, "mnu_lijst_internet")->isEnabled());
  Key(Qt::Key_4, Qt::AltModifier);
  EXPECT_EQ(Focus(), "txt_zoeken");
  every.program.settings[Setting::chk_internet] = "1";
  every.program.windows.FollowSettings();
  every.window.UpdateCommands();
  EXPECT_TRUE(FindIn<QAction>(every.window, "mnu_lijst_internet")->isEnabled());
}

TEST_F(MainFocus, WithoutAUserNoListIsChosen) {
  Key(Qt::Key_1, Qt::AltModifier);
  EXPECT_EQ(every.program.windows.lists, nullptr);
}

TEST_F(MainFocus, AltAndADigitArrangeTheWindows) {
  OpenDay();
  Key(Qt::Key_8, Qt::AltModifier);
  EXPECT_NE(every.program.windows.day_summary, nullptr);
  EXPECT_EQ(every.program.settings[Setting::chk_all_screens], "1");
  Key(Qt::Key_7, Qt::AltModifier);
  EXPECT_EQ(every.program.windows.day_summary, nullptr);
  EXPECT_NE(every.program.windows.lists, nullptr);
  EXPECT_EQ(every.program.settings[Setting::chk_all_screens], "0");
  Key(Qt::Key_9, Qt::AltModifier);
  EXPECT_EQ(every.program.windows.lists, nullptr);
}

// The laid-down words, and the keys behind them.
TEST_F(MainFocus, TipsAndMenusShowTheKeys) {
  OpenDay();
  const auto tip = [this](const char* button) {
    return FindIn<QAbstractButton>(every.window, button)->toolTip().toStdString();
  };
  EXPECT_EQ(tip("menu_toolbar_2"), "Start new file or user (Ctrl+N)");
  EXPECT_EQ(tip("menu_toolbar_4"), "Save file (Ctrl+S)");
  EXPECT_EQ(tip("menu_toolbar_5"), "Print");
  EXPECT_EQ(tip("menu_toolbar_22"), "Help index (F1)");
  EXPECT_EQ(tip("Toolbar_quickscreens_2"), "Show all default screens (Alt+7)");
  EXPECT_EQ(tip("Toolbar_quickscreens_3"), "Show default screens and small summary (Alt+8)");
  EXPECT_EQ(tip("Toolbar_quickscreens_5"), "Default screen values (Alt+9)");
  auto& lists = *FindIn<QWidget>(every.window, "KV_tb_lijsten");
  EXPECT_EQ(FindIn<QAbstractButton>(lists, "Toolbar_3")->toolTip(),
            "Food items that you use often (Alt+3)");
  const auto item = [this](const char* name) {
    const auto* const action = FindIn<QAction>(every.window, name);
    return (action->text() + " " + action->shortcut().toString()).toStdString();
  };
  EXPECT_EQ(item("mnu_lijst_standaard"), "Standard list Alt+1");
  EXPECT_EQ(item("mnu_lijst_internet"), "Internet list Alt+4");
  EXPECT_EQ(item("mnu_quick_default"), "Default input screens Alt+7");
  EXPECT_EQ(item("mnu_quick_reset"), "Default screen values Alt+9");
}

// Whatever is open: no two commands have the same keys, and none has those of a menu's letter.
TEST_F(MainFocus, NoTwoCommandsShareKeys) {
  OpenDay();
  for (void (*make)(TextTables&) : {&Make_Taal_English, &Make_Taal_Dutch}) {
    make(every.program.texts);
    every.window.Set_Taal();
    std::map<QString, QStringList> taken;
    for (const auto* action : every.window.findChildren<QAction*>()) {
      const QString keys = action->shortcut().toString();
      // Those of a list count only in that list, and those of a frame in that frame.
      const bool everywhere = action->shortcutContext() == Qt::WindowShortcut &&
                              qobject_cast<QMdiSubWindow*>(action->parent()) == nullptr &&
                              qobject_cast<QMdiSubWindow*>(action->parent()->parent()) == nullptr;
      if (!keys.isEmpty() && everywhere) taken[keys] << action->objectName();
    }
    for (const auto* shortcut : every.window.findChildren<QShortcut*>()) {
      if (shortcut->context() != Qt::WindowShortcut) continue;
      taken[shortcut->key().toString()] << QStringLiteral("shortcut");
    }
    for (const QAction* menu : every.window.menuBar()->actions()) {
      const qsizetype mark = menu->text().indexOf('&');
      ASSERT_GE(mark, 0);
      taken["Alt+" + menu->text().mid(mark + 1, 1).toUpper()] << menu->text();
    }
    EXPECT_GT(taken.size(), 20u);
    for (const auto& [keys, owners] : taken) {
      EXPECT_EQ(owners.size(), 1) << keys.toStdString() << ": " << owners.join(", ").toStdString();
    }
  }
}

TEST_F(MainFocus, TheStatusBarSaysWhatStandsInIt) {
  OpenDay();
  const auto* const bar = every.window.statusBar();
  EXPECT_EQ(bar->accessibleName(), "Status bar");
  EXPECT_EQ(bar->accessibleDescription(), "Kelvora FOOD 2.24, Current user: Anna");
}

// The button that saves goes out when it has saved, and the focus stays in the toolbar.
TEST_F(MainFocus, SavingByTheButtonLeavesTheFocusInTheToolbar) {
  OpenDay();
  every.program.day.FileChanged = true;
  every.window.UpdateCommands();
  FindIn<QWidget>(every.window, "menu_toolbar_4")->setFocus();
  Key(Qt::Key_Space);
  EXPECT_FALSE(every.program.day.FileChanged);
  EXPECT_EQ(Focus(), "menu_toolbar_5");
}

}  // namespace
}  // namespace kelvora
