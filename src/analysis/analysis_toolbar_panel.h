// The toolbar of an analysis window: one button a view, of which one is down, and the menus that
// drop down from some of them. It only tells what was chosen.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "analysis/analysis_views.h"
#include "platform/qt/tool_bar.h"

class QAction;
class QMenu;

namespace kelvora {

class AnalysisToolbar : public ToolBar {
  Q_OBJECT

 public:
  AnalysisToolbar(std::span<const AnalysisButton> rows, QWidget* parent);

  void Set_Taal(const TextTables& texts);
  void Press(AnalysisView view);
  // Enables the entries of that view's menu, and disables those of all others.
  void EnableMenu(std::optional<AnalysisView> view);
  // Marks the entries of a menu whose choice holds.
  void Mark(AnalysisView view, std::span<const int> positions);

 signals:
  void ViewChosen(kelvora::AnalysisView view);
  // The position counts separators too, from 1.
  void EntryChosen(int position);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Button {
    const AnalysisButton* row;
    QAction* action;
    QMenu* menu;  // null without one
  };

  QMenu* AddMenu(QToolButton* button, const AnalysisButton& row);

  std::vector<Button> buttons_;
};

}  // namespace kelvora
