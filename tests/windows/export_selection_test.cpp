// How days are marked in the export dialog, by mouse and by key.
#include "windows/export_window.h"

namespace kelvora {
namespace {

class ExportSelection : public ExportWindow {
 protected:
  ExportSelection() { AddDays(6); }
  void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) { QTest::keyClick(List(), key, held); }
};

TEST_F(ExportSelection, TheTwoOptionsSelectAllOrNoneAndGiveTheFocusBack) {
  Open();
  for (const auto& [option, selected] :
       {std::pair{"opt_seletie_1", ""}, std::pair{"opt_seletie_0", "0 1 2 3 4 5"},
        std::pair{"opt_seletie_1", ""}}) {
    Find<QWidget>("cmd_annuleer")->setFocus();
    Click(option);
    EXPECT_EQ(Selected(), selected);
    EXPECT_TRUE(List()->hasFocus());
    EXPECT_TRUE(Ticked(option));
  }
}

TEST_F(ExportSelection, AClickInTheListIsAnOwnSelection) {
  Open();
  Click("opt_seletie_0");
  ClickRow(2);
  EXPECT_TRUE(Ticked("opt_seletie_1"));
  EXPECT_EQ(Selected(), "2");
  ClickRow(4, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), "2 3 4");
  ClickRow(3, Qt::ControlModifier);
  EXPECT_EQ(Selected(), "2 4");
}

// The option moves by itself; the rows stay as they are until the click changes them.
TEST_F(ExportSelection, AClickThatChangesNoRowLeavesThemAllSelected) {
  Open();
  Click("opt_seletie_0");
  QTest::mouseClick(List()->viewport(), Qt::RightButton, {}, QPoint(50, 30));
  EXPECT_TRUE(Ticked("opt_seletie_1"));
  EXPECT_EQ(Selected(), "0 1 2 3 4 5");
}

TEST_F(ExportSelection, ControlASelectsAllRowsAndLeavesTheOption) {
  Open();
  ClickRow(2);
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Selected(), "0 1 2 3 4 5");
  EXPECT_TRUE(Ticked("opt_seletie_1"));
}

TEST_F(ExportSelection, TheOtherChoicesGiveTheFocusBackAndSelectNothing) {
  Open();
  ClickRow(3);
  for (const char* choice :
       {"opt_soort_1", "opt_soort_2", "opt_soort_0", "chk_grafieken", "chk_notities"}) {
    Find<QWidget>("cmd_annuleer")->setFocus();
    Click(choice);
    EXPECT_TRUE(List()->hasFocus()) << choice;
    EXPECT_EQ(Selected(), "3") << choice;
  }
}

// With all rows selected the first key takes the row in focus, which is the newest day.
TEST_F(ExportSelection, TheArrowsMoveAndShiftExtends) {
  Open();
  Click("opt_seletie_0");
  Press(Qt::Key_Down);
  EXPECT_EQ(Selected(), "0");
  EXPECT_TRUE(Ticked("opt_seletie_1"));
  Press(Qt::Key_Down);
  EXPECT_EQ(Selected(), "1");
  Press(Qt::Key_Down, Qt::ShiftModifier);
  Press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), "1 2 3");
  Press(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), "1 2");
  Press(Qt::Key_Down);
  EXPECT_EQ(Selected(), "3");
  Click("opt_seletie_1");
  EXPECT_EQ(Selected(), "");
  Press(Qt::Key_Up);
  EXPECT_EQ(Selected(), "3");
}

TEST_F(ExportSelection, ControlAndSpaceTakeRowsInAndOut) {
  Open();
  Press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(Selected(), "1 2 3 4 5");
  Press(Qt::Key_Down, Qt::ControlModifier);
  Press(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(Selected(), "1 2 3 4 5");
  Press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(Selected(), "1 3 4 5");
  Click("opt_seletie_1");
  Press(Qt::Key_Space);
  EXPECT_EQ(Selected(), "2");
}

TEST_F(ExportSelection, HomeAndEndLeadToTheFirstAndTheLastDay) {
  Open();
  Press(Qt::Key_End);
  EXPECT_EQ(Selected(), "5");
  Press(Qt::Key_Home);
  EXPECT_EQ(Selected(), "0");
  ClickRow(3);
  Press(Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), "3 4 5");
  Press(Qt::Key_Home, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), "0 1 2 3");
}

TEST_F(ExportSelection, AnArrowInAListWithoutDaysDoesNothing) {
  std::filesystem::remove_all(program.paths.FilesPath);
  Open();
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End, Qt::Key_Space}) {
    Press(key);
    Press(key, Qt::ShiftModifier);
  }
  Press(Qt::Key_A, Qt::ControlModifier);
  ClickRow(0);
  EXPECT_EQ(Selected(), "");
  EXPECT_TRUE(test.boxes.shown.empty());
}

// Of options Tab reaches the chosen one, in either direction, and the arrows lead on from there.
TEST_F(ExportSelection, TabReachesEveryControlInReadingOrder) {
  Open();
  const auto walk = [](Qt::Key key) {
    QStringList reached;
    for (int i = 0; i < 8; ++i) {
      reached << QApplication::focusWidget()->objectName();
      QTest::keyClick(QApplication::focusWidget(), key);
    }
    return reached.join(QLatin1Char(' ')).toStdString();
  };
  EXPECT_EQ(walk(Qt::Key_Backtab),
            "LV_user_files chk_close chk_notities chk_grafieken opt_seletie_1 opt_soort_0 "
            "cmd_annuleer cmd_export");
  EXPECT_EQ(walk(Qt::Key_Tab),
            "LV_user_files cmd_export cmd_annuleer opt_soort_0 opt_seletie_1 chk_grafieken "
            "chk_notities chk_close");
  Click("opt_seletie_0");
  Click("opt_soort_1");
  EXPECT_EQ(walk(Qt::Key_Tab),
            "LV_user_files cmd_export cmd_annuleer opt_soort_1 opt_seletie_0 chk_grafieken "
            "chk_notities chk_close");
}

TEST_F(ExportSelection, TheArrowsChooseAmongOptionsOneAfterTheOther) {
  Open();
  Find<QWidget>("opt_soort_0")->setFocus();
  for (const char* next : {"opt_soort_2", "opt_soort_1"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(Ticked(next));
    EXPECT_EQ(QApplication::focusWidget()->objectName(), next);
  }
  Find<QWidget>("opt_seletie_1")->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
  EXPECT_TRUE(Ticked("opt_seletie_0"));
  EXPECT_EQ(Selected(), "0 1 2 3 4 5");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(Selected(), "");
}

TEST_F(ExportSelection, OfEverySecondOfManyDaysIsReadRowByRow) {
  std::vector<ExportRow> rows(7300);
  ExportTable table(program, nullptr);
  table.ShowDays(std::move(rows));
  table.selectAll();
  EXPECT_EQ(table.SelectedRows().size(), 7300u);
  QItemSelection every_second;
  for (int row = 0; row < 7300; row += 2) {
    every_second.append(
        QItemSelectionRange(table.model()->index(row, 0), table.model()->index(row, 5)));
  }
  table.selectionModel()->select(every_second, QItemSelectionModel::ClearAndSelect);
  const std::vector<std::size_t> selected = table.SelectedRows();
  ASSERT_EQ(selected.size(), 3650u);
  EXPECT_EQ(selected[0], 0u);
  EXPECT_EQ(selected[3649], 7298u);
}

}  // namespace
}  // namespace kelvora
