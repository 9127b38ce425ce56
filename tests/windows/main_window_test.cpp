// The main window itself: its commands as a user sees and gives them, its status bar, and the
// programmers' window. Its child windows are tested in program_windows_test.cpp.
#include "core/frame/main_window.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include "core/frame/arrangement.h"
#include "core/frame/data_window.h"
#include "language/built_in_texts.h"
#include "language/main_texts.h"
#include "platform/qt/text.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

class MainWindowOfTheProgram : public testing::Test {
 protected:
  MainWindowOfTheProgram() {
    window.resize(1024, 748);
    window.Set_Taal();
    window.show();
    QApplication::processEvents();
  }

  void OpenDay() {
    test.OpenDay("Anna");
    window.UpdateCommands();
  }
  template <class Object>
  Object* Find(const QString& name) {
    Object* const found = window.findChild<Object*>(name);
    EXPECT_NE(found, nullptr) << name.toStdString();
    return found;
  }
  QToolButton* Button(int index) {
    return Find<QToolButton>(QStringLiteral("menu_toolbar_%1").arg(index));
  }
  QToolButton* QuickButton(int index) {
    return Find<QToolButton>(QStringLiteral("Toolbar_quickscreens_%1").arg(index));
  }
  // Which buttons of the bar can be pressed.
  std::vector<int> EnabledButtons() {
    std::vector<int> enabled;
    for (const ButtonRow& row : MenuToolbar()) {
      if (Button(row.index)->isEnabled()) enabled.push_back(row.index);
    }
    return enabled;
  }

  TestProgram test;
  MainWindow window{test.program};
};

TEST_F(MainWindowOfTheProgram, ButtonsFollowUserDayAndChanges) {
  EXPECT_EQ(EnabledButtons(), (std::vector<int>{2, 3, 18, 19, 20, 22}));
  test.program.paths.UserName = "Anna";
  window.UpdateCommands();
  EXPECT_EQ(EnabledButtons(), (std::vector<int>{2, 3, 8, 14, 15, 16, 18, 19, 20, 22}));
  OpenDay();
  EXPECT_EQ(EnabledButtons(),
            (std::vector<int>{2, 3, 5, 7, 8, 10, 11, 13, 14, 15, 16, 18, 19, 20, 22}));
  SetFileChanged(test.program, true);
  EXPECT_EQ(EnabledButtons(),
            (std::vector<int>{2, 3, 4, 5, 7, 8, 10, 11, 13, 14, 15, 16, 18, 19, 20, 22}));
}

TEST_F(MainWindowOfTheProgram, QuickButtonsNeedADayButTheReset) {
  EXPECT_FALSE(QuickButton(2)->isEnabled());
  EXPECT_FALSE(QuickButton(3)->isEnabled());
  EXPECT_TRUE(QuickButton(5)->isEnabled());
  OpenDay();
  EXPECT_TRUE(QuickButton(2)->isEnabled());
  EXPECT_TRUE(QuickButton(3)->isEnabled());
}

TEST_F(MainWindowOfTheProgram, QuickButtonsHaveTheirTexts) {
  EXPECT_EQ(QuickButton(2)->text(), "Default input screens");
  EXPECT_EQ(QuickButton(2)->toolTip(), "Show all default screens (Alt+7)");
  EXPECT_EQ(QuickButton(3)->text(), "Open all input screens");
  EXPECT_EQ(QuickButton(3)->toolTip(), "Show default screens and small summary (Alt+8)");
  EXPECT_EQ(QuickButton(5)->text(), "Default screen values");
}

TEST_F(MainWindowOfTheProgram, MenusAreDisabledAsAWhole) {
  for (const char* name :
       {"mnu_opties", "mnu_resultaten", "mnu_tabellen", "mnu_exporteer", "mnu_consumpties"}) {
    EXPECT_FALSE(Find<QMenu>(QLatin1String(name))->isEnabled()) << name;
  }
  OpenDay();
  for (const char* name :
       {"mnu_opties", "mnu_resultaten", "mnu_tabellen", "mnu_exporteer", "mnu_consumpties"}) {
    EXPECT_TRUE(Find<QMenu>(QLatin1String(name))->isEnabled()) << name;
  }
}

// The first letter of each menu that no earlier one has, worked out by hand.
TEST_F(MainWindowOfTheProgram, EachMenuOpensByALetterOfItsOwn) {
  const auto titles = [&] {
    QStringList found;
    for (const QAction* menu : window.menuBar()->actions()) found << menu->text();
    return found.join(' ');
  };
  EXPECT_EQ(titles(),
            "&File &Consumption screens &Options &Statistics &Tables &Extra &Information");
  test.program.texts[main_text::kConsumptionScreens] = "Foods";
  window.Set_Taal();
  EXPECT_EQ(titles(), "&File F&oods O&ptions &Statistics &Tables &Extra &Information");
  Make_Taal_Dutch(test.program.texts);
  window.Set_Taal();
  EXPECT_EQ(titles(),
            "&Bestand &Consumptieschermen &Opties &Resultaten &Tabellen &Extra &Informatie");
}

