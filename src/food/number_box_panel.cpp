#include "food/number_box_panel.h"

#include <QFocusEvent>

namespace kelvora {

NumberBox::NumberBox(QWidget* parent, const QString& object_name, KeyFilter filter,
                     const EntryContext& context)
    : TextBox(parent, object_name, context, {.filter = filter}) {
  setAlignment(Qt::AlignRight);
  connect(this, &QLineEdit::textEdited, this, &NumberBox::Typed);
}

void NumberBox::focusOutEvent(QFocusEvent* event) {
  TextBox::focusOutEvent(event);
  const Qt::FocusReason reason = event->reason();
  if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) return;
  emit Left();
}

}  // namespace kelvora
