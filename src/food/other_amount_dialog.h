// Asks how much of the food of a row there is. Knows no day: `change` tries the amount and tells
// why it can't be, beside the box.
#pragma once

#include <functional>
#include <optional>

#include <QDialog>

#include "core/program.h"
#include "food/amount_box_panel.h"

namespace kelvora {

class OtherAmountDialog : public QDialog {
  Q_OBJECT

 public:
  using Change = std::function<std::optional<AmountFault>(const Amount& amount)>;

  // `food` is the name that the question is about, `now` what stands in the box at first.
  OtherAmountDialog(Program& program, std::string_view food, std::string_view now, Change change,
                    QWidget* parent);

  void accept() override;

 private:
  const Change change_;
  AmountBox* txt_amount_;
};

}  // namespace kelvora
