// The day summary as a user meets it: in the main window, by names, clicks, keys and drops.
#include "analysis/day_summary_window.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTest>

#include "core/frame/arrangement.h"
#include "core/frame/main_window.h"
#include "food/consumption.h"
#include "language/built_in_texts.h"
#include "nutrition/totals.h"
#include "platform/qt/text.h"
#include "storage/day_file.h"
#include "support/test_program.h"
#include "windows/find_in.h"

namespace kelvora {
namespace {

constexpr FoodLine kBread{.product = "Bread", .unit = "1 slice", .gram = "35", .kcal = "82"};
constexpr FoodLine kApple{.product = "Apple", .gram = "150", .kj = "330", .kcal = "78"};

class DaySummaryInTheProgram : public testing::Test {
 protected:
  DaySummaryInTheProgram() {
    program.profile[ProfileField::type_prioriteit] = "1";
    for (std::size_t i = 0; i < 7; ++i) {
      program.profile.strings[static_cast<std::size_t>(ProfileField::txt_kj) + i] = "1000";
    }
    window.resize(1024, 748);
    window.Set_Taal();
    window.show();
    test.OpenDay("Anna");
    program.store.L_gegevens.Replace(HeaderRow::kAge, "40");
    ComputeDefaultGeometry(program);
    window.UpdateCommands();
  }
  void Open() {
    window.OpenWindow(WindowId::day_summary);
    QApplication::processEvents();
  }
  QMdiSubWindow* Frame() {
    return window.findChild<QMdiSubWindow*>(QStringLiteral("KV_tb_daguittreksel_frame"));
  }
  QWidget& Summary() { return *FindIn<QWidget>(window, QStringLiteral("KV_tb_daguittreksel")); }
  template <class Kind>
  Kind* Find(const char* name) {
    return FindIn<Kind>(Summary(), QLatin1String(name));
  }
  QToolButton* Button(int index) {
    return FindIn<QToolButton>(Summary(), QStringLiteral("Toolbar_%1").arg(index));
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
    for (const char* panel : {"Pic_Behoefte", "Pic_top5", "Pic_uittreksel", "Pic_BMI"}) {
      if (Find<QWidget>(panel)->isVisible()) return QLatin1String(panel);
    }
    return {};
  }
  QStringList EnabledEntries(int button) {
    QStringList enabled;
    for (const QAction* entry : Button(button)->menu()->actions()) {
      if (entry->isEnabled() && !entry->isSeparator()) enabled << entry->text();
    }
    return enabled;
  }

