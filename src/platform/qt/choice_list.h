// A list to choose from that takes no typing: a letter never changes what it shows.
#pragma once

#include <QComboBox>

namespace kelvora {

class ChoiceList : public QComboBox {
 public:
  ChoiceList(QWidget* parent, const char* object_name);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace kelvora
