// A toolbar for the keyboard as well: one stop of the Tab key, which comes to the button that was
// used last. From there Left, Right, Home and End go from button to button, round the ends; Down
// opens the menu of a button that has one, Space and Enter press it. Clicks leave the focus where
// it is.
#pragma once

#include <vector>

#include <QPointer>
#include <QToolBar>
#include <QToolButton>

class QKeyEvent;

namespace kelvora {

class ToolBar : public QToolBar {
  Q_OBJECT

 public:
  ToolBar(QWidget* parent, const char* object_name);

  // The names of the bar and of the button behind which those wait that find no room.
  void SetNames(const QString& bar, const QString& more);
  // Gives the focus to the button that Tab comes to; false where no button can be used.
  bool TakeFocus(Qt::FocusReason reason);

 protected:
  void actionEvent(QActionEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void Adopt(QToolButton* button);
  [[nodiscard]] std::vector<QToolButton*> UsableButtons() const;
  void KeepStop();
  void MakeStop(QToolButton* stop);
  bool TakeKey(QToolButton& button, const QKeyEvent& event);
  void Step(QToolButton& button, int steps);
  void FoldWhenLeft();

  std::vector<QToolButton*> buttons_;  // in their order; the toolbar owns them
  QToolButton* more_;                  // the last of them, the toolkit's own
  QPointer<QToolButton> stop_;         // the only button that Tab comes to
  bool used_ = false;                  // the keyboard has been at that one
};

}  // namespace kelvora
