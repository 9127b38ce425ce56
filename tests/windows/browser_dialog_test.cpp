// The browser of users and days, as a user meets it: through names, keys and clicks.
#include "days/browser_dialog.h"

#include <QTimer>

#include "core/frame/commands.h"
#include "core/frame/main_window.h"
#include "days/day_dialogs.h"
#include "windows/browser_window.h"

namespace kelvora {
namespace {

TEST_F(BrowserWindow, WithoutAUserItListsTheUsersAndNothingElse) {
  Open();
  EXPECT_EQ(program.windows.browser, dialog.get());
  EXPECT_EQ(dialog->windowTitle(), "Open file");
  EXPECT_EQ(Find<QListWidget>("lst_users")->count(), 2);
  EXPECT_EQ(SelectedUser(), "");
  EXPECT_EQ(List()->model()->rowCount(), 0);
  EXPECT_FALSE(OpenIsEnabled());
}

TEST_F(BrowserWindow, ListsTheDaysOfTheCurrentUser) {
  OpenAsAnna();
  EXPECT_EQ(SelectedUser(), "Anna");
  ASSERT_EQ(List()->model()->rowCount(), 2);
  ASSERT_EQ(List()->model()->columnCount(), 8);
  const char* const headings[] = {"#",   "Filenamefull", "Filename", "Date",
                                  "Day", "Weight",       "BMI",      "Kcal"};
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(List()->model()->headerData(i, Qt::Horizontal).toString(), headings[i]);
  }
  EXPECT_EQ(Cell(0, 0), "1");
  EXPECT_EQ(Cell(0, 3), "05-03-04");
  EXPECT_EQ(Cell(1, 3), "06-03-04");
  EXPECT_EQ(Cell(1, 2), "new.kvf");
  EXPECT_TRUE(List()->isColumnHidden(1));
  EXPECT_TRUE(List()->isColumnHidden(2));
  EXPECT_GT(List()->columnWidth(3), 0);
  EXPECT_TRUE(OpenIsEnabled());
  EXPECT_FALSE(List()->selectionModel()->hasSelection());
  EXPECT_EQ(List()->selectionBehavior(), QAbstractItemView::SelectRows);
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(BrowserWindow, TheButtonADoubleClickAndEnterOpenTheDay) {
  for (const int way : {0, 1, 2}) {
    program.store.KV_bestand.clear();
    OpenAsAnna();
    ClickRow(1);
    if (way == 0) QTest::mouseClick(Find<QPushButton>("cmd_openen"), Qt::LeftButton);
    if (way == 1) QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, PlaceOfRow(1));
    if (way == 2) QTest::keyClick(List(), Qt::Key_Return);
    EXPECT_EQ(program.store.KV_bestand, "new.kvf") << way;
    EXPECT_EQ(program.store.L_gegevens[HeaderRow::kDate], "06-03-04");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(program.windows.browser, nullptr);
    EXPECT_FALSE(program.day.FileChanged);
  }
  EXPECT_EQ(test.core.opened.size(), 12u);
}

TEST_F(BrowserWindow, WithNoRowSelectedNothingIsOpened) {
  OpenAsAnna();
  QTest::mouseClick(Find<QPushButton>("cmd_openen"), Qt::LeftButton);
  EXPECT_FALSE(program.store.DayIsOpen());
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(BrowserWindow, AnotherUserShowsAnotherListAndStaysAfterCancel) {
  OpenAsAnna();
  ClickUser("Bert");
  EXPECT_EQ(program.paths.UserName, "Bert");
  ASSERT_EQ(List()->model()->rowCount(), 1);
  EXPECT_EQ(Cell(0, 2), "only.kvf");
  EXPECT_EQ(Find<QLabel>("lbl_profile_of")->text(), "Profile of Bert:");
  EXPECT_EQ(Find<QLabel>("lbl_pr_0")->text(), "REF-Bert");
  EXPECT_TRUE(test.boxes.shown.empty());
  QTest::mouseClick(Find<QPushButton>("cmd_annuleer"), Qt::LeftButton);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(program.windows.browser, nullptr);
  EXPECT_EQ(program.paths.UserName, "Bert");
}

TEST_F(BrowserWindow, ARefusedSwitchSelectsTheCurrentUserAgain) {
  OpenAsAnna();
  test.OpenDay("Anna", "open.kvf");
  test.boxes.answers = {BoxAnswer::no};
  ClickUser("Bert");
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(SelectedUser(), "Anna");
  EXPECT_EQ(List()->model()->rowCount(), 2);
  EXPECT_EQ(program.store.KV_bestand, "open.kvf");
}

TEST_F(BrowserWindow, AUserChosenWhileDaysAreReadHasTheLastWord) {
  ActingEvents acting;
  Platform platform{test.boxes,          test.pointer,  test.locale, test.folders,  test.clock,
                    test.screen,         acting,        test.opener, test.printers, test.printing,
                    test.folder_chooser, test.transfers};
  Program busy(platform);
  Make_Taal_English(busy.texts);
  DetermineFolders(busy);
  SetCurrentUser(busy, "Anna");
  acting.act = [&busy] { SwitchUser(busy, UserNamed("Bert")); };
  dialog = std::make_unique<BrowserDialog>(busy, nullptr);
  dialog->Open();
  ASSERT_EQ(List()->model()->rowCount(), 1);
  EXPECT_EQ(Cell(0, 2), "only.kvf");
  EXPECT_TRUE(OpenIsEnabled());
  dialog.reset();
}

TEST_F(BrowserWindow, TheProfilePaneComesAndGoesWithItsBox) {
  OpenAsAnna();
  auto* const box = Find<QCheckBox>("chk_profiel");
  EXPECT_TRUE(box->isChecked());
  EXPECT_TRUE(Find<QLabel>("lbl_pr_3")->isVisible());
  EXPECT_EQ(Find<QLabel>("lbl_pr_1")->text(), "70.00 Kg ");
  EXPECT_EQ(Find<QLabel>("lbl_pr_3")->text(), "1.80 Meter");
  const int height = List()->height();
  QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
  QApplication::processEvents();
  EXPECT_FALSE(Find<QLabel>("lbl_pr_3")->isVisible());
  EXPECT_GT(List()->height(), height);
  EXPECT_EQ(program.settings[Setting::chk_profiel], "0");
  const auto saved = ReadFirstRecord<Rec_Settings>(program.paths.SettingsFile);
  ASSERT_TRUE(saved.has_value());
  EXPECT_EQ((*saved)[Setting::chk_profiel], "0");
  Open();
  EXPECT_FALSE(Find<QCheckBox>("chk_profiel")->isChecked());
  EXPECT_FALSE(Find<QLabel>("lbl_pr_3")->isVisible());
}

TEST_F(BrowserWindow, EscapeClosesItAndMenusFollow) {
  OpenAsAnna();
  const int updates = test.core.updates;
  QTest::keyClick(dialog.get(), Qt::Key_Escape);
  EXPECT_EQ(program.windows.browser, nullptr);
  EXPECT_GT(test.core.updates, updates);
}

TEST_F(BrowserWindow, NothingIsClippedInEitherLanguage) {
  for (void (*make)(TextTables&) : {&Make_Taal_English, &Make_Taal_Dutch}) {
    make(program.texts);
    OpenAsAnna();
    QApplication::processEvents();
    EXPECT_LE(dialog->width(), 1000);
    EXPECT_LE(dialog->height(), 720);
    int labels = 0;
    for (const auto* label : dialog->findChildren<QLabel*>()) {
      if (!label->isVisible()) continue;
      ++labels;
      EXPECT_GE(label->width(), label->sizeHint().width()) << label->objectName().toStdString();
    }
    EXPECT_GE(labels, 15);
    for (const auto* button : dialog->findChildren<QAbstractButton*>()) {
      if (!button->isVisible()) continue;
      EXPECT_GE(button->width(), button->sizeHint().width());
    }
    const QFontMetrics& letters = List()->horizontalHeader()->fontMetrics();
    for (const int column : {0, 3, 4, 5, 6, 7}) {
      const QString heading = List()->model()->headerData(column, Qt::Horizontal).toString();
      EXPECT_GE(List()->columnWidth(column), letters.horizontalAdvance(heading) + 8)
          << heading.toStdString();
    }
  }
}

TEST_F(BrowserWindow, FromTheMainWindowADayOpensWithItsWindows) {
  MainWindow window(program);
  window.Set_Taal();
  window.show();
  SetCurrentUser(program, "Anna");
  QTimer::singleShot(0, [&] {
    QWidget* const shown = QApplication::activeModalWidget();
    ASSERT_NE(shown, nullptr);
    auto* const list = shown->findChild<QTableView*>("LV_browse_files");
    const QPoint place = list->visualRect(list->model()->index(0, 3)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    // Never leave the test waiting for a window that did not go.
    if (program.windows.browser != nullptr) program.windows.browser->CloseWindow();
  });
  RunCommand(program, Command::mnu_browse);
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(program.windows.browser, nullptr);
  EXPECT_EQ(program.store.KV_bestand, "old.kvf");
  auto* const morning = window.findChild<QWidget*>("KV_tb_vochtend");
  ASSERT_NE(morning, nullptr);
  EXPECT_TRUE(morning->isVisible());
  EXPECT_FALSE(ButtonEnabled(program, Command::mnu_bestand_opslaan));
}

TEST_F(BrowserWindow, IsModalAndReturnsWhenItIsClosed) {
  bool was_modal = false;
  QTimer::singleShot(0, [&] {
    QWidget* const shown = QApplication::activeModalWidget();
    was_modal = shown != nullptr && shown->objectName() == "KV_browsefiles";
    if (program.windows.browser != nullptr) program.windows.browser->CloseWindow();
  });
  ShowBrowserDialog(program, nullptr);
  EXPECT_TRUE(was_modal);
  EXPECT_EQ(program.windows.browser, nullptr);
}

TEST_F(BrowserWindow, TheProfileStandsInTwoColumnsOfThreeRows) {
  OpenAsAnna();
  const auto place = [this](const char* stem, int number) {
    return Find<QLabel>(qPrintable(QLatin1String(stem) + QString::number(number)))->pos();
  };
  const auto caption = [&](int number) { return place("lbl_pr_caption_", number); };
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(place("lbl_pr_", i).y(), caption(i).y()) << i;
    EXPECT_GT(place("lbl_pr_", i).x(), caption(i).x()) << i;
    EXPECT_EQ(caption(i).y(), caption(i % 3).y()) << i;
    EXPECT_EQ(caption(i).x(), caption(i / 3 * 3).x()) << i;
  }
  EXPECT_LT(caption(0).y(), caption(1).y());
  EXPECT_LT(caption(1).y(), caption(2).y());
  EXPECT_LT(place("lbl_pr_", 0).x(), caption(3).x());
}

}  // namespace
}  // namespace kelvora
