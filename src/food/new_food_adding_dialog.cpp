// Adding the food of the dialog for a new food: the button, and the time while the food is on its
// way to the food server.
#include <QCloseEvent>
#include <QGroupBox>

#include "food/new_food_dialog.h"

namespace kelvora {

void NewFoodDialog::Add() {
  // Enter adds from within a box, and what was typed there counts.
  LeaveFocusedBox();
  TakeTexts();
  const AddedFood result = AddNewFood(program_, form_, submission_, [this] { BeginNextFood(); });
  if (submission_.IsUnderWay()) return ShowSending(true);
  if (result.sending) return;
  ShowForm();
  if (result.look_at) return GoTo(*result.look_at);
  if (result.added) GoTo({NewFoodBox::Kind::printed_gram});
}

void NewFoodDialog::ShowSending(bool sending) {
  // The boxes that lose the focus by it have been left already.
  if (sending) cmd_annuleer_->setFocus();
  for (QGroupBox* const frame : frames_) frame->setEnabled(!sending);
  cmd_opslaan_->setEnabled(!sending);
  chk_inet_->setEnabled(!sending && MayAddToInternet(program_));
}

void NewFoodDialog::BeginNextFood() {
  ShowSending(false);
  ShowForm();
  GoTo({NewFoodBox::Kind::printed_gram});
}

void NewFoodDialog::reject() {
  if (submission_.IsUnderWay()) return submission_.GiveUp();
  QDialog::reject();
}

void NewFoodDialog::closeEvent(QCloseEvent* event) {
  submission_.GiveUp();
  QDialog::closeEvent(event);
}

}  // namespace kelvora
