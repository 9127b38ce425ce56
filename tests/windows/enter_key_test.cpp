#include "platform/qt/enter_key.h"

#include <gtest/gtest.h>
#include <memory>

#include <QApplication>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace kelvora {
namespace {

// What the toolkit's own group boxes do on a desktop whose buttons are pressed by Enter; the one of
// these tests is no such desktop.
class KeepingGroup : public QGroupBox {
 protected:
  bool event(QEvent* event) override {
    return event->type() == QEvent::KeyPress || QGroupBox::event(event);
  }
};

struct Form {
  Form() {
    auto* const layout = new QVBoxLayout(&dialog);
    auto* const inside = new QVBoxLayout(&group);
    inside->addWidget(&box);
    layout->addWidget(&group);
    layout->addWidget(&button);
    button.setDefault(true);
    QObject::connect(&button, &QPushButton::clicked, [this] { ++pressed; });
    dialog.show();
    box.setFocus();
  }

  QDialog dialog;
  KeepingGroup group;
  QLineEdit box;
  QPushButton button;
  int pressed = 0;
};

TEST(EnterKey, ReachesTheDefaultButtonFromWithinAGroup) {
  Form form;
  QTest::keyClick(&form.box, Qt::Key_Return);
  EXPECT_EQ(form.pressed, 0);  // kept, which is what this is about
  LetEnterThroughGroups(*qApp);
  const std::unique_ptr<QObject> filter(qApp->findChild<QObject*>("group_filter"));
  ASSERT_NE(filter, nullptr);
  QTest::keyClick(&form.box, Qt::Key_Return);
  EXPECT_EQ(form.pressed, 1);
  QTest::keyClick(&form.box, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(form.pressed, 2);
  // A group with a tick of its own keeps its keys, and all others theirs.
  form.group.setCheckable(true);
  QTest::keyClick(&form.box, Qt::Key_Return);
  QTest::keyClick(&form.box, Qt::Key_F5);
  EXPECT_EQ(form.pressed, 2);
}

}  // namespace
}  // namespace kelvora
