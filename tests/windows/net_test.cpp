// The outermost net: what leaves the handling of any kind of event ends in one box, and the program
// goes on.
#include "core/frame/net.h"

#include <gtest/gtest.h>
#include <stdexcept>

#include <QCloseEvent>
#include <QDialog>
#include <QDropEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include "platform/qt/guarded_application.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/text_table_model.h"
#include "support/sanitizers.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

[[noreturn]] void Fail() {
  throw std::runtime_error("escaped");
}

// A window that fails wherever it is told to.
class FailingWindow : public QWidget {
 public:
  FailingWindow() { setAcceptDrops(true); }
  QEvent::Type failing = QEvent::None;
  int painted = 0;

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::Paint) ++painted;
    if (event->type() == failing) Fail();
    return QWidget::event(event);
  }
  void dragEnterEvent(QDragEnterEvent* event) override { event->acceptProposedAction(); }
};

class Net : public testing::Test {
  // The toolkit's own frames clean up nothing when an exception goes through them.
  const NoLeakCounts no_leak_counts_;

 protected:
  Net() {
    auto& application = *dynamic_cast<GuardedApplication*>(qApp);
    application.on_action = [this] { test.program.actions.Begin(); };
    application.on_escape = [this](const std::exception_ptr& failure) {
      TellEscaped(test.program, failure);
    };
    test.program.actions.Begin();
    window.resize(200, 100);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  }
  ~Net() override {
    auto& application = *dynamic_cast<GuardedApplication*>(qApp);
    application.on_action = nullptr;
    application.on_escape = nullptr;
  }

  // Lets everything that is under way come to its end.
  static void Settle() {
    for (int i = 0; i < 20; ++i) QApplication::processEvents();
  }
  void ExpectOneBox(const char* words = "escaped") {
    Settle();
    ASSERT_EQ(test.boxes.shown.size(), 1u);
    EXPECT_EQ(test.boxes.shown[0].text,
              "An error occured.\n\n" + Text(words) + "\nBrelux CODE:#F4-17");
  }

  TestProgram test;
  FailingWindow window;
};

TEST_F(Net, TakesWhatAClickThrows) {
  QPushButton button(&window);
  button.show();
  QObject::connect(&button, &QPushButton::clicked, &window, &Fail);
  QTest::mouseClick(&button, Qt::LeftButton);
  ExpectOneBox();
  // The next click is an action of its own.
  QTest::mouseClick(&button, Qt::LeftButton);
  Settle();
  EXPECT_EQ(test.boxes.shown.size(), 2u);
}

TEST_F(Net, TakesWhatAKeyThrows) {
  window.failing = QEvent::KeyPress;
  QTest::keyClick(&window, Qt::Key_A);
  ExpectOneBox();
}

TEST_F(Net, TakesWhatATimerThrowsOnceHoweverOftenItFires) {
  QTimer timer;
  int fired = 0;
  QObject::connect(&timer, &QTimer::timeout, [&fired] {
    ++fired;
    Fail();
  });
  timer.start(1);
  QTRY_VERIFY_WITH_TIMEOUT(fired >= 5, 5000);
  timer.stop();
  ExpectOneBox();
}

TEST_F(Net, TakesWhatPaintingThrowsOnceInAnAction) {
  window.failing = QEvent::Paint;
  for (int i = 0; i < 5; ++i) {
    window.repaint();
    Settle();
  }
  EXPECT_GE(window.painted, 5);
  ExpectOneBox();
  QTest::mouseClick(&window, Qt::LeftButton);
  window.repaint();
  Settle();
  EXPECT_EQ(test.boxes.shown.size(), 2u);
}

TEST_F(Net, TakesWhatADropThrows) {
  window.failing = QEvent::Drop;
  QMimeData text;
  text.setText(QStringLiteral("add-"));
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &enter);
  ASSERT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &drop);
  ExpectOneBox();
}

// A window that could not ask what it asks at its closing stays.
TEST_F(Net, TakesWhatClosingThrowsAndTheWindowStays) {
  window.failing = QEvent::Close;
  EXPECT_FALSE(window.close());
  EXPECT_TRUE(window.isVisible());
  ExpectOneBox();
  window.failing = QEvent::None;
  EXPECT_TRUE(window.close());
}

