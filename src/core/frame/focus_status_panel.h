// A status bar that the keyboard comes to, so that a screen reader reads what stands in it.
#pragma once

#include <QStatusBar>

namespace kelvora {

class FocusStatusBar : public QStatusBar {
  Q_OBJECT

 public:
  explicit FocusStatusBar(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace kelvora
