// The window of several days as a user meets it: in the main window, by names, clicks and keys.
#include "analysis/multi_day_window.h"

#include <filesystem>
#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include "core/frame/arrangement.h"
#include "core/frame/main_window.h"
#include "language/built_in_texts.h"
#include "language/choose_language.h"
#include "nutrition/totals.h"
#include "storage/day_file.h"
#include "windows/find_in.h"
#include "windows/written_days.h"

namespace kelvora {
namespace {

class SeveralDaysInTheProgram : public testing::Test {
 protected:
  SeveralDaysInTheProgram() {
    for (std::size_t i = 0; i < 7; ++i) {
      program.profile.strings[static_cast<std::size_t>(ProfileField::txt_kj) + i] = "1000";
    }
    window.resize(1024, 748);
    window.Set_Taal();
    window.show();
    SetCurrentUser(program, "Anna");
    WriteDays(program, 3);
    ComputeDefaultGeometry(program);
    window.UpdateCommands();
  }
  void Begin() { window.OpenWindow(WindowId::multi_day); }
  void Finish() {
    const auto done = [this] { return Window().windowTitle() == program_title; };
    ASSERT_TRUE(QTest::qWaitFor(done));
    QApplication::processEvents();
  }
  void Open() {
    Begin();
    Finish();
  }
  QWidget& Window() { return *FindIn<QWidget>(window, QStringLiteral("KV_tb_meerdaags")); }
  QMdiSubWindow* Frame() {
    return window.findChild<QMdiSubWindow*>(QStringLiteral("KV_tb_meerdaags_frame"));
  }
  template <class Kind>
  Kind* Find(const char* name) {
    return FindIn<Kind>(Window(), QLatin1String(name));
  }
  QToolButton* Button(int index) {
    return FindIn<QToolButton>(Window(), QStringLiteral("Toolbar_%1").arg(index));
  }
  void Press(int index) {
    QTest::mouseClick(Button(index), Qt::LeftButton, {}, QPoint(8, 8));
    QApplication::processEvents();
  }
  QString Label(const char* name) { return Find<QLabel>(name)->text(); }
  QTableView* List() { return Find<QTableView>("LV_uittreksel"); }
  QString Cell(int row, SummaryColumn column) {
    return List()->model()->index(row, static_cast<int>(column)).data().toString();
  }
  QString Shown() {
    for (const char* panel : {"Pic_grafiekbox", "Pic_Behoefte", "Pic_top5", "Pic_uittreksel"}) {
      if (Find<QWidget>(panel)->isVisible()) return QLatin1String(panel);
    }
    return {};
  }
  int EnabledEntries(int button) {
    int enabled = 0;
    for (const QAction* entry : Button(button)->menu()->actions()) {
      enabled += entry->isEnabled() && !entry->isSeparator() ? 1 : 0;
    }
    return enabled;
  }
  QString Chart() { return Find<QWidget>("Pic_Grafiek")->accessibleDescription(); }
  QImage ChartPicture() { return Find<QWidget>("Pic_Grafiek")->grab().toImage(); }