  TestProgram test;
  Program& program = test.program;
  MainWindow window{test.program};
};

TEST_F(DaySummaryInTheProgram, OpensAndClosesByItsButtonWhichStaysDownMeanwhile) {
  auto* const button = FindIn<QToolButton>(window, QStringLiteral("menu_toolbar_13"));
  ASSERT_TRUE(button->isEnabled());
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_NE(program.windows.day_summary, nullptr);
  EXPECT_TRUE(button->isChecked());
  EXPECT_EQ(Frame()->windowTitle(), "Summary of Friday 05-03-04");
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(program.windows.day_summary, nullptr);
  EXPECT_FALSE(button->isChecked());
}

TEST_F(DaySummaryInTheProgram, ClosesWithTheDay) {
  Open();
  CloseDay(program);
  EXPECT_EQ(program.windows.day_summary, nullptr);
}

TEST_F(DaySummaryInTheProgram, OpensOnTheRequirementsWithItsMenusDisabled) {
  Open();
  EXPECT_EQ(Shown(), "Pic_Behoefte");
  EXPECT_TRUE(Button(1)->isChecked());
  EXPECT_EQ(Label("StatusBar_1"), "Rec. nutrition");
  EXPECT_EQ(Label("StatusBar_2"), "Recommended nutrition's  with changed nutrition");
  EXPECT_EQ(Button(1)->menu()->actions().size(), 11);
  EXPECT_EQ(Button(2)->menu()->actions().size(), 7);
  EXPECT_TRUE(EnabledEntries(1).isEmpty());
  EXPECT_TRUE(EnabledEntries(2).isEmpty());
  EXPECT_EQ(Label("Pic_nt_0"), "Recommended:1000 Kj, 100%");
  EXPECT_EQ(Label("Pic_gt_0"), "Used: Kj, 0%");
}

TEST_F(DaySummaryInTheProgram, ShowsOnePanelAtATime) {
  Open();
  const std::array<const char*, 4> panels = {"Pic_Behoefte", "Pic_top5", "Pic_uittreksel",
                                             "Pic_BMI"};
  for (const int index : {4, 3, 2, 1}) {
    Press(index);
    EXPECT_EQ(Shown(), panels[static_cast<std::size_t>(index - 1)]);
    for (int other = 1; other <= 4; ++other) {
      EXPECT_EQ(Button(other)->isChecked(), other == index);
    }
    EXPECT_EQ(EnabledEntries(1).size(), index == 1 ? 9 : 0);
    EXPECT_EQ(EnabledEntries(2).size(), index == 2 ? 7 : 0);
  }
}

TEST_F(DaySummaryInTheProgram, TakesAnAgeFromItsMenuAndMarksIt) {
  Open();
  Press(1);
  const auto entries = Button(1)->menu()->actions();
  EXPECT_TRUE(entries[0]->isChecked());
  EXPECT_TRUE(entries[10]->isChecked());
  entries[1]->trigger();
  entries[4]->trigger();
  EXPECT_EQ(Label("Pic_nt_0"), "Recommended:10300 Kj, 100%");
  EXPECT_FALSE(entries[0]->isChecked());
  EXPECT_TRUE(entries[1]->isChecked());
  EXPECT_TRUE(entries[4]->isChecked());
  EXPECT_FALSE(entries[10]->isChecked());
  EXPECT_EQ(Label("StatusBar_2"), "Recommended nutrition's  with changed nutrition");
  // Choosing what holds already leaves its mark.
  entries[4]->trigger();
  EXPECT_TRUE(entries[4]->isChecked());
  Press(1);
  EXPECT_EQ(Label("StatusBar_2"), "Recommended nutrition's for woman between 16 - 19");
}

TEST_F(DaySummaryInTheProgram, TakesANutrientFromItsMenu) {
  Open();
  Press(2);
  const auto entries = Button(2)->menu()->actions();
  EXPECT_TRUE(entries[1]->isChecked());
  entries[5]->trigger();
  EXPECT_EQ(program.analysis.gekozen_stof, 5);
  EXPECT_EQ(Label("lbl_soort"), "Pie chart for: (Sodium)");
  EXPECT_EQ(Label("StatusBar_2"), "Top 5 diagram for sodium");
}

TEST_F(DaySummaryInTheProgram, IsUsedByTheKeyboardAlone) {
  Open();
  Button(2)->setFocus();
  QTest::keyClick(Button(2), Qt::Key_Space);
  EXPECT_EQ(Shown(), "Pic_top5");
  bool opened = false;
  QTimer::singleShot(0, [&] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    opened = true;
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
  });
  QTest::keyClick(Button(2), Qt::Key_Down);
  EXPECT_TRUE(opened);
  EXPECT_EQ(program.analysis.gekozen_stof, 0);
  // The toolbar is one stop of the Tab key, at the button that was used last.
  for (const int index : {1, 2, 3, 4}) {
    EXPECT_EQ(Button(index)->focusPolicy(), index == 2 ? Qt::TabFocus : Qt::NoFocus);
  }
  EXPECT_TRUE(Find<QToolButton>("Pic_rescale")->focusPolicy() & Qt::TabFocus);
}

TEST_F(DaySummaryInTheProgram, ListsTheMergedConsumptions) {
  program.store.L_ochtend.Add(LineOf(kBread));
  program.store.L_avond.Add(LineOf(kBread));
  program.store.L_middag.Add(LineOf(kApple));
  Open();
  Press(3);
  EXPECT_EQ(List()->model()->rowCount(), 2);
  EXPECT_EQ(List()->model()->columnCount(), 12);
  EXPECT_TRUE(List()->isColumnHidden(0));
  EXPECT_EQ(Cell(0, SummaryColumn::food), "Bread");
  EXPECT_EQ(Cell(0, SummaryColumn::count), "2");
  EXPECT_EQ(Label("StatusBar_2"), "Food items: 2");
}

TEST_F(DaySummaryInTheProgram, OfAnEmptyDayListsNothingUnderTwelveHeadings) {
  Open();
  Press(3);
  EXPECT_EQ(List()->model()->rowCount(), 0);
  EXPECT_EQ(List()->model()->columnCount(), 12);
}

TEST_F(DaySummaryInTheProgram, SortsByAClickOnAHeadingAndKeepsTheSelection) {
  program.store.L_ochtend.Add(LineOf(kBread));
  program.store.L_ochtend.Add(LineOf(kApple));
  Open();
  Press(3);
  List()->selectRow(0);
  const auto click = [this](SummaryColumn column) {
    QHeaderView* const header = List()->horizontalHeader();
    const int x = header->sectionViewportPosition(static_cast<int>(column)) + 5;
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(x, header->height() / 2));
  };
  click(SummaryColumn::kcal);
  EXPECT_EQ(Cell(0, SummaryColumn::food), "Apple");
  EXPECT_EQ(List()->horizontalHeader()->sortIndicatorSection(), 6);
  EXPECT_EQ(List()->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
  ASSERT_EQ(List()->selectionModel()->selectedRows().size(), 1);
  EXPECT_EQ(List()->selectionModel()->selectedRows()[0].row(), 1);
  click(SummaryColumn::food);
  EXPECT_EQ(Cell(0, SummaryColumn::food), "Bread");
  EXPECT_EQ(List()->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
}

TEST_F(DaySummaryInTheProgram, ShowsAllColumnsAndWholeHeadingsInItsNarrowestSize) {
  for (void (*make)(TextTables&) : {&Make_Taal_English, &Make_Taal_Dutch}) {
    make(program.texts);
    Open();
    program.windows.day_summary->Set_Taal();
    Frame()->resize(10, 10);
    Press(3);
    const QHeaderView& header = *List()->horizontalHeader();
    int right = 0;
    for (int i = 1; i < 12; ++i) {
      const QString heading = List()->model()->headerData(i, Qt::Horizontal).toString().trimmed();
      EXPECT_GT(header.sectionSize(i), header.fontMetrics().horizontalAdvance(heading))
          << heading.toStdString();
      right = header.sectionViewportPosition(i) + header.sectionSize(i);
    }
    EXPECT_LE(right, List()->viewport()->width());
    program.windows.day_summary->CloseWindow();
    QTest::qWait(1);
  }
}

TEST_F(DaySummaryInTheProgram, IsHeldToItsLimits) {
  program.windows.geometry.day_summary = {5000, 1000, 60, 60};
  Open();
  // 8500 and 4400 twips; a part of a pixel more at the most.
  EXPECT_EQ(Frame()->width(), 567);
  EXPECT_EQ(Frame()->height(), 294);
  Frame()->resize(2000, 2000);
  EXPECT_EQ(Frame()->size(), QSize(760, 793));
}

TEST_F(DaySummaryInTheProgram, KeepsItsRecordOverClosing) {
  Open();
  const WindowRecord record = program.windows.geometry.day_summary;
  program.windows.day_summary->CloseWindow();
  EXPECT_EQ(program.windows.geometry.day_summary, record);
}

TEST_F(DaySummaryInTheProgram, BecomesAStripOfBarsAndGrowsBackToItsPlace) {
  Open();
  Frame()->move(60, 100);
  const QRect before = Frame()->geometry();
  QToolButton* const rescale = Find<QToolButton>("Pic_rescale");
  EXPECT_EQ(rescale->toolTip(), "Small window size");
  QTest::mouseClick(rescale, Qt::LeftButton);
  EXPECT_EQ(program.windows.geometry.SummarySmall, 1);
  EXPECT_EQ(Frame()->height(), 160);
  EXPECT_EQ(Frame()->y(), 100 + 133);
  EXPECT_FALSE(Find<QWidget>("Toolbar")->isVisible());
  EXPECT_FALSE(Find<QWidget>("StatusBar")->isVisible());
  EXPECT_EQ(Shown(), "Pic_Behoefte");
  EXPECT_EQ(Find<QWidget>("Pic_Behoefte")->size(), Summary().size());
  EXPECT_EQ(rescale->toolTip(), "Normal window size");
  Frame()->resize(2000, 2000);
  EXPECT_EQ(Frame()->size(), QSize(760, 160));
  QTest::mouseClick(rescale, Qt::LeftButton);
  EXPECT_EQ(program.windows.geometry.SummarySmall, 0);
  EXPECT_EQ(Frame()->y(), before.y());
  EXPECT_EQ(Frame()->height(), 294);
  EXPECT_TRUE(Find<QWidget>("Toolbar")->isVisible());
}

TEST_F(DaySummaryInTheProgram, NeverGrowsBackAboveTheTop) {
  Open();
  QToolButton* const rescale = Find<QToolButton>("Pic_rescale");
  rescale->click();
  Frame()->move(60, 20);
  rescale->click();
  EXPECT_EQ(Frame()->y(), 0);
}

TEST_F(DaySummaryInTheProgram, OpensSmallAgainWhileTheProgramRuns) {
  Open();
  Find<QToolButton>("Pic_rescale")->click();
  program.windows.day_summary->CloseWindow();
  QTest::qWait(1);
  Open();
  EXPECT_EQ(Frame()->height(), 160);
  EXPECT_FALSE(Find<QWidget>("Toolbar")->isVisible());
  // The command takes it to the normal size.
  window.GiveCommand(Command::mnu_uit_daguittreksel);
  EXPECT_EQ(program.windows.geometry.SummarySmall, 0);
  EXPECT_NE(program.windows.day_summary, nullptr);
}

TEST_F(DaySummaryInTheProgram, StandsSmallBelowTheFoodListsInItsArrangement) {
  ShowScreensWithSummary(program);
  QApplication::processEvents();
  EXPECT_EQ(Frame()->height(), 160);
  const WindowRecord& record = program.windows.geometry.day_summary;
  EXPECT_EQ(Frame()->pos(), QPoint(4, record.top / 15));
  EXPECT_EQ(Label("Pic_gt_1"), "Used: Kcal, 0%");
  // A drop is seen at once, in either size.
  DropOnDayPart(program, DayPart::morning, "add-" + LineOf(kApple) + kLineEnd);
  EXPECT_EQ(Label("Pic_gt_1"), "Used:78 Kcal, 7.8%");
  Item_Plus_Een(program, DayPart::morning, "Apple");
  EXPECT_EQ(Label("Pic_gt_1"), "Used:156 Kcal, 15.6%");
  Find<QToolButton>("Pic_rescale")->click();
  Press(3);
  EXPECT_EQ(Cell(0, SummaryColumn::food), "Apple");
  EXPECT_EQ(Cell(0, SummaryColumn::count), "2");
  Item_Plus_Een(program, DayPart::morning, "Apple");
  EXPECT_EQ(Cell(0, SummaryColumn::count), "3");
}

TEST_F(DaySummaryInTheProgram, FollowsADropWithoutAConsumptionWindow) {
  Open();
  DropOnDayPart(program, DayPart::evening, "add-" + LineOf(kBread) + kLineEnd);
  EXPECT_EQ(Label("Pic_gt_1"), "Used:82 Kcal, 8.2%");
}

// The bars of a row take the room that their panel and their texts leave.
TEST_F(DaySummaryInTheProgram, MakesItsBarsAsWideAsTheWindowAllows) {
  DropOnDayPart(program, DayPart::morning, "add-" + LineOf(kApple) + kLineEnd);
  Open();
  auto* const panel = Find<RequirementsPanel>("Pic_Behoefte");
  for (const int width : {567, 760}) {
    Frame()->resize(width, 320);
    QApplication::processEvents();
    const PanelWidths widths = panel->Widths();
    const double room = (widths.panel - 120 - widths.text) / 15.0;
    // 1000 recommended and 78 used kilocalories.
    EXPECT_NEAR(Find<AmountBar>("pic_n_1")->MiddlePixels(), room * 1000 / 1078, 0.1);
    EXPECT_NEAR(Find<AmountBar>("pic_g_1")->MiddlePixels(), room * 78 / 1078, 0.1);
  }
}

TEST_F(DaySummaryInTheProgram, TellsOfARequirementOfZeroAndGoesOn) {
  program.profile[ProfileField::txt_nat] = "0";
  Open();
  ASSERT_FALSE(test.boxes.shown.empty());
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#F9-8"));
  EXPECT_EQ(Label("Pic_nt_3"), "Recommended:1000 Gram, 100%");
  EXPECT_EQ(Label("Pic_nt_4"), "");
  Press(3);
  EXPECT_EQ(Shown(), "Pic_uittreksel");
}

TEST_F(DaySummaryInTheProgram, ShowsLongNamesOfADayOfFiveThousandLines) {
  for (int i = 0; i < 5000; ++i) {
    const Text name = Text(130, 'n') + std::to_string(i % 1500);
    program.store.L_ochtend.Add(LineOf({.product = name, .kcal = "2"}));
  }
  Open();
  for (const int index : {1, 2, 3, 4}) {
    Press(index);
    Summary().grab();
  }
  Press(3);
  EXPECT_EQ(List()->model()->rowCount(), 1500);
  EXPECT_TRUE(test.boxes.shown.empty());
}

// A long day lets events run while it is sorted, and one of them may be the end of the window.
struct ClosingEvents : Events {
  Program* program = nullptr;
  void Yield() override {
    if (program->windows.day_summary == nullptr) return;
    program->windows.day_summary->CloseWindow();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  void End() override {}
};
TEST(DaySummaryOfALongDay, MayBeClosedWhileItIsSorted) {
  TestProgram test;
  ClosingEvents events;
  events.program = &test.program;
  Platform platform{test.boxes,          test.pointer,  test.locale, test.folders,  test.clock,
                    test.screen,         events,        test.opener, test.printers, test.printing,
                    test.folder_chooser, test.transfers};
  Program program(platform);
  events.program = &program;
  Make_Taal_English(program.texts);
  MainWindow window(program);
  window.show();
  program.store.KV_bestand = "day.kvf";
  window.OpenWindow(WindowId::day_summary);
  window.OpenWindow(WindowId::morning);
  QApplication::processEvents();
  TextList long_day;
  for (int i = 0; i < 1100; ++i) long_day.Add(LineOf({.product = "Food " + std::to_string(i)}));
  program.store.L_ochtend = long_day;
  RefreshAfterChange(program, DayPart::morning);
  EXPECT_EQ(program.windows.day_summary, nullptr);
  EXPECT_NE(program.windows.Consumption(DayPart::morning), nullptr);
}

}  // namespace
}  // namespace kelvora
