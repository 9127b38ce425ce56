// What the text boxes make of everything that is entered, whatever the way, and what they tell.
#include "platform/qt/text_box.h"

#include <cmath>
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "language/built_in_texts.h"
#include "platform/qt/entry_hint.h"
#include "platform/qt/text_area.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

QString Utf8(const char8_t* text) {
  return QString::fromUtf8(text);
}

const std::string kOne = "This character can't be stored and was left out: ";
const std::string kSeveral = "These characters can't be stored and were left out: ";

class TextBoxes : public testing::Test {
 protected:
  TextBoxes() {
    window.resize(600, 400);
    layout.addSpacing(100);
    layout.addWidget(&box);
    layout.addWidget(&area);
    window.show();
    box.setFocus();
    QObject::connect(&box, &QLineEdit::textChanged,
                     [this](const QString& text) { changes << text; });
    QObject::connect(&box, &QLineEdit::textEdited, [this](const QString& text) { edits << text; });
    QObject::connect(&area, &TextArea::Edited, [this] { areas.push_back(area.Entered()); });
  }

  // Keys of any keyboard; QTest knows those of Latin letters only.
  static void Type(QWidget& into, const QString& keys) {
    for (const QChar key : keys) {
      for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, 0, Qt::NoModifier, QString(key));
        QApplication::sendEvent(&into, &event);
      }
    }
  }
  static void Compose(QWidget& into, const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(&into, &event);
  }
  static void Drop(QWidget& onto, const QString& text) {
    QMimeData data;
    data.setText(text);
    const QPointF place = onto.rect().center();
    QDragEnterEvent enter(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&onto, &enter);
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&onto, &event);
  }
  template <class Box>
  static void Paste(Box& into, const QString& text) {
    QApplication::clipboard()->setText(text);
    into.paste();
  }
  EntryHint* Hint() { return window.findChild<EntryHint*>(); }
  std::string Told() {
    return Hint() == nullptr || !Hint()->isVisible() ? "" : Hint()->text().toStdString();
  }

  TestProgram test;
  QWidget window;
  QVBoxLayout layout{&window};
  TextBox box{&window, QStringLiteral("box"), EntryContextOf(test.program), {.limit = 10}};
  TextArea area{&window,
                QStringLiteral("area"),
                EntryContextOf(test.program),
                {.limit = 20, .many_lines = true}};
  QStringList changes, edits;
  std::vector<Text> areas;
};

TEST_F(TextBoxes, ATypedCharacterThatTextCantHoldIsNotTakenAndTold) {
  Type(box, Utf8(u8"Łukasz"));
  EXPECT_EQ(box.text(), "ukasz");
  EXPECT_EQ(Told(), kOne + "Ł");
  EXPECT_EQ(box.Entered(), "ukasz");
  // Nobody who listens to the box ever hears of it.
  EXPECT_EQ(changes, (QStringList{"u", "uk", "uka", "ukas", "ukasz"}));
  EXPECT_EQ(edits, changes);
}

TEST_F(TextBoxes, WhatIsTypedOneAfterTheOtherIsToldTogether) {
  Type(box, Utf8(u8"Суп"));
  EXPECT_EQ(Told(), kSeveral + "С у п");
  // Another box has a hint of its own.
  Type(area, Utf8(u8"п"));
  EXPECT_EQ(Told(), kOne + "п");
}

TEST_F(TextBoxes, WhatWasSelectedStaysWhenNothingIsTaken) {
  box.ShowText("Anna");
  box.selectAll();
  Type(box, Utf8(u8"中"));
  EXPECT_EQ(box.text(), "Anna");
  EXPECT_EQ(box.selectedText(), "Anna");
  Type(box, "Z");
  EXPECT_EQ(box.text(), "Z");
}

TEST_F(TextBoxes, APasteLeavesOutWhatTextCantHoldAndSaysWhich) {
  box.ShowText("ab");
  box.setCursorPosition(1);
  Paste(box, Utf8(u8"Ł1中2Ł"));
  EXPECT_EQ(box.text(), "a12b");
  EXPECT_EQ(box.cursorPosition(), 3);
  EXPECT_EQ(Told(), kSeveral + "Ł 中");
  EXPECT_EQ(edits, QStringList{"a12b"});
}

