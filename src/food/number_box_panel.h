// A text box for a number: it takes only the keys of its filter, whether they are typed, pasted or
// dropped, and tells when a user leaves it. It knows nothing of what its number means.
#pragma once

#include "platform/qt/text_box.h"

namespace kelvora {

class NumberBox : public TextBox {
  Q_OBJECT

 public:
  NumberBox(QWidget* parent, const QString& object_name, KeyFilter filter,
            const EntryContext& context);

 signals:
  // Something was typed; the box already shows what the filter left of it.
  void Typed();
  // The focus went to another place in the program's own window. Not sent when a whole window
  // loses the focus: a box that appears or another program is no end of typing.
  void Left();

 protected:
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace kelvora
