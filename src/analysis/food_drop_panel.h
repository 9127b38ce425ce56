// A field of the comparison that a food is dropped on: a picture with the number of the box. With
// the focus on it, Enter shows the details of its food, as a double click does.
#pragma once

#include <functional>

#include <QIcon>
#include <QWidget>

#include "core/text.h"

namespace kelvora {

class FoodDropPanel : public QWidget {
  Q_OBJECT

 public:
  FoodDropPanel(QWidget* parent, const QString& object_name, const QIcon& picture);

  // Takes a text that was dropped.
  std::function<void(const Text& payload)> drop;

  [[nodiscard]] QSize sizeHint() const override;

 signals:
  void DetailsAsked();

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void SetDropLight(bool on);

  const QIcon picture_;
  bool drop_light_ = false;
};

}  // namespace kelvora
