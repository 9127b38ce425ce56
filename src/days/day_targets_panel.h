// The third tab of the day dialog: the priority nutrient and the daily targets with their sliders.
#pragma once

#include <array>
#include <vector>

#include <QWidget>

#include "days/day_settings.h"
#include "days/targets.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QSlider;

namespace kelvora {

class TextBox;

class DayTargetsPanel : public QWidget {
  Q_OBJECT

 public:
  DayTargetsPanel(Program& program, DayEditing& editing, QWidget* parent);

  void Set_Taal();
  void ShowForm();

 private:
  struct Row {
    QLabel* caption;
    QSlider* slider;
    TextBox* box;
    QLabel* unit;
  };

  QGroupBox* BuildPriority();
  QGroupBox* BuildTargets();
  TextBox* MakeBox(QGroupBox* group, std::string_view name);
  void AddSliderRow(QGroupBox* group, Target target);
  void TakeSlider(Target target, int position);
  void TakeAgeGroup(int index);
  void TakePriority(int index);
  void ShowBoxes();
  void NameSliders();

  Program& program_;
  DayEditing& editing_;
  QGroupBox* priority_;
  QButtonGroup* type_prioriteit_;
  QGroupBox* targets_;
  std::array<Row, kTargetCount> rows_{};
  TextBox* txt_kcal_;
  QLabel* kcal_unit_;
  QLabel* lbl_default_;
  QComboBox* Combo_default_;
  QCheckBox* chk_apply_;
};

}  // namespace kelvora
