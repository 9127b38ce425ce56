// Choosing a user in the browser's list by mouse and keyboard, with a day open: the question, once,
// and the selection behind it.
#include <filesystem>

#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "windows/browser_window.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

class BrowserUsers : public BrowserWindow {
 protected:
  BrowserUsers() { AddUser("Carl"); }
  QListWidget* Users() { return Find<QListWidget>("lst_users"); }
  void OpenWithADay() {
    OpenAsAnna();
    test.OpenDay("Anna", "open.kvf");
    Users()->setFocus();
  }
  void Press(Qt::Key key) {
    QTest::keyClick(Users(), key);
    QApplication::processEvents();
  }
  void ExpectAnnaIsStillChosen() {
    EXPECT_EQ(SelectedUser(), "Anna");
    ASSERT_NE(Users()->currentItem(), nullptr);
    EXPECT_EQ(Users()->currentItem()->text(), "Anna");
    EXPECT_EQ(program.paths.UserName, "Anna");
    EXPECT_EQ(program.store.KV_bestand, "open.kvf");
    EXPECT_EQ(List()->model()->rowCount(), 2);
  }
};

TEST_F(BrowserUsers, ASwitchByKeyboardAsksOnceAndANoPutsTheSelectionBack) {
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_PageDown, Qt::Key_B, Qt::Key_C}) {
    test.boxes.shown.clear();
    program.store = KV_data();
    OpenWithADay();
    test.boxes.answers = {BoxAnswer::no};
    Press(key);
    EXPECT_EQ(test.boxes.shown.size(), 1u) << key;
    ExpectAnnaIsStillChosen();
  }
}

TEST_F(BrowserUsers, AfterANoTheNextKeyGoesOnFromTheCurrentUser) {
  OpenWithADay();
  test.boxes.answers = {BoxAnswer::no, BoxAnswer::yes};
  Press(Qt::Key_Down);
  ExpectAnnaIsStillChosen();
  Press(Qt::Key_Down);
  EXPECT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(SelectedUser(), "Bert");
  EXPECT_EQ(program.paths.UserName, "Bert");
  EXPECT_FALSE(program.store.DayIsOpen());
  EXPECT_EQ(List()->model()->rowCount(), 1);
}

// As on a busy machine, where several keys come at once.
TEST_F(BrowserUsers, AKeyThatFollowsAtOnceActsOnTheUserThatWasChosen) {
  OpenAsAnna();
  ClickRow(0);
  Users()->setFocus();
  QTest::keyClick(Users(), Qt::Key_Down);
  QTest::keyClick(Users(), Qt::Key_Return);  // the button that opens the selected day
  EXPECT_EQ(program.paths.UserName, "Bert");
  EXPECT_FALSE(program.store.DayIsOpen());  // no row of Bert's is selected
  QTest::keyClick(Users(), Qt::Key_Down);
  QTest::keyClick(Users(), Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(program.paths.UserName, "Bert");
}

TEST_F(BrowserUsers, TheDeleteKeyThatFollowsAtOnceDeletesNothingOfTheUserBefore) {
  OpenAsAnna();
  ClickRow(0);
  Users()->setFocus();
  QTest::keyClick(Users(), Qt::Key_Down);
  List()->setFocus();
  QTest::keyClick(List(), Qt::Key_Delete);
  EXPECT_EQ(program.paths.UserName, "Bert");
  EXPECT_TRUE(test.boxes.shown.empty());  // no row of Bert's is selected
}

TEST_F(BrowserUsers, ASwitchByMouseAsksOnceToo) {
  OpenWithADay();
  test.boxes.answers = {BoxAnswer::no};
  ClickUser("Carl");
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  ExpectAnnaIsStillChosen();
}

TEST_F(BrowserUsers, WhoHasNoUserYetChoosesOneByKeyboard) {
  Open();
  Users()->setFocus();
  Press(Qt::Key_Space);
  EXPECT_EQ(SelectedUser(), "Anna");
  EXPECT_EQ(program.paths.UserName, "Anna");
  EXPECT_TRUE(test.boxes.shown.empty());
}

// The list that the box tells of can be seen behind it.
struct LookingBoxes : RecordingBoxes {
  std::function<void()> look;
  BoxAnswer Show(const Box& box) override {
    if (look) look();
    return RecordingBoxes::Show(box);
  }
};

TEST_F(BrowserUsers, WhatCouldNotBeReadIsToldWhenTheListsAreFilled) {
  LookingBoxes boxes;
  Platform platform{boxes,         test.pointer,  test.locale,         test.folders,
                    test.clock,    test.screen,   test.events,         test.opener,
                    test.printers, test.printing, test.folder_chooser, test.transfers};
  Program looked_at(platform);
  Make_Taal_English(looked_at.texts);
  DetermineFolders(looked_at);
  SetCurrentUser(looked_at, "Anna");
  fs::create_directories(program.paths.UsersPath + "Aaron");
  fs::create_symlink("nowhere", looked_at.paths.FilesPath + "gone.kvf");
  std::vector<std::pair<int, int>> seen;
  dialog = std::make_unique<BrowserDialog>(looked_at, nullptr);
  boxes.look = [&] { seen.emplace_back(Users()->count(), List()->model()->rowCount()); };
  dialog->Open();
  ASSERT_EQ(boxes.shown.size(), 2u);
  EXPECT_TRUE(boxes.shown[0].text.ends_with("No such file or directory: Aaron\nBrelux CODE:#F3-2"));
  EXPECT_TRUE(
      boxes.shown[1].text.ends_with("No such file or directory: gone.kvf\nBrelux CODE:#F3-0"));
  EXPECT_EQ(seen, (std::vector<std::pair<int, int>>{{4, 0}, {4, 2}}));
  dialog.reset();
}

// What has gone meanwhile.

TEST_F(BrowserUsers, AUserWhoseFolderHasGoneIsToldOfAndLeavesTheList) {
  OpenAsAnna();
  fs::remove_all(program.paths.UsersPath + "Bert");
  ClickUser("Bert");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("No such file or directory\nBrelux CODE:#F3-3"));
  EXPECT_EQ(Users()->count(), 2);
  EXPECT_EQ(SelectedUser(), "Anna");
  EXPECT_EQ(Find<QLabel>("lbl_profile_of")->text(), "Profile of Anna:");
  EXPECT_EQ(Find<QLabel>("lbl_pr_0")->text(), "REF-Anna");
}

