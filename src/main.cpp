// The entry of the program: makes the platform, the program and the main window, and starts.
#include "core/frame/ending.h"
#include "core/frame/main_window.h"
#include "core/frame/net.h"
#include "core/frame/outside_commands.h"
#include "core/frame/startup.h"
#include "platform/qt/ending_requests.h"
#include "platform/qt/enter_key.h"
#include "platform/qt/guarded_application.h"
#include "platform/qt/help_key.h"
#include "platform/qt/look.h"
#include "platform/qt/program_style.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/readable_palette.h"
#include "storage/disk.h"

int main(int argc, char** argv) {
  kelvora::IgnoreFileSignals();
  QApplication::setStyle(new kelvora::ProgramStyle);
  kelvora::GuardedApplication application(argc, argv);
  kelvora::KeepTextsReadable(application);
  kelvora::LetEnterThroughGroups(application);
  QApplication::setApplicationName(QStringLiteral("kelvora-food"));
  QApplication::setDesktopFileName(QStringLiteral("kelvora-food"));
  QApplication::setWindowIcon(kelvora::IconNamed("kelvora-food"));
  // The main window ends the program, and nothing else does: a splash or a dialog may be the last
  // window to go, and the event loop that is to end need not be the outermost one.
  QApplication::setQuitOnLastWindowClosed(false);

  kelvora::QtPlatform platform;
  kelvora::Program program(platform.Get());
  program.actions.Begin();
  application.on_action = [&program] {
    program.actions.Begin();
    kelvora::TakeSessionAsGoingOn(program);
  };
  application.on_escape = [&program](const std::exception_ptr& failure) {
    kelvora::TellEscaped(program, failure);
  };
  kelvora::LetF1Ask(application, [&program](const std::vector<std::string>& names) {
    kelvora::OpenHelp(program, kelvora::HelpPageOf(names));
  });
  kelvora::MainWindow window(program);
  kelvora::EndingRequests requests;
  requests.on_signal = [&program] { kelvora::EndBySignal(program); };
  requests.on_session_end = [&program] { kelvora::PrepareForSessionEnd(program); };
  kelvora::StartUp(program);
  return program.ending ? 0 : QApplication::exec();
}
