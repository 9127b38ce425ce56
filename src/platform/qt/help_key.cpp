#include "platform/qt/help_key.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace kelvora {
namespace {

std::vector<std::string> NamesAround(const QWidget* widget) {
  std::vector<std::string> names;
  for (; widget != nullptr; widget = widget->parentWidget()) {
    names.push_back(widget->objectName().toStdString());
  }
  return names;
}

bool IsHelpKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_F1 && event.modifiers() == Qt::NoModifier;
}

class HelpKeyFilter : public QObject {
 public:
  HelpKeyFilter(QObject* parent, HelpAsked asked) : QObject(parent), asked_(std::move(asked)) {}

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    const bool offered = event->type() == QEvent::ShortcutOverride;
    if (!offered && event->type() != QEvent::KeyPress) return false;
    auto* const key = static_cast<QKeyEvent*>(event);
    if (!IsHelpKey(*key)) return false;
    // Whoever takes a key that is offered gets it as a press: so the menu's entry, whose key it is
    // too, doesn't.
    if (offered) {
      event->accept();
      return true;
    }
    const auto* const widget = qobject_cast<const QWidget*>(object);
    if (widget == nullptr) return false;  // the window of the system, before its widget
    if (!key->isAutoRepeat()) Ask(*widget);
    return true;
  }

 private:
  void Ask(const QWidget& widget) {
    if (asking_) return;
    asking_ = true;
    try {
      asked_(NamesAround(&widget));
    } catch (...) {
      asking_ = false;
      throw;
    }
    asking_ = false;
  }

  const HelpAsked asked_;
  bool asking_ = false;
};

}  // namespace

void LetF1Ask(QApplication& application, HelpAsked asked) {
  auto* const filter = new HelpKeyFilter(&application, std::move(asked));
  filter->setObjectName(QStringLiteral("help_key_filter"));
  application.installEventFilter(filter);
}

}  // namespace kelvora
