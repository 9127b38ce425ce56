#include "platform/qt/toolkit_words.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>

#include "core/frame/main_window.h"
#include "language/browse_texts.h"
#include "language/built_in_texts.h"
#include "language/own_texts.h"
#include "platform/qt/text.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

QString WordOf(const QMessageBox& box, QMessageBox::StandardButton button) {
  QApplication::processEvents();
  return box.button(button)->text().remove('&');
}

class ToolkitWords : public testing::Test {
 protected:
  ~ToolkitWords() override { UseToolkitWords("en"); }
};

TEST_F(ToolkitWords, FollowTheProgramWhileABoxIsUp) {
  QMessageBox box;
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
  EXPECT_EQ(WordOf(box, QMessageBox::Yes), "Yes");
  UseToolkitWords("nl");
  UseToolkitWords("nl");
  EXPECT_EQ(WordOf(box, QMessageBox::Yes), "Ja");
  EXPECT_EQ(WordOf(box, QMessageBox::No), "Nee");
  EXPECT_EQ(WordOf(box, QMessageBox::Cancel), "Annuleren");
  UseToolkitWords("en");
  EXPECT_EQ(WordOf(box, QMessageBox::Yes), "Yes");
  EXPECT_EQ(WordOf(box, QMessageBox::Cancel), "Cancel");
}

TEST_F(ToolkitWords, TheMenuOfATextBoxSpeaksTheSame) {
  QLineEdit box;
  const auto first_words = [&box] {
    const std::unique_ptr<QMenu> menu(box.createStandardContextMenu());
    return menu->actions().first()->text().section('\t', 0, 0).remove('&');
  };
  EXPECT_EQ(first_words(), "Undo");
  UseToolkitWords("nl");
  EXPECT_EQ(first_words(), "Ongedaan maken");
}

// The main window takes its captions with every change of language.
TEST_F(ToolkitWords, ComeWithTheCaptionsOfTheMainWindow) {
  TestProgram test;
  MainWindow window(test.program);
  QMessageBox box;
  box.setStandardButtons(QMessageBox::Yes);
  Make_Taal_Dutch(test.program.texts);
  window.Set_Taal();
  EXPECT_EQ(WordOf(box, QMessageBox::Yes), "Ja");
  Make_Taal_English(test.program.texts);
  window.Set_Taal();
  EXPECT_EQ(WordOf(box, QMessageBox::Yes), "Yes");
}

// What a question tells to press is what its buttons are called.
TEST_F(ToolkitWords, AgreeWithTheTextsThatNameThem) {
  TestProgram test;
  MainWindow window(test.program);
  QMessageBox box;
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  for (void (*make)(TextTables&) : {&Make_Taal_English, &Make_Taal_Dutch}) {
    make(test.program.texts);
    window.Set_Taal();
    const auto tells = [&](TextId text, QMessageBox::StandardButton button) {
      return ToQt(test.program.texts[text]).contains(' ' + WordOf(box, button).toUpper() + ' ');
    };
    EXPECT_TRUE(tells(browse_text::kDeletePressYes, QMessageBox::Yes));
    EXPECT_TRUE(tells(browse_text::kDeletePressNo, QMessageBox::No));
  }
}

// A language that users add names its code among its own texts.
TEST_F(ToolkitWords, FollowALanguageOfAUsersOwnByItsCode) {
  TestProgram test;
  MainWindow window(test.program);
  QMessageBox box;
  box.setStandardButtons(QMessageBox::Cancel);
  const auto speak = [&](const Text& code) {
    test.program.texts.own[static_cast<std::size_t>(OwnText::language_code)] = code;
    window.Set_Taal();
    return WordOf(box, QMessageBox::Cancel);
  };
  EXPECT_EQ(speak("de"), "Abbrechen");
  // One that the toolkit has no words for, and what is no code at all: English.
  EXPECT_EQ(speak("tlh"), "Cancel");
  EXPECT_EQ(speak("nl"), "Annuleren");
  EXPECT_EQ(speak("../qtbase_nl"), "Cancel");
  EXPECT_EQ(speak(""), "Cancel");
  Make_Taal_Dutch(test.program.texts);
  EXPECT_EQ(speak(""), "Annuleren");
}

// Also where it stood open before.
TEST_F(ToolkitWords, TheMenuOfAChildWindowFollows) {
  TestProgram test;
  MainWindow window(test.program);
  test.OpenDay("Anna");
  window.OpenWindow(WindowId::diary);
  const auto* const frame = window.findChild<QMdiSubWindow*>();
  ASSERT_NE(frame, nullptr);
  const auto words = [frame] {
    QApplication::processEvents();
    return frame->systemMenu()->actions().last()->text().section('\t', 0, 0).remove('&');
  };
  EXPECT_EQ(words(), "Close");
  Make_Taal_Dutch(test.program.texts);
  window.Set_Taal();
  EXPECT_EQ(words(), "Sluiten");
  Make_Taal_English(test.program.texts);
  window.Set_Taal();
  EXPECT_EQ(words(), "Close");
}

}  // namespace
}  // namespace kelvora