TEST_F(TextBoxes, ADropAndAnInputMethodAreHeldToTheSame) {
  Drop(box, Utf8(u8"Суп1"));
  EXPECT_EQ(box.text(), "1");
  EXPECT_EQ(Told(), kSeveral + "С у п");
  box.clear();
  delete Hint();
  Compose(box, Utf8(u8"漢a"));
  EXPECT_EQ(box.text(), "a");
  EXPECT_EQ(Told(), kOne + "漢");
}

TEST_F(TextBoxes, WhatComesInPartsIsComposed) {
  Paste(box, QStringLiteral("Zoe\u0308"));
  EXPECT_EQ(box.Entered(), "Zo\xEB");
  box.clear();
  Type(box, "Zo");
  Compose(box, QStringLiteral("e"));
  Compose(box, QStringLiteral("\u0308"));
  Type(box, "!");
  EXPECT_EQ(box.Entered(), "Zo\xEB!");
  EXPECT_EQ(Told(), "");
}

TEST_F(TextBoxes, AMarkThatTextHasNoLetterForLeavesTheLetterBeforeIt) {
  Type(box, "ac");
  Compose(box, QStringLiteral("\u030C"));
  EXPECT_EQ(box.text(), "ac");
  EXPECT_EQ(Told(), kOne + "č");
  delete Hint();
  Compose(box, QStringLiteral("\u0363"));
  EXPECT_EQ(box.text(), "ac");
  EXPECT_EQ(Told(), kOne + "\u25CC\u0363");
}

TEST_F(TextBoxes, AnInvisibleCharacterIsNamedByItsNumber) {
  Paste(box, QStringLiteral("a\u200Bb\uFEFF"));
  EXPECT_EQ(box.text(), "ab");
  EXPECT_EQ(Told(), kSeveral + "U+200B U+FEFF");
}

TEST_F(TextBoxes, ManyCharactersAreSummedUp) {
  Paste(box, Utf8(u8"абвгдежзийклмн"));
  EXPECT_EQ(Told(), kSeveral + "а б в г д е ж з и й к л …");
}

TEST_F(TextBoxes, OneLineHasNoControlCharacters) {
  Paste(box, QStringLiteral("a\tb\r\nc\u0081d"));
  EXPECT_EQ(box.Entered(), "a b c d");
  EXPECT_EQ(Told(), "");
}

TEST_F(TextBoxes, TheLimitCountsCharactersOfText) {
  Paste(box, QStringLiteral("e\u0308").repeated(12));
  EXPECT_EQ(box.Entered(), Text(10, '\xEB'));
  Type(box, "x");
  EXPECT_EQ(box.Entered(), Text(10, '\xEB'));
  box.clear();
  Paste(box, Utf8(u8"中").repeated(50) + "1234567890");
  EXPECT_EQ(box.text(), "1234567890");
  box.setCursorPosition(2);
  Type(box, "x");
  EXPECT_EQ(box.text(), "1234567890");
  EXPECT_EQ(box.cursorPosition(), 2);
}

TEST_F(TextBoxes, AStoredTextIsShownAsItIsAndStaysSoWhileOthersAreTyped) {
  box.ShowText("a\tb\x81 longer than the limit");
  EXPECT_EQ(box.Entered(), "a\tb\x81 longer than the limit");
  box.setCursorPosition(static_cast<int>(box.text().size()));
  QTest::keyClick(&box, Qt::Key_Backspace);
  EXPECT_EQ(box.Entered(), "a\tb\x81 longer than the limi");
  EXPECT_EQ(Told(), "");
}

TEST_F(TextBoxes, AChangeCanBeUndone) {
  Type(box, Utf8(u8"aŁb"));
  box.undo();
  EXPECT_EQ(box.text(), "");
  box.redo();
  EXPECT_EQ(box.text(), "ab");
}

