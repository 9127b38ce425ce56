// Window tests share one application object; the platform is Qt's offscreen one.
#include <gtest/gtest.h>

#include "platform/qt/guarded_application.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication::setStyle(QStringLiteral("Fusion"));
  testing::InitGoogleTest(&argc, argv);
  // Without a net of its own an exception ends the test that it escapes from.
  kelvora::GuardedApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
