#include "platform/qt/choice_list.h"

#include <QKeyEvent>

#include "platform/qt/look.h"

namespace kelvora {

ChoiceList::ChoiceList(QWidget* parent, const char* object_name) : QComboBox(parent) {
  NameWidget(this, object_name);
}

void ChoiceList::keyPressEvent(QKeyEvent* event) {
  const QString typed = event->text();
  if (!typed.isEmpty() && typed.front().isPrint() && event->key() != Qt::Key_Space) return;
  QComboBox::keyPressEvent(event);
}

}  // namespace kelvora