TEST_F(TextBoxes, ABoxOfManyLinesIsHeldToTheSame) {
  area.setFocus();
  Type(area, Utf8(u8"aŁ"));
  QTest::keyClick(&area, Qt::Key_Return);
  EXPECT_EQ(area.Entered(), "a\n");
  EXPECT_EQ(Told(), kOne + "Ł");
  delete Hint();
  Paste(area, QStringLiteral("1\u4E2D\t2\r\n3\u0090e\u0308"));
  EXPECT_EQ(area.Entered(), "a\n1\t2\n3 \xEB");
  EXPECT_EQ(Told(), kOne + "中");
  Compose(area, Utf8(u8"ł4"));
  EXPECT_EQ(area.Entered(),
            "a\n1\t2\n3 \xEB"
            "4");
  area.moveCursor(QTextCursor::Start);
  delete Hint();
  Drop(*area.viewport(), Utf8(u8"Ж"));
  EXPECT_EQ(Told(), kOne + "Ж");
  for (const Text& shown : areas) EXPECT_EQ(shown.find('?'), Text::npos) << shown;
}

TEST_F(TextBoxes, AMarkIsJoinedToTheLetterBeforeItInManyLinesToo) {
  area.setFocus();
  Compose(area, QStringLiteral("e"));
  Compose(area, QStringLiteral("\u0308"));
  EXPECT_EQ(area.Entered(), "\xEB");
  Compose(area, QStringLiteral("c\u030C"));
  EXPECT_EQ(area.Entered(), "\xEB");
  EXPECT_EQ(Told(), kOne + "č");
}

TEST_F(TextBoxes, ABoxOfManyLinesHasItsLimitToo) {
  Paste(area, QStringLiteral("e\u0308").repeated(30));
  EXPECT_EQ(area.Entered(), Text(20, '\xEB'));
  area.moveCursor(QTextCursor::Start);
  Paste(area, QStringLiteral("abc"));
  EXPECT_EQ(area.Entered(), Text(20, '\xEB'));
  EXPECT_EQ(area.textCursor().position(), 0);
}

TEST_F(TextBoxes, ABoxOfManyLinesShowsAStoredTextAsItIs) {
  area.ShowText("a\x01\r\nb\xA0");
  EXPECT_EQ(area.Entered(), "a\x01\nb\xA0");
  EXPECT_TRUE(areas.empty());
  area.moveCursor(QTextCursor::End);
  Type(area, "c");
  EXPECT_EQ(area.Entered(),
            "a\x01\nb\xA0"
            "c");
}

TEST_F(TextBoxes, WhatWasSelectedInManyLinesStaysWhenNothingIsTaken) {
  area.ShowText("one two");
  area.moveCursor(QTextCursor::NextWord, QTextCursor::KeepAnchor);
  Type(area, Utf8(u8"Ж"));
  EXPECT_EQ(area.Entered(), "one two");
  EXPECT_TRUE(areas.empty());
}

TEST_F(TextBoxes, ABoxOfManyLinesUndoesWhatWasTaken) {
  Type(area, "a");
  Paste(area, QStringLiteral("1\u4E2D"));
  EXPECT_EQ(area.Entered(), "a1");
  area.undo();
  area.undo();
  EXPECT_EQ(area.Entered(), "");
  for (const Text& shown : areas) EXPECT_EQ(shown.find('?'), Text::npos) << shown;
}

TEST_F(TextBoxes, AWholeNumberSaysThatItDroppedTheMark) {
  TextBox number(&window, QStringLiteral("number"), EntryContextOf(test.program),
                 {.filter = KeyFilter::whole_number});
  number.show();
  const std::string words =
      "Only whole numbers can be entered here; the decimal mark was left out.";
  Type(number, "12.5");
  EXPECT_EQ(number.text(), "125");
  // Typing on doesn't take it away, since it is typing on that makes another number.
  EXPECT_EQ(Told(), words);
  delete Hint();
  Paste(number, QStringLiteral("7,5"));
  EXPECT_EQ(Told(), words);
  delete Hint();
  Type(number, "a-");
  EXPECT_EQ(Told(), "");
}

// The hint itself.

