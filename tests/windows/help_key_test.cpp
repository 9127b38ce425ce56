#include "platform/qt/help_key.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace kelvora {
namespace {

class HelpKey : public testing::Test {
 protected:
  HelpKey() {
    window.setObjectName("KV_Core");
    window.setCentralWidget(&box);
    box.setObjectName("txt_box");
    action.setShortcut(QKeySequence("F1"));
    window.addAction(&action);
    QObject::connect(&action, &QAction::triggered, [this] { ++entry_given; });
    LetF1Ask(*qApp, [this](const std::vector<std::string>& names) {
      asked.push_back(names);
      if (while_asked) while_asked();
    });
    window.show();
    box.setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  }
  ~HelpKey() override { delete qApp->findChild<QObject*>("help_key_filter"); }

  QMainWindow window;
  QLineEdit box;  // gone before the window that holds it
  QAction action;
  int entry_given = 0;
  std::vector<std::vector<std::string>> asked;
  std::function<void()> while_asked;
};

TEST_F(HelpKey, TellsWhereItWasPressedInsteadOfGivingTheMenusEntry) {
  QTest::keyClick(&box, Qt::Key_F1);
  EXPECT_EQ(asked, (std::vector<std::vector<std::string>>{{"txt_box", "KV_Core"}}));
  EXPECT_EQ(entry_given, 0);
}

TEST_F(HelpKey, GoesThroughADialogToWhatItBelongsTo) {
  QDialog dialog(&window);
  dialog.setObjectName("KV_properties");
  QLineEdit inside(&dialog);
  inside.setObjectName("txt_map");
  dialog.show();
  QTest::keyClick(&inside, Qt::Key_F1);
  ASSERT_EQ(asked.size(), 1u);
  EXPECT_EQ(asked[0], (std::vector<std::string>{"txt_map", "KV_properties", "KV_Core"}));
}

TEST_F(HelpKey, WithAnotherKeyItIsNotMeant) {
  QTest::keyClick(&box, Qt::Key_F1, Qt::ShiftModifier);
  QTest::keyClick(&box, Qt::Key_F2);
  EXPECT_TRUE(asked.empty());
}

TEST_F(HelpKey, ABoxThatAnswersItDoesNotAskAgain) {
  while_asked = [this] {
    QMessageBox told(&window);
    told.setText("No pages.");
    QTimer::singleShot(0, &told, [&told] {
      QTest::keyClick(&told, Qt::Key_F1);
      told.accept();
    });
    told.exec();
  };
  QTest::keyClick(&box, Qt::Key_F1);
  EXPECT_EQ(asked.size(), 1u);
  while_asked = nullptr;
  QTest::keyClick(&box, Qt::Key_F1);
  EXPECT_EQ(asked.size(), 2u);
}

}  // namespace
}  // namespace kelvora
