// LV_user_files, the days that can be exported: whole rows, any number of them, as the platform
// selects rows. Draws the rows it is given.
#pragma once

#include <vector>

#include <QTableView>

#include "output/export_list.h"
#include "platform/qt/text_table_model.h"

namespace kelvora {

class ExportTable : public QTableView {
  Q_OBJECT

 public:
  ExportTable(Program& program, QWidget* parent);

  // Assigns every caption from the text tables.
  void Set_Taal();
  // Takes the place of all rows; nothing is selected.
  void ShowDays(std::vector<ExportRow> rows);

  [[nodiscard]] const std::vector<ExportRow>& Rows() const { return rows_; }
  // From the top.
  [[nodiscard]] std::vector<std::size_t> SelectedRows() const;

 signals:
  // The user has clicked in the list, or chosen rows of it by key.
  void OwnSelectionMade();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowModel();
  void SetColumnWidths();
  [[nodiscard]] int WidthFor(std::size_t column, int given_twips) const;
  bool SelectRowInFocus(const QKeyEvent& event);

  Program& program_;
  std::vector<ExportRow> rows_;
  TextTableModel model_;
};

}  // namespace kelvora
