// The list of days in the browser: units and languages, sorting, its menu and keys, deleting, and
// what happens while it is read.
#include <filesystem>

#include <QContextMenuEvent>
#include <QScrollBar>

#include "core/common.h"
#include "days/day_dialogs.h"
#include "storage/day_file.h"
#include "windows/browser_window.h"

namespace kelvora {
namespace {

class BrowserDays : public BrowserWindow {
 protected:
  std::string PathOf(const char* name) {
    return UserFolder(program.paths, "Anna") + "Files/" + name;
  }
  void RightClick(const QPoint& place) {
    QTest::mouseClick(List()->viewport(), Qt::RightButton, {}, place);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                            List()->viewport()->mapToGlobal(place));
    QApplication::sendEvent(List()->viewport(), &event);
  }
  QMenu* Menu() { return Find<QMenu>("mnu_opties"); }
  QAction* Entry(const char* name) { return Find<QAction>(name); }
  QString Label(const char* name) { return Find<QLabel>(name)->text(); }
  // Three more days: 01-03-04 to 03-03-04.
  void AddThreeDays() {
    AddDay("Anna", "a.kvf", "01-03-04", "79.9");
    AddDay("Anna", "b.kvf", "02-03-04", "81");
    AddDay("Anna", "c.kvf", "03-03-04", "80.1");
  }
  // More days than the list has room for: 28.
  void AddJanuary() {
    for (int day = 1; day <= 28; ++day) {
      const std::string number = std::to_string(100 + day).substr(1);
      AddDay("Anna", "january" + number + ".kvf", number + "-01-04");
    }
  }
};

// 80.5 kg are 80.5 x 2.2046225 = 177.4721 lb and, by 14, 12.6766 st; over 1.80 m squared a BMI of
// 24.8457. 70 kg: 154.3236 lb, 11.0231 st. 65 kg: 143.3005 lb, 10.2358 st. 1.80 m are 5.9055 ft,
// and 0.9055 ft are 10.87 inches.
struct InUnits {
  const char* system;
  const char* date;
  const char* weight;
  const char* last_weight;
  const char* goal_weight;
  const char* height;
};

TEST_F(BrowserDays, ShowDaysAndProfileInEveryUnitSystemAndLanguage) {
  struct Words {
    void (*make)(TextTables&);
    const char *title, *profile_of, *goal_weight;
    QStringList headings;
  };
  for (const Words& words :
       {Words{&Make_Taal_English,
              "Open file",
              "Profile of Anna:",
              "Goal weight:",
              {"#", "Filenamefull", "Filename", "Date", "Day", "Weight", "BMI", "Kcal"}},
        Words{&Make_Taal_Dutch,
              "Bestand openen",
              "Profiel van Anna:",
              "Streefgewicht:",
              {"#", "Volledige bestandsnaam", "Bestandsnaam", "Datum", "Dag", "Gewicht", "BMI",
               "Kcal"}}}) {
    words.make(program.texts);
    for (const InUnits& units :
         {InUnits{"0", "05-03-04", "80.50", "70.00 Kg ", "65.00 Kg ", "1.80 Meter"},
          InUnits{"1", "03-05-04", "177.47", "154.32 Lbs", "143.30 Lbs", "5'11''"},
          InUnits{"2", "05-03-04", "12.7", "11.0 Stones", "10.2 Stones", "5'11''"}}) {
      program.settings[Setting::opt_system] = units.system;
      OpenAsAnna();
      EXPECT_EQ(dialog->windowTitle(), words.title);
      for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(List()->model()->headerData(i, Qt::Horizontal).toString(), words.headings[i]);
      }
      const QStringList cells = {"1",       ToQt(TextFromUtf8(PathOf("old.kvf"))),
                                 "old.kvf", units.date,
                                 "Friday",  units.weight,
                                 "24.85",   "30"};
      for (int i = 0; i < 8; ++i) EXPECT_EQ(Cell(0, i), cells[i]);
      EXPECT_EQ(Label("lbl_profile_of"), words.profile_of);
      EXPECT_EQ(Label("lbl_pr_caption_2"), words.goal_weight);
      EXPECT_EQ(Label("lbl_pr_0"), "REF-Anna");
      EXPECT_EQ(Label("lbl_pr_1"), units.last_weight);
      EXPECT_EQ(Label("lbl_pr_2"), units.goal_weight);
      EXPECT_EQ(Label("lbl_pr_3"), units.height);
      EXPECT_EQ(Label("lbl_pr_4"), "Female");
      EXPECT_EQ(Label("lbl_pr_5"), "42");
      EXPECT_TRUE(test.boxes.shown.empty());
    }
  }
}