TEST_F(TextBoxes, TheHintStandsBesideItsBoxInsideTheWindow) {
  Type(box, Utf8(u8"Ł"));
  const QRect hint = Hint()->geometry();
  EXPECT_FALSE(hint.intersects(box.geometry()));
  EXPECT_TRUE(window.rect().contains(hint));
  EXPECT_LE(box.geometry().top() - hint.bottom(), 4);
  EXPECT_EQ(hint.left(), box.geometry().left());
  EXPECT_EQ(window.focusWidget(), &box);
  EXPECT_TRUE(Hint()->testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(TextBoxes, WithNoRoomAboveTheHintStandsBelow) {
  TextBox top(&window, QStringLiteral("top"), EntryContextOf(test.program));
  top.setGeometry(500, 0, 95, 25);
  top.show();
  Type(top, Utf8(u8"Ł"));
  EXPECT_GT(Hint()->geometry().top(), top.geometry().bottom());
  EXPECT_TRUE(window.rect().contains(Hint()->geometry()));
}

TEST_F(TextBoxes, AHintThatIsWiderThanTheWindowHasMoreLines) {
  window.resize(220, 400);
  QApplication::processEvents();
  Type(box, Utf8(u8"Ł"));
  EXPECT_TRUE(window.rect().contains(Hint()->geometry()));
  EXPECT_GE(Hint()->height(), 2 * Hint()->fontMetrics().height());
}

TEST_F(TextBoxes, AssistiveToolsAreToldWhileTheHintStands) {
  box.setAccessibleDescription(QStringLiteral("the name"));
  Type(box, Utf8(u8"Ł"));
  EXPECT_EQ(box.accessibleDescription().toStdString(), kOne + "Ł");
  Type(box, Utf8(u8"中"));
  EXPECT_EQ(box.accessibleDescription().toStdString(), kSeveral + "Ł 中");
  EXPECT_EQ(window.findChildren<EntryHint*>().size(), 1);
  delete Hint();
  EXPECT_EQ(box.accessibleDescription(), "the name");
}

TEST_F(TextBoxes, TheHintGoesWithItsBox) {
  Type(box, Utf8(u8"Ł"));
  ASSERT_NE(Told(), "");
  box.hide();
  EXPECT_EQ(Told(), "");
}

TEST_F(TextBoxes, TheHintGoesByItself) {
  Type(box, Utf8(u8"Ł"));
  auto* const timer = Hint()->findChild<QTimer*>();
  ASSERT_NE(timer, nullptr);
  EXPECT_GE(timer->interval(), 5000);
  timer->setInterval(1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Hint() == nullptr; }));
}

// The ratio of two luminances that makes letters readable is 4.5 to 1; by the formula of the
// guidelines for accessible pages.
double Luminance(const QColor& colour) {
  const auto part = [](double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
         0.0722 * part(colour.blueF());
}

TEST_F(TextBoxes, TheHintIsReadableInTheDarkAndInTheLight) {
  for (const auto& [text, base] :
       {std::pair{Qt::black, Qt::white}, std::pair{Qt::white, Qt::black}}) {
    QPalette palette;
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Base, base);
    window.setPalette(palette);
    Type(box, Utf8(u8"Ł"));
    const QImage drawn = Hint()->grab().toImage();
    double darkest = 1, lightest = 0;
    for (int x = 3; x < drawn.width() - 3; ++x) {
      for (int y = 3; y < drawn.height() - 3; ++y) {
        const double luminance = Luminance(drawn.pixelColor(x, y));
        darkest = std::min(darkest, luminance);
        lightest = std::max(lightest, luminance);
      }
    }
    EXPECT_GE((lightest + 0.05) / (darkest + 0.05), 4.5);
    EXPECT_EQ(drawn.pixelColor(3, 3), QColor(base));
  }
}

TEST_F(TextBoxes, TheHintSpeaksTheLanguageOfTheProgram) {
  Make_Taal_Dutch(test.program.texts);
  Type(box, Utf8(u8"Ł"));
  EXPECT_EQ(Told(), "Dit teken kan niet worden opgeslagen en is weggelaten: Ł");
  Paste(box, Utf8(u8"ŁЖ"));
  EXPECT_EQ(Told(), "Deze tekens kunnen niet worden opgeslagen en zijn weggelaten: Ł Ж");
}

}  // namespace
}  // namespace kelvora
