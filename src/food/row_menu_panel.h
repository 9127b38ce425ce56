// The menu of a row in a consumption window, and the shortcuts of its entries while the list has
// the focus: what the mouse does by dragging, the buttons of the window, the clipboard, taking over
// from another day and undoing.
#pragma once

#include <array>
#include <functional>
#include <optional>

#include <QMenu>

#include "core/keys.h"
#include "core/program.h"
#include "food/consumption_moves.h"

namespace kelvora {

class RowMenu : public QMenu {
  Q_OBJECT

 public:
  // `selected` gives the names of the selected rows and `rows` their places; `list` is the widget
  // whose keys count.
  RowMenu(Program& program, DayPart part, std::function<TextList()> selected,
          std::function<std::vector<std::size_t>()> rows, QWidget* list);

  // The actions of the window's buttons, at the top.
  void AddButtons(const QList<QAction*>& buttons);
  void SetTexts(std::string_view title);
  void ShowAt(const QPoint& place);

 signals:
  // What the window does with one row.
  void DetailsAsked();
  void AmountAsked();

 private:
  template <class Run>
  QAction* AddEntry(const char* name, std::string_view icon, std::optional<BoundKey> key, Run run);
  void Cut();
  void Copy();
  void Paste();
  void EnableForRows(bool any);

  Program& program_;
  const DayPart part_;
  const std::function<TextList()> selected_;
  const std::function<std::vector<std::size_t>()> rows_;
  QWidget* list_;
  std::array<QAction*, 3> moves_{};  // none to this window's own part
  QList<QAction*> buttons_;
  QAction* details_;
  QAction* amount_;
  QAction* take_out_;
  QAction* cut_;
  QAction* copy_;
  QAction* paste_;
  QAction* favourite_;
  QAction* take_over_;
  QAction* undo_;
  QAction* redo_;
};

}  // namespace kelvora
