// The list of foods that several windows have: whole rows, several at once, dragged as text and
// taking text. Draws a TextTableModel; what a drag carries and what a drop does is told by the
// window that has it.
#pragma once

#include <functional>
#include <vector>

#include <QTableView>

#include "core/text.h"
#include "platform/qt/text_table_model.h"

namespace kelvora {

class FoodTable : public QTableView {
  Q_OBJECT

 public:
  explicit FoodTable(const char* object_name, QWidget* parent);

  // The payload for the selected rows; empty when nothing may be dragged.
  std::function<Text(const std::vector<std::size_t>& rows)> drag_payload;
  // Takes a payload that was dropped.
  std::function<void(const Text& payload)> drop;

  [[nodiscard]] TextTableModel& Model() { return model_; }
  // The numbers of the selected rows, from first to last.
  [[nodiscard]] std::vector<std::size_t> SelectedRows() const;
  // Selects the rows whose cell in `column` reads `text`, and brings the first into view; nothing
  // is selected if there is none.
  void SelectRowsReading(int column, const QString& text);
  void SelectRow(int row);

 signals:
  void RowClicked(int row);
  void DeletePressed();
  void PlusPressed();
  void MinusPressed();

 protected:
  void startDrag(Qt::DropActions supported) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void SetDropLight(bool on);

  TextTableModel model_;
  bool drop_light_ = false;
};

}  // namespace kelvora
