// The area of the child windows: a quiet background with the program's mark, and frames that keep
// their place in the geometry records.
#pragma once

#include <vector>

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

// The frame around one child window. Goes to its record, if it has one, when it opens and writes it
// back when it closes; `record` outlives it. It is never smaller than what it holds needs. Tab goes
// through its content and out of it at the end.
class ChildFrame : public QMdiSubWindow {
  Q_OBJECT

 public:
  // `place` is where it comes among the windows that Ctrl+Tab goes round.
  ChildFrame(QWidget* content, WindowRecord* record, int place);
  void MoveToRecord();
  [[nodiscard]] int Place() const { return place_; }

  // Bring the window to the front and give it the focus: where its content likes to have it or had
  // it last; at its first control or, going back, its last one.
  void TakeFocus();
  void TakeFocusByTab(bool next);

 signals:
  // Tab wants to go on behind the last control, or back before the first.
  void TabbedOut(bool next);

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void HoldContent();
  // What the content is made of, in the order of the Tab key.
  [[nodiscard]] std::vector<QWidget*> Chain() const;
  bool FocusNextStop(const std::vector<QWidget*>& chain, Qt::FocusReason reason);
  bool IsStop(const QWidget& widget) const;

  WindowRecord* record_;
  int place_;
  QSize given_;  // the least size that it was given, and what has become of it
  QSize held_;
};

// Words the menu of a frame anew, which the toolkit does only when it makes one.
void WordFrameMenu(QMdiSubWindow& frame);

}  // namespace kelvora