  QString program_title = QStringLiteral("Trend");
  TestProgram test;
  Program& program = test.program;
  MainWindow window{test.program};
};

TEST_F(SeveralDaysInTheProgram, OpenAndCloseByTheirButtonWhichStaysDownMeanwhile) {
  auto* const button = FindIn<QToolButton>(window, QStringLiteral("menu_toolbar_14"));
  ASSERT_TRUE(button->isEnabled());
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_NE(program.windows.multi_day, nullptr);
  EXPECT_TRUE(button->isChecked());
  EXPECT_TRUE(FindIn<QAction>(window, QStringLiteral("mnu_uit_meerdaagsuittreksel"))->isChecked());
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(program.windows.multi_day, nullptr);
  EXPECT_FALSE(button->isChecked());
}

TEST_F(SeveralDaysInTheProgram, AreReadOnceTheWindowShows) {
  Begin();
  EXPECT_TRUE(Window().isVisible());
  EXPECT_EQ(Window().windowTitle(), "Reading data ...");
  EXPECT_EQ(Label("StatusBar_3"), "Reading data ...");
  EXPECT_TRUE(Find<QProgressBar>("ProgressBar")->isVisible());
  EXPECT_EQ(List()->model()->rowCount(), 0);
  EXPECT_EQ(Label("Pic_nt_0"), "");
  EXPECT_EQ(Shown(), "Pic_grafiekbox");
  Finish();
  EXPECT_EQ(Label("StatusBar_1"), "Trend line");
  EXPECT_EQ(Label("StatusBar_2"), "Trend line of Anna");
  EXPECT_EQ(Label("StatusBar_3"), "");
  EXPECT_FALSE(Find<QProgressBar>("ProgressBar")->isVisible());
  EXPECT_FALSE(test.pointer.waiting);
  EXPECT_EQ(Chart(), "01-03-04 - 03-03-04");
}

TEST_F(SeveralDaysInTheProgram, ShowOnePanelAtATime) {
  Open();
  for (const int index : {1, 2, 3}) EXPECT_EQ(EnabledEntries(index), 0);
  EXPECT_TRUE(Button(1)->isChecked());
  const std::array<const char*, 4> panels = {"Pic_grafiekbox", "Pic_Behoefte", "Pic_top5",
                                             "Pic_uittreksel"};
  for (const int index : {4, 3, 2, 1}) {
    Press(index);
    EXPECT_EQ(Shown(), panels[static_cast<std::size_t>(index - 1)]);
    for (int other = 1; other <= 4; ++other) {
      EXPECT_EQ(Button(other)->isChecked(), other == index);
    }
    EXPECT_EQ(EnabledEntries(1), index == 1 ? 2 : 0);
    EXPECT_EQ(EnabledEntries(2), index == 2 ? 9 : 0);
    EXPECT_EQ(EnabledEntries(3), index == 3 ? 7 : 0);
  }
}

TEST_F(SeveralDaysInTheProgram, SetTheirAverageAgainstTheRequirements) {
  Open();
  Press(2);
  // 1000, 2000 and 3000 kilojoules; 239 a day in kilocalories.
  EXPECT_EQ(Label("Pic_gt_0"), "Used:2000 Kj, 200%");
  EXPECT_EQ(Label("Pic_gt_1"), "Used:478 Kcal, 47.8%");
  EXPECT_EQ(Label("Pic_nt_1"), "Recommended:1000 kcal, 100%");
  const auto entries = Button(2)->menu()->actions();
  entries[8]->trigger();
  EXPECT_EQ(Label("Pic_nt_0"), "Recommended:8800 Kj, 100%");
  EXPECT_TRUE(entries[8]->isChecked());
  EXPECT_EQ(Label("StatusBar_2"), "Recommended nutrition's  with changed nutrition");
}

TEST_F(SeveralDaysInTheProgram, ListTheirFoods) {
  Open();
  Press(4);
  EXPECT_EQ(List()->model()->rowCount(), 7);
  EXPECT_EQ(Cell(6, SummaryColumn::food), "7");
  EXPECT_EQ(Cell(6, SummaryColumn::count), "3");
  EXPECT_EQ(Cell(6, SummaryColumn::kj), "2100");
  EXPECT_EQ(Label("StatusBar_2"), "Food items: 7");
  QHeaderView* const header = List()->horizontalHeader();
  const int x = header->sectionViewportPosition(static_cast<int>(SummaryColumn::food)) + 5;
  QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(x, header->height() / 2));
  EXPECT_EQ(Cell(0, SummaryColumn::food), "7");
}

TEST_F(SeveralDaysInTheProgram, ShowNumbersOfManyDaysWhole) {
  for (const char* name : {"10", "11", "12"}) {
    Rec_DayFile record;
    record[DayFileField::Header] = Packed("Anna~~~~~~~~~") + name + Packed("-03-04~");
    for (int i = 0; i < 400; ++i) {
      record[DayFileField::Morning] += LineOf({.product = "Bread",
                                               .gram = "35",
                                               .kj = "343",
                                               .kcal = "82",
                                               .protein = "13",
                                               .sodium = "1.25"}) +
                                       kLineEnd;
    }
    WriteRecord(program.paths.FilesPath + name + "032004210000.kvf", record);
  }
  program.windows.geometry.multi_day = {9200, 5500, 60, 60};
  Open();
  Press(4);
  EXPECT_EQ(Cell(7, SummaryColumn::kj), "411600");
  EXPECT_EQ(Cell(7, SummaryColumn::sodium), "1500.000");
  int right = 0;
  for (int column = 1; column < 12; ++column) {
    const QModelIndex cell = List()->model()->index(7, column);
    EXPECT_GE(List()->columnWidth(column), List()->sizeHintForIndex(cell).width()) << column;
    right = List()->columnViewportPosition(column) + List()->columnWidth(column);
  }
  EXPECT_LE(right, List()->viewport()->width());
}

TEST_F(SeveralDaysInTheProgram, ShowTheFiveLargestOfTheNutrientFromTheMenu) {
  Open();
  Press(3);
  EXPECT_EQ(Label("lbl_soort"), "Pie chart for: (Energy, Kj)");
  EXPECT_TRUE(Label("lbl_piename_0").startsWith("7\n["));
  EXPECT_TRUE(Label("lbl_piename_5").startsWith("Remaining consumptions\n["));
  Button(3)->menu()->actions()[5]->trigger();
  EXPECT_EQ(program.analysis.gekozen_stof, 5);
  EXPECT_EQ(Label("lbl_soort"), "Pie chart for: (Sodium)");
  EXPECT_EQ(Label("StatusBar_2"), "Top 5 diagram for sodium");
}

TEST_F(SeveralDaysInTheProgram, DrawTheChartPerFileAndPerDate) {
  std::filesystem::rename(program.paths.FilesPath + "03032004210000.kvf",
                          program.paths.FilesPath + "03032004210000.old");
  // The first and the second of March; the third day is the thirteenth.
  WriteDays(program, 13);
  for (const char* name : {"03", "04", "05", "06", "07", "08", "09", "10", "11", "12"}) {
    std::filesystem::remove(program.paths.FilesPath + name + "032004210000.kvf");
  }
  Open();
  Press(1);
  const QImage per_file = ChartPicture();
  Button(1)->menu()->actions()[1]->trigger();
  QApplication::processEvents();
  EXPECT_TRUE(Button(1)->menu()->actions()[1]->isChecked());
  EXPECT_FALSE(Button(1)->menu()->actions()[0]->isChecked());
  EXPECT_NE(ChartPicture(), per_file);
  Button(1)->menu()->actions()[0]->trigger();
  QApplication::processEvents();
  EXPECT_EQ(ChartPicture(), per_file);
}

TEST_F(SeveralDaysInTheProgram, AreUsedByTheKeyboardAlone) {
  Open();
  Button(1)->setFocus();
  QTest::keyClick(Button(1), Qt::Key_Space);
  bool opened = false;
  QTimer::singleShot(0, [&] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    opened = true;
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
  });
  QTest::keyClick(Button(1), Qt::Key_Down);
  EXPECT_TRUE(opened);
  EXPECT_TRUE(Button(1)->menu()->actions()[1]->isChecked());
  for (const int index : {1, 2, 3, 4}) {
    EXPECT_EQ(Button(index)->focusPolicy(), index == 1 ? Qt::TabFocus : Qt::NoFocus);
  }
}