TEST_F(Net, TakesWhatACellOfAListThrowsAndTheListIsDrawn) {
  QTableView view(&window);
  TextTableModel model;
  int asked = 0;
  model.Show({{"Product"}}, 3, [&asked](std::size_t row, std::size_t) -> Text {
    ++asked;
    if (row == 1) Fail();
    return "bread";
  });
  view.setModel(&model);
  view.resize(200, 100);
  view.show();
  view.repaint();
  EXPECT_GE(asked, 3);
  EXPECT_EQ(model.data(model.index(0, 0), Qt::DisplayRole).toString(), "bread");
  EXPECT_EQ(model.data(model.index(1, 0), Qt::DisplayRole).toString(), "");
  ExpectOneBox();
}

TEST_F(Net, TakesWhatAQueuedCallThrows) {
  QMetaObject::invokeMethod(&window, &Fail, Qt::QueuedConnection);
  ExpectOneBox();
}

TEST_F(Net, TakesWhatAPostedEventThrows) {
  window.failing = QEvent::User;
  QCoreApplication::postEvent(&window, new QEvent(QEvent::User));
  ExpectOneBox();
}

TEST_F(Net, TakesWhatIsNoExceptionOfTheLibrary) {
  QMetaObject::invokeMethod(
      &window, [] { throw 7; }, Qt::QueuedConnection);
  ExpectOneBox("State not recoverable");
}

// A handler inside the loop of a dialog, which goes on.
TEST_F(Net, TakesWhatAHandlerThrowsInsideTheLoopOfADialog) {
  QDialog dialog(&window);
  QTimer::singleShot(0, &dialog, [] { Fail(); });
  QTimer::singleShot(50, &dialog, &QDialog::accept);
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  ExpectOneBox();
}

// What the real box looks like while it stands: answering it is no action of its own, or a window
// that can't be painted would bring it back for ever.
TEST_F(Net, AnsweringTheBoxOfAWindowThatCannotBePaintedIsTheEndOfIt) {
  QtBoxes boxes;
  Platform platform{boxes,         test.pointer,  test.locale,         test.folders,
                    test.clock,    test.screen,   test.events,         test.opener,
                    test.printers, test.printing, test.folder_chooser, test.transfers};
  Program program(platform);
  program.actions.Begin();
  auto& application = *dynamic_cast<GuardedApplication*>(qApp);
  application.on_action = [&program] { program.actions.Begin(); };
  application.on_escape = [&program](const std::exception_ptr& failure) {
    TellEscaped(program, failure);
  };
  int answered = 0;
  QTimer answer;
  QObject::connect(&answer, &QTimer::timeout, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    window.repaint();
    QTest::keyClick(box, Qt::Key_Return);
    window.repaint();
    ++answered;
  });
  answer.start(5);
  window.failing = QEvent::Paint;
  window.repaint();
  QTest::qWait(300);
  EXPECT_EQ(answered, 1);
}

// A failure box asked for in the middle of painting comes up behind it.
TEST_F(Net, ABoxThatPaintingAsksForComesAfterIt) {
  int boxes = 0;
  struct BoxingWindow : QWidget {
    explicit BoxingWindow(const int& count) : boxes(count) {}
    const int& boxes;
    int boxes_while_painting = 0;
    void paintEvent(QPaintEvent*) override {
      EXPECT_EQ(
          QtBoxes().Show(
              {.title = "Kelvora FOOD", .text = "in the middle", .buttons = BoxButtons::yes_no}),
          BoxAnswer::no);
      boxes_while_painting += boxes;
    }
  } boxing(boxes);
  QTimer answer;
  QObject::connect(&answer, &QTimer::timeout, [&] {
    if (QWidget* const box = QApplication::activeModalWidget()) {
      ++boxes;
      boxing.hide();
      box->close();
    }
  });
  answer.start(5);
  boxing.show();
  QTRY_VERIFY_WITH_TIMEOUT(boxes >= 1, 5000);
  EXPECT_EQ(boxing.boxes_while_painting, 0);
}

}  // namespace
}  // namespace kelvora
