// The list of foods that several windows have: whole rows, several at once, dragged as text and
// taking text. Draws a TextTableModel; what a drag carries and what a drop does is told by the
// window that has it.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QTableView>

#include "core/text.h"
#include "platform/qt/hint_label.h"
#include "platform/qt/text_table_model.h"

namespace kelvora {

class FoodTable : public QTableView {
  Q_OBJECT

 public:
  explicit FoodTable(const char* object_name, QWidget* parent);

  // The payload for the selected rows; empty when nothing may be dragged.
  std::function<Text(const std::vector<std::size_t>& rows)> drag_payload;
  // Whether a payload over the list may be dropped; any of this program while not set.
  std::function<bool(const Text& payload)> takes;
  // Takes a payload that was dropped.
  std::function<void(const Text& payload)> drop;
  // Takes a digit typed on the list, where digits begin an amount.
  std::function<void(const QString& digit)> type_amount;
  // What Escape does; nothing of its own while not set.
  std::function<void()> on_escape;

  // What a drag over the list does to it, for whoever stands around it: whether it is taken, the
  // frame that says so, and the drop.
  [[nodiscard]] bool Takes(const QMimeData* data) const;
  void SetDropLight(bool on);
  void TakeDrop(const QMimeData* data);

  [[nodiscard]] TextTableModel& Model() { return model_; }
  // What an empty list says, in grey, at that place.
  void SetEmptyText(const QString& text, Qt::Alignment place = Qt::AlignHCenter | Qt::AlignTop);
  // The numbers of the selected rows, from first to last.
  [[nodiscard]] std::vector<std::size_t> SelectedRows() const;
  void SelectRow(int row);
  // Brings the focus to the list with the first row selected; false for an empty list.
  bool GoToFirstRow();
  // Selects these rows, given from first to last, and nothing else; `focus` becomes the current one
  // and comes into view.
  void SelectRows(const std::vector<std::size_t>& rows, std::size_t focus);
  // The current row if it is selected, or else the first selected one.
  [[nodiscard]] std::optional<std::size_t> RowInFocus() const;

 signals:
  void RowClicked(int row);
  void DeletePressed();
  void EnterPressed();
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
  bool viewportEvent(QEvent* event) override;

 private:
  void BuildEmptyHint();

  TextTableModel model_;
  bool drop_light_ = false;
  HintLabel* empty_hint_;
};

}  // namespace kelvora
