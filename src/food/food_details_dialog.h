// KV_foodpopup, the dialog of one food: its description, its values for the portion and per 100
// grams on two tabs, and its composition. A picture of a FoodDetails: it draws what details.h gives
// it and passes on what is typed. Nothing is kept before it is saved.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

#include "core/views.h"
#include "food/details.h"

class QGridLayout;
class QHBoxLayout;

namespace kelvora {

class CompositionPanel;
class LongLabel;
class NumberBox;
class TextBox;

class FoodDetailsDialog : public QDialog, public WindowView {
  Q_OBJECT

 public:
  FoodDetailsDialog(Program& program, std::string_view tag, std::string_view line, QWidget* parent);
  ~FoodDetailsDialog() override;

  void CloseWindow() override;
  void Set_Taal() override;
  void FollowSettings() override { ShowPortion(); }
  void done(int result) override;

 private:
  // A caption and the texts that it takes from the tables.
  struct Caption {
    QLabel* label;
    TextId text;
  };
  // A frame of values: its heading above seven boxes, each between its caption and its unit.
  struct Frame {
    QWidget* page;
    LongLabel* heading;
    QGridLayout* grid;
  };

  QGridLayout* BuildDescription();
  void AddDescriptionRow(QGridLayout* grid, int row, std::size_t box, TextId caption);
  void AddWeightRow(QGridLayout* grid, int row);
  void BuildTabs();
  Frame MakeFrame(const char* name);
  void BuildPortion();
  void BuildPer100Grams();
  void AddValueRow(const Frame& frame, std::size_t value, TextBox* box);
  QWidget* BuildComposition();
  QHBoxLayout* BuildButtons();
  QLabel* AddCaption(const QString& name, TextId text);

  void ShowDetails();
  void ShowPortion();
  void ShowComposition();
  void ShowButtons();
  // Takes the weight that was typed last, when its box is left or a button is pressed. Merely
  // passing through a box takes nothing: in ounces 100 grams read 3.5, and those are 99 grams.
  void TakeWeight();
  void Edit();
  void Save();
  void LookAtWrongBox();

  Program& program_;
  OpenFlag<WindowView> open_flag_;
  FoodDetails details_;
  std::vector<Caption> captions_;
  std::array<TextBox*, PortionBox::kCount> bVar_{};  // but for the weight, which has two boxes
  std::array<NumberBox*, kValueCount> oVar_{};
  NumberBox* txt_gram_;
  NumberBox* txt_oz_;
  NumberBox* typed_weight_ = nullptr;  // the weight box with a text that was not taken yet
  QTabWidget* TabStrip_;
  Frame Frame_a_{};
  Frame Frame_b_{};
  QLabel* edit_hint_;
  CompositionPanel* pBar_;
  QCheckBox* chk_favo_;
  QPushButton* cmd_bewerk_;
  QPushButton* cmd_opslaan_;
  QPushButton* cmd_annuleer_;
};

// Shows KV_foodpopup for this line over `parent` and returns when it is closed.
void ShowFoodDetailsDialog(Program& program, std::string_view tag, std::string_view line,
                           QWidget* parent);

}  // namespace kelvora
