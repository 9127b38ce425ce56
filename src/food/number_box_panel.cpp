#include "food/number_box_panel.h"

#include <QFocusEvent>

#include "platform/qt/text.h"

namespace kelvora {

NumberBox::NumberBox(QWidget* parent, const QString& object_name, KeyFilter filter,
                     const Locale& locale)
    : QLineEdit(parent), filter_(filter), locale_(locale) {
  setObjectName(object_name);
  setAlignment(Qt::AlignRight);
  connect(this, &QLineEdit::textEdited, this, &NumberBox::FilterTyping);
}

void NumberBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  const Qt::FocusReason reason = event->reason();
  if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) return;
  emit Left();
}

void NumberBox::FilterTyping() {
  const Text separator = locale_.DecimalSeparator();
  const auto filtered = [&](const QString& text) {
    return ToQt(ApplyKeyFilter(filter_, FromQt(text), separator));
  };
  const QString kept = filtered(text());
  if (kept != text()) {
    const QString before_cursor = filtered(text().left(cursorPosition()));
    setText(kept);
    setCursorPosition(static_cast<int>(before_cursor.size()));
  }
  emit Typed();
}

}  // namespace kelvora
