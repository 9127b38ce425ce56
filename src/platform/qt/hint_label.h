// A label of quiet words: why a list is empty, what a box expects. Its grey lies between the
// letters and the ground of the widget that it stands on, as far from the ground as reading needs
// (a contrast of 4.5 to 1), whatever the palette; it follows a change of the palette.
#pragma once

#include <QColor>
#include <QLabel>

namespace kelvora {

// The contrast of two colours, 1 to 21, by their relative luminance.
[[nodiscard]] double ContrastOf(const QColor& one, const QColor& other);

// The grey nearest to `ground` on the way from `letters` to it that can be read on it; `letters`
// themselves where they can't be read well either.
[[nodiscard]] QColor HintColour(const QColor& letters, const QColor& ground);

class HintLabel : public QLabel {
 public:
  HintLabel(QWidget* parent, const QString& object_name);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void TakeColour();

  bool taking_colour_ = false;
};

}  // namespace kelvora
