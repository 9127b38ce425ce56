// A label of quiet words: why a list is empty, what a box expects. Its grey lies between the
// letters and the ground of the widget that it stands on, as far from the ground as reading needs
// (a contrast of 4.5 to 1), whatever the palette; it follows a change of the palette. Where there
// is no room for all of its lines it is cut to those that fit, with a mark.
#pragma once

#include <QLabel>

#include "platform/qt/contrast.h"

namespace kelvora {

class HintLabel : public QLabel {
 public:
  HintLabel(QWidget* parent, const QString& object_name);
  [[nodiscard]] bool IsCut() const;

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void TakeColour();

  bool taking_colour_ = false;
};

}  // namespace kelvora