TEST_F(BrowserUsers, AUserWithoutAProfileHasAnEmptyPane) {
  OpenAsAnna();
  fs::remove(ProfileFile(program.paths, "Bert"));
  ClickUser("Bert");
  EXPECT_EQ(program.paths.UserName, "Bert");
  EXPECT_EQ(Find<QLabel>("lbl_profile_of")->text(), "Profile of Bert:");
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(Find<QLabel>(qPrintable(QStringLiteral("lbl_pr_%1").arg(i)))->text(), "") << i;
  }
}

TEST_F(BrowserUsers, ADayThatHasGoneIsToldOfAndLeavesTheList) {
  OpenAsAnna();
  fs::remove(program.paths.FilesPath + "old.kvf");
  ClickRow(0);
  QTest::mouseClick(Find<QPushButton>("cmd_openen"), Qt::LeftButton);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("No such file or directory\nBrelux CODE:#F3-5"));
  EXPECT_EQ(Column(2), "new.kvf");
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_FALSE(program.store.DayIsOpen());
}

TEST_F(BrowserUsers, ANameIsDrawnInOneLineAndToldWholeWhereItIsCut) {
  const Text name = "Dora\tthe " + Text(60, 'x');
  AddUser(name);
  OpenAsAnna();
  ASSERT_EQ(Users()->count(), 4);
  EXPECT_EQ(Users()->item(3)->text(), QStringLiteral("Dora the ") + QString(60, 'x'));
  const auto tip_of = [this](int row) {
    QToolTip::hideText();
    const QPoint place = Users()->visualItemRect(Users()->item(row)).center();
    QHelpEvent event(QEvent::ToolTip, place, Users()->viewport()->mapToGlobal(place));
    QApplication::sendEvent(Users()->viewport(), &event);
    return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText().remove('\n');
  };
  EXPECT_EQ(tip_of(0), "");
  EXPECT_EQ(tip_of(3), Users()->item(3)->text());
  QToolTip::hideText();
}

TEST_F(BrowserUsers, TheOnlyUserIsChosenAndEnterOpensTheNewestDay) {
  for (const char* user : {"Bert", "Carl"}) fs::remove_all(UserFolder(program.paths, user));
  Open();
  EXPECT_EQ(program.paths.UserName, "Anna");
  EXPECT_EQ(SelectedUser(), "Anna");
  EXPECT_EQ(program.profile[ProfileField::reference], "REF-Anna");
  EXPECT_EQ(List()->model()->rowCount(), 2);
  EXPECT_TRUE(test.boxes.shown.empty());
  ASSERT_TRUE(List()->hasFocus());
  QTest::keyClick(List(), Qt::Key_Return);
  EXPECT_EQ(program.store.KV_bestand, "new.kvf");
}

TEST_F(BrowserUsers, OfSeveralNoneIsChosen) {
  Open();
  EXPECT_EQ(program.paths.UserName, "");
  EXPECT_EQ(SelectedUser(), "");
}

TEST_F(BrowserUsers, EnterOpensTheRowInFocus) {
  OpenAsAnna();
  QTest::keyClick(List(), Qt::Key_Up, Qt::ControlModifier);  // moves the focus and selects nothing
  EXPECT_EQ(SelectedRows(), "");
  QTest::keyClick(List(), Qt::Key_Return);
  EXPECT_EQ(program.store.KV_bestand, "old.kvf");
}

}  // namespace
}  // namespace kelvora
