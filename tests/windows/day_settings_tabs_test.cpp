// The other tabs of the day dialog, and its users: choosing, beginning and removing them.
#include "core/common.h"
#include "windows/day_settings_window.h"

namespace kelvora {
namespace {

// The second tab.

TEST_F(DaySettingsWindow, TheSecondTabFillsAddressAndRemarks) {
  Open();
  FillIn();
  ShowTab(1);
  const std::vector<std::pair<const char*, const char*>> fields = {
      {"pg_1", "Street 1"}, {"pg_2", "Second floor"}, {"pg_3", "Utrecht"}, {"pg_4", "3511 AB"},
      {"pg_15", "UT"},      {"pg_12", "Netherlands"}, {"pg_13", "REF-7"}};
  for (const auto& [field, keys] : fields) Type(field, keys);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "pg_14");
  QTest::keyClicks(Find<QPlainTextEdit>("pg_14"), "Runs");
  QTest::keyClick(Find<QPlainTextEdit>("pg_14"), Qt::Key_Return);
  QTest::keyClicks(Find<QPlainTextEdit>("pg_14"), "a lot");
  Type("pg_4", "12345678901");
  EXPECT_EQ(Shown("pg_4"), "1234567890");
  Click("cmd_opslaan");
  EXPECT_EQ(PackBlock(test.program.store.L_gegevens),
            Packed("Anna~Street 1~Second floor~Utrecht~1234567890~1.80~70~Female~42~05-03-04~65.5~"
                   "Friday~Netherlands~REF-7~UT~"));
  EXPECT_EQ(Stored(ProfileField::remark), "Runs\na lot");
}

TEST_F(DaySettingsWindow, TabGoesThroughTheOtherTabsInReadingOrder) {
  Open();
  const auto walk = [this](const char* first, int steps) {
    Find<QWidget>(first)->setFocus();
    QStringList order;
    for (int i = 0; i < steps; ++i) {
      order << QApplication::focusWidget()->objectName();
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    return order.join(' ');
  };
  ShowTab(1);
  EXPECT_EQ(walk("pg_1", 10),
            "pg_1 pg_2 pg_3 pg_4 pg_15 pg_12 pg_13 pg_14 cmd_opslaan cmd_annuleer");
  EXPECT_EQ(Find<QPlainTextEdit>("pg_14")->toPlainText(), "");
  ShowTab(2);
  // Of the options the chosen one takes the focus; a new user's is the second.
  EXPECT_EQ(walk("type_prioriteit_1", 11),
            "type_prioriteit_1 Slider_kj Slider_ovet Slider_vvet Slider_nat Slider_ew Slider_kdr "
            "Combo_default chk_apply cmd_opslaan cmd_annuleer");
}

TEST_F(DaySettingsWindow, RemarksTakeFiveHundredCharacters) {
  Open();
  ShowTab(1);
  auto* const remarks = Find<QPlainTextEdit>("pg_14");
  const auto paste = [&](const QString& text) {
    QApplication::clipboard()->setText(text);
    remarks->paste();
  };
  paste(QString(499, 'a'));
  QTest::keyClicks(remarks, "bc");
  EXPECT_EQ(remarks->toPlainText(), QString(499, 'a') + "b");
  remarks->moveCursor(QTextCursor::Start);
  paste("xyz");
  EXPECT_EQ(remarks->toPlainText(), QString(499, 'a') + "b");
  remarks->clear();
  paste(QString(600, 'd'));
  EXPECT_EQ(remarks->toPlainText(), QString(500, 'd'));
  paste(QString::fromUtf8("½"));
  remarks->clear();
  paste(QString::fromUtf8("½"));
  ShowTab(0);
  FillIn();
  Click("cmd_opslaan");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.starts_with("Some fields contain illegal characters."));
}

TEST_F(DaySettingsWindow, RemarksThatNobodyTouchesStayByteForByte) {
  AddUser("Anna");
  Rec_Profile profile = *ReadFirstRecord<Rec_Profile>(ProfileFile(test.program.paths, "Anna"));
  profile[ProfileField::remark] = "one\r\ntwo\xA0three";
  WriteRecord(ProfileFile(test.program.paths, "Anna"), profile);
  SetCurrentUser(test.program, "Anna");
  Open();
  Click("cmd_opslaan");
  EXPECT_EQ(Stored(ProfileField::remark), "one\r\ntwo\xA0three");
}

// The third tab.

class Nutritions : public DaySettingsWindow {
 protected:
  void OpenTab() {
    Open();
    ShowTab(2);
  }
  void Press(const char* slider, Qt::Key key) { QTest::keyClick(Find<QSlider>(slider), key); }
};

TEST_F(Nutritions, ShowTheDefaultsOfANewUser) {
  OpenTab();
  EXPECT_TRUE(Find<QAbstractButton>("type_prioriteit_1")->isChecked());
  EXPECT_EQ(Find<QSlider>("Slider_kj")->value(), 90);
  EXPECT_EQ(Shown("txt_kj") + " " + Shown("txt_kcal") + " " + Shown("txt_ovet") + " " +
                Shown("txt_vvet") + " " + Shown("txt_nat") + " " + Shown("txt_ew") + " " +
                Shown("txt_kdr"),
            "9000 2143 80 27 1 60 300");
  EXPECT_EQ(Find<QComboBox>("Combo_default")->count(), 6);
  EXPECT_TRUE(Find<QAbstractButton>("chk_apply")->isChecked());
  EXPECT_EQ(Find<QAbstractButton>("chk_apply")->text(),
            "Apply changes in (nutritions) profile automatically.");
  EXPECT_EQ(test.program.profile, Rec_Profile{});
}

TEST_F(Nutritions, KeysMoveASliderBySmallAndLargeStepsWithinItsRange) {
  OpenTab();
  Press("Slider_kj", Qt::Key_Right);
  EXPECT_EQ(Shown("txt_kj"), "9100");
  Press("Slider_kj", Qt::Key_PageUp);
  EXPECT_EQ(Shown("txt_kj"), "10100");
  Press("Slider_kj", Qt::Key_Home);
  EXPECT_EQ(Shown("txt_kj") + " " + Shown("txt_kcal"), "2000 476");
  Press("Slider_kj", Qt::Key_End);
  EXPECT_EQ(Shown("txt_kj") + " " + Shown("txt_kcal"), "30000 7143");
  Press("Slider_nat", Qt::Key_PageUp);
  EXPECT_EQ(Shown("txt_nat"), "6");
  Press("Slider_nat", Qt::Key_End);
  EXPECT_EQ(Shown("txt_nat"), "20");
  Press("Slider_kdr", Qt::Key_Home);
  EXPECT_EQ(Shown("txt_kdr"), "10");
}

TEST_F(Nutritions, AMovedSliderOrAnotherPriorityIsAppliedAtOnceWhileTicked) {
  OpenTab();
  Press("Slider_ovet", Qt::Key_Right);
  EXPECT_EQ(Stored(ProfileField::txt_ovet), "81");
  Click("type_prioriteit_4");
  EXPECT_EQ(Stored(ProfileField::type_prioriteit), "4");
  Click("chk_apply");
  EXPECT_EQ(test.program.settings[Setting::chk_apply], "0");
  EXPECT_TRUE(FileExists(test.program.paths.SettingsFile));
  Press("Slider_ovet", Qt::Key_Right);
  Click("type_prioriteit_5");
  EXPECT_EQ(Stored(ProfileField::txt_ovet), "81");
  EXPECT_EQ(Stored(ProfileField::type_prioriteit), "4");
  QTest::keyClick(dialog.get(), Qt::Key_Escape);
  EXPECT_EQ(test.program.profile, Rec_Profile{});
}

TEST_F(Nutritions, AnAgeGroupSetsAllSliders) {
  OpenTab();
  auto* const groups = Find<QComboBox>("Combo_default");
  groups->setFocus();
  QTest::keyClick(groups, Qt::Key_Down);
  EXPECT_EQ(groups->currentText(), "13 - 16 Year");
  EXPECT_EQ(Find<QSlider>("Slider_kj")->value(), 105);
  EXPECT_EQ(Shown("txt_kcal") + " " + Shown("txt_ovet") + " " + Shown("txt_kdr"), "2500 60 350");
  EXPECT_EQ(Stored(ProfileField::txt_ew), "70");
}

TEST_F(Nutritions, TargetsAndPriorityAreSavedWithTheDay) {
  Open();
  FillIn();
  ShowTab(2);
  Press("Slider_vvet", Qt::Key_Right);
  Click("type_prioriteit_0");
  Click("cmd_opslaan");
  const auto profile = ReadFirstRecord<Rec_Profile>(ProfileFile(test.program.paths, "Anna"));
  ASSERT_TRUE(profile.has_value());
  EXPECT_EQ((*profile)[ProfileField::txt_vvet], "28");
  EXPECT_EQ((*profile)[ProfileField::type_prioriteit], "0");
}

// Users.

TEST_F(DaySettingsWindow, AUserCanBeRemovedOnlyAfterBeingChosen) {
  AddUser("Anna");
  AddUser("Bert");
  SetCurrentUser(test.program, "Anna");
  Open();
  EXPECT_FALSE(Find<QAbstractButton>("Toolbar_control_3")->isEnabled());
  ClickUser("Anna");
  EXPECT_TRUE(Find<QAbstractButton>("Toolbar_control_3")->isEnabled());
  Click("Toolbar_control_2");
  EXPECT_FALSE(Find<QAbstractButton>("Toolbar_control_3")->isEnabled());
  ClickUser("Bert");
  EXPECT_TRUE(Find<QAbstractButton>("Toolbar_control_3")->isEnabled());
}

TEST_F(DaySettingsWindow, RemovingAUserLeavesAnEmptyForm) {
  AddUser("Anna");
  AddUser("Bert");
  Open();
  ClickUser("Bert");
  Click("Toolbar_control_3");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(Find<QListWidget>("lst_users")->count(), 2);
  EXPECT_EQ(Shown("pg_0"), "Bert");
  test.boxes.answers = {BoxAnswer::yes};
  Click("Toolbar_control_3");
  EXPECT_EQ(Find<QListWidget>("lst_users")->count(), 1);
  EXPECT_TRUE(Find<QListWidget>("lst_users")->selectedItems().isEmpty());
  EXPECT_FALSE(Find<QAbstractButton>("Toolbar_control_3")->isEnabled());
  EXPECT_EQ(Shown("pg_0") + Shown("txt_gewicht"), "");
  EXPECT_TRUE(Find<QLineEdit>("pg_0")->isEnabled());
  EXPECT_TRUE(Label("lbl_info").startsWith("Please enter your weight and a date"));
  EXPECT_EQ(test.program.paths.UserName, "");
}

TEST_F(DaySettingsWindow, ADayForAKnownUserTakesAClickAWeightAndEnter) {
  AddUser("Anna");
  AddUser("Bert");
  Open();
  ClickUser("Bert");
  EXPECT_TRUE(Find<QLineEdit>("txt_gewicht")->hasFocus());
  QTest::keyClicks(QApplication::focusWidget(), "71");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(test.program.store.L_gegevens[HeaderRow::kName], "Bert");
  EXPECT_EQ(test.program.store.L_gegevens[HeaderRow::kWeight], "71");
}

TEST_F(DaySettingsWindow, TheKeyboardAloneDoesTheSame) {
  AddUser("Anna");
  AddUser("Bert");
  Open();
  EXPECT_TRUE(Find<QListWidget>("lst_users")->hasFocus());
  QTest::keyClicks(QApplication::focusWidget(), "b");
  QApplication::processEvents();
  EXPECT_EQ(Shown("pg_0"), "Bert");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  QApplication::processEvents();
  EXPECT_TRUE(Find<QLineEdit>("txt_gewicht")->hasFocus());
  QTest::keyClicks(QApplication::focusWidget(), "71");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(test.program.store.L_gegevens[HeaderRow::kWeight], "71");
}

TEST_F(DaySettingsWindow, AClickOnTheChosenUserKeepsWhatWasTyped) {
  AddUser("Anna");
  SetCurrentUser(test.program, "Anna");
  Open();
  EXPECT_TRUE(Find<QLineEdit>("txt_gewicht")->hasFocus());
  Type("pg_8", "43");
  ClickUser("Anna");
  EXPECT_EQ(Shown("pg_8"), "43");
}

TEST_F(DaySettingsWindow, EnterOnCancelCancels) {
  Open();
  FillIn();
  Find<QPushButton>("cmd_annuleer")->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_FALSE(test.program.store.DayIsOpen());
}

TEST_F(DaySettingsWindow, AUserWhoWasPassedOnTheWayOutIsNotChosen) {
  AddUser("Anna");
  AddUser("Bert");
  SetCurrentUser(test.program, "Anna");
  Open();
  Find<QListWidget>("lst_users")->setFocus();
  QTest::keyClick(Find<QListWidget>("lst_users"), Qt::Key_Down);
  QTest::keyClick(dialog.get(), Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(test.program.paths.UserName, "Anna");
}

}  // namespace
}  // namespace kelvora
