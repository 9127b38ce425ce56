#include "platform/qt/choice_list.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include "platform/qt/look.h"

namespace kelvora {

DropDownList::DropDownList(QWidget* parent, const char* object_name) : QComboBox(parent) {
  NameWidget(this, object_name);
  setFocusPolicy(Qt::StrongFocus);  // the wheel brings no focus either
}

void DropDownList::wheelEvent(QWheelEvent* event) {
  if (!hasFocus()) return event->ignore();
  QComboBox::wheelEvent(event);
}

void ChoiceList::keyPressEvent(QKeyEvent* event) {
  const QString typed = event->text();
  if (!typed.isEmpty() && typed.front().isPrint() && event->key() != Qt::Key_Space) return;
  QComboBox::keyPressEvent(event);
}

}  // namespace kelvora
