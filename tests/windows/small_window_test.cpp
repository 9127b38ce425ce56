// Arranged windows in main windows below the size that the arrangements were made for: none leaves
// the area and none lies on another's title bar, in any language.
#include <QStyle>

#include "windows/every_window.h"

namespace kelvora {
namespace {

std::string NameOf(const QMdiSubWindow& frame) {
  return frame.objectName().toStdString();
}

class SmallWindow : public EveryWindow {
 protected:
  // Faults of the windows that stand open in the area.
  static std::vector<std::string> Faults(const QWidget& window, bool beside_each_other) {
    QApplication::processEvents();
    std::vector<std::string> faults;
    const auto frames = OpenFrames(window);
    for (const QMdiSubWindow* const frame : frames) {
      const QRect area = frame->parentWidget()->rect();
      if (!area.contains(frame->geometry())) {
        faults.push_back(NameOf(*frame) + " leaves the area: " + Of(frame->geometry()) + " of " +
                         Of(area));
      }
      if (!beside_each_other) continue;
      QRect title = frame->geometry();
      title.setHeight(frame->style()->pixelMetric(QStyle::PM_TitleBarHeight));
      for (const QMdiSubWindow* const other : frames) {
        if (other == frame || !other->geometry().intersects(title)) continue;
        faults.push_back(NameOf(*other) + " covers " + NameOf(*frame));
      }
    }
    return faults;
  }
  // Those that were closed are deleted later.
  static QList<QMdiSubWindow*> OpenFrames(const QWidget& window) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return window.findChildren<QMdiSubWindow*>();
  }
  static std::string Of(const QRect& place) {
    return std::to_string(place.x()) + "," + std::to_string(place.y()) + " " +
           std::to_string(place.width()) + "x" + std::to_string(place.height());
  }
  static void ExpectNone(const std::vector<std::string>& faults, const std::string& where) {
    for (const std::string& fault : faults) ADD_FAILURE() << where << ": " << fault;
  }
};

TEST_F(SmallWindow, NeverHidesATitleBarNorLosesAWindow) {
  // The least of all, 800 x 600 with frame and bar, and 1366 x 768 at 125%.
  for (const QSize size : {QSize(800, 574), QSize(900, 600), QSize(1092, 574)}) {
    for (const TestLanguage& language : kTestLanguages) {
      language.make(program.texts);
      MainWindow window(program);
      window.resize(size);
      window.Set_Taal();
      window.show();
      QApplication::processEvents();
      test.OpenDay("Anna");
      const std::string where = std::string(language.name) + " " + Of(window.rect());
      ShowDefaultScreens(program);
      EXPECT_EQ(OpenFrames(window).size(), 4);
      ExpectNone(Faults(window, true), where + ", default screens");
      ShowScreensWithSummary(program);
      EXPECT_EQ(OpenFrames(window).size(), 5);
      ExpectNone(Faults(window, true), where + ", all screens");
      ResetScreens(program);
      for (const WindowId id :
           {WindowId::diary, WindowId::day_summary, WindowId::comparison, WindowId::multi_day}) {
        window.OpenWindow(id);
      }
      ExpectNone(Faults(window, false), where + ", others");
      CloseDay(program);
    }
  }
}

// The laid-down geometry in the laid-down least size hides title bars, which is why there is
// another one; here it shows that a fault is seen.
TEST_F(SmallWindow, SeesAFault) {
  MainWindow window(program);
  window.resize(800, 574);
  window.show();
  QApplication::processEvents();
  test.OpenDay("Anna");
  ShowDefaultScreens(program);
  ASSERT_TRUE(Faults(window, true).empty());
  auto* const frame = window.findChildren<QMdiSubWindow*>().front();
  frame->move(frame->x(), frame->y() + 100);
  EXPECT_FALSE(Faults(window, true).empty());
}

}  // namespace
}  // namespace kelvora
