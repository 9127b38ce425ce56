// The entry of the program: makes the platform, the program and the main window, and starts.
#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "core/frame/main_window.h"
#include "core/frame/startup.h"
#include "platform/qt/look.h"
#include "platform/qt/qt_platform.h"

int main(int argc, char** argv) {
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("kelvora-food"));
  QApplication::setDesktopFileName(QStringLiteral("kelvora-food"));
  QApplication::setWindowIcon(kelvora::IconNamed("kelvora-food"));

  // Buttons of boxes and the like are the toolkit's own, in the language of the system.
  QTranslator toolkit_texts;
  if (toolkit_texts.load(QLocale::system(), QStringLiteral("qtbase"), QStringLiteral("_"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&toolkit_texts);
  }

  kelvora::QtPlatform platform;
  kelvora::Program program(platform.Get());
  kelvora::MainWindow window(program);
  kelvora::StartUp(program);
  return QApplication::exec();
}
