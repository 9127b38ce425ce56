// The food lists window: the source of all food that is eaten. A picture of the lists that
// food_lists.h fills; it passes typing, choices and drags on.
#pragma once

#include <array>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QWidget>

#include "core/program.h"
#include "food/food_lists.h"
#include "food/food_table_panel.h"

namespace kelvora {

class FoodListsWindow : public QWidget, public FoodListsView {
  Q_OBJECT

 public:
  FoodListsWindow(Program& program, QWidget* parent);

  void CloseWindow() override;
  void Set_Taal() override;
  void Toon_Standaardlijst() override;
  void Populate_Food_List_Custom() override;
  void Populate_Food_List_Favo() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void BuildToolbar();
  void BuildSearchPanel();
  void BuildViews();
  void BuildStatusBar();
  void ShowView(FoodView view);
  void Populate(FoodView view);
  void SetColumnWidths(FoodView view);
  void ShowResults();
  void ShowStatus();
  [[nodiscard]] FoodTable& TableOf(FoodView view) {
    return *tables_[static_cast<std::size_t>(view)];
  }

  Program& program_;
  OpenFlag<FoodListsView> open_flag_;
  FoodLists lists_;
  bool results_shown_ = false;  // the status tells how many were found, not how many there are
  QToolBar* Toolbar_;
  std::array<QAction*, 4> view_actions_;
  QWidget* Pic_zoek_;
  QLabel* txt_catuitleg_;
  QComboBox* combo_cat_;
  QLabel* txt_zoekuitleg_;
  QLineEdit* txt_zoeken_;
  QStackedWidget* stack_;
  std::array<FoodTable*, 4> tables_;
  QStatusBar* StatusBar_;
  std::array<QLabel*, 2> panels_;
};

}  // namespace kelvora
