// Drops on a whole window: what its list takes, headings, bars and boxes around it take for the
// list.
#pragma once

#include <QObject>

#include "food/food_table_panel.h"

namespace kelvora {

class WindowDrops : public QObject {
  Q_OBJECT

 public:
  // `window` has the list and owns this.
  WindowDrops(QWidget* window, FoodTable* list);

  // Lets a widget take drops for the list: the window, and the frame around it.
  void TakeOn(QWidget* widget);
  // Lets a box that takes other texts leave those for the list to what it stands on.
  void PassOn(QWidget* box);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  FoodTable* list_;
  bool over_ = false;  // a drag that the list takes is over the widget
  QList<QObject*> passing_;
};

}  // namespace kelvora
