// The toolbar of the food lists window: one button a view, of which one is down, and the menus
// that drop down from the own and the internet list. It only tells what was chosen.
#pragma once

#include <array>

#include <QAction>

#include "food/food_lists.h"
#include "platform/qt/tool_bar.h"

class QMenu;

namespace kelvora {

class FoodListsToolbar : public ToolBar {
  Q_OBJECT

 public:
  explicit FoodListsToolbar(QWidget* parent);

  void Set_Taal(const TextTables& texts);
  // Presses the button of the view; the menu of the own list goes with its view.
  void Press(FoodView view);
  // Without the internet its button is not there.
  void ShowInternet(bool shown);
  // The entry of the food server in use is disabled.
  void ShowServer(bool english);

 signals:
  void ViewChosen(kelvora::FoodView view);
  void NewFoodChosen();
  void CopyChosen();
  void ServerChosen(bool english);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QAction* AddEntry(QMenu* menu, const char* key, const char* icon);
  QMenu* AddMenu(FoodView view);
  void BuildOwnMenu();
  void BuildServerMenu();

  std::array<QAction*, kFoodViews.size()> buttons_{};
  QMenu* own_menu_;
  QAction* add_;
  QAction* copy_;
  QAction* dutch_;
  QAction* english_;
};

}  // namespace kelvora
