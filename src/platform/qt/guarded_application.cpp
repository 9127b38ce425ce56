#include "platform/qt/guarded_application.h"

#include <QMessageBox>

#include "platform/qt/accessibility.h"

namespace kelvora {
namespace {

// What begins an action of the user. A shortcut comes without a key press of its own, and a window
// that the program itself closes is part of what closes it.
bool BeginsAction(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::Wheel:
    case QEvent::Drop:
      return true;
    case QEvent::Close:
      return event.spontaneous();
    default:
      return false;
  }
}

bool BoxIsUp() {
  return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr;
}

GuardedApplication* TheApplication() {
  return dynamic_cast<GuardedApplication*>(QCoreApplication::instance());
}

// Adds one to a counter for as long as it lives.
class Counted {
 public:
  Counted(int& counter, bool counts) : counter_(counter), counts_(counts) { counter_ += counts_; }
  ~Counted() { counter_ -= counts_; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

 private:
  int& counter_;
  bool counts_;
};

}  // namespace

GuardedApplication::GuardedApplication(int& argc, char** argv) : QApplication(argc, argv) {
  KeepDecorationSilent();
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
  const bool closes = event->type() == QEvent::Close;
  const Counted painting(painting_, event->type() == QEvent::Paint);
  try {
    if (on_action && BeginsAction(*event) && !BoxIsUp()) on_action();
    return QApplication::notify(receiver, event);
  } catch (...) {
    if (!on_escape) throw;
    // A window whose closing failed stays: what it would have asked was not answered.
    if (closes) event->ignore();
    PostEscaped(std::current_exception());
    return false;
  }
}

bool GuardedApplication::IsPainting() {
  const GuardedApplication* const application = TheApplication();
  return application != nullptr && application->painting_ > 0;
}

bool GuardedApplication::TakeEscaped() {
  GuardedApplication* const application = TheApplication();
  if (application == nullptr || !application->on_escape) return false;
  application->PostEscaped(std::current_exception());
  return true;
}

void GuardedApplication::PostEscaped(const std::exception_ptr& failure) {
  if (posted_) return;
  posted_ = true;
  QMetaObject::invokeMethod(
      this,
      [this, failure] {
        posted_ = false;
        if (on_escape) on_escape(failure);
      },
      Qt::QueuedConnection);
}

}  // namespace kelvora
