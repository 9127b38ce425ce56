// The menu of a row in a consumption window, and the shortcuts of its entries while the list has
// the focus: what the mouse does by dragging, and the buttons of the window.
#pragma once

#include <array>
#include <functional>

#include <QMenu>

#include "core/program.h"
#include "food/consumption_moves.h"

namespace kelvora {

class RowMenu : public QMenu {
  Q_OBJECT

 public:
  // `selected` gives the names of the selected rows; `list` is the widget whose keys count.
  RowMenu(Program& program, DayPart part, std::function<TextList()> selected, QWidget* list);

  // The actions of the window's buttons, at the top.
  void AddButtons(const QList<QAction*>& buttons);
  void SetTexts(std::string_view title);
  void ShowAt(const QPoint& place);

 private:
  template <class Run>
  QAction* AddEntry(const char* name, std::string_view icon, QKeyCombination keys, Run run);
  void Cut();
  void Paste();
  void EnableForRows(bool any);

  Program& program_;
  const DayPart part_;
  const std::function<TextList()> selected_;
  QWidget* list_;
  std::array<QAction*, 3> moves_{};  // none to this window's own part
  QAction* take_out_;
  QAction* cut_;
  QAction* paste_;
  QAction* favourite_;
};

}  // namespace kelvora