TEST_F(SeveralDaysInTheProgram, AreHeldToTheirLimits) {
  program.windows.geometry.multi_day = {5000, 1000, 60, 60};
  Open();
  // 9200 and 5500 twips; a part of a pixel more at the most.
  EXPECT_EQ(Frame()->size(), QSize(614, 367));
  Frame()->resize(2000, 2000);
  EXPECT_EQ(Frame()->size(), QSize(760, 793));
  Frame()->close();
  EXPECT_EQ(program.windows.geometry.multi_day.width, 11400);
}

TEST_F(SeveralDaysInTheProgram, LayTheirStatusBarByTheWidthOfTheWindow) {
  Open();
  // 1500 and 2300 twips, and the rest but the progress bar.
  EXPECT_EQ(Find<QLabel>("StatusBar_1")->geometry().width(), 100);
  EXPECT_EQ(Find<QLabel>("StatusBar_2")->geometry().width(), 153);
  EXPECT_EQ(Find<QLabel>("StatusBar_3")->geometry().left(), 253);
}

TEST_F(SeveralDaysInTheProgram, CloseWithTheDay) {
  Open();
  test.OpenDay("Anna");
  CloseDay(program);
  EXPECT_EQ(program.windows.multi_day, nullptr);
}

TEST_F(SeveralDaysInTheProgram, CloseAtAnyMomentOfTheWork) {
  for (int slices = 0; slices < 4; ++slices) {
    Begin();
    for (int i = 0; i < slices; ++i) QApplication::processEvents();
    program.windows.multi_day->CloseWindow();
    EXPECT_EQ(program.windows.multi_day, nullptr);
    EXPECT_FALSE(test.pointer.waiting);
    QTest::qWait(1);
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(SeveralDaysInTheProgram, OpenAgainWhileTheClosedWindowStillLives) {
  Begin();
  program.windows.multi_day->CloseWindow();
  program.windows.geometry.multi_day.width = 10000;
  Begin();
  EXPECT_NE(program.windows.multi_day, nullptr);
  QTest::qWait(20);
  Finish();
  EXPECT_EQ(Chart(), "01-03-04 - 03-03-04");
}

TEST_F(SeveralDaysInTheProgram, AnswerWhileTheyAreRead) {
  Begin();
  Press(4);
  EXPECT_EQ(Shown(), "Pic_uittreksel");
  Frame()->resize(700, 500);
  program.windows.multi_day->Set_Taal();
  program.windows.multi_day->Refresh_Meerdaagsuittreksel();
  Finish();
  EXPECT_EQ(List()->model()->rowCount(), 7);
}

TEST_F(SeveralDaysInTheProgram, TellOfTooFewAfterTheWindowShows) {
  for (const char* name : {"02", "03"}) {
    std::filesystem::remove(program.paths.FilesPath + name + "032004210000.kvf");
  }
  Begin();
  EXPECT_TRUE(test.boxes.shown.empty());
  Finish();
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.starts_with("There are not enough days"));
  for (const int index : {1, 2, 3, 4}) {
    Press(index);
    Window().grab();
  }
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  // No bar and no word beside the names.
  EXPECT_FALSE(Find<QWidget>("pic_n_0")->isVisibleTo(&Window()));
  EXPECT_NE(program.windows.multi_day, nullptr);
}

// A box may stand open while the window is closed behind it.
struct ClosingBoxes : Boxes {
  Program* program = nullptr;
  int shown = 0;
  BoxAnswer Show(const Box&) override {
    ++shown;
    program->windows.multi_day->CloseWindow();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return BoxAnswer::ok;
  }
};
TEST(SeveralDaysBehindABox, MayBeClosedMeanwhile) {
  TestProgram test;
  ClosingBoxes boxes;
  Platform platform{boxes,         test.pointer,  test.locale,         test.folders,
                    test.clock,    test.screen,   test.events,         test.opener,
                    test.printers, test.printing, test.folder_chooser, test.transfers};
  Program program(platform);
  boxes.program = &program;
  Make_Taal_English(program.texts);
  DetermineFolders(program);
  SetCurrentUser(program, "Anna");
  WriteDays(program, 1);
  MainWindow window(program);
  window.show();
  window.OpenWindow(WindowId::multi_day);
  ASSERT_TRUE(QTest::qWaitFor([&] { return boxes.shown > 0; }));
  QTest::qWait(5);
  EXPECT_EQ(program.windows.multi_day, nullptr);
  EXPECT_EQ(boxes.shown, 1);
}

TEST_F(SeveralDaysInTheProgram, FollowTheProfileAndTheSettings) {
  Open();
  Press(2);
  Button(2)->menu()->actions()[8]->trigger();
  program.profile[ProfileField::txt_kj] = "4000";
  program.settings[Setting::opt_gramoz] = "1";
  FollowSettings(program);
  EXPECT_EQ(Label("Pic_nt_0"), "Recommended:4000 Kj, 100%");
  EXPECT_TRUE(Button(2)->menu()->actions()[10]->isChecked());
}

TEST_F(SeveralDaysInTheProgram, FollowTheLanguage) {
  Open();
  Make_Taal_Dutch(program.texts);
  program.windows.multi_day->Set_Taal();
  EXPECT_EQ(Button(1)->text(), "Trendlijn");
  EXPECT_EQ(Label("StatusBar_2"), "Trendlijn van Anna");
  EXPECT_EQ(Label("Pic_nt_1"), "Aanbevolen:1000 kcal, 100%");
  Press(4);
  EXPECT_EQ(List()->model()->headerData(11, Qt::Horizontal).toString(), "Koolh.");
}

TEST_F(SeveralDaysInTheProgram, KeepALongNameOfAUserWithinTheStatusBar) {
  SetCurrentUser(program, Text(200, 'w'));
  WriteDays(program, 2);
  Begin();
  EXPECT_GE(Find<QLabel>("StatusBar_3")->width(), Find<QLabel>("StatusBar_3")->sizeHint().width());
  Finish();
  EXPECT_LE(Find<QLabel>("StatusBar_2")->geometry().right(), Window().width());
}

}  // namespace
}  // namespace kelvora
