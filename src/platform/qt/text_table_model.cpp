#include "platform/qt/text_table_model.h"

#include "platform/qt/cell_tips.h"
#include "platform/qt/guarded_application.h"
#include "platform/qt/text.h"

namespace kelvora {

void TextTableModel::Show(std::vector<Column> columns, std::size_t row_count, CellText cell) {
  beginResetModel();
  columns_ = std::move(columns);
  row_count_ = row_count;
  cell_ = std::move(cell);
  second_line_column_ = -1;
  second_line_ = nullptr;
  endResetModel();
}

void TextTableModel::ShowSecondLine(int column, SecondLine line) {
  second_line_column_ = column;
  second_line_ = std::move(line);
}

void TextTableModel::SetRowIcon(int column, const QIcon& icon) {
  icon_column_ = column;
  icon_ = icon;
}

int TextTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(row_count_);
}

int TextTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

Qt::ItemFlags TextTableModel::flags(const QModelIndex& index) const {
  return QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled;
}

QVariant TextTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto row = static_cast<std::size_t>(index.row());
  const auto column = static_cast<std::size_t>(index.column());
  const bool has_second = index.column() == second_line_column_ && second_line_ != nullptr;
  switch (role) {
    case Qt::DisplayRole:
      return Guarded([&] { return ToQtCell(cell_(row, column)); });
    case kSecondLineRole:
      return has_second ? Guarded([&] { return QVariant(ToQtCell(second_line_(row))); })
                        : QVariant();
    case Qt::AccessibleTextRole: {
      if (!has_second) return {};
      const QString second = data(index, kSecondLineRole).toString();
      const QString first = data(index, Qt::DisplayRole).toString();
      return second.isEmpty() ? first : first + QStringLiteral(", ") + second;
    }
    case Qt::TextAlignmentRole:
      return QVariant(columns_[column].alignment | Qt::AlignVCenter);
    case Qt::DecorationRole:
      return index.column() == icon_column_ ? QVariant(icon_) : QVariant();
    default:
      return {};
  }
}

QVariant TextTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  const Column& column = columns_[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return ToQt(column.heading);
  if (role == Qt::ToolTipRole) return ToQt(column.tip.empty() ? column.heading : column.tip);
  if (role == Qt::TextAlignmentRole) return QVariant(column.alignment | Qt::AlignVCenter);
  return {};
}

}  // namespace kelvora
