// KV_add_voedingsmiddel, the dialog for a new food of the own list. A picture of a NewFoodForm: it
// draws what adding.h makes of it and passes on what is typed and which box is left. It stays open
// after a food was added, for the next one.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>

#include "core/views.h"
#include "food/adding.h"

class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;

namespace kelvora {

class NumberBox;
class TextBox;

class NewFoodDialog : public QDialog, public WindowView {
  Q_OBJECT

 public:
  NewFoodDialog(Program& program, QWidget* parent);
  ~NewFoodDialog() override;

  void CloseWindow() override;
  void Set_Taal() override;
  void FollowSettings() override;
  void done(int result) override;
  // While a food is on its way to the server, Escape and "Cancel" only give that up.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  // A widget and the text that it takes from the tables; a box is read aloud with the heading of
  // its frame in front.
  struct Caption {
    QWidget* widget;
    TextId text;
    std::optional<TextId> frame = std::nullopt;
    std::optional<TextId> tip = std::nullopt;
  };
  // The two boxes of a weight.
  struct WeightEdits {
    NumberBox* gram = nullptr;
    NumberBox* oz = nullptr;
  };

  QGroupBox* BuildPrintedFrame();
  QGroupBox* BuildPortionFrame();
  QHBoxLayout* BuildButtons();
  QGridLayout* MakeGrid(QGroupBox* frame, TextId heading);
  void AddIntroduction(QGridLayout* grid);
  void AddNameAndUnit(QGridLayout* grid);
  WeightEdits AddWeight(QGridLayout* grid, const char* stem, TextId caption, TextId tip,
                        WeightBoxes NewFoodForm::*boxes);
  NumberBox* AddWeightBox(QWidget* frame, const QString& name, WeightUnit unit,
                          WeightBoxes NewFoodForm::*boxes);
  void AddValueCaptions(QGridLayout* grid, const char* stem);
  NumberBox* AddPrintedValue(QWidget* frame, std::size_t index);
  TextBox* AddPortionValue(QWidget* frame, std::size_t index);
  QLabel* AddLabel(QWidget* frame, const QString& name, TextId text);

  void ShowForm();
  void TakeTexts();
  void LeaveFocusedBox();
  void Add();
  // Nothing can be entered while a food is on its way to the server.
  void ShowSending(bool sending);
  void BeginNextFood();
  // Puts the focus into a box, with its text selected.
  void GoTo(NewFoodBox box);
  [[nodiscard]] QLineEdit* BoxOf(NewFoodBox box) const;
  // Runs what leaving a box leads to, while the dialog is open.
  template <class Leave>
  void AfterLeaving(Leave leave);

  Program& program_;
  OpenFlag<WindowView> open_flag_;
  NewFoodForm form_;
  FoodSubmission submission_;
  std::vector<Caption> captions_;
  std::vector<NumberBox*> number_boxes_;
  WeightEdits printed_weight_, portion_weight_;
  std::array<NumberBox*, FoodValue::kCount> txt_s_{};
  std::array<TextBox*, FoodValue::kCount> txt_d_{};
  std::array<QGroupBox*, 2> frames_{};
  QLabel* lbl_info_;
  QCheckBox* chk_kj_;
  TextBox* txt_dNaam_;
  QComboBox* combo_dEenheid_;
  TextBox* unit_;  // the box of combo_dEenheid_
  QCheckBox* chk_inet_;
  QPushButton* cmd_opslaan_;
  QPushButton* cmd_annuleer_;
};

// Shows the dialog over `parent` and returns when it is closed.
void ShowNewFoodDialog(Program& program, QWidget* parent);

}  // namespace kelvora
