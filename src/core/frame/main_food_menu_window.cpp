// What the menu of foods holds beside its commands, and the same menu as a popup for a row of a
// food list.
#include <QMenu>
#include <QMenuBar>

#include "core/frame/main_window.h"
#include "food/day_part_menu_panel.h"
#include "language/own_texts.h"
#include "platform/qt/look.h"

namespace kelvora {

// As a popup for a row of a food list the menu also adds that row to the day and compares it.
void MainWindow::BuildFoodMenu() {
  mnu_opties_ = menuBar()->findChild<QMenu*>(QStringLiteral("mnu_opties"));
  mnu_opties_->addSeparator();  // not drawn while nothing stands below it
  day_part_actions_ = AddDayPartActions(mnu_opties_, [this](DayPart part) {
    if (program_.windows.lists != nullptr) program_.windows.lists->AddSelectedToDay(part);
  });
  amount_action_ = mnu_opties_->addAction(QString());
  amount_action_->setObjectName(QStringLiteral("mnu_opties_amount"));
  connect(amount_action_, &QAction::triggered, this, [this] {
    if (program_.windows.lists != nullptr) program_.windows.lists->AskAmount();
  });
  mnu_opties_->addSeparator();
  for (const CompareBox box : kCompareBoxes) {
    QAction* const action = mnu_opties_->addAction(IconNamed("compare"), QString());
    const auto place = static_cast<std::size_t>(box);
    action->setObjectName(QStringLiteral("mnu_opties_compare_%1").arg(place + 1));
    connect(action, &QAction::triggered, this, [this, box] {
      if (program_.windows.lists != nullptr) program_.windows.lists->CompareSelected(box);
    });
    compare_actions_[place] = action;
  }
  ShowRowItems();
  // The menu hides before the chosen entry acts, and until then its table holds.
  connect(
      mnu_opties_, &QMenu::aboutToHide, this,
      [this] {
        program_.windows.food_menu.reset();
        ShowRowItems();
        UpdateCommands();
      },
      Qt::QueuedConnection);
}

void MainWindow::ShowRowItems() {
  const auto& menu = program_.windows.food_menu;
  const auto of_row = [&menu](QAction* action) {
    action->setVisible(menu.has_value());
    action->setEnabled(menu && menu->day_parts);
  };
  for (QAction* const action : day_part_actions_) of_row(action);
  of_row(amount_action_);
  for (QAction* const action : compare_actions_) action->setVisible(menu && menu->compare);
}

void MainWindow::PopUpFoodMenu(const FoodMenu& enabled, ScreenPlace place) {
  program_.windows.food_menu = enabled;
  ShowRowItems();
  UpdateCommands();
  mnu_opties_->popup({place.x, place.y});
}

void MainWindow::SetFoodMenuTexts() {
  const TextTables& texts = program_.texts;
  SetDayPartTexts(day_part_actions_, texts);
  SetActionTexts(amount_action_, OwnTextOf(texts, OwnText::other_amount), {});
  SetActionTexts(compare_actions_[0], OwnTextOf(texts, OwnText::compare_as_food_1), {});
  SetActionTexts(compare_actions_[1], OwnTextOf(texts, OwnText::compare_as_food_2), {});
}

}  // namespace kelvora
