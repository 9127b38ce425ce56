// The second tab of the day dialog: the address and the remarks.
#pragma once

#include <vector>

#include <QWidget>

#include "days/day_field_panel.h"
#include "platform/qt/text_area.h"

class QGroupBox;
class QLabel;

namespace kelvora {

class DayAddressPanel : public QWidget {
  Q_OBJECT

 public:
  DayAddressPanel(Program& program, DayForm& form, QWidget* parent);

  void Set_Taal();
  void ShowForm();
  void TakeForm();

 private:
  struct Row {
    QLabel* caption;
    DayFieldBox* box;
  };

  QGroupBox* BuildAddress();
  QGroupBox* BuildRemarks();
  void TakeRemarks();

  Program& program_;
  DayForm& form_;
  std::vector<Row> rows_;
  QGroupBox* address_;
  QGroupBox* remarks_;
  TextArea* pg_14_;
};

}  // namespace kelvora
