// The diary in the main window, as a user meets it: keys, the clipboard, the button, the questions.
#include "analysis/diary_window.h"

#include <functional>
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolButton>

#include "core/frame/main_window.h"
#include "language/built_in_texts.h"
#include "platform/qt/entry_hint.h"
#include "platform/qt/text.h"
#include "storage/day_file.h"
#include "support/test_program.h"
#include "windows/find_in.h"

namespace kelvora {
namespace {

QString Utf8(const char8_t* text) {
  return QString::fromUtf8(reinterpret_cast<const char*>(text));
}

class DiaryOfADay : public testing::Test {
 protected:
  DiaryOfADay() {
    window.resize(1024, 748);
    window.Set_Taal();
    window.show();
    test.OpenDay("Anna");
    SetFileChanged(program, false);
    window.UpdateCommands();
  }

  void Open(std::string_view stored = "") {
    program.store.txt_notities = stored;
    window.OpenWindow(WindowId::diary);
    QApplication::processEvents();
  }
  QWidget* Child() { return window.findChild<QWidget*>(QStringLiteral("KV_tb_notities")); }
  bool IsOpen() const { return program.windows.diary != nullptr; }
  TextArea& Box() { return *FindIn<TextArea>(*Child(), "txt_notities"); }
  QToolButton& SaveButton() { return *FindIn<QToolButton>(*Child(), "Toolbar_1"); }
  QToolButton& MainButton(int index) {
    return *FindIn<QToolButton>(window, QStringLiteral("menu_toolbar_%1").arg(index));
  }
  QLabel& Panel(int index) {
    return *FindIn<QLabel>(*Child(), QStringLiteral("StatusBar_%1").arg(index));
  }
  std::string Status() { return Panel(1).text().toStdString(); }
  void Type(const char* text) { QTest::keyClicks(&Box(), QString::fromLatin1(text)); }
  void Paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    Box().paste();
  }
  void CloseFrame() { FindIn<QMdiSubWindow>(window, "KV_tb_notities_frame")->close(); }
  // The next window of the name is the one that opens next.
  void CloseForGood() {
    CloseFrame();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  Text& Stored() { return program.store.txt_notities; }
  static std::string Count(int length) {
    return "Diary contains " + std::to_string(length) + " characters (there is still room for " +
           std::to_string(5000 - length) + " characters).";
  }
  // Nothing was changed yet, in the window and in the day.
  void ExpectUnchanged() {
    EXPECT_FALSE(SaveButton().isEnabled());
    EXPECT_FALSE(program.day.FileChanged);
    EXPECT_FALSE(MainButton(4).isEnabled());
  }
  void ExpectChanged() {
    EXPECT_TRUE(SaveButton().isEnabled());
    EXPECT_TRUE(program.day.FileChanged);
    EXPECT_TRUE(MainButton(4).isEnabled());
  }

  TestProgram test;
  Program& program = test.program;
  MainWindow window{test.program};
};

TEST_F(DiaryOfADay, OpensAtItsRecordWithTheTextOfTheDay) {
  program.windows.geometry.diary = {.width = 7500, .height = 4500, .left = 1500, .top = 750};
  QTest::mouseClick(&MainButton(11), Qt::LeftButton);
  ASSERT_TRUE(IsOpen());
  EXPECT_TRUE(MainButton(11).isChecked());
  EXPECT_EQ(FindIn<QMdiSubWindow>(window, "KV_tb_notities_frame")->geometry(),
            QRect(100, 50, 500, 300));
  EXPECT_EQ(Child()->windowTitle(), "Diary");
  EXPECT_EQ(SaveButton().toolTip(), "Save diary");
  EXPECT_EQ(Status(), Count(0));
  ExpectUnchanged();
  EXPECT_EQ(Box().y(), 24);  // 360 twips
  CloseFrame();
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(MainButton(11).isChecked());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(DiaryOfADay, IsNeverSmallerThanItsLeastSize) {
  program.windows.geometry.diary = {.width = 1500, .height = 1500, .left = 0, .top = 0};
  Open();
  EXPECT_EQ(FindIn<QMdiSubWindow>(window, "KV_tb_notities_frame")->size(), QSize(400, 267));
}

TEST_F(DiaryOfADay, SavesWhatIsTypedIntoTheDayByItsButton) {
  Open();
  Type("Walked");
  ExpectChanged();
  EXPECT_EQ(Status(), Count(6));
  QTest::keyClick(&Box(), Qt::Key_Return);
  Type("home");
  EXPECT_EQ(Status(), Count(12));
  EXPECT_EQ(Stored(), "");
  QTest::mouseClick(&SaveButton(), Qt::LeftButton);
  EXPECT_EQ(Stored(), "Walked\r\nhome");
  EXPECT_FALSE(SaveButton().isEnabled());
  EXPECT_TRUE(program.day.FileChanged);  // the file has it only when the day is saved
  CloseFrame();
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(DiaryOfADay, TakesNoHalfAndNoThreeQuartersFromTheKeyboard) {
  Open("text");
  for (const char16_t character : {u'\u00BD', u'\u00BE'}) {
    const QString typed{QChar(character)};
    QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, typed);
    QApplication::sendEvent(&Box(), &key);
    QInputMethodEvent commit;
    commit.setCommitString(typed);
    QApplication::sendEvent(&Box(), &commit);
  }
  EXPECT_EQ(Box().toPlainText(), "text");
  ExpectUnchanged();
}

TEST_F(DiaryOfADay, ChangesNothingByKeysThatChangeNoText) {
  Open("one two");
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home,
                            Qt::Key_End, Qt::Key_PageDown, Qt::Key_Shift, Qt::Key_Escape}) {
    QTest::keyClick(&Box(), key);
  }
  QTest::keyClick(&Box(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&Box(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "one two");
  ExpectUnchanged();
}

TEST_F(DiaryOfADay, FollowsEveryKindOfChange) {
  const auto begin = [this] {
    if (IsOpen()) program.windows.diary->Refresh_Tekst();
    SetFileChanged(program, false);
  };
  Open("one two");
  const std::array<std::function<void()>, 6> changes = {
      [&] { Paste("x"); },
      [&] {
        Box().selectAll();
        Box().cut();
      },
      [&] {
        QMimeData data;
        data.setText("dropped");
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(Box().viewport(), &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(Box().viewport(), &drop);
      },
      [&] {
        QInputMethodEvent commit;
        commit.setCommitString(Utf8(u8"é"));
        QApplication::sendEvent(&Box(), &commit);
      },
      [&] { QTest::keyClick(&Box(), Qt::Key_Delete); },
      [&] { QTest::keyClick(&Box(), Qt::Key_Return); },
  };
  for (std::size_t i = 0; i < changes.size(); ++i) {
    SCOPED_TRACE(i);
    begin();
    ExpectUnchanged();
    changes[i]();
    ExpectChanged();
    EXPECT_NE(Status(), Count(7));
  }
  // Undo is a change as well.
  QTest::mouseClick(&SaveButton(), Qt::LeftButton);
  SetFileChanged(program, false);
  Box().undo();
  ExpectChanged();
}

TEST_F(DiaryOfADay, TakesFiveThousandCharactersAndNoMore) {
  Open(Text(4998, 'a'));
  Box().moveCursor(QTextCursor::End);
  Type("bcd");
  EXPECT_EQ(Box().Entered(), Text(4998, 'a') + "bc");
  EXPECT_EQ(Status(), Count(5000));
  QTest::keyClick(&Box(), Qt::Key_Backspace);
  // One character is left, a line break takes two.
  QTest::keyClick(&Box(), Qt::Key_Return);
  EXPECT_EQ(Box().Entered(), Text(4998, 'a') + "b");
  EXPECT_EQ(Status(), Count(4999));
}

TEST_F(DiaryOfADay, CutsAPasteAtTheLimitAndSaysSo) {
  Open(Text(4990, 'a'));
  Box().moveCursor(QTextCursor::Start);
  Paste("12\n34\n5678");  // 12 characters for 10
  EXPECT_EQ(Box().Entered(), "12\n34\n56" + Text(4990, 'a'));
  EXPECT_EQ(Status(), Count(5000));
  EXPECT_EQ(Panel(2).text(), "Text cut short");
  EXPECT_EQ(Panel(2).toolTip(), "Not all of the text had room; its end was left out.");
  EXPECT_GE(Panel(2).width(), Panel(2).sizeHint().width());
  EXPECT_LE(Panel(2).geometry().right(), Child()->width());
  // The next change that has room says no more of it.
  QTest::keyClick(&Box(), Qt::Key_Backspace);
  EXPECT_EQ(Panel(2).text(), "");
  EXPECT_EQ(Status(), Count(4999));
}

TEST_F(DiaryOfADay, ShowsAndKeepsATextThatIsLongerThanTheLimit) {
  const Text stored = Text(4000, 'a') + "\n" + Text(1000, 'b');  // 5002 by the count
  Open(stored);
  EXPECT_EQ(Box().Entered(), stored);
  EXPECT_EQ(Status(), Count(5002));
  ExpectUnchanged();
  Box().moveCursor(QTextCursor::End);
  Type("c");
  EXPECT_EQ(Box().Entered(), stored);
  EXPECT_FALSE(SaveButton().isEnabled());
  QTest::keyClick(&Box(), Qt::Key_Backspace);
  QTest::mouseClick(&SaveButton(), Qt::LeftButton);
  EXPECT_EQ(Stored(), Text(4000, 'a') + "\r\n" + Text(999, 'b'));
}

TEST_F(DiaryOfADay, ShowsAMillionCharactersWhole) {
  Text million;
  while (million.size() < 1'000'000) million += Text(78, 'w') + "\r\n";
  Open(million);
  EXPECT_EQ(Box().Entered().size(), million.size() / 80 * 79);
  Box().moveCursor(QTextCursor::End);
  QTest::keyClick(&Box(), Qt::Key_Backspace);
  QTest::mouseClick(&SaveButton(), Qt::LeftButton);
  EXPECT_EQ(Stored(), million.substr(0, million.size() - 2));
}

TEST_F(DiaryOfADay, ShowsAMillionCharactersWithoutABreak) {
  Open(Text(1'000'000, 'w'));
  EXPECT_EQ(Box().Entered().size(), 1'000'000u);
  EXPECT_EQ(Status(), Count(1'000'000));
  // Looking for word boundaries in such a text takes the box minutes.
  EXPECT_EQ(Box().wordWrapMode(), QTextOption::WrapAnywhere);
}

TEST_F(DiaryOfADay, KeepsTheBytesOfATextThatNobodyEdited) {
  for (const char* stored : {"a\rb", "a\nb", "a\r\nb", "\x01\t\xA0"}) {
    Open(stored);
    EXPECT_FALSE(program.windows.diary->HoldsUntakenText());
    Type("x");
    QTest::keyClick(&Box(), Qt::Key_Backspace);
    EXPECT_FALSE(program.windows.diary->HoldsUntakenText());
    QTest::mouseClick(&SaveButton(), Qt::LeftButton);
    EXPECT_EQ(Stored(), stored);
    CloseForGood();
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(DiaryOfADay, TakesForbiddenCharactersFromAPasteAndRefusesToSaveThem) {
  Open("kept");
  Paste(Utf8(u8"½ litre, ¾ cup "));
  EXPECT_EQ(Box().toPlainText(), Utf8(u8"½ litre, ¾ cup kept"));
  QTest::mouseClick(&SaveButton(), Qt::LeftButton);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "The note cannot be saved.\n"
            "The characters half and three-quarters are not allowed in the notes!");
  EXPECT_TRUE(SaveButton().isEnabled());
  EXPECT_EQ(Stored(), "kept");
}

TEST_F(DiaryOfADay, LeavesOutWhatTextCantHoldAndNamesIt) {
  Open();
  Paste(Utf8(u8"Ł soup 中\rand"));
  EXPECT_EQ(Box().Entered(), " soup \nand");
  EXPECT_EQ(Status(), Count(11));
  auto* const hint = window.findChild<EntryHint*>();
  ASSERT_NE(hint, nullptr);
  EXPECT_TRUE(hint->text().contains(Utf8(u8"Ł 中"))) << hint->text().toStdString();
  QTest::mouseClick(&SaveButton(), Qt::LeftButton);
  EXPECT_EQ(Stored(), " soup \r\nand");
}

TEST_F(DiaryOfADay, AsksBeforeItClosesWithTypedText) {
  Open("before");
  Type("x");
  test.boxes.answers = {BoxAnswer::cancel};
  CloseFrame();
  EXPECT_TRUE(IsOpen());
  EXPECT_TRUE(Child()->isVisible());
  EXPECT_EQ(Box().toPlainText(), "xbefore");
  // The button of the main window closes it as well, and stays down where it stays open.
  test.boxes.answers = {BoxAnswer::cancel};
  QTest::mouseClick(&MainButton(11), Qt::LeftButton);
  EXPECT_TRUE(IsOpen());
  EXPECT_TRUE(MainButton(11).isChecked());
  test.boxes.answers = {BoxAnswer::yes};
  CloseFrame();
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Stored(), "xbefore");
  EXPECT_EQ(test.boxes.shown.size(), 3u);
}

TEST_F(DiaryOfADay, ClosesWithoutTheTextThatIsDropped) {
  Open("before");
  Type("x");
  test.boxes.answers = {BoxAnswer::no};
  CloseFrame();
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Stored(), "before");
}

TEST_F(DiaryOfADay, ClosesWithTheDay) {
  Open();
  Type("typed");
  CloseDay(program);
  QApplication::processEvents();
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(DiaryOfADay, ShowsTheStoresTextAgainWhenTheDayIsSavedWithoutWhatWasTyped) {
  Open("before");
  Type("x");
  test.boxes.answers = {BoxAnswer::no};
  QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
  window.GiveCommand(Command::mnu_bestand_opslaan);
  EXPECT_EQ(Box().toPlainText(), "before");
  EXPECT_FALSE(SaveButton().isEnabled());
}

TEST_F(DiaryOfADay, EndsTheProgramOnlyAfterItsQuestion) {
  Open();
  Type("x");
  test.boxes.answers = {BoxAnswer::cancel};
  window.close();
  EXPECT_FALSE(program.ending);
  EXPECT_TRUE(IsOpen());
  test.boxes.answers = {BoxAnswer::yes, BoxAnswer::yes};
  window.close();
  EXPECT_TRUE(program.ending);
  EXPECT_EQ(Stored(), "x");
}

TEST_F(DiaryOfADay, FollowsTheLanguageWithItsTypedText) {
  Open();
  Type("abc");
  Make_Taal_Dutch(program.texts);
  program.windows.diary->Set_Taal();
  EXPECT_EQ(Child()->windowTitle(), "Dagboek");
  EXPECT_EQ(SaveButton().toolTip(), "Dagboek opslaan");
  EXPECT_EQ(Status(), "Het dagboek bevat 3 tekens (er is nog ruimte voor 4997 tekens).");
  EXPECT_EQ(Box().toPlainText(), "abc");
  EXPECT_TRUE(SaveButton().isEnabled());
}

TEST_F(DiaryOfADay, IsReachedByTabAndNamed) {
  Open();
  EXPECT_EQ(Box().accessibleName(), "Diary");
  Type("x");
  Box().setFocus();
  QTest::keyClick(&Box(), Qt::Key_Tab);
  EXPECT_EQ(Box().toPlainText(), "x");  // no tab in the text
  EXPECT_EQ(SaveButton().focusPolicy(), Qt::TabFocus);
}

TEST_F(DiaryOfADay, CutsNoWordOfItsStatusAtItsLeastSize) {
  program.windows.geometry.diary = {.width = 6000, .height = 4000, .left = 0, .top = 0};
  for (const bool dutch : {false, true}) {
    if (dutch) Make_Taal_Dutch(program.texts);
    Open(Text(4999, 'a'));
    Paste("12");
    for (const int index : {1, 2}) {
      const QLabel& panel = Panel(index);
      EXPECT_GE(panel.height(), panel.heightForWidth(panel.width())) << index;
      EXPECT_LE(panel.geometry().right(), Child()->width()) << index;
      EXPECT_LE(panel.geometry().bottom(), panel.parentWidget()->height()) << index;
    }
    test.boxes.answers = {BoxAnswer::no};
    CloseForGood();
  }
}

}  // namespace
}  // namespace kelvora
