// Window tests share one application object; the platform is Qt's offscreen one.
#include <gtest/gtest.h>

#include "platform/qt/guarded_application.h"
#include "platform/qt/program_style.h"
#include "platform/qt/readable_palette.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication::setStyle(new kelvora::ProgramStyle);
  testing::InitGoogleTest(&argc, argv);
  // Without a net of its own an exception ends the test that it escapes from.
  kelvora::GuardedApplication application(argc, argv);
  QApplication::setPalette(kelvora::ReadablePalette(QApplication::palette()));
  return RUN_ALL_TESTS();
}
