// The two kinds of lists that stay closed until somebody opens them. The wheel changes neither but
// while it has the focus: whoever scrolls past a list doesn't mean it.
#pragma once

#include <QComboBox>

namespace kelvora {

class DropDownList : public QComboBox {
 public:
  DropDownList(QWidget* parent, const char* object_name);

 protected:
  void wheelEvent(QWheelEvent* event) override;
};

// One that takes no typing either: a letter never changes what it shows.
class ChoiceList : public DropDownList {
 public:
  using DropDownList::DropDownList;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace kelvora
