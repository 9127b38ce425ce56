// The fields on the first tab of the day dialog: the person and the day, laid out for the unit
// system of the settings, with the same values in other units beside them.
#pragma once

#include <optional>
#include <vector>

#include <QWidget>

#include "days/day_field_panel.h"

class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;

namespace kelvora {

class DayPersonPanel : public QWidget {
  Q_OBJECT

 public:
  DayPersonPanel(Program& program, DayForm& form, QWidget* parent);

  void Set_Taal();
  void ShowForm();
  void TakeForm();
  void SetNameEnabled(bool enabled);
  void FocusName();
  // What changes from day to day, ready to be overtyped.
  void FocusWeight();

 private:
  // A caption and the texts that it takes from the tables.
  struct Caption {
    QLabel* label;
    TextId text;
  };

  QGroupBox* BuildPerson();
  QGroupBox* BuildDay();
  DayFieldBox* MakeBox(QGroupBox* group, DayFieldId id);
  QLabel* AddCaption(QGridLayout* grid, int row, const QString& name, TextId text);
  QLabel* AddHint(QGridLayout* grid, int row, const char* name);
  void AddFieldRow(QGroupBox* group, int row, DayFieldId id);
  void AddMeasureRow(QGroupBox* group, int row, const std::vector<DayFieldId>& ids, TextId caption,
                     TextId unit);
  void AddDateRow(QGroupBox* group, int row);
  [[nodiscard]] DayFieldBox* BoxOf(DayFieldId id) const;
  void ShowGender();
  void ShowHints();

  Program& program_;
  DayForm& form_;
  bool metric_;
  std::vector<DayFieldBox*> boxes_;
  std::vector<Caption> captions_;
  QGroupBox* person_;
  QGroupBox* day_;
  QComboBox* pg_7_;
  QLabel* lbl_lengteinfo_;
  QLabel* lbl_gewichtinfo_;
  QLabel* lbl_streefgewichtinfo_;
  QLabel* lbl_datuminfo_;
};

}  // namespace kelvora
