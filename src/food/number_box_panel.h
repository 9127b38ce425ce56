// A text box for a number: it takes only the keys of its filter, whether they are typed, pasted or
// dropped, and tells when a user leaves it. It knows nothing of what its number means.
#pragma once

#include <QLineEdit>

#include "core/key_filter.h"
#include "platform/locale.h"

namespace kelvora {

class NumberBox : public QLineEdit {
  Q_OBJECT

 public:
  // `locale` is asked for the decimal separator at every key; it must outlive the box.
  NumberBox(QWidget* parent, const QString& object_name, KeyFilter filter, const Locale& locale);

 signals:
  // Something was typed; the box already shows what the filter left of it.
  void Typed();
  // The focus went to another place in the program's own window. Not sent when a whole window
  // loses the focus: a box that appears or another program is no end of typing.
  void Left();

 protected:
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void FilterTyping();

  KeyFilter filter_;
  const Locale& locale_;
};

}  // namespace kelvora
