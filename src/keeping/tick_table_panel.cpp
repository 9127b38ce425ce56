#include "keeping/tick_table_panel.h"

#include <QHeaderView>
#include <QKeyEvent>

#include "platform/qt/look.h"

namespace kelvora {

Qt::ItemFlags TickTableModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = TextTableModel::flags(index) & ~Qt::ItemIsDragEnabled;
  return index.column() == 0 ? flags | Qt::ItemIsUserCheckable : flags;
}

QVariant TickTableModel::data(const QModelIndex& index, int role) const {
  if (role == Qt::CheckStateRole && index.isValid() && index.column() == 0) {
    return tick_of(static_cast<std::size_t>(index.row()));
  }
  return TextTableModel::data(index, role);
}

bool TickTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || !index.isValid()) return false;
  Tick({static_cast<std::size_t>(index.row())}, value.toInt() == Qt::Checked);
  return true;
}

void TickTableModel::Tick(const std::vector<std::size_t>& rows, bool ticked) {
  for (const std::size_t row : rows) tick(row, ticked);
  RefreshTicks();
  on_ticked();
}

void TickTableModel::RefreshTicks() {
  if (rowCount() == 0) return;
  emit dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
}

TickTable::TickTable(QWidget* parent, const char* object_name) : QTableView(parent) {
  NameWidget(this, object_name);
  setModel(&model_);
  MakeRowList(this);
  setTabKeyNavigation(false);
  horizontalHeader()->setSectionsClickable(false);
  // The first column takes what the others, which are short, leave over.
  connect(&model_, &QAbstractItemModel::modelReset, this, [this] {
    QHeaderView* const header = horizontalHeader();
    for (int column = 0; column < header->count(); ++column) {
      header->setSectionResizeMode(
          column, column == 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    }
    setMinimumWidth(WidthOfHeadings(*this) + 2 * frameWidth());
  });
}

std::optional<std::size_t> TickTable::CurrentRow() const {
  const QModelIndex current = currentIndex();
  if (!current.isValid()) return std::nullopt;
  return static_cast<std::size_t>(current.row());
}

void TickTable::keyPressEvent(QKeyEvent* event) {
  const auto current = CurrentRow();
  if (event->key() != Qt::Key_Space || !current) return QTableView::keyPressEvent(event);
  std::vector<std::size_t> rows = {*current};
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      rows.push_back(static_cast<std::size_t>(row));
    }
  }
  model_.Tick(rows, model_.tick_of(*current) != Qt::Checked);
}

// Home and End lead to the first and the last row, since only whole rows are selected here.
QModelIndex TickTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  if (model_.rowCount() == 0 || (action != MoveHome && action != MoveEnd)) {
    return QTableView::moveCursor(action, modifiers);
  }
  return model_.index(action == MoveHome ? 0 : model_.rowCount() - 1, 0);
}

void TickTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (current.row() != previous.row()) emit CurrentRowChanged();
}

}  // namespace kelvora
