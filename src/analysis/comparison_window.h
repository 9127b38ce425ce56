// `KV_tb_weegschaal`: two foods side by side, on one tab per portion and on one per 100 grams, and
// a tab of help. It draws two ComparedFoods. A food comes by a drop on the field of a box, which
// stands on both tabs, or from the menu of a row in the food lists.
#pragma once

#include <array>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QTabWidget>
#include <QWidget>

#include "analysis/comparison.h"
#include "analysis/food_drop_panel.h"

namespace kelvora {

class ComparisonWindow : public QWidget, public ComparisonView {
  Q_OBJECT

 public:
  ComparisonWindow(Program& program, QWidget* parent);

  void CloseWindow() override;
  void Set_Taal() override;
  void TakeFood(CompareBox box, std::string_view payload) override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  static constexpr std::size_t kBoxes = 2;
  static constexpr std::size_t kHelpTexts = 5;

  // One box on one tab.
  struct Column {
    QGroupBox* food_frame;
    FoodDropPanel* Pic_drop;
    QLabel* txt_Voedingsmiddel;
    QGroupBox* details_frame;
    std::array<QLabel*, kComparedRows> captions;
    std::array<QLabel*, kComparedRows> values;
    std::array<QLabel*, kComparedRows> units;
    QLabel* lbl_oz;
  };
  using Page = std::array<Column, kBoxes>;

  [[nodiscard]] Page BuildPage(QChar tab);
  void BuildFoodFrame(Column& column, std::size_t box, QChar tab);
  void BuildDetails(Column& column, std::size_t box, QChar tab);
  void BuildHelp();
  void ShowBox(std::size_t box);
  void ShowColumn(const Column& column, std::size_t box, bool per_100);

  Program& program_;
  OpenFlag<ComparisonView> open_flag_;
  std::array<ComparedFood, kBoxes> foods_;
  QTabWidget* TabStrip_;
  Page per_unit_;
  Page per_100_;
  QGroupBox* Frame_hulp_;
  std::array<QLabel*, kHelpTexts> help_;
};

}  // namespace kelvora
