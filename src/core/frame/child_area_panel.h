// The area of the child windows: a quiet background with the program's mark, and frames that keep
// their place in the geometry records.
#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPixmap>

#include "core/geometry.h"

namespace kelvora {

class ChildArea : public QMdiArea {
  Q_OBJECT

 public:
  explicit ChildArea(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap mark_;
};

// The frame around one child window. Goes to its record when it opens and writes it back when it
// closes; `record` outlives it. It is never smaller than what it holds needs.
class ChildFrame : public QMdiSubWindow {
  Q_OBJECT

 public:
  ChildFrame(QWidget* content, WindowRecord& record);
  void MoveToRecord();

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void HoldContent();

  WindowRecord& record_;
  QSize given_;  // the least size that it was given, and what has become of it
  QSize held_;
};

// Words the menu of a frame anew, which the toolkit does only when it makes one.
void WordFrameMenu(QMdiSubWindow& frame);

}  // namespace kelvora