// Whichever loop of events runs, its closing ends the program, once it may close.
TEST_F(MainWindowOfTheProgram, ItsClosingEndsTheProgram) {
  OpenDay();
  SetFileChanged(test.program, true);
  EXPECT_FALSE(window.close());  // the question is answered with No
  EXPECT_FALSE(test.program.ending);
  EXPECT_EQ(test.events.ends, 0);
  test.boxes.answers = {BoxAnswer::yes};
  window.GiveCommand(Command::mnu_bestand_sluiten);
  EXPECT_FALSE(window.isVisible());
  EXPECT_TRUE(test.program.ending);
  EXPECT_EQ(test.events.ends, 1);
  // What a step of the start would still show does not come.
  window.OpenWindow(WindowId::lists);
  EXPECT_EQ(test.program.windows.lists, nullptr);
}

TEST_F(MainWindowOfTheProgram, F10OpensTheFirstMenu) {
  QTest::keyClick(&window, Qt::Key_F10);
  EXPECT_TRUE(Find<QMenu>("mnu_bestand")->isVisible());
  Find<QMenu>("mnu_bestand")->close();
}

TEST_F(MainWindowOfTheProgram, SaveIsAnItemWithADayAndAButtonWithChanges) {
  OpenDay();
  EXPECT_TRUE(Find<QAction>("mnu_bestand_opslaan")->isEnabled());
  EXPECT_FALSE(Button(4)->isEnabled());
}

TEST_F(MainWindowOfTheProgram, ThePrintButtonTellsAndItsMenuHasTwoEntries) {
  OpenDay();
  QToolButton* const print = Button(5);
  EXPECT_EQ(print->popupMode(), QToolButton::MenuButtonPopup);
  QTest::mouseClick(print, Qt::LeftButton, {}, QPoint(8, 8));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.starts_with("Select a print option"));
  const auto entries = print->menu()->actions();
  ASSERT_EQ(entries.size(), 2);
  EXPECT_EQ(entries[0]->text(), "Print summary of this day");
  EXPECT_EQ(entries[1]->text(), "Print travel form");
}

TEST_F(MainWindowOfTheProgram, TheEntriesOfThePrintButtonPrint) {
  OpenDay();
  test.printers.names = {"Ink"};
  test.program.settings[Setting::combo_printer] = "Ink";
  const auto entries = Button(5)->menu()->actions();
  entries[0]->trigger();
  entries[1]->trigger();
  ASSERT_EQ(test.printing.jobs.size(), 2u);
  EXPECT_EQ(test.printing.jobs[0].title, "Kelvora FOOD Summary of this day");
  EXPECT_EQ(test.printing.jobs[1].title, "Kelvora travel form");
}

TEST_F(MainWindowOfTheProgram, NothingPrintsWithoutADay) {
  for (const char* name : {"mnu_print_dag", "mnu_print_reis"}) {
    EXPECT_FALSE(window.findChild<QAction*>(QLatin1String(name))->isEnabled()) << name;
  }
  OpenDay();
  for (const char* name : {"mnu_print_dag", "mnu_print_reis"}) {
    EXPECT_TRUE(window.findChild<QAction*>(QLatin1String(name))->isEnabled()) << name;
  }
}

TEST_F(MainWindowOfTheProgram, TheConsumptionsButtonTogglesByItsMenu) {
  OpenDay();
  const auto entries = Button(10)->menu()->actions();
  ASSERT_EQ(entries.size(), 3);
  entries[1]->trigger();
  EXPECT_NE(test.program.windows.Find(WindowId::afternoon), nullptr);
  EXPECT_TRUE(entries[1]->isChecked());
  EXPECT_FALSE(entries[0]->isChecked());
  EXPECT_TRUE(Button(10)->isChecked());
  entries[1]->trigger();
  EXPECT_EQ(test.program.windows.Find(WindowId::afternoon), nullptr);
  EXPECT_FALSE(entries[1]->isChecked());
  EXPECT_FALSE(Button(10)->isChecked());
}

