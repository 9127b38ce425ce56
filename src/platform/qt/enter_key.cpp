#include "platform/qt/enter_key.h"

#include <QApplication>
#include <QGroupBox>
#include <QKeyEvent>

namespace kelvora {
namespace {

class GroupFilter : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    const auto* const group = qobject_cast<QGroupBox*>(object);
    if (group == nullptr || group->isCheckable()) return false;
    event->ignore();  // and so it goes on to what holds the group
    return true;
  }
};

}  // namespace

void LetEnterThroughGroups(QApplication& application) {
  auto* const filter = new GroupFilter(&application);
  filter->setObjectName(QStringLiteral("group_filter"));
  application.installEventFilter(filter);
}

}  // namespace kelvora
