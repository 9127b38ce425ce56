// The splash: its show on a timer, over a main window that is usable meanwhile.
#include <algorithm>
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QTest>
#include <QTimer>

#include "core/frame/main_window.h"
#include "days/popup_window.h"
#include "platform/qt/qt_platform.h"
#include "support/test_program.h"
#include "windows/find_in.h"

namespace kelvora {
namespace {

class Splash : public testing::Test {
 protected:
  Splash() {
    window.Set_Taal();
    window.show();
    since_start.start();
    window.ShowSplash();
    splash = FindIn<PopupWindow>(window, "KV_popup");
    lit_at_first = LitPictures();  // before any time can pass for its timer
    window.BringToFront();
    QApplication::processEvents();
  }
  bool Lit(int picture) {
    const QString name = QStringLiteral("Loadpic_%1_%2").arg(picture);
    const bool dark = FindIn<QWidget>(*splash, name.arg(0))->isVisible();
    const bool lit = FindIn<QWidget>(*splash, name.arg(1))->isVisible();
    EXPECT_NE(dark, lit) << picture;
    return lit;
  }
  int LitPictures() {
    int count = 0;
    for (int i = 1; i <= kLoadPictures; ++i) count += Lit(i);
    return count;
  }

  TestProgram test;
  MainWindow window{test.program};
  QElapsedTimer since_start;
  QPointer<PopupWindow> splash;
  int lit_at_first = -1;
};

TEST_F(Splash, IsFramelessNotModalAndTakesNoFocus) {
  EXPECT_TRUE(splash->isVisible());
  EXPECT_FALSE(splash->isModal());
  EXPECT_EQ(splash->size(), QSize(431, 239));
  EXPECT_TRUE(splash->windowFlags().testFlag(Qt::FramelessWindowHint));
  // The offscreen platform asks nobody and makes each new window the active one.
  EXPECT_TRUE(splash->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
  EXPECT_TRUE(splash->testAttribute(Qt::WA_ShowWithoutActivating));
  for (const char* name :
       {"lbl_txt1", "lbl_nfo_1", "lbl_txt6", "lbl_nfo_4", "Pic_dankwoord", "cmd_annuleer"}) {
    EXPECT_FALSE(FindIn<QWidget>(*splash, QLatin1String(name))->isVisible()) << name;
  }
  EXPECT_EQ(lit_at_first, 0);
}

TEST_F(Splash, ClicksAndEscapeDoNothingToIt) {
  QTest::mouseClick(splash.data(), Qt::LeftButton);
  QTest::mouseDClick(splash.data(), Qt::LeftButton);
  QTest::keyClick(splash.data(), Qt::Key_Escape);
  ASSERT_FALSE(splash.isNull());
  EXPECT_TRUE(splash->isVisible());
}

// What is shown goes by what has been told so far, however late a busy machine ticks.
TEST_F(Splash, ShowsItsTextsAndPicturesInOrderAndEndsByItselfDuringABox) {
  const QStringList texts = {QString(),
                             QStringLiteral("Loading: Settings..."),
                             QStringLiteral("Loading: Databases..."),
                             QStringLiteral("Loading: Modules..."),
                             QStringLiteral("Loading: Files..."),
                             QStringLiteral("Starting interface")};
  QStringList seen;
  int highest = 0;
  const auto see = [&] {
    if (splash.isNull() || !splash->isVisible()) return;
    const QString text = FindIn<QLabel>(*splash, "loader")->text();
    if (seen.isEmpty() || seen.back() != text) seen.append(text);
    EXPECT_EQ(LitPictures(), texts.indexOf(text));
    highest = qMax(highest, FindIn<QProgressBar>(*splash, "ProgressBar")->value());
  };
  see();
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, see);
  watch.start(20);

  qint64 ended = 0;
  bool box_was_up = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    const bool late = since_start.elapsed() > 15000;
    if (!late && !splash.isNull() && splash->isVisible()) return;
    ended = since_start.elapsed();
    QWidget* const box = QApplication::activeModalWidget();
    box_was_up = box != nullptr && box->objectName() == "message_box";
    look.stop();
    if (box != nullptr) box->close();
  });
  look.start(10);
  QtBoxes boxes;
  boxes.Show({.title = "Kelvora FOOD", .text = "First run"});

  EXPECT_TRUE(box_was_up);
  EXPECT_GE(ended, 1600);
  EXPECT_LT(ended, 6000);
  EXPECT_EQ(seen, texts);
  EXPECT_EQ(highest, 90);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(splash.isNull());
}

TEST_F(Splash, ABoxThatHangsOnItOutlivesItsEnd) {
  QPointer<QDialog> box = new QDialog(splash);
  box->show();
  QMetaObject::invokeMethod(FindIn<QTimer>(*splash, "Timer1"), "timeout");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  ASSERT_FALSE(box.isNull());
  EXPECT_TRUE(box->isVisible());
  EXPECT_FALSE(splash->isVisible());
}

// A window without a frame draws its own, and nothing in it outshines its words.
TEST_F(Splash, HasAFrameAndAFaintMark) {
  const QImage seen = splash->grab().toImage();
  const QRgb frame = splash->palette().color(QPalette::Mid).rgb();
  const int right = seen.width() - 1;
  const int middle = seen.height() / 2;
  for (const QPoint place :
       {QPoint(0, middle), QPoint(right, middle), QPoint(5, 0), QPoint(5, seen.height() - 1)}) {
    EXPECT_EQ(seen.pixel(place), frame) << place.x() << ' ' << place.y();
  }
  EXPECT_NE(seen.pixel(1, middle), frame);
  int darkest = 255, lightest = 0;
  for (int x = right - 100; x < right; ++x) {
    darkest = std::min(darkest, qGray(seen.pixel(x, 30)));
    lightest = std::max(lightest, qGray(seen.pixel(x, 30)));
  }
  EXPECT_GT(lightest - darkest, 2);
  EXPECT_LT(lightest - darkest, 60);
}

}  // namespace
}  // namespace kelvora
