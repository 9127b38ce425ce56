// The entry of the program: makes the platform, the program and the main window, and starts.
#include <QApplication>

#include "core/main_window.h"
#include "core/startup.h"
#include "platform/qt/look.h"
#include "platform/qt/qt_platform.h"

int main(int argc, char** argv) {
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("kelvora-food"));
  QApplication::setDesktopFileName(QStringLiteral("kelvora-food"));
  QApplication::setWindowIcon(kelvora::IconNamed("kelvora-food"));

  kelvora::QtPlatform platform;
  kelvora::Program program(platform.Get());
  kelvora::MainWindow window(program);
  kelvora::StartUp(program);
  return QApplication::exec();
}
