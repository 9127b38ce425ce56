// The dialog of a new day, as a user meets it: through names, keys and clicks.
#include "core/common.h"
#include "core/frame/commands.h"
#include "core/frame/main_window.h"
#include "days/day_dialogs.h"
#include "language/built_in_texts.h"
#include "windows/day_settings_window.h"

namespace kelvora {
namespace {

TEST_F(DaySettingsWindow, ShowsANewDayOfANewUser) {
  Open();
  EXPECT_EQ(test.program.windows.day_settings, dialog.get());
  EXPECT_EQ(dialog->windowTitle(), "Start a new day");
  EXPECT_TRUE(Label("lbl_info").startsWith("Please fill in all fields if you start as a new user"));
  auto* const tabs = Find<QTabWidget>("TabStrip1");
  ASSERT_EQ(tabs->count(), 3);
  EXPECT_EQ(tabs->tabText(0), "User and day settings");
  EXPECT_EQ(tabs->tabText(1), "Additional user information");
  EXPECT_EQ(tabs->tabText(2), "Nutritions");
  EXPECT_TRUE(tabs->isTabEnabled(0));
  EXPECT_TRUE(tabs->isTabEnabled(1));
  EXPECT_TRUE(tabs->isTabEnabled(2));
  EXPECT_EQ(Find<QAbstractButton>("cmd_opslaan")->text(), "Start");
  EXPECT_EQ(Find<QAbstractButton>("cmd_annuleer")->text(), "Cancel");
  EXPECT_EQ(Find<QAbstractButton>("Toolbar_control_2")->toolTip(), "Start a new user");
  EXPECT_TRUE(Find<QAbstractButton>("Toolbar_control_2")->isEnabled());
  EXPECT_EQ(Find<QAbstractButton>("Toolbar_control_3")->toolTip(), "Delete the selected user");
  EXPECT_FALSE(Find<QAbstractButton>("Toolbar_control_3")->isEnabled());
  EXPECT_EQ(Shown("pg_9_a") + Shown("pg_9_b") + Shown("pg_9_c"), "050304");
  EXPECT_EQ(Shown("pg_11"), "Friday");
  EXPECT_EQ(Label("lbl_datuminfo"), "05-03-04");
  EXPECT_EQ(Label("lbl_lengteinfo") + Label("lbl_gewichtinfo") + Label("lbl_streefgewichtinfo"),
            "");
  EXPECT_EQ(Find<QComboBox>("pg_7")->currentText(), "");
  EXPECT_EQ(Find<QListWidget>("lst_users")->count(), 0);
  EXPECT_TRUE(Find<QLineEdit>("pg_0")->hasFocus());
}

TEST_F(DaySettingsWindow, EveryControlHasAnAccessibleName) {
  Open();
  for (const char* name :
       {"lst_users", "pg_0", "pg_7", "pg_8", "txt_lengte_m", "txt_streefgewicht", "pg_9_a",
        "pg_9_b", "pg_9_c", "pg_11", "txt_gewicht", "Toolbar_control_2", "Toolbar_control_3"}) {
    EXPECT_FALSE(Find<QWidget>(name)->accessibleName().isEmpty()) << name;
  }
}

TEST_F(DaySettingsWindow, TabGoesInReadingOrder) {
  Open();
  Find<QListWidget>("lst_users")->setFocus();
  QStringList order;
  for (int i = 0; i < 14; ++i) {
    order << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order.join(' '),
            "lst_users Toolbar_control_2 pg_0 pg_7 pg_8 txt_lengte_m txt_streefgewicht pg_9_a "
            "pg_9_b pg_9_c pg_11 txt_gewicht cmd_opslaan cmd_annuleer");
}

TEST_F(DaySettingsWindow, TypingAndPastingPassTheFilters) {
  Open();
  Type("pg_8", "4.x2,7");
  EXPECT_EQ(Shown("pg_8"), "42");
  Type("txt_gewicht", "7a0,5");
  EXPECT_EQ(Shown("txt_gewicht"), "70.5");
  Type("pg_0", "A.B, 1");
  EXPECT_EQ(Shown("pg_0"), "A.B, 1");
  Paste("pg_9_a", "1x");
  EXPECT_EQ(Shown("pg_9_a"), "1");
  Paste("txt_lengte_m", "1,82");
  EXPECT_EQ(Shown("txt_lengte_m"), "1.82");
  test.locale.separator = ",";
  Paste("txt_streefgewicht", QString::fromUtf8("7½2.5"));
  EXPECT_EQ(Shown("txt_streefgewicht"), "72,5");
}

TEST_F(DaySettingsWindow, ALetterInTheMiddleLeavesTheCursorWhereItStood) {
  Open();
  auto* const box = Find<QLineEdit>("txt_gewicht");
  QTest::keyClicks(box, "705");
  box->setCursorPosition(2);
  QTest::keyClicks(box, "x,");
  EXPECT_EQ(box->text(), "70.5");
  EXPECT_EQ(box->cursorPosition(), 3);
}

TEST_F(DaySettingsWindow, FieldsTakeNoMoreThanTheirLimit) {
  Open();
  Type("pg_0", "123456789 123456789 123456789 1");
  EXPECT_EQ(Shown("pg_0"), "123456789 123456789 123456789 ");
  Type("txt_lengte_m", "1.805");
  EXPECT_EQ(Shown("txt_lengte_m"), "1.80");
  Type("txt_gewicht", "123.456");
  EXPECT_EQ(Shown("txt_gewicht"), "123.45");
  Type("pg_9_c", "2004");
  EXPECT_EQ(Shown("pg_9_c"), "20");
}

TEST_F(DaySettingsWindow, LeavingAFieldShowsItsHint) {
  Open();
  Type("txt_lengte_m", "1.80");
  EXPECT_EQ(Label("lbl_lengteinfo"), "(1.80 Meter = 5'11'')");
  Type("txt_gewicht", "70");
  EXPECT_EQ(Label("lbl_gewichtinfo"), "(70.00 KG  = 154.32 Lbs)");
  Type("pg_9_a", "17");
  EXPECT_EQ(Label("lbl_datuminfo"), "17-03-04");
  Find<QLineEdit>("pg_9_a")->setFocus();
  QTest::keyClick(Find<QLineEdit>("pg_9_a"), Qt::Key_Backspace);
  EXPECT_EQ(Label("lbl_datuminfo"), "");
}

TEST_F(DaySettingsWindow, StartBeginsTheDayAndClosesTheDialog) {
  Open();
  FillIn();
  Click("cmd_opslaan");
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(test.program.windows.day_settings, nullptr);
  EXPECT_EQ(test.program.store.KV_bestand, "0503200414079.kvf");
  EXPECT_EQ(PackBlock(test.program.store.L_gegevens),
            Packed("Anna~~~~~1.80~70~Female~42~05-03-04~65.5~Friday~~~~"));
  EXPECT_TRUE(test.program.day.FileChanged);
  EXPECT_TRUE(FileExists(ProfileFile(test.program.paths, "Anna")));
  EXPECT_EQ(test.core.opened, (std::vector<WindowId>{WindowId::morning, WindowId::afternoon,
                                                     WindowId::evening, WindowId::lists}));
}

TEST_F(DaySettingsWindow, EnterInTheLastFieldStartsWithWhatWasTypedThere) {
  Open();
  FillIn();
  auto* const weight = Find<QLineEdit>("txt_gewicht");
  weight->setFocus();
  weight->selectAll();
  QTest::keyClicks(weight, "71");
  QTest::keyClick(weight, Qt::Key_Return);
  EXPECT_EQ(test.program.store.L_gegevens[HeaderRow::kWeight], "71");
}

TEST_F(DaySettingsWindow, AFailedTestLeavesTheDialogOpenWithAllThatWasTyped) {
  Open();
  FillIn();
  Type("pg_8", "12");
  Click("cmd_opslaan");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "You did not enter your age.\nPlease enter an age between 13 and 99 years.");
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(Shown("pg_0"), "Anna");
  EXPECT_FALSE(test.program.store.DayIsOpen());
  EXPECT_TRUE(test.core.opened.empty());
  EXPECT_EQ(Find<QLineEdit>("pg_8")->selectedText(), "12");
}

TEST_F(DaySettingsWindow, AfterARefusalTheFocusIsInTheBoxThatIsWrong) {
  Open();
  Click("cmd_opslaan");
  EXPECT_TRUE(Find<QWidget>("pg_0")->hasFocus());
  Type("pg_0", "Anna");
  Click("cmd_opslaan");
  EXPECT_TRUE(Find<QWidget>("txt_lengte_m")->hasFocus());
  Type("txt_lengte_m", "1.80");
  Type("txt_gewicht", "70");
  Click("cmd_opslaan");
  EXPECT_TRUE(Find<QWidget>("txt_streefgewicht")->hasFocus());
  Type("txt_streefgewicht", "65.5");
  Click("cmd_opslaan");
  EXPECT_TRUE(Find<QWidget>("pg_7")->hasFocus());
  Find<QComboBox>("pg_7")->setCurrentIndex(1);
  Type("pg_8", "42");
  Type("pg_9_b", "13");
  Click("cmd_opslaan");
  EXPECT_TRUE(Find<QWidget>("pg_9_b")->hasFocus());
  Type("pg_9_b", "12");
  // On another tab, which then shows.
  Paste("pg_3", QString::fromUtf8("½"));
  Click("cmd_opslaan");
  EXPECT_TRUE(Find<QWidget>("pg_3")->hasFocus());
  EXPECT_TRUE(Find<QWidget>("pg_3")->isVisible());
  EXPECT_EQ(test.boxes.shown.size(), 6u);
}

TEST_F(DaySettingsWindow, TheOnlyUserIsChosenWhenNoneIs) {
  AddUser("Anna");
  Open();
  EXPECT_EQ(test.program.paths.UserName, "Anna");
  EXPECT_EQ(Shown("pg_8"), "42");
  EXPECT_TRUE(Find<QWidget>("txt_gewicht")->hasFocus());
  CloseNow();
  test.program.paths.UserName.clear();
  test.program.paths.UserFolderName.clear();
  AddUser("Bert");
  Open();
  EXPECT_EQ(test.program.paths.UserName, "");
}

TEST_F(DaySettingsWindow, APastedHalfIsRefused) {
  Open();
  FillIn();
  Paste("pg_0", QString::fromUtf8("An½a"));
  Click("cmd_opslaan");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.starts_with("Some fields contain illegal characters."));
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(DaySettingsWindow, CancelAndEscapeKeepNothing) {
  for (const bool escape : {false, true}) {
    Open();
    FillIn();
    const int updates = test.core.updates;
    if (escape) {
      QTest::keyClick(dialog.get(), Qt::Key_Escape);
    } else {
      Click("cmd_annuleer");
    }
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(test.program.windows.day_settings, nullptr);
    EXPECT_GT(test.core.updates, updates);
    EXPECT_EQ(test.program.paths.UserName, "");
    EXPECT_FALSE(test.program.store.DayIsOpen());
    EXPECT_EQ(SubFoldersOf(test.program.paths.UsersPath).Count(), 0u);
  }
}

TEST_F(DaySettingsWindow, ChoosingAUserFillsTheFields) {
  AddUser("Anna");
  AddUser("Bert");
  Open();
  EXPECT_TRUE(Label("lbl_info").startsWith("Select a username"));
  EXPECT_TRUE(Find<QLineEdit>("pg_0")->isEnabled());
  ClickUser("Bert");
  EXPECT_EQ(test.program.paths.UserName, "Bert");
  EXPECT_FALSE(Find<QLineEdit>("pg_0")->isEnabled());
  EXPECT_EQ(Shown("pg_0"), "Bert");
  EXPECT_EQ(Shown("txt_lengte_m"), "1.80");
  EXPECT_EQ(Shown("txt_gewicht"), "70");
  EXPECT_EQ(Shown("txt_streefgewicht"), "65.5");
  EXPECT_EQ(Shown("pg_8"), "42");
  EXPECT_EQ(Find<QComboBox>("pg_7")->currentText(), "Female");
  EXPECT_EQ(Shown("pg_9_a"), "05");
  EXPECT_EQ(Label("lbl_gewichtinfo"), "(70.00 KG  = 154.32 Lbs)");
  Type("txt_gewicht", "71");
  Click("cmd_opslaan");
  // What the first tab doesn't show comes from the profile and stays.
  EXPECT_EQ(PackBlock(test.program.store.L_gegevens),
            Packed("Bert~Street 1~~~~1.80~71~Female~42~05-03-04~65.5~Friday~~~~"));
  EXPECT_EQ(test.program.profile[ProfileField::type_prioriteit], "4");
  EXPECT_EQ(test.program.profile[ProfileField::txt_kj], "8500");
}

TEST_F(DaySettingsWindow, TheCurrentUserIsSelectedAndFilledIn) {
  AddUser("Anna");
  SetCurrentUser(test.program, "Anna");
  Open();
  EXPECT_TRUE(Label("lbl_info").startsWith("Please enter your weight and a date"));
  ASSERT_EQ(Find<QListWidget>("lst_users")->selectedItems().size(), 1);
  EXPECT_EQ(Shown("pg_0"), "Anna");
  EXPECT_EQ(Shown("txt_gewicht"), "70");
}

TEST_F(DaySettingsWindow, ANewUserBeginsWithEmptyFieldsAndTheCursorInTheName) {
  AddUser("Anna");
  Open();
  ClickUser("Anna");
  Click("Toolbar_control_2");
  EXPECT_TRUE(Find<QListWidget>("lst_users")->selectedItems().isEmpty());
  EXPECT_TRUE(Find<QLineEdit>("pg_0")->isEnabled());
  EXPECT_TRUE(Find<QLineEdit>("pg_0")->hasFocus());
  EXPECT_EQ(Shown("pg_0") + Shown("pg_8") + Shown("txt_lengte_m") + Shown("txt_gewicht") +
                Shown("txt_streefgewicht"),
            "");
  EXPECT_EQ(Find<QComboBox>("pg_7")->currentIndex(), -1);
  EXPECT_EQ(Label("lbl_gewichtinfo"), "");
  EXPECT_EQ(Shown("pg_9_a"), "05");
  FillIn();
  Type("pg_0", "Carl");
  Click("cmd_opslaan");
  EXPECT_EQ(test.program.paths.UserName, "Carl");
  EXPECT_EQ(test.program.profile[ProfileField::address_1], "");
}

TEST_F(DaySettingsWindow, AGenderStoredInAnotherLanguageStaysAsItIs) {
  AddUser("Anna");
  Make_Taal_Dutch(test.program.texts);
  Open();
  ClickUser("Anna");
  EXPECT_EQ(Find<QComboBox>("pg_7")->itemText(0), "Man");
  EXPECT_EQ(Find<QComboBox>("pg_7")->itemText(1), "Vrouw");
  EXPECT_EQ(Find<QComboBox>("pg_7")->currentText(), "Female");
  Click("cmd_opslaan");
  EXPECT_EQ(test.program.store.L_gegevens[HeaderRow::kGender], "Female");
}

TEST_F(DaySettingsWindow, FromTheMainWindowStartOpensTheWindowsOfTheDay) {
  AddUser("Anna");
  MainWindow window(test.program);
  window.Set_Taal();
  window.show();
  QTimer::singleShot(0, [&] {
    QWidget* const shown = QApplication::activeModalWidget();
    ASSERT_NE(shown, nullptr);
    auto* const users = shown->findChild<QListWidget*>("lst_users");
    QTest::mouseClick(users->viewport(), Qt::LeftButton, {},
                      users->visualItemRect(users->item(0)).center());
    QTest::mouseClick(shown->findChild<QPushButton*>("cmd_opslaan"), Qt::LeftButton);
    // Never leave the test waiting for a window that did not go.
    if (test.program.windows.day_settings != nullptr) {
      test.program.windows.day_settings->CloseWindow();
    }
  });
  RunCommand(test.program, Command::mnu_new);
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(test.program.windows.day_settings, nullptr);
  EXPECT_TRUE(test.program.store.DayIsOpen());
  for (const char* name : {"KV_tb_vochtend", "KV_tb_vmiddag", "KV_tb_vavond", "KV_tb_lijsten"}) {
    auto* const child = window.findChild<QWidget*>(QLatin1String(name));
    ASSERT_NE(child, nullptr) << name;
    EXPECT_TRUE(child->isVisible()) << name;
  }
  EXPECT_TRUE(CommandEnabled(test.program, Command::mnu_bestand_opslaan));
}

TEST_F(DaySettingsWindow, IsModalAndReturnsWhenItIsClosed) {
  bool was_modal = false;
  QTimer::singleShot(0, [&] {
    QWidget* const shown = QApplication::activeModalWidget();
    was_modal = shown != nullptr && shown->objectName() == "KV_bestand";
    if (test.program.windows.day_settings != nullptr) {
      test.program.windows.day_settings->CloseWindow();
    }
  });
  ShowDaySettingsDialog(test.program, nullptr);
  EXPECT_TRUE(was_modal);
  EXPECT_EQ(test.program.windows.day_settings, nullptr);
}

}  // namespace
}  // namespace kelvora
