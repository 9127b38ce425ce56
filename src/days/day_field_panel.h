// One text box of the day dialog: a picture of its field in the form. Passes what is typed or
// pasted through the field's filter and limit, and takes it into the form when it is left.
#pragma once

#include "days/day_form.h"
#include "platform/qt/text_box.h"

namespace kelvora {

class DayFieldBox : public TextBox {
  Q_OBJECT

 public:
  DayFieldBox(Program& program, DayForm& form, DayFieldId id, QWidget* parent);
  ~DayFieldBox() override;

  [[nodiscard]] DayFieldId Id() const { return id_; }
  // Assigns the words by which assistive tools know the box.
  void Set_Taal();
  void ShowForm();
  void TakeForm();

 signals:
  // The form holds something else now.
  void Taken();

 private:
  Program& program_;
  DayForm& form_;
  DayFieldId id_;
};

}  // namespace kelvora
