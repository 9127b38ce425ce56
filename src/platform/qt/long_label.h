// A label for a text of any length: it never makes its window wider. What does not fit is left out
// in the middle, and the tool tip then has the whole.
#pragma once

#include <QLabel>

namespace kelvora {

class LongLabel : public QLabel {
  Q_OBJECT

 public:
  LongLabel(QWidget* parent, const QString& object_name);
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  [[nodiscard]] QRect Place() const;
  [[nodiscard]] QString Fitting() const;
};

}  // namespace kelvora
