// LV_browse_files, the list of days: whole rows, several at once, sorted by a click on a heading,
// with its context menu. Draws the rows it is given; what opening and deleting do is told by the
// window that has it.
#pragma once

#include <optional>
#include <vector>

#include <QAction>
#include <QMenu>
#include <QTableView>

#include "days/day_list.h"
#include "platform/qt/text_table_model.h"

namespace kelvora {

class DayTable : public QTableView {
  Q_OBJECT

 public:
  DayTable(Program& program, QWidget* parent);

  // Assigns every caption from the text tables.
  void Set_Taal();
  // Takes the place of all rows, in the order given; nothing is selected. The last row can be seen.
  void ShowDays(std::vector<DayRow> rows);
  // Brings a row into the focus, or the last one if there are fewer, without selecting it.
  void FocusRow(std::size_t row);

  [[nodiscard]] const std::vector<DayRow>& Rows() const { return rows_; }
  // From first to last.
  [[nodiscard]] std::vector<std::size_t> SelectedRows() const;
  [[nodiscard]] std::optional<std::size_t> FocusedRow() const;

 signals:
  void OpenAsked();
  void DeleteAsked();
  void TakeOverAsked();

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void BuildMenu();
  void ShowModel();
  void SortByHeading(int column);
  void ShowSortMark();
  void SelectOnly(std::vector<std::size_t> rows);
  void SetColumnWidths();

  Program& program_;
  std::vector<DayRow> rows_;
  DayListSort sort_;
  TextTableModel model_;
  QMenu* mnu_opties_;
  QAction* mnu_open_;
  QAction* mnu_del_dag_;
  QAction* mnu_take_over_;
};

}  // namespace kelvora