TEST_F(MainWindowOfTheProgram, EveryButtonIsPressedByItsCommand) {
  OpenDay();
  QTest::mouseClick(Button(8), Qt::LeftButton);
  EXPECT_NE(test.program.windows.lists, nullptr);
  EXPECT_TRUE(Button(8)->isChecked());
  EXPECT_TRUE(Find<QAction>("mnu_voedingswaarde_tabel")->isChecked());
  QTest::mouseClick(Button(8), Qt::LeftButton);
  EXPECT_EQ(test.program.windows.lists, nullptr);
  QTest::mouseClick(QuickButton(3), Qt::LeftButton);
  EXPECT_EQ(test.program.settings[Setting::chk_all_screens], "1");
  EXPECT_EQ(test.program.windows.geometry.SummarySmall, 1);
  QTest::mouseClick(QuickButton(2), Qt::LeftButton);
  EXPECT_EQ(test.program.settings[Setting::chk_all_screens], "0");
  QTest::mouseClick(QuickButton(5), Qt::LeftButton);
  EXPECT_EQ(test.program.windows.lists, nullptr);
  EXPECT_EQ(test.program.windows.geometry, DefaultGeometry(window.Size()));
}

TEST_F(MainWindowOfTheProgram, TheServerEntryFollowsTheSettings) {
  EXPECT_EQ(Find<QAction>("mnu_website_Etenlijn")->text(), "Etenlijn");
  test.program.settings[Setting::opt_server] = "1";
  window.UpdateCommands();
  EXPECT_EQ(Find<QAction>("mnu_website_Etenlijn")->text(), "Bitewell");
}

TEST_F(MainWindowOfTheProgram, StatusPanelsFillItsWidthAtEverySize) {
  for (const int width : {800, 1024, 1920}) {
    window.resize(width, 748);
    QApplication::processEvents();
    // 3500, 4000 and 1200 twips are 233, 266 and 80 pixels; the third panel has the rest of the
    // width in twips, in whole pixels: 15 x width - 8700 is 15 x (width - 580).
    EXPECT_EQ(Find<QLabel>("StatusBar_1")->geometry().width(), 233);
    EXPECT_EQ(Find<QLabel>("StatusBar_2")->geometry().width(), 266);
    EXPECT_EQ(Find<QLabel>("StatusBar_3")->geometry().width(), width - 580);
    EXPECT_EQ(Find<QLabel>("StatusBar_4")->geometry().width(), 80);
  }
  EXPECT_EQ(Find<QLabel>("StatusBar_1")->text(), "Kelvora FOOD 2.24");
  EXPECT_EQ(Find<QLabel>("StatusBar_3")->text(), "");
}

TEST_F(MainWindowOfTheProgram, EveryPartHasANameForAssistiveTools) {
  for (const char* name : {"menu_toolbar", "Toolbar_quickscreens", "child_area", "StatusBar"}) {
    EXPECT_FALSE(Find<QWidget>(QLatin1String(name))->accessibleName().isEmpty()) << name;
  }
  for (const ButtonRow& row : MenuToolbar()) {
    EXPECT_EQ(FromQt(Button(row.index)->accessibleName()), test.program.texts[row.caption]);
  }
}

TEST_F(MainWindowOfTheProgram, StatusPanelsTellWhatTheyShow) {
  const std::array<const char*, 4> tips = {"Version of Kelvora FOOD",
                                           "User whose files you are working in", "", ""};
  for (std::size_t i = 0; i < tips.size(); ++i) {
    const auto* const panel = Find<QLabel>(QStringLiteral("StatusBar_%1").arg(i + 1));
    EXPECT_EQ(panel->toolTip(), tips[i]) << i;
  }
}

TEST(MainWindowAtFirst, FitsAScreenOf1024PixelsWhenItIsNotMaximized) {
  TestProgram test;
  EXPECT_EQ(MainWindow(test.program).size(), QSize(1024, 740));
}

TEST_F(MainWindowOfTheProgram, TheProgrammersButtonIsHiddenAndShowsTheStoreOnTop) {
  auto* const cmd_data = Find<QPushButton>("cmd_data");
  EXPECT_FALSE(cmd_data->isVisible());
  test.program.store.L_ochtend.Add("bread");
  QTest::keyClick(&window, Qt::Key_D, Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier);
  auto* const data = Find<QWidget>("KV_data");
  ASSERT_NE(data, nullptr);
  EXPECT_TRUE(data->isVisible());
  EXPECT_TRUE(data->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_FALSE(data->isModal());
  auto* const members = data->findChild<QListWidget*>("lst_members");
  ASSERT_EQ(members->item(1)->text(), "L_ochtend (1)");
  members->setCurrentRow(1);
  auto* const lines = data->findChild<QTableView*>("lst_lines");
  ASSERT_EQ(lines->model()->rowCount(), 1);
  const QPoint middle = lines->visualRect(lines->model()->index(0, 0)).center();
  QTest::mouseClick(lines->viewport(), Qt::LeftButton, {}, middle);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text, "bread");
  cmd_data->click();
  EXPECT_EQ(window.findChildren<DataWindow*>().size(), 1);
}

}  // namespace
}  // namespace kelvora
