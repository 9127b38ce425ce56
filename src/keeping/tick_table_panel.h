// A list of rows with a tick in front of each. It holds neither texts nor ticks: both come from
// functions, and Space or a click on a tick calls one. Space ticks all selected rows as the one in
// focus.
#pragma once

#include <functional>

#include <QTableView>

#include "platform/qt/text_table_model.h"

namespace kelvora {

class TickTableModel : public TextTableModel {
  Q_OBJECT

 public:
  using TextTableModel::TextTableModel;

  std::function<Qt::CheckState(std::size_t row)> tick_of = [](std::size_t) {
    return Qt::Unchecked;
  };
  std::function<void(std::size_t row, bool ticked)> tick = [](std::size_t, bool) {};
  std::function<void()> on_ticked = [] {};  // once, however many rows

  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  // Ticks the rows.
  void Tick(const std::vector<std::size_t>& rows, bool ticked);
  // What is shown of the ticks may have changed.
  void RefreshTicks();
};

class TickTable : public QTableView {
  Q_OBJECT

 public:
  TickTable(QWidget* parent, const char* object_name);
  [[nodiscard]] TickTableModel& Model() { return model_; }
  // The row in focus; nothing in an empty list.
  [[nodiscard]] std::optional<std::size_t> CurrentRow() const;

 signals:
  void CurrentRowChanged();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  TickTableModel model_;
};

}  // namespace kelvora
