// The box in which somebody says how much of a food. What its text means is told by amount.h; what
// it can't mean is said beside it.
#pragma once

#include <functional>
#include <optional>

#include <QLabel>

#include "food/amount.h"
#include "platform/qt/text_box.h"

namespace kelvora {

class AmountBox : public TextBox {
  Q_OBJECT

 public:
  AmountBox(QWidget* parent, const EntryContext& entry);

  // What Escape does in an empty box; one that holds something is emptied by it.
  std::function<void()> on_escape;

  void Set_Taal();
  // The amount; nothing, with a word beside the box, if that is none.
  [[nodiscard]] std::optional<Amount> Read();
  // Says why an amount can't be added.
  void Refuse(AmountFault fault);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  EntryContext entry_;
};

}  // namespace kelvora
