#include "platform/qt/toolkit_words.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>

#include "core/frame/main_window.h"
#include "language/built_in_texts.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

QString WordOf(const QMessageBox& box, QMessageBox::StandardButton button) {
  QApplication::processEvents();
  return box.button(button)->text().remove('&');
}

class ToolkitWords : public testing::Test {
 protected:
  ~ToolkitWords() override { UseToolkitWords(Language::english); }
};

TEST_F(ToolkitWords, FollowTheProgramWhileABoxIsUp) {
  QMessageBox box;
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
  EXPECT_EQ(WordOf(box, QMessageBox::Yes), "Yes");
  UseToolkitWords(Language::dutch);
  UseToolkitWords(Language::dutch);
  EXPECT_EQ(WordOf(box, QMessageBox::Yes), "Ja");
  EXPECT_EQ(WordOf(box, QMessageBox::No), "Nee");
  EXPECT_EQ(WordOf(box, QMessageBox::Cancel), "Annuleren");
  UseToolkitWords(Language::english);
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
  UseToolkitWords(Language::dutch);
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

}  // namespace
}  // namespace kelvora