TEST_F(BrowserDays, AClickOnAHeadingOfNumbersSortsAndASecondOneReverses) {
  AddThreeDays();
  OpenAsAnna();
  EXPECT_EQ(Column(5), "79.90 81.00 80.10 80.50 80.50");
  EXPECT_FALSE(List()->horizontalHeader()->isSortIndicatorShown());
  ClickHeadingOf(5);
  // By whole kilograms, the equal ones the other way round.
  EXPECT_EQ(Column(5), "79.90 80.50 80.50 80.10 81.00");
  EXPECT_EQ(Column(0), "1 5 4 3 2");
  EXPECT_EQ(List()->horizontalHeader()->sortIndicatorSection(), 5);
  EXPECT_EQ(List()->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
  ClickHeadingOf(5);
  EXPECT_EQ(Column(5), "81.00 80.50 80.50 80.10 79.90");
  EXPECT_EQ(List()->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
  for (const int column : {0, 3, 4}) {
    ClickHeadingOf(column);
    EXPECT_EQ(Column(0), "2 5 4 3 1");
    EXPECT_EQ(List()->horizontalHeader()->sortIndicatorSection(), 5);
  }
}

TEST_F(BrowserDays, TheSelectionGoesWithTheRowsThatAreSorted) {
  AddThreeDays();
  OpenAsAnna();
  ClickRow(0);
  ClickRow(1, Qt::ControlModifier);
  ClickHeadingOf(5);
  EXPECT_EQ(SelectedRows(), "0 4");
  EXPECT_EQ(List()->currentIndex().row(), 4);
  QTest::keyClick(List(), Qt::Key_Return);
  EXPECT_EQ(program.store.KV_bestand, "b.kvf");
}

TEST_F(BrowserDays, TheDeleteKeyDeletesTheFirstSelectedDayAfterAYes) {
  AddThreeDays();
  OpenAsAnna();
  QTest::keyClick(List(), Qt::Key_Delete);
  EXPECT_TRUE(test.boxes.shown.empty());
  ClickRow(3);
  ClickRow(1, Qt::ControlModifier);
  QTest::keyClick(List(), Qt::Key_Delete);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.find(" 02-03-04  ? \n") != Text::npos);
  EXPECT_EQ(SelectedRows(), "1 3");
  EXPECT_TRUE(FileExists(PathOf("b.kvf")));
  test.boxes.answers = {BoxAnswer::yes};
  QTest::keyClick(List(), Qt::Key_Delete);
  EXPECT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_FALSE(FileExists(PathOf("b.kvf")));
  EXPECT_EQ(Column(2), "a.kvf c.kvf old.kvf new.kvf");
  EXPECT_EQ(Column(0), "1 2 3 4");
  EXPECT_EQ(SelectedRows(), "");
  EXPECT_EQ(List()->currentIndex().row(), 1);
}

TEST_F(BrowserDays, TheDeleteKeyOutsideTheListDeletesNothing) {
  OpenAsAnna();
  ClickRow(0);
  for (const char* name : {"lst_users", "chk_profiel", "cmd_openen"}) {
    Find<QWidget>(name)->setFocus();
    QTest::keyClick(Find<QWidget>(name), Qt::Key_Delete);
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(BrowserDays, TheLastDayDeletedLeavesAnEmptyListAndNothingToDo) {
  std::filesystem::remove(PathOf("old.kvf"));
  OpenAsAnna();
  EXPECT_TRUE(Entry("mnu_open")->isEnabled());
  EXPECT_TRUE(Entry("mnu_del_dag")->isEnabled());
  ClickRow(0);
  test.boxes.answers = {BoxAnswer::yes};
  Entry("mnu_del_dag")->trigger();
  EXPECT_EQ(List()->model()->rowCount(), 0);
  EXPECT_FALSE(OpenIsEnabled());
  EXPECT_FALSE(Entry("mnu_open")->isEnabled());
  EXPECT_FALSE(Entry("mnu_del_dag")->isEnabled());
  RightClick(QPoint(50, 10));
  EXPECT_FALSE(Menu()->isVisible());
}

TEST_F(BrowserDays, AWriteProtectedDayStaysInTheList) {
  OpenAsAnna();
  std::filesystem::permissions(PathOf("old.kvf"), std::filesystem::perms::owner_read);
  ClickRow(0);
  test.boxes.answers = {BoxAnswer::yes};
  QTest::keyClick(List(), Qt::Key_Delete);
  EXPECT_TRUE(test.boxes.shown.back().text.ends_with("Brelux CODE:#F3-6"));
  EXPECT_EQ(List()->model()->rowCount(), 2);
  EXPECT_TRUE(FileExists(PathOf("old.kvf")));
}

TEST_F(BrowserDays, TheOpenDayMayBeDeletedAndSavedAgain) {
  OpenAsAnna();
  ClickRow(0);
  QTest::keyClick(List(), Qt::Key_Return);
  ASSERT_EQ(program.store.KV_bestand, "old.kvf");
  OpenAsAnna();
  ClickRow(0);
  test.boxes.answers = {BoxAnswer::yes};
  QTest::keyClick(List(), Qt::Key_Delete);
  EXPECT_EQ(Column(2), "new.kvf");
  EXPECT_EQ(program.store.KV_bestand, "old.kvf");
  SaveDay(program);
  EXPECT_TRUE(FileExists(PathOf("old.kvf")));
}

TEST_F(BrowserDays, ARightClickOnARowShowsTheMenuAndOneBesideTheRowsDoesNot) {
  OpenAsAnna();
  RightClick(QPoint(50, List()->viewport()->height() - 5));
  EXPECT_FALSE(Menu()->isVisible());
  RightClick(PlaceOfRow(1));
  EXPECT_TRUE(Menu()->isVisible());
  EXPECT_EQ(SelectedRows(), "1");
  EXPECT_EQ(Entry("mnu_open")->text(), "Open this day");
  EXPECT_EQ(Entry("mnu_del_dag")->text(), "Delete this day");
  Menu()->hide();
  Entry("mnu_open")->trigger();
  EXPECT_EQ(program.store.KV_bestand, "new.kvf");
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(BrowserDays, TheMenuKeyShowsTheMenuAtTheRowInFocus) {
  OpenAsAnna();
  ClickRow(1);
  // Wherever the mouse rests meanwhile, here beside the rows.
  const QPoint beside = List()->rect().bottomLeft();
  QContextMenuEvent event(QContextMenuEvent::Keyboard, beside, List()->mapToGlobal(beside));
  QApplication::sendEvent(List(), &event);
  EXPECT_TRUE(Menu()->isVisible());
  EXPECT_EQ(Menu()->pos(), List()->viewport()->mapToGlobal(PlaceOfRow(1)));
  Menu()->hide();
}

TEST_F(BrowserDays, TheNewestDayIsInSightAndTheFirstUnderTheKeys) {
  AddJanuary();
  OpenAsAnna();
  const int last = 29;
  ASSERT_EQ(List()->model()->rowCount(), last + 1);
  EXPECT_EQ(Cell(last, 3), "06-03-04");
  EXPECT_TRUE(List()->viewport()->rect().contains(PlaceOfRow(last)));
  EXPECT_FALSE(List()->selectionModel()->hasSelection());
  EXPECT_TRUE(List()->hasFocus());
  QTest::keyClick(List(), Qt::Key_Down);
  EXPECT_EQ(SelectedRows(), "29");
  QTest::keyClick(List(), Qt::Key_Up);
  EXPECT_EQ(SelectedRows(), "28");
  QTest::keyClick(List(), Qt::Key_Home);
  EXPECT_EQ(SelectedRows(), "0");
  QTest::keyClick(List(), Qt::Key_End);
  EXPECT_EQ(SelectedRows(), "29");
  QTest::keyClick(List(), Qt::Key_Return);
  EXPECT_EQ(program.store.KV_bestand, "new.kvf");
}

TEST_F(BrowserDays, TabGoesThroughTheWindowInReadingOrder) {
  OpenAsAnna();
  Find<QWidget>("lst_users")->setFocus();
  for (const char* name :
       {"LV_browse_files", "chk_profiel", "cmd_openen", "cmd_annuleer", "lst_users"}) {
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(dialog->focusWidget()->objectName(), name);
  }
}

TEST_F(BrowserDays, AUserWhoseProfileLeadsElsewhereStaysInItsFolder) {
  AddUser("Carl");
  Rec_Profile foreign;
  foreign[ProfileField::name] = "../elsewhere";
  WriteRecord(ProfileFile(program.paths, "Carl"), foreign);
  OpenAsAnna();
  ClickUser("../elsewhere");
  EXPECT_EQ(SelectedUser(), "../elsewhere");
  EXPECT_EQ(program.paths.FilesPath, program.paths.UsersPath + "Carl/Files/");
  EXPECT_EQ(List()->model()->rowCount(), 0);
}

// While the days are read.

class BusyBrowser : public BrowserDays {
 protected:
  BusyBrowser() {
    Make_Taal_English(busy.texts);
    DetermineFolders(busy);
    SetCurrentUser(busy, "Anna");
  }
  ~BusyBrowser() override { dialog.reset(); }

  ActingEvents acting;
  Platform platform{test.boxes,          test.pointer,  test.locale, test.folders,  test.clock,
                    test.screen,         acting,        test.opener, test.printers, test.printing,
                    test.folder_chooser, test.transfers};
  Program busy{platform};
};

TEST_F(BusyBrowser, ClosedMeanwhileItReturnsWithNothingLeftBehind) {
  for (const int step : {1, 2, 3, 4, 5, 6}) {
    acting.skipped = step - 1;
    acting.act = [&] { dialog->CloseWindow(); };
    dialog = std::make_unique<BrowserDialog>(busy, nullptr);
    dialog->Open();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(busy.windows.browser, nullptr);
    EXPECT_FALSE(test.pointer.waiting);
    EXPECT_EQ(List()->model()->rowCount(), 0);
  }
}

TEST_F(BusyBrowser, ClosedMeanwhileTheModalWindowReturnsToo) {
  acting.act = [&] { busy.windows.browser->CloseWindow(); };
  ShowBrowserDialog(busy, nullptr);
  EXPECT_EQ(busy.windows.browser, nullptr);
}

TEST_F(BusyBrowser, SwitchedAtAnyMomentItShowsTheDaysOfOneUserOnly) {
  for (const int step : {1, 2, 3, 4, 5, 6}) {
    SetCurrentUser(busy, "Anna");
    acting.skipped = step - 1;
    acting.act = [&] { ClickUser("Bert"); };
    dialog = std::make_unique<BrowserDialog>(busy, nullptr);
    dialog->Open();
    EXPECT_EQ(Column(2), "only.kvf") << step;
    EXPECT_EQ(busy.paths.UserName, "Bert");
    EXPECT_TRUE(OpenIsEnabled());
    EXPECT_FALSE(test.pointer.waiting);
  }
}

TEST_F(BrowserDays, AHigherListScrollsLess) {
  AddJanuary();
  OpenAsAnna();
  const int scrolled = List()->verticalScrollBar()->maximum();
  EXPECT_GT(scrolled, 0);
  dialog->resize(dialog->width(), 2000);
  QApplication::processEvents();
  EXPECT_EQ(List()->verticalScrollBar()->maximum(), 0);
}

// A range for each of thousands of rows would be slow.
TEST_F(BrowserDays, RowsThatAreSortedTogetherStaySelectedInOnePiece) {
  OpenAsAnna();
  QTest::keyClick(List(), Qt::Key_A, Qt::ControlModifier);
  ClickHeadingOf(5);
  EXPECT_EQ(SelectedRows(), "0 1");
  EXPECT_EQ(List()->selectionModel()->selection().size(), 1);
}

}  // namespace
}  // namespace kelvora
